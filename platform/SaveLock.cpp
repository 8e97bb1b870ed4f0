// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/SaveLock.h"

#include "platform/FolderLock.h"
#include "platform/Paths.h"
#include "platform/ReplacedFile.h"
#include "platform/RuntimeError.h"

#include <QMutex>

#include <algorithm>
#include <map>

namespace {

constexpr std::chrono::seconds patience{10};

} // namespace

SaveLock::SaveLock(const QString& path) {
    static QMutex mutex;
    static std::map<QString, std::weak_ptr<FolderLock>> held;
    static std::map<QString, QString> reals;
    const QMutexLocker locked(&mutex);
    const QString file = ReplacedFile::BehindLinks(path);
    const QString folder = file.first(std::max<qsizetype>(file.lastIndexOf(u'\\'), 0));
    // Asked once: a folder that can't be looked up later is the same one still.
    const auto [real, isNew] = reals.try_emplace(folder);
    if (isNew)
        real->second = Paths::Real(folder + u'\\');
    std::weak_ptr<FolderLock>& known = held[real->second.isEmpty() ? folder : real->second];
    lock_ = known.lock();
    if (lock_ != nullptr)
        return;
    lock_ = std::make_shared<FolderLock>(FolderLock::WaitedFor(folder, patience));
    if (lock_->State() == FolderLock::Result::Taken)
        throw RuntimeError(ErrorNumber::PermissionDenied,
                           QStringLiteral("%1: another program is saving in its folder").arg(Paths::ToNative(path)));
    known = lock_;
}
