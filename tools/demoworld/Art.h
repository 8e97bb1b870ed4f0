// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The samples' drawings: land seen from above, metals, skies, walls, machines and emblems, each from a seed.
#pragma once

#include "tools/demoworld/Picture.h"

namespace Demo {

/// Hills, shores and water from above, with light from the north-west and contour lines.
Picture Land(int size, quint64 seed);

/// Land with a frame and the players' starting places, as a map's preview shows it.
Picture MapPreview(int size, quint64 seed);

/// Checkered plates with rivets and scratches.
Picture Metal(int size, quint64 seed);

/// A gradient sky with clouds above a row of hills.
Picture Sky(int size, quint64 seed);

/// Courses of bricks.
Picture Wall(int size, quint64 seed);

/// The outline of a vehicle, ship, aircraft or tower on a see-through ground.
Picture Machine(int size, quint64 seed);

/// A compass rose on a see-through ground.
Picture Emblem(int size, quint64 seed);

/// One of the above, by the seed.
Picture AnyPicture(int size, quint64 seed);

} // namespace Demo
