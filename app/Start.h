// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The suite from its command line to its end.
#pragma once

class QObject;

/// Runs the suite and returns its exit code. `watcher` sees every event before its receiver does, and is how the start
/// is measured; it may be null.
int RunSuite(int argc, char** argv, QObject* watcher);
