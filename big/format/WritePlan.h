// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where a save puts everything, worked out before a byte is written.
#pragma once

#include "big/format/Archive.h"
#include "big/format/Layout.h"

#include <vector>

namespace WritePlan {

/// What an entry's bytes come from.
enum class Origin {
    OldArchive,
    File,
    GoneFile, ///< nothing, and nothing is repeated behind it
};

struct Item {
    qint64 NameLength; ///< bytes
    qint64 Size;       ///< bytes
    Origin From;
};

struct Place {
    qint64 Offset; ///< what the directory says
    qint64 Data;   ///< where bytes are put
    qint64 Bytes;  ///< how many are put: for an entry without bytes those of the one before it may be repeated
    bool Fits;     ///< false for a file of which nothing is put, as the whole would pass 2 GiB
};

struct Plan {
    qint64 FirstFile = 0; ///< the first-file field
    std::vector<Place> Places;
    qint64 Length = 0; ///< of the whole file

    /// `items` are those that the plan was made for.
    [[nodiscard]] OffsetShift::Shift ShiftOf(const Layout::Variant& variant, const std::vector<Item>& items) const;
};

/// Raises when an archive can't have so many; `target` is for the message.
void CheckCount(const Archive& archive, const QString& target);

Plan Make(const Layout::Variant& variant, const std::vector<Item>& items, Archives::Placement placement);

} // namespace WritePlan
