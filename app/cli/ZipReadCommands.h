// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands that read ZIP archives.
#pragma once

#include "app/cli/Command.h"

/// list, extract and comment.
std::vector<Command> ZipReadCommands();
