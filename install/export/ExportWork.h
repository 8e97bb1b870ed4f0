// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the export into a ZIP and the one into a folder share: how far they have come, scratch, and a mod's record.
#pragma once

#include "install/export/Exporting.h"
#include "platform/FolderLock.h"

#include <QByteArray>
#include <QString>

/// Counts bytes, lets the window live, and ends the work when it is cancelled.
class ExportWork {
public:
    /// Thrown out of all steps, which pass over run-time errors only.
    struct Stopped {};

    ExportWork(const ExportWatch& watch, qint64 bytes) : watch_(watch), bytes_(bytes) {}

    /// So many bytes more are done. Throws Stopped.
    void Advance(qint64 bytes);

private:
    const ExportWatch& watch_;
    qint64 bytes_;
    qint64 done_ = 0;
};

/// A folder of its own below the scratch folder, which goes with this object and all that is in it.
class ExportScratch {
public:
    /// Raises when it can't be made.
    ExportScratch();
    ~ExportScratch();
    ExportScratch(const ExportScratch&) = delete;
    ExportScratch& operator=(const ExportScratch&) = delete;

    /// Without a trailing backslash.
    [[nodiscard]] const QString& Folder() const { return folder_; }

private:
    QString folder_;
    std::optional<FolderLock> own_; ///< while it is held, nobody sweeps the folder away
};

namespace ExportFiles {

/// The INI file of a mod (the archive's inside path) that whoever installs it finds name and comments in, whether it
/// comes alone or in a ZIP; empty for a mod that has neither.
QByteArray ModRecord(const QString& mod);

/// The path of that file beside the archive.
QString ModRecordPath(const QString& mod);

} // namespace ExportFiles
