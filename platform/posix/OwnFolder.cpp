// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/OwnFolder.h"

#include "platform/OwnFolder.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

/// A base directory, or where it is by default below the home folder; a relative one counts as none.
QString BaseFolder(const char* variable, const QString& byDefault) {
    const QString named = qEnvironmentVariable(variable);
    return named.startsWith(u'/') ? named : qEnvironmentVariable("HOME") + byDefault;
}

QString Below(const char* variable, const QString& byDefault) {
    if (!qEnvironmentVariableIsEmpty("BRINDOCK_REGISTRY"))
        return OwnFolder();
    return Paths::Absolute(BaseFolder(variable, byDefault) + u"/brindock"_s);
}

} // namespace

QString OwnRegistryFile() {
    QString named = qEnvironmentVariable("BRINDOCK_REGISTRY");
    if (!named.isEmpty())
        return named;
    return BaseFolder("XDG_CONFIG_HOME", u"/.config"_s) + u"/brindock/registry.reg"_s;
}

QString OwnFolder() {
    return Paths::Folder(Paths::Absolute(OwnRegistryFile())).chopped(1);
}

QString OwnCacheFolder() {
    return Below("XDG_CACHE_HOME", u"/.cache"_s);
}

QString OwnStateFolder() {
    return Below("XDG_STATE_HOME", u"/.local/state"_s);
}
