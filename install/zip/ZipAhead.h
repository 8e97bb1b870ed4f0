// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Unpacks entries ahead of whoever writes them, on a thread of its own: short ones, stored or deflated, in plain sight
/// and with nothing wrong with them. What it leaves out goes the way of all others, and fails there if it does.
#pragma once

#include "install/HashedFile.h"
#include "install/zip/ReadAhead.h"
#include "install/zip/ZipDirectory.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

class ZipAhead {
public:
    /// What is longer is not unpacked ahead, bytes.
    static constexpr qint64 Longest = 262'144;

    /// Begins with the entries of those places, in that order. Archive and directory outlive it; the archive is read
    /// while others read it. `hashes`: what they hold is hashed too.
    ZipAhead(const Device& archive, const ZipDirectory& directory, std::vector<qsizetype> places, bool hashes);
    ~ZipAhead();
    ZipAhead(const ZipAhead&) = delete;
    ZipAhead& operator=(const ZipAhead&) = delete;

    struct Unpacked {
        QByteArrayView Bytes; ///< until the next call
        HashedFile Hashed;    ///< empty where it was not asked for
    };

    /// The entry of a place; waits for it, and lets go of those before it. Nothing for one that was let go of, that
    /// was not asked for, or that was left out.
    std::optional<Unpacked> Take(qsizetype place);

private:
    /// Entries are handed over many at a time.
    struct Batch {
        struct Item {
            std::size_t Number = 0; ///< in the order asked for
            qsizetype Start = 0;
            HashedFile Hashed;
            qint64 Length = 0;
        };

        std::vector<Item> Items; ///< those that were left out are missing
        std::size_t End = 0;     ///< the number of the first that comes behind it
        QByteArray Bytes;
        qsizetype Used = 0;
    };
    class Work;

    bool Hand(Batch& batch);
    bool Next();

    std::vector<qint32> numbers_; ///< by place, -1 for those that were not asked for
    Batch batch_;                 ///< the one at hand
    std::size_t at_ = 0;          ///< the next of its items

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Batch> ready_;
    std::vector<Batch> spare_;
    bool wanted_ = true;
    bool ended_ = false;
    std::thread worker_;
};
