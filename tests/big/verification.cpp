// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/Verification.h"

#include "platform/Device.h"
#include "tests/big/Archives.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using Verification::Finding;

namespace {

class VerificationTest : public ArchiveTest {
protected:
    /// What is found in an archive of these bytes: word, index, text.
    QStringList FindingsOf(const QByteArray& archive) {
        const QString path = Put(u"x.big"_s, archive);
        mBIG::BigVersion = 0;
        EXPECT_TRUE(mBIG::ReadBigFile(path));
        QStringList findings;
        for (const Finding& finding : Verification::Verify(mBIG::Open(), MemoryDevice(archive)))
            findings += u"%1 %2: %3"_s.arg(Verification::Word(finding.What)).arg(finding.Index).arg(finding.Text);
        return findings;
    }

    /// Header, records and mark of two entries "a" and "b", and the bytes behind them. The directory ends at 36, the
    /// layout has the first-file field and the data of variant 0 at 44.
    static QByteArray Two(const QByteArray& first, const QByteArray& second, const QByteArray& behindMark,
                          quint32 firstFile = 44, const QByteArray& mark = "L225") {
        QByteArray archive = HeaderOf("BIGF", 2, firstFile) + first + second + mark + behindMark;
        archive[4] = static_cast<char>(archive.size());
        return archive;
    }

    const QByteArray gap_ = Bytes("\0\0\0\0");
};

} // namespace

TEST_F(VerificationTest, AnArchiveAsItIsWrittenHasNothing) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(52, 2, "b"), gap_ + Bytes("hello\0\0\0hi"))), QStringList{});
}

TEST_F(VerificationTest, EntriesOfNoBytesHaveNoPlaceToBeWrongAt) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(0, 0, "b"), gap_ + "hello")), QStringList{});
}

TEST_F(VerificationTest, TheDeclaredLengthIsComparedWithTheFiles) {
    QByteArray archive = Two(Record(44, 5, "a"), Record(52, 2, "b"), gap_ + Bytes("hello\0\0\0hi"));
    archive[4] = 99;
    EXPECT_EQ(FindingsOf(archive), QStringList{u"length -1: the header declares 99 bytes, the file has 54"_s});
}

TEST_F(VerificationTest, AnUnknownMarkIsTold) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(52, 2, "b"), gap_ + Bytes("hello\0\0\0hi"), 44, "L999")),
              QStringList{u"mark -1: the mark behind the directory names no variant"_s});
}

TEST_F(VerificationTest, TheFirstFileFieldIsCompared) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(52, 2, "b"), gap_ + Bytes("hello\0\0\0hi"), 40)),
              QStringList{u"first-file -1: the first-file field is 40, the layout has 44"_s});
}

TEST_F(VerificationTest, WhereTheDataBeginsIsCompared) {
    EXPECT_EQ(FindingsOf(Two(Record(48, 5, "a"), Record(56, 2, "b"), gap_ + gap_ + Bytes("hello\0\0\0hi"))),
              QStringList{u"first-file 0: begins the data at 48, the layout has 44"_s});
}

TEST_F(VerificationTest, OverlapsAreTold) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 10, "a"), Record(52, 2, "b"), gap_ + Bytes("hello\0\0\0hi"))),
              QStringList{u"overlap 1: shares bytes with entry 0"_s});
    EXPECT_EQ(FindingsOf(Two(Record(44, 10, "a"), Record(44, 10, "b"), gap_ + Bytes("hello\0\0\0hi"))),
              QStringList{u"overlap 1: shares bytes with entry 0"_s});
}

TEST_F(VerificationTest, AnOverlapWithAnEntryThatReachesFurtherThanTheNextIsTold) {
    // a from 56 to 76, b to 62, c from 64: c lies in a and behind b.
    QByteArray archive = HeaderOf("BIGF", 3, 54) + Record(56, 20, "a") + Record(60, 2, "b") + Record(64, 2, "c") +
                         "L225" + QByteArray(26, '\0');
    archive[4] = static_cast<char>(archive.size());
    EXPECT_EQ(FindingsOf(archive),
              (QStringList{u"overlap 1: shares bytes with entry 0"_s, u"overlap 2: shares bytes with entry 0"_s}));
}

TEST_F(VerificationTest, AnEntryInsideTheDirectoryIsTold) {
    EXPECT_EQ(FindingsOf(Two(Record(16, 4, "a"), Record(44, 2, "b"), gap_ + "hi")),
              (QStringList{u"first-file 0: begins the data at 16, the layout has 44"_s,
                           u"overlap 0: begins at 16, inside the directory"_s,
                           u"gap 1: 24 bytes before it belong to no entry"_s}));
}

TEST_F(VerificationTest, EntriesBehindTheEndAreTold) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(52, 3, "b"), gap_ + Bytes("hello\0\0\0hi"))),
              QStringList{u"beyond-end 1: ends 1 bytes behind the end of the file"_s});
}

TEST_F(VerificationTest, GapsAreTold) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(56, 2, "b"), gap_ + Bytes("hello\0\0\0\0\0\0\0hi"))),
              QStringList{u"gap 1: 4 bytes before it belong to no entry"_s});
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(52, 2, "b"), gap_ + Bytes("hello\0\0\0hi more"))),
              QStringList{u"gap -1: 5 bytes behind the last entry belong to none"_s});
}

TEST_F(VerificationTest, OffsetsThatAreNoMultipleOfFourAreToldWhereTheVariantAlignsThem) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(49, 2, "b"), gap_ + "hellohi")),
              QStringList{u"misaligned 1: begins at 49, no multiple of 4"_s});
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(49, 2, "b"), gap_ + "hellohi", 44, "L219")), QStringList{});
}

TEST_F(VerificationTest, EntriesOutOfTheDirectorysOrderAreTold) {
    EXPECT_EQ(FindingsOf(Two(Record(52, 2, "a"), Record(44, 5, "b"), gap_ + Bytes("hello\0\0\0hi"))),
              QStringList{u"order 1: lies before entry 0"_s});
}

TEST_F(VerificationTest, TheVariantOfTheLongMarkHasItsOwnLayout) {
    // The directory ends at 37, so that F is 45, the field 47 and the data at 48.
    QByteArray archive = HeaderOf("BIG4", 2, 47) + Record(48, 1, "a") + Record(52, 1, "bc") +
                         Bytes("L253\x15\x05\0\0\0\0\0"
                               "1\0\0\0"
                               "2");
    archive[4] = static_cast<char>(archive.size());
    EXPECT_EQ(FindingsOf(archive), QStringList{});
}

TEST_F(VerificationTest, AShiftIsToldWithItsDistanceInPlaceOfWhatItExplains) {
    AddNew(u"a"_s, "hello");
    AddNew(u"b"_s, "hi");
    EXPECT_EQ(FindingsOf(SavedAs(2)),
              QStringList{u"shift -1: the data of 2 entries lie -1 bytes from their offsets"_s});
}

TEST_F(VerificationTest, ShiftsOfSeveralDistancesAreToldFromTheLeastToTheGreatest) {
    // 24 + 57 = 81: the first lies four bytes early, and each without bytes puts all behind it four bytes further.
    for (const auto& [name, bytes] : {std::pair("aa", "abc"), std::pair("e", ""), std::pair("bb", "de"),
                                      std::pair("f", ""), std::pair("cccccc", "fg")})
        AddNew(QString::fromLatin1(name), bytes);
    EXPECT_EQ(FindingsOf(SavedAs(0)),
              QStringList{u"shift -1: the data of 2 entries lie -4 to 4 bytes from their offsets"_s});
}

TEST_F(VerificationTest, AFileThatMayBeShiftedOrNotIsOnlyNoted) {
    AddNew(u"aa"_s, "abc");
    AddNew(u"ee"_s, "");
    AddNew(u"bb"_s, "hi");
    EXPECT_EQ(FindingsOf(SavedAs(0)), QStringList{u"perhaps-shift -1: as a save leaves it, the data of 1 entries lie "
                                                  "-4 bytes from their offsets, or none"_s});
}

TEST_F(VerificationTest, WhatAGameReadsWrongIsAFaultAndWhatIsOnlyUnusualANote) {
    using Verification::Class;
    using Verification::Kind;
    for (const Kind fault : {Kind::BeyondEnd, Kind::Overlap, Kind::Unreadable, Kind::Name, Kind::Shift, Kind::Collision,
                             Kind::Cut, Kind::Number})
        EXPECT_EQ(Verification::ClassOf(fault), Class::Fault) << Verification::Word(fault).toStdString();
    for (const Kind note :
         {Kind::Misaligned, Kind::Gap, Kind::FirstFile, Kind::Length, Kind::Mark, Kind::Order, Kind::PerhapsShift})
        EXPECT_EQ(Verification::ClassOf(note), Class::Note) << Verification::Word(note).toStdString();
}

TEST_F(VerificationTest, ACountThatNoReaderTakesWholeIsTold) {
    QByteArray archive = Two(Record(44, 5, "a"), Record(52, 2, "b"), gap_ + Bytes("hello\0\0\0hi"));
    archive[8] = '\x80';
    EXPECT_EQ(FindingsOf(archive),
              QStringList{u"number -1: the count is 0x80000000 or more, which loses its top digit"_s});
}

TEST_F(VerificationTest, WorksOnBytesWithoutADisk) {
    const QByteArray bytes = Two(Record(44, 5, "a"), Record(52, 3, "b"), gap_ + Bytes("hello\0\0\0hi"));
    const auto findings = Verification::Verify(Archives::Read(QByteArrayView(bytes)), MemoryDevice(bytes));
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].What, Verification::Kind::BeyondEnd);
}

TEST_F(VerificationTest, SavesOfTheOtherVariantsHaveNothing) {
    for (const int version : {0, 1, 3}) {
        mBIG::BigEntries.clear();
        AddNew(u"a"_s, "hello");
        AddNew(u"b"_s, "hi");
        EXPECT_EQ(FindingsOf(SavedAs(version)), QStringList{}) << version;
    }
}

TEST_F(VerificationTest, NumbersThatNoReaderTakesWholeAreTold) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(0xF0000034U, 2, "b"), gap_ + Bytes("hello\0\0\0hi"))),
              (QStringList{u"number 1: has a number of 0x80000000 or more, which loses its top digit"_s,
                           u"gap 1: 4026531840 bytes before it belong to no entry"_s,
                           u"beyond-end 1: ends 4026531840 bytes behind the end of the file"_s}));
}

TEST_F(VerificationTest, NamesThatDifferOnlyInCaseAreTold) {
    EXPECT_EQ(FindingsOf(Two(Record(44, 5, "a"), Record(52, 2, "A"), gap_ + Bytes("hello\0\0\0hi"))),
              QStringList{u"collision 1: has the name of entry 0"_s});
}

TEST_F(VerificationTest, NamesThatTheGatewayRefusesAreTold) {
    // 16 + 13 + 13 + 8 = 50, data at 52.
    QByteArray archive = HeaderOf("BIGF", 2, 50) + Record(52, 1, "..\\x") + Record(56, 1, "Dir\\") +
                         Bytes("L225\0\0\0\0\0\0"
                               "1\0\0\0"
                               "2");
    archive[4] = static_cast<char>(archive.size());
    EXPECT_EQ(FindingsOf(archive), (QStringList{u"name 0: leads out of its folder"_s, u"name 1: is a folder"_s}));
}

TEST_F(VerificationTest, AnArchiveCutOffAtAnyByteHasFindings) {
    const QByteArray whole = Two(Record(44, 5, "a"), Record(52, 2, "b"), gap_ + Bytes("hello\0\0\0hi"));
    for (qsizetype length = 24; length < whole.size(); ++length)
        EXPECT_FALSE(FindingsOf(whole.first(length)).isEmpty()) << length;
    EXPECT_TRUE(FindingsOf(whole.first(30)).contains(u"cut -1: the directory is cut off"_s));
}
