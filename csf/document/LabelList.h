// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The rows of the CSF Editor's list as plain data: name and value, in the order shown.
#pragma once

#include "core/rows/RowOrder.h"
#include "core/rows/RowSource.h"
#include "csf/format/CsfTable.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

struct LabelRow {
    QString Name;             ///< the row's text
    QString Value;            ///< sub-item 1 and the row's tip; line breaks are line feeds
    int Index = -1;           ///< in the table as it was read or saved last; -1 for a row that was added since
    bool LostLetters = false; ///< a name that was typed had letters that the file lacks; not saved since
    QString Wished{};         ///< the value with the letters that the file lacks; empty where it lacks none
    int Id = 0;               ///< the list's own, whatever place and texts

    /// As CsfString has them; only in a list of whole rows.
    std::optional<QByteArray> Extra{};
    bool IsMore = false;

    bool operator==(const LabelRow&) const = default;
};

class LabelList final : public RowSource {
public:
    enum Column { Name, Value };

    static constexpr int ColumnCount = 2;

    using Order = SortOrder;

    /// Takes the table's entries as rows, sorted by name upwards.
    void Load(const std::vector<CsfString>& table);

    /// Takes rows in the order that they are to stand in. `indexes` are those in the table; rows beyond have none.
    void Restore(const std::vector<CsfString>& rows, const QList<qint32>& indexes = {});

    /// Takes rows in place of all; they come into the order that is marked. Those without an Id get one.
    void Replace(std::vector<LabelRow> rows);

    void Clear() { rows_.clear(); }

    [[nodiscard]] const std::vector<LabelRow>& Rows() const { return rows_; }

    /// The rows are saved: each has its number in the table from now on, and what was lost is done with.
    void Saved(const std::vector<int>& indexes);

    /// The place of the row with that Id; -1 when there is none.
    [[nodiscard]] int PlaceOf(int id) const;

    [[nodiscard]] std::vector<RowColumn> Columns() const override;

    [[nodiscard]] int Count() const override { return static_cast<int>(rows_.size()); }

    [[nodiscard]] bool Has(int place) const { return place >= 0 && place < Count(); }

    /// The row at a place from 0 to Count() - 1.
    [[nodiscard]] const LabelRow& Row(int place) const { return rows_[static_cast<std::size_t>(place)]; }

    /// The first row of that name; -1 when there is none.
    [[nodiscard]] int PlaceOfName(const QString& name) const;

    /// "I" and the index in the table; empty for a row that was added since.
    [[nodiscard]] QString Key(int place) const override;

    [[nodiscard]] QString Text(int place, int column) const override;

    /// The whole value.
    [[nodiscard]] QString Tip(int place) const override { return Row(place).Value; }

    void SetName(int place, const QString& name) { rows_[static_cast<std::size_t>(place)].Name = name; }

    void SetValue(int place, const QString& value) { rows_[static_cast<std::size_t>(place)].Value = value; }

    void SetLostLetters(int place) { rows_[static_cast<std::size_t>(place)].LostLetters = true; }

    void SetWished(int place, const QString& value) { rows_[static_cast<std::size_t>(place)].Wished = value; }

    /// The names of the rows that lost letters.
    [[nodiscard]] QStringList NamesOfLost() const;

    /// Puts a row at the end, whatever the order.
    void Add(const QString& name, const QString& value) {
        rows_.push_back({.Name = name, .Value = value, .Id = ++lastId_});
    }

    /// Puts a row back, with its Id, at a place up to Count().
    void Insert(int place, const LabelRow& row) { rows_.insert(rows_.begin() + place, row); }

    /// Gives a row the texts of another state of it.
    void SetTexts(int place, const LabelRow& row);

    void Remove(int place) { rows_.erase(rows_.begin() + place); }

    /// The rows as a table, in the order shown.
    [[nodiscard]] std::vector<CsfString> Table() const;

    /// Equal texts stand in the order that they had.
    std::vector<int> SortBy(int column) override;

    [[nodiscard]] Order OrderOf(int column) const override { return order_.Of(column); }

    /// The first place from `from` on whose name contains the text, in any case, or its value when `inValues`; -1 when
    /// there is none.
    [[nodiscard]] int Find(const QString& text, int from, bool inValues) const;

    /// How many rows do so.
    [[nodiscard]] int Matches(const QString& text, bool inValues) const;

private:
    std::vector<int> Sort();

    std::vector<LabelRow> rows_;
    int lastId_ = 0;
    RowOrder order_{ColumnCount};
};
