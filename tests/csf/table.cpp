// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Tables as values: no window, no open table, no file number, and mostly no disk.
#include "csf/format/CsfTable.h"
#include "tests/support/Raised.h"

#include "csf/format/mCSF.h"
#include "platform/Device.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/csf/Tables.h"
#include "tests/support/FailingDevice.h"

using namespace Qt::StringLiterals;

namespace {

CsfTable Two() {
    return {3, {{u"B\u00E9\n"_s, u"GUI:OK"_s}, {{}, u"a"_s}}};
}

QByteArray TwoByHand() {
    return Bytes(" FSC\3\0\0\0\2\0\0\0\2\0\0\0\0\0\0\0\3\0\0\0"
                 " LBL\1\0\0\0\6\0\0\0GUI:OK"
                 " RTS\3\0\0\0\xBD\xFF\x16\xFF\xF5\xFF"
                 " LBL\1\0\0\0\1\0\0\0a"
                 " RTS\0\0\0\0");
}

int ReadingError(const QByteArray& bytes) {
    return NumberRaisedBy([&] { CsfTable::Read(QByteArrayView(bytes)); });
}

int WritingError(const CsfTable& table) {
    MemoryDevice device("as it was");
    const int error = NumberRaisedBy([&] { table.Write(device); });
    EXPECT_EQ(device.Bytes() == "as it was", error != 0) << "refused before anything is written";
    return error;
}

} // namespace

TEST(CsfTableValue, IsReadFromBytesWrittenOutByHand) {
    EXPECT_EQ(CsfTable::Read(QByteArrayView(TwoByHand())), Two());
}

TEST(CsfTableValue, IsWrittenAsTheBytesWrittenOutByHand) {
    MemoryDevice device;
    Two().Write(device);
    EXPECT_EQ(device.Bytes(), TwoByHand());
}

TEST(CsfTableValue, IsReadFromADevice) {
    MemoryDevice device(TwoByHand());
    EXPECT_EQ(CsfTable::Read(device), Two());
    FailingDevice broken(device);
    broken.FailReadsAfter(0);
    EXPECT_EQ(NumberRaisedBy([&] { CsfTable::Read(broken); }), 57);
}

TEST(CsfTableValue, EveryCutIsRefusedExceptBehindAString) {
    const QByteArray whole = TwoByHand();
    const qsizetype first = 24 + 18 + 14;
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const bool behindRecord = length == first || length == first + 13;
        EXPECT_EQ(ReadingError(whole.first(length)), behindRecord ? 0 : 9) << length;
    }
    EXPECT_EQ(CsfTable::Read(QByteArrayView(whole).first(first + 13)).Strings.size(), 1U)
        << "a label without its string";
}

TEST(CsfTableValue, EveryRefusalHasItsNumber) {
    EXPECT_EQ(ReadingError("CSF " + TwoByHand().sliced(4)), 13);
    EXPECT_EQ(ReadingError({}), 9);
    EXPECT_EQ(ReadingError(CsfHeader(1) + LabelRecord("a")), 9) << "no string";
    const QByteArray many = CsfHeader(1) + LabelRecord("a") + StringRecord("x").repeated(32767);
    EXPECT_EQ(ReadingError(many), 0);
    EXPECT_EQ(ReadingError(many + StringRecord("x")), 6);
}

TEST(CsfTableValue, TheLanguageIsReadAsTheOpenTablesIs) {
    QByteArray bytes = TwoByHand();
    bytes[20] = 21;
    EXPECT_EQ(CsfTable::Read(QByteArrayView(bytes)).Language, 33);
}

TEST(CsfTableValue, WhatNoReaderWouldTakeBackIsNotWritten) {
    EXPECT_EQ(WritingError({0, {}}), 9);
    EXPECT_EQ(WritingError({256, Two().Strings}), 5);
    EXPECT_EQ(WritingError({-1, Two().Strings}), 5);
    EXPECT_EQ(WritingError({255, std::vector<CsfString>(32768)}), 6);
    EXPECT_EQ(WritingError({255, std::vector<CsfString>(32767)}), 0);
}

TEST(CsfTableValue, AWriteThatFailsIsRaised) {
    const CsfTable table{0, std::vector<CsfString>(3, {QString(200'000, u'x'), u"a"_s})};
    MemoryDevice whole;
    FailingDevice counting(whole);
    table.Write(counting);
    ASSERT_GE(counting.Writes(), 4) << "the header, and a piece for each of the long strings";
    for (int good = 0; good < counting.Writes(); ++good) {
        MemoryDevice device;
        FailingDevice failing(device, good);
        EXPECT_EQ(NumberRaisedBy([&] { table.Write(failing); }), 61) << good;
        EXPECT_EQ(failing.Writes(), good + 1) << "nothing is written behind a failed write";
        EXPECT_TRUE(whole.Bytes().startsWith(device.Bytes())) << good;
    }
}

namespace {

class CsfTableFile : public TableTest {};

} // namespace

TEST_F(CsfTableFile, IsWrittenAndReadApartFromTheOpenTable) {
    const std::vector<CsfString> open = {{u"open"_s, u"table"_s}};
    mCSF::CsfStrings = open;
    const QString path = At(u"value.csf"_s);
    Two().Write(path);
    EXPECT_EQ(World::ReadFile(path), TwoByHand());
    EXPECT_EQ(CsfTable::Read(path), Two());
    EXPECT_EQ(mCSF::CsfStrings, open);
    EXPECT_EQ(host_.Yields, 0);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfTableFile, CanBeUsedWhileTheOpenTableIsRead) {
    const QString path = Put(u"value.csf"_s, TwoByHand());
    int times = 0;
    host_.OnYield = [&] {
        CsfTable table = CsfTable::Read(path);
        EXPECT_EQ(table, Two());
        table.Write(At(u"copy.csf"_s));
        ++times;
    };
    EXPECT_EQ(mCSF::ReadCSF(Put(u"open.csf"_s, CsfHeader(1) + EntryRecords("n", "v"))), 0);
    EXPECT_EQ(times, 2);
    EXPECT_EQ(mCSF::CsfStrings, (std::vector<CsfString>{{u"v"_s, u"n"_s}}));
    EXPECT_EQ(World::ReadFile(At(u"copy.csf"_s)), TwoByHand());
}

TEST_F(CsfTableFile, NamesTheFileThatCantBeRead) {
    EXPECT_EQ(NumberRaisedBy([&] { CsfTable::Read(At(u"missing.csf"_s)); }), 53);
}

TEST_F(CsfTableFile, SavesOverAFileAndLeavesNothingBeside) {
    const QString path = Put(u"value.csf"_s, QByteArray(1000, 'x'));
    Two().Write(path);
    EXPECT_EQ(World::ReadFile(path), TwoByHand());
    EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
}

TEST_F(CsfTableFile, RefusesAStaleBackupAndLeavesBothFiles) {
    const QString path = Put(u"value.csf"_s, "old");
    Put(u"value.csf.sav"_s, "older");
    EXPECT_EQ(NumberRaisedBy([&] { Two().Write(path); }), 58);
    EXPECT_EQ(World::ReadFile(path), "old");
    EXPECT_EQ(World::ReadFile(path + u".sav"_s), "older");
}
