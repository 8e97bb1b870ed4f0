// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Decoded samples, as the child process writes and the player takes them: 16 bits each in this machine's order, left
/// and right in turns.
#pragma once

#include <QtGlobal>

namespace Pcm {

inline constexpr int Rate = 44100; ///< frames a second
inline constexpr int Channels = 2;
inline constexpr int BytesPerFrame = Channels * 2;

/// Nobody decodes or plays more: twelve minutes and a half.
inline constexpr qint64 MostBytes = qint64{128} * 1024 * 1024;

inline qint64 Milliseconds(qint64 bytes) {
    return bytes / BytesPerFrame * 1000 / Rate;
}

} // namespace Pcm
