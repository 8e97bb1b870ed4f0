// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the targets of the string tables' other formats share.
#pragma once

#include "csf/exchange/CsfExchange.h"

namespace Fuzzing {

/// Imports the bytes; what was imported is the same after an export and an import.
void ImportAndReturn(const QByteArray& bytes, CsfExchange::Format format);

} // namespace Fuzzing
