// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/Printing.h"
#include "tests/tools/Reading.h"
#include "tools/demoworld/Art.h"
#include "tools/demoworld/Textures.h"

#include <gtest/gtest.h>

using namespace Demo;

namespace {

constexpr qsizetype HeaderSize = 128;
constexpr Colour White{255, 255, 255, 255};
constexpr Colour Clear{0, 0, 0, 0};

/// White and opaque but for its first pixel, which is black and clear.
Picture OneDarkPixel() {
    Picture picture(4, 4, White);
    picture.At(0, 0) = Clear;
    return picture;
}

QByteArray PixelsOf(Colour colour, DdsFormat format) {
    return Dds(Picture(1, 1, colour), format, false).mid(HeaderSize);
}

} // namespace

TEST(SampleDds, ACompressedHeaderStandsAsWorkedOutByHand) {
    EXPECT_EQ(Dds(Picture(8, 4), DdsFormat::Dxt1, false).first(HeaderSize),
              "DDS " + Hex("7c000000 07100800 04000000 08000000 10000000 00000000 01000000") + QByteArray(44, '\0') +
                  Hex("20000000 04000000") + "DXT1" + QByteArray(20, '\0') + Hex("00100000") + QByteArray(16, '\0'));
}

TEST(SampleDds, APlainHeaderHoldsTheMasksAndTheMipmaps) {
    EXPECT_EQ(Dds(Picture(4, 2), DdsFormat::Argb8888).first(HeaderSize),
              "DDS " + Hex("7c000000 0f100200 02000000 04000000 10000000 00000000 03000000") + QByteArray(44, '\0') +
                  Hex("20000000 41000000 00000000 20000000 0000ff00 00ff0000 ff000000 000000ff 08104000") +
                  QByteArray(16, '\0'));
}

TEST(SampleDds, MipmapsGoDownToOnePixel) {
    EXPECT_EQ(Dds(Picture(8, 8), DdsFormat::Dxt1).size(), HeaderSize + 7 * qsizetype{8});
    EXPECT_EQ(Dds(Picture(8, 8), DdsFormat::Dxt5).size(), HeaderSize + 7 * qsizetype{16});
    EXPECT_EQ(Dds(Picture(4, 4), DdsFormat::Rgb888).size(), HeaderSize + 21 * qsizetype{3});
}

TEST(SampleDds, AColourBlockHoldsItsTwoEndsAndTheNearestSteps) {
    EXPECT_EQ(Dds(OneDarkPixel(), DdsFormat::Dxt1, false).mid(HeaderSize), Hex("ffff 0000 01000000"));
    EXPECT_EQ(Dds(Picture(4, 4, White), DdsFormat::Dxt1, false).mid(HeaderSize), Hex("ffff ffff 00000000"));
}

TEST(SampleDds, StepsBetweenTheEndsAreUsed) {
    Picture picture = OneDarkPixel();
    picture.At(1, 0) = {170, 170, 170, 255};
    picture.At(2, 0) = {85, 85, 85, 255};
    // Codes of the first row: black 1, two thirds 2, one third 3, white 0.
    EXPECT_EQ(Dds(picture, DdsFormat::Dxt1, false).mid(HeaderSize), Hex("ffff 0000 39000000"));
}

TEST(SampleDds, SharpAlphaTakesFourBitsAPixel) {
    EXPECT_EQ(Dds(OneDarkPixel(), DdsFormat::Dxt3, false).mid(HeaderSize), Hex("f0ffffffffffffff ffff 0000 01000000"));
}

TEST(SampleDds, SmoothAlphaHoldsItsTwoEndsAndThreeBitsAPixel) {
    EXPECT_EQ(Dds(OneDarkPixel(), DdsFormat::Dxt5, false).mid(HeaderSize),
              Hex("ff 00 010000000000 ffff 0000 01000000"));
    Picture picture = OneDarkPixel();
    picture.At(1, 0).Alpha = 182; // five sevenths: code 3 stands in the second three bits
    EXPECT_EQ(Dds(picture, DdsFormat::Dxt5, false).mid(HeaderSize, 8), Hex("ff 00 190000000000"));
}

TEST(SampleDds, PlainPixelsStandUnderTheirMasks) {
    constexpr Colour colour{0x88, 0x44, 0xCC, 0xFF};
    EXPECT_EQ(PixelsOf(colour, DdsFormat::Argb8888), Hex("cc4488ff"));
    EXPECT_EQ(PixelsOf(colour, DdsFormat::Rgb888), Hex("cc4488"));
    EXPECT_EQ(PixelsOf(colour, DdsFormat::Rgb565), Hex("398a"));
    EXPECT_EQ(PixelsOf(colour, DdsFormat::Argb1555), Hex("19c5"));
    EXPECT_EQ(PixelsOf(colour, DdsFormat::Argb4444), Hex("4cf8"));
}

TEST(SamplePictures, TheSameSeedDrawsTheSamePicture) {
    for (quint64 seed = 0; seed < 6; ++seed) {
        EXPECT_EQ(AnyPicture(24, seed).Pixels, AnyPicture(24, seed).Pixels);
        EXPECT_NE(AnyPicture(24, seed).Pixels, AnyPicture(24, seed + 6).Pixels);
    }
}

TEST(SamplePictures, HalfOfAPictureIsTheMeanOfItsPixels) {
    Picture picture(4, 2, White);
    picture.At(0, 0) = picture.At(1, 1) = {55, 55, 55, 255};
    const Picture half = Half(picture);
    ASSERT_EQ(half.Width, 2);
    ASSERT_EQ(half.Height, 1);
    EXPECT_EQ(half.At(0, 0), (Colour{155, 155, 155, 255}));
    EXPECT_EQ(half.At(1, 0), White);
}

TEST(SamplePictures, AShapeCoversItsInsideAndHalfOfTheBorderPixels) {
    Picture picture(4, 4, {0, 0, 0, 255});
    FillShape(picture, {{0.25, 0.25}, {0.625, 0.25}, {0.625, 0.75}, {0.25, 0.75}}, White);
    EXPECT_EQ(picture.At(0, 0), (Colour{0, 0, 0, 255}));
    EXPECT_EQ(picture.At(1, 1), White);
    EXPECT_EQ(picture.At(2, 1), (Colour{128, 128, 128, 255}));
    EXPECT_EQ(picture.At(3, 1), (Colour{0, 0, 0, 255}));
}
