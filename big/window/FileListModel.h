// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The file list as an item model: names, types and sizes of one folder, with their icons.
#pragma once

#include "big/document/FileList.h"
#include "big/window/BigIcons.h"
#include "ui/list/RowListModel.h"

class FileListModel : public RowListModel {
    Q_OBJECT
public:
    /// The list outlives the model.
    explicit FileListModel(FileList& list, QObject* parent = nullptr);

    /// Takes the list as it is now, with system icons or without. To be called after each change of its rows.
    void Reset(bool systemIcons);

    [[nodiscard]] const FileList& List() const { return list_; }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

protected:
    /// Entries that are not in the archive on disk yet are blue.
    [[nodiscard]] QVariant Look(int place, int column, int role) const override;

private:
    [[nodiscard]] QIcon Icon(int place) const;

    FileList& list_;
    BigIcons icons_;
    bool systemIcons_ = false;
};
