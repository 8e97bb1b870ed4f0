// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands for ZIP archives.
#pragma once

#include "app/cli/Command.h"

/// All of them, as they stand behind the word "zip".
std::vector<Command> ZipCommands();

/// create.
std::vector<Command> ZipCreateCommands();
