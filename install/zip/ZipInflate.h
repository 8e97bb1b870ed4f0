// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The straight way of an entry that is stored or deflated and not encrypted, out of an archive into memory.
#pragma once

#include "install/zip/ReadAhead.h"
#include "install/zip/ZipDirectory.h"

#include <optional>

#include <zlib.h>

class ZipInflate {
public:
    /// Both outlive it.
    ZipInflate(const Device& archive, const ZipDirectory& directory);
    ~ZipInflate();
    ZipInflate(const ZipInflate&) = delete;
    ZipInflate& operator=(const ZipInflate&) = delete;

    /// Unpacks an entry into memory that has room for as many bytes as it declares. False for one of another kind, and
    /// for one with which anything is wrong: where it stands, how many bytes it takes or yields, its checksum. What is
    /// in the memory then is of no use. Raises when the archive can't be read.
    bool Unpack(const ZipEntry& entry, char* bytes);

private:
    [[nodiscard]] std::optional<QByteArrayView> PackedBytes(const ZipEntry& entry);
    bool Inflate(QByteArrayView packed, char* bytes, qint64 size);

    ReadAhead bytes_;
    qint64 end_; ///< all entries lie before it
    z_stream stream_{};
    bool isReady_ = false;
};
