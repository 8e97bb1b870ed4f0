// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Handing a file to the program that the system associates with it.
#pragma once

#include "platform/Processes.h"

#include <QString>

#include <functional>

namespace mShellExecuteWait {

/// Opens `path` and goes on. A path that ends in "csf" goes to the CSF Editor. What the system refuses is told in a
/// message box. `owner` is the calling window's handle. The process, which may be 0, is the caller's to give back:
/// a ProcessEnd takes it over and tells when the program has ended.
Processes::Opened Open(const QString& path, quintptr owner);

/// Whether some program may have the file now, be it one that nobody can wait for.
bool IsOpened(const Processes::Opened& opened);

/// Opens `path`; with `wait` returns only when that program has ended, keeping the event loop turning. A path that
/// ends in "csf" goes to the CSF Editor instead. What the system refuses is told in a message box.
/// `owner` is the calling window's handle. The wait is given up as soon as `goesOn` says no; whoever opens a file from
/// something that may go while it waits keeps it out of what follows. Returns the process handle or 0.
Processes::Handle OpenWithShell(
    const QString& path, quintptr owner, bool wait, const std::function<bool()>& goesOn = [] { return true; });

/// The fixed text that tells an answer of the shell; empty for one that is passed over (success, file not found) or
/// that has another reaction.
QString RefusalText(int instApp);

/// Does what an answer of the shell to opening `path` asks for: a message, the choice of a program, or nothing.
/// Returns the answer; 27 in place of 31 where there is no chooser for programs.
int ReactTo(int instApp, const QString& path);

/// Returns when the process has ended, whatever its exit code, or `goesOn` says no, keeping the event loop turning;
/// gives the handle back.
void WaitFor(
    Processes::Handle process, const std::function<bool()>& goesOn = [] { return true; });

} // namespace mShellExecuteWait
