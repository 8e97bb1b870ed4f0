// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LargePages.h"

#include <sys/mman.h>

#include <memory>

void PreferLargePages(QByteArray& bytes) {
    constexpr std::size_t page = std::size_t{2} * 1024 * 1024;
    auto room = static_cast<std::size_t>(bytes.size());
    void* whole = bytes.data();
    if (std::align(page, page, whole, room) != nullptr)
        static_cast<void>(::madvise(whole, room / page * page, MADV_HUGEPAGE));
}
