// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/FileComparison.h"

#include "platform/File.h"
#include "platform/RuntimeError.h"

#include <algorithm>

#include <zlib.h>

namespace {

constexpr qint64 BlockSize = 262'144;

quint32 ChecksumOf(const File& file) {
    uLong sum = ::crc32(0, nullptr, 0);
    for (qint64 at = 0; at < file.Length();) {
        const QByteArray block = file.Read(at, BlockSize);
        if (block.isEmpty())
            break;
        sum = ::crc32(sum, reinterpret_cast<const Bytef*>(block.constData()), static_cast<uInt>(block.size()));
        at += block.size();
    }
    return static_cast<quint32>(sum);
}

bool HoldTheSame(const File& first, const File& second) {
    for (qint64 at = 0; at < first.Length(); at += BlockSize) {
        if (first.Read(at, BlockSize) != second.Read(at, BlockSize))
            return false;
    }
    return true;
}

} // namespace

bool FileComparison::IsSame(const SourceFile& file, const QString& path) {
    bool same = false;
    Ignoring([&] {
        const File old = File::Open(path, File::Access::Read);
        if (old.Length() != file.Size)
            return;
        same = file.IsEntry ? file.Crc == ChecksumOf(old) : HoldTheSame(old, File::Open(file.From, File::Access::Read));
    });
    return same;
}

bool FileComparison::IsSame(const SourceFile& file, const Content& other) {
    return file.Size == other.Size && file.Crc == other.Crc && (file.Crc != 0 || file.Size == 0);
}
