// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/Printing.h"
#include "tests/tools/Reading.h"
#include "tools/demoworld/Textures.h"

#include <gtest/gtest.h>

using namespace Demo;

namespace {

constexpr Colour Red{255, 0, 0, 128};
constexpr Colour Blue{0, 0, 255, 255};
constexpr Colour Grey{16, 32, 64, 8};

/// Red, blue and grey above; blue, blue and red below.
Picture Sample() {
    Picture picture(3, 2);
    picture.Pixels = {Red, Blue, Grey, Blue, Blue, Red};
    return picture;
}

} // namespace

TEST(SampleTga, PlainRowsStandFromTheBottomBlueFirst) {
    EXPECT_EQ(Tga(Sample(), 24, false, TgaOrigin::BottomLeft), Hex("00 00 02 0000000000 0000 0000 0300 0200 18 00"
                                                                   "ff0000 ff0000 0000ff"
                                                                   "0000ff ff0000 402010"));
}

TEST(SampleTga, TheOtherOriginStandsInTheDescriptorAndTurnsTheRows) {
    EXPECT_EQ(Tga(Sample(), 32, false, TgaOrigin::TopLeft), Hex("00 00 02 0000000000 0000 0000 0300 0200 20 28"
                                                                "0000ff80 ff0000ff 40201008"
                                                                "ff0000ff ff0000ff 0000ff80"));
}

TEST(SampleTga, RunsAreCountedAndTheRestStandsAsItIs) {
    EXPECT_EQ(Tga(Sample(), 24, true, TgaOrigin::BottomLeft), Hex("00 00 0a 0000000000 0000 0000 0300 0200 18 00"
                                                                  "81 ff0000 00 0000ff"
                                                                  "02 0000ff ff0000 402010"));
}

TEST(SampleTga, ARunIsAtMost128PixelsLong) {
    const QByteArray bytes = Tga(Picture(130, 1, Blue), 24, true, TgaOrigin::TopLeft);
    EXPECT_EQ(bytes.mid(18), Hex("ff ff0000 81 ff0000"));
}

TEST(SampleBmp, RowsOf24BitsArePaddedToFourBytes) {
    EXPECT_EQ(Bmp24(Sample()), Hex("424d 4e000000 00000000 36000000"
                                   "28000000 03000000 02000000 0100 1800 00000000 18000000 130b0000 130b0000"
                                   "00000000 00000000"
                                   "ff0000 ff0000 0000ff 000000"
                                   "0000ff ff0000 402010 000000"));
}

TEST(SampleBmp, AColourIsFoundAgainThroughThePalette) {
    const QByteArray bytes = Bmp8(Sample());
    EXPECT_EQ(Little32At(bytes, 10), 54 + 252 * 4);
    EXPECT_EQ(Little16At(bytes, 28), 8);
    EXPECT_EQ(Little32At(bytes, 46), 252);
    EXPECT_EQ(bytes.size(), 54 + 252 * 4 + 2 * 4);
    const qsizetype upperRow = bytes.size() - 4;
    const auto paletteEntry = [&](qsizetype pixel) { return bytes.mid(54 + ByteAt(bytes, pixel) * 4, 4); };
    EXPECT_EQ(paletteEntry(upperRow), Hex("0000ff00"));
    EXPECT_EQ(paletteEntry(upperRow + 1), Hex("ff000000"));
}

TEST(SampleBmp, TheLongHeadersHoldTheMasks) {
    const QByteArray version4 = Bmp32(Sample(), 108), version5 = Bmp32(Sample(), 124);
    EXPECT_EQ(version4.size(), 14 + 108 + 24);
    EXPECT_EQ(version5.size(), 14 + 124 + 24);
    for (const QByteArray& bytes : {version4, version5}) {
        EXPECT_EQ(Little32At(bytes, 2), bytes.size());
        EXPECT_EQ(Little32At(bytes, 10), bytes.size() - 24);
        EXPECT_EQ(Little32At(bytes, 30), 3);
        EXPECT_EQ(bytes.mid(54, 20), Hex("0000ff00 00ff0000 ff000000 000000ff") + "BGRs");
        EXPECT_EQ(bytes.last(12), Hex("0000ff80 ff0000ff 40201008"));
    }
    EXPECT_EQ(Little32At(version5, 122), 4);
}

TEST(SamplePng, ChunksAreCountedCheckedAndUnpackToTheRows) {
    const QByteArray bytes = Png(Sample());
    EXPECT_EQ(bytes.first(33),
              Hex("89504e470d0a1a0a 0000000d") + "IHDR" + Hex("00000003 00000002 0806000000 9d74661a"));
    EXPECT_EQ(bytes.last(12), Hex("00000000") + "IEND" + Hex("ae426082"));
    const qint64 size = Big32At(bytes, 33);
    EXPECT_EQ(bytes.mid(37, 4), "IDAT");
    EXPECT_EQ(bytes.size(), 33 + 12 + size + 12);
    EXPECT_EQ(qUncompress(Hex("0000001a") + bytes.mid(41, size)), Hex("00 ff000080 0000ffff 10204008"
                                                                      "00 0000ffff 0000ffff ff000080"));
}
