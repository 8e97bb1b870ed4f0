// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Reading an archive into a table that stands already.
#pragma once

#include "big/format/Archive.h"

namespace ArchiveReader {

/// Replaces the archive's entries and its variant, which an unknown mark keeps. Raises when the device's bytes are
/// refused: the entries are blank ones then if the header was taken, and as they were if not.
void Fill(const Device& device, Archive& archive);

} // namespace ArchiveReader
