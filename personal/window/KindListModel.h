// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// One of the four lists as an item model: rows with the picture of their kind.
#pragma once

#include "ui/list/RowListModel.h"

#include <QIcon>

class KindListModel : public RowListModel {
    Q_OBJECT
public:
    /// The rows outlive the model. A null picture is none.
    KindListModel(RowSource& rows, QIcon picture, QObject* parent = nullptr);

    /// The tip of a cell is its own text, which may not fit into its column.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

protected:
    [[nodiscard]] QVariant Look(int place, int column, int role) const override;

private:
    QIcon picture_;
};
