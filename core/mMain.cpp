// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"

#include "core/FirstLanguage.h"
#include "core/GameFiles.h"
#include "core/Host.h"
#include "core/Navigator.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/mLaunch.h"
#include "core/mTraduction.h"
#include "core/rescue/RescuedDocument.h"
#include "platform/Paths.h"
#include "platform/Processes.h"
#include "platform/RuntimeError.h"

#include <QLocale>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

QString mMain::CommandLine;
QString mMain::CommandFileArgument;
bool mMain::AddFileRequested = false;
bool mMain::RestartRequested = false;
bool mMain::CsfOpenedByHost = false;
QString mMain::LanguageFileName;
std::function<void()> mMain::EndProgram = [] {
    KeepAllRescues();
    Processes::End(0);
};

namespace {

std::unique_ptr<RegistryRuntime> registry;
std::unique_ptr<INIRuntime> ini;

void CheckForUpdatesIfWanted() {
    if (mMain::AutomaticCheckWanted())
        Navigator::Current().CheckForUpdates(true);
}

/// Why the game could not be started, in one line; empty when it was.
QString Launch(GameIndex game) {
    Ignoring([&] {
        if (GameFiles::ActivateShellMap)
            GameFiles::ActivateShellMap(game);
    });
    try {
        mLaunch::LaunchGame(game);
    } catch (const RuntimeError& error) {
        return QString(error.Description()).replace(u'\r', u' ').replace(u'\n', u' ');
    }
    return {};
}

void ShowToolsMenu() {
    Ignoring([] { Navigator::Current().ShowToolsMenu(); });
    if (mMain::NoGameOfFirstThree())
        Ignoring([] { Host::Current().Message(mTraduction::GetText(u"NoGameDetected"_s), Host::Icon::Critical); });
}

void ShowTool(const mMain::Dispatched& dispatched) {
    using Action = mMain::Dispatched::Action;
    Navigator& navigator = Navigator::Current();
    switch (dispatched.What) {
    case Action::OpenBigFile:
        return navigator.OpenBigFile(dispatched.Path);
    case Action::ShowBigEditor:
        navigator.ShowBigEditor();
        return;
    case Action::ExtractBigFile:
        return navigator.ExtractBigFile(dispatched.Path);
    case Action::OpenCSFFile:
        return navigator.OpenCSFFile(dispatched.Path);
    case Action::ShowCSFEditor:
        navigator.ShowCSFEditor();
        return;
    case Action::ShowPersonalFiles:
        navigator.ShowPersonalFiles();
        return;
    case Action::ShowAddFiles:
        mMain::AddFileRequested = true;
        return navigator.ShowAddFiles(nullptr, {});
    case Action::LaunchGame:
    case Action::NormalStart:
        return;
    }
}

} // namespace

void mMain::UseRuntimes() {
    ini = std::make_unique<INIRuntime>();
    registry = std::make_unique<RegistryRuntime>();
    ProgramFolders::Use(Paths::ProgramFolder());
}

RegistryRuntime& mMain::Registry() {
    if (registry == nullptr)
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"The registry is not in use yet."_s);
    return *registry;
}

INIRuntime& mMain::INI() {
    if (ini == nullptr)
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"INI files are not in use yet."_s);
    return *ini;
}

bool mMain::AutomaticCheckWanted() {
    bool isNumber = false;
    const double number = ReadSetting(SettingKeys::AutoCheckForUpdates).toDouble(&isNumber);
    // A text that is no number counts as yes, the empty text of a first run above all. This is meant.
    return !isNumber || !std::isfinite(number) || std::trunc(number) == 1.0;
}

bool mMain::NoGameOfFirstThree() {
    return Game[0].InstallPath.isEmpty() && Game[1].InstallPath.isEmpty() && Game[2].InstallPath.isEmpty();
}

mMain::Dispatched mMain::Prepare(const QString& commandLine, const std::function<void()>& detect) {
    Dispatched normalStart{.UpdateChecks = 1};
    const bool detected = Ignoring([&] {
        UseRuntimes();
        Ignoring([] { FirstLanguage::Choose(QLocale::system().uiLanguages()); });
        LanguageFileName = ReadSetting(SettingKeys::TradFileName);
        detect();
    });
    if (!detected)
        return normalStart;
    Ignoring([] { MakeUserFolders(); });
    CommandLine = WithTool(commandLine);
    if (CommandLine.isEmpty())
        return normalStart;
    CommandFileArgument = FileArgument(CommandLine);
    Dispatched dispatched = Dispatch(CommandLine);
    if (dispatched.What == Dispatched::Action::LaunchGame)
        dispatched.Failure = Launch(dispatched.Launched);
    return dispatched;
}

void mMain::Show(const Dispatched& dispatched) {
    for (int check = 0; check < dispatched.UpdateChecks; ++check)
        Ignoring(CheckForUpdatesIfWanted);
    if (dispatched.What == Dispatched::Action::NormalStart)
        ShowToolsMenu();
    else
        Ignoring([&] { ShowTool(dispatched); });
}

void mMain::ShowOptions(QObject* owner) {
    Navigator::Current().ShowOptions(owner);
    if (RestartRequested)
        EndProgram();
}

QString mMain::VersionText() {
    return u"%1.%2.%3"_s.arg(BRINDOCK_VERSION_MAJOR).arg(BRINDOCK_VERSION_MINOR).arg(BRINDOCK_VERSION_REVISION);
}
