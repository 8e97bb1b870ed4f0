// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The sort marks of a list's columns, and the order that they bring. Equal rows keep the order that they have.
#pragma once

#include "core/rows/RowSource.h"

#include <optional>
#include <vector>

class RowOrder {
public:
    explicit RowOrder(int columns) : marks_(static_cast<std::size_t>(columns)) {}

    [[nodiscard]] SortOrder Of(int column) const { return marks_.at(static_cast<std::size_t>(column)); }

    /// A click on a column's header: from no order to ascending, then descending and ascending in turn. The other
    /// columns lose their mark.
    void Click(int column);

    /// Marks one column alone.
    void Mark(int column, SortOrder order);

    /// Takes all marks away.
    void Clear();

    [[nodiscard]] std::optional<int> MarkedColumn() const;

    /// The rows' numbers in the order of the marked column, from what each of them has in it.
    [[nodiscard]] std::vector<int> Sort(std::vector<QString> texts) const;
    [[nodiscard]] std::vector<int> Sort(const std::vector<qint64>& numbers) const;

private:
    [[nodiscard]] bool IsDescending() const;

    std::vector<SortOrder> marks_;
};

/// The place of each number in a list that holds 0 to its length - 1 once each.
std::vector<int> PlacesOf(const std::vector<int>& numbers);

/// Puts rows into the order that a sort gave.
template <typename Row>
void Reorder(std::vector<Row>& rows, const std::vector<int>& sorted) {
    std::vector<Row> moved;
    moved.reserve(rows.size());
    for (const int row : sorted)
        moved.push_back(std::move(rows[static_cast<std::size_t>(row)]));
    rows = std::move(moved);
}
