// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/WritePlan.h"

#include "platform/RuntimeError.h"

#include <algorithm>
#include <limits>

namespace WritePlan {
namespace {

/// Positions in the format are signed 32-bit numbers.
constexpr qint64 MaximumPosition = std::numeric_limits<qint32>::max();

qint64 DirectoryEnd(const std::vector<Item>& items) {
    qint64 end = Layout::DirectoryOffset;
    for (const Item& item : items)
        end += Layout::RecordOverhead + item.NameLength;
    return end;
}

/// Fills in what the directory says.
void PlaceInDirectory(Plan& plan, const Layout::Variant& variant, const std::vector<Item>& items) {
    qint64 cursor = plan.FirstFile;
    for (const Item& item : items) {
        cursor = Layout::Aligned(variant, cursor);
        plan.Places.push_back({cursor, cursor, item.Size, cursor + item.Size <= MaximumPosition});
        // A sum beyond the largest position is not stored.
        if (plan.Places.back().Fits)
            cursor += item.Size;
    }
}

/// The bytes begin one before the first-file field, and each entry at the next multiple of 4 from where the one before
/// it really ended. An entry without bytes is written from what the copy buffer still holds. This is meant.
void PlaceAsTold(Plan& plan, const Layout::Variant& variant, const std::vector<Item>& items) {
    qint64 position = plan.FirstFile - 1;
    qint64 buffer = 0;
    bool ofFile = false;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const Item& item = items[i];
        if (item.Size > 0 || item.From == Origin::GoneFile)
            buffer = item.Size;
        if (item.Size > 0 || item.From == Origin::OldArchive)
            ofFile = item.From == Origin::File;
        position = Layout::Aligned(variant, position);
        Place& place = plan.Places[i];
        const bool fits = position + buffer <= MaximumPosition;
        place = {place.Offset, position, fits ? buffer : 0, fits || !ofFile};
        if (place.Bytes == 0)
            continue;
        position += buffer;
        plan.Length = position;
    }
}

qint64 ExactLength(const std::vector<Place>& places, const std::vector<Item>& items, qint64 headerLength) {
    qint64 length = headerLength;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].Size > 0)
            length = std::max(length, places[i].Offset + items[i].Size);
    }
    return length;
}

} // namespace

OffsetShift::Shift Plan::ShiftOf(const Layout::Variant& variant, const std::vector<Item>& items) const {
    OffsetShift::Shift shift;
    shift.Distances.assign(items.size(), 0);
    for (std::size_t i = 0; i < items.size(); ++i) {
        const Place& place = Places[i];
        if (items[i].Size == 0 || place.Bytes == 0 || place.Data == place.Offset)
            continue;
        shift.Distances[i] = place.Data - place.Offset;
        if (shift.Count++ == 0)
            shift.First = shift.Distances[i];
    }
    shift.ExactFits =
        !shift.IsNone() && Length == ExactLength(Places, items, DirectoryEnd(items) + variant.Mark.size());
    return shift;
}

void CheckCount(const Archive& archive, const QString& target) {
    if (archive.Entries.size() > Archives::MaximumEntries)
        throw RuntimeError(
            ErrorNumber::Overflow,
            QStringLiteral("%1: more than %2 entries").arg(target, QString::number(Archives::MaximumEntries)));
}

Plan Make(const Layout::Variant& variant, const std::vector<Item>& items, Archives::Placement placement) {
    Plan plan;
    const qint64 directoryEnd = DirectoryEnd(items);
    plan.FirstFile = Layout::FirstFileField(variant, directoryEnd);
    plan.Places.reserve(items.size());
    PlaceInDirectory(plan, variant, items);
    const qint64 headerLength = directoryEnd + variant.Mark.size();
    plan.Length = headerLength;
    if (placement == Archives::Placement::Told)
        PlaceAsTold(plan, variant, items);
    else
        plan.Length = ExactLength(plan.Places, items, headerLength);
    return plan;
}

} // namespace WritePlan
