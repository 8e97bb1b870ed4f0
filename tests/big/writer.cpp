// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/Archives.h"

#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;
using mBIG::BigEntries;
using mBIG::WriteBigFile;

namespace {

class Writer : public ArchiveTest {
protected:
    /// Makes "open.big" with these bytes the open archive and reads it.
    void Open(const QByteArray& bytes) {
        mBIG::BigFileName = Put(u"open.big"_s, bytes);
        ASSERT_TRUE(mBIG::ReadBigFile(mBIG::BigFileName));
    }
};

/// Two entries at 48 and 56, and bytes that no entry owns between them.
QByteArray TwoEntries() {
    return HeaderOf("BIGF", 2, 48) + Record(48, 5, "a.ini") + Record(56, 2, "b") + Bytes("L225gap!hello???hi");
}

} // namespace

TEST_F(Writer, VariantZeroByteForByte) {
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"b"_s, "hi");
    EXPECT_EQ(SavedAs(0), Bytes("BIGF\x3A\0\0\0\0\0\0\x02\0\0\0\x30"
                                "\0\0\0\x30\0\0\0\x05"
                                "a.ini\0"
                                "\0\0\0\x38\0\0\0\x02"
                                "b\0"
                                "L225\0\0\0\0hello\0\0\0hi"));
}

TEST_F(Writer, VariantOneHasItsOwnMark) {
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"b"_s, "hi");
    const QByteArray saved = SavedAs(1);
    EXPECT_EQ(saved.first(4), "BIGF");
    EXPECT_EQ(saved.sliced(40), Bytes("L231\0\0\0\0hello\0\0\0hi"));
}

TEST_F(Writer, VariantTwoPutsTheDataOneByteBeforeItsOffsets) {
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"b"_s, "hi");
    EXPECT_EQ(SavedAs(2), Bytes("BIG4\x36\0\0\0\0\0\0\x02\0\0\0\x30"
                                "\0\0\0\x30\0\0\0\x05"
                                "a.ini\0"
                                "\0\0\0\x35\0\0\0\x02"
                                "b\0"
                                "L219\0\0\0hellohi"));
}

TEST_F(Writer, VariantThreeRoundsTheFirstFileFieldAndHasALongerMark) {
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"b"_s, "hi");
    EXPECT_EQ(SavedAs(3), Bytes("BIG4\x3A\0\0\0\0\0\0\x02\0\0\0\x2F"
                                "\0\0\0\x30\0\0\0\x05"
                                "a.ini\0"
                                "\0\0\0\x38\0\0\0\x02"
                                "b\0"
                                "L253\x15\x05\0\0hello\0\0\0hi"));
}

TEST_F(Writer, AlignedVariantsStartFourBytesEarlyWhenTheHeaderLeavesARemainderOfOne) {
    AddNew(u"ab"_s, "xyz");
    AddNew(u"c"_s, "w");
    // 24 + 11 + 10 = 45: the directory says 48 and 52, the bytes lie at 44 and 48.
    EXPECT_EQ(SavedAs(0), Bytes("BIGF\x31\0\0\0\0\0\0\x02\0\0\0\x2D"
                                "\0\0\0\x30\0\0\0\x03"
                                "ab\0"
                                "\0\0\0\x34\0\0\0\x01"
                                "c\0"
                                "L225\0\0\0xyz\0w"));
}

TEST_F(Writer, AlignedVariantsAgreeForTheOtherRemainders) {
    AddNew(u"abc"_s, "xyz");
    AddNew(u"c"_s, "w");
    // 24 + 12 + 10 = 46.
    EXPECT_EQ(SavedAs(0).sliced(38), Bytes("L225\0\0\0\0\0\0xyz\0w"));
    BigEntries.clear();
    AddNew(u"abcd"_s, "xyz");
    AddNew(u"c"_s, "w");
    // 24 + 13 + 10 = 47.
    EXPECT_EQ(SavedAs(0).sliced(39), Bytes("L225\0\0\0\0\0xyz\0w"));
}

TEST_F(Writer, EveryAlignedVariantPutsFieldOffsetAndBytesByItsOwnRule) {
    struct Expected {
        qint32 Version;
        qsizetype NameLength; ///< of the first entry: 24 + 9 + this + 10 leaves another remainder each time
        int Field;
        int Data;
    };

    // The directory says 48 for all of them. Variants 0 and 1 slip by four bytes behind a header of 45.
    for (const Expected& expected : std::vector<Expected>{{0, 2, 45, 44},
                                                          {0, 3, 46, 48},
                                                          {0, 4, 47, 48},
                                                          {0, 5, 48, 48},
                                                          {1, 2, 45, 44},
                                                          {1, 3, 46, 48},
                                                          {1, 4, 47, 48},
                                                          {1, 5, 48, 48},
                                                          {3, 2, 47, 48},
                                                          {3, 3, 47, 48},
                                                          {3, 4, 47, 48},
                                                          {3, 5, 47, 48}}) {
        BigEntries.clear();
        AddNew(QString(expected.NameLength, u'n'), "xyz");
        AddNew(u"c"_s, "w");
        const QByteArray saved = SavedAs(expected.Version);
        const auto at = [&](qsizetype offset) { return static_cast<int>(static_cast<uchar>(saved[offset + 3])); };
        const std::string which =
            "variant " + std::to_string(expected.Version) + ", name of " + std::to_string(expected.NameLength);
        EXPECT_EQ(at(12), expected.Field) << which;
        EXPECT_EQ(at(16), 48) << which;
        EXPECT_EQ(saved.indexOf("xyz"), expected.Data) << which;
        EXPECT_EQ(saved.indexOf('w', expected.Data), expected.Data + 4) << which;
        EXPECT_EQ(saved.size(), expected.Data + 5) << which;
    }
}

TEST_F(Writer, EntriesOfTheOpenArchiveAreCopiedAndGapsAreZeros) {
    Open(TwoEntries());
    const QByteArray saved = SavedAs(0);
    EXPECT_EQ(saved.sliced(40), Bytes("L225\0\0\0\0hello\0\0\0hi"));
    EXPECT_EQ(World::ReadFile(mBIG::BigFileName), TwoEntries()) << "another target leaves the open archive alone";
}

TEST_F(Writer, TheMarkWinsOverTheMagicThatWasRead) {
    Open("BIG4" + TwoEntries().sliced(4));
    EXPECT_EQ(mBIG::BigVersion, 0);
    ASSERT_TRUE(WriteBigFile(At(u"out.big"_s)));
    EXPECT_EQ(World::ReadFile(At(u"out.big"_s)).first(4), "BIGF");
}

TEST_F(Writer, DeletedEntriesAreLeftOut) {
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"gone"_s, "gone");
    AddNew(u"b"_s, "hi");
    BigEntries[1].Deleted = true;
    const QByteArray saved = SavedAs(0);
    EXPECT_EQ(saved.sliced(8, 8), Bytes("\0\0\0\x02\0\0\0\x30"));
    EXPECT_EQ(saved.sliced(40), Bytes("L225\0\0\0\0hello\0\0\0hi"));
}

TEST_F(Writer, TheSizeOfANewEntryIsItsFilesAndNotTheRecords) {
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"b"_s, "hi");
    BigEntries[0].Size = 1;
    EXPECT_EQ(SavedAs(0).sliced(16, 8), Bytes("\0\0\0\x30\0\0\0\x05"));
}

TEST_F(Writer, ATableOfOneRecordWritesNothingAndLeavesTheProgressWindow) {
    AddNew(u"only"_s, "x");
    EXPECT_FALSE(WriteBigFile(At(u"out.big"_s)));
    EXPECT_FALSE(Files::FileExists(At(u"out.big"_s)));
    EXPECT_TRUE(host_.ProgressShown);
    EXPECT_TRUE(host_.Messages.empty());
    EXPECT_EQ(FailureOf(At(u"out.big"_s)), QString());
    BigEntries.clear();
    EXPECT_FALSE(WriteBigFile(At(u"out.big"_s)));
}

TEST_F(Writer, TheBlankRecordOfAFreshArchiveIsWrittenLikeAnyOther) {
    BigEntries.push_back({});
    AddNew(u"b"_s, "hi");
    // 24 + 9 + 10 = 43: both records say 44.
    EXPECT_EQ(SavedAs(0), Bytes("BIGF\x2E\0\0\0\0\0\0\x02\0\0\0\x2B"
                                "\0\0\0\x2C\0\0\0\0\0"
                                "\0\0\0\x2C\0\0\0\x02"
                                "b\0"
                                "L225\0\0\0\0\0hi"));
}

TEST_F(Writer, AnEntryOfSizeZeroWritesThePreviousOnesBytesRefreshedFromItsOwnOffset) {
    // "zero" points at the last two bytes of the file: "hi".
    Open(HeaderOf("BIGF", 3, 61) + Record(64, 5, "a.ini") + Record(72, 0, "zero") + Record(72, 2, "b") +
         Bytes("L225\0\0\0\0\0\0\0hello\0\0\0hi"));
    const QByteArray saved = SavedAs(0);
    // The header ends at 53 + 4; data begins at 60, four bytes before the directory's 64.
    EXPECT_EQ(saved.sliced(53), Bytes("L225\0\0\0hello\0\0\0hillo\0\0\0hi"));
    EXPECT_EQ(saved.sliced(30, 8), Bytes("\0\0\0\x48\0\0\0\0"));
    EXPECT_EQ(saved.sliced(43, 8), Bytes("\0\0\0\x48\0\0\0\x02"));
}

TEST_F(Writer, ANewEmptyFileWritesThePreviousOnesBytesToo) {
    AddNew(u"a"_s, "abc");
    AddNew(u"e"_s, "");
    // 24 + 10 + 10 = 44.
    EXPECT_EQ(SavedAs(0).sliced(36), Bytes("L225\0\0\0\0abc\0abc"));
}

TEST_F(Writer, AZeroSizeEntryAtTheStartWritesNothing) {
    AddNew(u"e"_s, "");
    AddNew(u"a"_s, "abc");
    EXPECT_EQ(SavedAs(0).sliced(36), Bytes("L225\0\0\0\0abc"));
}

TEST_F(Writer, AMissingSourceWritesNothingAndTheSaveGoesOn) {
    AddNew(u"a"_s, "abc");
    AddNew(u"m"_s, "gone");
    AddNew(u"b"_s, "hi");
    Files::DeleteForced(BigEntries[1].SourcePath);
    // 24 + 30 = 54.
    EXPECT_EQ(SavedAs(0).sliced(46), Bytes("L225\0\0\0\0\0\0abc\0hi"));
}

TEST_F(Writer, BytesBehindTheEndOfTheOldArchiveAreZeros) {
    Open(HeaderOf("BIGF", 2, 44) + Record(44, 2, "a") + Record(46, 6, "b") + Bytes("L225\0\0\0\0xyEND"));
    EXPECT_EQ(SavedAs(2).sliced(36), Bytes("L219\0\0\0xyEND\0\0\0"));
}

// As many bytes lie between the two in the file as will lie between them, but the file ends before the second one.
TEST_F(Writer, AnEntryOfSizeZeroBehindTheEndOfTheOldArchiveEndsNoSave) {
    Open(HeaderOf("BIGF", 2, 40) + Record(40, 2, "a") + Record(44, 0, "b") + Bytes("L225hi"));
    EXPECT_EQ(SavedAs(0), Bytes("BIGF\x32\0\0\0\0\0\0\x02\0\0\0\x2C"
                                "\0\0\0\x2C\0\0\0\x02"
                                "a\0"
                                "\0\0\0\x30\0\0\0\0"
                                "b\0"
                                "L225\0\0\0\0hi\0\0hi"));
}

TEST_F(Writer, SavingOverTheOpenArchiveLeavesNoCopyBehind) {
    Open(TwoEntries());
    AddNew(u"new"_s, "123");
    ASSERT_TRUE(WriteBigFile(mBIG::BigFileName));
    // 24 + 14 + 10 + 12 = 60.
    EXPECT_EQ(World::ReadFile(mBIG::BigFileName).sliced(52), Bytes("L225\0\0\0\0hello\0\0\0hi\0\0"
                                                                   "123"));
    EXPECT_FALSE(Files::FileExists(mBIG::BigFileName + u".tmp"_s));
    EXPECT_FALSE(BigEntries[2].IsNew);
}

TEST_F(Writer, TheOpenArchiveUnderAnotherSpellingIsStillTheSource) {
    Open(TwoEntries());
    ASSERT_TRUE(WriteBigFile(At(u"OPEN.big"_s)));
    EXPECT_EQ(World::ReadFile(mBIG::BigFileName).sliced(48), Bytes("hello\0\0\0hi"));
}

TEST_F(Writer, SavingAFreshArchiveUnderItsOwnNameMakesIt) {
    mBIG::BigFileName = At(u"fresh.big"_s);
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"b"_s, "hi");
    ASSERT_TRUE(WriteBigFile(mBIG::BigFileName));
    EXPECT_EQ(World::ReadFile(mBIG::BigFileName).sliced(48), Bytes("hello\0\0\0hi"));
    EXPECT_FALSE(Files::FileExists(mBIG::BigFileName + u".tmp"_s));
}

TEST_F(Writer, AnotherTargetIsReplacedWhole) {
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"b"_s, "hi");
    Put(u"out.big"_s, QByteArray(5000, 'x'));
    EXPECT_EQ(SavedAs(0).size(), 58);
}

TEST_F(Writer, AVanishedPlaceFailsWithAReasonAndLosesNothing) {
    Open(TwoEntries());
    AddNew(u"new"_s, "123");
    EXPECT_FALSE(WriteBigFile(At(u"no such folder\\out.big"_s)));
    const QString failure = FailureOf(At(u"no such folder\\out.big"_s));
    EXPECT_TRUE(failure.contains(u"no such folder/out.big: "_s) || failure.contains(u"no such folder\\out.big: "_s))
        << failure.toStdString();
    EXPECT_TRUE(BigEntries[2].IsNew);
    EXPECT_EQ(World::ReadFile(mBIG::BigFileName), TwoEntries());
}

TEST_F(Writer, AFolderAtTheTargetFailsWithAReason) {
    Open(TwoEntries());
    Put(u"folder.big\\x"_s, "x");
    EXPECT_FALSE(WriteBigFile(At(u"folder.big"_s)));
    EXPECT_TRUE(FailureOf(At(u"folder.big"_s)).contains(u"folder.big"_s));
    EXPECT_EQ(World::ReadFile(At(u"folder.big\\x"_s)), "x");
}

TEST_F(Writer, MoreRecordsThanAnArchiveCanHoldAreNotSaved) {
    BigEntries.assign(32769, {u"n"_s, 1, 1, false, false, {}});
    EXPECT_FALSE(WriteBigFile(At(u"out.big"_s)));
    EXPECT_TRUE(FailureOf(At(u"out.big"_s)).endsWith(u"out.big: more than 32768 entries"_s));
    EXPECT_FALSE(Files::FileExists(At(u"out.big"_s)));
}

TEST_F(Writer, AFileThatDoesNotFitIntoTheFormatEndsTheSaveWithAReason) {
    Open(TwoEntries());
    AddNew(u"huge"_s, "x");
    File::Open(BigEntries[2].SourcePath, File::Access::ReadWrite).SetLength(0x80000000LL);
    EXPECT_FALSE(WriteBigFile(mBIG::BigFileName));
    EXPECT_TRUE(FailureOf(mBIG::BigFileName).contains(u"2 GiB"_s));
    EXPECT_EQ(World::ReadFile(mBIG::BigFileName), TwoEntries());
}

TEST_F(Writer, ShowsTheFileAndTheEntriesInItsProgressWindow) {
    world_.UseLanguage("[LNG]\r\nCreatingFile=Making\r\nWritingHeader=Header...\r\nWritingFiles=Files:\r\n");
    world_.Start();
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"b"_s, "hi");
    AddNew(u"c"_s, "ho");
    SavedAs(0);
    EXPECT_EQ(host_.ProgressTexts, (QStringList{u"Making 'out.big'\r\nHeader..."_s, u"Files:\r\na.ini"_s,
                                                u"Files:\r\nb"_s, u"Files:\r\nc"_s}));
    EXPECT_EQ(host_.ProgressValues, (std::vector<int>{0, 50, 100}));
    EXPECT_FALSE(host_.ProgressShown);
    EXPECT_GE(host_.Yields, 9);
}

TEST_F(Writer, ProgressBeyondAHundredAndOfASingleKeptEntryIsNotShown) {
    AddNew(u"a"_s, "1");
    AddNew(u"gone"_s, "2");
    AddNew(u"b"_s, "3");
    AddNew(u"c"_s, "4");
    BigEntries[1].Deleted = true;
    SavedAs(0);
    EXPECT_EQ(host_.ProgressValues, (std::vector<int>{0, 100}));
    host_.ProgressValues.clear();
    BigEntries[0].IsNew = true; // no archive was loaded that an old one's bytes could come from
    BigEntries[2].Deleted = BigEntries[3].Deleted = true;
    SavedAs(0);
    EXPECT_TRUE(host_.ProgressValues.empty());
}

TEST_F(Writer, ASuccessfulSaveEmptiesTheTemporaryFolder) {
    Files::MakeFolders(world_.ProgramFolder() + u"\\Temp"_s);
    Put(u"program\\Temp\\edited.ini"_s, "x");
    AddNew(u"a"_s, "1");
    AddNew(u"b"_s, "2");
    SavedAs(0);
    EXPECT_TRUE(Files::ListFolder(world_.ProgramFolder() + u"\\Temp\\*.*"_s).isEmpty());
}

TEST_F(Writer, LargeEntriesPassThroughWhole) {
    QByteArray large(1'300'001, '\0');
    for (qsizetype i = 0; i < large.size(); ++i)
        large[i] = static_cast<char>(i * 31 + i / 257);
    AddNew(u"first"_s, large);
    AddNew(u"second"_s, large.first(700'003));
    const QByteArray saved = SavedAs(2);
    // 24 + 14 + 15 = 53.
    EXPECT_EQ(saved.sliced(52, large.size()), large);
    EXPECT_EQ(saved.sliced(52 + large.size()), large.first(700'003));
}

TEST_F(Writer, SizesThatLieDoNotTakeMemoryOrPassTheEndOfTheFormat) {
    Open(HeaderOf("BIGF", 3, 60) + Record(60, 0x7FFFFFFF, "a") + Record(46, 0x0FFFFFF0, "b") + Record(46, 1, "c") +
         "L225");
    ASSERT_TRUE(WriteBigFile(At(u"out.big"_s)));
    EXPECT_LE(Files::FileLength(At(u"out.big"_s)), 0x7FFFFFFF);
}

TEST_F(Writer, ALengthThatWasJustLookedAtIsHeldAgainstTheFileThatIsRead) {
    AddNew(u"a.ini"_s, "hello");
    AddNew(u"b"_s, "hi");
    BigEntries[0].SourceLength = 5;
    const QString target = Put(u"target.big"_s, "old");
    for (const qint64 length : {0, 1, 3}) {
        BigEntries[1].SourceLength = length;
        EXPECT_FALSE(WriteBigFile(target)) << length;
        EXPECT_EQ(World::ReadFile(target), "old");
    }
    BigEntries[1].SourceLength = 2;
    EXPECT_EQ(SavedAs(0).last(17), Bytes("L225\0\0\0\0hello\0\0\0hi").last(17));
}
