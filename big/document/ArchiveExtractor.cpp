// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ArchiveExtractor.h"

#include "platform/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

ArchiveExtractor::ArchiveExtractor(const QString& archive, const QString& folder)
    : gateway_(folder),
      archive_(File::Open(archive, File::Access::Read)),
      archiveState_(archive_.State()) {}

void ArchiveExtractor::Extract(const BigEntry& entry, const QString& name) {
    // Not cut before it is known which file it is.
    File target = File::OpenAsGiven(gateway_.TargetFor(name), File::Access::ReadWrite);
    const FileState old = target.State();
    if (old.Identity == archiveState_.Identity)
        throw RuntimeError(ErrorNumber::PathFileAccess, u"%1 is the archive itself."_s.arg(target.Name()));
    if (old.Length > 0)
        target.SetLength(0);
    const qint64 there = std::clamp<qint64>(archiveState_.Length - entry.Offset, 0, entry.Size);
    target.CopyFrom(0, archive_, entry.Offset, there);
    if (there < entry.Size)
        target.SetLength(entry.Size);
    target.Close();
}
