// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What this process may use before the system ends it or refuses it more.
#pragma once

#include <QtGlobal>

namespace Limits {

/// Bounds the memory of this process, and lets a crash pass without a word of the system's. False where the bound can't
/// be set: a process that has reserved more already, as one under the address sanitizer has.
bool BoundMemory(qint64 bytes);

/// Ends this process when it has used the processor for so many seconds from now on; the last call counts.
bool BoundProcessorTime(int seconds);

} // namespace Limits
