// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/extraction_fixture.h"

#include <QFile>

using Extraction::DoExtract;

namespace {

/// Extractions that can't do everything: what they tell behind the told message.
class ExtractionLeftOut : public DoExtractTest {
protected:
    /// Extracts everything and returns the lines below the list's text.
    QStringList LeftOut(const ExtractionTarget& target) {
        host_.Listed.clear();
        DoExtract(All(), target, true);
        EXPECT_TRUE(host_.Listed.isEmpty() || host_.Listed.front() == "LeftOut2"_L1);
        return host_.Listed.sliced(std::min<qsizetype>(host_.Listed.size(), 1));
    }

    static void ExpectStarts(const QStringList& lines, const QStringList& starts) {
        ASSERT_EQ(lines.size(), starts.size()) << lines.join(u'|').toStdString();
        for (qsizetype i = 0; i < lines.size(); ++i) {
            EXPECT_TRUE(lines[i].startsWith(starts[i])) << lines[i].toStdString();
            EXPECT_GT(lines[i].size(), starts[i].size()) << "a reason stands behind the name";
        }
    }
};

} // namespace

TEST_F(ExtractionLeftOut, NothingIsListedAfterEverythingWasWritten) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}});
    EXPECT_EQ(LeftOut(Out()), QStringList());
}

TEST_F(ExtractionLeftOut, NamesThatAreRefusedAreListedWithTheReason) {
    Open({{u"..\\x"_s, "evil"}, {u"good"_s, "good"}, {u"nul.txt"_s, "evil"}});
    ExpectStarts(LeftOut(Out()), {u"..\\x: "_s, u"nul.txt: "_s});
    EXPECT_EQ(host_.Messages.back().Text, u"ExtractionComplete"_s) << "the list comes behind it";
}

TEST_F(ExtractionLeftOut, ATargetThatCanNotBeWrittenIsListed) {
    Open({{u"a"_s, "1"}, {u"b\\c"_s, "2"}, {u"d"_s, "3"}});
    Files::MakeFolders(At(u"out\\a"_s));
    Put(u"out\\b"_s, "a file");
    ExpectStarts(LeftOut(Out()), {u"a: "_s, u"b\\c: "_s});
}

TEST_F(ExtractionLeftOut, AFolderThatCanNotBeMadeListsEveryEntry) {
    Open({{u"a"_s, "1"}, {u"b"_s, "2"}});
    ExtractionTarget target = Out();
    target.ExtractFolder = Put(u"file"_s, "x") + u"\\out\\"_s;
    ExpectStarts(LeftOut(target), {u"a: "_s, u"b: "_s});
}

TEST_F(ExtractionLeftOut, TheArchiveItselfAndTheFilesOfNewEntriesAreListed) {
    Open({{u"my.big"_s, "evil"}, {u"b"_s, "2"}});
    ExtractionTarget target = Out();
    target.ExtractFolder = world_.Root() + u'\\';
    EXPECT_EQ(LeftOut(target), QStringList{u"my.big: LeftOutNeeded"_s});
    AddNew(u"n"_s, "precious");
    mBIG::BigEntries[2].SourcePath = Put(u"out\\b"_s, "precious");
    EXPECT_EQ(LeftOut(Out()), QStringList{u"b: LeftOutNeeded"_s});
    EXPECT_EQ(Written(u"b"_s), "precious");
}

TEST_F(ExtractionLeftOut, AnAddedFileThatIsGoneIsListed) {
    AddNew(u"a"_s, "1");
    AddNew(u"b"_s, "2");
    Files::Delete(mBIG::BigEntries[0].SourcePath);
    EXPECT_EQ(LeftOut(Out()), QStringList{u"a: LeftOutGone"_s});
}

TEST_F(ExtractionLeftOut, AnEntryThatEndsBehindTheArchiveIsListedAsCut) {
    // The table of this archive says 5 bytes where 2 are left.
    QByteArray bytes = ArchiveOf({{u"a"_s, "1"}, {u"b"_s, "12345"}});
    mBIG::BigFileName = Put(u"my.big"_s, bytes.chopped(3));
    ASSERT_TRUE(mBIG::ReadBigFile(mBIG::BigFileName));
    EXPECT_EQ(LeftOut(Out()), QStringList{u"b: LeftOutCut"_s});
    EXPECT_EQ(Written(u"b"_s), QByteArray("12\0\0\0", 5)) << "as long as it is told to be";
}

TEST_F(ExtractionLeftOut, WhatAnEntryOfNoBytesKeptBackIsExtractedWhenThatIsWanted) {
    Open({{u"a"_s, "1"}, {u"e"_s, ""}, {u"f"_s, "3"}, {u"g"_s, ""}, {u"h"_s, "5"}});
    host_.Answers = {Host::Answer::Yes};
    EXPECT_EQ(LeftOut(Out()), QStringList()) << "an entry of no bytes is an empty file, and no loss";
    EXPECT_EQ(MessageTexts(), (QStringList{u"ExtractionComplete"_s, u"ExtractBehindEmpty"_s}));
    EXPECT_EQ(Written(u"f"_s), "3");
    EXPECT_TRUE(IsThere(u"g"_s));
    EXPECT_EQ(Written(u"h"_s), "5");
    EXPECT_FALSE(host_.ProgressShown);
}

TEST_F(ExtractionLeftOut, WhatAnEntryOfNoBytesKeptBackStaysAsToldElse) {
    Open({{u"e"_s, ""}, {u"f"_s, "3"}});
    host_.Answers = {Host::Answer::No};
    EXPECT_EQ(LeftOut(Out()), QStringList()) << "the question has told of it";
    EXPECT_FALSE(IsThere(u"f"_s));
}

TEST_F(ExtractionLeftOut, WhatIsDraggedOutTellsNothing) {
    Open({{u"nul.txt"_s, "evil"}, {u"e"_s, ""}, {u"f"_s, "3"}});
    DoExtract(All(), Out(), false);
    EXPECT_TRUE(host_.Messages.empty());
    EXPECT_TRUE(host_.Listed.isEmpty());
}

TEST_F(ExtractionLeftOut, ACancelledRunListsWhatHadFailedBefore) {
    Open({{u"nul.txt"_s, "evil"}, {u"b"_s, "2"}});
    Put(u"out\\b"_s, "old");
    host_.Answers = {Host::Answer::Cancel};
    ExpectStarts(LeftOut(Out()), {u"nul.txt: "_s});
    EXPECT_EQ(host_.Messages.back().Text, u"ExtractionCanceled"_s);
}
