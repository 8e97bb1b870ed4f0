// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/FileListModel.h"

#include "core/mTraduction.h"

#include <QColor>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {
constexpr QColor newEntry{0, 0, 255};
} // namespace

FileListModel::FileListModel(FileList& list, QObject* parent)
    : QAbstractTableModel(parent),
      list_(list),
      captions_{GetText(u"FileName"_s), GetText(u"FileType"_s), GetText(u"Size"_s)} {}

void FileListModel::Reset(bool systemIcons) {
    beginResetModel();
    systemIcons_ = systemIcons;
    endResetModel();
}

void FileListModel::RowChanged(int row) {
    if (row < list_.Count())
        Q_EMIT dataChanged(index(row, 0), index(row, FileList::ColumnCount - 1));
}

void FileListModel::SortBy(int column) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> rows;
    for (const QModelIndex& index : before)
        rows.push_back(list_.UnsortedPlace(index.row()));
    list_.SortBy(static_cast<FileList::Column>(column));
    const std::vector<int> places = list_.PlacesByUnsorted();
    QModelIndexList after;
    for (qsizetype at = 0; at < before.size(); ++at)
        after += index(places[static_cast<std::size_t>(rows[static_cast<std::size_t>(at)])], before[at].column());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

int FileListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : list_.Count();
}

int FileListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : FileList::ColumnCount;
}

QVariant FileListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return Text(index);
    case Qt::ToolTipRole:
        return list_.Text(index.row());
    case Qt::DecorationRole:
        return index.column() == FileList::Filename ? QVariant(Icon(index.row())) : QVariant();
    case Qt::ForegroundRole:
        return list_.Row(index.row()).IsNew ? QVariant(newEntry) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == FileList::Size ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
        return {};
    }
}

Qt::ItemFlags FileListModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags row =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    return index.column() == FileList::Filename ? row | Qt::ItemIsEditable : row;
}

bool FileListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || index.column() != FileList::Filename || value.toString() == Text(index))
        return false;
    Q_EMIT RenameWanted(index.row(), value.toString());
    return true;
}

QString FileListModel::Text(const QModelIndex& index) const {
    switch (index.column()) {
    case FileList::Filename:
        return list_.Text(index.row());
    case FileList::Filetype:
        return list_.Type(index.row());
    default:
        return list_.SizeText(index.row());
    }
}

QIcon FileListModel::Icon(int row) const {
    if (list_.Row(row).IsFolder)
        return icons_.Folder(systemIcons_);
    return systemIcons_ ? icons_.ByType(list_.Text(row)) : icons_.File();
}

QVariant FileListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= captions_.size())
        return {};
    if (role == Qt::DisplayRole)
        return captions_[section];
    if (role == Qt::TextAlignmentRole && section == FileList::Size)
        return {Qt::AlignRight | Qt::AlignVCenter};
    return {};
}
