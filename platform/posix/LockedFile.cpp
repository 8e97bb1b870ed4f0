// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LockedFile.h"

#include "platform/Paths.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

LockResult LockForSave(const QString& path, File& held) {
    const QString native = Paths::ToNative(path);
    const int number = ::open(Paths::EncodeNative(native).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (number < 0)
        return LockResult::NoLocking;
    File opened(number, native);
    if (::flock(number, LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? LockResult::Taken : LockResult::NoLocking;

    struct stat locked {};

    struct stat standing {};

    // Whoever had it has put another file there: what is locked is gone.
    const bool known = ::fstat(number, &locked) == 0;
    const bool stands = ::stat(Paths::EncodeNative(native).constData(), &standing) == 0;
    if (known && stands && (locked.st_ino != standing.st_ino || locked.st_dev != standing.st_dev))
        return LockResult::Taken;
    held = std::move(opened);
    return LockResult::Held;
}
