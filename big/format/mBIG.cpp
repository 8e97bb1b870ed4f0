// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/mBIG.h"

#include "platform/AnsiCodec.h"
#include "platform/FileNumbers.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <QScopeGuard>
#include <QtEndian>

#include <algorithm>

using NumberedFiles::Access;

namespace {

/// Fills the target with zeros from `from` to `to`, without writing behind its end more than its length.
void ZeroTail(File& target, qint64 from, qint64 to) {
    constexpr qint64 step = 65536;
    const qint64 length = target.Length();
    const QByteArray zeros(step, '\0');
    for (qint64 at = from; at < std::min(to, length); at += step)
        target.Write(at, QByteArrayView(zeros).first(std::min(step, std::min(to, length) - at)));
    if (length < to)
        target.SetLength(to);
}

/// Raises 9 for an entry of size 0: without a byte to size the buffer to, the routine ends with the files open. This is
/// meant.
void RequireBytes(const BigEntry& entry) {
    if (entry.Size == 0)
        throw RuntimeError(ErrorNumber::Subscript, QStringLiteral("%1: nothing to extract").arg(entry.Name));
}

void CopyEntry(const BigEntry& entry, File& target) {
    const File& archive = NumberedFiles::Of(FileNumbers::ExtractArchive);
    ZeroTail(target, target.CopyFrom(0, archive, entry.Offset, entry.Size), entry.Size);
}

using OpenTarget = void (*)(int number, const QString& path, Access access);

void ExtractFromArchive(const BigEntry& entry, const QString& archivePath, const QString& targetPath,
                        OpenTarget openTarget) {
    NumberedFiles::Open(FileNumbers::ExtractArchive, archivePath, Access::Read);
    try {
        openTarget(FileNumbers::ExtractTarget, targetPath, Access::ReadWrite);
    } catch (const RuntimeError&) {
        NumberedFiles::Close(FileNumbers::ExtractArchive);
        throw;
    }
    RequireBytes(entry);
    try {
        CopyEntry(entry, NumberedFiles::Of(FileNumbers::ExtractTarget));
    } catch (const RuntimeError&) {
        Ignoring([] { NumberedFiles::Close(FileNumbers::ExtractTarget); });
        NumberedFiles::Close(FileNumbers::ExtractArchive);
        throw;
    }
    NumberedFiles::Close(FileNumbers::ExtractArchive);
    NumberedFiles::Close(FileNumbers::ExtractTarget);
}

void CopyAll(const File& source, File& target) {
    const qint64 length = source.Length();
    if (target.CopyFrom(0, source, 0, length) != length)
        throw RuntimeError(ErrorNumber::DeviceError, QStringLiteral("%1: breaks off").arg(source.Name()));
}

/// An entry of the archive that is open to be extracted from.
void ExtractAside(const BigEntry& entry, const FilePlace& target, mBIG::OldFile old) {
    const bool isWrittenOver =
        old == mBIG::OldFile::WrittenOver && target.Folder->StandingOf(target.Name) == HeldFolder::Standing::File;
    WriteAside aside(target, isWrittenOver ? WriteAside::Old::Kept : WriteAside::Old::Dropped);
    if (isWrittenOver)
        CopyAll(target.Folder->OpenToRead(target.Name), aside.Out());
    if (entry.Size != 0)
        CopyEntry(entry, aside.Out());
    aside.Commit(false);
}

} // namespace

namespace mBIG {

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

void ExtractEntryTo(int index, const QString& archivePath, const FilePlace& target, OldFile old) {
    const BigEntry entry = BigEntries.at(static_cast<std::size_t>(index));
    if (entry.IsNew) {
        const File source = File::Open(entry.SourcePath, Access::Read);
        WriteAside aside(target, old == OldFile::WrittenOver ? WriteAside::Old::Kept : WriteAside::Old::Dropped);
        CopyAll(source, aside.Out());
        return aside.Commit(false);
    }
    NumberedFiles::Open(FileNumbers::ExtractArchive, archivePath, Access::Read);
    auto close = qScopeGuard([] { Ignoring([] { NumberedFiles::Close(FileNumbers::ExtractArchive); }); });
    ExtractAside(entry, target, old);
    if (entry.Size == 0)
        close.dismiss();
    RequireBytes(entry);
}

void CloseExtraction() {
    for (const int number : {FileNumbers::ExtractTarget, FileNumbers::ExtractArchive})
        Ignoring([number] { NumberedFiles::Close(number); });
}

QByteArray StringToBytes(const QString& text) {
    return AnsiCodec::Encode(text);
}

QByteArray LongToBytes(qint32 value) {
    QByteArray bytes(sizeof(value), Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

} // namespace mBIG
