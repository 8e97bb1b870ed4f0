// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/BackgroundHash.h"

#include "platform/File.h"

#include <exception>

BackgroundHash::BackgroundHash(const QString& path) {
    // Whatever goes wrong, a file that can't be opened or a thread or memory that is not to be had: there is no hash
    // then.
    try {
        // Paths are looked up on the caller's thread: what they are found by belongs to it.
        reader_ = std::jthread([this, file = File::Open(path, File::Access::Read)](const std::stop_token& stop) {
            try {
                if (const auto hashed = HashOf(file, [&stop] { return !stop.stop_requested(); }))
                    hash_ = hashed->Hash;
            } catch (...) { // nothing may leave a thread
            }
        });
    } catch (const std::exception&) {
        hash_.clear();
    }
}

QByteArray BackgroundHash::Result() {
    if (reader_.joinable())
        reader_.join();
    return hash_;
}
