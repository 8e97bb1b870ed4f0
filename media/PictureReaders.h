// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Reads the bytes of a picture file of any kind that the games use. For the child process: hostile bytes may cost it
/// its life in one of the libraries; our own readers bound what they allocate by the file's length.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Pictures {

/// Whether a picture of that size is worth any memory: 16,384 pixels a side, 32 Mi pixels at most.
bool IsSane(qint64 width, qint64 height);

/// The picture, from the first reader that takes it; null when none does. The name's extension tells the kind where the
/// bytes don't.
QImage Read(const QByteArray& bytes, const QString& name);

/// A bitmap of 32 bits a pixel with an alpha mask (a header of version 4); empty for a null picture.
QByteArray ToBitmap(const QImage& picture);

// The readers. Each returns a null picture for what it does not take.

/// DevIL, where it was built in.
QImage ReadWithDevil(const QByteArray& bytes, const QString& name);
/// Qt's own: BMP, GIF, JPEG and PNG.
QImage ReadWithQt(const QByteArray& bytes);
/// stb_image: TGA and HDR besides.
QImage ReadWithStb(const QByteArray& bytes);
/// DXT1 to DXT5 and plain pixels of 8 to 32 bits; the first picture of the file.
QImage ReadDds(const QByteArray& bytes);
/// Portable float maps in colour and grey, from 0 to 1, lit as a screen shows them.
QImage ReadPfm(const QByteArray& bytes);

// The sizes that files claim; empty where the reader does not know the file.
QSize DdsSize(const QByteArray& bytes);
QSize PfmSize(const QByteArray& bytes);
QSize QtSize(const QByteArray& bytes);
QSize StbSize(const QByteArray& bytes);

} // namespace Pictures
