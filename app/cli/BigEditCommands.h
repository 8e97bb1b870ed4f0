// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// `big rename` and `big delete`: the editor's commands of those names for scripts.
#pragma once

namespace CLI {
class App;
}

/// Adds the commands to `big`, which stands already.
void AddBigEditCommands(CLI::App& commands);
