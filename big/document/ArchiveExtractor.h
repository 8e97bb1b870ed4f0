// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Many entries of one archive into one folder, fast and through the gateway.
#pragma once

#include "big/format/mBIG.h"
#include "core/FolderGateway.h"
#include "platform/File.h"

/// Keeps the archive open while it lives. An entry of no bytes becomes an empty file.
class ArchiveExtractor {
public:
    /// Inside paths; the folder is made when missing. Raises when the archive can't be opened or the folder not made.
    ArchiveExtractor(const QString& archive, const QString& folder);

    /// Writes the entry's bytes to the file `name` below the folder, in one step over whatever file stands there. Bytes
    /// behind the archive's end are zeros. Does not wait for the disk. Raises when the name is refused or the file
    /// can't be written; the archive itself can't.
    void Extract(const BigEntry& entry, const QString& name);

private:
    QByteArrayView Bytes(const BigEntry& entry, qint64 there);
    void CopyAside(const BigEntry& entry, qint64 there, const FilePlace& place);

    FolderGateway gateway_;
    QByteArray buffer_;
    File archive_;
    FileState archiveState_;
};
