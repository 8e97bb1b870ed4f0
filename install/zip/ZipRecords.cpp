// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipRecords.h"

#include "platform/RuntimeError.h"

#include <QtEndian>

#include <array>
#include <initializer_list>
#include <limits>

namespace {

constexpr quint32 LocalSignature = 0x04034B50;
constexpr quint32 CentralSignature = 0x02014B50;
constexpr quint32 EndSignature = 0x06054B50;
constexpr quint16 Version = 20;
/// How hard the compressor tried; readers don't care.
constexpr quint16 Flags = 2;
constexpr quint16 Utf8Flag = 0x800;
constexpr quint16 Deflated = 8;
/// The archive attribute, in the word that is not for it, with the one that is left 0. This is meant.
constexpr quint16 InternalAttributes = 32;

template <typename Number>
void Append(QByteArray& bytes, std::initializer_list<Number> numbers) {
    for (const Number number : numbers) {
        std::array<char, sizeof(Number)> little{};
        qToLittleEndian(number, little.data());
        bytes.append(little.data(), static_cast<qsizetype>(little.size()));
    }
}

void Append16(QByteArray& bytes, std::initializer_list<quint16> numbers) {
    Append(bytes, numbers);
}

void Append32(QByteArray& bytes, std::initializer_list<quint32> numbers) {
    Append(bytes, numbers);
}

/// What both records of an entry have, from the version that a reader needs to the length of the extra field.
void AppendShared(QByteArray& bytes, const ZipRecords::Entry& entry) {
    const quint16 flags = entry.IsUtf8 ? Flags | Utf8Flag : Flags;
    Append16(bytes, {Version, flags, Deflated, entry.Time, entry.Date});
    Append32(bytes, {entry.Crc, entry.Compressed, entry.Uncompressed});
    Append16(bytes, {entry.NameLength, 0});
}

} // namespace

QByteArray ZipRecords::Local(const Entry& entry) {
    QByteArray bytes;
    Append32(bytes, {LocalSignature});
    AppendShared(bytes, entry);
    return bytes;
}

std::optional<qint64> ZipRecords::BytesBeforeData(QByteArrayView local) {
    constexpr qsizetype nameLength = 26;
    constexpr qsizetype extraLength = 28;
    if (local.size() < LocalLength || qFromLittleEndian<quint32>(local.data()) != LocalSignature)
        return std::nullopt;
    return LocalLength + qFromLittleEndian<quint16>(local.data() + nameLength) +
           qFromLittleEndian<quint16>(local.data() + extraLength);
}

QByteArray ZipRecords::Central(const Entry& entry, quint32 offset) {
    QByteArray bytes;
    Append32(bytes, {CentralSignature});
    Append16(bytes, {Version});
    AppendShared(bytes, entry);
    Append16(bytes, {0, 0, InternalAttributes}); // no comment, the first disk
    Append32(bytes, {0, offset});
    return bytes;
}

QByteArray ZipRecords::End(qint64 count, quint32 directorySize, quint32 directoryOffset, quint16 commentLength) {
    constexpr qint64 most = std::numeric_limits<qint16>::max();
    // Half of what the field could hold. This is meant.
    if (count > most)
        throw RuntimeError(ErrorNumber::Overflow,
                           QStringLiteral("%1 files: a ZIP holds %2 at most").arg(count).arg(most));
    const auto entries = static_cast<quint16>(count);
    QByteArray bytes;
    Append32(bytes, {EndSignature});
    Append16(bytes, {0, 0, entries, entries});
    Append32(bytes, {directorySize, directoryOffset});
    Append16(bytes, {commentLength});
    return bytes;
}
