// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The standard streams of a program without windows. Bytes are written as they are; where a stream is a console that
/// knows characters, they are shown as the UTF-8 that they are.
#pragma once

#include <QByteArray>

namespace Console {

/// Raises when the system refuses them (61 full, 57 or 70).
void Write(const QByteArray& bytes);

/// Writes to the standard error stream; what fails there can't be told.
void WriteError(const QByteArray& bytes);

} // namespace Console
