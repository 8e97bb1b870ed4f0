// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Sizes.h"

#include "core/mTraduction.h"

#include <QLocale>
#include <QtNumeric>

#include <limits>

using namespace Qt::StringLiterals;

QString Sizes::Grouped(qint64 number) {
    constexpr int group = 3;
    QString text = QString::number(number);
    for (qsizetype at = text.size() - group; at > 0; at -= group)
        text.insert(at, QLocale().groupSeparator());
    return text;
}

qint64 Sizes::Sum(qint64 left, qint64 right) {
    qint64 sum = 0;
    return qAddOverflow(left, right, &sum) ? std::numeric_limits<qint64>::max() : sum;
}

QString Sizes::KiloBytes(qint64 bytes) {
    return Grouped(bytes / 1024) + u' ' + mTraduction::GetText(u"KiloBytes"_s);
}
