// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one function of the module that SoundMixerLoaded looks up.
#include "media/SoundMixer.h"

extern "C" Q_DECL_EXPORT void BrindockDecodeSound(const QByteArray* checked, QByteArray* samples) {
    *samples = Mixer::Decode(*checked);
}
