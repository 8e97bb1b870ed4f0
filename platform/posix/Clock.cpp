// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Clock.h"

#include <QDateTime>
#include <QLocale>

QString Clock::Now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QLocale locale = QLocale::system();
    // Only the long form of a time has its seconds, but it names the zone too.
    const QString timeFormat = locale.timeFormat(QLocale::LongFormat).remove(u't');
    const QString date = locale.toString(now.date(), QLocale::ShortFormat);
    return (date + u' ' + locale.toString(now.time(), timeFormat)).simplified();
}

double Clock::SecondsOfDay() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}
