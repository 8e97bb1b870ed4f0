// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FolderLock.h"

#include "platform/Paths.h"
#include "platform/posix/Errors.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <utility>

// The folder itself is locked: no file is needed that somebody could delete.
FolderLock::FolderLock(const QString& folder) {
    const QString native = Paths::ToNative(folder);
    const int number = ::open(Paths::EncodeNative(native).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (number < 0) {
        NoteErrno(errno, native);
        return;
    }
    File opened(number, native);
    if (::flock(number, LOCK_EX | LOCK_NB) == 0) {
        lock_ = std::move(opened);
        state_ = Result::Held;
    } else if (errno == EWOULDBLOCK) {
        state_ = Result::Taken;
    } else {
        NoteErrno(errno, native);
    }
}
