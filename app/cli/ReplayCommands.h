// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands for replays.
#pragma once

#include "app/cli/Command.h"

/// list and show.
std::vector<Command> ReplayCommands();
