// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BackgroundSearch.h"

#include <exception>
#include <utility>

BackgroundSearch::BackgroundSearch(const Archive& archive, const QString& text, std::function<void()> changed)
    : search_(archive, text),
      changed_(std::move(changed)) {
    thread_ = std::jthread([this](const std::stop_token& stop) { Run(stop); });
}

BackgroundSearch::~BackgroundSearch() = default;

void BackgroundSearch::Run(const std::stop_token& stop) {
    int unread = 0;
    try {
        unread = search_.Run(stop, [this](int index, bool found, int percent) {
            Note([&](News& news) {
                news.Percent = percent;
                if (found)
                    news.Found.push_back(index);
            });
        });
    } catch (const std::exception&) { // nothing may leave a thread
    }
    Note([unread](News& news) {
        news.Unread = unread;
        news.Ended = true;
    });
}

void BackgroundSearch::Note(const std::function<void(News&)>& note) {
    {
        const std::scoped_lock lock(taking_);
        note(news_);
        if (std::exchange(told_, true))
            return;
    }
    changed_();
}

BackgroundSearch::News BackgroundSearch::Take() {
    const std::scoped_lock lock(taking_);
    told_ = false;
    return {.Found = std::exchange(news_.Found, {}),
            .Percent = news_.Percent,
            .Unread = news_.Unread,
            .Ended = news_.Ended};
}
