// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Decodes a checked sound through SDL2_mixer; see DecodeSound.
#pragma once

#include <QByteArray>

namespace Mixer {

QByteArray Decode(const QByteArray& checked);

} // namespace Mixer
