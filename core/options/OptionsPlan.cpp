// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/options/OptionsPlan.h"

#include "core/Host.h"
#include "core/Navigator.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "core/options/LossText.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Processes.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// In the order in which they are put back.
const std::array<QString, 12>& SnapshotKeys() {
    using namespace SettingKeys;
    static const std::array<QString, 12> keys{
        StartupOptions(0), StartupOptions(1), StartupOptions(2), ShellMapMode(0), ShellMapMode(1), ShellMapMode(2),
        LoadMod(0),        LoadMod(1),        LoadMod(2),        LoadMod(3),      ShellMapMode(3), StartupOptions(3)};
    return keys;
}

/// A box stays clear for an empty text, also where that counts as on. This is meant.
bool IsTicked(QLatin1String key) {
    bool isNumber = false;
    const double number = ReadSetting(key).toDouble(&isNumber);
    return isNumber && std::isfinite(number) && std::nearbyint(number) == 1.0;
}

void StoreTick(QLatin1String key, bool ticked) {
    WriteSetting(key, ticked ? u"1"_s : u"0"_s);
}

/// The program's executable, which lies in its folder unless another folder was named.
QString OwnProgram() {
    const QString executable = Paths::Executable();
    const QString inFolder = mMain::ProgramFolder + u'\\' + Paths::LastPart(executable);
    return Files::FileExists(inFolder) ? inFolder : executable;
}

} // namespace

OptionsPlan::OptionsPlan() {
    Ignoring([&] { Load(); });
    Ignoring([&] {
        viewsIcons_ = IsTicked(SettingKeys::ViewFileIcons);
        ChecksForUpdates = IsTicked(SettingKeys::AutoCheckForUpdates);
        ExactOffsets = IsTicked(SettingKeys::ExactOffsets);
    });
    Ignoring([&] { AddTabs(); });
    std::ranges::transform(SnapshotKeys(), snapshot_.begin(), ReadSetting);
}

void OptionsPlan::Load() {
    languages_ = LanguageFiles::InProgramFolder();
    const QString inUse = ReadSetting(SettingKeys::TradFileName);
    const auto found = std::ranges::find(languages_, inUse, &LanguageFile::FileName);
    language_ = found == languages_.end() ? -1 : static_cast<int>(found - languages_.begin());
}

void OptionsPlan::AddTabs() {
    static const std::array<QString, GameCount> keys{u"Generals"_s, u"ZeroHour"_s, u"BFME"_s, u"BFME2"_s};
    tabs_.push_back({.Key = u"Options"_s, .Caption = GetText(u"ProgramOptions"_s)});
    for (GameIndex game = 0; game < GameCount; ++game) {
        const QString& key = keys.at(static_cast<std::size_t>(game));
        if (!Game.at(static_cast<std::size_t>(game)).InstallPath.isEmpty())
            tabs_.push_back({.Key = key, .Caption = GetText(key), .Game = game});
    }
}

void OptionsPlan::ChooseLanguage(int language) {
    language_ = language;
    restartNeeded_ = true;
}

void OptionsPlan::ShowIcons(bool shown) {
    viewsIcons_ = shown;
    restartNeeded_ = true;
}

void OptionsPlan::SaveSelected() const {
    if (game_ >= 0)
        Page.SaveGameOptions();
}

void OptionsPlan::SelectTab(const QString& key) {
    SaveSelected();
    const auto tab = std::ranges::find(tabs_, key, &Tab::Key);
    game_ = tab == tabs_.end() ? -1 : tab->Game;
    if (game_ >= 0)
        Page.Enter(game_);
}

Notice OptionsPlan::LossNotice(const std::function<void()>& kept) {
    if (game_ < 0)
        return {};
    Notice notice{.Text = LossText::Of(Page)};
    if (!notice.Text.isEmpty())
        notice.Links.push_back({.Text = GetText(u"KeepStored"_s), .Run = [this, kept] {
                                    Page.KeepStored();
                                    kept();
                                }});
    return notice;
}

bool OptionsPlan::Accept() {
    SaveSelected();
    StoreTick(SettingKeys::AutoCheckForUpdates, ChecksForUpdates);
    StoreTick(SettingKeys::ExactOffsets, ExactOffsets);
    if (!restartNeeded_)
        return true;
    // With No, the new choice of language and icons is lost. This is meant.
    const Host::Answer answer =
        Host::Current().Message(GetText(u"RebootConfirm"_s), Host::Icon::Question, Host::Buttons::YesNo);
    return answer != Host::Answer::Yes || Restart();
}

// All questions come first: a restart is stored whole or not at all.
bool OptionsPlan::Restart() {
    if (language_ < 0) {
        Host::Current().Message(GetText(u"SelectLanguage"_s), Host::Icon::Exclamation);
        return false;
    }
    if (!Navigator::Current().MayEndProgram())
        return false;
    StoreTick(SettingKeys::ViewFileIcons, viewsIcons_);
    WriteSetting(SettingKeys::TradFileName, languages_.at(static_cast<std::size_t>(language_)).FileName);
    Processes::StartCommand(u'"' + OwnProgram() + u'"', Processes::FirstWindow::Minimised);
    mMain::RestartRequested = true;
    return true;
}

void OptionsPlan::Cancel() const {
    for (std::size_t at = 0; at < snapshot_.size(); ++at)
        WriteSetting(SnapshotKeys().at(at), snapshot_.at(at));
}
