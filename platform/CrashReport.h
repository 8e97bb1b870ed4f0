// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A short text that the program leaves when it crashes, for who mends it: what was told before, the fault, the stack
/// as modules and offsets into them, and the names of the last commands. Nothing of what the user's files hold.
#pragma once

#include <QByteArray>
#include <QString>

namespace CrashReport {

/// From now on a crash makes the file (an inside path; its folder too, if the folder above that is there) with `facts`
/// as its first lines. The process then ends as it would have. Counts once a process.
void Leave(const QString& path, const QByteArray& facts);

/// Notes a command by a name of our own.
void Note(const QByteArray& command);

} // namespace CrashReport
