// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/FilePicture.h"
#include "platform/Files.h"
#include "tests/support/ScriptedDecoder.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

class FilePictureTest : public testing::Test {
protected:
    FilePictureTest() { shown_.Use(&decoder_); }

    void Show(const QString& name) { shown_.Show(world_.Root() + u'\\' + name, scratch_); }

    World world_;
    QString scratch_ = world_.Root() + u"\\new\\scratch"_s;
    ScriptedDecoder decoder_;
    std::vector<QByteArray> came_;
    FilePicture shown_{[this](const QByteArray& bitmap) { came_.push_back(bitmap); }};
};

} // namespace

TEST_F(FilePictureTest, TheBitmapComesOutOfTheScratchFolderWhichIsMade) {
    decoder_.Bitmap = "BM and more";
    Show(u"a.tga"_s);
    EXPECT_EQ(came_, std::vector<QByteArray>{"BM and more"});
    EXPECT_EQ(decoder_.Bitmaps, QStringList{scratch_ + u"\\TGA.bmp"_s});
    EXPECT_TRUE(Files::ListFolder(scratch_ + u"\\*"_s).isEmpty());
}

TEST_F(FilePictureTest, OfAPictureThatCantBeLoadedNothingComes) {
    Show(u"a.tga"_s);
    decoder_.Bitmap = "no bitmap";
    Show(u"b.tga"_s);
    EXPECT_EQ(came_, (std::vector<QByteArray>{QByteArray(), QByteArray()}));
    EXPECT_TRUE(Files::ListFolder(scratch_ + u"\\*"_s).isEmpty());
}

TEST_F(FilePictureTest, WhatAnEarlierDayLeftIsNotShown) {
    world_.WriteFile(u"new\\scratch\\TGA.bmp"_s, "BM old");
    Show(u"a.tga"_s);
    EXPECT_EQ(came_, std::vector<QByteArray>{QByteArray()});
}

TEST_F(FilePictureTest, APictureThatIsAbandonedNeverComes) {
    decoder_.Waits = true;
    decoder_.Bitmap = "BM1";
    Show(u"a.tga"_s);
    Show(u"b.tga"_s);
    EXPECT_EQ(decoder_.Abandoned, 1);
    decoder_.Answer();
    EXPECT_EQ(came_.size(), 1U);
    Show(u"c.tga"_s);
    shown_.Abandon();
    EXPECT_EQ(decoder_.Abandoned, 2);
    EXPECT_EQ(came_.size(), 1U);
}

TEST_F(FilePictureTest, WithoutADecoderNoneComes) {
    shown_.Use(nullptr);
    shown_.Prepare();
    Show(u"a.tga"_s);
    EXPECT_TRUE(came_.empty());
}
