// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Who is told of each file that is written: a journal.
#pragma once

#include "install/HashedFile.h"

#include <QString>

class FileWatch {
public:
    FileWatch() = default;
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;
    virtual ~FileWatch() = default;

    /// A folder was made, an inside path without a trailing backslash: nothing is in it.
    virtual void MadeFolder(const QString& /*path*/) {}

    /// A file at that inside path, in the disk's own case, is to be written. What stands there still does, and nothing
    /// of the new one is in its folder yet. What this raises keeps the file from being written.
    virtual void WillWrite(const QString& path) = 0;

    /// In the place of WillWrite, for a file that is to be put in one step where nothing stands, and that holds what is
    /// told here. False: this one is to be written by way of WillWrite; that is called too where it could not be put.
    virtual bool WillPut(const QString& /*path*/, const HashedFile& /*hashed*/) { return false; }

    /// It was written. Without this call, it could not be.
    virtual void Written(const QString& path) = 0;

    /// In the place of Written, where the bytes were at hand: nobody needs to read them again.
    virtual void WrittenAs(const QString& path, const HashedFile& /*hashed*/) { Written(path); }
};
