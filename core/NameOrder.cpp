// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/NameOrder.h"

#include <algorithm>

bool NameOrder::IsBefore(const QString& first, const QString& second) {
    const auto capital = [](QChar letter) { return letter.toUpper(); };
    const auto [one, other] = std::ranges::mismatch(first, second, {}, capital, capital);
    if (one == first.end() && other == second.end())
        return first < second;
    return one == first.end() || (other != second.end() && capital(*one) < capital(*other));
}

void NameOrder::Sort(QStringList& names) {
    std::ranges::sort(names, IsBefore);
}
