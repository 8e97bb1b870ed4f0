// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/window/frmPersonalFiles.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "personal/window/KeyedTreeModel.h"
#include "personal/window/KindListModel.h"
#include "personal/window/PersonalPictures.h"
#include "platform/Paths.h"
#include "ui/look/ForReaders.h"
#include "ui/text/Localisation.h"
#include "ui/text/Mnemonics.h"
#include "ui/window/DroppedFiles.h"
#include "ui/window/WindowPlace.h"
#include "ui_frmPersonalFiles.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QTimer>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What a link does, with the key that does it too.
void Describe(SideLink& link, const QAction& action, const QString& help) {
    link.setAccessibleDescription(help);
    link.setToolTip(u"%1 (%2)"_s.arg(help, action.shortcut().toString(QKeySequence::NativeText)));
}

} // namespace

frmPersonalFiles::frmPersonalFiles(QWidget* parent)
    : ToolWindow(parent),
      ui_(std::make_unique<Ui::frmPersonalFiles>()),
      files_(*this),
      treeModel_(new KeyedTreeModel(this)),
      playersModel_(new KeyedTreeModel(this)),
      rowMenu_(new QMenu(this)),
      treeMenu_(new QMenu(this)),
      status_(new QLabel) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    Equip({ui_->mnuExit, ui_->mnuOptions, ui_->mnuManual, ui_->mnuCheckForUpdates, ui_->mnuAbout}, Commands());
    parts_ = {KindPart{PersonalKind::Map, ui_->MapList, ui_->lstMaps},
              KindPart{PersonalKind::Replay, ui_->ReplayList, ui_->lstReplays},
              KindPart{PersonalKind::ShellMap, ui_->ShellMapList, ui_->lstShellMaps},
              KindPart{PersonalKind::Mod, ui_->ModList, ui_->lstMods}};
    for (KindPart& part : parts_)
        ConnectList(part);
    ConnectTree();
    ConnectBoxes();
    Dress();
    setAcceptDrops(true);
    WindowPlace::Remember(*this);
    files_.UseDecoder(&decoder_);
    files_.RebuildTree();
    StateChanged();
}

// The controls ask their models for rows as long as they stand: they go before the document does.
frmPersonalFiles::~frmPersonalFiles() {
    delete takeCentralWidget();
}

void frmPersonalFiles::Dress() {
    // A long name scrolls, it is not cut.
    for (const QTreeView* const tree : {ui_->tvFiles, ui_->tvPlayers}) {
        tree->header()->setStretchLastSection(false);
        tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    }
    status_->setObjectName(u"lblStatus"_s);
    status_->setTextFormat(Qt::PlainText);
    status_->setContentsMargins(6, 0, 0, 0);
    ui_->StatusBar1->setAccessibleName(mTraduction::GetText(u"PersonalFiles"_s));
    ui_->StatusBar1->addWidget(status_, 1);
    UnderlinePointed(ui_->picLeftMenu, {ui_->Label2_0, ui_->Label2_1, ui_->Label2_2});
    ShareActions();
    NameForReaders();
    ui_->tvFiles->setFocus();
}

// As wide as the longest name in the user's language, where that leaves the list its room; as wide as the user wants as
// soon as the divider was moved.
void frmPersonalFiles::MakeRoomForTree() {
    constexpr int narrowest = 160;
    constexpr int listsRoom = 324;
    if (userSized_)
        return;
    ui_->tvFiles->header()->resizeSections(QHeaderView::ResizeToContents);
    const int wanted = ui_->tvFiles->columnWidth(0) + 2 * ui_->tvFiles->frameWidth() + 4;
    ui_->picSplitter->SetPosition(std::max(narrowest, std::min(wanted, ui_->picSplitter->width() - listsRoom)));
}

void frmPersonalFiles::NameForReaders() {
    ui_->tvFiles->setAccessibleName(mTraduction::GetText(u"PersonalFiles"_s));
    ui_->tvFiles->setAccessibleDescription(mTraduction::GetText(u"ChooseKind"_s).section(u'\n', 1));
    ui_->lstReplays->setAccessibleName(mTraduction::GetText(u"Replays"_s));
    ui_->lstMaps->setAccessibleName(mTraduction::GetText(u"Maps"_s));
    ui_->lstMods->setAccessibleName(mTraduction::GetText(u"Mods"_s));
    ui_->lstShellMaps->setAccessibleName(mTraduction::GetText(u"ShellMaps"_s));
    ui_->tvPlayers->setAccessibleName(mTraduction::GetText(u"Players"_s));
    ui_->tvPlayers->setAccessibleDescription(mTraduction::GetText(u"PlayersHelp"_s));
    ForReaders::SetRole(*ui_->Image2, QAccessible::Graphic);
    ui_->Image2->setAccessibleName(mTraduction::GetText(u"Map"_s));
    ui_->txtMName->setAccessibleDescription(mTraduction::GetText(u"BoxesHelp"_s));
    ui_->txtMComments->setAccessibleDescription(mTraduction::GetText(u"BoxesHelp"_s));
    Describe(*ui_->Label2_0, *ui_->mnuAdd, mTraduction::GetText(u"AddHelp"_s));
    Describe(*ui_->Label2_1, *ui_->mnuDelete, mTraduction::GetText(u"DeleteHelp"_s));
    Describe(*ui_->Label2_2, *ui_->mnuExport, mTraduction::GetText(u"ExportHelp"_s));
}

// What keys and context menus share. In the boxes these keys edit text.
void frmPersonalFiles::ShareActions() {
    rowMenu_->setObjectName(u"mnuRow"_s);
    treeMenu_->setObjectName(u"mnuTree"_s);
    treeMenu_->addActions({ui_->mnuAdd, ui_->mnuRefresh});
    FillRowMenu(PersonalKind::Replay, true);
    // The short words first; the other menu then with all entries that it can have.
    Mnemonics::AddTo(*treeMenu_);
    Mnemonics::AddTo(*rowMenu_);
    ui_->mnuRename->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    ui_->lstReplays->addAction(ui_->mnuRename);
    for (QAction* const action : {ui_->mnuDelete, ui_->mnuUninstall, ui_->mnuCheckAll, ui_->mnuCheckNone,
                                  ui_->mnuOpenFolder, ui_->mnuCopyPath, ui_->mnuAdd}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        for (const KindPart& part : parts_)
            part.List->addAction(action);
    }
    ui_->tvFiles->addAction(ui_->mnuAdd);
    addActions({ui_->mnuRefresh, ui_->mnuExport});
}

std::vector<ToolCommand> frmPersonalFiles::Commands() {
    const auto onRow = [this](void (PersonalFiles::*run)(int)) { return [this, run] { OnRow(run); }; };
    return {
        {ui_->mnuAdd, ui_->Label2_0, u"add"_s, [this] { files_.Add(); }},
        {ui_->mnuDelete, ui_->Label2_1, u"delete"_s, [this] { files_.Delete(); }},
        {ui_->mnuExport, ui_->Label2_2, u"extract"_s, [this] { files_.Export(); }},
        {ui_->mnuExportRow, nullptr, u"extract"_s, onRow(&PersonalFiles::ExportRow)},
        {ui_->mnuUninstall, nullptr, {}, onRow(&PersonalFiles::UninstallRow)},
        {ui_->mnuRename, nullptr, u"modify"_s, [this] { EditName(); }},
        {ui_->mnuCheckAll, nullptr, {}, [this] { files_.CheckAll(true); }},
        {ui_->mnuCheckNone, nullptr, {}, [this] { files_.CheckAll(false); }},
        {ui_->mnuOpenFolder, nullptr, u"folder-open"_s, onRow(&PersonalFiles::OpenFolder)},
        {ui_->mnuCopyPath, nullptr, {}, onRow(&PersonalFiles::CopyPath)},
        {ui_->mnuRefresh, nullptr, u"update"_s, [this] { files_.Refresh(); }},
    };
}

void frmPersonalFiles::ConnectTree() {
    ui_->tvFiles->setModel(treeModel_);
    ui_->tvPlayers->setModel(playersModel_);
    // The focus alone makes a node the current one without a selection: that is no click.
    connect(ui_->tvFiles->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected) {
                if (following_ || selected.isEmpty())
                    return;
                pressedNode_ = treeModel_->KeyOf(selected.indexes().first());
                files_.NodeClicked(pressedNode_);
            });
    // A click on the node that is selected already lists its kind anew.
    connect(ui_->tvFiles, &QTreeView::clicked, this, [this](const QModelIndex& node) {
        if (const QString key = treeModel_->KeyOf(node); key != pressedNode_)
            files_.NodeClicked(key);
    });
    connect(ui_->tvFiles, &QWidget::customContextMenuRequested, this,
            [this](QPoint place) { treeMenu_->popup(ui_->tvFiles->viewport()->mapToGlobal(place)); });
    ui_->tvFiles->viewport()->installEventFilter(this);
    ui_->picSplitter->installEventFilter(this);
    connect(ui_->picSplitter, &SplitterBox::BeforeDrag, this, [this] { userSized_ = true; });
}

void frmPersonalFiles::ConnectList(KindPart& part) {
    part.Model = new KindListModel(files_.List(part.Kind).Rows(), PersonalPictures::Of(part.Kind), this);
    part.List->SetRows(part.Model, [this](int column) { files_.HeaderClicked(column); });
    part.List->viewport()->installEventFilter(this);
    connect(part.List->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected) {
                if (following_ || selected.isEmpty())
                    return;
                pressedRow_ = selected.first().top();
                files_.RowSelected(pressedRow_);
            });
    connect(part.List, &QTreeView::clicked, this, [this, &part](const QModelIndex& row) {
        // Ctrl and a click would leave it without a selection.
        SelectRow(part.Kind, row.row());
        if (row.row() != pressedRow_)
            files_.RowSelected(row.row());
    });
    connect(part.List->Gestures(), &RowGestures::MenuWanted, this, &frmPersonalFiles::ShowMenu);
    connect(part.Model, &RowListModel::CheckChanged, this,
            [this](int place, bool checked) { files_.CheckChanged(place, checked); });
    // At once: the click that ends an edit may show another list, whose row of that place would be renamed.
    connect(part.Model, &RowListModel::RenameWanted, this,
            [this](int place, const QString& text) { files_.RenameRow(place, text); });
}

void frmPersonalFiles::ConnectBoxes() {
    connect(ui_->txtMName, &QLineEdit::textEdited, this, [this](const QString& text) { files_.NameTyped(text); });
    connect(ui_->txtMComments, &QPlainTextEdit::textChanged, this, [this] {
        if (!following_)
            files_.CommentsTyped(ui_->txtMComments->Text());
    });
}

bool frmPersonalFiles::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        pressedNode_.clear();
        pressedRow_ = GameList::None;
    }
    if (event->type() == QEvent::Resize && watched == ui_->picSplitter)
        MakeRoomForTree();
    return ToolWindow::eventFilter(watched, event);
}

// One file that is dropped is added; what a modal window stands over takes none.
void frmPersonalFiles::dragEnterEvent(QDragEnterEvent* event) {
    if (QApplication::activeModalWidget() != nullptr || DroppedFiles::In(*event->mimeData()).size() != 1)
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void frmPersonalFiles::dropEvent(QDropEvent* event) {
    const QStringList files = DroppedFiles::In(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The program that the file comes from waits for the end of the drop.
    QTimer::singleShot(0, this, [this, files] { files_.AddFile(files.constFirst()); });
}

// The menu for a row, or, beside the rows, what goes without one. An entry that is hidden would lose its key.
void frmPersonalFiles::FillRowMenu(PersonalKind kind, bool onRow) {
    rowMenu_->clear();
    if (onRow) {
        if (kind == PersonalKind::Replay)
            rowMenu_->addAction(ui_->mnuRename);
        rowMenu_->addActions({ui_->mnuDelete, ui_->mnuUninstall, ui_->mnuExportRow});
        rowMenu_->addSeparator();
        rowMenu_->addActions({ui_->mnuOpenFolder, ui_->mnuCopyPath});
        rowMenu_->addSeparator();
    }
    rowMenu_->addActions({ui_->mnuCheckAll, ui_->mnuCheckNone});
    rowMenu_->addSeparator();
    rowMenu_->addActions({ui_->mnuAdd, ui_->mnuRefresh});
}

void frmPersonalFiles::ShowMenu(int place, QPoint globalPlace) {
    FillRowMenu(files_.State().Kind, place >= 0);
    ui_->mnuUninstall->setEnabled(files_.MayUninstall(place)); // something may have been installed since
    rowMenu_->popup(globalPlace);
}

RowListView* frmPersonalFiles::ShownList() {
    const std::optional<PersonalKind> shown = files_.State().ShownList;
    return shown ? PartOf(*shown).List : nullptr;
}

int frmPersonalFiles::SelectedPlace() {
    const RowListView* const list = ShownList();
    if (list == nullptr)
        return GameList::None;
    const std::vector<int> places = list->Gestures()->SelectedRows();
    return places.empty() ? GameList::None : places.front();
}

void frmPersonalFiles::OnRow(void (PersonalFiles::*run)(int)) {
    if (const int place = SelectedPlace(); place != GameList::None)
        (files_.*run)(place);
}

void frmPersonalFiles::EditName() {
    if (const int place = SelectedPlace(); place != GameList::None)
        ShownList()->edit(PartOf(PersonalKind::Replay).Model->index(place, 0));
}

void frmPersonalFiles::TreeChanged() {
    const QScopedValueRollback following(following_, true);
    std::vector<KeyedNode> nodes;
    for (const PersonalNode& node : files_.State().Nodes)
        nodes.push_back({node.Key, node.Text, node.Parent, PersonalPictures::Of(node.Kind)});
    treeModel_->Reset(std::move(nodes));
    ui_->tvFiles->expandAll();
    MakeRoomForTree();
}

void frmPersonalFiles::ListChanging(PersonalKind list, RowChange change, int place) {
    const QScopedValueRollback following(following_, true);
    PartOf(list).Model->Begin(change, place);
}

void frmPersonalFiles::ListChanged(PersonalKind list, RowChange change, int /*place*/) {
    const QScopedValueRollback following(following_, true);
    PartOf(list).Model->End(change, files_.NewPlaces());
}

void frmPersonalFiles::RowChanged(PersonalKind list, int place) {
    PartOf(list).Model->RowChanged(place);
}

void frmPersonalFiles::SelectRow(PersonalKind list, int place) {
    const QScopedValueRollback following(following_, true);
    PartOf(list).List->SelectRow(place);
}

void frmPersonalFiles::PlayersChanged() {
    std::vector<KeyedNode> nodes;
    for (const PlayerNode& node : files_.State().Players)
        nodes.push_back({node.Key, node.Text, node.Parent, PersonalPictures::OfPlayer(node)});
    playersModel_->Reset(std::move(nodes));
    ui_->tvPlayers->expandAll();
    ui_->tvPlayers->updateGeometry(); // it is as high as its nodes, where there is room
}

void frmPersonalFiles::PictureChanged() {
    ui_->picDetailsMaps->ShowPicture(files_.State().MapPicture);
}

void frmPersonalFiles::BoxesChanged() {
    const QScopedValueRollback following(following_, true);
    ui_->txtMName->setText(files_.State().NameText);
    ui_->txtMComments->setPlainText(files_.State().CommentsText);
}

void frmPersonalFiles::StatusChanged() {
    status_->setText(files_.State().StatusText);
}

void frmPersonalFiles::StateChanged() {
    const PersonalFilesState& state = files_.State();
    ui_->mnuAdd->setEnabled(state.AddEnabled);
    ui_->mnuDelete->setEnabled(state.DeleteEnabled);
    ui_->mnuUninstall->setEnabled(state.UninstallEnabled);
    ui_->mnuExport->setEnabled(state.ExportEnabled);
    FollowTree();
    FollowLists();
    FollowDetails();
    StatusChanged();
}

void frmPersonalFiles::FollowTree() {
    const QScopedValueRollback following(following_, true);
    const QModelIndex node = treeModel_->IndexOf(files_.State().SelectedNode);
    if (node.isValid())
        ui_->tvFiles->setCurrentIndex(node);
    else
        ui_->tvFiles->clearSelection();
}

void frmPersonalFiles::FollowLists() {
    const PersonalFilesState& state = files_.State();
    for (const KindPart& part : parts_) {
        const bool shown = state.ShownList == part.Kind;
        part.Control->setVisible(shown);
        if (shown)
            part.List->SetHint({PersonalPictures::NameOf(part.Kind), mTraduction::DisplayText(state.HintText)});
    }
    ui_->picHint->setVisible(!state.ShownList);
    const bool none = state.Nodes.empty();
    ui_->picHint->SetHint({PersonalPictures::NameOf({}), mTraduction::DisplayText(mTraduction::GetText(
                                                             none ? u"NoGameDetected"_s : u"ChooseKind"_s))});
}

void frmPersonalFiles::FollowDetails() {
    const PersonalFilesState& state = files_.State();
    ui_->mnuDetailsMaps->setVisible(state.MapDetailsVisible);
    ui_->lblDFileName->setText(state.MapName);
    ui_->lblDSize->setText(state.MapSize);
    ui_->picDetailsMaps->SetGroupHeight(state.MapPaneHeight);
    ui_->mnuDetailsReplays->setVisible(state.ReplayDetailsVisible);
    ui_->lblRFileName->setText(state.ReplayName);
    ui_->lblRSize->setText(state.ReplaySize);
    ui_->lblRVersion->setText(state.ReplayVersion);
    ui_->lblRMap->setText(state.ReplayMap);
    ui_->mnuDetailsMods->setVisible(state.ModDetailsVisible);
    ui_->lblMFileName->setText(state.ModFile);
    ui_->lblMSize->setText(state.ModSize);
}

void frmPersonalFiles::CopyText(const QString& text) {
    QApplication::clipboard()->setText(text);
}

void frmPersonalFiles::OpenFolder(const QString& folder) {
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(Paths::ToNative(folder))))
        Host::Current().Beep();
}
