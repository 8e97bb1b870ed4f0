// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/OffsetShift.h"

#include "big/format/WritePlan.h"

#include <limits>

namespace OffsetShift {

Shift ShiftOf(const Archive& archive, qint64 length) {
    const Layout::Variant& variant = Layout::VariantOf(archive.Version);
    std::vector<WritePlan::Item> items;
    items.reserve(archive.Entries.size());
    for (const BigEntry& entry : archive.Entries)
        items.push_back({entry.Name.size(), entry.Size, WritePlan::Origin::OldArchive});
    const WritePlan::Plan plan = WritePlan::Make(variant, items, Archives::Placement::Told);
    if (plan.Length != length)
        return {};
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (plan.Places[i].Offset != archive.Entries[i].Offset)
            return {};
    }
    return plan.ShiftOf(variant, items);
}

Archive ReadShiftedBack(Archive archive, const Shift& shift) {
    for (std::size_t i = 0; i < std::min(shift.Distances.size(), archive.Entries.size()); ++i) {
        const qint64 offset = archive.Entries[i].Offset + shift.Distances[i];
        if (offset >= 0 && offset <= std::numeric_limits<qint32>::max())
            archive.Entries[i].Offset = static_cast<qint32>(offset);
    }
    return archive;
}

} // namespace OffsetShift
