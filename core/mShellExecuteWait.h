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

} // namespace mShellExecuteWait
