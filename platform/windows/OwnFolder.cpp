// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/OwnFolder.h"

#include "platform/Paths.h"
#include "platform/windows/System.h"

#include <shlobj.h>

#include <array>

QString OwnFolder() {
    const QString named = qEnvironmentVariable("BRINDOCK_REGISTRY");
    if (!named.isEmpty())
        return Paths::Folder(Paths::Absolute(named)).chopped(1);
    std::array<wchar_t, MAX_PATH> path{};
    const bool known = SUCCEEDED(::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, path.data()));
    const QString local = known ? QString::fromWCharArray(path.data()) : qEnvironmentVariable("LOCALAPPDATA");
    return local + QStringLiteral("\\Brindock 2005");
}

QString OwnCacheFolder() {
    return OwnFolder();
}

QString OwnStateFolder() {
    return OwnFolder();
}
