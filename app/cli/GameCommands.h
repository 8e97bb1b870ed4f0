// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands of brindock-cli about the games, the settings and the texts.
#pragma once

namespace CLI {
class App;
}

/// Adds games, launch-command, text, setting and ini.
void AddGameCommands(CLI::App& app);
