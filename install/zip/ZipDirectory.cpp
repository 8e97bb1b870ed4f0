// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipDirectory.h"

#include "install/zip/ReadAhead.h"
#include "install/zip/ZipFailure.h"
#include "install/zip/ZipNames.h"
#include "platform/AnsiCodec.h"

#include <QtEndian>

#include <algorithm>
#include <limits>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 RecordMark = 0x02014B50;
constexpr quint32 EndMark = 0x06054B50;
constexpr quint32 WideEndMark = 0x06064B50;
constexpr quint32 LocatorMark = 0x07064B50;
constexpr qsizetype LocalLength = 30;
constexpr qsizetype RecordLength = 46;
constexpr qsizetype EndLength = 22;
constexpr qsizetype WideEndLength = 56;
constexpr qsizetype LocatorLength = 20;
constexpr qsizetype LongestComment = 65535;
constexpr quint32 InWideField = 0xFFFFFFFF; ///< the number stands in the ZIP64 field
constexpr quint16 WideField = 0x0001;
constexpr quint16 AesField = 0x9901;
constexpr quint64 Beyond = std::numeric_limits<qint64>::max();

quint16 Word(QByteArrayView bytes, qsizetype at) {
    return qFromLittleEndian<quint16>(bytes.data() + at);
}

quint32 Long(QByteArrayView bytes, qsizetype at) {
    return qFromLittleEndian<quint32>(bytes.data() + at);
}

quint64 Wide(QByteArrayView bytes, qsizetype at) {
    return qFromLittleEndian<quint64>(bytes.data() + at);
}

bool BeginsWith(QByteArrayView bytes, quint32 mark) {
    return bytes.size() >= 4 && Long(bytes, 0) == mark;
}

QByteArrayView NameIn(QByteArrayView record) {
    return record.sliced(RecordLength, Word(record, 28));
}

qint64 LengthOf(QByteArrayView record) {
    return RecordLength + qint64{Word(record, 28)} + Word(record, 30) + Word(record, 32);
}

/// A number that stands in the ZIP64 field when the record's own has no room for it.
quint64 Number(QByteArrayView record, qsizetype at, QByteArrayView& wide) {
    const quint32 narrow = Long(record, at);
    if (narrow != InWideField || wide.size() < 8)
        return narrow;
    const quint64 number = Wide(wide, 0);
    wide = wide.sliced(8);
    return number;
}

void TakeAesField(ZipEntry& entry, QByteArrayView extraFields) {
    const QByteArrayView field = ZipNames::Field(extraFields, AesField);
    entry.HasAesField = field.size() == static_cast<qsizetype>(entry.AesField.size());
    if (entry.HasAesField)
        std::ranges::copy(field, entry.AesField.begin());
}

/// `shift` is what all offsets lack where something stands before the archive.
ZipEntry EntryOf(QByteArrayView record, qint64 shift, qint64 limit) {
    const QByteArrayView extraFields = record.sliced(RecordLength + Word(record, 28), Word(record, 30));
    QByteArrayView wide = ZipNames::Field(extraFields, WideField);
    const quint64 size = Number(record, 24, wide);
    const quint64 packed = Number(record, 20, wide);
    const quint64 offset = Number(record, 42, wide);

    ZipEntry entry;
    entry.Flags = Word(record, 8);
    entry.Method = Word(record, 10);
    entry.Time = Word(record, 12);
    entry.Crc = Long(record, 16);
    entry.Size = static_cast<qint64>(std::min(size, Beyond));
    entry.Packed = static_cast<qint64>(std::min(packed, Beyond));
    const auto room = static_cast<quint64>(std::max<qint64>(limit - shift - LocalLength, 0));
    if (size > Beyond || offset > room || packed > room - offset)
        entry.Standing = ZipEntry::State::Outside;
    else
        entry.Offset = static_cast<qint64>(offset) + shift;
    if (entry.Method == ZipEntry::Aes)
        TakeAesField(entry, extraFields);
    entry.Name = ZipNames::Decode(NameIn(record), {.Host = Word(record, 4) >> 8,
                                                   .Attributes = Long(record, 38),
                                                   .IsUtf8 = (entry.Flags & 0x800) != 0,
                                                   .ExtraFields = extraFields});
    return entry;
}

[[noreturn]] void Refuse(const QString& archive, const QString& reason) {
    throw ZipFailure(ZipResult::NoArchive, u"%1: %2"_s.arg(archive, reason));
}

} // namespace

QString ZipEntry::ListedName() const {
    constexpr qsizetype longest = 256;
    const qsizetype zero = Name.indexOf(QChar(u'\0'));
    const qsizetype length = std::min(zero < 0 ? Name.size() : zero, longest);
    if (length == Name.size())
        return Name; // one text in memory for both
    const bool inPair = length > 0 && Name[length - 1].isHighSurrogate();
    return Name.first(inPair ? length - 1 : length);
}

/// What the end of the archive tells of the directory.
struct ZipDirectory::End {
    qint64 Limit = 0;    ///< where the directory must have ended
    qint64 Start = 0;    ///< where it begins
    qint64 Shift = 0;    ///< what stands before the archive, in bytes
    quint64 Count = 0;   ///< of its records
    bool IsWide = false; ///< the count is whole; else it is one of 16 bits, and what does not fit is lost

    /// Looks where the directory begins: where that is told, or just before its end.
    bool FindStart(const Device& archive, quint64 offset, quint64 size) {
        if (size == 0) {
            Start = Limit;
            return Count == 0;
        }
        const auto limit = static_cast<quint64>(Limit);
        if (size > limit || offset > limit - size || (IsWide && Count > size / RecordLength))
            return false;
        const auto isAt = [&](quint64 start) {
            Start = static_cast<qint64>(start);
            Shift = Start - static_cast<qint64>(offset);
            return BeginsWith(archive.Read(Start, 4), RecordMark);
        };
        return isAt(offset) || isAt(limit - size);
    }

    /// By the records of ZIP64, if they are there; `at` is where the locator would stand.
    static std::optional<End> WideAt(const Device& archive, qint64 at) {
        if (at < WideEndLength)
            return std::nullopt;
        const QByteArray locator = archive.Read(at, LocatorLength);
        if (!BeginsWith(locator, LocatorMark))
            return std::nullopt;
        for (const quint64 place : {Wide(locator, 8), static_cast<quint64>(at - WideEndLength)}) {
            if (place > static_cast<quint64>(at - WideEndLength))
                continue;
            End end{.Limit = static_cast<qint64>(place), .IsWide = true};
            const QByteArray bytes = archive.Read(end.Limit, WideEndLength);
            if (!BeginsWith(bytes, WideEndMark) || Long(bytes, 16) != 0 || Long(bytes, 20) != 0)
                continue;
            end.Count = Wide(bytes, 32);
            if (end.FindStart(archive, Wide(bytes, 48), Wide(bytes, 40)))
                return end;
        }
        return std::nullopt;
    }

    static std::optional<End> At(const Device& archive, qint64 at, QByteArrayView bytes) {
        if (const auto wide = WideAt(archive, at - LocatorLength))
            return wide;
        End end{.Limit = at, .Count = Word(bytes, 10)};
        if (Long(bytes, 4) != 0 || Word(bytes, 8) != Word(bytes, 10) ||
            !end.FindStart(archive, Long(bytes, 16), Long(bytes, 12)))
            return std::nullopt;
        return end;
    }
};

ZipDirectory::ZipDirectory(const Device& archive) {
    const qint64 length = archive.Length();
    const qint64 tailStart = std::max<qint64>(length - EndLength - LongestComment, 0);
    const QByteArray tail = archive.Read(tailStart, length - tailStart);
    std::optional<End> best;
    int bestDoubts = 0;
    for (qsizetype at = tail.size() - EndLength; at >= 0 && (!best || bestDoubts > 0); --at) {
        const QByteArrayView bytes = QByteArrayView(tail).sliced(at);
        const qsizetype commentLength = Word(bytes, 20);
        if (!BeginsWith(bytes, EndMark) || commentLength > bytes.size() - EndLength)
            continue;
        const auto end = End::At(archive, tailStart + at, bytes);
        if (!end)
            continue;
        // A comment may hold what looks like an end: what stands before or behind the archive speaks against it.
        const int doubts = (end->Shift != 0 ? 2 : 0) + (commentLength < bytes.size() - EndLength ? 1 : 0);
        if (!best || doubts < bestDoubts) {
            best = end;
            bestDoubts = doubts;
            comment_ = bytes.sliced(EndLength, commentLength).toByteArray();
        }
    }
    if (!best)
        Refuse(archive.Name(), u"no ZIP archive"_s);
    ReadRecords(archive, *best);
}

void ZipDirectory::ReadRecords(const Device& archive, const End& end) {
    start_ = end.Start;
    // A count that lies makes it no more than the directory's bytes could hold.
    const auto most = static_cast<quint64>(std::max<qint64>(end.Limit - end.Start, 0) / RecordLength);
    entries_.reserve(static_cast<std::size_t>(std::min(end.Count, most)));
    numbers_.reserve(static_cast<qsizetype>(std::min(end.Count, most)));
    ReadAhead bytes(archive);
    qint64 at = end.Start;
    while (end.Limit - at >= RecordLength) {
        QByteArrayView record = bytes.View(at, RecordLength);
        if (record.size() < RecordLength || !BeginsWith(record, RecordMark))
            break;
        const qint64 length = LengthOf(record);
        if (length > end.Limit - at)
            break;
        record = bytes.View(at, length);
        if (record.size() < length)
            break;
        ZipEntry entry = EntryOf(record, end.Shift, start_);
        entry.Record = at;
        Append(archive, std::move(entry), NameIn(record));
        at += length;
    }
    const quint64 count = entries_.size();
    if ((end.IsWide ? count : count % 0x10000) != end.Count)
        Refuse(archive.Name(), u"the directory holds %1 entries and tells of %2"_s.arg(count).arg(end.Count));
    MarkStandings();
}

/// Two different names never become one: the later one is told another way.
void ZipDirectory::Append(const Device& archive, ZipEntry entry, QByteArrayView rawName) {
    const auto isSame = [&](qsizetype place) {
        const qint64 record = entries_[static_cast<std::size_t>(place)].Record;
        const QByteArray other = archive.Read(record, RecordLength + rawName.size());
        return other.size() >= RecordLength && Word(other, 28) == rawName.size() && NameIn(other) == rawName;
    };
    const auto number = static_cast<qsizetype>(entries_.size()) + 1;
    for (bool isRetold = false;; isRetold = true) {
        qsizetype& first = numbers_[entry.Name];
        if (first == 0)
            first = number;
        if (first == number || isSame(first - 1))
            break;
        if (isRetold)
            entry.Name += QChar(QChar::ReplacementCharacter);
        else
            entry.Name = AnsiCodec::Decode(rawName);
    }
    entries_.push_back(std::move(entry));
}

void ZipDirectory::MarkStandings() {
    std::vector<std::size_t> order(entries_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&](std::size_t place) { return entries_[place].Offset; });
    ZipEntry* widest = nullptr;
    qint64 reach = 0;
    for (const std::size_t place : order) {
        ZipEntry& entry = entries_[place];
        if (entry.Standing == ZipEntry::State::Outside)
            continue;
        if (widest != nullptr && entry.Offset < reach)
            entry.Standing = widest->Standing = ZipEntry::State::Overlapped;
        if (const qint64 end = entry.Offset + LocalLength + entry.Packed; end > reach) {
            reach = end;
            widest = &entry;
        }
    }
}
