// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What processes left behind that died while they wrote a file aside.
#pragma once

#include <QString>

namespace Leftovers {

/// Deletes the files of private names in a folder (a path as the system writes it) that nobody has written to for ten
/// minutes and no living process holds. Looks into each folder once in a process; says nothing when it can't.
void Sweep(const QString& nativeFolder);

} // namespace Leftovers
