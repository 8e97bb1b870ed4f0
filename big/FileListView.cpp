// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/FileListView.h"

#include "big/FileListModel.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QListView>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int largeIcon = 32;
constexpr int smallIcon = 16;
constexpr int largeCell = 120;

/// Rows of one given size, so that no name reaches into its neighbour's cell.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
        return static_cast<const QListView*>(option.widget)->gridSize();
    }
};

/// Icons with their text beside or below them. The list mode of the toolkit lays tens of thousands of rows out at once
/// where its icon mode takes each by itself, so large icons are list rows whose text stands below.
class IconView : public QListView {
public:
    using QListView::QListView;

    void SetLarge(bool large) {
        large_ = large;
        setIconSize(large ? QSize(largeIcon, largeIcon) : QSize(smallIcon, smallIcon));
        setWordWrap(large);
        setTextElideMode(large ? Qt::ElideMiddle : Qt::ElideRight);
    }

protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override {
        QListView::initViewItemOption(option);
        if (large_) {
            option->decorationPosition = QStyleOptionViewItem::Top;
            option->displayAlignment = Qt::AlignHCenter | Qt::AlignTop;
        }
    }

private:
    bool large_ = false;
};

QListView* MakeIcons(QWidget* parent) {
    auto* view = new IconView(parent);
    view->setWrapping(true);
    view->setResizeMode(QListView::Adjust);
    view->setUniformItemSizes(true);
    view->setSelectionRectVisible(true);
    view->setItemDelegate(new CellDelegate(view));
    return view;
}

QTreeView* MakeDetails(QWidget* parent) {
    auto* view = new QTreeView(parent);
    view->setRootIsDecorated(false);
    view->setItemsExpandable(false);
    view->setUniformRowHeights(true);
    view->setAllColumnsShowFocus(true);
    view->header()->setSectionsClickable(true);
    view->header()->setSortIndicatorShown(false);
    return view;
}

bool IsModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr;
}

bool IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

FileListView::FileListView(QWidget* parent)
    : QStackedWidget(parent),
      details_(MakeDetails(this)),
      icons_(MakeIcons(this)) {
    addWidget(details_);
    addWidget(icons_);
    Prepare(details_);
    Prepare(icons_);
}

void FileListView::Prepare(QAbstractItemView* view) {
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->installEventFilter(this);
    connect(view, &QAbstractItemView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT RowClicked(index.row()); });
    connect(view, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT RowActivated(index.row()); });
}

void FileListView::SetModel(FileListModel* model) {
    model_ = model;
    details_->setModel(model);
    icons_->setModel(model);
    const QItemSelectionModel* spare = icons_->selectionModel();
    icons_->setSelectionModel(details_->selectionModel());
    delete spare;
    details_->header()->resizeSection(FileList::Filename, 220);
    details_->header()->resizeSection(FileList::Filetype, 100);
    connect(details_->header(), &QHeaderView::sectionClicked, this, [this](int column) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        model_->SortBy(column);
        QApplication::restoreOverrideCursor();
        RowsChanged();
    });
    SetMode(mode_);
}

void FileListView::SetMode(ViewMode mode) {
    mode_ = mode;
    static_cast<IconView*>(icons_)->SetLarge(mode == ViewMode::LargeIcons);
    // The list fills columns from top to bottom, the icons fill rows.
    icons_->setFlow(mode == ViewMode::List ? QListView::TopToBottom : QListView::LeftToRight);
    SizeCells();
    const bool hadFocus = Current()->hasFocus();
    setCurrentWidget(mode == ViewMode::Details ? static_cast<QWidget*>(details_) : icons_);
    setFocusProxy(currentWidget());
    if (hadFocus)
        currentWidget()->setFocus();
    Current()->scrollTo(Selection()->currentIndex());
}

// One size for all cells, by the longest name: asking each row would take a row's time each.
void FileListView::SizeCells() {
    const QFontMetrics metrics(font());
    if (mode_ == ViewMode::LargeIcons) {
        icons_->setGridSize(QSize(largeCell, largeIcon + 2 * metrics.height() + 16));
        return;
    }
    const FileList& list = model_->List();
    int longest = 0;
    for (int place = 1; place < list.Count(); ++place)
        if (list.TextLength(place) > list.TextLength(longest))
            longest = place;
    const int text = list.Count() == 0 ? 0 : metrics.horizontalAdvance(list.Text(longest));
    const int width = smallIcon + 24 + std::clamp(text + text / 16, 80, 320);
    icons_->setGridSize(QSize(width, std::max(smallIcon, metrics.height()) + 6));
}

void FileListView::RowsChanged() {
    for (const auto column : {FileList::Filename, FileList::Filetype, FileList::Size}) {
        const FileList::Order order = model_->List().OrderOf(column);
        if (order == FileList::Order::None)
            continue;
        Header()->setSortIndicatorShown(true);
        Header()->setSortIndicator(column,
                                   order == FileList::Order::Ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    SizeCells();
}

void FileListView::SetAccessibleNames(const QString& name) {
    for (QWidget* part : {static_cast<QWidget*>(this), static_cast<QWidget*>(details_), static_cast<QWidget*>(icons_)})
        part->setAccessibleName(name);
}

void FileListView::FollowInTabOrder(QWidget* control) {
    setTabOrder(control, details_);
    setTabOrder(details_, icons_);
}

QItemSelectionModel* FileListView::Selection() const {
    return details_->selectionModel();
}

std::vector<int> FileListView::SelectedRows() const {
    std::vector<int> places;
    for (const QModelIndex& index : Selection()->selectedRows())
        places.push_back(index.row());
    std::ranges::sort(places);
    return places;
}

QHeaderView* FileListView::Header() const {
    return details_->header();
}

QAbstractItemView* FileListView::Current() const {
    return static_cast<QAbstractItemView*>(currentWidget());
}

bool FileListView::eventFilter(QObject* watched, QEvent* event) {
    const QModelIndex row = Selection() == nullptr ? QModelIndex() : Selection()->currentIndex();
    const bool press = event->type() == QEvent::KeyPress;
    if (!row.isValid() || (!press && event->type() != QEvent::KeyRelease))
        return QStackedWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (press && IsEnter(key)) {
        Q_EMIT RowActivated(row.row());
        return true;
    }
    // A key has moved the selection by the time it is let go of.
    if (!press && !IsEnter(key) && key != Qt::Key_Delete && !IsModifier(key) && Selection()->isSelected(row))
        Q_EMIT RowClicked(row.row());
    return QStackedWidget::eventFilter(watched, event);
}
