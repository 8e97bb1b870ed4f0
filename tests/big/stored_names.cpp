// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Names with letters that archives lack: shown as they will be stored, told, asked about before a save.
#include "tests/big/stored_names_fixture.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

TEST_F(StoredNamesTest, AnAddedFileShowsTheNameThatItWillHave) {
    OpenSample();
    Add(u"caf\u00E9 \u65E5\u672C.txt"_s);
    EXPECT_EQ(Shown().last(), u"caf\u00E9 ??.txt"_s);
    EXPECT_EQ(mBIG::BigEntries.back().Name, u"caf\u00E9 ??.txt"_s);
    EXPECT_EQ(View.Told.Text, u"lost: caf\u00E9 \u65E5\u672C.txt."_s);
    EXPECT_TRUE(View.Told.Links.empty());
}

TEST_F(StoredNamesTest, ALetterOfTwoUnitsBecomesOneSign) {
    OpenSample();
    Add(u"map \U0001F5FA.txt"_s);
    EXPECT_EQ(Shown().last(), u"map ?.txt"_s);
}

TEST_F(StoredNamesTest, NamesThatArchivesHoldAreNotTold) {
    OpenSample();
    Add(u"\u0152uvre \u20AC.txt"_s);
    EXPECT_EQ(Shown().last(), u"\u0152uvre \u20AC.txt"_s);
    EXPECT_EQ(View.Told.Text, QString());
    EXPECT_EQ(QuestionsOfSave(), 0U);
}

TEST_F(StoredNamesTest, BeforeASaveIsAskedAndCancelSavesNothing) {
    const QString path = OpenSample();
    const QByteArray before = World::ReadFile(path);
    Add(u"\u65E5.txt"_s);
    Speaker.Answers = {Answer::Cancel};
    Editor.Save();
    ExpectQuestion(u"\u65E5.txt \u2192 ?.txt"_s);
    EXPECT_EQ(World::ReadFile(path), before);
    EXPECT_TRUE(State().Modified);
    EXPECT_TRUE(mBIG::BigEntries.back().IsNew);
    EXPECT_EQ(QuestionsOfSave(), 1U);
    EXPECT_NE(World::ReadFile(path), before);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(Shown().last(), u"?.txt"_s);
    EXPECT_EQ(QuestionsOfSave(), 0U) << "What is stored is asked about no more.";
}

TEST_F(StoredNamesTest, ClosingWithASaveThatIsCancelledStays) {
    OpenSample();
    Add(u"\u65E5.txt"_s);
    Speaker.Answers = {Answer::Yes, Answer::Cancel};
    EXPECT_FALSE(Editor.MayClose());
    Speaker.Answers = {Answer::Yes, Answer::Save};
    EXPECT_TRUE(Editor.MayClose());
}

TEST_F(StoredNamesTest, ManyAreCounted) {
    OpenSample();
    QStringList paths;
    for (char16_t letter = 0; letter < 12; ++letter)
        paths += Put(QChar(char16_t(0x65E5 + letter)) + QString::number(letter));
    Editor.DropFiles(paths);
    EXPECT_EQ(View.Told.Text, u"lost: 12."_s);
    Speaker.Answers = {Answer::Cancel};
    Editor.Save();
    const QStringList lines = Speaker.Messages.back().Text.split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 13);
    EXPECT_EQ(lines[2], u"\u65E50 \u2192 ?0"_s);
    EXPECT_EQ(lines[11], u"\u65EE9 \u2192 ?9"_s);
    EXPECT_EQ(lines[12], u"..."_s);
}

TEST_F(StoredNamesTest, WhatIsNotInTheTableAnyMoreIsNotAskedAbout) {
    OpenSample();
    Add(u"\u65E5.txt"_s);
    mBIG::BigEntries.back().Deleted = true;
    EXPECT_EQ(QuestionsOfSave(), 0U);
    Add(u"\u65E5.txt"_s);
    OpenSample();
    EXPECT_EQ(QuestionsOfSave(), 0U) << "Another archive is open.";
}

TEST_F(StoredNamesTest, TwoAddedFilesThatBecomeOneAreTold) {
    OpenSample();
    Add(u"\u65E5.txt"_s);
    Speaker.Answers = {Answer::Yes};
    Add(u"\u672C.txt"_s);
    EXPECT_EQ(Speaker.Messages.back().Text, u"?.txt\r\n\r\nexists\r\nof \u672C.txt"_s);
    EXPECT_EQ(View.Told.Text, u"lost: \u672C.txt. one: \u65E5.txt + \u672C.txt. replaced: ?.txt."_s);
    EXPECT_EQ(Shown().count(u"?.txt"_s), 1);
}

TEST_F(StoredNamesTest, TheSameFileTwiceIsNotTwo) {
    OpenSample();
    Add(u"\u65E5.txt"_s);
    Speaker.Answers = {Answer::Yes};
    Add(u"\u65E5.txt"_s);
    EXPECT_EQ(View.Told.Text, u"lost: \u65E5.txt. replaced: ?.txt."_s);
    Speaker.Answers = {Answer::Cancel};
    Editor.Save();
    ExpectQuestion(u"\u65E5.txt \u2192 ?.txt"_s);
}

TEST_F(StoredNamesTest, AFileThatDoesNotComeInIsNotAskedAbout) {
    OpenSample();
    Add(u"\u65E5.txt"_s);
    Speaker.Answers = {Answer::No};
    Add(u"\u672C.txt"_s);
    EXPECT_EQ(View.Told.Text, u"one: \u65E5.txt + \u672C.txt."_s);
    Speaker.Answers = {Answer::Cancel};
    Editor.Save();
    ExpectQuestion(u"\u65E5.txt \u2192 ?.txt"_s);
}

TEST_F(StoredNamesTest, DroppedFoldersLoseLettersToo) {
    OpenSample();
    Put(u"\u5730\u56FE\\\u65E5.map"_s);
    Put(u"\u5730\u56FE\\b.map"_s);
    Editor.DropFiles({Place.Root() + u"\\from\\\u5730\u56FE"_s});
    EXPECT_TRUE(Shown().contains(u"??"_s));
    EXPECT_EQ(View.Told.Text, u"lost: 2."_s);
    Editor.ClickNode(NodeOf(u"??\\"_s));
    QStringList shown = Shown();
    shown.sort();
    EXPECT_EQ(shown, QStringList({u"?.map"_s, u"b.map"_s}));
}

TEST_F(StoredNamesTest, OfOneDropThatBecomesOneBothNamesAreTold) {
    OpenSample();
    Speaker.Answers = {Answer::Yes};
    Editor.DropFiles({Put(u"\u65E5.txt"_s), Put(u"\u672C.txt"_s)});
    EXPECT_EQ(View.Told.Text, u"lost: 2. one: \u65E5.txt + \u672C.txt. replaced: ?.txt."_s);
}

TEST_F(StoredNamesTest, ANameTypedInTheListIsShownAsStored) {
    OpenSample();
    ASSERT_TRUE(Editor.RenameRow(1, u"\u8AAD.txt"_s));
    EXPECT_EQ(Shown()[1], u"?.txt"_s);
    EXPECT_EQ(mBIG::BigEntries[0].Name, u"?.txt"_s);
    EXPECT_EQ(View.Told.Text, u"lost: \u8AAD.txt."_s);
    Speaker.Answers = {Answer::Cancel};
    Editor.Save();
    ExpectQuestion(u"\u8AAD.txt \u2192 ?.txt"_s);
}

TEST_F(StoredNamesTest, AFoldersNameTypedInTheListIsShownAsStored) {
    OpenArchive({{u"data\\a"_s, "1"}, {u"b"_s, "2"}});
    ASSERT_TRUE(Editor.RenameRow(0, u"\u5730"_s));
    EXPECT_EQ(Shown()[0], u"?"_s);
    EXPECT_EQ(mBIG::BigEntries[0].Name, u"?\\a"_s);
    EXPECT_EQ(View.Told.Text, u"lost: \u5730."_s);
}

TEST_F(StoredNamesTest, AFoldersNameTypedInTheTreeIsShownAsStoredAndStillUnmarked) {
    OpenArchive({{u"data\\a"_s, "1"}, {u"b"_s, "2"}});
    ASSERT_TRUE(Editor.RenameNode(NodeOf(u"data\\"_s), u"\u5730"_s));
    EXPECT_EQ(Editor.Tree().Node(2).Text, u"?"_s);
    EXPECT_EQ(mBIG::BigEntries[0].Name, u"?\\a"_s);
    EXPECT_EQ(View.Told.Text, u"lost: \u5730. NotMarkedAsChanged"_s);
    EXPECT_EQ(View.Told.Links.size(), 1U);
    Speaker.Answers = {Answer::Cancel};
    Editor.Save();
    ExpectQuestion(u"\u5730 \u2192 ?\\"_s);
}

TEST_F(StoredNamesTest, AFolderWithoutEntriesIsToldAndNotAskedAbout) {
    OpenSample();
    Editor.NewFolder();
    ASSERT_TRUE(Editor.RenameNode(State().SelectedNode, u"\u5730"_s));
    EXPECT_EQ(View.Told.Text, u"lost: \u5730."_s);
    EXPECT_EQ(QuestionsOfSave(), 0U);
}
