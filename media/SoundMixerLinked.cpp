// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/SoundMixer.h"
#include "media/SoundReaders.h"

QByteArray DecodeSound(const QByteArray& checked) {
    return Mixer::Decode(checked);
}
