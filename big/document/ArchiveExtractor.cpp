// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ArchiveExtractor.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The system copies longer entries within itself.
constexpr qint64 WorthCopying = 65'536;

} // namespace

ArchiveExtractor::ArchiveExtractor(const QString& archive, const QString& folder)
    : gateway_(folder),
      archive_(File::Open(archive, File::Access::Read)),
      archiveState_(archive_.State()) {}

void ArchiveExtractor::Extract(const BigEntry& entry, const QString& name) {
    const FilePlace place = gateway_.PlaceFor(name);
    const FileState old = place.Folder->StateOf(place.Name);
    if (!old.Identity.isEmpty() && old.Identity == archiveState_.Identity)
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           u"%1 is the archive itself."_s.arg(Paths::ToNativeAsGiven(place.Path())));
    const qint64 size = std::max<qint64>(entry.Size, 0);
    const qint64 there = std::clamp<qint64>(archiveState_.Length - entry.Offset, 0, size);
    const bool isNew = old.Identity.isEmpty();
    if (!isNew || size > WorthCopying || !place.Folder->Put(place.Name, Bytes(entry, there)))
        CopyAside(entry, there, place);
}

/// The bytes that the archive holds of an entry, and zeros for the others.
QByteArrayView ArchiveExtractor::Bytes(const BigEntry& entry, qint64 there) {
    const qint64 size = std::max<qint64>(entry.Size, 0);
    buffer_.resize(WorthCopying);
    const qint64 had = archive_.ReadInto(entry.Offset, buffer_.data(), there);
    std::fill(buffer_.data() + had, buffer_.data() + size, '\0');
    return QByteArrayView(buffer_).first(size);
}

void ArchiveExtractor::CopyAside(const BigEntry& entry, qint64 there, const FilePlace& place) {
    WriteAside target(place);
    if (target.Out().CopyFrom(0, archive_, entry.Offset, there) < entry.Size)
        target.Out().SetLength(entry.Size);
    target.Commit(false);
}
