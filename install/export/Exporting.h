// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Players' files on their way out: into one ZIP, or as copies into a folder. What fails is passed over and told in the
/// report.
#pragma once

#include "install/export/ExportReport.h"
#include "install/export/ExportSource.h"

#include <functional>
#include <optional>

struct ExportChoice {
    std::optional<QString> ReadMe{}; ///< its text, line breaks as CR LF; a ZIP only has one
    bool ModRecords = false;         ///< an INI file with each mod that has a name or comments
    bool Utf8Names = false;          ///< in a ZIP, for names that the ANSI page lacks letters for
};

/// What is asked and told between files, and between the pieces of long ones.
struct ExportWatch {
    std::function<void(int percent)> Progress{}; ///< 0 to 100, by bytes
    std::function<bool()> Yield{};               ///< false ends the work
};

namespace Exporting {

/// Writes a ZIP, over what stands there. Of maps and shell maps the names begin with the folder's, of mods and replays
/// they are the files' alone. One that was cancelled leaves nothing behind,
/// but where a record behind it packs the ZIP itself: then it is written behind each.
ExportReport ToZip(const std::vector<ExportSource>& sources, const QString& zip, const ExportChoice& choice,
                   const ExportWatch& watch = {});

/// Copies into a folder, which is made when missing, over what stands there; never through a link out of it. What was
/// copied before it was cancelled stays.
ExportReport ToFolder(const std::vector<ExportSource>& sources, const QString& folder, const ExportChoice& choice,
                      const ExportWatch& watch = {});

} // namespace Exporting
