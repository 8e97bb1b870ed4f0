// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The child process that decodes pictures and sounds: it reads one file and writes one a time, within limits, and
/// nothing else. It shows no window, plays nothing, and needs neither a display nor a sound device.
#pragma once

namespace MediaChild {

/// Whether a command line asks this process to be the child.
bool IsAsked(int argc, char** argv);

/// Waits on standard input for a line of a kind and two paths and answers with a line on standard output, until the
/// input ends. Returns the exit code.
int Run(int argc, char** argv);

} // namespace MediaChild
