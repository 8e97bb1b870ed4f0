// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/list/RowGestures.h"

#include "ui/list/RowListModel.h"
#include "ui/skin/EnterKey.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace {

bool IsModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr;
}

} // namespace

RowGestures::RowGestures(QAbstractItemView* view) : QObject(view), view_(view) {
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    connect(view, &QWidget::customContextMenuRequested, this, &RowGestures::ShowMenu);
    connect(view, &QAbstractItemView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT RowClicked(index.row()); });
    connect(view, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT RowActivated(index.row()); });
}

std::vector<int> RowGestures::SelectedRows() const {
    std::vector<int> places;
    for (const QModelIndex& index : view_->selectionModel()->selectedRows())
        places.push_back(index.row());
    std::ranges::sort(places);
    return places;
}

// The keys of a text that is being edited inside the view come by the view too.
bool RowGestures::IsEditing() const {
    const QWidget* const focus = QApplication::focusWidget();
    return focus != nullptr && focus != view_ && view_->isAncestorOf(focus);
}

// A row under the pointer becomes the only selected one.
void RowGestures::ShowMenu(QPoint place) {
    const QModelIndex row = view_->indexAt(place);
    if (row.isValid())
        view_->selectionModel()->setCurrentIndex(row.siblingAtColumn(0),
                                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    Q_EMIT MenuWanted(row.row(), view_->viewport()->mapToGlobal(place));
}

// False without a current row in sight: then the menu is asked for where the toolkit thinks best.
bool RowGestures::ShowMenuOfCurrent() {
    QItemSelectionModel* const selection = view_->selectionModel();
    const QModelIndex row = selection == nullptr ? QModelIndex() : selection->currentIndex();
    const QRect place = view_->visualRect(row).intersected(view_->viewport()->rect());
    if (!row.isValid() || place.isEmpty() || IsEditing())
        return false;
    if (!selection->isSelected(row))
        selection->select(row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    Q_EMIT MenuWanted(row.row(), view_->viewport()->mapToGlobal(place.center()));
    return true;
}

// All selected rows get the mark that the current one has not.
bool RowGestures::ToggleChecks() {
    auto* const model = qobject_cast<RowListModel*>(view_->model());
    if (model == nullptr || !model->Rows().HasChecks())
        return false;
    const int current = view_->currentIndex().row();
    std::vector<int> places = SelectedRows();
    if (std::ranges::find(places, current) == places.end())
        places = {current};
    model->Check(places, !model->Rows().IsChecked(current));
    return true;
}

bool RowGestures::KeyEvent(const QKeyEvent& event) {
    const QItemSelectionModel* const selection = view_->selectionModel();
    const QModelIndex row = selection == nullptr ? QModelIndex() : selection->currentIndex();
    const int key = event.key();
    const bool press = event.type() == QEvent::KeyPress;
    const bool wasDown = pressed_.remove(key);
    if (press && !IsEditing())
        pressed_.insert(key);
    if (!row.isValid() || IsEditing())
        return false;
    if (press && Skin::IsEnter(key)) {
        // A key that is held down opens a file once.
        if (!event.isAutoRepeat())
            Q_EMIT RowActivated(row.row());
        return true;
    }
    if (press && key == Qt::Key_Space && event.modifiers() == Qt::NoModifier && ToggleChecks())
        return true;
    // A key has moved the selection by the time it is let go of.
    if (wasDown && !press && !Skin::IsEnter(key) && key != Qt::Key_Delete && !IsModifier(key) &&
        selection->isSelected(row))
        Q_EMIT RowClicked(row.row());
    return false;
}

bool RowGestures::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return KeyEvent(*static_cast<QKeyEvent*>(event));
    case QEvent::ContextMenu:
        return watched == view_ && static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard &&
               ShowMenuOfCurrent();
    case QEvent::FocusIn:
        if (const auto reason = static_cast<QFocusEvent*>(event)->reason();
            watched == view_ && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason))
            Q_EMIT Entered();
        return false;
    case QEvent::MouseButtonPress:
        drawing_ = watched == view_->viewport() &&
                   !view_->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint()).isValid();
        if (drawing_)
            Q_EMIT Entered();
        return false;
    case QEvent::MouseButtonRelease:
        if (std::exchange(drawing_, false))
            Q_EMIT FrameDrawn();
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}
