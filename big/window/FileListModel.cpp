// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/FileListModel.h"

#include <QColor>

namespace {
constexpr QColor newEntry{0, 0, 255};
} // namespace

FileListModel::FileListModel(FileList& list, QObject* parent) : RowListModel(list, parent), list_(list) {}

void FileListModel::Reset(bool systemIcons) {
    Begin(RowChange::Reset);
    systemIcons_ = systemIcons;
    End(RowChange::Reset);
}

Qt::ItemFlags FileListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = RowListModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QVariant FileListModel::Look(int place, int column, int role) const {
    if (role == Qt::DecorationRole && column == FileList::Filename)
        return Icon(place);
    if (role == Qt::ForegroundRole && list_.Row(place).IsNew)
        return newEntry;
    return {};
}

QIcon FileListModel::Icon(int place) const {
    if (list_.Row(place).IsFolder)
        return icons_.Folder(systemIcons_);
    return systemIcons_ ? icons_.ByType(list_.Text(place)) : icons_.File();
}
