// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureReaders.h"

#include <QtEndian>

#include <array>
#include <cstring>

namespace {

/// The size that the file claims; empty when nobody knows it.
QSize ClaimedSize(const QByteArray& bytes) {
    for (const auto sizeOf : {Pictures::DdsSize, Pictures::PfmSize, Pictures::QtSize, Pictures::StbSize}) {
        if (const QSize size = sizeOf(bytes); !size.isEmpty())
            return size;
    }
    return {};
}

void Put32(QByteArray& bytes, quint32 value) {
    std::array<char, 4> little{};
    qToLittleEndian(value, little.data());
    bytes.append(little.data(), little.size());
}

} // namespace

bool Pictures::IsSane(qint64 width, qint64 height) {
    constexpr qint64 longestSide = 16384;
    constexpr qint64 mostPixels = qint64{32} * 1024 * 1024;
    return width > 0 && height > 0 && width <= longestSide && height <= longestSide && width * height <= mostPixels;
}

QImage Pictures::Read(const QByteArray& bytes, const QString& name) {
    const QSize claimed = ClaimedSize(bytes);
    if (!claimed.isEmpty() && !IsSane(claimed.width(), claimed.height()))
        return {};
    if (QImage picture = ReadWithDevil(bytes, name); !picture.isNull())
        return picture;
    for (const auto read : {ReadDds, ReadPfm, ReadWithQt, ReadWithStb}) {
        if (QImage picture = read(bytes); !picture.isNull())
            return picture;
    }
    return {};
}

QByteArray Pictures::ToBitmap(const QImage& picture) {
    constexpr quint32 fileHeader = 14;
    constexpr quint32 header = 108;
    constexpr quint32 planesAndBits = 1U | 32U << 16;
    constexpr quint32 withMasks = 3;
    if (picture.isNull())
        return {};
    const QImage plain = picture.convertToFormat(QImage::Format_ARGB32);
    const auto pixels = static_cast<quint32>(plain.sizeInBytes());
    QByteArray bitmap("BM");
    bitmap.reserve(qsizetype{fileHeader} + header + pixels);
    for (const quint32 value :
         {fileHeader + header + pixels, 0U, fileHeader + header, header, static_cast<quint32>(plain.width()),
          static_cast<quint32>(plain.height()), planesAndBits, withMasks, pixels, 0U, 0U, 0U, 0U, 0x00FF0000U,
          0x0000FF00U, 0x000000FFU, 0xFF000000U, 0x73524742U}) // the last one says sRGB
        Put32(bitmap, value);
    bitmap.resize(fileHeader + header, '\0');
    for (int line = plain.height() - 1; line >= 0; --line) {
        const auto* from = reinterpret_cast<const QRgb*>(plain.constScanLine(line));
        const qsizetype start = bitmap.size();
        bitmap.resize(start + plain.bytesPerLine());
        qToLittleEndian<quint32>(from, plain.width(), bitmap.data() + start);
    }
    return bitmap;
}
