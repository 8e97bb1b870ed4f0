// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The system's error codes as run-time errors, and the path forms that its calls take.
#pragma once

#include <QString>

/// Raises the run-time error of a GetLastError value, its description naming the path.
[[noreturn]] void RaiseLastError(unsigned long error, const QString& path);

/// Keeps a failure that a routine does not raise among the refusals, unless it is an answer, as that nothing stands
/// there.
void NoteLastError(unsigned long error, const QString& path);

/// For the W calls; long paths get the prefix that lifts the limit of 260 characters. Valid while `path` lives.
std::wstring WidePath(const QString& path);
