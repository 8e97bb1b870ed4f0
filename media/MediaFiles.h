// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Whole files for the decoders and the player.
#pragma once

#include <QByteArray>
#include <QString>

namespace MediaFiles {

/// The bytes of a file (inside path); none of one that is longer than `longest` bytes. Raises when it can't be read.
QByteArray Read(const QString& path, qint64 longest);

/// Writes a temporary file (inside path) in place of what stands there. Raises when it can't.
void Write(const QString& path, const QByteArray& bytes);

} // namespace MediaFiles
