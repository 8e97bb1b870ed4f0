// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A list that keeps its rows itself: texts, a key, a tag, and a check mark where the list has such.
#pragma once

#include "core/rows/RowOrder.h"
#include "core/rows/RowSource.h"

#include <QString>
#include <QStringList>

#include <vector>

struct ListRow {
    QString Text;
    QStringList SubItems{}; ///< of the columns from 1 on; what is missing is empty
    QString Key{};
    QString Tag{}; ///< what the list's owner keeps with the row
    bool Checked = false;
};

class RowList final : public RowSource {
public:
    enum class Checks { No, Yes };
    enum class Edits { No, Yes };

    explicit RowList(std::vector<RowColumn> columns, Checks checks = Checks::No, Edits edits = Edits::No);

    /// Takes all rows and marks of order away.
    void Clear();

    /// Puts a row at the end, whatever the order. Returns its place.
    int Add(ListRow row);

    /// Makes room for that many rows in all, so that they need not move as others come in.
    void Reserve(int count) { rows_.reserve(static_cast<std::size_t>(count)); }

    void Remove(int place);

    [[nodiscard]] const ListRow& Row(int place) const { return rows_.at(static_cast<std::size_t>(place)); }

    void SetText(int place, const QString& text);
    /// A text of the columns from 1 on.
    void SetSubItem(int place, int column, const QString& text);
    void SetKey(int place, const QString& key);
    void SetTag(int place, const QString& tag);

    /// Marks all rows, or none.
    void CheckAll(bool checked);

    /// The places of the rows with a check mark, in the order shown.
    [[nodiscard]] std::vector<int> Checked() const;

    /// -1 when no row has the key.
    [[nodiscard]] int Find(const QString& key) const;

    [[nodiscard]] std::vector<RowColumn> Columns() const override { return columns_; }

    [[nodiscard]] int Count() const override { return static_cast<int>(rows_.size()); }

    [[nodiscard]] QString Text(int place, int column) const override;

    [[nodiscard]] QString Key(int place) const override { return Row(place).Key; }

    [[nodiscard]] SortOrder OrderOf(int column) const override { return order_.Of(column); }

    /// A column of numbers takes a text that is none for 0.
    std::vector<int> SortBy(int column) override;

    [[nodiscard]] bool CanEdit() const override { return edits_ == Edits::Yes; }

    /// A text that is neither empty nor the row's own.
    [[nodiscard]] bool TakesEdit(int place, const QString& text) const override;

    [[nodiscard]] bool HasChecks() const override { return checks_ == Checks::Yes; }

    [[nodiscard]] bool IsChecked(int place) const override { return Row(place).Checked; }

    void SetChecked(int place, bool checked) override;

private:
    [[nodiscard]] ListRow& At(int place) { return rows_.at(static_cast<std::size_t>(place)); }

    std::vector<RowColumn> columns_;
    Checks checks_;
    Edits edits_;
    std::vector<ListRow> rows_;
    RowOrder order_;
};
