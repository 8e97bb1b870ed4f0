// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Refusals.h"

#include <QMutex>

namespace {

constexpr qsizetype Most = 100;

struct Kept {
    QMutex Lock;
    QStringList Lines;
};

Kept& Lines() {
    static Kept kept;
    return kept;
}

} // namespace

void Refusals::Note(const QString& nativePath, const QString& reason) {
    const QString line = nativePath + QStringLiteral(": ") + reason;
    Kept& kept = Lines();
    const QMutexLocker locked(&kept.Lock);
    if (kept.Lines.size() < Most && !kept.Lines.contains(line))
        kept.Lines.append(line);
}

QStringList Refusals::All() {
    const QMutexLocker locked(&Lines().Lock);
    return Lines().Lines;
}

void Refusals::Forget() {
    const QMutexLocker locked(&Lines().Lock);
    Lines().Lines.clear();
}
