// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The file list as an item model: names, types and sizes of one folder.
#pragma once

#include "big/document/FileList.h"
#include "big/window/BigIcons.h"

#include <QAbstractTableModel>
#include <QStringList>

class FileListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    /// The list outlives the model.
    explicit FileListModel(FileList& list, QObject* parent = nullptr);

    /// Takes the list as it is now, with system icons or without. To be called after each change of its rows.
    void Reset(bool systemIcons);

    /// The texts of a row are others.
    void RowChanged(int row);

    /// A click on a header; rows keep their selection.
    void SortBy(int column);

    [[nodiscard]] const FileList& List() const { return list_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// The names of rows can be edited: tells RenameWanted, and takes nothing by itself.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// The end of the edit of a row's name, with the text as typed.
    void RenameWanted(int place, const QString& text);

private:
    [[nodiscard]] QString Text(const QModelIndex& index) const;
    [[nodiscard]] QIcon Icon(int row) const;

    FileList& list_;
    QStringList captions_;
    BigIcons icons_;
    bool systemIcons_ = false;
};
