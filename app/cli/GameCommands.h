// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands of brindock-cli about the games, the settings and the texts.
#pragma once

#include "app/cli/Command.h"

/// games, launch-command, text, setting and ini.
std::vector<CommandGroup> GameCommands();
