// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What libzip is shown: an archive's bytes, and behind them a directory of our own.
#pragma once

#include "install/zip/ZipDirectory.h"

#include <memory>
#include <span>

class ReadAhead;
struct zip;

namespace ZipShown {

/// An open archive of just these entries, nameless and in that order. An entry that can't be read is an empty one
/// there. `archive` and its `bytes` outlive it. Raises a ZipFailure.
std::shared_ptr<zip> Open(const Device& archive, ReadAhead& bytes, std::span<const ZipEntry> entries);

/// Whether the entry is encrypted in the way that leaves its checksum away: what it yields must be held against the
/// code behind its bytes, which the library looks at only when it reads all of them.
bool LacksChecksum(const ZipEntry& entry);

/// The method that packs the entry's bytes, also where the record tells of encryption in its place.
quint16 MethodOf(const ZipEntry& entry);

/// Whether the field about the encryption makes sense.
bool HasSoundAesField(const ZipEntry& entry);

} // namespace ZipShown
