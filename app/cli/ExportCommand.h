// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The command that takes players' files out of a game.
#pragma once

#include "app/cli/Command.h"

std::vector<Command> ExportCommands();
