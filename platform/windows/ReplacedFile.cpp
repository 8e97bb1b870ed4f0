// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ReplacedFile.h"

#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

namespace ReplacedFile {

// Links need rights that the games' users hardly have: one is saved over as the file that it looks like.
QString BehindLinks(const QString& path) {
    return path;
}

bool IsWriteProtected(const QString& path) {
    const DWORD attributes = GetFileAttributesW(WidePath(path).c_str());
    constexpr DWORD either = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & either) == FILE_ATTRIBUTE_READONLY;
}

// The owner is the folder's matter here; hidden and system files stay so.
bool KeepOwnerAndMode(const QString& path, const QString& old) {
    const DWORD attributes = GetFileAttributesW(WidePath(old).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && SetFileAttributesW(WidePath(path).c_str(), attributes) != 0;
}

} // namespace ReplacedFile
