// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The toolkit's network library as an HttpClient. It knows nothing of the rest of the program, which loads it when it
/// is asked for first, or has it linked in where the programs are built in one piece.
#pragma once

#include "update/HttpClient.h"

#include <chrono>
#include <memory>

/// Sleeps in the event loop until a condition holds; false when the loop is left before that.
using HttpWait = std::function<bool(const std::function<bool()>& condition)>;

/// How long a server may say nothing; then the transfer has failed.
inline constexpr std::chrono::milliseconds LongestSilence{60000};

std::unique_ptr<HttpClient> MakeWebClient(HttpWait wait, std::chrono::milliseconds silence = LongestSilence);
