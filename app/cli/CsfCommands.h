// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands for CSF string tables.
#pragma once

namespace CLI {
class App;
}

/// Adds "csf" with list, save, export, import, diff, merge and check.
void AddCsfCommands(CLI::App& commands);
