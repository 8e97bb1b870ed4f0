// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rescue/LeftBeside.h"

#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace LeftBeside {

QString FreeNameFor(const QString& path) {
    const QString folder = Paths::Folder(path);
    const QString name = Paths::LastPart(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString begin = folder + (dot < 0 ? name : name.first(dot));
    const QString ending = dot < 0 ? QString() : name.sliced(dot);
    for (int number = 2;; ++number) {
        QString free = begin + u" (%1)"_s.arg(number) + ending;
        if (!Files::FileExists(free) && !Files::FolderExists(free) && !Files::IsLink(free))
            return free;
    }
}

QString PutBack(const QString& path, const QString& left) {
    if (!Files::FileExists(path)) {
        Files::Rename(left, path);
        return {};
    }
    QString kept = FreeNameFor(path);
    Files::Rename(path, kept);
    try {
        Files::Rename(left, path);
    } catch (const RuntimeError&) {
        Ignoring([&] { Files::Rename(kept, path); });
        throw;
    }
    return kept;
}

QString KeepBoth(const QString& path, const QString& left) {
    QString kept = FreeNameFor(path);
    Files::Rename(left, kept);
    return kept;
}

} // namespace LeftBeside
