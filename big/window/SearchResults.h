// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The entries that a search has found as an item model, in the archive's order.
#pragma once

#include <QAbstractListModel>
#include <QString>

#include <vector>

class SearchResults : public QAbstractListModel {
    Q_OBJECT
public:
    struct Row {
        int Index; ///< in the table that was searched
        QString Name;
    };

    using QAbstractListModel::QAbstractListModel;

    void Clear();

    /// Adds an entry in its place, unless it is there.
    void Add(const Row& row);

    [[nodiscard]] const Row& At(int place) const { return rows_[static_cast<std::size_t>(place)]; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<Row> rows_;
};
