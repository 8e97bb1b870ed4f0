// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one function of the module that SoundDeviceLoaded looks up.
#include "media/SoundDevice.h"

/// The caller owns the output.
extern "C" Q_DECL_EXPORT SoundOutput* BrindockMakeSoundOutput() {
    return std::make_unique<DeviceOutput>().release();
}
