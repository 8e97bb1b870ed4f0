// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The arguments of this process.
#pragma once

#include <string>
#include <vector>

/// The arguments behind the program's name: the bytes given on POSIX, UTF-8 on Windows.
std::vector<std::string> ProcessArguments(int argc, char** argv);
