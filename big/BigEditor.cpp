// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/BigEditor.h"

#include "core/Host.h"
#include "core/Settings.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// The busy pointer for the length of a block.
class Busy {
public:
    explicit Busy(EditorView& view) : view_(view) { view_.ShowBusy(true); }

    ~Busy() { view_.ShowBusy(false); }

    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    EditorView& view_;
};

/// Whole kilobytes; less than one shows as 0.
QString KiloBytes(qint64 bytes) {
    return QLocale().toString(bytes / 1024) + u' ' + GetText(u"KiloBytes"_s);
}

qint64 CurrentSize(const BigEntry& entry) {
    qint64 size = 0;
    Ignoring([&] { size = entry.IsNew ? Files::FileLength(entry.SourcePath) : entry.Size; });
    return size;
}

} // namespace

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

void BigEditor::ClearPreview() {
    if (!state_.PreviewSoundFile.isEmpty())
        Ignoring([&] { Files::Delete(state_.PreviewSoundFile); });
    state_.PreviewSoundFile.clear();
}

void BigEditor::CreateDirs() {
    tree_.CreateDirs(LastPart(mBIG::BigFileName), mBIG::BigEntries);
    state_.SelectedNode = FolderTree::None;
    view_.TreeChanged();
    ShowFolder({});
}

void BigEditor::ShowFolder(const QString& folderKey) {
    const Busy busy(view_);
    // A folder that has gone leaves the selected node as it is: its folders show, without files.
    if (const int node = tree_.Find(folderKey); node != FolderTree::None)
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
    ShowFolder(key);
}

void BigEditor::ClickRow(int place) {
    if (place < 0 || place >= list_.Count())
        return;
    const FileRow& row = list_.Row(place);
    state_.ModifyEnabled = !row.IsFolder;
    state_.DetailsVisible = !row.IsFolder;
    state_.FocusPane = FocusedPane::List;
    ClearPreview();
    // The table may have been replaced by that of a refused archive.
    const auto index = static_cast<std::size_t>(row.Index);
    if (!row.IsFolder && index < mBIG::BigEntries.size()) {
        const BigEntry& entry = mBIG::BigEntries[index];
        state_.StatusText = entry.Name;
        state_.DetailsName = list_.Text(place);
        state_.DetailsSize = KiloBytes(CurrentSize(entry));
    }
    view_.StateChanged();
}

void BigEditor::ActivateRow(int place) {
    if (place >= 0 && place < list_.Count() && list_.Row(place).IsFolder)
        ClickNode(list_.Row(place).Index);
}

ViewMode BigEditor::View() {
    bool isNumber = false;
    const int value = ReadSetting(u"BigView"_s).toInt(&isNumber);
    return isNumber && value >= 0 && value <= 3 ? static_cast<ViewMode>(value) : ViewMode::SmallIcons;
}

void BigEditor::SetView(ViewMode mode) {
    WriteSetting(u"BigView"_s, QString::number(static_cast<int>(mode)));
}
