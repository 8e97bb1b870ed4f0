// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CopiedTime.h"

#include "platform/Paths.h"
#include "platform/posix/Errors.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>

void CopiedTime::Keep(const QString& from, const QString& copy) {
    struct stat status {};

    const QString source = Paths::ToNative(from);
    const QString target = Paths::ToNativeAsGiven(copy);
    if (::stat(Paths::EncodeNative(source).constData(), &status) != 0)
        return NoteErrno(errno, source);
    const std::array<timespec, 2> times{timespec{.tv_sec = 0, .tv_nsec = UTIME_OMIT}, status.st_mtim};
    if (::utimensat(AT_FDCWD, Paths::EncodeNative(target).constData(), times.data(), 0) != 0)
        NoteErrno(errno, target);
}

void CopiedTime::Keep(const File& from, const File& copy) {
    struct stat status {};

    if (::fstat(static_cast<int>(from.Handle()), &status) != 0)
        return NoteErrno(errno, from.Name());
    const std::array<timespec, 2> times{timespec{.tv_sec = 0, .tv_nsec = UTIME_OMIT}, status.st_mtim};
    if (::futimens(static_cast<int>(copy.Handle()), times.data()) != 0)
        NoteErrno(errno, copy.Name());
}
