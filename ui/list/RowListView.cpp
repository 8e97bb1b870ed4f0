// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/list/RowListView.h"

#include "ui/list/RowListModel.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

RowListView::RowListView(QWidget* parent) : QTreeView(parent), gestures_(new RowGestures(this)) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(false);
    connect(header(), &QHeaderView::sectionClicked, this, &RowListView::Sort);
    // The last column has no border to move: the toolkit stretches it by itself, and not at once.
    connect(header(), &QHeaderView::sectionResized, this,
            [this](int column) { userSized_ = userSized_ || (!sizing_ && column != header()->count() - 1); });
}

void RowListView::SetRows(RowListModel* model, const std::function<void(int)>& sort) {
    rows_ = model;
    sort_ = sort;
    setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &RowListView::MarkColumns);
    connect(model, &QAbstractItemModel::layoutChanged, this, &RowListView::MarkColumns);
    const QScopedValueRollback sizing(sizing_, true);
    for (int column = 0; column < model->columnCount(); ++column)
        if (const int pixels = model->Columns()[static_cast<std::size_t>(column)].Pixels; pixels > 0)
            header()->resizeSection(column, pixels);
    userSized_ = false;
    SizeColumns();
    MarkColumns();
}

void RowListView::SetHint(const Hint& hint) {
    hint_ = hint;
    setAccessibleDescription(hint.Text);
    viewport()->update();
}

std::vector<int> RowListView::UserWidths() const {
    std::vector<int> widths;
    for (int column = 0; userSized_ && column < header()->count() - 1; ++column)
        widths.push_back(header()->sectionSize(column));
    return widths;
}

void RowListView::SetUserWidths(const std::vector<int>& widths) {
    if (widths.empty() || static_cast<int>(widths.size()) != header()->count() - 1)
        return;
    for (int column = 0; column < header()->count() - 1; ++column)
        header()->resizeSection(column, widths[static_cast<std::size_t>(column)]);
    userSized_ = true;
}

void RowListView::SelectRow(int place) {
    setCurrentIndex(rows_->index(place, 0));
}

void RowListView::Sort(int column) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (sort_)
        sort_(column);
    else
        rows_->SortBy(column);
    QApplication::restoreOverrideCursor();
}

void RowListView::MarkColumns() {
    header()->setSortIndicatorShown(false);
    for (int column = 0; column < rows_->columnCount(); ++column) {
        const SortOrder order = rows_->Rows().OrderOf(column);
        if (order == SortOrder::None)
            continue;
        header()->setSortIndicatorShown(true);
        header()->setSortIndicator(column, order == SortOrder::Ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
}

void RowListView::SizeColumns() {
    if (rows_ == nullptr || userSized_)
        return;
    const QScopedValueRollback sizing(sizing_, true);
    const int last = rows_->columnCount() - 1;
    // What the toolkit stretches it from.
    header()->resizeSection(last, header()->sectionSizeHint(last));
    for (int column = 0; column < last; ++column) {
        const double fraction = rows_->Columns()[static_cast<std::size_t>(column)].Fraction;
        // A list that is too narrow for its captions scrolls.
        if (fraction > 0)
            header()->resizeSection(
                column, std::max(static_cast<int>(fraction * viewport()->width()), header()->sectionSizeHint(column)));
    }
}

void RowListView::resizeEvent(QResizeEvent* event) {
    const QScopedValueRollback sizing(sizing_, true); // the last column takes what is left
    QTreeView::resizeEvent(event);
    SizeColumns();
}

void RowListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (rows_ != nullptr && rows_->rowCount() > 0)
        return;
    QPainter painter(viewport());
    DrawHint(painter, viewport()->rect(), hint_);
}

void RowListView::startDrag(Qt::DropActions /*supportedActions*/) {
    Q_EMIT DragStarted();
}
