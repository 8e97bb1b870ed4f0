// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/SourceFiles.h"

#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

namespace SourceFiles {

std::optional<qint64> LengthOf(const QString& path) {
    try {
        return Files::FileLength(path);
    } catch (const RuntimeError& error) {
        if (Files::FolderExists(path))
            throw RuntimeError(ErrorNumber::PathFileAccess,
                               QStringLiteral("%1: is a folder").arg(Paths::ToNative(path)));
        if (error.Number() != ErrorNumber::FileNotFound && error.Number() != ErrorNumber::PathNotFound)
            throw;
        return std::nullopt;
    }
}

} // namespace SourceFiles
