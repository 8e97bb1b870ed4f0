// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/document/CheckedRows.h"

#include "platform/Files.h"
#include "platform/RuntimeError.h"

namespace {

/// What can't be asked counts as nothing.
qint64 SizeOf(PersonalKind kind, const QString& key) {
    qint64 size = 0;
    if (kind == PersonalKind::Replay || kind == PersonalKind::Mod) {
        Ignoring([&] { size = Files::FileLength(key); });
        return size;
    }
    for (const Files::FoundFile& file : Files::ListFolderFiles(key, false))
        size += file.Size;
    return size;
}

} // namespace

void CheckedRows::Clear() {
    sizes_.clear();
    size_ = 0;
}

void CheckedRows::Set(PersonalKind kind, const ListRow& row, bool checked) {
    if (checked == sizes_.contains(row.Key))
        return;
    if (!checked) {
        size_ -= sizes_.take(row.Key);
        return;
    }
    const qint64 size = SizeOf(kind, row.Key);
    sizes_.insert(row.Key, size);
    size_ += size;
}
