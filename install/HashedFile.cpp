// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/HashedFile.h"

#include "platform/File.h"

#include <algorithm>

void RunningHash::Add(QByteArrayView bytes) {
    hash_.addData(bytes);
    length_ += bytes.size();
}

HashedFile RunningHash::Result() const {
    return {.Hash = hash_.result(), .Length = length_};
}

HashedFile HashOf(const QString& path) {
    return *HashOf(File::Open(path, File::Access::Read), [] { return true; });
}

std::optional<HashedFile> HashOf(const File& file, const std::function<bool()>& goesOn) {
    constexpr qint64 atOnce = 1 << 18;
    // One more than there are: that they come short tells the end.
    QByteArray bytes(std::min<qint64>(file.Length() + 1, atOnce), Qt::Uninitialized);
    RunningHash hash;
    qint64 offset = 0;
    for (qint64 count = bytes.size(); count == bytes.size(); offset += count) {
        if (!goesOn())
            return std::nullopt;
        count = file.ReadInto(offset, bytes.data(), bytes.size());
        hash.Add(QByteArrayView(bytes).first(count));
    }
    return hash.Result();
}
