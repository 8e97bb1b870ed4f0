// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Clock.h"

#include "platform/windows/System.h"

#include <QString>

#include <array>

namespace {

/// What one of the system's two formatting calls gives for the time.
template <typename Format>
QString Formatted(Format format, const SYSTEMTIME& time) {
    std::array<wchar_t, 256> text{};
    const int length = format(LOCALE_USER_DEFAULT, 0, &time, nullptr, text.data(), static_cast<int>(text.size()));
    return length > 0 ? QString::fromWCharArray(text.data(), length - 1) : QString();
}

SYSTEMTIME LocalTime() {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return now;
}

} // namespace

QString Clock::Now() {
    const SYSTEMTIME now = LocalTime();
    return (Formatted(&::GetDateFormatW, now) + u' ' + Formatted(&::GetTimeFormatW, now)).simplified();
}

QString Clock::TimeOfDay(double seconds) {
    constexpr int sixty = 60;
    const int whole = SecondsOfADay(seconds);
    SYSTEMTIME time = LocalTime();
    time.wHour = static_cast<WORD>(whole / sixty / sixty);
    time.wMinute = static_cast<WORD>(whole / sixty % sixty);
    time.wSecond = static_cast<WORD>(whole % sixty);
    return Formatted(&::GetTimeFormatW, time).simplified();
}

QDate Clock::LocalDay(const QDateTime& time) {
    return time.toLocalTime().date();
}

double Clock::SecondsOfDay() {
    const SYSTEMTIME now = LocalTime();
    return (now.wHour * 60 + now.wMinute) * 60 + now.wSecond + now.wMilliseconds / 1000.0;
}
