// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/VersionNumbers.h"

#include <QStringList>

#include <algorithm>

std::optional<VersionNumbers::Numbers> VersionNumbers::Of(const QString& version) {
    Numbers numbers{};
    const QStringList parts = version.split(u'.');
    if (parts.size() != static_cast<qsizetype>(numbers.size()))
        return std::nullopt;
    for (std::size_t at = 0; at < numbers.size(); ++at) {
        const QString& part = parts.at(static_cast<qsizetype>(at));
        const bool plain = std::ranges::all_of(part, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
        bool fits = false;
        numbers.at(at) = part.toUInt(&fits);
        if (!plain || !fits)
            return std::nullopt;
    }
    return numbers;
}
