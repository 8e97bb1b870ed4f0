// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/BigEditor.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <QLocale>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

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

void BigEditor::ClearPreview() {
    if (!state_.PreviewSoundFile.isEmpty())
        Ignoring([&] { Files::Delete(state_.PreviewSoundFile); });
    state_.PreviewSoundFile.clear();
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
