// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/options/GamePage.h"

#include "core/GameFiles.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr GameIndex SecondMiddleEarth = 3;
constexpr qsizetype LoadLength = 4;
constexpr qsizetype DigitsLength = 3;

QStringList OptionsOf(GameIndex game) {
    static const std::array<QString, GameCount> lists{u"nologo,noshellmap"_s, u"quickstart,noshaders,noshellmap"_s,
                                                      u"quickstart,noaudio,noshaders,noshellmap"_s,
                                                      u"quickstart,noaudio,noshaders,noshellmap"_s};
    return lists.at(static_cast<std::size_t>(game)).split(u',');
}

/// The position that a "Load" value stands for; -1 for one that is no number or behind the end of the list.
int PositionIn(const QString& mode, qsizetype count) {
    bool isNumber = false;
    const int number = mode.sliced(std::min(LoadLength, mode.size())).toInt(&isNumber);
    return isNumber && number >= 1 && number <= count ? number - 1 : -1;
}

template <typename List>
bool Has(const List& list, int place) {
    return place >= 0 && place < static_cast<int>(list.size());
}

} // namespace

GameChoices GameChoices::Stored(GameIndex game) {
    return {.StartupOptions = ReadSetting(SettingKeys::StartupOptions(game)),
            .LoadMod = ReadSetting(SettingKeys::LoadMod(game)),
            .ShellMapMode = ReadSetting(SettingKeys::ShellMapMode(game))};
}

void GamePage::Enter(GameIndex game) {
    game_ = game;
    stored_ = GameChoices::Stored(game);
    modTouched_ = modeTouched_ = false;
    keptOptions_.reset();
    keptMod_.reset();
    keptMode_.reset();
    ListMods(game);
    ListShellMaps(game);
    LoadGameOptions(game);
    Adjust();
}

qsizetype GamePage::ListMods(GameIndex game) {
    // The second Middle-earth's mod is stored and never read back. This is meant.
    const QString stored = game == SecondMiddleEarth ? QString() : ReadSetting(SettingKeys::LoadMod(game));
    Mods.clear();
    ModBigFiles = GameFiles::Mods(game);
    Mod = -1;
    LoadsMod = false;
    for (const QString& name : std::as_const(ModBigFiles)) {
        const QString told = GameFiles::ReadRecord(GameFiles::ModRecord(game, name)).Name;
        if (name.compare(stored, Qt::CaseInsensitive) == 0) {
            Mod = static_cast<int>(Mods.size());
            LoadsMod = true;
        }
        Mods += told.isEmpty() ? name : told;
    }
    return Mods.size();
}

qsizetype GamePage::ListShellMaps(GameIndex game) {
    ShellMaps.clear();
    ShellMap = -1;
    for (const QString& name : GameFiles::ShellMaps(game, GameFiles::Kind::FoldersOnly))
        ShellMaps +=
            name.last(DigitsLength) + u" - "_s + GameFiles::ReadRecord(GameFiles::ShellMapRecord(game, name)).Name;
    return ShellMaps.size();
}

void GamePage::LoadGameOptions(GameIndex game) {
    const QString options = ReadSetting(SettingKeys::StartupOptions(game));
    Options.clear();
    // A name that is a part of another word counts as set, too. This is meant.
    for (const QString& name : OptionsOf(game))
        Options.push_back({.Name = name, .Checked = options.contains(name)});
    if (ShellMaps.isEmpty())
        return;
    const QString mode = ReadSetting(SettingKeys::ShellMapMode(game));
    // No mode at all leaves the choice of the game before. This is meant.
    if (mode.isEmpty())
        return;
    if (mode == u"Random") {
        Choice = ShellMapChoice::Random;
    } else if (mode == u"NoShellMap") {
        Choice = ShellMapChoice::None;
    } else {
        Choice = ShellMapChoice::Load;
        // The digits are a position and not looked for among the names. This is meant.
        ShellMap = PositionIn(mode, ShellMaps.size());
    }
}

void GamePage::Adjust() {
    if (Mod < 0 && !Mods.isEmpty())
        Mod = 0;
    if (ShellMaps.isEmpty())
        Choice = ShellMapChoice::None;
    else
        ShellMap = 0; // Whatever was stored, the first one is selected. This is meant.
}

GameChoices GamePage::Choices() const {
    GameChoices choices;
    for (const Option& option : Options)
        if (option.Checked)
            choices.StartupOptions += u" -"_s + option.Name;
    if (keptOptions_)
        choices.StartupOptions = KeptOptions();
    if (LoadsMod && Has(ModBigFiles, Mod))
        choices.LoadMod = ModBigFiles[Mod];
    if (Choice == ShellMapChoice::Random)
        choices.ShellMapMode = u"Random"_s;
    else if (Choice == ShellMapChoice::Load && Has(ShellMaps, ShellMap))
        choices.ShellMapMode = u"Load"_s + ShellMaps[ShellMap].first(DigitsLength);
    choices.LoadMod = keptMod_.value_or(choices.LoadMod);
    choices.ShellMapMode = keptMode_.value_or(choices.ShellMapMode);
    return choices;
}

void GamePage::SaveGameOptions() const {
    const GameChoices choices = Choices();
    WriteSetting(SettingKeys::StartupOptions(game_), choices.StartupOptions);
    WriteSetting(SettingKeys::LoadMod(game_), choices.LoadMod);
    WriteSetting(SettingKeys::ShellMapMode(game_), choices.ShellMapMode);
}

void GamePage::CheckOption(int option, bool checked) {
    if (Has(Options, option))
        Options[static_cast<std::size_t>(option)].Checked = checked;
}

void GamePage::SetLoadsMod(bool loads) {
    LoadsMod = loads;
    modTouched_ = true;
    keptMod_.reset();
}

void GamePage::SelectMod(int mod) {
    Mod = mod;
    if (LoadsMod)
        SetLoadsMod(true);
}

void GamePage::Choose(ShellMapChoice choice) {
    Choice = choice;
    if (choice == ShellMapChoice::Load && ShellMap < 0)
        ShellMap = 0; // a kept one that is not in the list had left none selected
    modeTouched_ = true;
    keptMode_.reset();
}

void GamePage::SelectShellMap(int shellMap) {
    ShellMap = shellMap;
    if (Choice == ShellMapChoice::Load)
        Choose(ShellMapChoice::Load);
}
