// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a list shows, as its model and view ask for it: rows by their place, from 0 on in the order shown.
#pragma once

#include <QString>

#include <vector>

enum class SortOrder { None, Ascending, Descending };

/// Text sorts without regard to case. Numbers stand at the right.
enum class SortKind { Text, Number };

struct RowColumn {
    QString Caption;
    SortKind Sort = SortKind::Text;
    double Fraction = 0; ///< of the list's width
    int Pixels = 0;      ///< the width where there is no fraction; the last column takes what the others leave
};

/// A change of the rows, told before and behind it.
enum class RowChange {
    Reset,  ///< all rows are others
    Insert, ///< one row comes in at the place
    Remove, ///< the row at the place goes
    Sort,   ///< the same rows in another order
};

class RowSource {
public:
    virtual ~RowSource() = default;

    [[nodiscard]] virtual std::vector<RowColumn> Columns() const = 0;
    [[nodiscard]] virtual int Count() const = 0;
    [[nodiscard]] virtual QString Text(int place, int column) const = 0;

    /// Names the row whatever its place and texts.
    [[nodiscard]] virtual QString Key(int place) const = 0;

    [[nodiscard]] virtual QString Tip(int place) const { return Text(place, 0); }

    [[nodiscard]] virtual SortOrder OrderOf(int column) const = 0;

    /// A click on a column's header, see RowOrder. Returns the new place of each row by its old one.
    virtual std::vector<int> SortBy(int column) = 0;

    /// Whether the text of a row can be edited where it stands.
    [[nodiscard]] virtual bool CanEdit() const { return false; }

    /// Whether the end of an edit with that text is to be told.
    [[nodiscard]] virtual bool TakesEdit(int place, const QString& text) const { return text != Text(place, 0); }

    /// Whether the rows have check marks.
    [[nodiscard]] virtual bool HasChecks() const { return false; }

    [[nodiscard]] virtual bool IsChecked(int /*place*/) const { return false; }

    virtual void SetChecked(int /*place*/, bool /*checked*/) {}

protected:
    RowSource() = default;
    RowSource(const RowSource&) = default;
    RowSource& operator=(const RowSource&) = default;
    RowSource(RowSource&&) = default;
    RowSource& operator=(RowSource&&) = default;
};
