// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The rows of the CSF Editor's list as plain data: name and value, in the order shown.
#pragma once

#include "core/rows/RowOrder.h"
#include "core/rows/RowSource.h"
#include "csf/format/CsfTable.h"

#include <QString>
#include <QStringList>

#include <vector>

struct LabelRow {
    QString Name;             ///< the row's text
    QString Value;            ///< sub-item 1 and the row's tip; line breaks are line feeds
    int Index = -1;           ///< in the table at load; -1 for a row that was added since
    bool LostLetters = false; ///< what was typed had letters that the file lacks; not saved since
};

class LabelList final : public RowSource {
public:
    enum Column { Name, Value };

    static constexpr int ColumnCount = 2;

    using Order = SortOrder;

    /// Takes the table's entries as rows, sorted by name upwards.
    void Load(const std::vector<CsfString>& table);

    /// Takes rows in the order that they are to stand in, none of them a table's.
    void Restore(const std::vector<CsfString>& rows);

    void Clear() { rows_.clear(); }

    [[nodiscard]] std::vector<RowColumn> Columns() const override;

    [[nodiscard]] int Count() const override { return static_cast<int>(rows_.size()); }

    [[nodiscard]] bool Has(int place) const { return place >= 0 && place < Count(); }

    /// The row at a place from 0 to Count() - 1.
    [[nodiscard]] const LabelRow& Row(int place) const { return rows_[static_cast<std::size_t>(place)]; }

    /// "I" and the index in the table at load; empty for a row that was added since.
    [[nodiscard]] QString Key(int place) const override;

    [[nodiscard]] QString Text(int place, int column) const override;

    /// The whole value.
    [[nodiscard]] QString Tip(int place) const override { return Row(place).Value; }

    void SetName(int place, const QString& name) { rows_[static_cast<std::size_t>(place)].Name = name; }

    void SetValue(int place, const QString& value) { rows_[static_cast<std::size_t>(place)].Value = value; }

    void SetLostLetters(int place) { rows_[static_cast<std::size_t>(place)].LostLetters = true; }

    /// The names of the rows that lost letters.
    [[nodiscard]] QStringList NamesOfLost() const;

    /// What was lost is saved.
    void ForgetLost();

    /// Puts a row at the end, whatever the order.
    void Add(const QString& name, const QString& value) { rows_.push_back({name, value}); }

    void Remove(int place) { rows_.erase(rows_.begin() + place); }

    /// The rows as a table, in the order shown.
    [[nodiscard]] std::vector<CsfString> Table() const;

    /// Equal texts stand in the order that they had.
    std::vector<int> SortBy(int column) override;

    [[nodiscard]] Order OrderOf(int column) const override { return order_.Of(column); }

    /// The first place from `from` on whose name contains the text, in any case; -1 when there is none.
    [[nodiscard]] int Find(const QString& text, int from) const;

    /// How many names contain the text, in any case.
    [[nodiscard]] int Matches(const QString& text) const;

private:
    std::vector<int> Sort();

    std::vector<LabelRow> rows_;
    RowOrder order_{ColumnCount};
};
