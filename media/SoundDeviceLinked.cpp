// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/SoundDevice.h"

std::unique_ptr<SoundOutput> MakeSoundOutput() {
    return std::make_unique<DeviceOutput>();
}
