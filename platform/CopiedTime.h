// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/File.h"

#include <QString>

namespace CopiedTime {

/// Gives a copy, at the inside path as it is given, the time that the file was last written: as a copy of the system's
/// own has it. A copy that can't have it is whole without.
void Keep(const QString& from, const QString& copy);

/// The same for open files: all of the copy is written.
void Keep(const File& from, const File& copy);

} // namespace CopiedTime
