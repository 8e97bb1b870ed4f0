// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the commands for maps, mods and shell maps have in common.
#pragma once

#include "app/cli/Command.h"
#include "core/GameFiles.h"
#include "personal/lists/GameList.h"

#include <QJsonArray>

#include <optional>
#include <string>

namespace ListRows {

/// --json, --yes (without which nothing is deleted), and --name and --comments.
Parameter Json();
Parameter Yes();
std::vector<Parameter> Description();

void Print(const QJsonArray& rows);

/// A text of a list as the system writes names, and a row's path.
QString Shown(const QString& name);
QString PathOf(const ListRow& row);

/// The place of the row of that text; where no text is spelt so, of the one that is without regard to case. Fails when
/// there is none, or more than one.
int PlaceOf(const GameList& list, const QString& name);

/// The number of a shell map's row; nothing where its folder has none.
std::optional<int> NumberOf(const ListRow& row);

/// The place of the shell map of that number. Fails when there is none.
int PlaceOfNumber(const GameList& shellMaps, int number);

/// What is wrong with a text as a shell map's number: for Parameter::Check.
std::string NumberComplaint(const std::string& text);

/// Deletes what the row at a place stands for, and fails when it is still there then.
void Delete(GameList& list, int place);

/// Lists the game and deletes what the names stand for, once each is known to be there.
void DeleteNamed(GameList& list, GameIndex game, const QStringList& names);

/// Writes what was given of --name and --comments, and leaves the rest.
void Describe(const GameFiles::RecordPlace& place, const Arguments& given);

} // namespace ListRows
