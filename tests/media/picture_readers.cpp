// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The other readers, their order, and the bitmap that comes out.

#include "media/PictureReaders.h"
#include "tests/media/picture_bytes.h"
#include "tools/demoworld/Textures.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Big enough for blocks of pixels; the left half is opaque, the right half clears downwards.
Demo::Picture Sample() {
    Demo::Picture picture(16, 8);
    for (int y = 0; y < picture.Height; ++y) {
        for (int x = 0; x < picture.Width; ++x)
            picture.At(x, y) = {static_cast<quint8>(x * 16), static_cast<quint8>(y * 32), 200,
                                static_cast<quint8>(x < 8 ? 255 : y * 32)};
    }
    return picture;
}

/// The largest difference of a channel; 256 for a picture of another size.
int Difference(const QImage& picture, const Demo::Picture& sample, bool withAlpha) {
    if (picture.size() != QSize(sample.Width, sample.Height))
        return 256;
    int largest = 0;
    for (int y = 0; y < sample.Height; ++y) {
        for (int x = 0; x < sample.Width; ++x) {
            const QRgb pixel = picture.pixel(x, y);
            const Demo::Colour& colour = sample.At(x, y);
            largest = std::max({largest, std::abs(qRed(pixel) - colour.Red), std::abs(qGreen(pixel) - colour.Green),
                                std::abs(qBlue(pixel) - colour.Blue),
                                withAlpha ? std::abs(qAlpha(pixel) - colour.Alpha) : 0});
        }
    }
    return largest;
}

/// A grey ramp as a portable float map: two lines of 0 and 1, then 0.5 and 2.
QByteArray Pfm(const QByteArray& head, bool littleEndian) {
    QByteArray bytes = head;
    for (const quint32 sample : {0x00000000U, 0x3F800000U, 0x3F000000U, 0x40000000U}) {
        const quint32 ordered = littleEndian ? qToLittleEndian(sample) : qToBigEndian(sample);
        bytes.append(reinterpret_cast<const char*>(&ordered), 4);
    }
    return bytes;
}

} // namespace

TEST(PictureReaders, EachReadsTheTexturesOfTheGames) {
    const Demo::Picture sample = Sample();
    using Demo::TgaOrigin;
    EXPECT_EQ(Difference(Pictures::ReadWithStb(Tga(sample, 32, false, TgaOrigin::BottomLeft)), sample, true), 0);
    EXPECT_EQ(Difference(Pictures::ReadWithStb(Tga(sample, 24, true, TgaOrigin::TopLeft)), sample, false), 0);
    EXPECT_EQ(Difference(Pictures::ReadWithQt(Demo::Png(sample)), sample, true), 0);
    EXPECT_EQ(Difference(Pictures::ReadWithQt(Demo::Bmp24(sample)), sample, false), 0);
    EXPECT_EQ(Difference(Pictures::ReadWithQt(Demo::Bmp32(sample, 108)), sample, true), 0);
    EXPECT_EQ(Difference(Pictures::ReadWithQt(Demo::Bmp32(sample, 124)), sample, true), 0);
    EXPECT_EQ(Difference(Pictures::ReadDds(Demo::Dds(sample, Demo::DdsFormat::Argb8888)), sample, true), 0);
}

TEST(PictureReaders, WhicheverComesFirstThePictureIsTheSame) {
    const Demo::Picture sample = Sample();
    using Demo::TgaOrigin;
    EXPECT_EQ(Difference(Pictures::Read(Tga(sample, 32, true, TgaOrigin::BottomLeft), u"a.tga"_s), sample, true), 0);
    EXPECT_EQ(Difference(Pictures::Read(Demo::Png(sample), u"a.png"_s), sample, true), 0);
    EXPECT_EQ(Difference(Pictures::Read(Demo::Bmp32(sample, 124), u"a.bmp"_s), sample, true), 0);
    EXPECT_EQ(Difference(Pictures::Read(Demo::Dds(sample, Demo::DdsFormat::Argb8888), u"a.dds"_s), sample, true), 0);
    constexpr int compression = 64; // of a steep gradient
    EXPECT_LT(Difference(Pictures::Read(Demo::Dds(sample, Demo::DdsFormat::Dxt5), u"a.dds"_s), sample, true),
              compression);
}

TEST(PictureReaders, TheBytesTellTheKindWhereTheNameLies) {
    const Demo::Picture sample = Sample();
    EXPECT_EQ(Difference(Pictures::Read(Demo::Png(sample), u"a.tga"_s), sample, true), 0);
    EXPECT_EQ(Difference(Pictures::Read(Demo::Bmp24(sample), u"a.dib"_s), sample, false), 0);
}

TEST(PictureReaders, FloatMapsAreLitAsAScreenShowsThem) {
    // 0.5 to the power of 1 / 2.2 is 0.7297, which is 186 of 255; above 1 is white. The lowest line comes first.
    for (const bool little : {true, false}) {
        const QImage picture = Pictures::ReadPfm(Pfm(little ? "Pf\n2 2\n-1.0\n" : "Pf 2 2 1.0\n", little));
        ASSERT_EQ(picture.size(), QSize(2, 2));
        EXPECT_EQ(picture.pixel(0, 1), 0xFF000000);
        EXPECT_EQ(picture.pixel(1, 1), 0xFFFFFFFF);
        EXPECT_EQ(picture.pixel(0, 0), 0xFFBABABA);
        EXPECT_EQ(picture.pixel(1, 0), 0xFFFFFFFF);
    }
    const QImage coloured = Pictures::ReadPfm(Pfm("PF\n1 1\n-1.0\n", true));
    EXPECT_EQ(coloured.pixel(0, 0), 0xFF00FFBA);
}

TEST(PictureReaders, AFloatMapCutOffAnywhereIsNoPicture) {
    const QByteArray whole = Pfm("Pf\n2 2\n-1.0\n", true);
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_TRUE(Pictures::ReadPfm(whole.first(length)).isNull()) << length;
    EXPECT_TRUE(Pictures::ReadPfm("PF\n65535 65535\n-1\n" + QByteArray(64, 'x')).isNull());
    EXPECT_TRUE(Pictures::ReadPfm("PF\n-2 -2\n-1\n" + QByteArray(64, 'x')).isNull());
    EXPECT_TRUE(Pictures::ReadPfm("PF\n2 x\n-1\n" + QByteArray(64, 'x')).isNull());
}

TEST(PictureReaders, APictureOf65535By65535IsRefusedBeforeAnyReaderSeesIt) {
    EXPECT_TRUE(Pictures::Read(TgaHeader(65535, 65535, 32), u"a.tga"_s).isNull());
    EXPECT_TRUE(Pictures::Read(CompressedDds("DXT5", 65535, 65535), u"a.dds"_s).isNull());
    EXPECT_TRUE(Pictures::Read("PF\n65535 65535\n-1\n", u"a.pfm"_s).isNull());
    QByteArray bitmap = Demo::Bmp24(Sample());
    PutLittle32(bitmap, 18, 65535);
    PutLittle32(bitmap, 22, 65535);
    EXPECT_TRUE(Pictures::Read(bitmap, u"a.bmp"_s).isNull());
}

TEST(PictureReaders, OnlySanePicturesAreWorthMemory) {
    EXPECT_TRUE(Pictures::IsSane(1, 1));
    EXPECT_TRUE(Pictures::IsSane(16384, 2048));
    EXPECT_TRUE(Pictures::IsSane(4096, 8192));
    EXPECT_FALSE(Pictures::IsSane(4097, 8192));
    EXPECT_FALSE(Pictures::IsSane(16385, 1));
    EXPECT_FALSE(Pictures::IsSane(0, 1));
    EXPECT_FALSE(Pictures::IsSane(65535, 65535));
}

TEST(PictureReaders, NothingIsNoPicture) {
    EXPECT_TRUE(Pictures::Read({}, {}).isNull());
    EXPECT_TRUE(Pictures::Read("text", u"a.png"_s).isNull());
    EXPECT_TRUE(Pictures::ToBitmap({}).isEmpty());
}

TEST(PictureReaders, TheBitmapHasAlphaAndItsLowestLineFirst) {
    QImage picture(1, 2, QImage::Format_ARGB32);
    picture.setPixel(0, 0, 0x80112233);
    picture.setPixel(0, 1, 0xFF445566);
    QByteArray expected("BM"
                        "\x82\0\0\0" // 130 bytes: 14, 108 and two pixels
                        "\0\0\0\0"
                        "\x7A\0\0\0" // the pixels begin at 122
                        "\x6C\0\0\0" // a header of 108
                        "\x01\0\0\0\x02\0\0\0"
                        "\x01\0\x20\0" // one plane of 32 bits
                        "\x03\0\0\0"   // with masks
                        "\x08\0\0\0"
                        "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
                        "\0\0\xFF\0\0\xFF\0\0\xFF\0\0\0\0\0\0\xFF"
                        "BGRs",
                        74);
    expected.resize(122, '\0');
    expected += QByteArray("\x66\x55\x44\xFF\x33\x22\x11\x80", 8);
    EXPECT_EQ(Pictures::ToBitmap(picture), expected);
    EXPECT_EQ(QImage::fromData(expected, "BMP").convertToFormat(QImage::Format_ARGB32), picture);
}
