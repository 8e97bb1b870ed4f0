// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The table of the four games.
#pragma once

#include <QString>

#include <array>

/// 0 Generals, 1 Zero Hour, 2 The Battle for Middle-earth, 3 The Battle for Middle-earth II.
using GameIndex = int;

inline constexpr int GameCount = 4;

struct GameEntry {
    QString InstallPath;  ///< as the registry has it, with its own trailing backslash; empty: not installed
    QString ReplayPath;   ///< ends in a backslash
    QString MapPath;      ///< ends in a backslash
    QString GameBigFiles; ///< the game's own archives, each between slashes
    QString Prefix;       ///< the Wine prefix (native folder) that the game runs in; empty without one
    QString UserPrefix;   ///< the one whose user ReplayPath and MapPath belong to
    QString FoundIn;      ///< where InstallPath stands, as a person's system writes it; empty: not installed

    // The inside paths that the three lead to in the game's own prefix: what is made of them finds its way there,
    // whatever prefix the same text means otherwise.
    [[nodiscard]] QString InstallFolder() const;
    [[nodiscard]] QString ReplayFolder() const;
    [[nodiscard]] QString MapFolder() const;
};

/// Filled once at start-up.
extern std::array<GameEntry, GameCount> Game;

/// Prefix of a game's settings keys: Gen, ZH, BFME, BFME2. `game` is 0 to 3.
QString SettingsPrefix(GameIndex game);

/// The program that starts a game, in its folder. `game` is 0 to 3.
QString ExecutableName(GameIndex game);
