// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PrivateName.h"

#include <QRandomGenerator>

QString PrivateName() {
    QRandomGenerator* random = QRandomGenerator::system();
    constexpr int digits = 16;
    return QStringLiteral("~brindock-%1%2")
        .arg(random->generate64(), digits, 16, QLatin1Char('0'))
        .arg(random->generate64(), digits, 16, QLatin1Char('0'));
}
