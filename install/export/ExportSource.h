// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a record of the export stands for, found before anything is written.
#pragma once

#include "install/export/ExportReport.h"
#include "personal/lists/ExportRecords.h"

#include <QStringList>

#include <vector>

struct ExportFile {
    QString Path;    ///< inside path
    QString Name;    ///< where it goes to, below the target
    qint64 Size = 0; ///< bytes
};

struct ExportSource {
    ExportRecord Record;
    std::vector<ExportFile> Files; ///< plain ones: a folder's own by name, then those of its subfolders, depth first
    QStringList Folders;           ///< below the target, each behind the one that it lies in
    std::vector<ExportLine> Other; ///< what is there and is not taken
};

namespace ExportSources {

/// Looks at the disk for each record. What is missing or can't be listed has no files. A link to a folder is not
/// entered, and a link to a file is taken only where that lies below the record's folder too.
std::vector<ExportSource> Of(const std::vector<ExportRecord>& records);

/// The bytes of all files together.
qint64 Bytes(const std::vector<ExportSource>& sources);

/// The files' names that the ANSI page lacks letters for.
QStringList NamesBeyondThePage(const std::vector<ExportSource>& sources);

/// What to call a record where its name can't be a folder's: an empty one is called as the folder it stands in.
QString NameOf(const ExportRecord& record);

/// A name below the target as the system writes it.
QString Shown(const QString& name);

} // namespace ExportSources
