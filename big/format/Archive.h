// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A BIG archive as a value: its table, its variant and where it lies; reading one and writing one.
///
/// A BIG file is a header of 16 bytes ("BIGF" or "BIG4", the file's length little-endian, the entry count and the
/// first-file field big-endian), a directory of packed records (offset and size big-endian, name ended by NUL), a mark
/// of 4 or 6 bytes that tells the variant, and the entries' bytes. Names are relative paths with backslashes in the
/// ANSI code page.
#pragma once

#include "big/format/OffsetShift.h"
#include "platform/File.h"

#include <QByteArrayView>
#include <QString>

#include <functional>
#include <vector>

class Device;

struct BigEntry {
    QString Name;             ///< path within the archive, as stored
    qint32 Offset = 0;        ///< in the archive on disk, bytes; meaningless while IsNew
    qint32 Size = 0;          ///< bytes
    bool IsNew = false;       ///< the data is in SourcePath, not in the archive on disk
    bool Deleted = false;     ///< hidden until the next save and reload
    QString SourcePath;       ///< inside path of the file with the data of a new or modified entry
    qint64 SourceLength = -1; ///< of that file, bytes, where somebody has just looked; a save looks itself below 0

    friend bool operator==(const BigEntry&, const BigEntry&) = default;
};

struct Archive {
    std::vector<BigEntry> Entries;
    qint32 Version = 0; ///< 0 "L225", 1 "L231", 2 "L219", 3 "L253"
    QString FileName;   ///< inside path; old entries are read from there
    FileState Stood{};  ///< what was at FileName when it was read, where that is known: another file has other offsets
};

namespace Archives {

/// The most entries that an archive can have.
inline constexpr int MaximumEntries = 32768;

/// Each raises when the archive is refused. An unknown mark is not refused: the variant is `version` then. Behind the
/// end of the file come zeros, so that a directory that is cut off reads with blank records.
Archive Read(QByteArrayView bytes, qint32 version = 0);
Archive Read(const Device& device, qint32 version = 0);
/// Sets FileName too.
Archive Read(const QString& path, qint32 version = 0);

/// Shows each record of an archive, and the variant, without making a table. Raises when the archive is refused, before
/// anything is shown; what `show` raises ends the list and is raised.
void List(const Device& device, qint32 version, const std::function<void(const BigEntry&, qint32 version)>& show);

/// Where a writer puts the entries' bytes.
enum class Placement {
    Told,  ///< as saves always did: some variants and names lay them a few bytes beside the directory's offsets
    Exact, ///< where the directory says; an entry without bytes takes none
};

/// What may be told while an archive is written; any of them may be empty.
struct Watch {
    std::function<void(const BigEntry& entry)> Gone = {}; ///< before anything is written: its file is gone; may raise
    std::function<void(const QString& name)> Entry = {};  ///< before an entry's bytes
    std::function<void(int percent)> Percent = {};        ///< behind them, 0 to 100
    std::function<void()> Yield = {};                     ///< often; nothing may change the archive meanwhile
};

/// Writes the entries that are not deleted; old ones out of `old`, which may be null when there is none, new ones from
/// their SourcePath. Returns how far the data lie from where the directory says. Raises when the target fails, when
/// there are too many entries, when the whole does not fit into 2 GiB, when an old entry has bytes and there is no
/// `old`, and, with its name, for a new entry's file that can't be read whole. Of a file that is gone nothing is
/// written, and its record has a size of 0.
OffsetShift::Shift Write(const Archive& archive, Device& target, const Device* old, Placement placement,
                         const Watch& watch = {});

/// Writes a whole file in one step: what stands at `path` stands there still when this raises. Old entries come out of
/// FileName, which may be `path`; raises when that is not the file any more that was read.
OffsetShift::Shift Write(const Archive& archive, const QString& path, Placement placement, const Watch& watch = {});

/// The indices of the entries, but for deleted ones, whose SourcePath is to be written and does not exist.
std::vector<int> MissingSources(const Archive& archive);

/// Whether there is nothing in it to be saved: no record, or only the blank one of a fresh archive.
bool IsBlank(const Archive& archive);

/// First index with that name, ignoring case, deleted records included; -1 when there is none.
int Find(const Archive& archive, const QString& name);

/// By index before a save: the index that the entry has when the written archive is read; -1 for a deleted one.
std::vector<int> IndicesAfterSave(const Archive& archive);

} // namespace Archives
