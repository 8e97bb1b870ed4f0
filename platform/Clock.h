// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The time of day.
#pragma once

#include <QDateTime>
#include <QString>

#include <cmath>

namespace Clock {

/// The current date and time as the system formats them for the user, on one line.
QString Now();

/// Seconds since midnight, with their fraction.
double SecondsOfDay();

/// A span of whole seconds as the system shows a time of day: without its sign, and from midnight on again after a day.
QString TimeOfDay(double seconds);

/// The user's day of a point in time. The system's time zone is not looked up anew for each.
QDate LocalDay(const QDateTime& time);

/// The part of a span of seconds that a clock shows: 0 to 86,399.
inline int SecondsOfADay(double seconds) {
    constexpr double day = 86400;
    return static_cast<int>(std::fmod(std::abs(seconds), day));
}

} // namespace Clock
