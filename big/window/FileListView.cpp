// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/FileListView.h"

#include "big/window/FileListModel.h"
#include "ui/list/RowGestures.h"
#include "ui/list/RowListView.h"
#include "ui/look/Style.h"
#include "ui/window/DroppedFiles.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

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

/// The text that an edit begins with is the name without its ending: that seldom changes.
void SelectStem(const QAbstractItemView& view, const FileListModel& model, int place) {
    auto* const field = view.viewport()->findChild<QLineEdit*>();
    if (field == nullptr || model.List().Row(place).IsFolder)
        return;
    if (const auto stop = static_cast<int>(field->text().lastIndexOf(u'.')); stop > 0)
        field->setSelection(0, stop);
}

/// The list with columns.
class DetailsView : public RowListView {
public:
    using RowListView::RowListView;

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override {
        const bool begun = RowListView::edit(index, trigger, event);
        if (begun && state() == EditingState)
            SelectStem(*this, *static_cast<FileListModel*>(model()), index.row());
        return begun;
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
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override {
        const bool begun = QListView::edit(index, trigger, event);
        if (begun && state() == EditingState)
            SelectStem(*this, *static_cast<FileListModel*>(model()), index.row());
        return begun;
    }

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

/// A line around the list, over it and out of the pointer's way.
class DropFrame : public QWidget {
public:
    explicit DropFrame(QWidget* parent) : QWidget(parent) {
        setObjectName(u"dropFrame"_s);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr int width = 3;
        QPainter painter(this);
        painter.setPen(QPen(Style::Colour::Focus, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
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

} // namespace

FileListView::FileListView(QWidget* parent)
    : QStackedWidget(parent),
      details_(new DetailsView(this)),
      icons_(MakeIcons(this)),
      iconGestures_(new RowGestures(icons_)),
      dropFrame_(new DropFrame(this)) {
    details_->setObjectName(u"lvDetails"_s);
    addWidget(details_);
    addWidget(icons_);
    Follow(details_, details_->Gestures());
    Follow(icons_, iconGestures_);
    connect(details_, &RowListView::DragStarted, this, &FileListView::DragStarted);
}

void FileListView::Follow(QAbstractItemView* view, RowGestures* gestures) {
    view->setDragEnabled(true);
    view->viewport()->installEventFilter(this);
    view->viewport()->setAcceptDrops(true);
    connect(gestures, &RowGestures::RowClicked, this, &FileListView::RowClicked);
    connect(gestures, &RowGestures::RowActivated, this, &FileListView::RowActivated);
    connect(gestures, &RowGestures::Entered, this, &FileListView::Entered);
    connect(gestures, &RowGestures::FrameDrawn, this, &FileListView::FrameDrawn);
    connect(gestures, &RowGestures::MenuWanted, this, &FileListView::MenuWanted);
}

void FileListView::SetModel(FileListModel* model) {
    model_ = model;
    details_->SetRows(model);
    icons_->setModel(model);
    const QItemSelectionModel* spare = icons_->selectionModel();
    icons_->setSelectionModel(details_->selectionModel());
    delete spare;
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
    SizeCells();
}

void FileListView::SetAccessibleNames(const QString& name) {
    for (QWidget* part : {static_cast<QWidget*>(details_), static_cast<QWidget*>(icons_)})
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
    return details_->Gestures()->SelectedRows();
}

void FileListView::Select(const std::vector<int>& places, int current) {
    QItemSelection rows;
    for (auto first = places.begin(); first != places.end();) {
        auto last = first;
        while (last + 1 != places.end() && *(last + 1) == *last + 1)
            ++last;
        rows.select(model_->index(*first, 0), model_->index(*last, 0));
        first = last + 1;
    }
    Selection()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    Selection()->setCurrentIndex(model_->index(current, 0), QItemSelectionModel::NoUpdate);
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

// Not by a focus proxy: the Tab key would take it for another control, whose turn comes twice.
void FileListView::focusInEvent(QFocusEvent* event) {
    Current()->setFocus(event->reason());
}

void FileListView::ShowDropFrame(bool show) {
    dropFrame_->setGeometry(rect());
    dropFrame_->raise();
    dropFrame_->setVisible(show);
}

bool FileListView::DropEvent(QDropEvent& event) {
    ShowDropFrame(false);
    // Rows of this list that come back to it change nothing. Only other programs' drags have no source.
    if (!event.mimeData()->hasUrls() || event.source() != nullptr) {
        event.ignore();
        return true;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    ShowDropFrame(event.type() != QEvent::Drop);
    if (event.type() != QEvent::Drop)
        return true;
    Q_EMIT FilesDropped(DroppedFiles::In(*event.mimeData()));
    return true;
}

bool FileListView::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return watched == Current()->viewport() && DropEvent(*static_cast<QDropEvent*>(event));
    case QEvent::DragLeave:
        if (watched == Current()->viewport())
            ShowDropFrame(false);
        return false;
    default:
        return QStackedWidget::eventFilter(watched, event);
    }
}
