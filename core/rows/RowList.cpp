// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rows/RowList.h"

#include <algorithm>
#include <utility>

RowList::RowList(std::vector<RowColumn> columns, Checks checks, Edits edits)
    : columns_(std::move(columns)),
      checks_(checks),
      edits_(edits),
      order_(static_cast<int>(columns_.size())) {}

void RowList::Clear() {
    rows_.clear();
    order_.Clear();
}

int RowList::Add(ListRow row) {
    rows_.push_back(std::move(row));
    return Count() - 1;
}

void RowList::Remove(int place) {
    rows_.erase(rows_.begin() + place);
}

void RowList::SetText(int place, const QString& text) {
    At(place).Text = text;
}

void RowList::SetSubItem(int place, int column, const QString& text) {
    QStringList& texts = At(place).SubItems;
    if (texts.size() < column) {
        texts.reserve(static_cast<qsizetype>(columns_.size()) - 1); // those of a row come one after the other
        texts.resize(column);
    }
    texts[column - 1] = text;
}

void RowList::SetKey(int place, const QString& key) {
    At(place).Key = key;
}

void RowList::SetTag(int place, const QString& tag) {
    At(place).Tag = tag;
}

void RowList::SetChecked(int place, bool checked) {
    At(place).Checked = checked;
}

void RowList::CheckAll(bool checked) {
    for (ListRow& row : rows_)
        row.Checked = checked;
}

std::vector<int> RowList::Checked() const {
    std::vector<int> places;
    for (int place = 0; place < Count(); ++place)
        if (IsChecked(place))
            places.push_back(place);
    return places;
}

int RowList::Find(const QString& key) const {
    const auto found = std::ranges::find(rows_, key, &ListRow::Key);
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

QString RowList::Text(int place, int column) const {
    const ListRow& row = Row(place);
    return column == 0 ? row.Text : row.SubItems.value(column - 1);
}

std::vector<int> RowList::SortBy(int column) {
    order_.Click(column);
    std::vector<QString> texts;
    texts.reserve(rows_.size());
    for (int place = 0; place < Count(); ++place)
        texts.push_back(Text(place, column));
    std::vector<int> sorted;
    if (columns_.at(static_cast<std::size_t>(column)).Sort == SortKind::Number) {
        std::vector<qint64> numbers(texts.size());
        std::ranges::transform(texts, numbers.begin(), [](const QString& text) { return text.toLongLong(); });
        sorted = order_.Sort(numbers);
    } else {
        sorted = order_.Sort(std::move(texts));
    }
    Reorder(rows_, sorted);
    return PlacesOf(sorted);
}

bool RowList::TakesEdit(int place, const QString& text) const {
    return !text.isEmpty() && text != Text(place, 0);
}
