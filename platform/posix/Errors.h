// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The system's error codes as run-time errors.
#pragma once

#include <QString>

/// Raises the run-time error of an errno value, its description naming the path as the system writes it.
[[noreturn]] void RaiseErrno(int error, const QString& nativePath);

/// The same as the run-time error of another number.
[[noreturn]] void RaiseErrno(int error, const QString& nativePath, int number);

/// Keeps a failure that a routine does not raise among the refusals, unless it is an answer.
void NoteErrno(int error, const QString& nativePath);
