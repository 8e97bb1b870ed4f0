// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands for BIG archives.
#pragma once

#include "app/cli/Command.h"

/// list and extract; search; save and create; rename and delete; preview; verify and repair.
std::vector<Command> BigReadingCommands();
std::vector<Command> SearchCommands();
std::vector<Command> BigSavingCommands();
std::vector<Command> BigEditCommands();
std::vector<Command> PreviewCommands();
std::vector<Command> VerifyCommands();
