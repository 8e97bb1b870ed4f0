// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/Errors.h"

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

} // namespace

void RaiseErrno(int error, const QString& nativePath) {
    const QString reason = QString::fromLocal8Bit(std::strerror(error));
    throw RuntimeError(NumberOf(error), QStringLiteral("%1: %2").arg(nativePath, reason));
}
