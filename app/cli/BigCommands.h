// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands for BIG archives.
#pragma once

#include <QString>

namespace CLI {
class App;
}

/// Adds "big" with list, extract, save and create.
void AddBigCommands(CLI::App& commands);

/// Reads an archive (inside path) into the table or fails with the reason.
void ReadArchive(const QString& path);
