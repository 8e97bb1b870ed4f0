// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/KeptFiles.h"

#include "platform/CopiedTime.h"
#include "platform/Files.h"
#include "platform/Paths.h"

void KeptFiles::Copy(const QString& from, const QString& to) {
    const QString target = Paths::FromNative(Paths::ToNative(to)); // in the disk's own case
    Files::CopyAsGiven(from, target);
    CopiedTime::Keep(from, target);
}
