// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Starting the games.
#pragma once

#include "core/Game.h"

#include <QString>

namespace mLaunch {

/// The command text that starts a game with the options and the mod of the settings; empty outside 0 to 3.
QString LaunchCommand(GameIndex game);

/// Starts it and does not wait; a failure raises.
void LaunchGame(GameIndex game);

} // namespace mLaunch
