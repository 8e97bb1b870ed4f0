// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A folder that one living process has to itself, as far as those go that ask.
#pragma once

#include "platform/File.h"

#include <QString>

#include <chrono>

/// Locks a folder while it lives; the system lifts the lock when the process dies, however it dies. What is in the
/// folder is open to everybody all the same.
class FolderLock {
public:
    enum class Result {
        Held,
        Taken,    ///< somebody else has it, another FolderLock of this process too
        NoLocking ///< there is no such folder, or no lock can be had in it (as in one that may not be written)
    };

    /// Asks once for an inside path; never waits.
    explicit FolderLock(const QString& folder);

    /// Asks again and again while somebody else has it, for so long.
    static FolderLock WaitedFor(const QString& folder, std::chrono::milliseconds patience);

    [[nodiscard]] Result State() const { return state_; }

    [[nodiscard]] bool Held() const { return state_ == Result::Held; }

private:
    Result state_ = Result::NoLocking;
    File lock_; ///< closing it lifts the lock
};
