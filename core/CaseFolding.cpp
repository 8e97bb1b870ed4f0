// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/CaseFolding.h"

#include <algorithm>

namespace {

constexpr char16_t FirstBeyondAscii = 0x80;
constexpr char16_t CaseDistance = u'a' - u'A';

/// 1 for a capital, else 0: sums and not branches, so that many letters are looked at in one step.
constexpr unsigned IsCapital(char16_t unit) {
    return static_cast<unsigned>(static_cast<char16_t>(unit - u'A') <= u'Z' - u'A');
}

} // namespace

QString CaseFolded(const QString& text) {
    const char16_t* const units = QStringView(text).utf16();
    unsigned all = 0;
    unsigned capitals = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        all |= units[at];
        capitals |= IsCapital(units[at]);
    }
    if (all >= FirstBeyondAscii)
        return text.toCaseFolded();
    if (capitals == 0)
        return text;
    QString folded(text.size(), Qt::Uninitialized);
    std::transform(units, units + text.size(), reinterpret_cast<char16_t*>(folded.data()),
                   [](char16_t unit) { return static_cast<char16_t>(unit + IsCapital(unit) * CaseDistance); });
    return folded;
}
