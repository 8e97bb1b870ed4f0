// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Textures.h"

#include "tools/demoworld/Bytes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>

namespace Demo {

namespace {

constexpr qsizetype FieldSize = 4;

struct PixelLayout {
    QByteArrayView FourCharacters; ///< of a compressed format; empty for plain pixels
    int BlockBytes;                ///< of 4 by 4 pixels, when compressed
    int Bits;                      ///< a pixel, when plain
    quint32 Red, Green, Blue, Alpha;
};

PixelLayout LayoutOf(DdsFormat format) {
    switch (format) {
    case DdsFormat::Dxt1:
        return {"DXT1", 8, 0, 0, 0, 0, 0};
    case DdsFormat::Dxt3:
        return {"DXT3", 16, 0, 0, 0, 0, 0};
    case DdsFormat::Dxt5:
        return {"DXT5", 16, 0, 0, 0, 0, 0};
    case DdsFormat::Argb8888:
        return {{}, 0, 32, 0xFF0000, 0xFF00, 0xFF, 0xFF000000};
    case DdsFormat::Rgb888:
        return {{}, 0, 24, 0xFF0000, 0xFF00, 0xFF, 0};
    case DdsFormat::Rgb565:
        return {{}, 0, 16, 0xF800, 0x7E0, 0x1F, 0};
    case DdsFormat::Argb1555:
        return {{}, 0, 16, 0x7C00, 0x3E0, 0x1F, 0x8000};
    case DdsFormat::Argb4444:
        break;
    }
    return {{}, 0, 16, 0xF00, 0xF0, 0xF, 0xF000};
}

/// The eight bits of a channel moved to the highest bits under the mask.
quint32 UnderMask(quint8 value, quint32 mask) {
    const int top = 31 - std::countl_zero(mask | 1);
    const quint32 placed = top >= 7 ? quint32{value} << (top - 7) : quint32{value} >> (7 - top);
    return placed & mask;
}

quint32 PlainPixel(const PixelLayout& layout, Colour colour) {
    return UnderMask(colour.Red, layout.Red) | UnderMask(colour.Green, layout.Green) |
           UnderMask(colour.Blue, layout.Blue) | UnderMask(colour.Alpha, layout.Alpha);
}

void AddPlain(Bytes& bytes, const PixelLayout& layout, const Picture& picture) {
    for (const Colour& colour : picture.Pixels) {
        const quint32 pixel = PlainPixel(layout, colour);
        for (int shift = 0; shift < layout.Bits; shift += 8)
            bytes.Byte(pixel >> shift);
    }
}

using Block = std::array<Colour, 16>;

Block BlockAt(const Picture& picture, int left, int top) {
    Block block;
    for (int i = 0; i < 16; ++i)
        block.at(static_cast<size_t>(i)) =
            picture.At(std::min(left + i % 4, picture.Width - 1), std::min(top + i / 4, picture.Height - 1));
    return block;
}

quint32 To565(Colour colour) {
    return PlainPixel(LayoutOf(DdsFormat::Rgb565), colour);
}

Colour From565(quint32 packed) {
    return {static_cast<quint8>((packed >> 11) * 255 / 31), static_cast<quint8>((packed >> 5 & 63) * 255 / 63),
            static_cast<quint8>((packed & 31) * 255 / 31)};
}

int Distance(Colour a, Colour b) {
    return std::abs(a.Red - b.Red) * 3 + std::abs(a.Green - b.Green) * 6 + std::abs(a.Blue - b.Blue);
}

int Brightness(Colour colour) {
    return colour.Red * 3 + colour.Green * 6 + colour.Blue;
}

/// Two end colours by brightness, and two bits a pixel for the nearest of the four steps between them.
void AddColourBlock(Bytes& bytes, const Block& block) {
    const auto [darkest, lightest] = std::ranges::minmax_element(block, {}, Brightness);
    quint32 first = To565(*lightest), second = To565(*darkest);
    if (first < second)
        std::swap(first, second);
    const Colour a = From565(first), b = From565(second);
    const std::array<Colour, 4> steps{a, b, Blend(a, b, 1.0 / 3), Blend(a, b, 2.0 / 3)};
    quint32 choices = 0;
    for (size_t i = 0; first != second && i < block.size(); ++i) {
        const auto* nearest =
            std::ranges::min_element(steps, {}, [&](Colour step) { return Distance(step, block.at(i)); });
        choices |= static_cast<quint32>(nearest - steps.begin()) << (2 * i);
    }
    bytes.Little16(first).Little16(second).Little32(choices);
}

void AddSharpAlpha(Bytes& bytes, const Block& block) {
    for (size_t i = 0; i < block.size(); i += 2)
        bytes.Byte((block.at(i).Alpha >> 4) | (block.at(i + 1).Alpha & 0xF0));
}

/// Two end values and three bits a pixel for the nearest of the eight steps between them.
void AddSmoothAlpha(Bytes& bytes, const Block& block) {
    const auto [lowest, highest] = std::ranges::minmax(block, {}, &Colour::Alpha);
    const int high = highest.Alpha, low = lowest.Alpha;
    quint64 choices = 0;
    for (size_t i = 0; high != low && i < block.size(); ++i) {
        const int step = ((high - block.at(i).Alpha) * 7 + (high - low) / 2) / (high - low);
        const int code = step == 0 ? 0 : step == 7 ? 1 : step + 1;
        choices |= static_cast<quint64>(code) << (3 * i);
    }
    bytes.Byte(high).Byte(low).Little32(static_cast<qint64>(choices)).Little16(static_cast<qint64>(choices >> 32));
}

void AddCompressed(Bytes& bytes, DdsFormat format, const Picture& picture) {
    for (int y = 0; y < picture.Height; y += 4) {
        for (int x = 0; x < picture.Width; x += 4) {
            const Block block = BlockAt(picture, x, y);
            if (format == DdsFormat::Dxt3)
                AddSharpAlpha(bytes, block);
            if (format == DdsFormat::Dxt5)
                AddSmoothAlpha(bytes, block);
            AddColourBlock(bytes, block);
        }
    }
}

void AddHeader(Bytes& bytes, const PixelLayout& layout, const Picture& picture, int levels) {
    constexpr qint64 capsHeightWidthPixelFormat = 0x1007, pitch = 0x8, linearSize = 0x80000, mipmapCount = 0x20000;
    constexpr qint64 alphaPixels = 0x1, fourCharacters = 0x4, rgb = 0x40, texture = 0x1000, complexMipmap = 0x400008;
    const bool compressed = !layout.FourCharacters.isEmpty();
    const qint64 blocks = qint64{(picture.Width + 3) / 4} * ((picture.Height + 3) / 4);
    bytes.Raw("DDS ").Little32(124);
    bytes.Little32(capsHeightWidthPixelFormat | (compressed ? linearSize : pitch) | (levels > 1 ? mipmapCount : 0));
    bytes.Little32(picture.Height).Little32(picture.Width);
    bytes.Little32(compressed ? blocks * layout.BlockBytes : qint64{picture.Width} * layout.Bits / 8);
    bytes.Zeros(4).Little32(levels).Zeros(11 * FieldSize);
    bytes.Little32(32).Little32(compressed ? fourCharacters : rgb | (layout.Alpha != 0 ? alphaPixels : 0));
    if (compressed)
        bytes.Raw(layout.FourCharacters).Zeros(5 * FieldSize);
    else
        bytes.Zeros(4)
            .Little32(layout.Bits)
            .Little32(layout.Red)
            .Little32(layout.Green)
            .Little32(layout.Blue)
            .Little32(layout.Alpha);
    bytes.Little32(texture | (levels > 1 ? complexMipmap : 0)).Zeros(4 * FieldSize);
}

} // namespace

QByteArray Dds(const Picture& picture, DdsFormat format, bool mipmaps) {
    const PixelLayout layout = LayoutOf(format);
    std::vector<Picture> levels{picture};
    while (mipmaps && (levels.back().Width > 1 || levels.back().Height > 1))
        levels.push_back(Half(levels.back()));
    Bytes bytes;
    AddHeader(bytes, layout, picture, static_cast<int>(levels.size()));
    for (const Picture& level : levels) {
        if (layout.FourCharacters.isEmpty())
            AddPlain(bytes, layout, level);
        else
            AddCompressed(bytes, format, level);
    }
    return bytes.Get();
}

} // namespace Demo
