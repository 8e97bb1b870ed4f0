// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What changes the table of an archive: nothing here asks, looks at a disk or knows which archive is open. Whoever has
/// a question finds first (`Archives::Find`) and then applies.
#pragma once

#include "big/format/Archive.h"
#include "big/format/EntryIndex.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace ArchiveEdits {

/// The file that an entry's bytes are to come from.
struct Source {
    QString Path;     ///< inside path
    qint64 Size = -1; ///< bytes; below 0, or more than an archive can hold: the record keeps its size
};

/// The command Add: the entry of that name, ignoring case, takes the name as it is given and the file, and comes back
/// when it was deleted; else a record is added behind the highest index, which is 0 without a table. Returns its index.
int Add(Archive& archive, const QString& name, const Source& source);

/// The entry of that name, ignoring case, becomes a new one; else one is appended, the first one of a table too.
/// Returns its index.
int Put(Archive& archive, const QString& name, const Source& source);

/// The bytes of the entry are the file's from now on. Its size stays.
void Replace(Archive& archive, int index, const QString& sourcePath);

/// What drops did besides adding.
struct DropResult {
    int Taken = 0;        ///< files that a record stands for now
    QStringList Replaced; ///< names of entries that have the bytes of a dropped file now
    QStringList Lost;     ///< names of records whose place a new one took
    QStringList Hidden;   ///< names of deleted entries that have a dropped file's bytes now and stay deleted
};

/// A drop of any number of files, in time proportional to it. As long as it lives nothing else may change the table.
class Drop {
public:
    /// Whether the file may take the place of the entry that has its name already.
    using MayReplace = std::function<bool(const QString& name)>;

    Drop(Archive& archive, MayReplace mayReplace);

    /// A file that was dropped itself. A deleted entry of that name comes back.
    void File(const QString& name, const Source& source);

    /// A file of a dropped folder. A deleted entry of that name takes it and stays deleted.
    void FileOfFolder(const QString& name, const Source& source);

    [[nodiscard]] const DropResult& Result() const { return result_; }

private:
    enum class Found { ComesBack, StaysDeleted };

    void Take(const QString& name, const Source& source, Found found);
    [[nodiscard]] int PlaceForNew() const;
    [[nodiscard]] bool IsLoss(int index) const;

    Archive& archive_;
    EntryIndex names_;
    MayReplace mayReplace_;
    DropResult result_;
};

void DeleteEntry(Archive& archive, int index);

/// Deletes the entries whose name holds the folder's key anywhere, compared exactly. Returns how many hold it.
int DeleteFolder(Archive& archive, const QString& key);

/// Gives the entry another text wherever `oldText` stands in its name, in a folder part too. An empty `oldText` stands
/// nowhere.
void RenameEntry(Archive& archive, int index, const QString& oldText, const QString& text);

/// Gives the entries another text wherever the folder's key stands in their names, compared exactly. Returns how many
/// hold it.
int RenameFolder(Archive& archive, const QString& oldKey, const QString& newKey);

/// A folder's key, which ends in a backslash, with another last part.
QString RenamedKey(const QString& key, const QString& text);

} // namespace ArchiveEdits
