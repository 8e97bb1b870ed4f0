// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Folders that one running program has for itself: its scratch folder, and in it those of drags, with its process's
/// number in their names.
#pragma once

#include "platform/FolderLock.h"

#include <QString>

#include <memory>

namespace ScratchFolders {

/// Takes a scratch folder for this process as long as it lives: `Temp` for the first one, for each further one a folder
/// of its own below it, so that no save deletes another program's files. Where no lock is to be had it is `Temp`.
class Claim {
public:
    Claim();
    ~Claim();
    Claim(const Claim&) = delete;
    Claim& operator=(const Claim&) = delete;

private:
    std::unique_ptr<FolderLock> lock_;
};

/// Where the rows of a drag are extracted: apart from the files of modified entries that are not saved yet. An inside
/// path with a trailing backslash, like the other.
QString Dragged();

/// Where files dragged out of another BIG Editor are kept until they are saved.
QString Dropped();

/// Whether a path lies in the folder of a drag, of this program or another one.
bool IsDragged(const QString& path);

/// Removes what programs left that run no more: a file that was dragged out is copied when the drag is long over, so
/// that its folder stays behind the program that made it.
void RemoveAbandoned();

} // namespace ScratchFolders
