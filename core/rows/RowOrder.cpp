// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rows/RowOrder.h"

#include <algorithm>
#include <numeric>

namespace {

template <typename Value>
std::vector<int> Sorted(const std::vector<Value>& values, bool descending) {
    std::vector<int> rows(values.size());
    std::iota(rows.begin(), rows.end(), 0);
    const auto valueOf = [&](int row) -> const Value& { return values[static_cast<std::size_t>(row)]; };
    std::ranges::stable_sort(rows, [&](int left, int right) {
        return descending ? valueOf(right) < valueOf(left) : valueOf(left) < valueOf(right);
    });
    return rows;
}

} // namespace

void RowOrder::Click(int column) {
    Mark(column, Of(column) == SortOrder::Ascending ? SortOrder::Descending : SortOrder::Ascending);
}

void RowOrder::Mark(int column, SortOrder order) {
    Clear();
    marks_.at(static_cast<std::size_t>(column)) = order;
}

void RowOrder::Clear() {
    std::ranges::fill(marks_, SortOrder::None);
}

std::optional<int> RowOrder::MarkedColumn() const {
    const auto marked = std::ranges::find_if(marks_, [](SortOrder mark) { return mark != SortOrder::None; });
    if (marked == marks_.end())
        return {};
    return static_cast<int>(marked - marks_.begin());
}

bool RowOrder::IsDescending() const {
    return std::ranges::find(marks_, SortOrder::Descending) != marks_.end();
}

std::vector<int> RowOrder::Sort(std::vector<QString> texts) const {
    for (QString& text : texts)
        text = text.toCaseFolded();
    return Sorted(texts, IsDescending());
}

std::vector<int> RowOrder::Sort(const std::vector<qint64>& numbers) const {
    return Sorted(numbers, IsDescending());
}

std::vector<int> PlacesOf(const std::vector<int>& numbers) {
    std::vector<int> places(numbers.size());
    for (std::size_t place = 0; place < numbers.size(); ++place)
        places[static_cast<std::size_t>(numbers[place])] = static_cast<int>(place);
    return places;
}
