// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/FolderTreeModel.h"

FolderTreeModel::FolderTreeModel(const FolderTree& tree, QObject* parent)
    : QAbstractItemModel(parent),
      tree_(tree),
      archiveIcon_(BigIcons::Of(FolderImage::Archive, FolderImage::Archive)),
      folderIcon_(BigIcons::Of(FolderImage::Closed, FolderImage::Open)) {}

void FolderTreeModel::Reset() {
    beginResetModel();
    endResetModel();
}

void FolderTreeModel::RootTextChanged() {
    const QModelIndex root = IndexOf(FolderTree::Root);
    Q_EMIT dataChanged(root, root, {Qt::DisplayRole});
}

QModelIndex FolderTreeModel::IndexOf(int node) const {
    return tree_.Has(node) ? createIndex(tree_.Node(node).Row, 0, static_cast<quintptr>(node)) : QModelIndex();
}

int FolderTreeModel::NodeOf(const QModelIndex& index) {
    return index.isValid() ? static_cast<int>(index.internalId()) : FolderTree::None;
}

QModelIndex FolderTreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    if (!parent.isValid())
        return IndexOf(FolderTree::Root);
    return IndexOf(tree_.Node(NodeOf(parent)).Children[static_cast<std::size_t>(row)]);
}

QModelIndex FolderTreeModel::parent(const QModelIndex& index) const {
    return tree_.Has(NodeOf(index)) ? IndexOf(tree_.Node(NodeOf(index)).Parent) : QModelIndex();
}

int FolderTreeModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid())
        return tree_.Has(FolderTree::Root) ? 1 : 0;
    return static_cast<int>(tree_.Node(NodeOf(parent)).Children.size());
}

int FolderTreeModel::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

QVariant FolderTreeModel::data(const QModelIndex& index, int role) const {
    if (!tree_.Has(NodeOf(index)))
        return {};
    const FolderNode& node = tree_.Node(NodeOf(index));
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return node.Text;
    if (role == Qt::DecorationRole)
        return node.Parent == FolderTree::None ? archiveIcon_ : systemIcons_ ? icons_.Folder(true) : folderIcon_;
    return {};
}

Qt::ItemFlags FolderTreeModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags node = QAbstractItemModel::flags(index);
    const int number = NodeOf(index);
    return number == FolderTree::None || number == FolderTree::Root ? node : node | Qt::ItemIsEditable;
}

bool FolderTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || value.toString() == data(index, Qt::EditRole).toString())
        return false;
    Q_EMIT RenameWanted(NodeOf(index), value.toString());
    return true;
}
