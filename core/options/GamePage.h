// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What stands on the options dialog's game page. There is one page for all games: it is filled anew for each, and what
/// a game's settings say nothing about stays as the game before left it.
#pragma once

#include "core/Game.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

enum class ShellMapChoice { None, Load, Random };

/// The three settings of a game, as they are stored.
struct GameChoices {
    QString StartupOptions;
    QString LoadMod;
    QString ShellMapMode;

    static GameChoices Stored(GameIndex game);
};

class GamePage {
public:
    struct Option {
        QString Name; ///< also the key of its description
        bool Checked = false;
    };

    // Read these, and change them through what stands below.
    std::vector<Option> Options;
    QStringList Mods;        ///< as they are shown
    QStringList ModBigFiles; ///< in the same order
    int Mod = -1;            ///< the selected one
    bool LoadsMod = false;
    QStringList ShellMaps; ///< as they are shown
    int ShellMap = -1;     ///< the selected one
    ShellMapChoice Choice = ShellMapChoice::None;

    /// Fills the page with a game's mods, shell maps and settings.
    void Enter(GameIndex game);
    /// Stores what the page shows in the settings of its game.
    void SaveGameOptions() const;
    /// What that would store.
    [[nodiscard]] GameChoices Choices() const;

    // What the user does. Positions are those of the lists.
    void CheckOption(int option, bool checked);
    void SetLoadsMod(bool loads);
    void SelectMod(int mod);
    void Choose(ShellMapChoice choice);
    void SelectShellMap(int shellMap);

    /// What storing the page would replace though the user has touched nothing of it.
    struct Losses {
        QStringList Options; ///< words of the stored options that the list does not have
        QString Mod;         ///< the stored one; empty: it stays
        bool Mode = false;

        [[nodiscard]] bool Any() const { return !Options.isEmpty() || !Mod.isEmpty() || Mode; }
    };

    [[nodiscard]] Losses Replaced() const;

    /// What was stored when the game was entered.
    [[nodiscard]] const GameChoices& Before() const { return stored_; }

    /// Has the page keep what it would replace: it is shown where the page has a place for it, and stays stored until
    /// the user chooses something else there.
    void KeepStored();

    // The steps of Enter.
    /// These two return how many there are.
    qsizetype ListMods(GameIndex game);
    qsizetype ListShellMaps(GameIndex game);
    void LoadGameOptions(GameIndex game);

private:
    void Adjust();
    void KeepOptions(const QStringList& words);
    [[nodiscard]] QString KeptOptions() const;
    void KeepMod();
    void KeepMode();

    GameIndex game_ = -1;
    GameChoices stored_;
    bool modTouched_ = false;
    bool modeTouched_ = false;
    std::optional<QString> keptOptions_;
    std::optional<QString> keptMod_;
    std::optional<QString> keptMode_;
};
