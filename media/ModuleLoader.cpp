// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/ModuleLoader.h"

#include "platform/Paths.h"

#include <QLibrary>

using namespace Qt::StringLiterals;

QFunctionPointer ModuleEntry(const QString& module, const char* function) {
    const QString program = Paths::Executable();
    const QString folder = program.first(program.lastIndexOf(u'\\') + 1);
    return QLibrary(Paths::ToNative(folder + module + u".so"_s)).resolve(function);
}
