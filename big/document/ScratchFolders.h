// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Folders in the scratch folder `Temp` that one running program has for itself, its process's number in their names.
#pragma once

#include <QString>

namespace ScratchFolders {

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
