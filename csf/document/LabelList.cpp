// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/document/LabelList.h"

#include <QStringMatcher>

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

void LabelList::Load(const std::vector<CsfString>& table) {
    rows_.clear();
    rows_.reserve(table.size());
    for (const CsfString& entry : table)
        rows_.push_back({entry.Name, entry.Value, Count()});
    orders_ = {Order::Ascending, Order::None};
    Sort();
}

QString LabelList::Key(int place) const {
    const int index = Row(place).Index;
    return index < 0 ? QString() : u'I' + QString::number(index);
}

std::vector<CsfString> LabelList::Table() const {
    std::vector<CsfString> table;
    table.reserve(rows_.size());
    for (const LabelRow& row : rows_)
        table.push_back({row.Value, row.Name});
    return table;
}

std::vector<int> LabelList::SortBy(Column column) {
    const Order order = OrderOf(column) == Order::Ascending ? Order::Descending : Order::Ascending;
    orders_.fill(Order::None);
    orders_.at(column) = order;
    return Sort();
}

std::vector<int> LabelList::Sort() {
    const bool byName = OrderOf(Name) != Order::None;
    const bool descending = orders_.at(byName ? Name : Value) == Order::Descending;
    std::vector<QString> keys(rows_.size());
    std::ranges::transform(rows_, keys.begin(),
                           [&](const LabelRow& row) { return (byName ? row.Name : row.Value).toCaseFolded(); });
    const auto keyOf = [&](int row) -> const QString& { return keys[static_cast<std::size_t>(row)]; };
    std::vector<int> sorted(rows_.size());
    std::iota(sorted.begin(), sorted.end(), 0);
    std::ranges::stable_sort(sorted, [&](int left, int right) {
        return descending ? keyOf(right) < keyOf(left) : keyOf(left) < keyOf(right);
    });
    std::vector<LabelRow> rows;
    rows.reserve(rows_.size());
    std::vector<int> newPlaces(rows_.size());
    for (const int old : sorted) {
        newPlaces[static_cast<std::size_t>(old)] = static_cast<int>(rows.size());
        rows.push_back(std::move(rows_[static_cast<std::size_t>(old)]));
    }
    rows_ = std::move(rows);
    return newPlaces;
}

int LabelList::Find(const QString& text, int from) const {
    const QStringMatcher matcher(text, Qt::CaseInsensitive);
    for (int place = from; place < Count(); ++place) {
        if (matcher.indexIn(Row(place).Name) >= 0)
            return place;
    }
    return -1;
}

int LabelList::Matches(const QString& text) const {
    const QStringMatcher matcher(text, Qt::CaseInsensitive);
    return static_cast<int>(
        std::ranges::count_if(rows_, [&](const LabelRow& row) { return matcher.indexIn(row.Name) >= 0; }));
}
