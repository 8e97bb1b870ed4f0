// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/RowDetails.h"

#include "core/Host.h"
#include "core/Sizes.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

qint64 CurrentSize(const BigEntry& entry) {
    qint64 size = 0;
    Ignoring([&] { size = entry.IsNew ? Files::FileLength(entry.SourcePath) : entry.Size; });
    return size;
}

bool IsEntry(int index) {
    return index >= 0 && static_cast<std::size_t>(index) < mBIG::BigEntries.size();
}

BigEntry& EntryAt(int index) {
    return mBIG::BigEntries[static_cast<std::size_t>(index)];
}

/// A record that is gone counts as one whose file is gone: the test for it fails, and a failing test holds.
bool IsGone(int index) {
    return !IsEntry(index) || (EntryAt(index).IsNew && !Files::FileExists(EntryAt(index).SourcePath));
}

} // namespace

RowDetails::RowDetails(EditorPanes& panes) : panes_(panes), preview_([&panes] { panes.View.StateChanged(); }) {}

void RowDetails::Show(int place) {
    if (place < 0 || place >= panes_.List.Count())
        return;
    EditorState& state = panes_.State;
    // A preview opens files under the numbers that the save or the extraction under way is using.
    if (mBIG::ArchiveLock::IsHeld()) {
        state.FocusPane = FocusedPane::List;
        return;
    }
    const FileRow row = panes_.List.Row(place);
    if (row.IsFolder) {
        Hide();
        state.FocusPane = FocusedPane::List;
    } else if (!ShowFile(row.Index, panes_.List.Text(place))) {
        return;
    }
    panes_.View.StateChanged();
}

void RowDetails::Hide() {
    preview_.ShowFolderRow();
    panes_.State.ModifyEnabled = false;
    panes_.State.DetailsVisible = false;
}

bool RowDetails::Tells(int place) const {
    return place >= 0 && place < panes_.List.Count() && !panes_.List.Row(place).IsFolder &&
           panes_.List.Row(place).Index == shown_;
}

void RowDetails::Follow(int place) {
    if (!panes_.State.DetailsVisible || mBIG::ArchiveLock::IsHeld())
        return;
    const FocusedPane pane = panes_.State.FocusPane;
    if (place < 0 || place >= panes_.List.Count() || panes_.List.Row(place).IsFolder ||
        IsGone(panes_.List.Row(place).Index))
        Hide();
    else if (const int index = panes_.List.Row(place).Index; index != shown_ || EntryAt(index) != shownEntry_)
        Show(place);
    panes_.State.FocusPane = pane;
    panes_.View.StateChanged();
}

void RowDetails::NamesChanged() {
    const FileList& list = panes_.List;
    for (int place = 0; panes_.State.DetailsVisible && place < list.Count(); ++place) {
        if (list.Row(place).IsFolder || list.Row(place).Index != shown_ || IsGone(shown_))
            continue;
        shownEntry_ = EntryAt(shown_);
        panes_.State.StatusText = shownEntry_.Name;
        panes_.State.DetailsName = list.Text(place);
        return panes_.View.StateChanged();
    }
}

bool RowDetails::ShowFile(int index, const QString& rowText) {
    EditorState& state = panes_.State;
    if (IsGone(index)) {
        Host::Current().Message(GetText(u"FileNotFound"_s), Host::Icon::Critical);
        if (IsEntry(index))
            EntryAt(index).Deleted = true;
        panes_.ShowSelected();
        return false;
    }
    const BigEntry& entry = EntryAt(index);
    shown_ = index;
    shownEntry_ = entry;
    state.ModifyEnabled = true;
    state.DetailsVisible = true;
    state.StatusText = entry.Name;
    state.DetailsName = rowText;
    state.DetailsSize = Sizes::KiloBytes(CurrentSize(entry));
    // A sound that is in place already leaves the commands with the pane that they act on. This is meant.
    if (preview_.ShowFile(index, rowText))
        state.FocusPane = FocusedPane::List;
    return true;
}

QString RowDetails::SelectionText() const {
    if (!panes_.State.ArchiveOpen)
        return {};
    const std::vector<int> places = panes_.View.SelectedRows();
    if (places.empty())
        return GetText(u"RowCount"_s).replace("%1"_L1, Sizes::Grouped(panes_.List.Count()));
    qint64 bytes = 0;
    bool areFolders = true;
    for (const int place : places) {
        bytes += panes_.List.Row(place).Size;
        areFolders = areFolders && panes_.List.Row(place).IsFolder;
    }
    return GetText(areFolders ? u"FoldersSelected"_s : u"RowsSelected"_s)
        .replace("%1"_L1, Sizes::Grouped(static_cast<qint64>(places.size())))
        .replace("%2"_L1, Sizes::KiloBytes(bytes));
}
