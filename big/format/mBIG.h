// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one open archive of the program: its table under the names that the program knows it by, kept open on disk from
/// loading on, so that nobody can pull its bytes away before they are saved.
#pragma once

#include "big/format/Archive.h"
#include "platform/HeldFolder.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class OriginalBytes;

namespace mBIG {

using Archives::MaximumEntries;

/// The archive open in the program; there is never more than one.
Archive& Open();

/// Its parts.
extern std::vector<BigEntry>& BigEntries;
extern qint32& BigVersion;
extern QString& BigFileName;

/// Tells one open archive from the next: made anew by each Load and New, compared with ==.
using Identity = std::shared_ptr<const void>;
Identity CurrentIdentity();

/// Opens an archive: reads it, keeps it open and names it. Raises when it is refused, and while an ArchiveLock lives:
/// then all stays as it was. An unknown mark keeps the earlier variant.
void Load(const QString& path);

/// Opens a fresh archive of one blank record, which no file stands for yet. Raises while an ArchiveLock lives.
void New(const QString& path, qint32 version);

/// Forgets the open archive and lets its file go. Raises while an ArchiveLock lives.
void Close();

struct SaveOptions {
    QStringList Kept = {}; ///< inside paths of files in the scratch folder that stay
    Archives::Placement Place = Archives::Placement::Told;
    QString Scratch = {}; ///< inside path of the folder that is emptied; the program's scratch folder without one
    /// What is known of bytes beside their offsets; null when nobody asks. The save keeps it in step, and the archive
    /// that it replaces open where that has bytes which were cut off.
    OriginalBytes* Originals = nullptr;
    bool FromOriginals = false; ///< write those bytes, and not what the offsets lead to
};

/// Writes the open archive in one step; whatever stood at the path stands there still when this raises. Nothing, with
/// nothing written, when there is nothing to save: for the told placement a table of one record or none, for the exact
/// one the blank record of a fresh archive; the progress window stays on the screen then. Behind a save no record but a
/// deleted one is new any more, and the scratch folder's files are deleted but for those kept; the table has the old
/// archive's offsets until the written one is loaded, and until then no entry with bytes is saved again. Returns how
/// far the data lie from where the directory says. Raises, besides what Archives::Write raises, when old entries have
/// bytes and the open archive has changed on disk, or can't be opened.
std::optional<OffsetShift::Shift> Save(const QString& path, const SaveOptions& options = {});

/// Whether entries have bytes that lie nobody knows where: a save has written them, and the file was not loaded since.
bool HasLostBytes();

/// The open archive's length on disk as it was when loaded; 0 when there is none.
qint64 LengthOnDisk();

/// As long as one lives the open archive's table is changed by nobody but its holder, and no other archive is opened.
/// A save holds one, and whatever walks through the table and lets events in.
class ArchiveLock {
public:
    ArchiveLock();
    ~ArchiveLock();
    ArchiveLock(const ArchiveLock&) = delete;
    ArchiveLock& operator=(const ArchiveLock&) = delete;

    [[nodiscard]] static bool IsHeld();
};

/// Fills BigEntries and sets BigVersion; false when the file was refused. Never touches BigFileName.
bool ReadBigFile(const QString& path);

/// Save with the told placement, as a boolean.
bool WriteBigFile(const QString& path, const QStringList& kept = {});

/// Copies one entry's data to a file: a new entry's source as a file copy, an old one's bytes from offset 0 of the
/// target, which is made when missing and never cut. Raises on failure. An entry of size 0 can't be extracted from an
/// archive: that raises 9 and leaves the file numbers 3 and 4 open.
void ExtractEntry(int index, const QString& archivePath, const QString& targetPath);

/// The same for a target path whose case is known to be right: nothing is looked up.
void ExtractEntryAsGiven(int index, const QString& archivePath, const QString& targetPath);

/// What becomes of a file that stands where an entry is extracted to.
enum class OldFile {
    Replaced,    ///< as if it were not there
    WrittenOver, ///< the entry's bytes come over its first ones, a longer one keeps its tail
};

/// The same for a place in a folder that is held, in one step: what stands there is whole until the new file is. A link
/// is replaced itself.
void ExtractEntryTo(int index, const QString& archivePath, const FilePlace& target, OldFile old);

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
