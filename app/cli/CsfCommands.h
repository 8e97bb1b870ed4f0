// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands for CSF string tables.
#pragma once

#include "app/cli/Command.h"

/// list and save.
std::vector<Command> CsfCommands();

/// export and import.
std::vector<Command> CsfExchangeCommands();

/// diff, check and merge. They end with 0 for tables that are the same or clean, with 1 for what they found, and with 2
/// when they could not look.
std::vector<Command> CsfCompareCommands();
