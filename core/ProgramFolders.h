// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The program's folder, and the scratch folder in it.
#pragma once

#include <QString>

namespace ProgramFolders {

/// The program's folder without a trailing backslash; set at start-up (mMain::UseRuntimes).
extern QString ProgramFolder;

/// Names the program's folder. Where no file can be made in it, as one that a package manager looks after, what the
/// program writes there goes into the user's own folders.
void Use(const QString& programFolder);

/// Where the folders for temporary files are: the program's folder, or the user's own. No trailing backslash.
QString WorkFolder();

/// The same for what the program tells of itself.
QString LogFolder();

/// "Temp" in the work folder, where nothing lasts, or the folder below it that UseScratchBelow named; no trailing
/// backslash.
QString ScratchFolder();

/// "Temp" itself, which all processes of the program share.
QString SharedScratchFolder();

/// Has this process work in a folder of its own below "Temp"; an empty name is "Temp" itself.
void UseScratchBelow(const QString& name);

} // namespace ProgramFolders
