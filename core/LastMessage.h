// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a user is told of a failure that nothing caught, before the program ends.
#pragma once

#include "platform/RuntimeError.h"

namespace LastMessage {

/// A failure of the standard library as the run-time error that it comes to: no memory is 7, an index or a length out
/// of range 9, all else 5 with the library's own text. A run-time error is itself.
RuntimeError AsRuntimeError(const std::exception& failure);

/// Number and description, for the message box.
QString Text(const RuntimeError& error);

} // namespace LastMessage
