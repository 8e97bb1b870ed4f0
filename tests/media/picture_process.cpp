// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Decoding in the child process: every kind of picture, and damaged ones by the hundred.

#include "tests/media/media_process_fixture.h"
#include "tests/media/picture_samples.h"

#include <QImage>
#include <QProcess>

#include <random>

using namespace Qt::StringLiterals;

TEST_F(MediaProcessTest, EveryExtensionOfTheListComesOutAsABitmap) {
    for (const PictureSample& sample : PictureSamples()) {
        ASSERT_EQ(Decode(sample.Name, sample.Bytes), true) << sample.Name.toStdString();
        const QImage picture = QImage::fromData(World::ReadFile(Bitmap()), "BMP");
        EXPECT_FALSE(picture.isNull()) << sample.Name.toStdString();
        EXPECT_TRUE(picture.hasAlphaChannel());
    }
}

TEST_F(MediaProcessTest, TransparentPixelsStayTransparent) {
    ASSERT_EQ(Decode(u"a.gif"_s, SampleGif()), true);
    const QImage picture = QImage::fromData(World::ReadFile(Bitmap()), "BMP");
    ASSERT_EQ(picture.size(), QSize(2, 1));
    EXPECT_EQ(picture.pixel(0, 0), 0xFFFF0000);
    EXPECT_EQ(qAlpha(picture.pixel(1, 0)), 0);
}

TEST_F(MediaProcessTest, OneChildServesManyPicturesAndBadOnes) {
    EXPECT_EQ(Decode(u"a.png"_s, "no picture"), false);
    const qint64 number = ChildNumber();
    ASSERT_NE(number, 0);
    EXPECT_EQ(Decode(u"a.pfm"_s, SamplePfm()), true);
    EXPECT_EQ(Decode(u"empty.dds"_s, ""), false);
    EXPECT_TRUE(process_->IsReady());
    EXPECT_EQ(ChildNumber(), number);
}

TEST_F(MediaProcessTest, AChildIsKeptReadyAhead) {
    EXPECT_FALSE(process_->IsReady());
    decoder_.Prepare();
    EXPECT_TRUE(WaitFor([this] { return process_->IsReady(); }));
}

TEST_F(MediaProcessTest, ANewerPictureTakesThePlaceOfOneUnderWay) {
    Begin(u"a.pfm"_s, SamplePfm());
    bool second = false;
    decoder_.Decode(Place.WriteFile(u"b.gif"_s, SampleGif()), Bitmap(), [&](bool decoded) { second = decoded; });
    EXPECT_TRUE(WaitFor([&] { return second; }));
    EXPECT_FALSE(answer_.has_value()) << "The first one is not answered any more.";
    EXPECT_EQ(QImage::fromData(World::ReadFile(Bitmap())).pixel(0, 0), 0xFFFF0000);
}

TEST_F(MediaProcessTest, AnAbandonedPictureIsNotAnswered) {
    EXPECT_EQ(Decode(u"a.pfm"_s, SamplePfm()), true);
    Begin(u"b.pfm"_s, SamplePfm());
    decoder_.Abandon();
    EXPECT_TRUE(WaitFor([this] { return process_->IsReady(); })) << "A new child is ready for the next one.";
    EXPECT_FALSE(answer_.has_value());
    EXPECT_EQ(Decode(u"c.pfm"_s, SamplePfm()), true);
}

TEST_F(MediaProcessTest, AChildThatDiesIsReplaced) {
    EXPECT_EQ(Decode(u"a.pfm"_s, SamplePfm()), true);
    process_->findChild<QProcess*>()->kill();
    EXPECT_TRUE(WaitFor([this] { return !process_->IsReady(); }));
    EXPECT_EQ(Decode(u"b.pfm"_s, SamplePfm()), true);
}

TEST_F(MediaProcessTest, AMissingFileIsNoPicture) {
    std::optional<bool> answer;
    decoder_.Decode(Place.Root() + u"\\none.png"_s, Bitmap(), [&](bool decoded) { answer = decoded; });
    EXPECT_TRUE(WaitFor([&] { return answer.has_value(); }));
    EXPECT_EQ(answer, false);
}

TEST_F(MediaProcessTest, PicturesThatLieAboutTheirSizeAreNone) {
    EXPECT_EQ(Decode(u"huge.tga"_s, TgaHeader(65535, 65535, 32) + QByteArray(100, 'x')), false);
    EXPECT_EQ(Decode(u"huge.dds"_s, CompressedDds("DXT1", 65535, 65535) + QByteArray(100, 'x')), false);
    EXPECT_EQ(Decode(u"huge.pfm"_s, "PF\n65535 65535\n-1.0\n" + QByteArray(100, 'x')), false);
    EXPECT_EQ(Decode(u"huge.hdr"_s, "#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y 65535 +X 65535\n"), false);
    // Sane by its words, but its file does not hold it: an answer comes, whatever it is.
    EXPECT_TRUE(Decode(u"liar.tga"_s, TgaHeader(8000, 4000, 32) + QByteArray(100, 'x')).has_value());
    EXPECT_EQ(Decode(u"after.pfm"_s, SamplePfm()), true);
}

TEST_F(MediaProcessTest, DamagedPicturesAlwaysGetAnAnswer) {
    constexpr int rounds = 12;
    constexpr unsigned seed = 2005;
    constexpr int patience = 2 * MediaLimits().Picture + 10000; // the child's start on a busy machine included
    std::mt19937 random(seed);
    const auto below = [&random](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<quint64>(limit));
    };
    const std::vector<PictureSample> samples = PictureSamples(32);
    for (int round = 0; round < rounds; ++round) {
        for (const PictureSample& sample : samples) {
            QByteArray bytes = sample.Bytes;
            if (round % 3 == 0)
                bytes.truncate(below(bytes.size()));
            for (qsizetype flips = round % 3 == 1 ? 1 + below(4) : below(40); flips > 0 && !bytes.isEmpty(); --flips)
                bytes[below(std::min<qsizetype>(bytes.size(), round % 2 == 0 ? 64 : bytes.size()))] =
                    static_cast<char>(random());
            Begin(sample.Name, bytes);
            ASSERT_TRUE(WaitFor([this] { return answer_.has_value(); }, patience))
                << sample.Name.toStdString() << " in round " << round;
            if (answer_ == true) {
                EXPECT_FALSE(QImage::fromData(World::ReadFile(Bitmap()), "BMP").isNull());
            }
        }
    }
    EXPECT_EQ(Decode(u"after.pfm"_s, SamplePfm()), true);
}
