// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How the commands name a game, and what is done before a command works on one.
#pragma once

#include "app/cli/Command.h"
#include "core/Game.h"

namespace GameArgument {

/// A word of the command line that takes gen, zh, bfme or bfme2.
Parameter Word(Parameter::Kind kind = Parameter::Kind::Place, const std::string& name = "GAME");

/// The game that such a word names.
GameIndex Of(const Arguments& given, const std::string& name = "GAME");

/// The same once languages and games are looked for, as a start does.
GameIndex Detected(const Arguments& given, const std::string& name = "GAME");

/// The same for a command that works on the game's files: does first what a start does, language, games and the users'
/// folders that are missing.
GameIndex Prepared(const Arguments& given, const std::string& name = "GAME");

} // namespace GameArgument
