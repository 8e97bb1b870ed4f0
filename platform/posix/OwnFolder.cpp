// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/OwnFolder.h"

#include "platform/OwnFolder.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

QString OwnRegistryFile() {
    QString named = qEnvironmentVariable("BRINDOCK_REGISTRY");
    if (!named.isEmpty())
        return named;
    const QString configuration = qEnvironmentVariable("XDG_CONFIG_HOME");
    const bool usable = configuration.startsWith(u'/');
    return (usable ? configuration : qEnvironmentVariable("HOME") + u"/.config"_s) + u"/brindock/registry.reg"_s;
}

QString OwnFolder() {
    return Paths::Folder(Paths::Absolute(OwnRegistryFile())).chopped(1);
}
