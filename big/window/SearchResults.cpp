// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/SearchResults.h"

#include <algorithm>

void SearchResults::Clear() {
    beginResetModel();
    rows_.clear();
    endResetModel();
}

void SearchResults::Add(const Row& row) {
    const auto place = std::ranges::lower_bound(rows_, row.Index, {}, &Row::Index);
    if (place != rows_.end() && place->Index == row.Index)
        return;
    const auto at = static_cast<int>(place - rows_.begin());
    beginInsertRows({}, at, at);
    rows_.insert(place, row);
    endInsertRows();
}

int SearchResults::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant SearchResults::data(const QModelIndex& index, int role) const {
    return role == Qt::DisplayRole && checkIndex(index, CheckIndexOption::IndexIsValid) ? At(index.row()).Name
                                                                                        : QVariant();
}
