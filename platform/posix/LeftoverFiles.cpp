// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LeftoverFiles.h"

#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/posix/Transfer.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <ctime>
#include <memory>
#include <unistd.h>

namespace {

/// A file that nobody writes to any more: it is old, and its writer's lock is gone with the writer.
bool IsLeft(int folder, const char* name) {
    struct stat status {};

    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(status.st_mode))
        return false;
    const std::chrono::seconds age{std::time(nullptr) - status.st_mtim.tv_sec};
    if (age < LeftoverAge)
        return false;
    const Descriptor file(::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return file.Valid() && ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0;
}

} // namespace

void SweepLeftovers(const QString& nativeFolder) {
    const QString path = nativeFolder.isEmpty() ? QStringLiteral(".") : nativeFolder;
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(Paths::EncodeNative(path).constData()), &::closedir);
    if (!listing)
        return;
    const int folder = ::dirfd(listing.get());
    while (const dirent* entry = ::readdir(listing.get())) {
        const auto* name = static_cast<const char*>(entry->d_name);
        if (IsPrivateName(QString::fromUtf8(name)) && IsLeft(folder, name))
            ::unlinkat(folder, name, 0);
    }
}
