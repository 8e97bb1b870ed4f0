// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipShown.h"

#include "install/zip/ReadAhead.h"
#include "install/zip/ZipFailure.h"

#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <zip.h>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 InWideField = 0xFFFFFFFF;
constexpr quint16 DeflateOptions = 0x6;
constexpr quint16 Descriptor = 0x8;
constexpr quint16 MadeBy = 20;
constexpr quint16 NeedsWide = 45;
/// A day on which no clock is put forward: the library takes the time of day through the calendar and back when it
/// holds it against a password.
constexpr quint16 AnyDate = (20U << 9U) | (1U << 5U) | 15U;
/// More than the library searches for an end in: it finds the one that it is meant to.
constexpr qsizetype Searched = 65536 + 22 + 20;

template <typename Number>
void Put(QByteArray& bytes, Number number) {
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

/// Three numbers that go to the ZIP64 field where they are too large for the record.
struct WideNumbers {
    QByteArray Field;

    quint32 Narrow(quint64 number) {
        if (number < InWideField)
            return static_cast<quint32>(number);
        Put(Field, number);
        return InWideField;
    }
};

bool IsPresentable(const ZipEntry& entry) {
    return entry.Standing == ZipEntry::State::Good &&
           (entry.Method != ZipEntry::Aes || ZipShown::HasSoundAesField(entry));
}

QByteArray ExtraFields(const ZipEntry& entry, const QByteArray& wide) {
    QByteArray fields;
    if (!wide.isEmpty()) {
        Put(fields, quint16{0x0001});
        Put(fields, static_cast<quint16>(wide.size()));
        fields += wide;
    }
    if (entry.Method == ZipEntry::Aes) {
        Put(fields, quint16{0x9901});
        Put(fields, static_cast<quint16>(entry.AesField.size()));
        fields.append(entry.AesField.data(), static_cast<qsizetype>(entry.AesField.size()));
        // Something packed: what is stored would be held against the checksum that it lacks.
        if (ZipShown::LacksChecksum(entry) && ZipShown::MethodOf(entry) == ZipEntry::Stored)
            fields[fields.size() - 2] = static_cast<char>(ZIP_CM_DEFLATE);
    }
    return fields;
}

void PutRecord(QByteArray& directory, const ZipEntry& told) {
    const ZipEntry entry = IsPresentable(told) ? told : ZipEntry{};
    WideNumbers wide;
    // The library believes a checksum that is none when the entry is said to be long.
    const quint32 size = ZipShown::LacksChecksum(entry) ? 0 : wide.Narrow(static_cast<quint64>(entry.Size));
    const quint32 packed = wide.Narrow(static_cast<quint64>(entry.Packed));
    const quint32 offset = wide.Narrow(static_cast<quint64>(entry.Offset));
    const QByteArray fields = ExtraFields(entry, wide.Field);
    Put(directory, quint32{0x02014B50});
    Put(directory, MadeBy);
    Put(directory, NeedsWide);
    Put(directory, static_cast<quint16>(entry.Flags & (ZipEntry::Encrypted | DeflateOptions | Descriptor)));
    Put(directory, entry.Method);
    Put(directory, entry.Time);
    Put(directory, AnyDate);
    Put(directory, entry.Crc);
    Put(directory, packed);
    Put(directory, size);
    Put(directory, quint16{0}); // the name's length
    Put(directory, static_cast<quint16>(fields.size()));
    Put(directory, quint16{0}); // the comment's
    Put(directory, quint32{0}); // the disk and the internal attributes
    Put(directory, quint32{0}); // the external ones
    Put(directory, offset);
    directory += fields;
}

/// Directory, room, and the two ends, for a place behind `start` bytes.
QByteArray DirectoryOf(std::span<const ZipEntry> entries, qint64 start) {
    QByteArray bytes;
    for (const ZipEntry& entry : entries)
        PutRecord(bytes, entry);
    const auto size = static_cast<quint64>(bytes.size());
    bytes.append(Searched, '\0');
    const qint64 end = start + bytes.size();
    Put(bytes, quint32{0x06064B50});
    Put(bytes, quint64{44}); // what follows in this record
    Put(bytes, NeedsWide);
    Put(bytes, NeedsWide);
    Put(bytes, quint64{0}); // the disks
    Put(bytes, static_cast<quint64>(entries.size()));
    Put(bytes, static_cast<quint64>(entries.size()));
    Put(bytes, size);
    Put(bytes, static_cast<quint64>(start));
    Put(bytes, quint32{0x07064B50});
    Put(bytes, quint32{0});
    Put(bytes, static_cast<quint64>(end));
    Put(bytes, quint32{1});
    Put(bytes, quint32{0x06054B50});
    Put(bytes, quint32{0});
    Put(bytes, quint32{0xFFFFFFFF}); // the counts, and then size and offset: they stand above
    Put(bytes, quint64{0xFFFFFFFFFFFFFFFF});
    Put(bytes, quint16{0});
    return bytes;
}

/// The source that libzip reads from.
class Source {
public:
    Source(const Device& archive, ReadAhead& bytes, std::span<const ZipEntry> entries)
        : bytes_(bytes),
          archiveLength_(archive.Length()),
          directory_(DirectoryOf(entries, archiveLength_)),
          length_(archiveLength_ + directory_.size()) {
        zip_error_init(&error_);
    }

    ~Source() { zip_error_fini(&error_); }

    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    static zip_int64_t Answer(void* source, void* data, zip_uint64_t length, zip_source_cmd_t command) {
        return static_cast<Source*>(source)->Answer(data, length, command);
    }

private:
    zip_int64_t Answer(void* data, zip_uint64_t length, zip_source_cmd_t command) {
        switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT,
                                                  ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL,
                                                  ZIP_SOURCE_SUPPORTS, -1);
        case ZIP_SOURCE_OPEN:
            position_ = 0;
            return 0;
        case ZIP_SOURCE_CLOSE:
            return 0;
        case ZIP_SOURCE_READ:
            return Read(static_cast<char*>(data), static_cast<qint64>(length));
        case ZIP_SOURCE_SEEK:
            return Seek(data, length);
        case ZIP_SOURCE_TELL:
            return position_;
        case ZIP_SOURCE_STAT: {
            auto* state = static_cast<zip_stat_t*>(data);
            zip_stat_init(state);
            state->valid = ZIP_STAT_SIZE;
            state->size = static_cast<zip_uint64_t>(length_);
            return sizeof *state;
        }
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&error_, data, length);
        case ZIP_SOURCE_FREE:
            delete this;
            return 0;
        default:
            zip_error_set(&error_, ZIP_ER_OPNOTSUPP, 0);
            return -1;
        }
    }

    zip_int64_t Seek(void* data, zip_uint64_t length) {
        const zip_int64_t position = zip_source_seek_compute_offset(
            static_cast<zip_uint64_t>(position_), static_cast<zip_uint64_t>(length_), data, length, &error_);
        if (position < 0)
            return -1;
        position_ = position;
        return 0;
    }

    zip_int64_t Read(char* bytes, qint64 count) {
        QByteArrayView there;
        if (position_ >= archiveLength_) {
            there = QByteArrayView(directory_).sliced(position_ - archiveLength_);
        } else {
            try { // the library is no place for exceptions
                there = bytes_.View(position_, std::min(count, archiveLength_ - position_));
            } catch (...) {
                zip_error_set(&error_, ZIP_ER_READ, EIO);
                return -1;
            }
        }
        const qint64 had = std::min<qint64>(count, there.size());
        std::copy_n(there.data(), had, bytes);
        position_ += had;
        return had;
    }

    ReadAhead& bytes_;
    qint64 archiveLength_;
    QByteArray directory_;
    qint64 length_;
    qint64 position_ = 0;
    zip_error_t error_{};
};

} // namespace

bool ZipShown::HasSoundAesField(const ZipEntry& entry) {
    const auto& field = entry.AesField;
    return entry.HasAesField && (field[0] == 1 || field[0] == 2) && field[1] == 0 && field[2] == 'A' &&
           field[3] == 'E' && field[4] >= 1 && field[4] <= 3;
}

bool ZipShown::LacksChecksum(const ZipEntry& entry) {
    return entry.Method == ZipEntry::Aes && entry.AesField[0] == 2;
}

quint16 ZipShown::MethodOf(const ZipEntry& entry) {
    return entry.Method == ZipEntry::Aes ? qFromLittleEndian<quint16>(entry.AesField.data() + 5) : entry.Method;
}

std::shared_ptr<zip> ZipShown::Open(const Device& archive, ReadAhead& bytes, std::span<const ZipEntry> entries) {
    zip_error_t error;
    zip_error_init(&error);
    auto owned = std::make_unique<Source>(archive, bytes, entries);
    zip_source_t* source = zip_source_function_create(&Source::Answer, owned.get(), &error);
    if (source != nullptr)
        static_cast<void>(owned.release()); // the library's own now
    zip_t* opened = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error);
    if (opened == nullptr) {
        if (source != nullptr)
            zip_source_free(source);
        const QString reason = QString::fromUtf8(zip_error_strerror(&error));
        zip_error_fini(&error);
        throw ZipFailure(ZipResult::NoArchive, u"%1: %2"_s.arg(archive.Name(), reason));
    }
    zip_error_fini(&error);
    return {opened, zip_discard};
}
