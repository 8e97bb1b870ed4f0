// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The system's times of files.
#pragma once

#include "platform/windows/System.h"

#include <QDateTime>

/// In UTC, to the millisecond.
inline QDateTime FromFileTime(const FILETIME& time) {
    constexpr qint64 ticksAMillisecond = 10'000;
    constexpr qint64 millisecondsFrom1601To1970 = 11'644'473'600'000;
    const auto ticks = static_cast<qint64>((quint64{time.dwHighDateTime} << 32U) | time.dwLowDateTime);
    return QDateTime::fromMSecsSinceEpoch(ticks / ticksAMillisecond - millisecondsFrom1601To1970, Qt::UTC);
}
