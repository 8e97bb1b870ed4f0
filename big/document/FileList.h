// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The rows of the file list as plain data: the folders and files of one folder of an archive.
#pragma once

#include "big/document/FolderTree.h"
#include "big/format/mBIG.h"
#include "core/rows/RowOrder.h"
#include "core/rows/RowSource.h"

#include <QString>

#include <vector>

/// A row keeps what it shows, so that it stands on when the table is replaced.
struct FileRow {
    QString Name;          ///< a folder's node text; a file's whole name within the archive
    int Index = 0;         ///< a folder's node index; a file's index in the table
    qint32 Size = 0;       ///< bytes
    bool IsFolder = false; ///< else a file
    bool IsNew = false;    ///< the file's data is not in the archive on disk
};

class FileList final : public RowSource {
public:
    enum Column { Filename, Filetype, Size };

    static constexpr int ColumnCount = 3;

    using Order = SortOrder;

    /// Fills the list with the node's folders and the table's files that the folder key brings: the key occurs anywhere
    /// in the name, in any case, and no backslash stands beyond the character behind as many characters as the key has.
    /// `node` may be FolderTree::None. A table of a single record shows no files unless `showsOnlyEntry`. A column that
    /// has a sort mark keeps it, and the new rows come in its order; otherwise folders come first and files follow in
    /// table order.
    void ShowFolder(const FolderTree& tree, int node, const QString& folderKey, const std::vector<BigEntry>& entries,
                    const QString& folderType, bool showsOnlyEntry = false);

    void Clear();

    [[nodiscard]] std::vector<RowColumn> Columns() const override;

    [[nodiscard]] int Count() const override { return static_cast<int>(rows_.size()); }

    /// The row at a place from 0 to Count() - 1, in the order shown.
    [[nodiscard]] const FileRow& Row(int place) const { return rows_[Stored(place)]; }

    /// "DIR:" and the node index, or "BIG:" and the index in the table.
    [[nodiscard]] QString Key(int place) const override;
    /// What the list shows: for a file its name without as many leading characters as the folder key has.
    [[nodiscard]] QString Text(int place) const;
    [[nodiscard]] QString Text(int place, int column) const override;
    [[nodiscard]] int TextLength(int place) const;
    /// Shows another text in a row; a file's name within the archive is taken to end in it.
    void SetText(int place, const QString& text);
    /// The folder word, or what follows the last full stop of the whole name; the whole name when there is none.
    [[nodiscard]] QString Type(int place) const;
    /// Bytes in decimal; empty for a folder.
    [[nodiscard]] QString SizeText(int place) const;

    /// Folders and files of equal texts stand in the order that they had before any sorting.
    std::vector<int> SortBy(int column) override;

    [[nodiscard]] Order OrderOf(int column) const override { return order_.Of(column); }

    /// Files and folders can be renamed.
    [[nodiscard]] bool CanEdit() const override { return true; }

private:
    [[nodiscard]] std::size_t Stored(int place) const {
        return static_cast<std::size_t>(sorted_.empty() ? place : sorted_[static_cast<std::size_t>(place)]);
    }

    [[nodiscard]] QString ColumnText(const FileRow& row, int column) const;
    void Sort();

    std::vector<FileRow> rows_;
    std::vector<int> sorted_; ///< place shown to stored row; empty when unsorted
    RowOrder order_{ColumnCount};
    qsizetype keyLength_ = 0;
    QString folderType_;
};
