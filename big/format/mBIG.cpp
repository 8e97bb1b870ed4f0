// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/mBIG.h"

#include "platform/AnsiCodec.h"
#include "platform/FileNumbers.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/RuntimeError.h"

#include <QtEndian>

#include <algorithm>

using NumberedFiles::Access;

namespace {

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
    NumberedFiles::Open(FileNumbers::ExtractArchive, archivePath, Access::Read);
    try {
        openTarget(FileNumbers::ExtractTarget, targetPath, Access::ReadWrite);
    } catch (const RuntimeError&) {
        NumberedFiles::Close(FileNumbers::ExtractArchive);
        throw;
    }
    // Without a byte to size the buffer to, the routine ends here with both files open. This is meant.
    if (entry.Size == 0)
        throw RuntimeError(ErrorNumber::Subscript, QStringLiteral("%1: nothing to extract").arg(entry.Name));
    try {
        const qint64 there =
            NumberedFiles::Copy(FileNumbers::ExtractTarget, 0, FileNumbers::ExtractArchive, entry.Offset, entry.Size);
        ZeroTail(FileNumbers::ExtractTarget, there, entry.Size);
    } catch (const RuntimeError&) {
        Ignoring([] { NumberedFiles::Close(FileNumbers::ExtractTarget); });
        NumberedFiles::Close(FileNumbers::ExtractArchive);
        throw;
    }
    NumberedFiles::Close(FileNumbers::ExtractArchive);
    NumberedFiles::Close(FileNumbers::ExtractTarget);
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
