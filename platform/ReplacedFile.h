// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What is kept of a file that is saved over, for those who do that in a way of their own; WriteAside keeps the same.
#pragma once

#include "platform/File.h"

#include <QString>

namespace ReplacedFile {

/// The file that an inside path leads to, links followed, also where nothing stands there yet.
QString BehindLinks(const QString& path);

/// True for a file that we may not write, or that nobody may: the system's administrator keeps such a one too.
bool IsWriteProtected(const QString& path);

/// Gives an open file the permissions of the one that stood there, and its owner as far as that is allowed. False when
/// it has not got the permissions.
bool KeepOwnerAndMode(const File& file, const QString& old);

/// While this lives another file may be put in the place of an open one whose bytes are still needed; behind it the
/// file is open as before, and is gone from the disk when it is closed. Where the system can't do that the file is
/// closed.
class StaysOpen {
public:
    /// `path` is the open file's inside path; the file outlives this.
    StaysOpen(File& file, const QString& path);
    ~StaysOpen();
    StaysOpen(const StaysOpen&) = delete;
    StaysOpen& operator=(const StaysOpen&) = delete;

private:
    File& file_;
    QString name_; ///< the system's path of a second name that holds the bytes; empty where none is needed
};

} // namespace ReplacedFile
