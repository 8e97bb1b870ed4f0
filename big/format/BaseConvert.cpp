// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/BaseConvert.h"

#include <cmath>
#include <limits>
#include <string_view>

namespace {

constexpr std::u16string_view Digits = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

qint32 ValueOf(const QString& text, int base) {
    if (base == 10)
        return text.toInt();
    qint32 value = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const auto digit = Digits.find(text[i].unicode());
        if (digit == std::u16string_view::npos)
            continue;
        const double sum =
            value + static_cast<double>(digit) * std::pow(base, static_cast<double>(text.size() - 1 - i));
        // A sum that does not fit is not stored, so the digit that caused it is skipped. This is meant.
        if (sum <= std::numeric_limits<qint32>::max())
            value = static_cast<qint32>(sum);
    }
    return value;
}

} // namespace

namespace mBIG {

QString BaseConvert(const QString& text, int sourceBase, int targetBase) {
    if (text == u"0")
        return text;
    qint32 value = ValueOf(text, sourceBase);
    if (targetBase == 0)
        return QString::number(value);
    if (targetBase < 2 || targetBase > static_cast<int>(Digits.size()))
        return {};
    // No digit is produced for zero, so that "00000000" gives empty text. This is meant.
    QString digits;
    for (; value >= 1; value /= targetBase)
        digits.prepend(QChar(Digits[static_cast<std::size_t>(value % targetBase)]));
    return digits;
}

} // namespace mBIG
