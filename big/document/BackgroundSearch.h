// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A search in an archive's texts that goes on while the user does something else.
#pragma once

#include "big/document/ArchiveSearch.h"

#include <functional>
#include <mutex>
#include <thread>
#include <vector>

class BackgroundSearch {
public:
    /// What there is since it was taken last.
    struct News {
        std::vector<int> Found; ///< indices, in no order
        int Percent = 0;
        int Unread = 0;     ///< texts that could not be read, known at the end
        bool Ended = false; ///< nothing comes any more
    };

    /// Begins. The archive is not needed any more behind this. `changed` is called on another thread when there are
    /// news, not again before they are taken; what it uses outlives the search.
    BackgroundSearch(const Archive& archive, const QString& text, std::function<void()> changed);

    /// Ends the search where it is.
    ~BackgroundSearch();
    BackgroundSearch(const BackgroundSearch&) = delete;
    BackgroundSearch& operator=(const BackgroundSearch&) = delete;

    News Take();

private:
    void Run(const std::stop_token& stop);
    /// Tells that there is something new.
    void Note(const std::function<void(News& news)>& note);

    TextSearch search_;
    std::function<void()> changed_;
    std::mutex taking_;
    News news_;
    bool told_ = false;
    std::jthread thread_; ///< asked to stop, and waited for, before the rest goes
};
