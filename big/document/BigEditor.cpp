// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BigEditor.h"

#include "core/Host.h"
#include "core/Settings.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

BigEditor::BigEditor(EditorView& view) : view_(view) {
    state_.StatusText = GetText(u"Ready"_s);
}

void BigEditor::OpenBigFile(const QString& path) {
    if (!Files::FileExists(path) || Locked())
        return;
    view_.ShowWindow();
    if (LoadBig(path))
        ResetAfterOpen();
    else
        Host::Current().Beep();
}

bool BigEditor::LoadBig(const QString& path) {
    if (path.last(std::min<qsizetype>(path.size(), 3)).toLower() != "big"_L1)
        return false;
    const Busy busy(view_);
    // A refused file has its records in the table by then; those of the archive in the window come back, as a save
    // would write the others over it.
    std::vector<BigEntry> before = mBIG::BigEntries;
    if (!mBIG::ReadBigFile(path)) {
        mBIG::BigEntries = std::move(before);
        return false;
    }
    ++table_;
    mBIG::BigFileName = path;
    CreateDirs();
    state_.StatusText = GetText(u"Ready"_s);
    return true;
}

void BigEditor::ResetAfterOpen() {
    state_.DetailsVisible = false;
    state_.Modified = false;
    ArchiveOpened();
}

void BigEditor::ArchiveOpened() {
    ClearPreview();
    state_.NewFolderNumber = 1;
    state_.SelectedNode = FolderTree::Root;
    state_.FocusPane = FocusedPane::Tree;
    state_.ArchiveOpen = true;
    view_.StateChanged();
}

void BigEditor::CreateDirs() {
    tree_.CreateDirs(Paths::LastPart(mBIG::BigFileName), mBIG::BigEntries);
    state_.SelectedNode = FolderTree::None;
    view_.TreeChanged();
    ShowFolder({});
}

void BigEditor::ShowFolder(const QString& folderKey) {
    const Busy busy(view_);
    // A folder that has gone leaves the selected node as it is: its folders show, without files.
    // Of two nodes with one key, the selected one stays.
    const bool selected = tree_.Has(state_.SelectedNode) && SelectedKey() == folderKey;
    if (const int node = tree_.Find(folderKey); node != FolderTree::None && !selected)
        state_.SelectedNode = node;
    state_.FileIcons = ReadSetting(u"ViewFileIcons"_s) == "1"_L1;
    list_.ShowFolder(tree_, state_.SelectedNode, folderKey, mBIG::BigEntries, GetText(u"Folder"_s));
    view_.ListChanged();
    view_.StateChanged();
}

QString BigEditor::SelectedKey() const {
    return tree_.Has(state_.SelectedNode) ? tree_.Node(state_.SelectedNode).Key : QString();
}

void BigEditor::ClickNode(int node) {
    if (!tree_.Has(node))
        return;
    const QString key = tree_.Node(node).Key;
    state_.StatusText = key;
    state_.DetailsVisible = false;
    state_.FocusPane = FocusedPane::Tree;
    state_.ModifyEnabled = false;
    ClearPreview();
    state_.SelectedNode = node;
    ShowFolder(key);
}

void BigEditor::EnterList() {
    if (state_.ArchiveOpen)
        state_.FocusPane = FocusedPane::List;
}

void BigEditor::OfferRow(int place) {
    if (place < 0 || place >= list_.Count())
        return;
    state_.FocusPane = FocusedPane::List;
    state_.ModifyEnabled = !list_.Row(place).IsFolder;
    view_.StateChanged();
}

ViewMode BigEditor::View() {
    bool isNumber = false;
    const int value = ReadSetting(u"BigView"_s).toInt(&isNumber);
    return isNumber && value >= 0 && value <= 3 ? static_cast<ViewMode>(value) : ViewMode::SmallIcons;
}

void BigEditor::SetView(ViewMode mode) {
    WriteSetting(u"BigView"_s, QString::number(static_cast<int>(mode)));
}
