// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Our own reader of DirectDraw surfaces, against pixels worked out by hand.

#include "media/PictureReaders.h"
#include "tests/media/picture_bytes.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;
using Pictures::ReadDds;

namespace {

std::vector<QRgb> Pixels(const QImage& picture) {
    std::vector<QRgb> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            pixels.push_back(picture.pixel(x, y));
    }
    return pixels;
}

// Red F800 above blue 001F. The four steps: FF0000, 0000FF, (2*FF + 0)/3 = AA and 55 the other way round.
const QByteArray FourSteps("\x00\xF8\x1F\x00", 4);
// Blue first: not above red, so the third is the middle, 7F0000 + 00007F, and the fourth is clear.
const QByteArray ThreeSteps("\x1F\x00\x00\xF8", 4);
// Choices 0 1 2 3 in each line: 00 01 10 11 from the lowest bits up, E4.
const QByteArray EachLine("\xE4\xE4\xE4\xE4", 4);

std::vector<QRgb> FourLines(const std::vector<QRgb>& line) {
    std::vector<QRgb> lines;
    for (int i = 0; i < 4; ++i)
        lines.insert(lines.end(), line.begin(), line.end());
    return lines;
}

} // namespace

TEST(PictureDds, Dxt1HasFourSteps) {
    const QImage picture = ReadDds(CompressedDds("DXT1", 4, 4) + FourSteps + EachLine);
    EXPECT_EQ(Pixels(picture), FourLines({0xFFFF0000, 0xFF0000FF, 0xFFAA0055, 0xFF5500AA}));
}

TEST(PictureDds, Dxt1WithTheSmallerColourFirstHasThreeStepsAndAClearOne) {
    const QImage picture = ReadDds(CompressedDds("DXT1", 4, 4) + ThreeSteps + EachLine);
    EXPECT_EQ(Pixels(picture), FourLines({0xFF0000FF, 0xFFFF0000, 0xFF7F007F, 0x00000000}));
}

TEST(PictureDds, TheBitsOfAColourFillItsLowerOnes) {
    // 10000 100000 10000: 84, 82, 84.
    const QImage picture = ReadDds(CompressedDds("DXT1", 1, 1) + QByteArray("\x10\x84\x00\x00\x00\x00\x00\x00", 8));
    EXPECT_EQ(Pixels(picture), std::vector<QRgb>{0xFF848284});
}

TEST(PictureDds, Dxt3HasSixteenStepsOfAlpha) {
    // Alpha F 0 8 1 in each line, the first pixel in the lower half of the byte; 8 is 88, 1 is 11.
    const QByteArray alpha("\x0F\x18\x0F\x18\x0F\x18\x0F\x18", 8);
    const QImage picture = ReadDds(CompressedDds("DXT3", 4, 4) + alpha + ThreeSteps + EachLine);
    EXPECT_EQ(Pixels(picture), FourLines({0xFF0000FF, 0x00FF0000, 0x885500AA, 0x11AA0055}))
        << "Its colours are four whichever comes first.";
}

TEST(PictureDds, Dxt5HasEightStepsOfAlpha) {
    // From 210 (D2) down to 0 in sevenths of 30. Choices 0 to 7 twice: 000 001 .. 111 is 111110101100011010001000 =
    // FAC688.
    const QByteArray alpha("\xD2\x00\x88\xC6\xFA\x88\xC6\xFA", 8);
    const QImage picture = ReadDds(CompressedDds("DXT5", 4, 4) + alpha + FourSteps + QByteArray(4, '\0'));
    const std::vector<QRgb> half{0xD2FF0000, 0x00FF0000, 0xB4FF0000, 0x96FF0000,
                                 0x78FF0000, 0x5AFF0000, 0x3CFF0000, 0x1EFF0000};
    std::vector<QRgb> expected = half;
    expected.insert(expected.end(), half.begin(), half.end());
    EXPECT_EQ(Pixels(picture), expected);
}

TEST(PictureDds, Dxt5WithTheSmallerAlphaFirstHasSixStepsClearAndOpaque) {
    // From 0 up to 50 in fifths of 10, then 0 and 255.
    const QByteArray alpha("\x00\x32\x88\xC6\xFA\x88\xC6\xFA", 8);
    const QImage picture = ReadDds(CompressedDds("DXT5", 4, 2) + alpha + FourSteps + QByteArray(4, '\0'));
    EXPECT_EQ(Pixels(picture), (std::vector<QRgb>{0x00FF0000, 0x32FF0000, 0x0AFF0000, 0x14FF0000, 0x1EFF0000,
                                                  0x28FF0000, 0x00FF0000, 0xFFFF0000}));
}

TEST(PictureDds, BlocksGoFromLeftToRightAndAreCutAtTheEdge) {
    const QByteArray red = QByteArray("\x00\xF8\x00\xF8", 4) + QByteArray(4, '\0');
    const QByteArray blue = QByteArray("\x1F\x00\x1F\x00", 4) + QByteArray(4, '\0');
    const QImage picture = ReadDds(CompressedDds("DXT1", 5, 6) + red + blue + blue + red);
    EXPECT_EQ(picture.pixel(3, 3), 0xFFFF0000);
    EXPECT_EQ(picture.pixel(4, 3), 0xFF0000FF);
    EXPECT_EQ(picture.pixel(3, 4), 0xFF0000FF);
    EXPECT_EQ(picture.pixel(4, 5), 0xFFFF0000);
}

TEST(PictureDds, PlainPixelsFollowTheirMasks) {
    const auto one = [](const DdsMasks& masks, const QByteArray& pixels) {
        return Pixels(ReadDds(PlainDds(2, 1, masks) + pixels));
    };
    EXPECT_EQ(one({32, 0xFF0000, 0xFF00, 0xFF, 0xFF000000}, "\x03\x02\x01\x80\x30\x20\x10\xFF"),
              (std::vector<QRgb>{0x80010203, 0xFF102030}));
    EXPECT_EQ(one({32, 0xFF, 0xFF00, 0xFF0000, 0}, "\x03\x02\x01\x80\x30\x20\x10\xFF"),
              (std::vector<QRgb>{0xFF030201, 0xFF302010}))
        << "Red lowest, and no alpha.";
    EXPECT_EQ(one({24, 0xFF0000, 0xFF00, 0xFF, 0}, "\x03\x02\x01\x30\x20\x10"),
              (std::vector<QRgb>{0xFF010203, 0xFF102030}));
    // 5 bits: 16 of 31 is 131.6; 6 bits: 32 of 63 is 129.5, both rounded up.
    EXPECT_EQ(one({16, 0xF800, 0x7E0, 0x1F, 0}, QByteArray("\x00\xF8\x10\x84", 4)),
              (std::vector<QRgb>{0xFFFF0000, 0xFF848284}));
    EXPECT_EQ(one({16, 0x7C00, 0x3E0, 0x1F, 0x8000}, QByteArray("\x00\xFC\x1F\x00", 4)),
              (std::vector<QRgb>{0xFFFF0000, 0x000000FF}));
    EXPECT_EQ(one({16, 0xF00, 0xF0, 0xF, 0xF000}, "\x23\x81\xF0\x0F"), (std::vector<QRgb>{0x88112233, 0x00FFFF00}));
}

TEST(PictureDds, GreyAndAlphaAloneAreRead) {
    EXPECT_EQ(Pixels(ReadDds(PlainDds(2, 1, {8, 0xFF, 0, 0, 0, 0x20000}) + "\x40\xFF")),
              (std::vector<QRgb>{0xFF404040, 0xFFFFFFFF}));
    EXPECT_EQ(Pixels(ReadDds(PlainDds(1, 1, {16, 0xFF, 0, 0, 0xFF00, 0x20001}) + "\x40\x20")),
              std::vector<QRgb>{0x20404040});
    EXPECT_EQ(Pixels(ReadDds(PlainDds(2, 1, {8, 0, 0, 0, 0xFF, 0x2}) + "\x40\xFF")),
              (std::vector<QRgb>{0x40FFFFFF, 0xFFFFFFFF}));
}

TEST(PictureDds, AFileCutOffAnywhereIsNoPicture) {
    const QByteArray whole = CompressedDds("DXT1", 8, 4) + (FourSteps + EachLine).repeated(2);
    EXPECT_FALSE(ReadDds(whole).isNull());
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_TRUE(ReadDds(whole.first(length)).isNull()) << length;
    const QByteArray plain = PlainDds(3, 3, {24, 0xFF0000, 0xFF00, 0xFF, 0}) + QByteArray(27, 'x');
    EXPECT_FALSE(ReadDds(plain).isNull());
    for (qsizetype length = 0; length < plain.size(); ++length)
        EXPECT_TRUE(ReadDds(plain.first(length)).isNull()) << length;
}

TEST(PictureDds, SizesThatLieTakeNoMemory) {
    for (const quint32 side : {0U, 16385U, 65535U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        EXPECT_TRUE(ReadDds(CompressedDds("DXT5", side, side) + QByteArray(64, 'x')).isNull()) << side;
        EXPECT_TRUE(ReadDds(PlainDds(side, 4, {32, 0xFF, 0xFF00, 0xFF0000, 0}) + QByteArray(64, 'x')).isNull()) << side;
    }
    EXPECT_TRUE(ReadDds(CompressedDds("DXT5", 8192, 4096) + QByteArray(64, 'x')).isNull());
}

TEST(PictureDds, OtherKindsAreRefused) {
    EXPECT_TRUE(ReadDds(CompressedDds("DX10", 4, 4) + QByteArray(64, 'x')).isNull());
    for (const quint32 bits : {0U, 4U, 40U, 0xFFFFFFFFU})
        EXPECT_TRUE(ReadDds(PlainDds(1, 1, {bits, 0xFF, 0xFF, 0xFF, 0}) + QByteArray(64, 'x')).isNull()) << bits;
}
