// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FolderLock.h"

#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

// A file that is shared with nobody, and that goes with its handle.
FolderLock::FolderLock(const QString& folder) {
    const QString path = folder + QStringLiteral("\\~brindock.lock");
    const HANDLE handle = CreateFileW(WidePath(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        lock_ = File(reinterpret_cast<qintptr>(handle), path);
        state_ = Result::Held;
    } else if (GetLastError() == ERROR_SHARING_VIOLATION) {
        state_ = Result::Taken;
    }
}
