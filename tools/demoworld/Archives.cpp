// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Archives.h"

#include "platform/AnsiCodec.h"
#include "tools/demoworld/Bytes.h"

#include <QBuffer>

#include <array>

namespace Demo {

namespace {

constexpr qint64 HeaderSize = 16;
constexpr qint64 ReservedForMark = 8;

struct Variant {
    QByteArrayView Magic;
    QByteArrayView Mark;
    qint64 Alignment;
    bool FirstFileIsOneLess; ///< the last variant's head counts to the byte before the data
};

const Variant& VariantOf(int version) {
    static const std::array<Variant, 4> variants{{
        {"BIGF", "L225", 4, false},
        {"BIGF", "L231", 4, false},
        {"BIG4", "L219", 1, false},
        {"BIG4", "L253\x15\x05", 4, true},
    }};
    return variants.at(static_cast<size_t>(version));
}

qint64 RoundUp(qint64 value, qint64 multiple) {
    return (value + multiple - 1) / multiple * multiple;
}

/// Offsets of the entries' data, and behind the last of them the archive's size.
std::vector<qint64> DataOffsets(const Variant& variant, qint64 headSize, const std::vector<ArchiveEntry>& entries) {
    std::vector<qint64> offsets;
    offsets.reserve(entries.size() + 1);
    qint64 end = headSize;
    for (const ArchiveEntry& entry : entries) {
        offsets.push_back(RoundUp(end, variant.Alignment));
        end = offsets.back() + entry.Data.size();
    }
    offsets.push_back(end);
    return offsets;
}

struct Plan {
    QByteArray Head;
    std::vector<qint64> Offsets;
};

Plan MakePlan(int version, const std::vector<ArchiveEntry>& entries) {
    const Variant& variant = VariantOf(version);
    std::vector<QByteArray> names;
    names.reserve(entries.size());
    qint64 directorySize = 0;
    for (const ArchiveEntry& entry : entries) {
        names.push_back(AnsiCodec::Encode(entry.Name));
        directorySize += 9 + names.back().size();
    }
    const qint64 headSize = RoundUp(HeaderSize + directorySize + ReservedForMark, variant.FirstFileIsOneLess ? 4 : 1);
    std::vector<qint64> offsets = DataOffsets(variant, headSize, entries);

    Bytes head;
    head.Reserve(headSize + 4);
    head.Raw(variant.Magic).Little32(offsets.back()).Big32(static_cast<qint64>(entries.size()));
    head.Big32(variant.FirstFileIsOneLess ? headSize - 1 : headSize);
    for (size_t i = 0; i < entries.size(); ++i)
        head.Big32(offsets[i]).Big32(entries[i].Data.size()).Raw(names[i]).Byte(0);
    head.Raw(variant.Mark);
    head.Zeros(offsets.front() - head.Size());
    return {head.Get(), std::move(offsets)};
}

} // namespace

QByteArray ArchiveHead(int version, const std::vector<ArchiveEntry>& entries) {
    return MakePlan(version, entries).Head;
}

QByteArray Archive(int version, const std::vector<ArchiveEntry>& entries) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    WriteArchive(buffer, version, entries);
    return buffer.data();
}

bool WriteArchive(QIODevice& device, int version, const std::vector<ArchiveEntry>& entries) {
    const Plan plan = MakePlan(version, entries);
    bool written = device.write(plan.Head) == plan.Head.size();
    qint64 position = plan.Head.size();
    for (size_t i = 0; written && i < entries.size(); ++i) {
        const QByteArray gap(plan.Offsets[i] - position, '\0');
        const QByteArray& data = entries[i].Data;
        written = device.write(gap) == gap.size() && device.write(data) == data.size();
        position = plan.Offsets[i] + data.size();
    }
    return written;
}

} // namespace Demo
