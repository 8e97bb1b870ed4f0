// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/ZipBytes.h"

#include <zlib.h>

namespace ZipBytes {

namespace {

constexpr int DescriptorFlag = 8;

QByteArray Little(quint64 number, int bytes) {
    QByteArray text;
    for (int at = 0; at < bytes; ++at)
        text += static_cast<char>((number >> (8 * at)) & 0xFFU);
    return text;
}

QByteArray BytesOf(const Part& part) {
    return part.Bytes.value_or(part.Method == 8 ? Deflated(part.Content) : part.Content);
}

quint32 CrcOf(const Part& part) {
    return part.Crc.value_or(Crc(part.Content));
}

quint64 SizeOf(const Part& part) {
    return part.Size.value_or(static_cast<quint64>(part.Content.size()));
}

int FlagsOf(const Part& part) {
    return part.Flags | (part.HasDescriptor ? DescriptorFlag : 0);
}

/// Version needed, flags, method, time and date: 2:30:00 on the fifth of June 2004.
QByteArray Kind(const Part& part) {
    return Word(20) + Word(static_cast<quint32>(FlagsOf(part))) + Word(static_cast<quint32>(part.Method)) +
           Word((2U << 11U) | (30U << 5U)) + Word((24U << 9U) | (6U << 5U) | 5U);
}

QByteArray Local(const Part& part) {
    const auto packed = static_cast<quint64>(BytesOf(part).size());
    const QByteArray name = part.LocalName.value_or(part.Name);
    QByteArray numbers = Long(CrcOf(part)) + Long(packed) + Long(SizeOf(part));
    if (part.HasDescriptor)
        numbers = QByteArray(12, '\0');
    else if (part.IsWide)
        numbers = Long(CrcOf(part)) + QByteArray(8, '\xFF');
    const QByteArray wide = part.IsWide ? Field(1, Wide(SizeOf(part)) + Wide(packed)) : QByteArray();
    const QByteArray extra = wide + part.LocalExtra;
    QByteArray bytes = "PK\3\4" + Kind(part) + numbers + Word(static_cast<quint32>(name.size())) +
                       Word(static_cast<quint32>(extra.size())) + name + extra + BytesOf(part);
    if (part.HasDescriptor)
        bytes += "PK\7\10" + Long(CrcOf(part)) + Long(packed) + Long(SizeOf(part));
    return bytes;
}

QByteArray Record(const Part& part, quint64 offset) {
    const quint64 packed = part.Packed.value_or(static_cast<quint64>(BytesOf(part).size()));
    const quint64 start = part.Offset.value_or(offset);
    const auto told = [&](quint64 number) { return part.IsWide ? QByteArray(4, '\xFF') : Long(number); };
    const QByteArray wide = part.IsWide ? Field(1, Wide(SizeOf(part)) + Wide(packed) + Wide(start)) : QByteArray();
    const QByteArray extra = wide + part.Extra;
    return "PK\1\2" + Word(20 | (static_cast<quint32>(part.Host) << 8U)) + Kind(part) + Long(CrcOf(part)) +
           told(packed) + told(SizeOf(part)) + Word(static_cast<quint32>(part.Name.size())) +
           Word(static_cast<quint32>(extra.size())) + Word(0) + Word(0) + Word(0) + Long(part.Attributes) +
           told(start) + part.Name + extra;
}

} // namespace

QByteArray Word(quint32 number) {
    return Little(number, 2);
}

QByteArray Long(quint64 number) {
    return Little(number, 4);
}

QByteArray Wide(quint64 number) {
    return Little(number, 8);
}

quint32 Crc(const QByteArray& bytes) {
    return static_cast<quint32>(
        ::crc32(0, reinterpret_cast<const Bytef*>(bytes.constData()), static_cast<uInt>(bytes.size())));
}

QByteArray Deflated(const QByteArray& bytes) {
    constexpr qsizetype lengthAndHead = 6;
    constexpr qsizetype sum = 4;
    if (bytes.isEmpty())
        return QByteArray("\3\0", 2);
    return qCompress(bytes).sliced(lengthAndHead).chopped(sum);
}

QByteArray Field(quint32 number, const QByteArray& content) {
    return Word(number) + Word(static_cast<quint32>(content.size())) + content;
}

QByteArray UnicodeName(const QByteArray& raw, const QByteArray& utf8) {
    return Field(0x7075, '\1' + Long(Crc(raw)) + utf8);
}

QByteArray Archive(const std::vector<Part>& parts, const Ends& ends) {
    QByteArray bytes;
    QByteArray directory;
    for (const Part& part : parts) {
        directory += Record(part, static_cast<quint64>(bytes.size()));
        bytes += Local(part);
    }
    directory = directory.repeated(ends.Repeat);
    const auto start = ends.Start.value_or(static_cast<quint64>(bytes.size()));
    const auto size = ends.Size.value_or(static_cast<quint64>(directory.size()));
    const quint64 count = ends.Count.value_or(parts.size());
    bytes += directory;
    const QByteArray comment = Word(static_cast<quint32>(ends.Comment.size())) + ends.Comment;
    if (!ends.IsWide)
        return ends.Before + bytes + "PK\5\6" + Long(0) + Word(static_cast<quint32>(count)) +
               Word(static_cast<quint32>(count)) + Long(size) + Long(start) + comment;
    const auto end = static_cast<quint64>(bytes.size());
    return ends.Before + bytes + "PK\6\6" + Wide(44) + Word(45) + Word(45) + Wide(0) + Wide(count) + Wide(count) +
           Wide(size) + Wide(start) + "PK\6\7" + Long(0) + Wide(end) + Long(1) + "PK\5\6" + Long(0) +
           QByteArray(12, '\xFF') + comment;
}

} // namespace ZipBytes
