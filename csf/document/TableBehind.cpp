// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/document/TableBehind.h"

#include "csf/format/CsfRecords.h"
#include "platform/File.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr char16_t highestOfEightBits = 0xFF;

bool HasWideLetters(const QString& text) {
    return std::ranges::any_of(text, [](QChar letter) { return letter.unicode() > highestOfEightBits; });
}

LabelRow RowOf(const CsfString& entry, int number) {
    return {.Name = entry.Name, .Value = entry.Value, .Index = number, .Extra = entry.Extra, .IsMore = entry.IsMore};
}

/// How many units of a text its first `letters` shown ones take.
qsizetype UnitsOf(const QString& text, qsizetype letters) {
    qsizetype unit = 0;
    for (qsizetype letter = 0; letter < letters; ++letter)
        unit += unit + 1 < text.size() && text[unit].isHighSurrogate() && text[unit + 1].isLowSurrogate() ? 2 : 1;
    return std::min(unit, text.size());
}

} // namespace

TableBehind TableBehind::Read(const QByteArray& bytes) {
    TableBehind table;
    table.whole_ = CsfWhole::Read(bytes);
    table.bytes_ = bytes;
    table.strings_ = table.whole_.Table().Strings;
    if (!Ignoring([&] { table.ReadAsTold(); }))
        table.told_.clear();
    table.numbers_.resize(table.told_.size());
    return table;
}

std::optional<TableBehind> TableBehind::ReadFile(const QString& path) {
    std::optional<TableBehind> table;
    Ignoring([&] { table = Read(ReadWhole(path)); });
    return table;
}

/// Which string each one is tells where it lies.
void TableBehind::ReadAsTold() {
    const std::vector<qsizetype> offsets = whole_.StringOffsets();
    CsfRecords records(bytes_);
    do {
        const qsizetype at = records.Position();
        auto entry = records.Next();
        if (!entry)
            continue;
        const auto found = std::ranges::lower_bound(offsets, at);
        const bool isString = found != offsets.end() && *found == at;
        told_.push_back(*std::move(entry));
        numbers_.push_back(isString ? static_cast<int>(found - offsets.begin()) : -1);
    } while (!records.AtEnd());
}

int TableBehind::NumberOf(const LabelRow& told) const {
    const auto index = static_cast<std::size_t>(told.Index);
    return told.Index >= 0 && index < numbers_.size() ? numbers_[index] : -1;
}

QStringList TableBehind::LostNames(const std::vector<LabelRow>& rows) const {
    QStringList names;
    for (const LabelRow& row : rows) {
        const int number = NumberOf(row);
        if (number < 0)
            continue;
        const CsfString& told = told_[static_cast<std::size_t>(row.Index)];
        const CsfString& here = strings_[static_cast<std::size_t>(number)];
        if (here.Extra || here.IsMore || (row.Name == told.Name && here.Name != told.Name) ||
            (row.Value == told.Value && HasWideLetters(here.Value)))
            names += here.Name;
    }
    for (const LabelRow& row : HiddenRows())
        names += row.Name;
    return names + whole_.BareLabels();
}

LabelRow TableBehind::WholeRow(const LabelRow& told) const {
    const QString& value = told.Wished.isEmpty() ? told.Value : told.Wished;
    const int number = NumberOf(told);
    if (number < 0)
        return {.Name = told.Name, .Value = value, .LostLetters = told.LostLetters, .Id = told.Id};
    const CsfString& was = told_[static_cast<std::size_t>(told.Index)];
    LabelRow row = RowOf(strings_[static_cast<std::size_t>(number)], number);
    row.Id = told.Id;
    row.LostLetters = told.LostLetters;
    if (told.Name != was.Name)
        row.Name = told.Name;
    row.Value = TypedOver(row.Value, was.Value, value);
    return row;
}

bool TableBehind::IsUntouched(const LabelRow& told) const {
    if (told.Index < 0 || static_cast<std::size_t>(told.Index) >= told_.size())
        return false;
    const CsfString& was = told_[static_cast<std::size_t>(told.Index)];
    return told.Name == was.Name && told.Value == was.Value && told.Wished.isEmpty();
}

std::vector<LabelRow> TableBehind::WholeRows(const std::vector<LabelRow>& told) const {
    std::vector<LabelRow> rows = HiddenRows();
    rows.reserve(rows.size() + told.size());
    for (const LabelRow& row : told)
        if (NumberOf(row) >= 0 || !IsUntouched(row))
            rows.push_back(WholeRow(row));
    return rows;
}

std::vector<LabelRow> TableBehind::AllRows() const {
    std::vector<LabelRow> rows;
    rows.reserve(strings_.size());
    for (std::size_t number = 0; number < strings_.size(); ++number)
        rows.push_back(RowOf(strings_[number], static_cast<int>(number)));
    return rows;
}

/// The strings that 8 bits don't show.
std::vector<LabelRow> TableBehind::HiddenRows() const {
    std::vector<bool> isShown(strings_.size());
    for (const int number : numbers_)
        if (number >= 0)
            isShown[static_cast<std::size_t>(number)] = true;
    std::vector<LabelRow> rows;
    for (std::size_t number = 0; number < strings_.size(); ++number)
        if (!isShown[number])
            rows.push_back(RowOf(strings_[number], static_cast<int>(number)));
    return rows;
}

std::vector<int> TableBehind::Take(const std::vector<LabelRow>& rows, quint32 language) {
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t row) { return static_cast<unsigned>(rows[row].Index); });
    CsfTable table{static_cast<qint32>(language), {}};
    std::vector<int> origins;
    std::vector<int> numbers(rows.size());
    for (const std::size_t place : order) {
        const LabelRow& row = rows[place];
        numbers[place] = static_cast<int>(table.Strings.size());
        table.Strings.push_back({row.Value, row.Name, row.Extra, row.IsMore});
        origins.push_back(row.Index);
    }
    whole_.Take(table, origins);
    bytes_ = whole_.Bytes();
    strings_ = whole_.Table().Strings;
    told_.clear();
    numbers_.clear();
    return numbers;
}

QString TypedOver(const QString& behind, const QString& shown, const QString& typed) {
    const auto fromBegin = std::ranges::mismatch(shown, typed);
    const qsizetype begin = fromBegin.in1 - shown.begin();
    qsizetype end = 0;
    while (end < std::min(shown.size(), typed.size()) - begin &&
           shown[shown.size() - 1 - end] == typed[typed.size() - 1 - end])
        ++end;
    const bool isUnitByUnit = behind.size() == shown.size();
    const auto units = [&](qsizetype letters) { return isUnitByUnit ? letters : UnitsOf(behind, letters); };
    return behind.first(units(begin)) + typed.sliced(begin, typed.size() - begin - end) +
           behind.sliced(units(shown.size() - end));
}
