// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PngPicture.h"

#include <QtEndian>

#include <array>

#include <zlib.h>

namespace {

constexpr qsizetype PixelLength = 4;

void Put32(QByteArray& bytes, quint32 value) {
    std::array<char, 4> big{};
    qToBigEndian(value, big.data());
    bytes.append(big.data(), big.size());
}

void PutChunk(QByteArray& png, const QByteArray& kind, const QByteArray& content) {
    const QByteArray summed = kind + content;
    Put32(png, static_cast<quint32>(content.size()));
    png += summed;
    Put32(png, static_cast<quint32>(
                   ::crc32(0, reinterpret_cast<const Bytef*>(summed.constData()), static_cast<uInt>(summed.size()))));
}

/// The lines from the top, red first, each pixel as the difference from the one before it: that packs better.
QByteArray Lines(const QByteArray& bitmap, qsizetype start, qsizetype width, qsizetype height) {
    constexpr char difference = 1;
    const qsizetype length = width * PixelLength;
    QByteArray lines((length + 1) * height, '\0');
    char* to = lines.data();
    for (qsizetype line = height - 1; line >= 0; --line) {
        const char* from = bitmap.constData() + start + line * length;
        *to++ = difference;
        std::array<int, PixelLength> before{};
        for (qsizetype pixel = 0; pixel < width; ++pixel, from += PixelLength) {
            const std::array<int, PixelLength> colour{from[2], from[1], from[0], from[3]};
            for (std::size_t channel = 0; channel < colour.size(); ++channel)
                *to++ = static_cast<char>(colour.at(channel) - before.at(channel));
            before = colour;
        }
    }
    return lines;
}

} // namespace

QByteArray PngPicture::FromBitmap(const QByteArray& bitmap) {
    constexpr qsizetype startAt = 10;
    constexpr qsizetype widthAt = 18;
    constexpr qsizetype heightAt = 22;
    constexpr qsizetype bitsAt = 28;
    constexpr qsizetype header = 14 + 108;
    if (!bitmap.startsWith("BM") || bitmap.size() < header ||
        qFromLittleEndian<quint16>(bitmap.constData() + bitsAt) != 32)
        return {};
    const qsizetype start = qFromLittleEndian<quint32>(bitmap.constData() + startAt);
    const auto width = qFromLittleEndian<qint32>(bitmap.constData() + widthAt);
    const auto height = qFromLittleEndian<qint32>(bitmap.constData() + heightAt);
    constexpr qint32 longestSide = 16384;
    if (width <= 0 || height <= 0 || width > longestSide || height > longestSide ||
        bitmap.size() - start < PixelLength * width * height)
        return {};
    QByteArray head;
    Put32(head, static_cast<quint32>(width));
    Put32(head, static_cast<quint32>(height));
    head += QByteArray("\x08\x06\0\0\0", 5); // 8 bits for each of red, green, blue and alpha
    QByteArray png("\x89PNG\r\n\x1A\n");
    PutChunk(png, "IHDR", head);
    constexpr qsizetype lengthBefore = 4; // what qCompress puts before the packed bytes
    PutChunk(png, "IDAT", qCompress(Lines(bitmap, start, width, height)).sliced(lengthBefore));
    PutChunk(png, "IEND", {});
    return png;
}
