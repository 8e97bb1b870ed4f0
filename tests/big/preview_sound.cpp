// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The item click on sounds: their temporary files, and when they are opened again.

#include "tests/big/preview_fixture.h"

#include <limits>

using namespace Qt::StringLiterals;

TEST_F(PreviewTest, ASoundOfTheArchiveIsCopiedUnderANumberAndPlayed) {
    OpenWith({{u"a.wav"_s, "first"}, {u"b.mp3"_s, "second"}});
    Click(u"a.wav"_s);
    EXPECT_EQ(Shown().SoundFile, Temp(u"snd0a.wav"_s));
    EXPECT_EQ(Player.Opened, QStringList(Temp(u"snd0a.wav"_s)));
    EXPECT_EQ(Player.OpenedBytes, "first");
    Click(u"b.mp3"_s);
    EXPECT_EQ(Shown().SoundFile, Temp(u"snd1b.mp3"_s));
    EXPECT_EQ(Player.OpenedBytes, "second");
    EXPECT_EQ(FilesIn(u"Temp"_s), QStringList(u"snd1b.mp3"_s)) << "The sound before is deleted.";
    EXPECT_EQ(State().FocusPane, FocusedPane::List);
}

TEST_F(PreviewTest, TheSameSoundOfTheArchiveIsNotOpenedAgain) {
    OpenWith({{u"a.wav"_s, "first"}});
    Click(u"a.wav"_s);
    const int stops = Player.Stops;
    Click(u"a.wav"_s);
    EXPECT_EQ(Player.Opened.size(), 1);
    EXPECT_EQ(Player.Stops, stops) << "It plays on.";
    EXPECT_EQ(FilesIn(u"Temp"_s), QStringList(u"snd0a.wav"_s));
}

TEST_F(PreviewTest, ASoundInPlaceLeavesTheFocusedPane) {
    OpenWith({{u"a.wav"_s, "first"}, {u"b"_s, "x"}});
    const int index = mBIG::FindEntry(u"a.wav"_s);
    Preview preview([] {});
    preview.Use(&Decoder, &Player);
    EXPECT_TRUE(preview.ShowFile(index, u"a.wav"_s));
    EXPECT_FALSE(preview.ShowFile(index, u"a.wav"_s));
    EXPECT_TRUE(preview.ShowFile(index, u"b"_s));
}

TEST_F(PreviewTest, ASoundOfANewEntryIsOpenedAtEachClickAndItsFileStays) {
    OpenWith({{u"a.wav"_s, "old"}, {u"b.wav"_s, "other"}});
    const QString source = Place.WriteFile(u"mine.wav"_s, "mine");
    MakeNew(0, source);
    Click(u"a.wav"_s);
    Click(u"a.wav"_s);
    EXPECT_EQ(Player.Opened, QStringList({source, source}));
    EXPECT_EQ(Shown().SoundFile, QString());
    Click(u"b.wav"_s);
    EXPECT_EQ(Player.Opened.last(), Temp(u"snd2b.wav"_s)) << "Every sound raises the number.";
    Click(u"a.wav"_s);
    EXPECT_EQ(Shown().SoundFile, Temp(u"snd2b.wav"_s)) << "The field is left alone;";
    EXPECT_EQ(FilesIn(u"Temp"_s), QStringList()) << "the file is deleted.";
    EXPECT_TRUE(Files::FileExists(source));
}

TEST_F(PreviewTest, APictureForgetsTheSound) {
    OpenWith({{u"a.wav"_s, "first"}, {u"b.png"_s, "x"}});
    Click(u"a.wav"_s);
    const int stops = Player.Stops;
    Click(u"b.png"_s);
    EXPECT_EQ(Player.Stops, stops + 1);
    EXPECT_EQ(Shown().SoundFile, QString());
    EXPECT_EQ(FilesIn(u"Temp"_s), QStringList());
    Click(u"a.wav"_s);
    EXPECT_EQ(Player.Opened.size(), 2);
}

TEST_F(PreviewTest, AnythingElseDeletesTheSoundAndKeepsItsName) {
    OpenWith({{u"a.wav"_s, "first"}, {u"b.txt"_s, "x"}, {u"d\\e"_s, "x"}});
    for (const QString& other : {u"b.txt"_s, u"d"_s}) {
        Editor.ClickNode(1);
        Click(u"a.wav"_s);
        const QString file = Shown().SoundFile;
        const auto opened = Player.Opened.size();
        Click(other);
        EXPECT_FALSE(Shown().PlayerShown);
        EXPECT_EQ(Shown().SoundFile, file);
        EXPECT_EQ(FilesIn(u"Temp"_s), QStringList());
        Click(u"a.wav"_s);
        EXPECT_EQ(Player.Opened.size(), opened) << "By its name it counts as in place.";
        EXPECT_FALSE(Shown().PlayerShown);
    }
}

TEST_F(PreviewTest, AFolderRowHidesTheDetailsAndThePlayer) {
    OpenWith({{u"a.wav"_s, "first"}, {u"d\\e"_s, "x"}});
    Click(u"a.wav"_s);
    Click(u"d"_s);
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_FALSE(State().ModifyEnabled);
    EXPECT_FALSE(Shown().PlayerShown);
    EXPECT_EQ(State().FocusPane, FocusedPane::List);
}

TEST_F(PreviewTest, AnotherFolderAndAnotherArchiveForgetTheSound) {
    OpenWith({{u"a.wav"_s, "first"}});
    Click(u"a.wav"_s);
    Editor.ClickNode(1);
    EXPECT_EQ(Shown().SoundFile, QString());
    EXPECT_EQ(FilesIn(u"Temp"_s), QStringList());
    Click(u"a.wav"_s);
    OpenWith({{u"b.wav"_s, "first"}});
    EXPECT_EQ(Shown().SoundFile, QString());
    EXPECT_FALSE(Shown().PlayerShown);
    EXPECT_EQ(FilesIn(u"Temp"_s), QStringList());
}

TEST_F(PreviewTest, ASoundWithoutBytesIsOpenedAllTheSame) {
    OpenWith({{u"a.wav"_s, ""}});
    Click(u"a.wav"_s);
    EXPECT_EQ(Player.Opened, QStringList(Temp(u"snd0a.wav"_s)));
    EXPECT_EQ(Player.OpenedBytes, QByteArray());
    EXPECT_EQ(Shown().GroupHeight, 141);
}

TEST_F(PreviewTest, WhatAnEarlierDayLeftIsNotHeardBehindAShorterSound) {
    Place.WriteFile(u"program\\Temp\\snd0a.mp3"_s, "a much longer sound");
    OpenWith({{u"a.mp3"_s, "short"}});
    Click(u"a.mp3"_s);
    EXPECT_EQ(Player.OpenedBytes, "short");
}

TEST_F(PreviewTest, ASoundsNameThatMayNotBeWrittenIsNeitherOpenedNorDeleted) {
    const QString victim = Place.WriteFile(u"program\\victim.wav"_s, "mine");
    for (const QString& name : {u"/../../victim.wav"_s, u"*.wav"_s, u"\\..\\..\\victim.wav"_s}) {
        OpenWith({{name, "1"}});
        Preview preview([] {});
        preview.Use(&Decoder, &Player);
        EXPECT_TRUE(preview.ShowFile(mBIG::FindEntry(name), name));
        EXPECT_EQ(Player.Opened.last(), QString()) << name.toStdString();
        EXPECT_EQ(preview.State().SoundFile, QString());
        EXPECT_EQ(preview.State().GroupHeight, 141);
        preview.Clear();
    }
    EXPECT_EQ(World::ReadFile(victim), "mine");
    EXPECT_EQ(FilesIn(u"Temp"_s), QStringList());
}

TEST_F(PreviewTest, TheNumberOfSoundsEndsAtItsHighest) {
    OpenWith({{u"a.wav"_s, "old"}, {u"b.wav"_s, "other"}});
    MakeNew(0, Place.WriteFile(u"mine.wav"_s, "mine"));
    Preview preview([] {});
    preview.Use(nullptr, nullptr);
    for (int number = 0; number < std::numeric_limits<qint16>::max(); ++number)
        preview.ShowFile(0, u"a.wav"_s);
    preview.Use(nullptr, &Player);
    for (int click = 0; click < 2; ++click) {
        EXPECT_TRUE(preview.ShowFile(1, u"b.wav"_s)) << "Never in place: the number does not get past it.";
        EXPECT_EQ(Player.Opened.last(), Temp(u"snd32767b.wav"_s));
        EXPECT_EQ(Player.OpenedBytes, "other");
    }
}
