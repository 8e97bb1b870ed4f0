// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PrivateName.h"

#include <QRandomGenerator>

#include <algorithm>

namespace {

constexpr int Digits = 16;
constexpr QLatin1StringView Beginning("~brindock-");

} // namespace

QString PrivateName() {
    QRandomGenerator* random = QRandomGenerator::system();
    return Beginning + QStringLiteral("%1%2")
                           .arg(random->generate64(), Digits, 16, QLatin1Char('0'))
                           .arg(random->generate64(), Digits, 16, QLatin1Char('0'));
}

bool IsPrivateName(QStringView name) {
    constexpr qsizetype random = qsizetype{2} * Digits;
    if (!name.startsWith(Beginning) || name.size() < Beginning.size() + random)
        return false;
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    const auto isHex = [&](QChar character) { return isDigit(character) || (character >= u'a' && character <= u'f'); };
    const QStringView behind = name.sliced(Beginning.size());
    return std::ranges::all_of(behind.first(random), isHex) && std::ranges::all_of(behind.sliced(random), isDigit);
}
