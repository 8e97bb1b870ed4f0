// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Pictures as the files that the games keep them in.
#pragma once

#include "tools/demoworld/Picture.h"

#include <QByteArray>

namespace Demo {

enum class DdsFormat {
    Dxt1,     ///< 4 bits a pixel, alpha left out
    Dxt3,     ///< 8 bits a pixel, alpha in 16 steps
    Dxt5,     ///< 8 bits a pixel, alpha interpolated
    Argb8888, ///< 32 bits a pixel
    Rgb888,   ///< 24 bits a pixel
    Rgb565,   ///< 16 bits a pixel, no alpha
    Argb1555, ///< 16 bits a pixel, one of them alpha
    Argb4444, ///< 16 bits a pixel, four of them alpha
};

/// A DirectDraw surface; `mipmaps` adds the halves down to one pixel. Compressed sides are multiples of 4.
QByteArray Dds(const Picture& picture, DdsFormat format, bool mipmaps = true);

enum class TgaOrigin { BottomLeft, TopLeft };

/// `bits` is 24 or 32.
QByteArray Tga(const Picture& picture, int bits, bool runLength, TgaOrigin origin);

QByteArray Bmp24(const Picture& picture);

/// Eight bits a pixel over a palette of 252 evenly spread colours.
QByteArray Bmp8(const Picture& picture);

/// 32 bits with an alpha mask; `headerSize` is 108 (version 4) or 124 (version 5).
QByteArray Bmp32(const Picture& picture, int headerSize);

/// Eight bits a channel with alpha.
QByteArray Png(const Picture& picture);

} // namespace Demo
