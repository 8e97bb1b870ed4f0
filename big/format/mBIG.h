// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// BIG archives: the table of the open archive, the reader and the writer.
///
/// A BIG file is a header of 16 bytes ("BIGF" or "BIG4", the file's length little-endian, the entry count and the
/// first-file field big-endian), a directory of packed records (offset and size big-endian, name ended by NUL), a mark
/// of 4 or 6 bytes that tells the variant, and the entries' bytes. Names are relative paths with backslashes in the
/// ANSI code page.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

struct BigEntry {
    QString Name;         ///< path within the archive, as stored
    qint32 Offset = 0;    ///< in the archive on disk, bytes; meaningless while IsNew
    qint32 Size = 0;      ///< bytes
    bool IsNew = false;   ///< the data is in SourcePath, not in the archive on disk
    bool Deleted = false; ///< hidden until the next save and reload
    QString SourcePath;   ///< inside path of the file with the data of a new or modified entry
};

namespace mBIG {

/// The archive open in the program; there is never more than one.
extern std::vector<BigEntry> BigEntries;
/// 0 "L225", 1 "L231", 2 "L219", 3 "L253".
extern qint32 BigVersion;
/// Inside path of the open archive.
extern QString BigFileName;

/// The most entries that an archive can have.
inline constexpr int MaximumEntries = 32768;

/// Fills BigEntries and sets BigVersion; false when the file was refused. Never touches BigFileName.
bool ReadBigFile(const QString& path);

/// Shows each record of an archive without taking it into the table. BigVersion is set before the first; false, with
/// nothing shown, when the file was refused. What `show` raises ends the list and is raised.
bool ListBigFile(const QString& path, const std::function<void(const BigEntry&)>& show);

/// Writes BigEntries as an archive of the variant BigVersion, old entries from BigFileName, new ones from their
/// SourcePath. False when the table has one record or none, and when the target can't be written: then whatever stood
/// at the target stands there still, and LastFailure tells why. Behind it the scratch folder is emptied, but for the
/// files `kept` (inside paths).
bool WriteBigFile(const QString& path, const QStringList& kept = {});

/// Why the last WriteBigFile returned false, for a person; empty when the table had nothing to save.
QString LastFailure();

/// Copies one entry's data to a file: a new entry's source as a file copy, an old one's bytes from offset 0 of the
/// target, which is made when missing and never cut. Raises on failure. An entry of size 0 can't be extracted from an
/// archive: that raises 9 and leaves the file numbers 3 and 4 open.
void ExtractEntry(int index, const QString& archivePath, const QString& targetPath);

/// The same for a target path whose case is known to be right: nothing is looked up.
void ExtractEntryAsGiven(int index, const QString& archivePath, const QString& targetPath);

/// Closes what an entry of size 0 left open.
void CloseExtraction();

/// First index with that name, ignoring case, deleted records included; -1 when there is none.
int FindEntry(const QString& name);

/// One byte a character in the ANSI code page.
QByteArray StringToBytes(const QString& text);

/// Four bytes, most significant first.
QByteArray LongToBytes(qint32 value);

/// The highest index of BigEntries; 0 for an empty table too.
int HighestIndex();

} // namespace mBIG
