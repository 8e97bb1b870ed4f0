// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The system's side of Leftovers::Sweep.
#pragma once

#include <QString>

#include <chrono>

/// Whoever writes does so more often than this; one who was killed does not.
inline constexpr std::chrono::minutes LeftoverAge{10};

void SweepLeftovers(const QString& nativeFolder);
