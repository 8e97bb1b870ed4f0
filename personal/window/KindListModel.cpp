// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/window/KindListModel.h"

KindListModel::KindListModel(RowSource& rows, QIcon picture, QObject* parent)
    : RowListModel(rows, parent),
      picture_(std::move(picture)) {}

QVariant KindListModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::ToolTipRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return RowListModel::data(index, role);
    return PlainTip(Rows().Text(index.row(), index.column()));
}

QVariant KindListModel::Look(int /*place*/, int column, int role) const {
    if (role == Qt::DecorationRole && column == 0 && !picture_.isNull())
        return picture_;
    return {};
}
