// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The command line as data, for what is made from it: man pages and the completions of shells.
#pragma once

#include "app/cli/Command.h"

#include <QByteArray>

#include <vector>

/// JSON: a list of groups with "name" (empty for commands that stand alone), "description" and "commands", each with
/// "name", "description" and "parameters", each of these with "kind" (place, places, option, list, number or flag),
/// "name", "description", "value" (what its value is called), "required" and "members" (the only values allowed).
QByteArray Described(const std::vector<CommandGroup>& groups);
