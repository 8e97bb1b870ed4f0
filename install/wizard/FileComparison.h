// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Whether a file that is to be installed holds what another one does.
#pragma once

#include "install/wizard/ItemFiles.h"

namespace FileComparison {

/// Against the file at an inside path. An entry is compared by its length and checksum, a loose file by its bytes. What
/// can't be read is another one.
bool IsSame(const SourceFile& file, const QString& path);

/// What an entry of an archive holds.
struct Content {
    qint64 Size = 0;
    quint32 Crc = 0; ///< 0: not known, but of nothing
};

bool IsSame(const SourceFile& file, const Content& other);

} // namespace FileComparison
