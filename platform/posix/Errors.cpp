// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/Errors.h"

#include "platform/Refusals.h"
#include "platform/RuntimeError.h"

#include <cerrno>
#include <cstring>

namespace {

int NumberOf(int error) {
    switch (error) {
    case ENOENT:
        return ErrorNumber::FileNotFound;
    case EEXIST:
        return ErrorNumber::FileAlreadyExists;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
        return ErrorNumber::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ErrorNumber::DiskFull;
    case EISDIR:
    case ENOTEMPTY:
        return ErrorNumber::PathFileAccess;
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
        return ErrorNumber::PathNotFound;
    default:
        return ErrorNumber::DeviceError;
    }
}

QString ReasonOf(int error) {
    return QString::fromLocal8Bit(std::strerror(error));
}

} // namespace

void RaiseErrno(int error, const QString& nativePath) {
    RaiseErrno(error, nativePath, NumberOf(error));
}

void RaiseErrno(int error, const QString& nativePath, int number) {
    NoteErrno(error, nativePath);
    throw RuntimeError(number, QStringLiteral("%1: %2").arg(nativePath, ReasonOf(error)));
}

void NoteErrno(int error, const QString& nativePath) {
    switch (error) {
    case EACCES:
    case EPERM:
    case EROFS:
    case ENOSPC:
    case EDQUOT:
    case EIO:
    case EMFILE:
    case ENFILE:
    case ENOMEM:
    case ESTALE:
        return Refusals::Note(nativePath, ReasonOf(error));
    default: // an answer, as that nothing stands there
        return;
    }
}
