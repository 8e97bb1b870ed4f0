// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BigEditor.h"
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

} // namespace

void BigEditor::ClearPreview() {
    preview_.Clear();
}

void BigEditor::ClickRow(int place) {
    if (place < 0 || place >= list_.Count())
        return;
    // A preview opens files under the numbers that the save or the extraction under way is using.
    if (busy_) {
        EnterList();
        return;
    }
    const FileRow row = list_.Row(place);
    if (row.IsFolder) {
        preview_.ShowFolderRow();
        state_.ModifyEnabled = false;
        state_.DetailsVisible = false;
        state_.FocusPane = FocusedPane::List;
    } else if (!ShowDetails(row.Index, list_.Text(place))) {
        return;
    }
    view_.StateChanged();
}

bool BigEditor::ShowDetails(int index, const QString& rowText) {
    // A record that is gone counts as one whose file is gone: the test for it fails, and a failing test holds.
    const bool there = static_cast<std::size_t>(index) < mBIG::BigEntries.size();
    BigEntry missing;
    BigEntry& entry = there ? mBIG::BigEntries[static_cast<std::size_t>(index)] : missing;
    if (!there || (entry.IsNew && !Files::FileExists(entry.SourcePath))) {
        Host::Current().Message(GetText(u"FileNotFound"_s), Host::Icon::Critical);
        entry.Deleted = true;
        ShowFolder(SelectedKey());
        return false;
    }
    state_.ModifyEnabled = true;
    state_.DetailsVisible = true;
    state_.StatusText = entry.Name;
    state_.DetailsName = rowText;
    state_.DetailsSize = Sizes::KiloBytes(CurrentSize(entry));
    // Meant so: a sound that is in place already leaves the commands with the pane that they act on.
    if (preview_.ShowFile(index, rowText))
        state_.FocusPane = FocusedPane::List;
    return true;
}

QString BigEditor::SelectionText() const {
    if (!state_.ArchiveOpen)
        return {};
    const std::vector<int> places = view_.SelectedRows();
    if (places.empty())
        return GetText(u"RowCount"_s).replace("%1"_L1, Sizes::Grouped(list_.Count()));
    qint64 bytes = 0;
    for (const int place : places)
        bytes += list_.Row(place).Size;
    return GetText(u"RowsSelected"_s)
        .replace("%1"_L1, Sizes::Grouped(static_cast<qint64>(places.size())))
        .replace("%2"_L1, Sizes::KiloBytes(bytes));
}
