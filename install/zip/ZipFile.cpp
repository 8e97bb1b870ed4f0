// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipFile.h"

#include "platform/AnsiCodec.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <zlib.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 MostBytes = std::numeric_limits<qint32>::max();
constexpr qsizetype MostOfAName = std::numeric_limits<qint16>::max();
constexpr qsizetype StreamHead = 2; ///< what zlib puts around the raw stream
constexpr qsizetype StreamTail = 4;

constexpr qsizetype PieceSize = qsizetype{256} * 1024; ///< some hundredths of a second

constexpr quint32 FirstYear = 1980;

[[noreturn]] void Raise(int error, const QString& path, const QString& reason) {
    throw RuntimeError(error, Paths::ToNative(path) + u": "_s + reason);
}

[[noreturn]] void RaiseOutOfMemory(const QString& path) {
    Raise(ErrorNumber::OutOfMemory, path, u"too large for this machine's memory"_s);
}

const Bytef* BytesOf(const QByteArray& content) {
    return reinterpret_cast<const Bytef*>(content.constData());
}

/// What the library's `compress` does, with the same bytes, but in pieces: a long file would keep the window waiting.
class Packer {
public:
    Packer() { ::deflateInit(&state_, Z_DEFAULT_COMPRESSION); }

    ~Packer() { ::deflateEnd(&state_); }

    Packer(const Packer&) = delete;
    Packer& operator=(const Packer&) = delete;

    /// Fills `stream` but for its last byte, and returns how much it needed of that. What the library answers is not
    /// looked at: the limit is never reached, and what lacks memory has given out nothing.
    qsizetype Pack(const QByteArray& content, QByteArray& stream, const ZipFile::Watch& watch) {
        state_.next_out = reinterpret_cast<Bytef*>(stream.data());
        state_.avail_out = static_cast<uInt>(stream.size() - 1);
        for (qsizetype done = 0; done < content.size();) {
            const qsizetype piece = std::min(PieceSize, content.size() - done);
            state_.next_in = const_cast<Bytef*>(BytesOf(content) + done); // the library writes nothing there
            state_.avail_in = static_cast<uInt>(piece);
            done += piece;
            ::deflate(&state_, done < content.size() ? Z_NO_FLUSH : Z_FINISH);
            if (watch)
                watch(piece);
        }
        return static_cast<qsizetype>(state_.total_out);
    }

private:
    z_stream state_{};
};

/// The low bits of a number, moved to their place.
quint32 Bits(quint32 number, quint32 count, quint32 from) {
    return (number & ((1U << count) - 1)) << from;
}

} // namespace

ZipFile::ZipFile(const QString& path, const Watch& watch) {
    const QDateTime written = Files::ModifiedTime(path);
    entry_.Date = DosTime::Date(written);
    entry_.Time = DosTime::Time(written);
    SetName(Paths::LastPart(path));
    const File file = File::Open(path, File::Access::Read);
    const qint64 length = file.Length();
    if (OutputLimit(length) >= MostBytes)
        Raise(ErrorNumber::Overflow, path, u"too large for a ZIP"_s);
    try {
        Deflate(file.Read(0, length), path, watch);
    } catch (const std::bad_alloc&) {
        RaiseOutOfMemory(path);
    }
}

void ZipFile::SetName(const QString& name, Letters letters) {
    QByteArray bytes = AnsiCodec::Encode(name);
    const bool isUtf8 = letters == Letters::Utf8WhereNeeded && AnsiCodec::Decode(bytes) != name;
    if (isUtf8)
        bytes = name.toUtf8();
    if (bytes.size() > MostOfAName)
        Raise(ErrorNumber::Overflow, name, u"too long for a name in a ZIP"_s);
    name_ = name;
    nameBytes_ = bytes;
    entry_.IsUtf8 = isUtf8;
    entry_.NameLength = static_cast<quint16>(bytes.size());
}

qint64 ZipFile::OutputLimit(qint64 length) {
    return static_cast<qint64>(std::nearbyint(static_cast<double>(length) * 1.01 + 12));
}

void ZipFile::Deflate(const QByteArray& content, const QString& path, const Watch& watch) {
    // There is no stream of nothing here: memory for it can't be asked for. This is meant.
    if (content.isEmpty())
        Raise(ErrorNumber::Subscript, path, u"an empty file can't be put into a ZIP"_s);
    entry_.Uncompressed = static_cast<quint32>(content.size());
    entry_.Crc = static_cast<quint32>(::crc32(0, BytesOf(content), static_cast<uInt>(content.size())));
    QByteArray stream(static_cast<qsizetype>(OutputLimit(content.size())) + 1, Qt::Uninitialized);
    const qsizetype length = Packer().Pack(content, stream, watch);
    const qsizetype raw = length - StreamHead - StreamTail;
    if (raw <= 0)
        RaiseOutOfMemory(path);
    data_ = stream.sliced(StreamHead, raw);
    entry_.Compressed = static_cast<quint32>(raw);
}

quint16 DosTime::Date(const QDateTime& moment) {
    const QDate date = moment.toLocalTime().date();
    const quint32 years = static_cast<quint32>(date.year()) - FirstYear; // below zero it wraps: the low bits are right
    return static_cast<quint16>(Bits(static_cast<quint32>(date.day()), 5, 0) |
                                Bits(static_cast<quint32>(date.month()), 4, 5) | Bits(years, 7, 9));
}

quint16 DosTime::Time(const QDateTime& moment) {
    const QTime time = moment.toLocalTime().time();
    return static_cast<quint16>(Bits(static_cast<quint32>(time.second()) / 2, 5, 0) |
                                Bits(static_cast<quint32>(time.minute()), 6, 5) |
                                Bits(static_cast<quint32>(time.hour()), 5, 11));
}
