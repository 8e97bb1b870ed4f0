// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// `big verify`: tells what is wrong with an archive.
#pragma once

namespace CLI {
class App;
}

/// Adds the command to `big`, which stands already.
void AddVerifyCommand(CLI::App& commands);
