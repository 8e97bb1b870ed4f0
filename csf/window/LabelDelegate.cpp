// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/window/LabelDelegate.h"

#include "csf/document/LabelList.h"

#include <QStyle>
#include <QWidget>

namespace {
constexpr QSize icon{16, 16};
} // namespace

QSize LabelDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.features |= QStyleOptionViewItem::HasDecoration;
    row.decorationSize = icon;
    return row.widget->style()->sizeFromContents(QStyle::CT_ItemViewItem, &row, {}, row.widget);
}

void LabelDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() == LabelList::Name)
        option->textElideMode = Qt::ElideMiddle;
}
