// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a person is told of a picture, how large it is shown, and what of it is written as PNG.
#include "media/PictureFacts.h"
#include "media/PictureReaders.h"
#include "media/PictureZoom.h"
#include "media/PngPicture.h"
#include "tests/media/picture_samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray DdsHead(const char* fourCharacters, quint32 flags, quint32 mipmaps) {
    QByteArray head("DDS ");
    head.resize(128, '\0');
    qToLittleEndian(flags, head.data() + 8);
    qToLittleEndian(mipmaps, head.data() + 28);
    qToLittleEndian<quint32>(4, head.data() + 80);
    head.replace(84, 4, fourCharacters, 4);
    return head;
}

} // namespace

TEST(PictureFacts, TellTheFormatOfEachKind) {
    QStringList told;
    for (const PictureSample& sample : PictureSamples())
        told += PictureFacts::Of(QByteArrayView(sample.Bytes).first(std::min<qsizetype>(sample.Bytes.size(), 512)),
                                 sample.Name)
                    .Format;
    EXPECT_EQ(told, QStringList({u"BMP 24 bits"_s, u"BMP 8 bits"_s, u"BMP 32 bits"_s, u"DXT1"_s, u"DXT3"_s, u"DXT5"_s,
                                 u"DDS 16 bits"_s, u"HDR"_s, u"JPEG"_s, u"JPEG"_s, u"PFM"_s, u"PNG 32 bits"_s,
                                 u"TGA 32 bits RLE"_s, u"TGA 24 bits"_s, u"GIF"_s}))
        << told.join(u", "_s).toStdString();
}

TEST(PictureFacts, CountTheMipmapsThatATextureSaysItHas) {
    constexpr quint32 counted = 0x20000;
    EXPECT_EQ(PictureFacts::Of(DdsHead("DXT1", counted, 11), {}), (PictureFacts{u"DXT1"_s, 11}));
    EXPECT_EQ(PictureFacts::Of(DdsHead("DXT1", counted, 0), {}).Mipmaps, 1);
    EXPECT_EQ(PictureFacts::Of(DdsHead("DXT1", 0, 11), {}).Mipmaps, 1);
    EXPECT_EQ(PictureFacts::Of(DdsHead("DXT1", counted, 0xFFFFFFFF), {}).Mipmaps, 32);
    EXPECT_EQ(PictureFacts::Of(SampleGif(), {}).Mipmaps, 0);
}

TEST(PictureFacts, OfBrokenFilesAreWhatIsCertain) {
    EXPECT_EQ(PictureFacts::Of(QByteArray("DDS \1"), {}).Format, u"DDS"_s);
    EXPECT_EQ(PictureFacts::Of(DdsHead("\0\1\xFF ", 0, 0), {}).Format, u"DDS"_s);
    EXPECT_EQ(PictureFacts::Of(QByteArray("BM"), {}).Format, u"BMP"_s);
    EXPECT_EQ(PictureFacts::Of(QByteArray("\x89PNG\r\n"), {}).Format, u"PNG"_s);
    EXPECT_EQ(PictureFacts::Of({}, u"A.TGA"_s).Format, u"TGA"_s);
    EXPECT_EQ(PictureFacts::Of(QByteArray("text"), u"a.dds"_s), PictureFacts());
}

TEST(PngPicture, HoldsTheBitmapsPixels) {
    QImage picture(3, 2, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    picture.setPixel(0, 0, qRgba(255, 0, 0, 128));
    picture.setPixel(1, 0, qRgba(1, 200, 30, 255));
    picture.setPixel(2, 1, qRgba(9, 8, 7, 0)); // a colour that nobody sees is kept too
    const QImage read = QImage::fromData(PngPicture::FromBitmap(Pictures::ToBitmap(picture)), "PNG");
    EXPECT_EQ(read.convertToFormat(QImage::Format_ARGB32), picture);
}

TEST(PngPicture, IsNoneOfOtherBytes) {
    QImage picture(3, 2, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    QByteArray bitmap = Pictures::ToBitmap(picture);
    EXPECT_TRUE(PngPicture::FromBitmap({}).isEmpty());
    EXPECT_TRUE(PngPicture::FromBitmap(QByteArray(200, 'x')).isEmpty());
    EXPECT_TRUE(PngPicture::FromBitmap(bitmap.chopped(1)).isEmpty());
    qToLittleEndian<qint32>(-2, bitmap.data() + 22);
    EXPECT_TRUE(PngPicture::FromBitmap(bitmap).isEmpty());
}

TEST(PictureZoom, BeginsWithTheWholePictureButNoneBlownUp) {
    PictureZoom zoom;
    zoom.SetRoom({200, 100});
    zoom.SetPicture({400, 400});
    EXPECT_EQ(zoom.Percent(), 25);
    EXPECT_EQ(zoom.Shown(), QSize(100, 100));
    zoom.SetPicture({20, 10});
    EXPECT_EQ(zoom.Shown(), QSize(20, 10));
    zoom.Fit();
    EXPECT_EQ(zoom.Shown(), QSize(200, 100));
    zoom.SetPicture({1, 1});
    EXPECT_EQ(zoom.Factor(), PictureZoom::Largest);
}

TEST(PictureZoom, GoesInStepsFromWhereItIs) {
    PictureZoom zoom;
    zoom.SetRoom({180, 100});
    zoom.SetPicture({400, 400});
    zoom.In();
    EXPECT_EQ(zoom.Percent(), 33);
    zoom.Actual();
    zoom.In();
    EXPECT_EQ(zoom.Percent(), 150);
    zoom.Out();
    zoom.Out();
    EXPECT_EQ(zoom.Percent(), 67);
    zoom.SetRoom({1000, 1000});
    EXPECT_EQ(zoom.Percent(), 67);
    for (int i = 0; i < 30; ++i)
        zoom.In();
    EXPECT_EQ(zoom.Factor(), PictureZoom::Largest);
    for (int i = 0; i < 30; ++i)
        zoom.Out();
    EXPECT_EQ(zoom.Factor(), PictureZoom::Smallest);
}

TEST(PictureZoom, KeepsAPixelOfTheThinnestPicture) {
    PictureZoom zoom;
    EXPECT_EQ(zoom.Shown(), QSize());
    zoom.SetRoom({100, 100});
    zoom.SetPicture({16384, 1});
    EXPECT_EQ(zoom.Shown(), QSize(100, 1));
    zoom.Out();
    EXPECT_LT(zoom.Percent(), 2);
}
