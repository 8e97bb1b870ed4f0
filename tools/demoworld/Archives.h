// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// BIG archives as the games' own files have them: what the directory says and where the data lies agree.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <vector>

namespace Demo {

struct ArchiveEntry {
    QString Name; ///< folders apart by backslashes; written in the ANSI code page
    QByteArray Data;
};

/// Header, directory, mark and gap: everything in front of the first entry's data. `version` is 0 to 3.
QByteArray ArchiveHead(int version, const std::vector<ArchiveEntry>& entries);

/// The whole archive in memory. `version` is 0 to 3.
QByteArray Archive(int version, const std::vector<ArchiveEntry>& entries);

/// Writes the archive to an open device; false when the device refuses a write.
bool WriteArchive(QIODevice& device, int version, const std::vector<ArchiveEntry>& entries);

} // namespace Demo
