// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The system's side of SaveLock.
#pragma once

#include "platform/File.h"

enum class LockResult {
    Held,
    Taken,     ///< somebody else has it, or had it just now: to be asked again
    NoLocking, ///< there is nothing to be locked
};

/// Asks once for an inside path. Closing `held` lifts the lock.
LockResult LockForSave(const QString& path, File& held);
