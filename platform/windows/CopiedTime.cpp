// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CopiedTime.h"

#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QDateTime>
#include <QFile>

void CopiedTime::Keep(const QString& from, const QString& copy) {
    Ignoring([&] {
        QFile file(Paths::ToNativeAsGiven(copy));
        if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
            file.setFileTime(Files::ModifiedTime(from), QFileDevice::FileModificationTime);
    });
}
