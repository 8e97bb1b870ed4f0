// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/SourceFiles.h"

#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

namespace SourceFiles {

std::optional<qint64> LengthOf(const QString& path) {
    qint64 length = 0;
    if (Ignoring([&] { length = Files::FileLength(path); }))
        return length;
    try {
        return File::Open(path, File::Access::Read).Length();
    } catch (const RuntimeError& error) {
        if (error.Number() != ErrorNumber::FileNotFound && error.Number() != ErrorNumber::PathNotFound)
            throw;
        return std::nullopt;
    }
}

} // namespace SourceFiles
