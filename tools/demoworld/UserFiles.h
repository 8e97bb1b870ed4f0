// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A user's own files: replays, maps, and the records beside mods and shell maps.
#pragma once

#include "core/Game.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace Demo {

/// What a replay's head tells.
struct ReplayFacts {
    QString Version = QStringLiteral("1.04"); ///< behind the word "Version"
    QString Map;                              ///< as the game writes it, see RandomReplayFacts
    QString Slots;                            ///< without the closing colon, eight of them joined by colons
};

/// A replay of `bodySize` bytes behind its head; never shorter than 2,048 bytes in all.
QByteArray Replay(GameIndex game, const ReplayFacts& facts, qsizetype bodySize, quint64 seed);

/// The facts of a game between made-up players, with sides that the game knows, teams or none, observers and closed
/// slots. The map is "03maps/" and its name, in the last game the path of its file.
ReplayFacts RandomReplayFacts(GameIndex game, quint64 seed);

struct NamedReplay {
    QString FileName;
    ReplayFacts Facts;
    quint64 Seed;
};

/// The replays of a world, in which each side of the game plays.
std::vector<NamedReplay> WorldReplays(GameIndex game);

/// The extension with its dot: ".rep", or ".BfME2Replay" for game 3.
QString ReplayExtension(GameIndex game);

/// A map: named chunks with the heights of `size` by `size` places, the starting places and a script.
QByteArray Map(int size, quint64 seed);

/// "Mod" record with `Name` and `Comments`.
QByteArray ModRecord(const QString& name, const QString& comments);

/// "Infos" record with `Name` and `Comments`.
QByteArray ShellMapRecord(const QString& name, const QString& comments);

} // namespace Demo
