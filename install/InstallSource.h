// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a file holds that is to be installed: a value, which the pages of adding files show and the installation works
/// from.
#pragma once

#include "core/Game.h"

#include <QString>

#include <vector>

/// The kinds of files, of an ExportRecord too.
namespace FileKind {
inline constexpr qint32 None = -1; ///< of a file that nothing is done with
inline constexpr qint32 Map = 0;
inline constexpr qint32 Mod = 1;
inline constexpr qint32 Replay = 2;
inline constexpr qint32 ShellMap = 3;
} // namespace FileKind

struct InstallRecord {
    QString FileName;  ///< without folders
    QString EntryPath; ///< the entry's name as the archive has it; the full inside path of a single file
    QString ZipPath;   ///< the archive, an inside path; empty for a single file
    qint32 Kind = FileKind::Map;
    QString DisplayName;   ///< of mods and shell maps only
    QString Comments;      ///< likewise
    bool Selected = false; ///< ticked; of a single file nobody asks

    friend bool operator==(const InstallRecord&, const InstallRecord&) = default;
};

/// An entry that is not installed, and the key of the text that tells why.
struct PassedOverEntry {
    QString Name;
    QString Reason;

    friend bool operator==(const PassedOverEntry&, const PassedOverEntry&) = default;
};

struct InstallSource {
    bool SourceIsZip = false;
    InstallRecord SingleFile;                  ///< where it is no ZIP
    std::vector<InstallRecord> InstallRecords; ///< what was recognised in a ZIP, in the archive's order
    std::vector<PassedOverEntry> PassedOver;   ///< what else is in a ZIP and goes with no map; no folders
};

/// What the pages of adding files hand to each other.
namespace AddFiles {
extern InstallSource Source;
extern GameIndex ActiveGame;
} // namespace AddFiles
