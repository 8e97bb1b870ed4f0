// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ArchiveExtractor.h"

#include "platform/NumberedFiles.h"
#include "platform/RuntimeError.h"

#include <algorithm>

namespace {

constexpr int ArchiveNumber = 5;
constexpr int TargetNumber = 6;

} // namespace

ArchiveExtractor::ArchiveExtractor(const QString& archive, const QString& folder) : gateway_(folder) {
    NumberedFiles::Open(ArchiveNumber, archive, NumberedFiles::Access::Read);
    archiveLength_ = NumberedFiles::Length(ArchiveNumber);
}

ArchiveExtractor::~ArchiveExtractor() {
    Ignoring([] { NumberedFiles::Close(ArchiveNumber); });
}

void ArchiveExtractor::Extract(const BigEntry& entry, const QString& name) {
    NumberedFiles::OpenAsGiven(TargetNumber, gateway_.TargetFor(name), NumberedFiles::Access::Replace);
    try {
        const qint64 there = std::clamp<qint64>(archiveLength_ - entry.Offset, 0, entry.Size);
        NumberedFiles::Copy(TargetNumber, 0, ArchiveNumber, entry.Offset, there);
        if (there < entry.Size)
            NumberedFiles::SetLength(TargetNumber, entry.Size);
    } catch (const RuntimeError&) {
        Ignoring([] { NumberedFiles::Close(TargetNumber); });
        throw;
    }
    NumberedFiles::Close(TargetNumber);
}
