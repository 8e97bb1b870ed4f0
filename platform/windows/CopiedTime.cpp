// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CopiedTime.h"

#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/windows/System.h"

#include <QDateTime>
#include <QFile>

void CopiedTime::Keep(const QString& from, const QString& copy) {
    Ignoring([&] {
        QFile file(Paths::ToNativeAsGiven(copy));
        if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
            file.setFileTime(Files::ModifiedTime(from), QFileDevice::FileModificationTime);
    });
}

// A time that is given by the handle is kept when the handle is closed.
void CopiedTime::Keep(const File& from, const File& copy) {
    FILETIME written{};
    // NOLINTBEGIN(performance-no-int-to-ptr): a handle is no address
    if (GetFileTime(reinterpret_cast<HANDLE>(from.Handle()), nullptr, nullptr, &written) != 0)
        SetFileTime(reinterpret_cast<HANDLE>(copy.Handle()), nullptr, nullptr, &written);
    // NOLINTEND(performance-no-int-to-ptr)
}
