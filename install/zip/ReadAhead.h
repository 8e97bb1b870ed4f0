// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Small reads, mostly one behind the other, out of few large ones.
#pragma once

#include "platform/Device.h"

class ReadAhead {
public:
    /// The device outlives it.
    explicit ReadAhead(const Device& device) : device_(device) {}

    /// The bytes from `offset` on, as many as are asked for; fewer at the device's end. They stay until the next call.
    /// Raises when reading fails.
    QByteArrayView View(qint64 offset, qint64 count);

private:
    const Device& device_;
    QByteArray buffer_;
    qint64 start_ = 0;
};
