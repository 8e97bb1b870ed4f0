// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What is asked before anything is written. No is the answer that Enter gives.
#pragma once

#include "install/wizard/InstallPlan.h"

#include <set>

namespace InstallQuestions {

/// Asks through the Host: once for mods that have the name of one of the game's own archives, once for maps that would
/// replace other files, and once for very much. Returns the numbers of the items that are not wanted.
std::set<std::size_t> NotWanted(const InstallPlan& plan);

} // namespace InstallQuestions
