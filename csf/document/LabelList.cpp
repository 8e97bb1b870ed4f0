// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/document/LabelList.h"

#include "core/mTraduction.h"

#include <QStringMatcher>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {
constexpr int nameWidth = 2500 / 15; // twips at 96 dots an inch

bool Contains(const LabelRow& row, const QStringMatcher& text, bool inValues) {
    return text.indexIn(row.Name) >= 0 || (inValues && text.indexIn(row.Value) >= 0);
}

} // namespace

void LabelList::Load(const std::vector<CsfString>& table) {
    rows_.clear();
    rows_.reserve(table.size());
    for (const CsfString& entry : table)
        rows_.push_back({.Name = entry.Name, .Value = entry.Value, .Index = Count(), .Id = ++lastId_});
    order_.Mark(Name, Order::Ascending);
    Sort();
}

void LabelList::Restore(const std::vector<CsfString>& rows, const QList<qint32>& indexes) {
    rows_.clear();
    rows_.reserve(rows.size());
    for (const CsfString& row : rows)
        rows_.push_back({.Name = row.Name,
                         .Value = row.Value,
                         .Index = indexes.value(Count(), -1),
                         .Id = ++lastId_,
                         .Extra = row.Extra,
                         .IsMore = row.IsMore});
}

void LabelList::Replace(std::vector<LabelRow> rows) {
    rows_ = std::move(rows);
    for (LabelRow& row : rows_)
        if (row.Id == 0)
            row.Id = ++lastId_;
    Sort();
}

void LabelList::Saved(const std::vector<int>& indexes) {
    for (int place = 0; place < Count(); ++place) {
        LabelRow& row = rows_[static_cast<std::size_t>(place)];
        row.Index = indexes[static_cast<std::size_t>(place)];
        row.LostLetters = false;
        row.Wished.clear();
    }
}

void LabelList::SetTexts(int place, const LabelRow& row) {
    LabelRow& here = rows_[static_cast<std::size_t>(place)];
    here.Name = row.Name;
    here.Value = row.Value;
    here.LostLetters = row.LostLetters;
    here.Wished = row.Wished;
}

int LabelList::PlaceOf(int id) const {
    const auto found = std::ranges::find(rows_, id, &LabelRow::Id);
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int LabelList::PlaceOfName(const QString& name) const {
    const auto found = std::ranges::find(rows_, name, &LabelRow::Name);
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

QString LabelList::Key(int place) const {
    const int index = Row(place).Index;
    return index < 0 ? QString() : u'I' + QString::number(index);
}

std::vector<CsfString> LabelList::Table() const {
    std::vector<CsfString> table;
    table.reserve(rows_.size());
    for (const LabelRow& row : rows_)
        table.push_back({row.Value, row.Name, row.Extra, row.IsMore});
    return table;
}

QStringList LabelList::NamesOfLost() const {
    QStringList names;
    for (const LabelRow& row : rows_)
        if (row.LostLetters || !row.Wished.isEmpty())
            names += row.Name;
    return names;
}

QString LabelList::Text(int place, int column) const {
    return column == Name ? Row(place).Name : Row(place).Value;
}

std::vector<RowColumn> LabelList::Columns() const {
    return {{.Caption = GetText(u"Name"_s), .Pixels = nameWidth}, {.Caption = GetText(u"Value"_s)}};
}

std::vector<int> LabelList::SortBy(int column) {
    order_.Click(column);
    return Sort();
}

std::vector<int> LabelList::Sort() {
    const bool byName = OrderOf(Name) != Order::None;
    std::vector<QString> texts(rows_.size());
    std::ranges::transform(rows_, texts.begin(), byName ? &LabelRow::Name : &LabelRow::Value);
    const std::vector<int> sorted = order_.Sort(std::move(texts));
    Reorder(rows_, sorted);
    return PlacesOf(sorted);
}

int LabelList::Find(const QString& text, int from, bool inValues) const {
    const QStringMatcher matcher(text, Qt::CaseInsensitive);
    for (int place = from; place < Count(); ++place) {
        if (Contains(Row(place), matcher, inValues))
            return place;
    }
    return -1;
}

int LabelList::Matches(const QString& text, bool inValues) const {
    const QStringMatcher matcher(text, Qt::CaseInsensitive);
    return static_cast<int>(
        std::ranges::count_if(rows_, [&](const LabelRow& row) { return Contains(row, matcher, inValues); }));
}
