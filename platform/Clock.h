// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The time of day.
#pragma once

#include <QDateTime>
#include <QString>

namespace Clock {

/// The current date and time as the system formats them for the user, on one line.
QString Now();

/// Seconds since midnight, with their fraction.
double SecondsOfDay();

/// The user's day of a point in time. The system's time zone is not looked up anew for each.
QDate LocalDay(const QDateTime& time);

} // namespace Clock
