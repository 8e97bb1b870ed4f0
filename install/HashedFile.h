// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a file holds, in few bytes: to tell later whether it still is what was written.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QCryptographicHash>
#include <QString>

#include <functional>
#include <optional>

class File;

struct HashedFile {
    QByteArray Hash;   ///< BLAKE2b of 256 bits
    qint64 Length = 0; ///< bytes
};

/// The same of bytes as they are written, for who has them at hand.
class RunningHash {
public:
    void Add(QByteArrayView bytes);
    [[nodiscard]] HashedFile Result() const;

private:
    QCryptographicHash hash_{QCryptographicHash::Blake2b_256};
    qint64 length_ = 0;
};

/// Reads a file (inside path) to its end. Raises what the reading raises.
HashedFile HashOf(const QString& path);

/// The same of an open file, as long as `goesOn`, which is asked now and then, says so; nothing where it did not.
std::optional<HashedFile> HashOf(const File& file, const std::function<bool()>& goesOn);
