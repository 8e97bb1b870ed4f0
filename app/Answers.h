// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the suite answers on standard output, without a window.
#pragma once

#include <QByteArray>

#include <optional>
#include <span>

namespace Answers {

/// The answer to the words behind the program's name: to a single "--help" or "--version"; nothing to any others.
std::optional<QByteArray> To(std::span<char*> words);

} // namespace Answers
