// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The command that puts maps, mods, replays and shell maps into a game.
#pragma once

#include "app/cli/Command.h"

/// install.
std::vector<Command> InstallCommands();
