// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/ZipCommands.h"

std::vector<Command> ZipCommands() {
    std::vector<Command> all;
    for (const auto& commands : {ZipCreateCommands()})
        all.insert(all.end(), commands.begin(), commands.end());
    return all;
}
