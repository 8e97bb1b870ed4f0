// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/mBIG.h"

#include "big/format/Layout.h"
#include "platform/AnsiCodec.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/RuntimeError.h"

#include <QScopeGuard>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

using NumberedFiles::Access;

namespace {

constexpr int ArchiveNumber = 1;
constexpr int ExtractTargetNumber = 3;
constexpr int ExtractArchiveNumber = 4;

/// Reads an open file from front to back. Behind its end come zeros.
class Scanner {
public:
    Scanner(int number, qint64 offset) : number_(number), windowStart_(offset) {}

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
        const qint64 had = NumberedFiles::ReadInto(number_, readFrom, window_.data() + kept, Step);
        window_.resize(kept + had);
        ended_ = had < Step;
        windowStart_ += keepFrom;
        at_ = 0;
        return had > 0;
    }

    int number_;
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

[[noreturn]] void Refuse() {
    throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("not a number"));
}

/// The directory of the open archive, from its first record to the mark behind the last one.
class Directory {
public:
    /// Raises when the archive is refused by its header.
    Directory() {
        const QByteArray magic = NumberedFiles::Read(ArchiveNumber, 0, 4);
        if (magic != "BIGF" && magic != "BIG4")
            Refuse();
        const QByteArray bytes = NumberedFiles::Read(ArchiveNumber, Layout::CountOffset, sizeof(quint32));
        const auto count = DirectoryNumber(qFromBigEndian<quint32>(bytes.leftJustified(sizeof(quint32), '\0').data()));
        if (!count || *count > mBIG::MaximumEntries)
            Refuse();
        Count = *count;
    }

    /// Takes the next record but for its name, which is returned: valid until the next call. Raises when the first
    /// entry's offset is not good; everything behind it reads as far as it makes sense.
    QByteArrayView Next(BigEntry& entry) {
        const auto offset = DirectoryNumber(scanner_.BigEndian());
        if (std::exchange(first_, false) && !offset)
            Refuse();
        entry.Offset = offset.value_or(0);
        entry.Size = DirectoryNumber(scanner_.BigEndian()).value_or(0);
        return scanner_.Name();
    }

    /// An unknown mark keeps the earlier variant, and the read still succeeds.
    void TakeMark() {
        const QByteArray mark = mBIG::LongToBytes(static_cast<qint32>(scanner_.BigEndian()));
        mBIG::BigVersion = Layout::VersionOfMark(mark).value_or(mBIG::BigVersion);
    }

    int Count = 0;

private:
    Scanner scanner_{ArchiveNumber, Layout::DirectoryOffset};
    bool first_ = true;
};

void FillTable() {
    Directory directory;
    mBIG::BigEntries.assign(static_cast<std::size_t>(directory.Count), BigEntry{});
    for (BigEntry& entry : mBIG::BigEntries)
        entry.Name = AnsiCodec::Decode(directory.Next(entry));
    directory.TakeMark();
}

void FindMark() {
    Directory directory;
    BigEntry passed;
    for (int index = 0; index < directory.Count; ++index)
        directory.Next(passed);
    directory.TakeMark();
}

void ShowRecords(const std::function<void(const BigEntry&)>& show) {
    Directory directory;
    BigEntry entry;
    for (int index = 0; index < directory.Count; ++index) {
        entry.Name = AnsiCodec::Decode(directory.Next(entry));
        show(entry);
    }
}

void CloseArchive() {
    Ignoring([] { NumberedFiles::Close(ArchiveNumber); });
}

/// Fills the target with zeros from `from` to `to`, without writing behind its end more than its length.
void ZeroTail(int number, qint64 from, qint64 to) {
    constexpr qint64 step = 65536;
    const qint64 length = NumberedFiles::Length(number);
    const QByteArray zeros(step, '\0');
    for (qint64 at = from; at < std::min(to, length); at += step)
        NumberedFiles::Write(number, at, QByteArrayView(zeros).first(std::min(step, std::min(to, length) - at)));
    if (length < to)
        NumberedFiles::SetLength(number, to);
}

using OpenTarget = void (*)(int number, const QString& path, Access access);

void ExtractFromArchive(const BigEntry& entry, const QString& archivePath, const QString& targetPath,
                        OpenTarget openTarget) {
    NumberedFiles::Open(ExtractArchiveNumber, archivePath, Access::Read);
    try {
        openTarget(ExtractTargetNumber, targetPath, Access::ReadWrite);
    } catch (const RuntimeError&) {
        NumberedFiles::Close(ExtractArchiveNumber);
        throw;
    }
    // Without a byte to size the buffer to, the routine ends here with both files open. This is meant.
    if (entry.Size == 0)
        throw RuntimeError(ErrorNumber::Subscript, QStringLiteral("%1: nothing to extract").arg(entry.Name));
    try {
        const qint64 there =
            NumberedFiles::Copy(ExtractTargetNumber, 0, ExtractArchiveNumber, entry.Offset, entry.Size);
        ZeroTail(ExtractTargetNumber, there, entry.Size);
    } catch (const RuntimeError&) {
        Ignoring([] { NumberedFiles::Close(ExtractTargetNumber); });
        NumberedFiles::Close(ExtractArchiveNumber);
        throw;
    }
    NumberedFiles::Close(ExtractArchiveNumber);
    NumberedFiles::Close(ExtractTargetNumber);
}

} // namespace

namespace mBIG {

bool ReadBigFile(const QString& path) {
    if (!Ignoring([&] { NumberedFiles::Open(ArchiveNumber, path, Access::Read); }))
        return false;
    const bool read = Ignoring(FillTable);
    CloseArchive();
    return read;
}

bool ListBigFile(const QString& path, const std::function<void(const BigEntry&)>& show) {
    if (!Ignoring([&] { NumberedFiles::Open(ArchiveNumber, path, Access::Read); }))
        return false;
    const auto closed = qScopeGuard(CloseArchive);
    // The variant stands behind the records, so that they are passed over once before they are shown.
    if (!Ignoring(FindMark))
        return false;
    ShowRecords(show);
    return true;
}

void ExtractEntry(int index, const QString& archivePath, const QString& targetPath) {
    const BigEntry entry = BigEntries.at(static_cast<std::size_t>(index));
    if (entry.IsNew)
        Files::Copy(entry.SourcePath, targetPath);
    else
        ExtractFromArchive(entry, archivePath, targetPath, NumberedFiles::Open);
}

void ExtractEntryAsGiven(int index, const QString& archivePath, const QString& targetPath) {
    const BigEntry entry = BigEntries.at(static_cast<std::size_t>(index));
    if (entry.IsNew)
        Files::CopyAsGiven(entry.SourcePath, targetPath);
    else
        ExtractFromArchive(entry, archivePath, targetPath, NumberedFiles::OpenAsGiven);
}

void CloseExtraction() {
    for (const int number : {ExtractTargetNumber, ExtractArchiveNumber})
        Ignoring([number] { NumberedFiles::Close(number); });
}

int FindEntry(const QString& name) {
    return Archives::Find(Open(), name);
}

QByteArray StringToBytes(const QString& text) {
    return AnsiCodec::Encode(text);
}

QByteArray LongToBytes(qint32 value) {
    QByteArray bytes(sizeof(value), Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

int HighestIndex() {
    return BigEntries.empty() ? 0 : static_cast<int>(BigEntries.size()) - 1;
}

} // namespace mBIG
