// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What `install` prints: a plan, and what came of it.
#pragma once

#include "install/wizard/InstallOutcome.h"
#include "install/wizard/InstallPlan.h"

namespace InstallRows {

/// Prints a plan: a row an item, and below it a row a file; behind all what an archive's other entries are passed over
/// for.
void Print(const InstallPlan& plan, const std::vector<PassedOverEntry>& passedOver, bool asJson);

/// Prints what was written and what stood there already, a line a file, or as JSON all of it; what was not done goes to
/// standard error.
void Print(const InstallOutcome& outcome, bool asJson);

} // namespace InstallRows
