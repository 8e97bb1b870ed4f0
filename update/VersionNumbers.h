// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Versions as numbers.
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace VersionNumbers {

using Numbers = std::array<quint32, 3>;

/// Major.Minor.Revision in plain decimal numbers; nothing for any other text.
std::optional<Numbers> Of(const QString& version);

} // namespace VersionNumbers
