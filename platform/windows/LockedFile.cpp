// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LockedFile.h"

#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

#include <utility>

// Nothing takes the place of a file that is held open, so a file beside it is held, which goes with its handle.
LockResult LockForSave(const QString& path, File& held) {
    const QString beside = path + QStringLiteral(".~brindock.lock");
    const HANDLE handle = CreateFileW(WidePath(beside).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION ? LockResult::Taken : LockResult::NoLocking;
    held = File(reinterpret_cast<qintptr>(handle), beside);
    return LockResult::Held;
}
