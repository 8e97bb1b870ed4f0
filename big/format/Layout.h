// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The numbers of an archive's layout, for those who read, write and verify it.
#pragma once

#include <QByteArrayView>

#include <algorithm>
#include <array>
#include <optional>

namespace Layout {

inline constexpr qint64 LengthOffset = 4;
inline constexpr qint64 CountOffset = 8;
inline constexpr qint64 FirstFileOffset = 12;
inline constexpr qint64 DirectoryOffset = 16;
/// A directory record without its name: offset, size and the name's NUL.
inline constexpr qint64 RecordOverhead = 9;
/// Behind the directory, for the mark and the gap behind it.
inline constexpr qint64 ReservedForMark = 8;
/// What tells a variant when it is read; a mark may go on behind it.
inline constexpr qsizetype MarkLength = 4;

struct Variant {
    QByteArrayView Magic;
    QByteArrayView Mark;
    bool Aligned;       ///< entries begin at multiples of 4
    bool FieldIsBefore; ///< the first-file field tells the byte before the first entry
};

/// By BigVersion.
inline constexpr std::array<Variant, 4> Variants{{
    {"BIGF", "L225", true, false},
    {"BIGF", "L231", true, false},
    {"BIG4", "L219", false, false},
    {"BIG4", "L253\x15\x05", true, true},
}};

/// A number beyond the four counts as the nearest.
inline const Variant& VariantOf(qint32 version) {
    return Variants.at(static_cast<std::size_t>(std::clamp(version, 0, 3)));
}

/// The variant whose mark begins with these four bytes.
inline std::optional<qint32> VersionOfMark(QByteArrayView mark) {
    for (std::size_t version = 0; version < Variants.size(); ++version) {
        if (Variants.at(version).Mark.first(MarkLength) == mark)
            return static_cast<qint32>(version);
    }
    return std::nullopt;
}

/// The next multiple of 4.
constexpr qint64 RoundUp(qint64 value) {
    return (value + 3) / 4 * 4;
}

/// Where an entry begins that may begin at `offset`.
constexpr qint64 Aligned(const Variant& variant, qint64 offset) {
    return variant.Aligned ? RoundUp(offset) : offset;
}

/// The first-file field of an archive whose directory ends at that offset.
constexpr qint64 FirstFileField(const Variant& variant, qint64 directoryEnd) {
    const qint64 field = directoryEnd + ReservedForMark;
    return variant.FieldIsBefore ? RoundUp(field) - 1 : field;
}

} // namespace Layout
