// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/Archives.h"

#include "platform/Files.h"

using namespace Qt::StringLiterals;
using mBIG::BigEntries;
using mBIG::ReadBigFile;

namespace {

class Reader : public ArchiveTest {
protected:
    bool Reads(const QByteArray& bytes) { return ReadBigFile(Put(u"in.big"_s, bytes)); }
};

} // namespace

TEST_F(Reader, ReadsTheDirectoryOfAVariantZeroArchive) {
    const QByteArray archive = Bytes("BIGF\x3A\0\0\0\0\0\0\x02\0\0\0\x30"
                                     "\0\0\0\x30\0\0\0\x05"
                                     "a.ini\0"
                                     "\0\0\0\x38\0\0\0\x02"
                                     "b\0"
                                     "L225\0\0\0\0hello\0\0\0hi");
    mBIG::BigVersion = 3;
    ASSERT_TRUE(Reads(archive));
    EXPECT_EQ(mBIG::BigVersion, 0);
    ASSERT_EQ(BigEntries.size(), 2U);
    EXPECT_EQ(BigEntries[0].Name, u"a.ini"_s);
    EXPECT_EQ(BigEntries[0].Offset, 48);
    EXPECT_EQ(BigEntries[0].Size, 5);
    EXPECT_FALSE(BigEntries[0].IsNew);
    EXPECT_FALSE(BigEntries[0].Deleted);
    EXPECT_EQ(BigEntries[1].Name, u"b"_s);
    EXPECT_EQ(BigEntries[1].Offset, 56);
    EXPECT_EQ(BigEntries[1].Size, 2);
    EXPECT_EQ(mBIG::HighestIndex(), 1);
}

TEST_F(Reader, RefusesACountOfZero) {
    EXPECT_FALSE(Reads(HeaderOf("BIGF", 0, 24)));
}

TEST_F(Reader, RefusesAnotherMagicAndAnEmptyFile) {
    EXPECT_FALSE(Reads(HeaderOf("BIG5", 1, 34) + Record(34, 1, "a") + "L225"));
    EXPECT_FALSE(Reads(HeaderOf("bigf", 1, 34) + Record(34, 1, "a") + "L225"));
    EXPECT_FALSE(Reads({}));
}

TEST_F(Reader, RefusesAFirstOffsetOfZeroAndAcceptsALaterOne) {
    EXPECT_FALSE(Reads(HeaderOf("BIGF", 2, 44) + Record(0, 1, "a") + Record(45, 1, "b") + "L225"));
    ASSERT_TRUE(Reads(HeaderOf("BIGF", 2, 44) + Record(44, 1, "a") + Record(0, 1, "b") + "L225"));
    EXPECT_EQ(BigEntries[1].Offset, 0);
    EXPECT_EQ(BigEntries[1].Name, u"b"_s);
}

TEST_F(Reader, ARefusalBehindTheCountHasReplacedTheTable) {
    AddNew(u"old"_s, "x");
    mBIG::BigFileName = u"before"_s;
    EXPECT_FALSE(Reads(HeaderOf("BIGF", 2, 44) + Record(0, 1, "a")));
    ASSERT_EQ(BigEntries.size(), 2U);
    EXPECT_EQ(BigEntries[0].Name, QString());
    EXPECT_EQ(mBIG::BigFileName, u"before"_s);
}

TEST_F(Reader, ASizeOfZeroReadsAsZeroAndTheReadGoesOn) {
    ASSERT_TRUE(Reads(HeaderOf("BIGF", 2, 44) + Record(44, 0, "a") + Record(45, 7, "b") + "L231"));
    EXPECT_EQ(BigEntries[0].Size, 0);
    EXPECT_EQ(BigEntries[1].Size, 7);
    EXPECT_EQ(mBIG::BigVersion, 1);
}

TEST_F(Reader, ReadsACountOf32768AndRefusesOneMore) {
    QByteArray records;
    for (int i = 0; i < 32769; ++i)
        records += Record(1, 1, "n");
    ASSERT_TRUE(Reads(HeaderOf("BIGF", 32768, 0) + records + "L225"));
    EXPECT_EQ(BigEntries.size(), 32768U);
    EXPECT_EQ(BigEntries.back().Name, u"n"_s);
    EXPECT_FALSE(Reads(HeaderOf("BIGF", 32769, 0) + records + "L225"));
}

TEST_F(Reader, TheMarkDecidesTheVariantAndNotTheMagic) {
    ASSERT_TRUE(Reads(HeaderOf("BIG4", 2, 44) + Record(44, 1, "a") + Record(45, 1, "b") + "L225"));
    EXPECT_EQ(mBIG::BigVersion, 0);
    ASSERT_TRUE(Reads(HeaderOf("BIGF", 1, 34) + Record(34, 1, "a") + "L219"));
    EXPECT_EQ(mBIG::BigVersion, 2);
    ASSERT_TRUE(Reads(HeaderOf("BIGF", 1, 34) + Record(34, 1, "a") + "L253\x15\x05"));
    EXPECT_EQ(mBIG::BigVersion, 3);
}

TEST_F(Reader, AnUnknownMarkReadsAndKeepsTheEarlierVariant) {
    mBIG::BigVersion = 2;
    EXPECT_TRUE(Reads(HeaderOf("BIGF", 1, 34) + Record(34, 1, "a") + "L999"));
    EXPECT_EQ(mBIG::BigVersion, 2);
}

TEST_F(Reader, AnOffsetOf0x80000000OrMoreLosesItsTopDigit) {
    ASSERT_TRUE(Reads(HeaderOf("BIGF", 2, 44) + Record(44, 0x90000003, "a") + Record(0xF2345678, 1, "b") + "L225"));
    EXPECT_EQ(BigEntries[0].Size, 3);
    EXPECT_EQ(BigEntries[1].Offset, 0x02345678);
}

TEST_F(Reader, ACountOf0x80000000OrMoreLosesItsTopDigit) {
    ASSERT_TRUE(Reads(HeaderOf("BIGF", 0x80000001, 34) + Record(34, 1, "a") + "L225"));
    EXPECT_EQ(BigEntries.size(), 1U);
    EXPECT_FALSE(Reads(HeaderOf("BIGF", 0x80000000, 34) + Record(34, 1, "a") + "L225"));
    EXPECT_FALSE(Reads(HeaderOf("BIGF", 0x7FFFFFFF, 34) + Record(34, 1, "a") + "L225"));
}

TEST_F(Reader, NamesAreInTheAnsiCodePageAndMayBeEmpty) {
    ASSERT_TRUE(Reads(HeaderOf("BIGF", 2, 44) + Record(44, 1, "") + Record(45, 1, "Carte d'\xE9t\xE9/x") + "L225"));
    EXPECT_EQ(BigEntries[0].Name, QString());
    EXPECT_EQ(BigEntries[1].Name, u"Carte d'été/x"_s);
}

TEST_F(Reader, AFileCutOffAtAnyByteIsRefusedOrReadsWithBlankRecords) {
    const QByteArray whole =
        HeaderOf("BIGF", 2, 44) + Record(44, 1, "first") + Record(45, 1, "second") + Bytes("L225\0\0\0\0xy");
    for (qsizetype length = 0; length < whole.size(); ++length) {
        // The count needs its last byte, the first offset too; all else reads as zeros behind the end.
        EXPECT_EQ(Reads(whole.first(length)), length >= 20) << length;
        if (length < 20)
            continue;
        ASSERT_EQ(BigEntries.size(), 2U);
        EXPECT_EQ(BigEntries[1].Name,
                  length < 46
                      ? QString::fromLatin1(whole.mid(38, qMax(0LL, length - 38)).first(qBound(0LL, length - 38, 6LL)))
                      : u"second"_s)
            << length;
    }
}

TEST_F(Reader, ANameWithoutAnEndRunsToTheEndOfTheFile) {
    ASSERT_TRUE(Reads(HeaderOf("BIGF", 3, 44) + Record(44, 9, "").chopped(1) + QByteArray(600'000, 'n')));
    EXPECT_EQ(BigEntries[0].Name.size(), 600'000);
    EXPECT_EQ(BigEntries[1].Name, QString());
    EXPECT_EQ(BigEntries[2].Size, 0);
}

TEST_F(Reader, AFolderAndAMissingFileAreRefusedAndNothingIsMade) {
    Put(u"folder\\x"_s, "x");
    EXPECT_FALSE(ReadBigFile(At(u"folder"_s)));
    EXPECT_FALSE(ReadBigFile(At(u"missing.big"_s)));
    EXPECT_FALSE(Files::FileExists(At(u"missing.big"_s)));
}

TEST_F(Reader, FindsTheFirstEntryWithoutRegardToCaseAndDeletedOnesToo) {
    AddNew(u"Data\\A.ini"_s, "1");
    AddNew(u"data\\a.INI"_s, "2");
    BigEntries[0].Deleted = true;
    EXPECT_EQ(mBIG::FindEntry(u"DATA\\a.ini"_s), 0);
    EXPECT_EQ(mBIG::FindEntry(u"a.ini"_s), -1);
}

TEST_F(Reader, TurnsNumbersAndTextsIntoBytes) {
    EXPECT_EQ(mBIG::LongToBytes(0x01020304), Bytes("\x01\x02\x03\x04"));
    EXPECT_EQ(mBIG::LongToBytes(-2), Bytes("\xFF\xFF\xFF\xFE"));
    EXPECT_EQ(mBIG::StringToBytes(u"é€\u4E00"_s), Bytes("\xE9\x80?"));
}

TEST_F(Reader, RandomChangesNeverCrash) {
    const QByteArray whole =
        HeaderOf("BIGF", 3, 54) + Record(54, 4, "first") + Record(58, 4, "second") + Record(62, 4, "third") + "L225";
    std::uint32_t state = 12345;
    const auto next = [&state] { return state = state * 1664525U + 1013904223U; };
    for (int round = 0; round < 2000; ++round) {
        QByteArray changed = whole;
        for (int change = 0; change < 3; ++change)
            changed[static_cast<qsizetype>((next() >> 8U) % static_cast<quint32>(changed.size()))] =
                static_cast<char>(next() >> 24U);
        Reads(changed);
        EXPECT_LE(BigEntries.size(), 32768U);
    }
}
