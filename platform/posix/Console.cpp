// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Console.h"

#include "platform/RuntimeError.h"
#include "platform/posix/Errors.h"

#include <unistd.h>

#include <cerrno>

namespace {

void WriteAll(int stream, const QByteArray& bytes) {
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written =
            ::write(stream, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            RaiseErrno(errno, QStringLiteral("standard output"));
        done += written;
    }
}

} // namespace

void Console::Write(const QByteArray& bytes) {
    WriteAll(STDOUT_FILENO, bytes);
}

void Console::WriteError(const QByteArray& bytes) {
    Ignoring([&] { WriteAll(STDERR_FILENO, bytes); });
}
