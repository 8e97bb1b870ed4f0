// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Tells what a file is, and of a ZIP what each of its entries is.
#pragma once

#include "install/InstallSource.h"

class ccZip;

namespace Analysis {

/// Whether a file of that name can be added: by its last three characters, small letters as here.
bool Accepts(const QString& fileName);

/// Whether a name is exactly one of the two that the games' shell maps have, capitals or not.
bool IsShellMapName(const QString& fileName);

/// Whether the INI files beside mods and shell maps are read.
enum class Records {
    Read,
    Left, ///< no name and no comments then, and nothing is written
};

/// A file by its full inside path and its name, by the last three characters of that without regard to case. A ZIP's
/// directory is read into `zip`, which stays open for who extracts from it; INI files beside entries are extracted to
/// ScratchFolder and taken away again. A ZIP with nothing to install, or that can't be read, has no records. Raises 53
/// with the reason for an INI file that can't be extracted. Yields.
InstallSource Analyse(const QString& filePath, const QString& fileName, ccZip& zip, Records records = Records::Read);

} // namespace Analysis
