// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FolderLock.h"

#include <QElapsedTimer>
#include <QThread>

FolderLock FolderLock::WaitedFor(const QString& folder, std::chrono::milliseconds patience) {
    constexpr unsigned long pause = 5; // milliseconds
    QElapsedTimer waited;
    waited.start();
    for (;;) {
        FolderLock lock(folder);
        if (lock.State() != Result::Taken || waited.hasExpired(patience.count()))
            return lock;
        QThread::msleep(pause);
    }
}
