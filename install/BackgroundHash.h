// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a file holds, read on a thread of its own while others go on.
#pragma once

#include "install/HashedFile.h"

#include <QString>

#include <thread>

class BackgroundHash {
public:
    /// Opens the file (inside path) and begins; one that can't be opened has no hash.
    explicit BackgroundHash(const QString& path);
    BackgroundHash(const BackgroundHash&) = delete;
    BackgroundHash& operator=(const BackgroundHash&) = delete;
    /// Whoever does not want it any more does not wait for it.
    ~BackgroundHash() = default;

    /// Waits for it; the file is closed then. Empty where it could not be read to its end.
    QByteArray Result();

private:
    QByteArray hash_;
    std::jthread reader_; ///< asked to stop, and waited for, before the rest goes
};
