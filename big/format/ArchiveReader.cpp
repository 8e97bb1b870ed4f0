// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/ArchiveReader.h"

#include "big/format/Layout.h"
#include "platform/AnsiCodec.h"
#include "platform/File.h"
#include "platform/RuntimeError.h"

#include <QtEndian>

#include <cstring>
#include <optional>
#include <utility>

namespace {

/// Reads a device from front to back. Behind its end come zeros.
class Scanner {
public:
    Scanner(const Device& device, qint64 offset) : device_(device), windowStart_(offset) {}

    quint32 BigEndian() {
        constexpr qsizetype width = sizeof(quint32);
        while (window_.size() - at_ < width) {
            if (!Refill(at_))
                window_.append(width, '\0');
        }
        const auto number = qFromBigEndian<quint32>(window_.constData() + at_);
        at_ += width;
        return number;
    }

    /// The bytes before the next NUL or the end of the file; the NUL is passed. Valid until the next call.
    QByteArrayView Name() {
        qsizetype end = FindEnd(at_);
        while (end < 0) {
            const qsizetype searched = window_.size() - at_;
            if (!Refill(at_))
                break;
            end = FindEnd(searched);
        }
        const qsizetype stop = end < 0 ? window_.size() : end;
        const QByteArrayView name = QByteArrayView(window_).sliced(at_, stop - at_);
        at_ = end < 0 ? stop : stop + 1;
        return name;
    }

private:
    static constexpr qint64 Step = qint64{64} * 1024;

    [[nodiscard]] qsizetype FindEnd(qsizetype from) const {
        const char* begin = window_.constData();
        const void* found = std::memchr(begin + from, 0, static_cast<std::size_t>(window_.size() - from));
        return found == nullptr ? -1 : static_cast<const char*>(found) - begin;
    }

    /// Drops what stands before `keepFrom` and reads on, in the same memory. False at the end of the file.
    bool Refill(qsizetype keepFrom) {
        if (ended_)
            return false;
        const qint64 readFrom = windowStart_ + window_.size();
        const qsizetype kept = window_.size() - keepFrom;
        std::memmove(window_.data(), window_.data() + keepFrom, static_cast<std::size_t>(kept));
        window_.resize(kept + Step);
        const qint64 had = device_.ReadInto(readFrom, window_.data() + kept, Step);
        window_.resize(kept + had);
        ended_ = had < Step;
        windowStart_ += keepFrom;
        at_ = 0;
        return had > 0;
    }

    const Device& device_;
    qint64 windowStart_;
    QByteArray window_;
    qsizetype at_ = 0;
    bool ended_ = false;
};

/// A directory number as the format's readers take it: zero is no number, and a value of 0x80000000 or more loses its
/// top hexadecimal digit. This is meant.
std::optional<qint32> DirectoryNumber(quint32 value) {
    const quint32 kept = value < 0x80000000U ? value : value & 0x0FFFFFFFU;
    if (kept == 0)
        return std::nullopt;
    return static_cast<qint32>(kept);
}

[[noreturn]] void Refuse(const Device& device) {
    throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("%1: not a BIG archive").arg(device.Name()));
}

/// An archive's directory, from its first record to the mark behind the last one.
class Directory {
public:
    /// Raises when the archive is refused by its header.
    explicit Directory(const Device& device) : device_(device), scanner_(device, Layout::DirectoryOffset) {
        const QByteArray header = device.Read(0, Layout::DirectoryOffset).leftJustified(Layout::DirectoryOffset, '\0');
        if (!header.startsWith("BIGF") && !header.startsWith("BIG4"))
            Refuse(device);
        const auto count = DirectoryNumber(qFromBigEndian<quint32>(header.constData() + Layout::CountOffset));
        if (!count || *count > Archives::MaximumEntries)
            Refuse(device);
        Count = *count;
    }

    /// Takes the next record but for its name, which is returned: valid until the next call. Raises when the first
    /// entry's offset is not good; everything behind it reads as far as it makes sense.
    QByteArrayView Next(BigEntry& entry) {
        const auto offset = DirectoryNumber(scanner_.BigEndian());
        if (std::exchange(first_, false) && !offset)
            Refuse(device_);
        entry.Offset = offset.value_or(0);
        entry.Size = DirectoryNumber(scanner_.BigEndian()).value_or(0);
        return scanner_.Name();
    }

    /// The variant that the mark tells; an unknown one tells `otherwise`, and the read still succeeds.
    qint32 Version(qint32 otherwise) {
        QByteArray mark(Layout::MarkLength, Qt::Uninitialized);
        qToBigEndian(scanner_.BigEndian(), mark.data());
        return Layout::VersionOfMark(mark).value_or(otherwise);
    }

    int Count = 0;

private:
    const Device& device_;
    Scanner scanner_;
    bool first_ = true;
};

qint32 FindVersion(const Device& device, qint32 version) {
    Directory directory(device);
    BigEntry passed;
    for (int index = 0; index < directory.Count; ++index)
        directory.Next(passed);
    return directory.Version(version);
}

} // namespace

void ArchiveReader::Fill(const Device& device, Archive& archive) {
    Directory directory(device);
    archive.Entries.assign(static_cast<std::size_t>(directory.Count), BigEntry{});
    for (BigEntry& entry : archive.Entries)
        entry.Name = AnsiCodec::Decode(directory.Next(entry));
    archive.Version = directory.Version(archive.Version);
}

namespace Archives {

Archive Read(QByteArrayView bytes, qint32 version) {
    return Read(MemoryDevice(QByteArray::fromRawData(bytes.data(), bytes.size())), version);
}

Archive Read(const Device& device, qint32 version) {
    Archive archive{.Entries = {}, .Version = version, .FileName = {}};
    ArchiveReader::Fill(device, archive);
    return archive;
}

Archive Read(const QString& path, qint32 version) {
    Archive archive = Read(File::Open(path, File::Access::Read), version);
    archive.FileName = path;
    return archive;
}

void List(const Device& device, qint32 version, const std::function<void(const BigEntry&, qint32 version)>& show) {
    // The variant stands behind the records, so that they are passed over once before they are shown.
    const qint32 found = FindVersion(device, version);
    Directory directory(device);
    BigEntry entry;
    for (int index = 0; index < directory.Count; ++index) {
        entry.Name = AnsiCodec::Decode(directory.Next(entry));
        show(entry, found);
    }
}

} // namespace Archives
