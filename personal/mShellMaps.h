// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Puts the chosen shell map in the place where a game looks for it, and keeps the numbered store without gaps.
#pragma once

#include "core/Game.h"

#include <QString>

namespace mShellMaps {

/// What is done before a game is started. Failures inside are passed over, a step at a time.
void ActivateShellMap(GameIndex game);

/// Deletes a stored shell map and moves those above it one number down. Failures inside are passed over, a step at a
/// time.
void RemoveShellMap(qint16 number, GameIndex game);

} // namespace mShellMaps
