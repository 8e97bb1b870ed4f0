// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The bitmaps that the child process makes, as PNG.
#pragma once

#include <QByteArray>

namespace PngPicture {

/// A PNG of 32 bits a pixel, alpha included, from a bitmap as Pictures::ToBitmap makes it; empty for any other bytes.
QByteArray FromBitmap(const QByteArray& bitmap);

} // namespace PngPicture
