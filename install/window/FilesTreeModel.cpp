// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/window/FilesTreeModel.h"

#include "ui/list/RowListModel.h"
#include "ui/look/DrawnIcon.h"

#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

FilesTreeModel::FilesTreeModel(QObject* parent)
    : QAbstractItemModel(parent),
      pictures_{DrawnIcon::Named(u"folder"_s), DrawnIcon::Named(u"folder-open"_s), DrawnIcon::Named(u"file"_s)} {}

void FilesTreeModel::SetTree(FilesTree* tree) {
    beginResetModel();
    tree_ = tree;
    groups_.clear();
    open_.clear();
    const std::size_t count = tree == nullptr ? 0 : tree->Nodes().size();
    for (std::size_t place = 0; place < count; ++place) {
        if (!tree->Nodes()[place].IsGroup())
            continue;
        groups_.push_back(static_cast<int>(place));
        open_.push_back(tree->Nodes()[place].Open);
    }
    endResetModel();
}

const FilesNode& FilesTreeModel::Node(const QModelIndex& index) const {
    return tree_->Nodes().at(index.internalId());
}

QModelIndex FilesTreeModel::IndexAt(int place) const {
    if (place < 0)
        return {};
    return createIndex(tree_->Nodes().at(static_cast<std::size_t>(place)).Row, 0, static_cast<quintptr>(place));
}

QString FilesTreeModel::KeyOf(const QModelIndex& index) const {
    return index.isValid() ? Node(index).Key : QString();
}

QModelIndex FilesTreeModel::IndexOf(const QString& key) const {
    return tree_ == nullptr ? QModelIndex() : IndexAt(tree_->PlaceOf(key));
}

void FilesTreeModel::SetOpen(const QModelIndex& index, bool open) {
    if (!index.isValid() || !Node(index).IsGroup())
        return;
    open_.at(static_cast<std::size_t>(index.row())) = open;
    Q_EMIT dataChanged(index, index, {Qt::DecorationRole});
}

QModelIndex FilesTreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    const std::vector<int>& places = parent.isValid() ? Node(parent).Children : groups_;
    return IndexAt(places[static_cast<std::size_t>(row)]);
}

QModelIndex FilesTreeModel::parent(const QModelIndex& index) const {
    return index.isValid() ? IndexOf(Node(index).Parent) : QModelIndex();
}

int FilesTreeModel::rowCount(const QModelIndex& parent) const {
    return static_cast<int>(parent.isValid() ? Node(parent).Children.size() : groups_.size());
}

int FilesTreeModel::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

Qt::ItemFlags FilesTreeModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.isValid() && Node(index).HasCheckBox ? flags | Qt::ItemIsUserCheckable : flags;
}

const QIcon& FilesTreeModel::Picture(const QModelIndex& index) const {
    const FilesNode& node = Node(index);
    const bool isOpen = node.IsGroup() && node.OpenImage != 0 && open_.at(static_cast<std::size_t>(index.row()));
    return pictures_.at(static_cast<std::size_t>((isOpen ? node.OpenImage : node.Image) - 1));
}

QVariant FilesTreeModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FilesNode& node = Node(index);
    switch (role) {
    case Qt::DisplayRole:
        return node.Text;
    case Qt::ToolTipRole:
        return RowListModel::PlainTip(node.Reason.isEmpty() ? node.Text : node.Text + u"\n"_s + node.Reason);
    case Qt::DecorationRole:
        return Picture(index);
    case Qt::CheckStateRole:
        return node.HasCheckBox ? QVariant(node.Checked ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::ForegroundRole:
        return node.Greyed ? QVariant(QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text))
                           : QVariant();
    case Qt::AccessibleDescriptionRole:
        return node.Reason;
    default:
        return {};
    }
}

bool FilesTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid) || !Node(index).HasCheckBox)
        return false;
    tree_->Tick(Node(index).Key, value.toInt() == Qt::Checked);
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    if (const int files = rowCount(index); files > 0)
        Q_EMIT dataChanged(this->index(0, 0, index), this->index(files - 1, 0, index), {Qt::CheckStateRole});
    return true;
}
