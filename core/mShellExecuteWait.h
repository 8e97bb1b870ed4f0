// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Handing a file to the program that the system associates with it.
#pragma once

#include "platform/Processes.h"

#include <QString>

namespace mShellExecuteWait {

/// Opens `path`; with `wait` returns only when that program has ended, keeping the event loop turning. A path that
/// ends in "csf" goes to the CSF Editor instead. What the system refuses is told in a message box.
/// `owner` is the calling window's handle. Returns the process handle or 0.
Processes::Handle OpenWithShell(const QString& path, quintptr owner, bool wait);

/// The fixed text that tells an answer of the shell; empty for one that is passed over (success, file not found) or
/// that has another reaction.
QString RefusalText(int instApp);

/// Does what an answer of the shell to opening `path` asks for: a message, the choice of a program, or nothing.
void ReactTo(int instApp, const QString& path);

/// Returns when the process has ended, whatever its exit code, keeping the event loop turning; gives the handle back.
void WaitFor(Processes::Handle process);

} // namespace mShellExecuteWait
