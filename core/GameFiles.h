// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What players put into a game's own folder: mods and shell maps. Options, catalogues, activation and installation
/// share it. `game` is 0 to 3; a game that is not installed has neither.
///
/// Names are listed in the order of Windows' own folders: by name, capitals and small letters alike.
#pragma once

#include "core/Game.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace GameFiles {

/// Whether an archive of that name is one of the game's own.
bool IsOwnArchive(GameIndex game, const QString& fileName);

/// Whether an archive of that name would be a mod: it is not the game's own and does not begin with "_".
bool IsMod(GameIndex game, const QString& fileName);

/// The file names of the mods, archives beside the game's own.
QStringList Mods(GameIndex game);

enum class Kind {
    FoldersOnly,
    FilesToo, ///< a file of a fitting name counts as a shell map
};

/// The names in the game's "Maps" folder that are "QvShellMap" and three more characters.
QStringList ShellMaps(GameIndex game, Kind kind = Kind::FilesToo);

/// The number in the last three characters of a shell map's name; nothing where they are no three digits.
std::optional<int> NumberIn(const QString& name);

/// The number of the last name in the "Maps" folder that begins with "QvShellMap", capitals as here, whatever follows,
/// and ends in a number; nothing without such a name.
std::optional<int> HighestShellMapNumber(GameIndex game, Kind kind = Kind::FilesToo);

/// "QvShellMap" and the number with leading zeros up to three characters. Raises 5 when it has more than three.
QString ShellMapName(const QString& number);
/// What the last three characters of a shell map's name say. Raises 13 when they are no number.
int ShellMapNumber(const QString& name);

/// The full path of what stands in the "Maps" folder under a shell map's name; no trailing backslash.
QString ShellMapFolder(GameIndex game, const QString& name);

/// A mod or a shell map as its INI file describes it: the keys `Name` and `Comments` of one section.
struct RecordPlace {
    QString File;
    QString Section;
};

struct Record {
    QString Name;
    QString Comments;
};

/// The INI file beside the mod's archive, and the one in the shell map's folder.
RecordPlace ModRecord(GameIndex game, const QString& fileName);
RecordPlace ShellMapRecord(GameIndex game, const QString& name);

/// What is missing is empty.
Record ReadRecord(const RecordPlace& place);

/// Puts the chosen shell map in place before a game is started; whoever knows how sets it, and without it a game
/// starts as it is. A failure in it is ignored.
extern std::function<void(GameIndex game)> ActivateShellMap;

} // namespace GameFiles
