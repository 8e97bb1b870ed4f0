// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/KeptFiles.h"

#include "platform/Files.h"
#include "platform/Paths.h"

#include <QFile>

void KeptFiles::Copy(const QString& from, const QString& to) {
    const QDateTime time = Files::ModifiedTime(from);
    Files::Copy(from, to);
    // Its bytes are what counts: without its time it is whole, too.
    QFile file(Paths::ToNative(to));
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(time, QFileDevice::FileModificationTime);
}
