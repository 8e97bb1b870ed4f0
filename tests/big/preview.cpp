// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The item click: what the group of details shows, and what it does to pictures.

#include "tests/big/preview_fixture.h"

#include <QLocale>

using namespace Qt::StringLiterals;

TEST_F(PreviewTest, TheSizeIsInWholeKilobytesWithTheLocalisedWord) {
    Place.UseLanguage("[LNG]\r\nKiloBytes=Ko\r\n");
    Place.Start();
    OpenWith({{u"a"_s, QByteArray(3000, 'x')}, {u"b"_s, QByteArray(500, 'x')}, {u"c"_s, QByteArray(1024, 'x')}});
    Click(u"a"_s);
    EXPECT_EQ(State().DetailsSize, u"2 Ko"_s);
    Click(u"b"_s);
    EXPECT_EQ(State().DetailsSize, u"0 Ko"_s);
    Click(u"c"_s);
    EXPECT_EQ(State().DetailsSize, u"1 Ko"_s);
}

TEST_F(PreviewTest, ThousandsAreApartByTheUsersMark) {
    Place.UseLanguage("[LNG]\r\nKiloBytes=KB\r\n");
    Place.Start();
    OpenWith({{u"a"_s, "x"}, {u"b"_s, "x"}});
    mBIG::BigEntries[0].Size = 1234567 * 1024;
    mBIG::BigEntries[1].Size = 1234 * 1024;
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    Click(u"a"_s);
    EXPECT_EQ(State().DetailsSize, u"1.234.567 KB"_s);
    QLocale::setDefault(QLocale(QLocale::Spanish));
    Click(u"b"_s);
    EXPECT_EQ(State().DetailsSize, u"1.234 KB"_s) << "The locale itself would leave four digits together.";
    QLocale::setDefault(QLocale::c());
    Click(u"b"_s);
    EXPECT_EQ(State().DetailsSize, u"1,234 KB"_s);
    QLocale::setDefault(before);
}

TEST_F(PreviewTest, TheGroupsHeightTellsPicturesSoundsAndTheRestApart) {
    OpenWith({{u"a.tga"_s, "x"}, {u"b.wav"_s, "x"}, {u"c.ini"_s, "x"}});
    Click(u"a.tga"_s);
    EXPECT_EQ(Shown().GroupHeight, 200);
    EXPECT_TRUE(Shown().PictureShown);
    EXPECT_FALSE(Shown().PlayerShown);
    Click(u"b.wav"_s);
    EXPECT_EQ(Shown().GroupHeight, 141);
    EXPECT_FALSE(Shown().PictureShown);
    EXPECT_TRUE(Shown().PlayerShown);
    Click(u"c.ini"_s);
    EXPECT_EQ(Shown().GroupHeight, 80);
    EXPECT_FALSE(Shown().PlayerShown);
}

TEST_F(PreviewTest, EveryExtensionOfTheListIsAPictureInAnyCase) {
    const QStringList names{u"a.bmp"_s, u"a.dds"_s, u"a.dib"_s, u"a.hdr"_s,  u"a.jpg"_s, u"a.pfm"_s,
                            u"a.png"_s, u"A.TGA"_s, u"a.Gif"_s, u"a.JPEG"_s, u"ajpeg"_s};
    for (const QString& name : names) {
        OpenWith({{name, "x"}});
        Click(name);
        EXPECT_EQ(Shown().GroupHeight, 200) << name.toStdString();
    }
}

TEST_F(PreviewTest, OnlyTheLastFourCharactersCount) {
    const QStringList plain{u"a.tiff"_s, u"a.webp"_s, u"xgif"_s, u"a.tga "_s, u"a.mp34"_s, u"xwav"_s, u"a.mp3/"_s};
    for (const QString& name : plain) {
        OpenWith({{u"b.tga"_s, "x"}, {name, "x"}});
        Click(name);
        EXPECT_EQ(Shown().GroupHeight, 80) << name.toStdString();
        EXPECT_TRUE(Decoder.Sources.isEmpty());
        EXPECT_TRUE(Player.Opened.isEmpty());
    }
}

TEST_F(PreviewTest, AShortNameThatEndsAnExtensionCountsAsIt) {
    for (const QString& name : {u"tga"_s, u"ga"_s, u"p"_s, u"jpeg"_s}) {
        OpenWith({{name, "x"}});
        Click(name);
        EXPECT_EQ(Shown().GroupHeight, 200) << name.toStdString();
    }
    OpenWith({{u"3"_s, "x"}});
    Click(u"3"_s);
    EXPECT_EQ(Shown().GroupHeight, 141);
}

TEST_F(PreviewTest, AnEmptyRowTextCountsAsAPictureThatIsNone) {
    OpenWith({{u"Data\\"_s, "x"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Decoder.Bitmap = BitmapOf(1, 1);
    Editor.ClickRow(0);
    EXPECT_EQ(State().DetailsName, QString());
    EXPECT_EQ(Shown().GroupHeight, 200);
    EXPECT_TRUE(Shown().Bitmap.isEmpty());
}

TEST_F(PreviewTest, APictureIsFittedIntoASquareOf105) {
    EXPECT_EQ(Preview::Fit({300, 100}), QSize(105, 35));
    EXPECT_EQ(Preview::Fit({100, 300}), QSize(35, 105));
    EXPECT_EQ(Preview::Fit({100, 100}), QSize(105, 105));
    EXPECT_EQ(Preview::Fit({1, 1}), QSize(105, 105));
    EXPECT_EQ(Preview::Fit({16384, 1}), QSize(105, 0)) << "Too flat to be seen.";
    EXPECT_EQ(Preview::Fit({210, 3}), QSize(105, 2)) << "1.5 is rounded up to the even number,";
    EXPECT_EQ(Preview::Fit({210, 5}), QSize(105, 2)) << "2.5 down to it.";
    EXPECT_EQ(Preview::Fit({0, 5}), QSize());
}

TEST_F(PreviewTest, AnEntryOfTheArchiveIsCopiedDecodedAndShown) {
    OpenWith({{u"Data\\Map.dds"_s, "picture"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Decoder.Bitmap = BitmapOf(300, 100);
    Click(u"Map.dds"_s);
    EXPECT_EQ(Decoder.SourceBytes, "picture");
    EXPECT_TRUE(Decoder.Sources[0].endsWith(u"\\TempPrev\\Map.dds"_s));
    EXPECT_TRUE(Decoder.Bitmaps[0].endsWith(u"\\TempPrev\\Map.bmp"_s));
    EXPECT_EQ(Shown().Bitmap, Decoder.Bitmap);
    EXPECT_EQ(Shown().PictureSize, QSize(105, 35));
    EXPECT_EQ(State().FocusPane, FocusedPane::List);
    EXPECT_EQ(State().StatusText, u"Data\\Map.dds"_s);
    EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList()) << "A picture leaves no file behind.";
}

TEST_F(PreviewTest, ABitmapIsItsOwnTarget) {
    OpenWith({{u"a.bmp"_s, "picture"}});
    Decoder.Bitmap = BitmapOf(2, 2);
    Click(u"a.bmp"_s);
    EXPECT_EQ(Decoder.Sources, Decoder.Bitmaps);
    EXPECT_EQ(Shown().PictureSize, QSize(105, 105));
    EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList());
}

TEST_F(PreviewTest, ANewEntryIsReadWhereItIsAndItsFileStays) {
    OpenWith({{u"a.png"_s, "old"}});
    const QString source = Place.WriteFile(u"mine.png"_s, QByteArray(5000, 'n'));
    MakeNew(0, source);
    Decoder.Bitmap = BitmapOf(4, 2);
    Click(u"a.png"_s);
    EXPECT_EQ(Decoder.Sources, QStringList(source));
    EXPECT_EQ(State().DetailsSize, u"4 KiloBytes"_s);
    EXPECT_EQ(Shown().PictureSize, QSize(105, 52));
    EXPECT_TRUE(Files::FileExists(source));
    EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList());
}

TEST_F(PreviewTest, APictureThatCannotBeReadLeavesTheOldOne) {
    OpenWith({{u"a.png"_s, "1"}, {u"b.png"_s, "2"}, {u"c.png"_s, "3"}});
    Decoder.Bitmap = BitmapOf(300, 100);
    Click(u"a.png"_s);
    Decoder.Bitmap.clear();
    Click(u"b.png"_s);
    EXPECT_EQ(Shown().Bitmap, BitmapOf(300, 100));
    EXPECT_EQ(Shown().PictureSize, QSize(105, 35));
    EXPECT_EQ(State().DetailsName, u"b.png"_s);
    Decoder.Bitmap = "no bitmap";
    Click(u"c.png"_s);
    EXPECT_EQ(Shown().Bitmap, BitmapOf(300, 100));
    EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList());
}

TEST_F(PreviewTest, TheClickReturnsBeforeThePictureIsThere) {
    OpenWith({{u"a.png"_s, "1"}});
    Decoder.Waits = true;
    Decoder.Bitmap = BitmapOf(1, 1);
    Click(u"a.png"_s);
    EXPECT_TRUE(Shown().Bitmap.isEmpty());
    EXPECT_EQ(State().FocusPane, FocusedPane::List);
    Decoder.Answer();
    EXPECT_EQ(Shown().Bitmap, BitmapOf(1, 1));
    EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList());
}

TEST_F(PreviewTest, ANewerClickTakesThePlaceOfAPictureThatIsNotThereYet) {
    OpenWith({{u"a.png"_s, "1"}, {u"b.png"_s, "2"}, {u"c.txt"_s, "3"}});
    Decoder.Waits = true;
    Decoder.Bitmap = BitmapOf(1, 1);
    Click(u"a.png"_s);
    Click(u"b.png"_s);
    EXPECT_EQ(Decoder.Abandoned, 1);
    EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList(u"b.png"_s));
    Click(u"c.txt"_s);
    EXPECT_EQ(Decoder.Abandoned, 2);
    EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList());
    EXPECT_TRUE(Shown().Bitmap.isEmpty());
}

TEST_F(PreviewTest, AFolderAClearedPreviewAndTheEditorsEndGiveThePictureUp) {
    OpenWith({{u"a.png"_s, "1"}, {u"d\\b.txt"_s, "2"}});
    Decoder.Waits = true;
    Click(u"a.png"_s);
    Click(u"d"_s);
    EXPECT_EQ(Decoder.Abandoned, 1);
    Click(u"a.png"_s);
    Editor.ClickNode(1);
    EXPECT_EQ(Decoder.Abandoned, 2);
    {
        BigEditor other(View);
        other.UsePreview(&Decoder, &Player);
        other.ShowFolder({});
        other.CreateDirs();
        other.ClickRow(1);
        EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList(u"a.png"_s));
    }
    EXPECT_EQ(Decoder.Abandoned, 3);
    EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList());
}

TEST_F(PreviewTest, ANewEntryWhoseFileHasGoneLeavesTheListAfterAMessage) {
    Place.UseLanguage("[LNG]\r\nFileNotFound=The file is gone.\r\n");
    Place.Start();
    OpenWith({{u"a.png"_s, "1"}, {u"b.txt"_s, "2"}});
    MakeNew(0, Place.Root() + u"\\none.png"_s);
    Click(u"a.png"_s);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"The file is gone."_s);
    EXPECT_EQ(Speaker.Messages[0].Sign, Host::Icon::Critical);
    EXPECT_TRUE(mBIG::BigEntries[0].Deleted);
    EXPECT_EQ(Texts(Editor.List()), QStringList({u"b.txt"_s, u"zz"_s}));
    EXPECT_EQ(State().FocusPane, FocusedPane::Tree);
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_TRUE(Decoder.Sources.isEmpty());
}

TEST_F(PreviewTest, AnEntryWithoutBytesGivesNoPictureAndHarmsNoLaterOne) {
    OpenWith({{u"a.png"_s, ""}, {u"b.png"_s, "2"}});
    Decoder.Waits = true;
    Click(u"a.png"_s);
    EXPECT_EQ(Decoder.SourceBytes, QByteArray());
    Click(u"b.png"_s);
    EXPECT_EQ(Decoder.SourceBytes, "2");
    EXPECT_EQ(Shown().GroupHeight, 200);
}

TEST_F(PreviewTest, AClickDuringASaveHarmsNeitherTheSaveNorItself) {
    OpenWith({{u"a.png"_s, "picture"}, {u"b.wav"_s, "sound"}});
    Speaker.OnYield = [&] {
        Click(u"a.png"_s);
        Click(u"b.wav"_s);
    };
    Editor.Save();
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_TRUE(Decoder.Sources.empty());
    EXPECT_TRUE(Player.Opened.empty());
    Speaker.OnYield = {};
    Click(u"a.png"_s);
    EXPECT_EQ(Decoder.SourceBytes, "picture");
    Click(u"b.wav"_s);
    EXPECT_EQ(Player.OpenedBytes, "sound");
}

TEST_F(PreviewTest, ANameThatMayNotBeWrittenHasNoPreview) {
    Decoder.Bitmap = BitmapOf(1, 1);
    for (const QString& name :
         {u"nul.png"_s, u"..\\x.png"_s, u"a*.png"_s, u"../x.png"_s, u"C:x.png"_s, u"sub/x.png"_s}) {
        OpenWith({{name, "1"}});
        const int index = mBIG::FindEntry(name);
        Preview preview([] {});
        preview.Use(&Decoder, &Player);
        EXPECT_TRUE(preview.ShowFile(index, name));
        EXPECT_TRUE(Decoder.Sources.isEmpty()) << name.toStdString();
        EXPECT_EQ(preview.State().GroupHeight, 200);
        EXPECT_EQ(FilesIn(u"TempPrev"_s), QStringList());
    }
    EXPECT_FALSE(Files::FileExists(Place.ProgramFolder() + u"\\x.png"_s));
}

TEST_F(PreviewTest, ASaveEndsThePreview) {
    OpenWith({{u"a.wav"_s, "1"}, {u"b.wav"_s, "2"}});
    Click(u"a.wav"_s);
    EXPECT_EQ(FilesIn(u"Temp"_s), QStringList(u"snd0a.wav"_s));
    const int before = Player.Stops;
    Editor.Save();
    EXPECT_EQ(Player.Stops, before + 1);
    EXPECT_FALSE(Shown().PlayerShown);
    EXPECT_EQ(Shown().SoundFile, QString());
    EXPECT_EQ(FilesIn(u"Temp"_s), QStringList());
}
