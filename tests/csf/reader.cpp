// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/csf/Tables.h"

#include "platform/NumberedFiles.h"

#include <new>

using namespace Qt::StringLiterals;

namespace {

class CsfReader : public TableTest {
protected:
    using Table = std::vector<CsfString>;
};

QByteArray ManyStrings(int count) {
    return CsfHeader(static_cast<quint32>(count)) + LabelRecord("a") + StringRecord("x").repeated(count);
}

} // namespace

TEST_F(CsfReader, ReadsAFileWrittenOutByHand) {
    EXPECT_EQ(Read(Bytes(" FSC\3\0\0\0\1\0\0\0\1\0\0\0\0\0\0\0\3\0\0\0"
                         " LBL\1\0\0\0\6\0\0\0GUI:OK"
                         " RTS\3\0\0\0\xBD\xFF\x16\xFF\xF5\xFF")),
              3);
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"B\u00E9\n"_s, u"GUI:OK"_s}}));
    EXPECT_FALSE(NumberedFiles::IsOpen(mCSF::FileNumber));
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfReader, KeepsTheFilesOrder) {
    Read(CsfHeader(2) + EntryRecords("b", "1") + EntryRecords("a", "2"));
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"1"_s, u"b"_s}, {u"2"_s, u"a"_s}}));
}

TEST_F(CsfReader, TakesAnyMixOfCasesInTheMarks) {
    EXPECT_EQ(Read(" FsC" + CsfHeader(1, 1).sliced(4) + Bytes(" lBl\1\0\0\0\1\0\0\0n rtS\1\0\0\0\x9E\xFF")), 1);
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"a"_s, u"n"_s}}));
}

TEST_F(CsfReader, RefusesAnotherFileMark) {
    ExpectRefused("CSF " + CsfHeader(1).sliced(4) + EntryRecords("a", "b"));
    ExpectRefused("FSC  " + CsfHeader(1).sliced(5) + EntryRecords("a", "b"));
}

TEST_F(CsfReader, RefusesAMissingFileAndOneWithoutBytes) {
    ExpectRefused({});
    EXPECT_EQ(mCSF::ReadCSF(At(u"missing.csf"_s)), 65536);
}

TEST_F(CsfReader, RefusesAHeaderWithoutRecords) {
    ASSERT_EQ(CsfHeader(0).size(), 24);
    ExpectRefused(CsfHeader(0));
}

TEST_F(CsfReader, RefusesLabelsWithoutAnyString) {
    ExpectRefused(CsfHeader(2) + LabelRecord("a") + LabelRecord("b"));
}

TEST_F(CsfReader, AnEmptyFileAndOneTooShortForItsCountsAreRefused) {
    for (int length = 0; length < 24; ++length)
        ExpectRefused(CsfHeader(1).first(length));
}

TEST_F(CsfReader, ALastRecordThatIsCutShortRefusesTheWholeFile) {
    const QByteArray first = CsfHeader(2) + EntryRecords("a", "first");
    const QByteArray label = LabelRecord("second");
    const QByteArray file = first + label + StringRecord("text");
    for (qsizetype length = 0; length < file.size(); ++length) {
        if (length == first.size() || length == first.size() + label.size())
            EXPECT_EQ(Read(file.first(length)), 0) << length;
        else
            ExpectRefused(file.first(length));
    }
}

TEST_F(CsfReader, ARefusedReadLeavesTheTableAtItsReadingSize) {
    ExpectRefused(CsfHeader(2) + EntryRecords("a", "first") + LabelRecord("cut").chopped(1));
    ASSERT_EQ(mCSF::CsfStrings.size(), 65537U);
    EXPECT_EQ(mCSF::CsfStrings[0], (CsfString{u"first"_s, u"a"_s}));
    EXPECT_EQ(mCSF::CsfStrings[1], CsfString{});
}

TEST_F(CsfReader, ReadsAsManyStringsAsTheCounterHolds) {
    EXPECT_EQ(Read(ManyStrings(32767)), 0);
    EXPECT_EQ(mCSF::CsfStrings.size(), 32767U);
    EXPECT_EQ(mCSF::CsfStrings.back(), (CsfString{u"x"_s, u"a"_s}));
}

TEST_F(CsfReader, OneStringMoreOverflowsTheCounter) {
    ExpectRefused(ManyStrings(32768));
    EXPECT_EQ(mCSF::CsfStrings[32767], (CsfString{u"x"_s, u"a"_s})) << "it was stored before the counter failed";
}

TEST_F(CsfReader, VersionCountsAndReservedFieldMayHoldAnything) {
    const QByteArray junk = Bytes("\xDE\xAD\xBE\xEF");
    EXPECT_EQ(Read(" FSC" + junk + Little(0) + junk + junk + Bytes("\2\7\7\7") + EntryRecords("a", "b")), 2);
    EXPECT_EQ(mCSF::CsfStrings.size(), 1U);
    EXPECT_EQ(Read(" FSC" + junk + Little(0xFFFFFFFF) + junk + junk + Little(0) + EntryRecords("a", "b")), 0);
}

TEST_F(CsfReader, ALabelWithAStringCountOfZeroStillGivesItsEntry) {
    Read(CsfHeader(1) + " LBL" + Little(0) + Little(1) + "a" + StringRecord("b"));
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"b"_s, u"a"_s}}));
}

TEST_F(CsfReader, ANameStaysForEveryStringUntilTheNextLabel) {
    Read(CsfHeader(1) + StringRecord("0") + LabelRecord("a") + StringRecord("1") + StringRecord("2") +
         LabelRecord("lost") + LabelRecord("b") + StringRecord("3") + LabelRecord("c"));
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"0"_s, {}}, {u"1"_s, u"a"_s}, {u"2"_s, u"a"_s}, {u"3"_s, u"b"_s}}));
}

TEST_F(CsfReader, EmptyNamesAndValuesAreRead) {
    Read(CsfHeader(2) + EntryRecords("", "x") + EntryRecords("y", ""));
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"x"_s, {}}, {{}, u"y"_s}}));
}

TEST_F(CsfReader, OnlyTheLowByteOfACharacterIsKept) {
    Read(CsfHeader(1) + LabelRecord("a") + Bytes(" RTS\2\0\0\0\xBE\x00\xBD\xAB"));
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"AB"_s, u"a"_s}}));
}

TEST_F(CsfReader, UnknownDataIsPassedInStepsOfThree) {
    const QByteArray entry = EntryRecords("a", "b");
    Read(CsfHeader(1) + "123456789" + entry);
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"b"_s, u"a"_s}}));
    Read(CsfHeader(1) + "123" + entry);
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"b"_s, u"a"_s}}));
}

TEST_F(CsfReader, ARecordThatIsNoMultipleOfThreeAheadIsPassedOver) {
    // The label lies 4 bytes ahead, the string 4 + 13 bytes, 18 with a name of two letters: only then is it met.
    Read(CsfHeader(1) + "1234" + EntryRecords("ab", "b") + EntryRecords("c", "d"));
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"b"_s, {}}, {u"d"_s, u"c"_s}}));
}

TEST_F(CsfReader, AStringWithExtraDataIsUnknownAndItsLabelIsLost) {
    // The mark, 4 bytes of length, 2 of value, 4 of extra length and 4 of extra data: 18 bytes, so the next record is
    // met.
    const QByteArray wide = QByteArray("WRTS") + Little(1) + Bytes("\x9E\xFF") + Little(4) + "Data";
    ASSERT_EQ(wide.size(), 18);
    Read(CsfHeader(2) + LabelRecord("lost") + wide + EntryRecords("a", "b"));
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"b"_s, u"a"_s}}));
}

TEST_F(CsfReader, UnknownDataAtTheEndRunsOverIt) {
    for (int length = 1; length < 12; ++length)
        ExpectRefused(CsfHeader(1) + EntryRecords("a", "b") + QByteArray(length, '?'));
}

TEST_F(CsfReader, TheLanguageByteIsReadAsHexadecimal) {
    const auto languageOf = [this](int byte) {
        return Read(CsfHeader(1, static_cast<char>(byte)) + EntryRecords("a", "b"));
    };
    for (int byte = 0; byte < 10; ++byte)
        EXPECT_EQ(languageOf(byte), byte);
    EXPECT_EQ(languageOf(10), 16);
    EXPECT_EQ(languageOf(16), 22);
    EXPECT_EQ(languageOf(21), 33);
    EXPECT_EQ(languageOf(100), 256);
    EXPECT_EQ(languageOf(255), 597);
}

TEST_F(CsfReader, LeavesTheNumbersOfArchivesAndPreviewsFreeWhileItYields) {
    const QString path = Put(u"numbers.csf"_s, CsfHeader(1) + EntryRecords("n", "v"));
    host_.OnYield = [] {
        EXPECT_TRUE(NumberedFiles::IsOpen(mCSF::FileNumber));
        for (int number = 1; number <= 9; ++number)
            EXPECT_FALSE(NumberedFiles::IsOpen(number)) << number;
    };
    EXPECT_EQ(mCSF::ReadCSF(path), 0);
    EXPECT_GT(host_.Yields, 0);
}

TEST_F(CsfReader, YieldsOnceARecord) {
    Read(CsfHeader(2) + EntryRecords("a", "b") + "123" + EntryRecords("c", "d"));
    EXPECT_EQ(host_.Yields, 5);
}

TEST_F(CsfReader, ATableThatIsReplacedMeanwhileRefusesTheFile) {
    host_.OnYield = [] { mCSF::CsfStrings.clear(); };
    ExpectRefused(CsfHeader(1) + EntryRecords("a", "b"));
}

TEST_F(CsfReader, AReadInsideAReadIsRefusedAndTheFirstOneGoesOn) {
    const QString other = Put(u"other.csf"_s, CsfHeader(1) + EntryRecords("other", "x"));
    host_.OnYield = [&] {
        EXPECT_TRUE(mCSF::IsLocked());
        EXPECT_EQ(mCSF::ReadCSF(other), mCSF::Refused);
    };
    EXPECT_EQ(Read(CsfHeader(2, 2) + EntryRecords("a", "1") + EntryRecords("b", "2")), 2);
    EXPECT_EQ(mCSF::CsfStrings, (Table{{u"1"_s, u"a"_s}, {u"2"_s, u"b"_s}}));
    EXPECT_EQ(host_.Messages.size(), 4U) << "each refusal is told";
    EXPECT_FALSE(mCSF::IsLocked());
}

TEST_F(CsfReader, ARefusedReadUnlocksTheTable) {
    ExpectRefused(CsfHeader(1));
    EXPECT_FALSE(mCSF::IsLocked());
    host_.OnYield = [] { throw std::bad_alloc(); };
    ExpectRefused(CsfHeader(1) + EntryRecords("a", "b"));
    EXPECT_FALSE(mCSF::IsLocked());
}

TEST_F(CsfReader, NoRoomRefusesTheFile) {
    host_.OnYield = [] { throw std::bad_alloc(); };
    ExpectRefused(CsfHeader(1) + EntryRecords("a", "b"));
}

TEST_F(CsfReader, AFileNumberThatIsTakenRefusesTheFile) {
    NumberedFiles::Open(mCSF::FileNumber, Put(u"other"_s, "x"), NumberedFiles::Access::Read);
    ExpectRefused(CsfHeader(1) + EntryRecords("a", "b"));
}

TEST_F(CsfReader, EveryEightBitCharacterIsRead) {
    QByteArray all;
    for (int code = 0; code < 256; ++code)
        all += static_cast<char>(code);
    Read(CsfHeader(1) + EntryRecords(all, all));
    ASSERT_EQ(mCSF::CsfStrings.size(), 1U);
    EXPECT_EQ(mCSF::CsfStrings[0].Name.size(), 256);
    EXPECT_EQ(mCSF::CsfStrings[0].Name, mCSF::CsfStrings[0].Value);
    EXPECT_EQ(mCSF::CsfStrings[0].Name.first(128), QString::fromLatin1(all.first(128)));
}
