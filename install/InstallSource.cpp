// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/InstallSource.h"

namespace AddFiles {
InstallSource Source;
GameIndex ActiveGame = 0;
} // namespace AddFiles
