// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Clock.h"

#include <QDateTime>
#include <QLocale>

#include <ctime>

namespace {

QString Formatted(QTime time) {
    const QLocale locale = QLocale::system();
    // Only the long form of a time has its seconds, but it names the zone too.
    return locale.toString(time, locale.timeFormat(QLocale::LongFormat).remove(u't')).simplified();
}

} // namespace

QString Clock::Now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QString date = QLocale::system().toString(now.date(), QLocale::ShortFormat);
    return (date + u' ' + Formatted(now.time())).simplified();
}

QString Clock::TimeOfDay(double seconds) {
    constexpr int milliseconds = 1000;
    return Formatted(QTime::fromMSecsSinceStartOfDay(SecondsOfADay(seconds) * milliseconds));
}

QDate Clock::LocalDay(const QDateTime& time) {
    // Qt asks for the zone's file each time, which costs thousands of dates more than all else.
    constexpr qint64 second = 1000;
    const qint64 milliseconds = time.toMSecsSinceEpoch();
    const std::time_t seconds = milliseconds / second - (milliseconds % second < 0 ? 1 : 0);
    std::tm day{};
    if (::localtime_r(&seconds, &day) == nullptr)
        return time.toLocalTime().date();
    constexpr int firstYear = 1900;
    return {day.tm_year + firstYear, day.tm_mon + 1, day.tm_mday};
}

double Clock::SecondsOfDay() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}
