// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a measured window has around it: as much of the suite as stands before its first window. The games are those of
/// the registry in use.
#pragma once

#include <functional>

/// The whole of a program's main: runs `measure`, which ends the program by itself or returns. The exit code is 2 where
/// there are fewer or more arguments than that.
int RunMeasured(int argc, char** argv, int least, int most, const std::function<void()>& measure);
