// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/window/KindListModel.h"

KindListModel::KindListModel(RowSource& rows, QIcon picture, QObject* parent)
    : RowListModel(rows, parent),
      picture_(std::move(picture)) {}

QVariant KindListModel::Look(int /*place*/, int column, int role) const {
    if (role == Qt::DecorationRole && column == 0 && !picture_.isNull())
        return picture_;
    return {};
}
