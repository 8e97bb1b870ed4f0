// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The rows of the file list as plain data: the folders and files of one folder of an archive.
#pragma once

#include "big/document/FolderTree.h"
#include "big/format/mBIG.h"

#include <QString>

#include <array>
#include <vector>

/// A row keeps what it shows, so that it stands on when the table is replaced.
struct FileRow {
    QString Name;          ///< a folder's node text; a file's whole name within the archive
    int Index = 0;         ///< a folder's node index; a file's index in the table
    qint32 Size = 0;       ///< bytes
    bool IsFolder = false; ///< else a file
    bool IsNew = false;    ///< the file's data is not in the archive on disk
};

class FileList {
public:
    enum Column { Filename, Filetype, Size };

    static constexpr int ColumnCount = 3;

    enum class Order { None, Ascending, Descending };

    /// Fills the list with the node's folders and the table's files that the folder key brings: the key occurs anywhere
    /// in the name, in any case, and no backslash stands beyond the character behind as many characters as the key has.
    /// `node` may be FolderTree::None. A table of a single record shows no files unless `showsOnlyEntry`. A column that
    /// has a sort mark keeps it, and the new rows come in its order; otherwise folders come first and files follow in
    /// table order.
    void ShowFolder(const FolderTree& tree, int node, const QString& folderKey, const std::vector<BigEntry>& entries,
                    const QString& folderType, bool showsOnlyEntry = false);

    void Clear();

    [[nodiscard]] int Count() const { return static_cast<int>(rows_.size()); }

    /// The row at a place from 0 to Count() - 1, in the order shown.
    [[nodiscard]] const FileRow& Row(int place) const { return rows_[Stored(place)]; }

    /// "DIR:" and the node index, or "BIG:" and the index in the table.
    [[nodiscard]] QString Key(int place) const;
    /// What the list shows: for a file its name without as many leading characters as the folder key has.
    [[nodiscard]] QString Text(int place) const;
    [[nodiscard]] int TextLength(int place) const;
    /// Shows another text in a row; a file's name within the archive is taken to end in it.
    void SetText(int place, const QString& text);
    /// The folder word, or what follows the last full stop of the whole name; the whole name when there is none.
    [[nodiscard]] QString Type(int place) const;
    /// Bytes in decimal; empty for a folder.
    [[nodiscard]] QString SizeText(int place) const;

    /// A click on a column's header: from no order to ascending, then descending and ascending in turn. The other
    /// columns lose their mark. Size sorts as numbers, the others as text without regard to case.
    void SortBy(Column column);

    [[nodiscard]] Order OrderOf(Column column) const { return orders_[column]; }

    /// The place at which a row stood before any sorting, and back.
    [[nodiscard]] int UnsortedPlace(int place) const { return static_cast<int>(Stored(place)); }

    [[nodiscard]] std::vector<int> PlacesByUnsorted() const;

private:
    [[nodiscard]] std::size_t Stored(int place) const {
        return static_cast<std::size_t>(sorted_.empty() ? place : sorted_[static_cast<std::size_t>(place)]);
    }

    [[nodiscard]] QString ColumnText(const FileRow& row, Column column) const;
    void Sort();

    std::vector<FileRow> rows_;
    std::vector<int> sorted_; ///< place shown to stored row; empty when unsorted
    std::array<Order, ColumnCount> orders_{};
    qsizetype keyLength_ = 0;
    QString folderType_;
};
