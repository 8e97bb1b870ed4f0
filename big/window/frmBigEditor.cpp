// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/frmBigEditor.h"

#include "big/window/FileListModel.h"
#include "big/window/FolderTreeModel.h"
#include "big/window/RowDrag.h"
#include "big/window/frmBrowseForFolder.h"
#include "big/window/frmSearch.h"
#include "big/window/frmVersion.h"
#include "core/LastTime.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/Paths.h"
#include "ui/text/Localisation.h"
#include "ui/window/RecentFiles.h"
#include "ui/window/WindowPlace.h"
#include "ui_frmBigEditor.h"

#include <QActionGroup>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QPoint ScrollOf(const QAbstractItemView& view) {
    return {view.horizontalScrollBar()->value(), view.verticalScrollBar()->value()};
}

/// The bars know how far they reach only when the rows are laid out.
void Scroll(QAbstractItemView& view, QPoint place) {
    view.doItemsLayout();
    view.horizontalScrollBar()->setValue(place.x());
    view.verticalScrollBar()->setValue(place.y());
}

} // namespace

frmBigEditor::frmBigEditor(QWidget* parent)
    : ToolWindow(parent),
      ui_(std::make_unique<Ui::frmBigEditor>()),
      editor_(*this),
      treeModel_(new FolderTreeModel(editor_.Tree(), this)),
      listModel_(new FileListModel(editor_.List(), this)),
      status_(new QLabel),
      selection_(new QLabel) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    Equip({.Exit = ui_->mnuExit,
           .Options = ui_->mnuOptions,
           .Manual = ui_->mnuManual,
           .CheckForUpdates = ui_->mnuCheckForUpdates,
           .About = ui_->mnuAbout},
          Commands());
    Dress();
    ui_->tvDirs->setModel(treeModel_);
    ui_->lvFiles->SetModel(listModel_);
    editor_.UsePreview(&decoder_, &player_);
    ui_->picDetails->Use(&player_);
    ui_->picDetails->Dress();
    connect(ui_->picDetails, &PreviewPane::PictureWanted, this, &frmBigEditor::ShowPicture);
    ConnectTree();
    ConnectList();
    ui_->mnuText->setChecked(LastTime::Of(u"big text"_s).toBool());
    const ViewMode mode = BigEditor::View();
    ui_->lvFiles->SetMode(mode);
    ui_->mnuView->actions().at(static_cast<int>(mode))->setChecked(true);
    StateChanged();
    editor_.TellLeft();
    WindowPlace::Remember(*this);
    KeepFromTimeToTime([this] { return editor_.KeepRescue(); });
}

// The controls ask their models for rows as long as they stand: they go before the document does.
frmBigEditor::~frmBigEditor() {
    delete takeCentralWidget();
}

void frmBigEditor::OpenBigFile(const QString& path) {
    editor_.OpenBigFile(path);
}

void frmBigEditor::ExtractBigFile(const QString& path) {
    editor_.ExtractBigFile(path);
}

void frmBigEditor::Dress() {
    ui_->tvDirs->setAccessibleName(mTraduction::GetText(u"Folder"_s));
    ui_->lvFiles->SetAccessibleNames(mTraduction::GetText(u"Files"_s));
    ui_->lvFiles->FollowInTabOrder(ui_->tvDirs);
    ui_->txtText->setAccessibleName(mTraduction::GetText(u"Text"_s));
    status_->setTextFormat(Qt::PlainText);
    status_->setContentsMargins(6, 0, 0, 0);
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name never widens the window
    ui_->StatusBar1->setAccessibleName(mTraduction::GetText(u"BIGFile"_s));
    ui_->StatusBar1->addWidget(status_, 1);
    status_->setObjectName(u"lblStatus"_s);
    selection_->setObjectName(u"lblSelection"_s);
    selection_->setTextFormat(Qt::PlainText);
    ui_->StatusBar1->addPermanentWidget(selection_);
    // The Delete key belongs to the tree and the list; elsewhere it would remove what the user is not looking at.
    // Likewise the keys that lead to the folder above and into a name.
    ui_->mnuUp->setShortcuts({QKeySequence(Qt::Key_Backspace), QKeySequence(Qt::ALT | Qt::Key_Up)});
    for (QAction* action : {ui_->mnuDelete, ui_->mnuRename, ui_->mnuUp}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        ui_->tvDirs->addAction(action);
        ui_->lvFiles->AddAction(action);
    }
    auto* views = new QActionGroup(this);
    for (QAction* action : {ui_->mnuLvView_0, ui_->mnuLvView_1, ui_->mnuLvView_2, ui_->mnuLvView_3})
        views->addAction(action);
    RecentFiles::Lead(*ui_->mnuRecent, u"big"_s, [this](const QString& path) { editor_.OpenInstead(path); });
    setAcceptDrops(true);
    UnderlinePointed(ui_->picLeftMenu, {ui_->Label2_0, ui_->Label2_1, ui_->Label2_2, ui_->Label2_3, ui_->Label2_4,
                                        ui_->Label2_5, ui_->Label2_6, ui_->Label2_7});
    ui_->tvDirs->setFocus();
}

std::vector<ToolCommand> frmBigEditor::Commands() {
    const auto of = [this](void (BigEditor::*run)()) { return [this, run] { (editor_.*run)(); }; };
    return {
        {ui_->mnuNew, ui_->Label2_3, u"new"_s, of(&BigEditor::New)},
        {ui_->mnuOpen, ui_->Label2_4, u"open"_s, of(&BigEditor::Open)},
        {ui_->mnuSave, ui_->Label2_5, u"save"_s, of(&BigEditor::Save)},
        {ui_->mnuSaveAs, nullptr, u"save-as"_s, of(&BigEditor::SaveAs)},
        {ui_->mnuFileVersion, ui_->Label2_7, u"version"_s, of(&BigEditor::FileVersion)},
        {ui_->mnuModify, nullptr, u"modify"_s, [this] { Later([this] { editor_.Modify(); }); }},
        {ui_->mnuExtract, ui_->Label2_0, u"extract"_s, of(&BigEditor::Extract)},
        {ui_->mnuAdd, ui_->Label2_1, u"add"_s, of(&BigEditor::Add)},
        {ui_->mnuDelete, ui_->Label2_2, u"delete"_s, [this] { Delete(); }},
        {ui_->mnuNewFolder, ui_->Label2_6, u"new-folder"_s, of(&BigEditor::NewFolder)},
        {ui_->mnuText, nullptr, {}, [this] { ToggleText(); }},
        {ui_->mnuRename, nullptr, {}, [this] { Rename(); }},
        {ui_->mnuUp, nullptr, {}, [this] { GoUp(); }},
        {ui_->mnuFind, nullptr, u"find"_s, [this] { Find(); }},
        {ui_->mnuLvView_0, nullptr, {}, [this] { ChooseView(ViewMode::LargeIcons); }},
        {ui_->mnuLvView_1, nullptr, {}, [this] { ChooseView(ViewMode::Details); }},
        {ui_->mnuLvView_2, nullptr, {}, [this] { ChooseView(ViewMode::SmallIcons); }},
        {ui_->mnuLvView_3, nullptr, {}, [this] { ChooseView(ViewMode::List); }},
    };
}

void frmBigEditor::ConnectTree() {
    connect(ui_->tvDirs->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& node) {
        if (following_)
            return;
        pressedNode_ = FolderTreeModel::NodeOf(node);
        editor_.ClickNode(pressedNode_);
    });
    // A click on the node that is selected already brings the tree back into play and shows the folder anew.
    connect(ui_->tvDirs, &QTreeView::clicked, this, [this](const QModelIndex& node) {
        if (pressedNode_ != FolderTreeModel::NodeOf(node))
            editor_.ClickNode(FolderTreeModel::NodeOf(node));
    });
    connect(ui_->tvDirs, &QWidget::customContextMenuRequested, this, [this](QPoint place) {
        const QModelIndex node = ui_->tvDirs->indexAt(place);
        if (!node.isValid())
            return;
        editor_.ClickNode(FolderTreeModel::NodeOf(node));
        ui_->mnuEdit->popup(ui_->tvDirs->viewport()->mapToGlobal(place));
    });
    // The edit ends first: a rename makes the tree anew.
    connect(treeModel_, &FolderTreeModel::RenameWanted, this, [this](int node, const QString& text) {
        renames_.push_back({node, text});
    });
    connect(treeModel_, &FolderTreeModel::RenameWanted, this, &frmBigEditor::RenameNodes, Qt::QueuedConnection);
    ui_->tvDirs->installEventFilter(this);
    ui_->tvDirs->viewport()->installEventFilter(this);
}

void frmBigEditor::ConnectList() {
    FileListView* const list = ui_->lvFiles;
    connect(list, &FileListView::RowClicked, this, [this](int place) {
        editor_.EnterList();
        editor_.ClickRow(place);
    });
    connect(list, &FileListView::RowActivated, this,
            [this](int place) { Later([this, place] { editor_.ActivateRow(place); }); });
    connect(list, &FileListView::Entered, this, [this] { editor_.EnterList(); });
    connect(list, &FileListView::FrameDrawn, this, [this] { editor_.FollowSelection(); });
    connect(list, &FileListView::MenuWanted, this, &frmBigEditor::ShowMenu);
    connect(list, &FileListView::DragStarted, this, &frmBigEditor::DragOut);
    // The program that the files come from waits for the end of the drop: the work begins behind it.
    connect(list, &FileListView::FilesDropped, this, [this](const QStringList& paths) {
        Later([this, kept = BigEditor::AdoptDragged(paths)] { editor_.DropFiles(kept); });
    });
    connect(list->Selection(), &QItemSelectionModel::selectionChanged, this, &frmBigEditor::TellSelection);
    const auto rename = [this](int place, const QString& text) {
        if (editor_.RenameRow(place, text))
            listModel_->RowChanged(place);
    };
    // At once: the click that ends an edit may show another folder, whose row of that place would be renamed.
    connect(listModel_, &FileListModel::RenameWanted, this, rename);
}

// The menu for the row under the pointer, or that of the views.
void frmBigEditor::ShowMenu(int place, QPoint globalPlace) {
    editor_.EnterList();
    editor_.OfferRow(place);
    (place < 0 ? ui_->mnuView : ui_->mnuEdit)->popup(globalPlace);
}

void frmBigEditor::DragOut() {
    const std::vector<int> places = SelectedRows();
    if (places.empty())
        return;
    editor_.EnterList();
    const auto picture = listModel_->index(places.front(), 0).data(Qt::DecorationRole).value<QIcon>();
    const QPointer<frmBigEditor> alive(this);
    DragRows(this, picture.pixmap(32),
             {.Names = [this] { return editor_.DragNames(); },
              .Extract = [this] { return editor_.ExtractForDrag(); },
              .Ended = [] { BigEditor::DragEnded(); }});
    if (alive != nullptr)
        editor_.FollowSelection();
}

// The list may have the keyboard without having been clicked since the archive was opened.
void frmBigEditor::Delete() {
    if (ui_->lvFiles->Current()->hasFocus())
        editor_.EnterList();
    editor_.Delete();
}

void frmBigEditor::RenameNodes() {
    for (const auto& [node, text] : std::exchange(renames_, {}))
        editor_.RenameNode(node, text);
}

void frmBigEditor::TellSelection() {
    selection_->setText(editor_.SelectionText());
}

bool frmBigEditor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && watched == ui_->tvDirs->viewport())
        pressedNode_ = FolderTree::None;
    if (watched == ui_->tvDirs && event->type() == QEvent::FocusIn) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        // Coming with the Tab key is a click on the selected node: the commands act on what has the focus.
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            editor_.ClickNode(editor_.State().SelectedNode);
    }
    return ToolWindow::eventFilter(watched, event);
}

// While an entry is open in another program this window may be closed, and what called must not return into it: a
// timer's call has nothing to return to.
void frmBigEditor::Later(const std::function<void()>& command) {
    QTimer::singleShot(0, this, command);
}

void frmBigEditor::ChooseView(ViewMode mode) {
    CommitEdit();
    ui_->lvFiles->SetMode(mode);
    BigEditor::SetView(mode);
}

bool frmBigEditor::MenuFollows() const {
    return !mMain::CommandLine.contains(u"/tbig"_s);
}

void frmBigEditor::ShowWindow() {
    show();
}

void frmBigEditor::TreeChanged() {
    const QScopedValueRollback following(following_, true);
    treeModel_->Reset();
    ui_->tvDirs->expandAll();
}

void frmBigEditor::ListChanged() {
    listModel_->Reset(editor_.State().FileIcons);
    treeModel_->ShowSystemIcons(editor_.State().FileIcons);
    ui_->tvDirs->viewport()->update();
    ui_->lvFiles->RowsChanged();
    ui_->lvFiles->Current()->scrollToTop();
    TellSelection();
}

void frmBigEditor::StateChanged() {
    const EditorState& state = editor_.State();
    SelectNode();
    for (QAction* action : {ui_->mnuSave, ui_->mnuSaveAs, ui_->mnuFileVersion, ui_->mnuAdd, ui_->mnuDelete,
                            ui_->mnuExtract, ui_->mnuNewFolder, ui_->mnuFind, ui_->mnuRename, ui_->mnuUp})
        action->setEnabled(state.ArchiveOpen);
    ui_->mnuModify->setEnabled(state.ModifyEnabled);
    ui_->mnuEdit->setEnabled(state.ArchiveOpen);
    ui_->lvFiles->setEnabled(state.ArchiveOpen);
    ui_->mnuActions->setVisible(state.ArchiveOpen);
    ui_->mnuDetails->setVisible(state.DetailsVisible);
    ui_->lblFName->setText(state.DetailsName);
    ui_->lblFSize->setText(state.DetailsSize);
    ui_->picDetails->Follow(editor_.Previewed());
    status_->setText(state.StatusText);
    TellSelection();
    const QString tool = u"BIG Editor"_s;
    setWindowTitle(state.ArchiveOpen ? Paths::LastPart(mBIG::BigFileName) + u"[*] - "_s + tool : tool);
    setWindowModified(state.Modified);
    if (search_ != nullptr)
        search_->Follow();
    FollowPicture();
    NoteRecent();
    FollowText();
}

void frmBigEditor::SelectNode() {
    const int node = editor_.State().SelectedNode;
    if (!editor_.Tree().Has(node))
        return;
    const QScopedValueRollback following(following_, true);
    treeModel_->RootTextChanged();
    ui_->tvDirs->setCurrentIndex(treeModel_->IndexOf(node));
}

void frmBigEditor::ShowVersion() {
    frmVersion chooser(this);
    chooser.SetExactOffsets(editor_.State().ExactOffsets);
    if (chooser.exec() == QDialog::Accepted)
        editor_.SetExactOffsets(chooser.ExactOffsets());
}

std::vector<int> frmBigEditor::SelectedRows() const {
    return ui_->lvFiles->SelectedRows();
}

ViewPlace frmBigEditor::Where() const {
    return {.Selected = SelectedRows(),
            .Current = ui_->lvFiles->Selection()->currentIndex().row(),
            .ListScroll = ScrollOf(*ui_->lvFiles->Current()),
            .TreeScroll = ScrollOf(*ui_->tvDirs)};
}

void frmBigEditor::GoTo(const ViewPlace& place) {
    ui_->lvFiles->Select(place.Selected, place.Current);
    Scroll(*ui_->lvFiles->Current(), place.ListScroll);
    Scroll(*ui_->tvDirs, place.TreeScroll);
}

void frmBigEditor::Reveal(const std::vector<int>& places) {
    ui_->lvFiles->Select(places, places.back());
    QAbstractItemView& list = *ui_->lvFiles->Current();
    list.doItemsLayout();
    list.scrollTo(ui_->lvFiles->Selection()->currentIndex());
}

void frmBigEditor::EditNode(int node) {
    const QModelIndex index = treeModel_->IndexOf(node);
    ui_->tvDirs->setFocus();
    ui_->tvDirs->scrollTo(index);
    ui_->tvDirs->edit(index);
}

void frmBigEditor::CommitEdit() {
    // A command begins, and may put another file in the place of the one that a search has open.
    if (search_ != nullptr)
        search_->Stop();
    for (QAbstractItemView* view : {static_cast<QAbstractItemView*>(ui_->tvDirs), ui_->lvFiles->Current()}) {
        const QPointer<QLineEdit> field = view->viewport()->findChild<QLineEdit*>();
        if (field == nullptr)
            continue;
        QMetaObject::invokeMethod(view, "commitData", Q_ARG(QWidget*, field.data()));
        RenameNodes();
        // A field that loses the focus closes.
        if (field != nullptr && field->hasFocus())
            view->setFocus();
    }
    RenameNodes();
}

ExtractionTarget frmBigEditor::AskForFolder() {
    frmBrowseForFolder chooser(isVisible() ? this : nullptr);
    chooser.exec();
    return chooser.Target();
}

void frmBigEditor::EnableWindow(bool enabled) {
    setEnabled(enabled);
}

quintptr frmBigEditor::Handle() const {
    return winId();
}
