// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What has bytes but no length and no place to put a new one beside: the standard streams, pipes and terminals.
#pragma once

#include <QByteArray>
#include <QString>

namespace Streams {

/// The most bytes that are read of one; it raises what has more (7).
inline constexpr qint64 MostBytes = qint64{1} << 30;

/// All of standard input. Raises what the system raises (57).
QByteArray ReadInput();

/// Whether a pipe or a terminal stands at an inside path, links followed.
[[nodiscard]] bool IsAt(const QString& path);

/// All that comes out of one, until its other end closes. Raises what the system raises.
QByteArray ReadAll(const QString& path);

/// Raises what the system raises.
void WriteAll(const QString& path, const QByteArray& bytes);

} // namespace Streams
