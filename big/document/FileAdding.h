// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files that come into the archive: the command Add, and files and folders that are dropped on the list.
#pragma once

#include "big/document/EditorPanes.h"
#include "big/format/ArchiveEdits.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class FileAdding {
public:
    /// The panes outlive this. `recordsLost` is told the first index whose record may be another one now.
    FileAdding(EditorPanes& panes, std::function<void(int firstIndex)> recordsLost);

    void Add();

    /// Takes files and folders that lie in a drag's scratch folder into one of this program's, as they are gone with
    /// the next drag, and returns where they are now; others stay where they are. To be called within the drop itself.
    static QStringList AdoptDragged(QStringList paths);
    /// Forgets what was adopted, when it is saved or given up.
    static void ForgetAdopted();

    /// Files and folders dropped on the list, inside paths.
    void Drop(const QStringList& paths);

private:
    /// The index of the entry; nothing for a file that is not to replace one.
    std::optional<int> AddFile(const QString& path, ArchiveEdits::DropResult& result);
    void ShowAdded(const std::vector<int>& indices);
    /// Returns what did not come in.
    QStringList DropPaths(const QStringList& paths, ArchiveEdits::Drop& drop);
    void TellDrop(const ArchiveEdits::DropResult& result);

    EditorPanes& panes_;
    std::function<void(int)> recordsLost_;
};
