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
#include <optional>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// In the order in which they are put back.
const OptionsPlan::Snapshot& SnapshotKeys() {
    using namespace SettingKeys;
    static const OptionsPlan::Snapshot keys{StartupOptions(0), StartupOptions(1), StartupOptions(2), ShellMapMode(0),
                                            ShellMapMode(1),   ShellMapMode(2),   LoadMod(0),        LoadMod(1),
                                            LoadMod(2),        LoadMod(3),        ShellMapMode(3),   StartupOptions(3)};
    return keys;
}

std::optional<double> NumberIn(const QString& text) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

/// Whether the automatic check counts as on. The box stays clear for a text that is no number, also where that counts
/// as on. This is meant.
bool IsWholeOne(const QString& text) {
    return std::trunc(NumberIn(text).value_or(0)) == 1;
}

/// Whether any other switch counts as on.
bool IsOne(const QString& text) {
    return text == u"1";
}

/// A box's text. One that is as it was found stores the number that it was found as.
QString TickText(bool ticked, const QString& before, bool (*isOn)(const QString&)) {
    if (isOn(before) == ticked && NumberIn(before))
        return before;
    return ticked ? u"1"_s : u"0"_s;
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
        before_ = {.Updates = ReadSetting(SettingKeys::AutoCheckForUpdates),
                   .Icons = ReadSetting(SettingKeys::ViewFileIcons),
                   .Exact = ReadSetting(SettingKeys::ExactOffsets)};
        viewsIcons_ = IsOne(before_.Icons);
        ChecksForUpdates = IsWholeOne(before_.Updates);
        ExactOffsets = IsOne(before_.Exact);
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
    WriteSetting(SettingKeys::AutoCheckForUpdates, TickText(ChecksForUpdates, before_.Updates, IsWholeOne));
    WriteSetting(SettingKeys::ExactOffsets, TickText(ExactOffsets, before_.Exact, IsOne));
    if (!restartNeeded_)
        return true;
    // With No, the new choice of language and icons is lost. This is meant.
    const Host::Answer answer =
        Host::Current().Message(GetText(u"RebootConfirm"_s), Host::Icon::Question, Host::Buttons::YesNo);
    if (answer != Host::Answer::Yes || Restart())
        return true;
    // The dialog that stays may still be cancelled, which puts back nothing but the games' settings.
    WriteSetting(SettingKeys::AutoCheckForUpdates, before_.Updates);
    WriteSetting(SettingKeys::ExactOffsets, before_.Exact);
    return false;
}

// All questions come first: a restart is stored whole or not at all.
bool OptionsPlan::Restart() {
    if (language_ < 0) {
        Host::Current().Message(GetText(u"SelectLanguage"_s), Host::Icon::Exclamation);
        return false;
    }
    if (!Navigator::Current().MayEndProgram())
        return false;
    WriteSetting(SettingKeys::ViewFileIcons, TickText(viewsIcons_, before_.Icons, IsOne));
    WriteSetting(SettingKeys::TradFileName, languages_.at(static_cast<std::size_t>(language_)).FileName);
    Processes::StartCommand(u'"' + OwnProgram() + u'"', Processes::FirstWindow::Minimised);
    mMain::RestartRequested = true;
    return true;
}

void OptionsPlan::Cancel() const {
    for (std::size_t at = 0; at < snapshot_.size(); ++at)
        WriteSetting(SnapshotKeys().at(at), snapshot_.at(at));
}
