// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureReaders.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>

namespace {

constexpr qsizetype HeaderLength = 128;
constexpr int BlockSide = 4;

using Bytes = const uchar*;
using Block = std::array<QRgb, 16>;

quint32 Field(const QByteArray& bytes, qsizetype offset) {
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

// Where the header keeps what is needed of it.
constexpr qsizetype HeightAt = 12;
constexpr qsizetype WidthAt = 16;
constexpr qsizetype FlagsAt = 80;
constexpr qsizetype FourCharactersAt = 84;
constexpr qsizetype BitsAt = 88;
constexpr qsizetype RedAt = 92;
constexpr qsizetype GreenAt = 96;
constexpr qsizetype BlueAt = 100;
constexpr qsizetype AlphaAt = 104;

constexpr quint32 HasAlpha = 0x1;
constexpr quint32 AlphaOnly = 0x2;
constexpr quint32 HasFourCharacters = 0x4;
constexpr quint32 Grey = 0x20000;

quint32 FourCharacters(const char* text) {
    return qFromLittleEndian<quint32>(text);
}

/// 5, 6 and 5 bits; each channel's upper bits fill its lower ones.
QRgb From565(quint16 packed) {
    const int red = packed >> 11;
    const int green = packed >> 5 & 63;
    const int blue = packed & 31;
    return qRgb(red << 3 | red >> 2, green << 2 | green >> 4, blue << 3 | blue >> 2);
}

QRgb Between(QRgb a, QRgb b, int shareOfA, int shareOfB) {
    const auto mix = [&](int first, int second) {
        return (first * shareOfA + second * shareOfB) / (shareOfA + shareOfB);
    };
    return qRgb(mix(qRed(a), qRed(b)), mix(qGreen(a), qGreen(b)), mix(qBlue(a), qBlue(b)));
}

/// Two end colours and two bits a pixel. With `mayBeClear`, a first colour that is not above the second makes the
/// fourth one transparent.
Block Colours(Bytes bytes, bool mayBeClear) {
    const auto first = qFromLittleEndian<quint16>(bytes);
    const auto second = qFromLittleEndian<quint16>(bytes + 2);
    const QRgb a = From565(first);
    const QRgb b = From565(second);
    std::array<QRgb, 4> steps{a, b, Between(a, b, 2, 1), Between(a, b, 1, 2)};
    if (mayBeClear && first <= second)
        steps = {a, b, Between(a, b, 1, 1), 0};
    quint32 choices = qFromLittleEndian<quint32>(bytes + 4);
    Block block{};
    for (QRgb& pixel : block) {
        pixel = steps.at(choices & 3);
        choices >>= 2;
    }
    return block;
}

void SetAlpha(QRgb& pixel, int alpha) {
    pixel = qRgba(qRed(pixel), qGreen(pixel), qBlue(pixel), alpha);
}

Block Dxt1(Bytes bytes) {
    return Colours(bytes, true);
}

/// Four bits of alpha a pixel before the colours.
Block Dxt3(Bytes bytes) {
    Block block = Colours(bytes + 8, false);
    auto alphas = qFromLittleEndian<quint64>(bytes);
    for (QRgb& pixel : block) {
        SetAlpha(pixel, static_cast<int>(alphas & 15) * 17);
        alphas >>= 4;
    }
    return block;
}

/// Two end values of alpha and three bits a pixel before the colours.
Block Dxt5(Bytes bytes) {
    const int a = bytes[0];
    const int b = bytes[1];
    std::array<int, 8> steps{a, b};
    const int between = a > b ? 7 : 5; // steps from the one to the other; the two left are clear and opaque
    steps[7] = 255;
    for (int step = 1; step < between; ++step)
        steps.at(static_cast<std::size_t>(step) + 1) = ((between - step) * a + step * b) / between;
    quint64 choices = qFromLittleEndian<quint64>(bytes) >> 16;
    Block block = Colours(bytes + 8, false);
    for (QRgb& pixel : block) {
        SetAlpha(pixel, steps.at(choices & 7));
        choices >>= 3;
    }
    return block;
}

QImage ReadBlocks(const QByteArray& bytes, QSize size, Block (*decode)(Bytes), qsizetype blockLength) {
    const qsizetype across = (size.width() + BlockSide - 1) / BlockSide;
    const qsizetype down = (size.height() + BlockSide - 1) / BlockSide;
    if (bytes.size() - HeaderLength < across * down * blockLength)
        return {};
    QImage picture(size, QImage::Format_ARGB32);
    const auto* at = reinterpret_cast<Bytes>(bytes.constData()) + HeaderLength;
    for (int top = 0; top < size.height(); top += BlockSide) {
        for (int left = 0; left < size.width(); left += BlockSide, at += blockLength) {
            const Block block = decode(at);
            const int width = std::min(BlockSide, size.width() - left);
            for (int y = top; y < std::min(top + BlockSide, size.height()); ++y)
                std::copy_n(block.data() + static_cast<std::ptrdiff_t>((y - top) * BlockSide), width,
                            reinterpret_cast<QRgb*>(picture.scanLine(y)) + left);
        }
    }
    return picture;
}

/// The bits of a pixel under a mask, spread over 0 to 255.
class Channel {
public:
    Channel(quint32 mask, int without)
        : mask_(mask),
          shift_(mask == 0 ? 0 : std::countr_zero(mask)),
          highest_(mask >> shift_),
          without_(without) {}

    [[nodiscard]] int Of(quint32 pixel) const {
        if (highest_ == 0)
            return without_;
        const quint64 value = (pixel & mask_) >> shift_;
        return static_cast<int>((value * 255 + highest_ / 2) / highest_);
    }

private:
    quint32 mask_;
    int shift_;
    quint32 highest_;
    int without_; ///< the value where the pixels have no such bits
};

QImage ReadPlain(const QByteArray& bytes, QSize size) {
    const quint32 flags = Field(bytes, FlagsAt);
    const auto pixelLength = static_cast<qsizetype>(Field(bytes, BitsAt) / 8);
    if (pixelLength < 1 || pixelLength > 4 || bytes.size() - HeaderLength < pixelLength * size.width() * size.height())
        return {};
    const bool isGrey = (flags & Grey) != 0;
    const int noColour = (flags & AlphaOnly) != 0 ? 255 : 0;
    const Channel red(Field(bytes, RedAt), noColour);
    const Channel green(Field(bytes, isGrey ? RedAt : GreenAt), noColour);
    const Channel blue(Field(bytes, isGrey ? RedAt : BlueAt), noColour);
    const Channel alpha((flags & (HasAlpha | AlphaOnly)) != 0 ? Field(bytes, AlphaAt) : 0, 255);
    QImage picture(size, QImage::Format_ARGB32);
    const auto* at = reinterpret_cast<Bytes>(bytes.constData()) + HeaderLength;
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            quint32 pixel = 0;
            for (qsizetype i = 0; i < pixelLength; ++i)
                pixel |= static_cast<quint32>(*at++) << (8 * i);
            line[x] = qRgba(red.Of(pixel), green.Of(pixel), blue.Of(pixel), alpha.Of(pixel));
        }
    }
    return picture;
}

struct Compression {
    const char* Name;
    Block (*Decode)(Bytes);
    qsizetype BlockLength;
};

/// With even numbers the colours are multiplied by alpha already; they are shown as they stand.
constexpr std::array<Compression, 5> Compressions{
    {{"DXT1", Dxt1, 8}, {"DXT2", Dxt3, 16}, {"DXT3", Dxt3, 16}, {"DXT4", Dxt5, 16}, {"DXT5", Dxt5, 16}}};

} // namespace

QSize Pictures::DdsSize(const QByteArray& bytes) {
    if (bytes.size() < HeaderLength || !bytes.startsWith("DDS "))
        return {};
    const quint32 limit = 1U << 30;
    return {static_cast<int>(std::min(Field(bytes, WidthAt), limit)),
            static_cast<int>(std::min(Field(bytes, HeightAt), limit))};
}

QImage Pictures::ReadDds(const QByteArray& bytes) {
    const QSize size = DdsSize(bytes);
    if (!IsSane(size.width(), size.height()))
        return {};
    if ((Field(bytes, FlagsAt) & HasFourCharacters) == 0)
        return ReadPlain(bytes, size);
    for (const Compression& compression : Compressions) {
        if (Field(bytes, FourCharactersAt) == FourCharacters(compression.Name))
            return ReadBlocks(bytes, size, compression.Decode, compression.BlockLength);
    }
    return {};
}
