// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a user should know and need not answer: the line under a window's menu bar, as plain data.
#pragma once

#include <QString>

#include <functional>
#include <vector>

struct NoticeLink {
    QString Text;
    std::function<void()> Run; ///< the notice goes before it runs
};

/// Without a text there is none.
struct Notice {
    QString Text;
    std::vector<NoticeLink> Links{}; ///< three at most
};
