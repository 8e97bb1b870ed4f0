// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/windows/Errors.h"

#include "platform/Refusals.h"
#include "platform/RuntimeError.h"
#include "platform/windows/System.h"

#include <QDir>

namespace {

int NumberOf(unsigned long error) {
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
        return ErrorNumber::FileNotFound;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return ErrorNumber::FileAlreadyExists;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return ErrorNumber::PermissionDenied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ErrorNumber::DiskFull;
    case ERROR_DIR_NOT_EMPTY:
    case ERROR_DIRECTORY:
        return ErrorNumber::PathFileAccess;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_DRIVE:
        return ErrorNumber::PathNotFound;
    default:
        return ErrorNumber::DeviceError;
    }
}

QString ReasonOf(unsigned long error) {
    wchar_t* text = nullptr;
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                       nullptr, error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const QString reason = QString::fromWCharArray(text, static_cast<int>(length)).trimmed();
    LocalFree(text);
    return reason.isEmpty() ? QStringLiteral("error %1").arg(error) : reason;
}

} // namespace

void RaiseLastError(unsigned long error, const QString& path) {
    NoteLastError(error, path);
    throw RuntimeError(NumberOf(error), QStringLiteral("%1: %2").arg(path, ReasonOf(error)));
}

void NoteLastError(unsigned long error, const QString& path) {
    switch (error) {
    case ERROR_SUCCESS:
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_DIRECTORY:
    case ERROR_DIR_NOT_EMPTY:
        return; // an answer
    default:
        Refusals::Note(path, ReasonOf(error));
    }
}

std::wstring WidePath(const QString& path) {
    constexpr qsizetype limit = 240;
    if (path.size() < limit || path.startsWith(u"\\\\"))
        return path.toStdWString();
    return (QStringLiteral("\\\\?\\") + QDir::toNativeSeparators(QDir(path).absolutePath())).toStdWString();
}
