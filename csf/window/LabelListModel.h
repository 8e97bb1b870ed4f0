// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The rows of the CSF Editor as an item model: names and values.
#pragma once

#include "csf/document/CsfEditor.h"

#include <QAbstractTableModel>
#include <QStringList>

class LabelListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    /// The editor outlives the model.
    explicit LabelListModel(const CsfEditor& editor, QObject* parent = nullptr);

    /// Around each change of the rows, as the document tells it.
    void Begin(LabelChange change, int place);
    void End(LabelChange change);

    void RowChanged(int place);

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void MovePersistentRows();

    const CsfEditor& editor_;
    QStringList captions_;
};
