// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What goes wrong with an archive or with one of its entries: a number for programs, the reason in words for people.
#pragma once

#include "platform/RuntimeError.h"

/// The results of extracting an entry, numbered as the usual tools number their exit codes.
namespace ZipResult {
inline constexpr qint32 Done = 0;
inline constexpr qint32 NoFolder = 1;       ///< no folder was named, nothing was done
inline constexpr qint32 BadData = 2;        ///< the entry's data are not what the archive says of them
inline constexpr qint32 NoArchive = 9;      ///< there is no archive, or it can't be read
inline constexpr qint32 NoTarget = 10;      ///< the name is refused, or nothing can be written there
inline constexpr qint32 NoEntry = 11;       ///< no entry of that name
inline constexpr qint32 Overlap = 12;       ///< the entry shares bytes with another one
inline constexpr qint32 DiskFull = 50;      ///< the disk has no room for it
inline constexpr qint32 CutShort = 51;      ///< the archive ends before the entry does
inline constexpr qint32 NotSupported = 81;  ///< packed or encrypted in a way that can't be read here
inline constexpr qint32 WrongPassword = 82; ///< a wrong password, or none
} // namespace ZipResult

class ZipFailure : public RuntimeError {
public:
    ZipFailure(qint32 result, const QString& reason)
        : RuntimeError(ErrorNumber::PathFileAccess, reason),
          result_(result) {}

    /// One of ZipResult.
    [[nodiscard]] qint32 Result() const { return result_; }

private:
    qint32 result_;
};
