// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/ZipCommands.h"

#include "app/cli/ZipReadCommands.h"

std::vector<Command> ZipCommands() {
    std::vector<Command> all;
    for (const auto& commands : {ZipCreateCommands(), ZipReadCommands()})
        all.insert(all.end(), commands.begin(), commands.end());
    return all;
}
