// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The rows with a check mark: how many there are, and the size of what they stand for. A file is asked for its length
/// once, when its row gets the mark.
#pragma once

#include "core/rows/RowList.h"
#include "personal/document/PersonalFilesView.h"

#include <QHash>

class CheckedRows {
public:
    void Clear();

    /// A row got its check mark or lost it, for the first time or again.
    void Set(PersonalKind kind, const ListRow& row, bool checked);

    [[nodiscard]] int Count() const { return static_cast<int>(sizes_.size()); }

    /// Bytes: of a replay or mod the file, of a map or shell map the files of its folder.
    [[nodiscard]] qint64 Size() const { return size_; }

private:
    QHash<QString, qint64> sizes_; ///< by the rows' keys
    qint64 size_ = 0;
};
