// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Textures.h"

#include "tools/demoworld/Bytes.h"

#include <algorithm>
#include <array>

namespace Demo {

namespace {

void AddPixel(Bytes& bytes, Colour colour, bool withAlpha) {
    bytes.Byte(colour.Blue).Byte(colour.Green).Byte(colour.Red);
    if (withAlpha)
        bytes.Byte(colour.Alpha);
}

/// How many pixels from `from` on are alike, at most 128.
int RunAt(const Colour* row, int from, int width) {
    int end = from + 1;
    while (end < width && end - from < 128 && row[end] == row[from])
        ++end;
    return end - from;
}

/// Packets of a row: a run of two and more alike, or the pixels up to the next run as they are.
void AddRunLengthRow(Bytes& bytes, const Colour* row, int width, bool withAlpha) {
    for (int x = 0; x < width;) {
        int count = RunAt(row, x, width);
        if (count > 1) {
            bytes.Byte(0x80 | (count - 1));
            AddPixel(bytes, row[x], withAlpha);
        } else {
            while (x + count < width && count < 128 && RunAt(row, x + count, width) == 1)
                ++count;
            bytes.Byte(count - 1);
            for (int i = 0; i < count; ++i)
                AddPixel(bytes, row[x + i], withAlpha);
        }
        x += count;
    }
}

/// Rows from the bottom, each padded to four bytes.
template <typename AddOne>
void AddBmpRows(Bytes& bytes, const Picture& picture, AddOne addOne) {
    for (int y = picture.Height - 1; y >= 0; --y) {
        const qsizetype start = bytes.Size();
        for (int x = 0; x < picture.Width; ++x)
            addOne(picture.At(x, y));
        bytes.Zeros((4 - (bytes.Size() - start) % 4) % 4);
    }
}

qint64 BmpDataSize(const Picture& picture, int bits) {
    return (qint64{picture.Width} * bits / 8 + 3) / 4 * 4 * picture.Height;
}

void AddBmpHeader(Bytes& bytes, const Picture& picture, int bits, int headerSize, int colours, int compression) {
    const qint64 dataOffset = 14 + headerSize + colours * 4, dataSize = BmpDataSize(picture, bits);
    bytes.Raw("BM").Little32(dataOffset + dataSize).Zeros(4).Little32(dataOffset);
    bytes.Little32(headerSize).Little32(picture.Width).Little32(picture.Height).Little16(1).Little16(bits);
    bytes.Little32(compression).Little32(dataSize).Little32(2835).Little32(2835).Little32(colours).Little32(0);
}

constexpr int RedSteps = 6, GreenSteps = 7, BlueSteps = 6;

int Nearest(quint8 value, int steps) {
    return (value * (steps - 1) + 127) / 255;
}

/// The cyclic redundancy check of a chunk.
quint32 CheckSum(QByteArrayView data) {
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : data) {
        sum ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

void AddChunk(Bytes& bytes, QByteArrayView kind, const QByteArray& data) {
    const QByteArray checked = kind.toByteArray() + data;
    bytes.Big32(data.size()).Raw(checked).Big32(CheckSum(checked));
}

/// What zlib makes of the data: qCompress with its length in front left out.
QByteArray Deflated(const QByteArray& data) {
    return qCompress(data, 6).mid(4);
}

} // namespace

QByteArray Tga(const Picture& picture, int bits, bool runLength, TgaOrigin origin) {
    const bool fromTop = origin == TgaOrigin::TopLeft, withAlpha = bits == 32;
    Bytes bytes;
    bytes.Byte(0).Byte(0).Byte(runLength ? 10 : 2).Zeros(5).Little16(0).Little16(0);
    bytes.Little16(picture.Width).Little16(picture.Height).Byte(bits).Byte((fromTop ? 0x20 : 0) | (withAlpha ? 8 : 0));
    for (int line = 0; line < picture.Height; ++line) {
        const Colour* row = &picture.At(0, fromTop ? line : picture.Height - 1 - line);
        if (runLength)
            AddRunLengthRow(bytes, row, picture.Width, withAlpha);
        else
            std::for_each(row, row + picture.Width, [&](Colour colour) { AddPixel(bytes, colour, withAlpha); });
    }
    return bytes.Get();
}

QByteArray Bmp24(const Picture& picture) {
    Bytes bytes;
    AddBmpHeader(bytes, picture, 24, 40, 0, 0);
    AddBmpRows(bytes, picture, [&](Colour colour) { AddPixel(bytes, colour, false); });
    return bytes.Get();
}

QByteArray Bmp8(const Picture& picture) {
    constexpr int colours = RedSteps * GreenSteps * BlueSteps;
    Bytes bytes;
    AddBmpHeader(bytes, picture, 8, 40, colours, 0);
    for (int i = 0; i < colours; ++i) {
        bytes.Byte(i % BlueSteps * 255 / (BlueSteps - 1)).Byte(i / BlueSteps % GreenSteps * 255 / (GreenSteps - 1));
        bytes.Byte(i / BlueSteps / GreenSteps * 255 / (RedSteps - 1)).Byte(0);
    }
    AddBmpRows(bytes, picture, [&](Colour colour) {
        const int red = Nearest(colour.Red, RedSteps), green = Nearest(colour.Green, GreenSteps);
        bytes.Byte((red * GreenSteps + green) * BlueSteps + Nearest(colour.Blue, BlueSteps));
    });
    return bytes.Get();
}

QByteArray Bmp32(const Picture& picture, int headerSize) {
    constexpr int bitFields = 3, version4Size = 108;
    Bytes bytes;
    AddBmpHeader(bytes, picture, 32, headerSize, 0, bitFields);
    bytes.Little32(0xFF0000).Little32(0xFF00).Little32(0xFF).Little32(0xFF000000).Raw("BGRs").Zeros(36 + 12);
    if (headerSize > version4Size)
        bytes.Little32(4).Zeros(12); // meant for pictures; no colour profile
    AddBmpRows(bytes, picture, [&](Colour colour) { AddPixel(bytes, colour, true); });
    return bytes.Get();
}

QByteArray Png(const Picture& picture) {
    Bytes rows;
    for (int y = 0; y < picture.Height; ++y) {
        rows.Byte(0);
        for (int x = 0; x < picture.Width; ++x) {
            const Colour colour = picture.At(x, y);
            rows.Byte(colour.Red).Byte(colour.Green).Byte(colour.Blue).Byte(colour.Alpha);
        }
    }
    Bytes head;
    head.Big32(picture.Width).Big32(picture.Height).Byte(8).Byte(6).Zeros(3);
    Bytes bytes;
    bytes.Raw("\x89PNG\r\n\x1A\n");
    AddChunk(bytes, "IHDR", head.Get());
    AddChunk(bytes, "IDAT", Deflated(rows.Get()));
    AddChunk(bytes, "IEND", {});
    return bytes.Get();
}

} // namespace Demo
