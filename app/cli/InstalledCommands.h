// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands for the journal of installs.
#pragma once

#include "app/cli/Command.h"

std::vector<Command> InstalledCommands();
