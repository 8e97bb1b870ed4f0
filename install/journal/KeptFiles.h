// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files that an install replaced, on their way aside and back.
#pragma once

#include <QString>

namespace KeptFiles {

/// Copies a file with the time of its last write, by which replays are listed. Raises like Files::Copy.
void Copy(const QString& from, const QString& to);

} // namespace KeptFiles
