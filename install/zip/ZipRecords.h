// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The records of a ZIP archive as bytes, numbers with their least significant byte first.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace ZipRecords {

/// What the two records of an entry say of it.
struct Entry {
    quint16 Time = 0; ///< DOS time
    quint16 Date = 0; ///< DOS date
    quint32 Crc = 0;
    quint32 Compressed = 0;   ///< bytes
    quint32 Uncompressed = 0; ///< bytes
    quint16 NameLength = 0;   ///< bytes
    bool IsUtf8 = false;      ///< how the name is written, which is told by a flag
};

/// The 30 bytes before an entry's name and data.
QByteArray Local(const Entry& entry);
constexpr qint64 LocalLength = 30;

/// How many bytes stand before an entry's data, by those that its local record begins with; nothing for what is none.
std::optional<qint64> BytesBeforeData(QByteArrayView local);

/// The 46 bytes before an entry's name in the central directory; `offset` is that of its local record.
QByteArray Central(const Entry& entry, quint32 offset);

/// The 22 bytes before the archive's comment. Raises 6 for more than 32,767 entries: the count has 16 bits with a sign.
QByteArray End(qint64 count, quint32 directorySize, quint32 directoryOffset, quint16 commentLength);

} // namespace ZipRecords
