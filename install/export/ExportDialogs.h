// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the page of the export asks and does, without a control.
#pragma once

#include "install/export/Exporting.h"

namespace ExportDialogs {

/// All names in their order, with ", " between them.
QString ListedNames(const std::vector<ExportRecord>& records);

/// Whether one of them is a mod.
bool HasMods(const std::vector<ExportRecord>& records);

/// The text of a file (an inside path) that is to be the read-me. Raises when it has more than 1 MiB or can't be read.
QString ReadMeOf(const QString& path);

/// Has the user choose a text file and gives its text; nothing when that is cancelled. A file of more than 1 MiB, or
/// one that can't be read, brings a message.
std::optional<QString> OpenReadMe();

/// Has the user choose a ZIP, and whether names that the ANSI page lacks letters for are stored in UTF-8, and exports
/// into it; nothing when one of these is cancelled.
std::optional<ExportReport> RunToZip(const std::vector<ExportRecord>& records, ExportChoice choice,
                                     const ExportWatch& watch);

/// Has the user choose a folder and exports into it; nothing when that is cancelled.
std::optional<ExportReport> RunToFolder(const std::vector<ExportRecord>& records, const ExportChoice& choice,
                                        const ExportWatch& watch);

} // namespace ExportDialogs
