// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/WholeFile.h"

#include "platform/posix/Transfer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

/// The file that a chain of links leads to; the path itself when there is no such file yet.
QByteArray Target(const QByteArray& path) {
    const std::unique_ptr<char, void (*)(void*)> real(::realpath(path.constData(), nullptr), &std::free);
    return real ? QByteArray(real.get()) : path;
}

bool WriteAll(int file, const QByteArray& bytes) {
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count = ::write(file, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno != EINTR)
            return false;
        done += count < 0 ? 0 : count;
    }
    return ::fsync(file) == 0;
}

/// The permissions of the file that is there, or those that a new one gets.
mode_t ModeFor(const QByteArray& path) {
    struct stat status {};

    if (::stat(path.constData(), &status) == 0)
        return status.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

} // namespace

std::optional<QByteArray> WholeFile::Read(const QByteArray& path) {
    // A pipe must not make the program wait for its other end.
    const Descriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));

    struct stat status {};

    if (!file.Valid() || ::fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    QByteArray bytes(status.st_size, Qt::Uninitialized);
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::read(file.Number(), bytes.data() + done, static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno != EINTR)
            return std::nullopt;
        if (count == 0)
            break;
        done += count < 0 ? 0 : count;
    }
    bytes.truncate(done);
    return bytes;
}

bool WholeFile::Replace(const QByteArray& path, const QByteArray& bytes) {
    const QByteArray target = Target(path);
    if (::access(target.constData(), F_OK) == 0 && ::access(target.constData(), W_OK) != 0)
        return false;
    constexpr qsizetype toBeReplaced = 6; // letters X at the end, which mkostemp makes a name of its own of
    QByteArray aside = target.first(target.lastIndexOf('/') + 1) + ".brindock-" + QByteArray(toBeReplaced, 'X');
    const Descriptor file(::mkostemp(aside.data(), O_CLOEXEC));
    if (!file.Valid())
        return false;
    const bool replaced = WriteAll(file.Number(), bytes) && ::fchmod(file.Number(), ModeFor(target)) == 0 &&
                          ::rename(aside.constData(), target.constData()) == 0;
    if (!replaced)
        ::unlink(aside.constData());
    return replaced;
}
