// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands for maps, mods and shell maps.
#pragma once

#include "app/cli/Command.h"

std::vector<Command> MapCommands();
std::vector<Command> ModCommands();
std::vector<Command> ShellMapCommands();
