// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Streams.h"

#include "platform/RuntimeError.h"
#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

namespace Streams {

QByteArray ReadInput() {
    constexpr qsizetype step = qsizetype{256} * 1024;
    const HANDLE handle = GetStdHandle(STD_INPUT_HANDLE);
    const QString name = QStringLiteral("standard input");
    QByteArray bytes;
    qsizetype size = 0;
    while (true) {
        bytes.resize(size + step);
        DWORD had = 0;
        // A pipe whose other end is closed is at its end.
        if (ReadFile(handle, bytes.data() + size, static_cast<DWORD>(step), &had, nullptr) == 0 &&
            GetLastError() != ERROR_BROKEN_PIPE)
            RaiseLastError(GetLastError(), name);
        if (had == 0)
            break;
        size += static_cast<qsizetype>(had);
        if (size > MostBytes)
            throw RuntimeError(ErrorNumber::OutOfMemory, QStringLiteral("%1: more than 1 GiB").arg(name));
    }
    bytes.resize(size);
    return bytes;
}

// Shells here have no pipes with a path.
bool IsAt(const QString& path) {
    static_cast<void>(path);
    return false;
}

QByteArray ReadAll(const QString& path) {
    throw RuntimeError(ErrorNumber::PathFileAccess, path);
}

void WriteAll(const QString& path, const QByteArray& bytes) {
    static_cast<void>(bytes);
    throw RuntimeError(ErrorNumber::PathFileAccess, path);
}

} // namespace Streams
