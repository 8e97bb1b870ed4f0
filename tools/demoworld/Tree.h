// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Folders, archives, string tables and replays to measure with.
#pragma once

#include <QString>

namespace Demo {

/// A tree of files like a game's own, the same each time: most of 1 to 50 KB, some of 1 to 20 MB, half of them text, in
/// nested folders, names unique whatever their case. `folder` is a native path. Returns an empty text, or what failed.
QString MakeTree(const QString& folder, int files, qint64 bytes);

/// An archive of tiny entries in one folder, or spread over nested folders. `file` is a native path.
QString MakeTinyArchive(const QString& file, int entries, bool nested);

/// A French string table. `file` is a native path.
QString MakeStrings(const QString& file, int rows);

/// A folder of replays of the first game. `folder` is a native path.
QString MakeReplays(const QString& folder, int count);

} // namespace Demo
