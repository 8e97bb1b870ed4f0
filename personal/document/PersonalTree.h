// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The tree of games and kinds: which nodes there are, and what they are called.
#pragma once

#include "personal/document/PersonalFilesView.h"

#include <functional>

namespace PersonalTree {

/// How many files of a kind a game has.
using Count = std::function<qint16(PersonalKind kind, GameIndex game)>;

/// Adds a node for each game that is installed, in the order of the games, and below it Replays, Maps, Mods and Shell
/// maps, asking for the count of each in that order. When a count raises, what was added before it stays.
void AddNodes(std::vector<PersonalNode>& nodes, const Count& count);

/// Null when no node has the key.
const PersonalNode* Find(const std::vector<PersonalNode>& nodes, const QString& key);

} // namespace PersonalTree
