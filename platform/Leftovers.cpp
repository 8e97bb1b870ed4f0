// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Leftovers.h"

#include "platform/LeftoverFiles.h"

#include <QMutex>
#include <QSet>

void Leftovers::Sweep(const QString& nativeFolder) {
    static QMutex lock;
    static QSet<QString> swept;
    {
        const QMutexLocker locked(&lock);
        if (swept.contains(nativeFolder))
            return;
        swept.insert(nativeFolder);
    }
    SweepLeftovers(nativeFolder);
}
