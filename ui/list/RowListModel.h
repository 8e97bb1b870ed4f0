// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The rows of a list as an item model.
#pragma once

#include "core/rows/RowSource.h"

#include <QAbstractTableModel>

#include <vector>

class RowListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    /// The rows outlive the model.
    explicit RowListModel(RowSource& rows, QObject* parent = nullptr);

    [[nodiscard]] const RowSource& Rows() const { return rows_; }

    [[nodiscard]] const std::vector<RowColumn>& Columns() const { return columns_; }

    /// Around each change of the rows that is made elsewhere. `place` counts for Insert and Remove, `newPlaces` for
    /// Sort: the new place of each row by its old one.
    void Begin(RowChange change, int place = 0);
    void End(RowChange change, const std::vector<int>& newPlaces = {});

    /// The texts or the check mark of a row are others.
    void RowChanged(int place);

    /// A click on a column's header; the selection follows its rows.
    void SortBy(int column);

    /// Marks the rows at these places, or takes their marks away.
    void Check(const std::vector<int>& places, bool checked);

    /// Marks all rows, or none.
    void CheckAll(bool checked);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// Takes check marks; the end of an edit is only told, see RenameWanted.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// A tool tip that never takes a text for markup.
    static QString PlainTip(const QString& text);

Q_SIGNALS:
    /// The end of the edit of a row's text, as typed; not for a text that the rows don't take.
    void RenameWanted(int place, const QString& text);
    /// The user changed the check mark of a row.
    void CheckChanged(int place, bool checked);

protected:
    /// What a row shows besides its texts: pictures, colours.
    [[nodiscard]] virtual QVariant Look(int place, int column, int role) const;

private:
    void MovePersistentRows(const std::vector<int>& newPlaces);

    RowSource& rows_;
    std::vector<RowColumn> columns_;
};
