// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/FileListView.h"

#include "big/window/FileListModel.h"
#include "platform/Paths.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QListView>
#include <QMimeData>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QUrl>

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
    explicit IconView(FileListView* list) : QListView(list), list_(list) {}

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

    void startDrag(Qt::DropActions /*supportedActions*/) override { Q_EMIT list_->DragStarted(); }

private:
    FileListView* list_;
    bool large_ = false;
};

class DetailsView : public QTreeView {
public:
    explicit DetailsView(FileListView* list) : QTreeView(list), list_(list) {}

protected:
    void startDrag(Qt::DropActions /*supportedActions*/) override { Q_EMIT list_->DragStarted(); }

private:
    FileListView* list_;
};

QListView* MakeIcons(FileListView* parent) {
    auto* view = new IconView(parent);
    view->setWrapping(true);
    view->setResizeMode(QListView::Adjust);
    view->setUniformItemSizes(true);
    view->setSelectionRectVisible(true);
    view->setItemDelegate(new CellDelegate(view));
    return view;
}

QTreeView* MakeDetails(FileListView* parent) {
    auto* view = new DetailsView(parent);
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

/// Whether a text is being edited inside the view: its keys come by here too.
bool HasField(const QAbstractItemView& view) {
    const QWidget* focus = QApplication::focusWidget();
    return focus != nullptr && focus != &view && view.isAncestorOf(focus);
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
    view->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    view->setDragEnabled(true);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    view->viewport()->setAcceptDrops(true);
    connect(view, &QWidget::customContextMenuRequested, this, &FileListView::ShowMenu);
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

void FileListView::AddAction(QAction* action) {
    details_->addAction(action);
    icons_->addAction(action);
}

// A row under the pointer becomes the only selected one; the menu key asks for the current row.
void FileListView::ShowMenu(QPoint place) {
    QAbstractItemView* view = Current();
    const QModelIndex row = view->indexAt(place);
    if (row.isValid())
        view->selectionModel()->setCurrentIndex(row.siblingAtColumn(0),
                                                QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    Q_EMIT MenuWanted(row.row(), view->viewport()->mapToGlobal(place));
}

bool FileListView::KeyEvent(const QKeyEvent& event) {
    const QModelIndex row = Selection() == nullptr ? QModelIndex() : Selection()->currentIndex();
    if (!row.isValid() || HasField(*Current()))
        return false;
    const int key = event.key();
    const bool press = event.type() == QEvent::KeyPress;
    if (press && IsEnter(key)) {
        // A key that is held down opens a file once.
        if (!event.isAutoRepeat())
            Q_EMIT RowActivated(row.row());
        return true;
    }
    // A key has moved the selection by the time it is let go of.
    if (!press && !IsEnter(key) && key != Qt::Key_Delete && !IsModifier(key) && Selection()->isSelected(row))
        Q_EMIT RowClicked(row.row());
    return false;
}

bool FileListView::DropEvent(QDropEvent& event) {
    // Rows of this list that come back to it change nothing. Only other programs' drags have no source.
    if (!event.mimeData()->hasUrls() || event.source() != nullptr) {
        event.ignore();
        return true;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    if (event.type() != QEvent::Drop)
        return true;
    QStringList paths;
    for (const QUrl& url : event.mimeData()->urls()) {
        if (url.isLocalFile())
            paths += Paths::FromNative(QDir::toNativeSeparators(url.toLocalFile()));
    }
    Q_EMIT FilesDropped(paths);
    return true;
}

bool FileListView::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return KeyEvent(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusIn:
        if (const auto reason = static_cast<QFocusEvent*>(event)->reason();
            watched == Current() && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason))
            Q_EMIT Entered();
        return false;
    case QEvent::MouseButtonPress:
        if (watched == Current()->viewport() &&
            !Current()->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint()).isValid())
            Q_EMIT Entered();
        return false;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return watched == Current()->viewport() && DropEvent(*static_cast<QDropEvent*>(event));
    default:
        return QStackedWidget::eventFilter(watched, event);
    }
}
