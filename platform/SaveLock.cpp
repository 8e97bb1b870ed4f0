// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/SaveLock.h"

#include "platform/LockedFile.h"
#include "platform/Paths.h"
#include "platform/ReplacedFile.h"
#include "platform/RuntimeError.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QThread>

#include <map>

namespace {

constexpr qint64 Patience = 10'000; ///< milliseconds
constexpr unsigned long Pause = 5;  ///< milliseconds

std::shared_ptr<File> WaitedFor(const QString& path) {
    QElapsedTimer waited;
    waited.start();
    bool stoodThere = false;
    for (;;) {
        auto file = std::make_shared<File>();
        const LockResult result = LockForSave(path, *file);
        // What was there a moment ago is being replaced.
        const bool isReplaced = result == LockResult::NoLocking && stoodThere && !waited.hasExpired(Patience);
        if (result != LockResult::Taken && !isReplaced)
            return file;
        stoodThere = true;
        if (waited.hasExpired(Patience))
            throw RuntimeError(ErrorNumber::PermissionDenied,
                               QStringLiteral("%1: another program is saving it").arg(Paths::ToNative(path)));
        QThread::msleep(Pause);
    }
}

} // namespace

SaveLock::SaveLock(const QString& path) {
    static QMutex mutex;
    static std::map<QString, std::weak_ptr<File>> held;
    const QMutexLocker locked(&mutex);
    std::weak_ptr<File>& known = held[ReplacedFile::BehindLinks(path)];
    lock_ = known.lock();
    if (lock_ != nullptr)
        return;
    lock_ = WaitedFor(path);
    known = lock_;
}
