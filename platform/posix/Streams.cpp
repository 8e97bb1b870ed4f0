// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Streams.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/posix/Errors.h"
#include "platform/posix/Transfer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace {

QByteArray ReadFrom(int number, const QString& name) {
    constexpr qsizetype step = qsizetype{256} * 1024;
    QByteArray bytes;
    qsizetype size = 0;
    while (true) {
        bytes.resize(size + step);
        const ssize_t had = ::read(number, bytes.data() + size, static_cast<std::size_t>(step));
        if (had < 0 && errno != EINTR)
            RaiseErrno(errno, name);
        if (had == 0)
            break;
        size += had > 0 ? had : 0;
        if (size > Streams::MostBytes)
            throw RuntimeError(ErrorNumber::OutOfMemory, QStringLiteral("%1: more than 1 GiB").arg(name));
    }
    bytes.resize(size);
    return bytes;
}

Descriptor Opened(const QString& name, int flags) {
    const int number = ::open(Paths::EncodeNative(name).constData(), flags | O_CLOEXEC | O_NOCTTY);
    if (number < 0)
        RaiseErrno(errno, name);
    return Descriptor(number);
}

} // namespace

namespace Streams {

QByteArray ReadInput() {
    return ReadFrom(STDIN_FILENO, QStringLiteral("standard input"));
}

bool IsAt(const QString& path) {
    struct stat status {};

    return ::stat(Paths::EncodeNative(Paths::ToNative(path)).constData(), &status) == 0 &&
           (S_ISFIFO(status.st_mode) || S_ISCHR(status.st_mode));
}

QByteArray ReadAll(const QString& path) {
    const QString name = Paths::ToNative(path);
    return ReadFrom(Opened(name, O_RDONLY).Number(), name);
}

void WriteAll(const QString& path, const QByteArray& bytes) {
    const QString name = Paths::ToNative(path);
    const Descriptor stream = Opened(name, O_WRONLY);
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written =
            ::write(stream.Number(), bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno != EINTR)
            RaiseErrno(errno, name);
        done += written > 0 ? written : 0;
    }
}

} // namespace Streams
