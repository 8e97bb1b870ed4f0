// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BigEditor.h"

#include "big/document/OffsetNotices.h"
#include "core/Host.h"
#include "core/LastTime.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/mTraduction.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

BigEditor::BigEditor(EditorView& view) : panes_(view), offers_(view, ForOffers()) {
    panes_.Selected = [this](int place) { details_.Follow(place); };
    saves_.OnWritten([this] { rescue_.Saved(); });
}

BigEditor::~BigEditor() {
    FileAdding::ForgetAdopted();
    // The next window may have its archive open already.
    if (panes_.Shown != nullptr && panes_.Shown == mBIG::CurrentIdentity())
        Ignoring([] { mBIG::Close(); });
}

void BigEditor::OpenBigFile(const QString& path) {
    const bool isThere = Files::FileExists(path);
    if (isThere && EditorPanes::Locked())
        return;
    if (isThere) {
        panes_.View.ShowWindow();
        LoadOrBeep(path);
    } else if (offers_.TellBeside(path)) {
        // A save that was killed may have left nothing else.
        panes_.View.ShowWindow();
    }
}

void BigEditor::LoadOrBeep(const QString& path) {
    if (LoadBig(path)) {
        ResetAfterOpen();
    } else {
        Host::Current().Beep();
        panes_.View.ShowNotice({.Text = GetText(u"NotOpened"_s).replace("%1"_L1, RefusalOf(path))});
    }
    offers_.TellBeside(path);
}

QString BigEditor::RefusalOf(const QString& path) {
    const QString name = Paths::ToNative(path);
    if (!SaveCommand::IsArchiveName(path))
        return GetText(u"NoBigName"_s).replace("%1"_L1, name);
    try {
        static_cast<void>(File::Open(path, File::Access::Read));
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return GetText(u"NotABigFile"_s).replace("%1"_L1, name);
}

bool BigEditor::LoadBig(const QString& path) {
    if (!SaveCommand::IsArchiveName(path))
        return false;
    const Busy busy(panes_.View);
    if (!Ignoring([&] { mBIG::Load(path); }))
        return false;
    rescue_.Opened(ArchiveRescue::Origin::File);
    TakeNewArchive();
    panes_.State.StatusText = GetText(u"Ready"_s);
    return true;
}

/// What was known of the archive that was open before is forgotten, and the root shown.
void BigEditor::TakeNewArchive() {
    panes_.Shown = mBIG::CurrentIdentity();
    saves_.ForgetOriginals();
    copies_.EntriesGone();
    panes_.State.ShowsOnlyEntry = false;
    panes_.CreateDirs();
}

void BigEditor::ResetAfterOpen() {
    panes_.State.DetailsVisible = false;
    panes_.State.Modified = false;
    panes_.State.ExactOffsets = OffsetNotices::IsExactByDefault();
    ArchiveOpened();
    saves_.TellOpened();
}

void BigEditor::ArchiveOpened() {
    details_.Clear();
    panes_.State.NewFolderNumber = 1;
    panes_.State.SelectedNode = FolderTree::Root;
    panes_.State.FocusPane = FocusedPane::Tree;
    panes_.State.ArchiveOpen = true;
    panes_.View.StateChanged();
}

void BigEditor::ClickNode(int node) {
    if (!panes_.Tree.Has(node))
        return;
    const QString key = panes_.Tree.Node(node).Key;
    EditorState& state = panes_.State;
    state.StatusText = key;
    state.DetailsVisible = false;
    state.FocusPane = FocusedPane::Tree;
    state.ModifyEnabled = false;
    details_.Clear();
    state.SelectedNode = node;
    panes_.ShowFolder(key);
}

void BigEditor::EnterList() {
    if (panes_.State.ArchiveOpen)
        panes_.State.FocusPane = FocusedPane::List;
}

void BigEditor::FollowSelection() {
    const std::vector<int> places = panes_.View.SelectedRows();
    if (!places.empty() && !std::ranges::any_of(places, [this](int place) { return details_.Tells(place); }))
        details_.Follow(places.front());
}

void BigEditor::OfferRow(int place) {
    if (place < 0 || place >= panes_.List.Count())
        return;
    panes_.State.FocusPane = FocusedPane::List;
    details_.Follow(place);
    panes_.State.ModifyEnabled = !panes_.List.Row(place).IsFolder;
    panes_.View.StateChanged();
}

bool BigEditor::GoToEntry(int index, const QString& name) {
    const auto isEntry = [&](int at) {
        if (at < 0 || static_cast<std::size_t>(at) >= mBIG::BigEntries.size())
            return false;
        const BigEntry& entry = mBIG::BigEntries[static_cast<std::size_t>(at)];
        return !entry.Deleted && entry.Name.compare(name, Qt::CaseInsensitive) == 0;
    };
    const int found = isEntry(index) ? index : mBIG::FindEntry(name);
    if (!isEntry(found)) {
        Host::Current().Beep();
        return false;
    }
    if (const int place = panes_.ShowEntry(found); place >= 0)
        details_.Show(place);
    return true;
}

bool BigEditor::RenameNode(int node, const QString& text) {
    const bool renamed = changes_.RenameNode(node, text);
    details_.NamesChanged();
    return renamed;
}

bool BigEditor::RenameRow(int place, const QString& text) {
    const bool renamed = changes_.RenameRow(place, text);
    details_.NamesChanged();
    return renamed;
}

void BigEditor::Modify() {
    panes_.View.CommitEdit();
    const std::vector<int> places = panes_.View.SelectedRows();
    if (!places.empty())
        copies_.Modify(places.front(), OpenCopies::Trigger::Menu);
}

void BigEditor::ActivateRow(int place) {
    if (place >= 0 && place < panes_.List.Count() && panes_.List.Row(place).IsFolder)
        ClickNode(panes_.List.Row(place).Index);
    else
        copies_.Modify(place, OpenCopies::Trigger::Row);
}

/// The questions that come before another archive takes the place of the open one.
bool BigEditor::MayLeaveArchive() {
    if (!copies_.TakeInChanged())
        return false;
    const bool asks = panes_.State.Modified;
    if (!saves_.GoOnWithoutChanges())
        return false;
    if (asks)
        rescue_.GivenUp();
    else
        rescue_.KeepWhole();
    return true;
}

bool BigEditor::MayEnd() {
    if (EditorPanes::Locked())
        return false;
    const EditorPanes::Command command(panes_);
    return MayLeaveArchive();
}

bool BigEditor::MayClose() {
    if (!MayEnd())
        return false;
    copies_.Forget();
    return true;
}

void BigEditor::New() {
    if (EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    if (!MayLeaveArchive())
        return;
    const auto path = Host::Current().SaveFileName(SaveCommand::ArchiveDialog());
    if (!path)
        return;
    mBIG::BigFileName = *path;
    mBIG::BigVersion = 2;
    panes_.State.ExactOffsets = OffsetNotices::IsExactByDefault();
    panes_.View.ShowVersion();
    mBIG::New(*path, mBIG::BigVersion);
    rescue_.Opened(ArchiveRescue::Origin::Fresh);
    TakeNewArchive();
    panes_.View.ShowNotice({});
    // The flag for unsaved changes and the details stay as they were. This is meant.
    ArchiveOpened();
}

void BigEditor::Open() {
    if (EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    if (!MayLeaveArchive())
        return;
    const auto path = Host::Current().OpenFileName(SaveCommand::OpenDialog());
    if (!path)
        return;
    LastTime::NoteFolder(u"big"_s, Paths::Folder(*path));
    LoadOrBeep(*path);
}

void BigEditor::OpenInstead(const QString& path) {
    if (EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    if (MayLeaveArchive())
        LoadOrBeep(path);
}

void BigEditor::GoUp() {
    const int node = panes_.State.SelectedNode;
    if (!panes_.Tree.Has(node) || panes_.Tree.Node(node).Parent == FolderTree::None)
        return;
    ClickNode(panes_.Tree.Node(node).Parent);
    for (int place = 0; place < panes_.List.Count(); ++place)
        if (panes_.List.Row(place).IsFolder && panes_.List.Row(place).Index == node)
            panes_.View.Reveal({place});
}

bool BigEditor::ExtractBigFile(const QString& path) {
    if (!Files::FileExists(path) || EditorPanes::Locked())
        return false;
    if (LoadBig(path)) {
        panes_.State.SelectedNode = FolderTree::Root;
        panes_.State.FocusPane = FocusedPane::Tree;
        Extract();
    } else {
        Host::Current().Beep();
    }
    return true;
}

// The version is no unsaved change. This is meant.
void BigEditor::FileVersion() {
    if (EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    const qint32 version = mBIG::BigVersion;
    const bool exact = panes_.State.ExactOffsets;
    panes_.View.ShowVersion();
    if (version != mBIG::BigVersion || exact != panes_.State.ExactOffsets)
        panes_.TellUnmarked();
}

ViewMode BigEditor::View() {
    bool isNumber = false;
    const int value = ReadSetting(SettingKeys::BigView).toInt(&isNumber);
    return isNumber && value >= 0 && value <= 3 ? static_cast<ViewMode>(value) : ViewMode::SmallIcons;
}

void BigEditor::SetView(ViewMode mode) {
    WriteSetting(SettingKeys::BigView, QString::number(static_cast<int>(mode)));
}
