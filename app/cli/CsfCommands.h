// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands for CSF string tables.
#pragma once

#include "app/cli/Command.h"

/// list, diff, check, save, export, import and merge.
std::vector<Command> CsfCommands();
