// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The files that new entries' bytes come from.
#pragma once

#include <QString>

#include <optional>

namespace SourceFiles {

/// Length in bytes; nothing when there is no such file. Raises, with its name, when the system doesn't tell.
std::optional<qint64> LengthOf(const QString& path);

} // namespace SourceFiles
