// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/BackgroundHash.h"

#include "platform/File.h"
#include "platform/RuntimeError.h"

BackgroundHash::BackgroundHash(const QString& path) {
    // Paths are looked up on the caller's thread: what they are found by belongs to it.
    Ignoring([&] {
        reader_ = std::jthread([this, file = File::Open(path, File::Access::Read)](const std::stop_token& stop) {
            Ignoring([&] {
                if (const auto hashed = HashOf(file, [&stop] { return !stop.stop_requested(); }))
                    hash_ = hashed->Hash;
            });
        });
    });
}

QByteArray BackgroundHash::Result() {
    if (reader_.joinable())
        reader_.join();
    return hash_;
}
