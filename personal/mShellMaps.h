// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Puts the chosen shell map in the place where a game looks for it, and keeps the numbered store without gaps.
///
/// Nothing outside the game's own folder is written, deleted or copied through a link, and a game that is not installed
/// has no folder: then nothing is done.
#pragma once

#include "core/Game.h"

#include <QString>

#include <functional>

namespace mShellMaps {

/// What is done before a game is started. Failures inside are passed over, a step at a time. Does nothing outside 0 to
/// 3.
void ActivateShellMap(GameIndex game);

/// The same where `random` gives the number that a map is picked by: at or above 0 and below 1.
void ActivateShellMapBy(const std::function<float()>& random, GameIndex game);

/// Deletes a stored shell map and moves those above it one number down. Failures inside are passed over, a step at a
/// time; a file that can't be moved stays, and so does what would take its place.
void RemoveShellMap(qint16 number, GameIndex game);

} // namespace mShellMaps
