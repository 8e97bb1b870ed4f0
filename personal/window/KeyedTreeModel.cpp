// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/window/KeyedTreeModel.h"

#include "ui/list/RowListModel.h"

#include <algorithm>

void KeyedTreeModel::Reset(std::vector<KeyedNode> nodes) {
    beginResetModel();
    places_.clear();
    roots_.clear();
    for (KeyedNode& node : nodes) {
        const int parent = node.Parent.isEmpty() ? none : PlaceOf(node.Parent);
        if (parent == none && !node.Parent.isEmpty())
            continue;
        const int place = static_cast<int>(places_.size());
        std::vector<int>& siblings = parent == none ? roots_ : places_[static_cast<std::size_t>(parent)].Children;
        siblings.push_back(place);
        const int row = static_cast<int>(siblings.size()) - 1;
        places_.push_back({.Node = std::move(node), .Parent = parent, .Row = row});
    }
    endResetModel();
}

int KeyedTreeModel::PlaceOf(const QString& key) const {
    const auto found = std::ranges::find(places_, key, [](const Place& place) { return place.Node.Key; });
    return found == places_.end() ? none : static_cast<int>(found - places_.begin());
}

QModelIndex KeyedTreeModel::IndexAt(int place) const {
    if (place == none)
        return {};
    return createIndex(places_[static_cast<std::size_t>(place)].Row, 0, static_cast<quintptr>(place));
}

QModelIndex KeyedTreeModel::IndexOf(const QString& key) const {
    return IndexAt(PlaceOf(key));
}

QString KeyedTreeModel::KeyOf(const QModelIndex& index) const {
    return index.isValid() ? places_.at(index.internalId()).Node.Key : QString();
}

const std::vector<int>& KeyedTreeModel::ChildrenOf(const QModelIndex& index) const {
    return index.isValid() ? places_.at(index.internalId()).Children : roots_;
}

QModelIndex KeyedTreeModel::index(int row, int column, const QModelIndex& parent) const {
    return hasIndex(row, column, parent) ? IndexAt(ChildrenOf(parent)[static_cast<std::size_t>(row)]) : QModelIndex();
}

QModelIndex KeyedTreeModel::parent(const QModelIndex& index) const {
    return index.isValid() ? IndexAt(places_.at(index.internalId()).Parent) : QModelIndex();
}

int KeyedTreeModel::rowCount(const QModelIndex& parent) const {
    return static_cast<int>(ChildrenOf(parent).size());
}

int KeyedTreeModel::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

QVariant KeyedTreeModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const KeyedNode& node = places_.at(index.internalId()).Node;
    if (role == Qt::DisplayRole)
        return node.Text;
    if (role == Qt::ToolTipRole)
        return RowListModel::PlainTip(node.Text);
    if (role == Qt::DecorationRole && !node.Picture.isNull())
        return node.Picture;
    return {};
}
