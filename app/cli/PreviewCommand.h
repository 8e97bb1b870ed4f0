// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// `big preview`: the picture of an entry as a bitmap.
#pragma once

namespace CLI {
class App;
}

/// Adds the command to `big`, which stands already.
void AddPreviewCommand(CLI::App& commands);
