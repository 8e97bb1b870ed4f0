// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The files that a path or a pattern names, in the order in which they go into an archive: a folder's own, by name
/// without regard to case, then those of its subfolders, depth first.
#pragma once

#include <QString>

#include <functional>

namespace ZipWalk {

struct Visitor {
    std::function<void(const QString& path)> File; ///< with the inside path of each; what it raises ends the walk
    std::function<void()> BehindFolder;            ///< behind each subfolder
};

/// Visits the file of exactly that absolute path or, where there is none and the name holds a '*', the folder's files
/// whose names fit it (platform/Wildcards.h, IsLike); with `recurse`, whichever it was, the same name in all subfolders
/// below. What a walk finds by itself are plain files: a link to a folder is not entered, and a link to a file is taken
/// only where that lies below the folder too. Without such a file, and without a '*', nothing is visited. Raises 76 for
/// a folder that can't be listed and 93 for a name that is no pattern.
void Walk(const QString& path, bool recurse, const Visitor& visitor);

} // namespace ZipWalk
