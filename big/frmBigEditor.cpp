// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/frmBigEditor.h"

#include "big/BigIcons.h"
#include "big/FileListModel.h"
#include "big/FolderTreeModel.h"
#include "big/frmVersion.h"
#include "core/Navigator.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/Processes.h"
#include "ui/Localisation.h"
#include "ui/Mnemonics.h"
#include "ui_frmBigEditor.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

frmBigEditor::frmBigEditor(QWidget* parent)
    : QMainWindow(parent),
      ui_(std::make_unique<Ui::frmBigEditor>()),
      editor_(*this),
      treeModel_(new FolderTreeModel(editor_.Tree(), this)),
      listModel_(new FileListModel(editor_.List(), this)),
      status_(new QLabel) {
    ui_->setupUi(this);
    links_ = {ui_->Label2_0, ui_->Label2_1, ui_->Label2_2, ui_->Label2_3,
              ui_->Label2_4, ui_->Label2_5, ui_->Label2_6, ui_->Label2_7};
    mTraduction::ApplyLanguage(this);
    Dress();
    ui_->tvDirs->setModel(treeModel_);
    ui_->lvFiles->SetModel(listModel_);
    editor_.UsePreview(&decoder_, &player_);
    ui_->picDetails->Use(&player_);
    ConnectCommands();
    ConnectViews();
    const ViewMode mode = BigEditor::View();
    ui_->lvFiles->SetMode(mode);
    ui_->mnuView->actions().at(static_cast<int>(mode))->setChecked(true);
    StateChanged();
}

frmBigEditor::~frmBigEditor() = default;

void frmBigEditor::OpenBigFile(const QString& path) {
    editor_.OpenBigFile(path);
}

void frmBigEditor::Dress() {
    Mnemonics::AddTo(*ui_->menuBar);
    ui_->tvDirs->setAccessibleName(mTraduction::GetText(u"Folder"_s));
    ui_->lvFiles->SetAccessibleNames(mTraduction::GetText(u"Files"_s));
    ui_->lvFiles->FollowInTabOrder(ui_->tvDirs);
    ui_->picSplitter->setSizes({260, 540});
    ui_->picSplitter->setStretchFactor(1, 1);
    status_->setTextFormat(Qt::PlainText);
    status_->setContentsMargins(6, 0, 0, 0);
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name never widens the window
    ui_->StatusBar1->addWidget(status_, 1);
    ui_->mnuExit->setShortcuts({ui_->mnuExit->shortcut(), QKeySequence(u"Alt+F4"_s)});
    for (QAction* action : NotBuilt())
        action->setEnabled(false);
    auto* views = new QActionGroup(this);
    for (QAction* action : ui_->mnuView->actions())
        views->addAction(action);
    for (SideLink* link : links_)
        connect(link, &SideLink::MouseMoved, this, [this, link] { UnderlineLink(link); });
    connect(ui_->picLeftMenu, &SidePane::MouseMoved, this, [this] { UnderlineLink(nullptr); });
}

// What stands in the menus and links already and has no command behind it yet.
QList<QAction*> frmBigEditor::NotBuilt() const {
    return {ui_->mnuModify, ui_->mnuExtract, ui_->mnuDelete, ui_->mnuNewFolder};
}

std::vector<frmBigEditor::Command> frmBigEditor::Commands() {
    const auto of = [this](void (BigEditor::*run)()) { return [this, run] { (editor_.*run)(); }; };
    return {
        {ui_->mnuNew, 3, u"new"_s, of(&BigEditor::New)},
        {ui_->mnuOpen, 4, u"open"_s, of(&BigEditor::Open)},
        {ui_->mnuSave, 5, u"save"_s, of(&BigEditor::Save)},
        {ui_->mnuSaveAs, NoLink, u"save-as"_s, of(&BigEditor::SaveAs)},
        {ui_->mnuFileVersion, 7, u"version"_s, of(&BigEditor::FileVersion)},
        {ui_->mnuExit, NoLink, u"exit"_s, [this] { close(); }},
        {ui_->mnuModify, NoLink, u"modify"_s, {}},
        {ui_->mnuExtract, 0, u"extract"_s, {}},
        {ui_->mnuAdd, 1, u"add"_s, of(&BigEditor::Add)},
        {ui_->mnuDelete, 2, u"delete"_s, {}},
        {ui_->mnuNewFolder, 6, u"new-folder"_s, {}},
        {ui_->mnuLvView_0, NoLink, {}, [this] { ChooseView(ViewMode::LargeIcons); }},
        {ui_->mnuLvView_1, NoLink, {}, [this] { ChooseView(ViewMode::Details); }},
        {ui_->mnuLvView_2, NoLink, {}, [this] { ChooseView(ViewMode::SmallIcons); }},
        {ui_->mnuLvView_3, NoLink, {}, [this] { ChooseView(ViewMode::List); }},
        {ui_->mnuOptions, NoLink, u"options"_s, [this] { ShowOptions(); }},
        {ui_->mnuCheckForUpdates, NoLink, u"update"_s, [] { Navigator::Current().CheckForUpdates(false); }},
        {ui_->mnuAbout, NoLink, u"about"_s, [this] { Navigator::Current().ShowAbout(this); }},
    };
}

// A link is its menu entry once more: it is enabled with it and triggers it.
void frmBigEditor::ConnectCommands() {
    for (const Command& command : Commands()) {
        if (!command.Picture.isEmpty())
            command.Action->setIcon(BigIcons::Own(command.Picture));
        if (command.Run)
            connect(command.Action, &QAction::triggered, this, command.Run);
        if (command.Link == NoLink)
            continue;
        SideLink* link = links_.at(static_cast<std::size_t>(command.Link));
        link->setIcon(command.Action->icon());
        const auto follow = [link, action = command.Action] { link->setEnabled(action->isEnabled()); };
        connect(command.Action, &QAction::enabledChanged, link, follow);
        follow();
        connect(link, &SideLink::clicked, command.Action, &QAction::trigger);
    }
}

void frmBigEditor::ConnectViews() {
    connect(ui_->tvDirs->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& node) {
        if (!following_)
            editor_.ClickNode(FolderTreeModel::NodeOf(node));
    });
    // A click on the node that is selected already brings the tree back into play.
    connect(ui_->tvDirs, &QTreeView::clicked, this, [this](const QModelIndex& node) {
        if (editor_.State().FocusPane != FocusedPane::Tree)
            editor_.ClickNode(FolderTreeModel::NodeOf(node));
    });
    connect(ui_->lvFiles, &FileListView::RowClicked, this, [this](int place) { editor_.ClickRow(place); });
    connect(ui_->lvFiles, &FileListView::RowActivated, this, [this](int place) { editor_.ActivateRow(place); });
}

void frmBigEditor::ShowOptions() {
    Navigator::Current().ShowOptions(this);
    if (mMain::RestartRequested)
        Processes::End(0);
}

void frmBigEditor::ChooseView(ViewMode mode) {
    ui_->lvFiles->SetMode(mode);
    BigEditor::SetView(mode);
}

void frmBigEditor::UnderlineLink(const SideLink* link) {
    for (SideLink* each : links_)
        each->SetUnderlined(each == link);
}

void frmBigEditor::closeEvent(QCloseEvent* event) {
    if (!editor_.MayClose()) {
        event->ignore();
        return;
    }
    event->accept();
    if (isVisible() && !mMain::CommandLine.contains(u"/tbig"_s))
        Navigator::Current().ShowToolsMenu();
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
    ui_->lvFiles->RowsChanged();
}

void frmBigEditor::StateChanged() {
    const EditorState& state = editor_.State();
    SelectNode();
    for (QAction* action : {ui_->mnuSave, ui_->mnuSaveAs, ui_->mnuFileVersion, ui_->mnuAdd})
        action->setEnabled(state.ArchiveOpen);
    ui_->mnuEdit->setEnabled(state.ArchiveOpen);
    ui_->lvFiles->setEnabled(state.ArchiveOpen);
    ui_->mnuActions->setVisible(state.ArchiveOpen);
    ui_->mnuDetails->setVisible(state.DetailsVisible);
    ui_->lblFName->setText(state.DetailsName);
    ui_->lblFSize->setText(state.DetailsSize);
    ui_->picDetails->Follow(editor_.Previewed());
    status_->setText(state.StatusText);
    const QString tool = u"BIG Editor"_s;
    setWindowTitle(state.ArchiveOpen ? LastPart(mBIG::BigFileName) + u"[*] - "_s + tool : tool);
    setWindowModified(state.Modified);
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
    frmVersion(this).exec();
}

void frmBigEditor::ShowBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

std::vector<int> frmBigEditor::SelectedRows() const {
    return ui_->lvFiles->SelectedRows();
}

void frmBigEditor::EditNode(int node) {
    ui_->tvDirs->edit(treeModel_->IndexOf(node));
}

ExtractionTarget frmBigEditor::AskForFolder() {
    return {};
}

void frmBigEditor::EnableWindow(bool enabled) {
    setEnabled(enabled);
}

quintptr frmBigEditor::Handle() const {
    return winId();
}
