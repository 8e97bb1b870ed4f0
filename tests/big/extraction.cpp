// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ArchiveExtractor.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/big/extraction_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;
using Extraction::DoExtract;

TEST_F(DoExtractTest, RebuildsTheArchivesFolders) {
    Open({{u"a.ini"_s, "hello"}, {u"Data\\INI\\b.t"_s, "hi"}});
    DoExtract(All(), Out(), true);
    EXPECT_EQ(Written(u"a.ini"_s), "hello");
    EXPECT_EQ(Written(u"Data\\INI\\b.t"_s), "hi");
}

TEST_F(DoExtractTest, TakesTheLastPartsWithoutFolders) {
    Open({{u"a.ini"_s, "hello"}, {u"Data\\INI\\b.t"_s, "hi"}});
    DoExtract(All(), Out(false), true);
    EXPECT_EQ(Written(u"b.t"_s), "hi");
    EXPECT_FALSE(Files::FolderExists(At(u"out\\Data"_s)));
}

TEST_F(DoExtractTest, ShowsTheTextTheBarAndYieldsTwiceAnEntry) {
    world_.UseLanguage("[LNG]\r\nProgressLbl=%1|%2\\nto %3\r\n");
    world_.Start();
    Open({{u"a"_s, "1"}, {u"D\\b"_s, "2"}, {u"c"_s, "3"}});
    std::vector<int> valuesAtYield;
    host_.OnYield = [&] {
        EXPECT_TRUE(host_.ProgressShown);
        valuesAtYield.push_back(host_.ProgressValues.empty() ? 0 : host_.ProgressValues.back());
    };
    DoExtract({0, 1, 2}, Out(), true);
    const QString folder = Paths::ToNative(At(u"out\\"_s));
    EXPECT_EQ(host_.ProgressTexts, (QStringList{u"my.big|a\r\nto "_s + folder, u"my.big|D\\b\r\nto "_s + folder,
                                                u"my.big|c\r\nto "_s + folder}));
    EXPECT_EQ(host_.ProgressValues, (std::vector<int>{33, 66, 100}));
    EXPECT_EQ(valuesAtYield, (std::vector<int>{0, 33, 33, 66, 66, 100}));
}

TEST_F(DoExtractTest, EndsWithItsMessageOverTheProgressWindowWhoseTimerHasStopped) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}});
    DoExtract(All(), Out(), true);
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Text, u"ExtractionComplete"_s);
    EXPECT_EQ(host_.Messages[0].Title, u"Brindock 2005"_s);
    EXPECT_EQ(host_.Messages[0].Sign, Host::Icon::Information);
    EXPECT_TRUE(host_.Messages[0].OverProgress);
    EXPECT_FALSE(host_.Messages[0].OverTimer);
    EXPECT_FALSE(host_.ProgressShown);
}

TEST_F(DoExtractTest, EndsWithoutAWordWhenItIsToldTo) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}});
    DoExtract(All(), Out(), false);
    EXPECT_EQ(MessageTexts(), QStringList{});
    EXPECT_FALSE(host_.ProgressShown);
    EXPECT_EQ(Written(u"b"_s), "2");
}

TEST_F(DoExtractTest, TheButtonEndsTheRunBehindTheEntryInProgress) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}, {u"c"_s, "3"}});
    host_.OnYield = [&] {
        if (host_.Yields == 3) // the first of the second entry
            host_.CancelProgress();
    };
    DoExtract(All(), Out(), true);
    EXPECT_EQ(Written(u"b"_s), "2") << "the entry in progress is finished";
    EXPECT_FALSE(IsThere(u"c"_s));
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Text, u"ExtractionCanceled"_s);
    EXPECT_EQ(host_.Messages[0].Sign, Host::Icon::Critical);
    EXPECT_FALSE(host_.Messages[0].OverProgress) << "the window is hidden by then";
    EXPECT_EQ(host_.Yields, 4);
}

TEST_F(DoExtractTest, TheButtonInTheLastEntryComesTooLate) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}});
    host_.OnYield = [&] {
        if (host_.Yields == 3)
            host_.CancelProgress();
    };
    DoExtract(All(), Out(), true);
    EXPECT_EQ(MessageTexts(), QStringList{u"ExtractionComplete"_s});
}

TEST_F(DoExtractTest, YesDeletesTheFileThatIsThereAndAWriteProtectedOneToo) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}});
    QFile::setPermissions(Paths::ToNative(Put(u"out\\a"_s, "a longer file")), QFile::ReadOwner);
    host_.Answers = {Host::Answer::Yes};
    DoExtract(All(), Out(), true);
    EXPECT_EQ(Written(u"a"_s), "1");
    ASSERT_EQ(host_.Messages.size(), 2U);
    EXPECT_EQ(host_.Messages[0].Text, Question(u"a"_s));
    EXPECT_EQ(host_.Messages[0].Sign, Host::Icon::Question);
    EXPECT_EQ(host_.Messages[0].Choice, Host::Buttons::YesNoCancel);
}

TEST_F(DoExtractTest, NoRunsOverTheFileThatIsThereWithoutCuttingIt) {
    Open({{u"a"_s, "12"}, {u"b"_s, "2"}});
    Put(u"out\\a"_s, "a longer file");
    host_.Answers = {Host::Answer::No};
    DoExtract(All(), Out(), true);
    EXPECT_EQ(Written(u"a"_s), "12longer file");
    EXPECT_EQ(Written(u"b"_s), "2");
}

TEST_F(DoExtractTest, NoHasANewEntryReplaceTheFileThatIsThere) {
    AddNew(u"a"_s, "new");
    Put(u"out\\a"_s, "a longer file");
    host_.Answers = {Host::Answer::No};
    DoExtract({0}, Out(), true);
    EXPECT_EQ(Written(u"a"_s), "new");
}

TEST_F(DoExtractTest, CancelInTheQuestionEndsTheRunAndKeepsWhatWasWritten) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}, {u"c"_s, "3"}});
    Put(u"out\\b"_s, "old");
    host_.Answers = {Host::Answer::Cancel};
    DoExtract(All(), Out(), true);
    EXPECT_EQ(Written(u"a"_s), "1");
    EXPECT_EQ(Written(u"b"_s), "old");
    EXPECT_FALSE(IsThere(u"c"_s));
    EXPECT_EQ(MessageTexts(), (QStringList{Question(u"b"_s), u"ExtractionCanceled"_s}));
    EXPECT_FALSE(host_.Messages[1].OverProgress);
    EXPECT_FALSE(host_.Messages[1].OverTimer);
    EXPECT_TRUE(host_.Cancelled);
}

TEST_F(DoExtractTest, WithoutFoldersTheSecondEntryOfTheSameLastPartBringsTheQuestion) {
    Open({{u"x\\n"_s, "1"}, {u"y\\n"_s, "2"}});
    host_.Answers = {Host::Answer::Yes};
    DoExtract(All(), Out(false), true);
    EXPECT_EQ(MessageTexts(), (QStringList{Question(u"n"_s), u"ExtractionComplete"_s}));
    EXPECT_EQ(Files::ListFolder(At(u"out\\*.*"_s)).size(), 1);
}

TEST_F(DoExtractTest, AFolderWithoutItsBackslashIsJoinedWithTheName) {
    Open({{u"a"_s, "1"}, {u"D\\b"_s, "2"}});
    ExtractionTarget target = Out();
    target.ExtractFolder = At(u"out"_s);
    DoExtract(All(), target, true);
    EXPECT_EQ(World::ReadFile(At(u"outa"_s)), "1");
    EXPECT_EQ(World::ReadFile(At(u"outD\\b"_s)), "2");
    EXPECT_FALSE(Files::FolderExists(At(u"out"_s)));
}

TEST_F(DoExtractTest, AnEntryOfNoBytesKeepsTheLaterOnesFromBeingExtracted) {
    Open({{u"a"_s, "1"}, {u"e"_s, ""}, {u"f"_s, "3"}});
    AddNew(u"n"_s, "new");
    host_.Answers = {Host::Answer::No};
    DoExtract(All(), Out(), true);
    EXPECT_EQ(Written(u"a"_s), "1");
    EXPECT_EQ(Written(u"e"_s), "") << "its target is made";
    EXPECT_FALSE(IsThere(u"f"_s));
    EXPECT_EQ(Written(u"n"_s), "new") << "a file copy needs no file number";
    EXPECT_EQ(MessageTexts(), (QStringList{u"ExtractionComplete"_s, u"ExtractBehindEmpty"_s}));
}

TEST_F(DoExtractTest, WhatAnEntryOfNoBytesLeftOpenHarmsNoLaterRun) {
    Open({{u"e"_s, ""}, {u"f"_s, "3"}});
    DoExtract({0}, Out(), true);
    EXPECT_FALSE(NumberedFiles::IsOpen(3));
    EXPECT_FALSE(NumberedFiles::IsOpen(4));
    EXPECT_ANY_THROW(mBIG::ExtractEntry(0, mBIG::BigFileName, At(u"elsewhere"_s)));
    DoExtract({1}, Out(), true);
    EXPECT_EQ(Written(u"f"_s), "3");
}

TEST_F(DoExtractTest, AnEntryThatFailsIsPassedOver) {
    Open({{u"a"_s, "1"}, {u"b\\c"_s, "2"}, {u"d"_s, "3"}});
    Files::MakeFolders(At(u"out\\a"_s));
    Put(u"out\\b"_s, "a file");
    DoExtract(All(), Out(), true);
    EXPECT_EQ(Written(u"b"_s), "a file");
    EXPECT_EQ(Written(u"d"_s), "3");
    EXPECT_EQ(MessageTexts(), QStringList{u"ExtractionComplete"_s});
}

TEST_F(DoExtractTest, AFolderThatCanNotBeMadePassesEveryEntryOver) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}});
    ExtractionTarget target = Out();
    target.ExtractFolder = Put(u"file"_s, "x") + u"\\out\\"_s;
    DoExtract(All(), target, true);
    EXPECT_EQ(host_.Yields, 4);
    EXPECT_EQ(MessageTexts(), QStringList{u"ExtractionComplete"_s});
}

TEST_F(DoExtractTest, TheOpenArchiveIsNeverATarget) {
    Open({{u"my.big"_s, "evil"}, {u"b"_s, "2"}});
    const QByteArray before = World::ReadFile(mBIG::BigFileName);
    ExtractionTarget target = Out();
    target.ExtractFolder = world_.Root() + u'\\';
    DoExtract(All(), target, true);
    EXPECT_EQ(World::ReadFile(mBIG::BigFileName), before);
    EXPECT_EQ(World::ReadFile(At(u"b"_s)), "2");
    EXPECT_EQ(MessageTexts(), QStringList{u"ExtractionComplete"_s});
}

TEST_F(DoExtractTest, AnAddedFileIsNotDeletedWhenItIsExtractedToItsOwnPlace) {
    AddNew(u"a"_s, "precious");
    mBIG::BigEntries[0].SourcePath = Put(u"out\\a"_s, "precious");
    DoExtract({0}, Out(), true);
    EXPECT_EQ(Written(u"a"_s), "precious");
    EXPECT_EQ(MessageTexts(), QStringList{u"ExtractionComplete"_s});
}

TEST_F(DoExtractTest, TheSourceOfAnotherAddedEntryIsNeverATarget) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}});
    AddNew(u"n"_s, "precious");
    mBIG::BigEntries[2].SourcePath = Put(u"out\\a"_s, "precious");
    DoExtract(All(), Out(), true);
    EXPECT_EQ(Written(u"a"_s), "precious") << "no question either";
    EXPECT_EQ(Written(u"b"_s), "2");
    EXPECT_EQ(Written(u"n"_s), "precious");
    EXPECT_EQ(MessageTexts(), QStringList{u"ExtractionComplete"_s});
}

TEST_F(DoExtractTest, AnAddedFileThatIsGoneIsPassedOver) {
    AddNew(u"a"_s, "1");
    AddNew(u"b"_s, "2");
    Files::Delete(mBIG::BigEntries[0].SourcePath);
    DoExtract(All(), Out(), true);
    EXPECT_FALSE(IsThere(u"a"_s));
    EXPECT_EQ(Written(u"b"_s), "2");
}

TEST(ExtractList, TakesNoMoreThanItWasSizedTo) {
    std::vector<qint32> list(Extraction::MostIndices - 1);
    Extraction::Take(list, 7);
    Extraction::Take(list, 8);
    EXPECT_EQ(list.size(), 65537U);
    EXPECT_EQ(list.back(), 7);
}

TEST_F(DoExtractTest, NamesThatTheGatewayRefusesArePassedOverInBothModes) {
    const QStringList refused{u"..\\x"_s, u"\\x"_s,   u"C:\\x"_s, u"nul.txt"_s, u"D\\CON"_s,
                              u"x."_s,    u"D \\x"_s, u"a*b"_s,   u"a:b"_s,     u""_s};
    std::vector<NamedBytes> entries;
    for (const QString& name : refused)
        entries.emplace_back(name, "evil");
    entries.emplace_back(u"good"_s, "good");
    Open(entries);
    DoExtract(All(), Out(), true);
    EXPECT_EQ(Files::ListFolder(At(u"out\\*.*"_s)), QStringList{u"good"_s});
    EXPECT_EQ(host_.Yields, 22);
    EXPECT_FALSE(Files::FileExists(At(u"x"_s)));
    // Without folders it is the last part that counts.
    host_.Answers.assign(4, Host::Answer::Yes);
    DoExtract(All(), Out(false), true);
    EXPECT_EQ(Files::ListFolder(At(u"out\\*.*"_s)).size(), 2) << "good and x";
    EXPECT_FALSE(Files::FileExists(At(u"x"_s)));
}

TEST_F(DoExtractTest, TheFastWayDoesNotWriteOverTheArchiveItself) {
    const QString path = Put(u"my.big"_s, ArchiveOf({{u"my.big"_s, "evil"}, {u"b"_s, "2"}}));
    const QByteArray before = World::ReadFile(path);
    ASSERT_TRUE(mBIG::ReadBigFile(path));
    ArchiveExtractor extractor(path, world_.Root() + u'\\');
    EXPECT_THROW(extractor.Extract(mBIG::BigEntries[0], u"my.big"_s), RuntimeError);
    EXPECT_EQ(World::ReadFile(path), before);
    Put(u"b"_s, "longer than the entry");
    extractor.Extract(mBIG::BigEntries[1], u"b"_s);
    EXPECT_EQ(World::ReadFile(At(u"b"_s)), "2");
}
