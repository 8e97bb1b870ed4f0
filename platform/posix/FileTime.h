// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The system's times of files.
#pragma once

#include <QtGlobal>

#include <ctime>

/// Since 1970, rounded down.
inline qint64 Milliseconds(const timespec& time) {
    return qint64{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000;
}
