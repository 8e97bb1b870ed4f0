// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Device.h"

#include "platform/File.h"
#include "tests/platform/InAFolder.h"
#include "tests/support/FailingDevice.h"

using namespace Qt::StringLiterals;

namespace {

class DeviceTest : public InAFolder {};

QByteArray ManyBytes(qsizetype count) {
    QByteArray bytes(count, Qt::Uninitialized);
    for (qsizetype at = 0; at < count; ++at)
        bytes[at] = static_cast<char>((at * 7) ^ (at >> 9));
    return bytes;
}

} // namespace

TEST_F(DeviceTest, ReadingBehindTheEndGivesFewerBytes) {
    const MemoryDevice device("abcdef", u"six"_s);
    EXPECT_EQ(device.Length(), 6);
    EXPECT_EQ(device.Read(0, 6), "abcdef");
    EXPECT_EQ(device.Read(4, 100), "ef");
    EXPECT_EQ(device.Read(6, 1), "");
    EXPECT_EQ(device.Read(0x7FFFFFFFFFFFLL, 4), "");
    EXPECT_EQ(device.Read(2, -1), "");
    EXPECT_EQ(device.Name(), u"six"_s);
}

TEST_F(DeviceTest, WritingBehindTheEndFillsWithZeros) {
    MemoryDevice device("ab");
    device.Write(4, "x");
    EXPECT_EQ(device.Bytes(), QByteArray("ab\0\0x", 5));
    device.Write(1, "BC");
    EXPECT_EQ(device.Bytes(), QByteArray("aBC\0x", 5));
    device.Write(9, "");
    EXPECT_EQ(device.Length(), 5) << "no bytes are nowhere";
}

TEST_F(DeviceTest, TheLengthCutsAndFillsWithZeros) {
    MemoryDevice device("abcd");
    device.SetLength(2);
    device.SetLength(4);
    EXPECT_EQ(device.Bytes(), QByteArray("ab\0\0", 4));
}

TEST_F(DeviceTest, APositionBeforeTheStartIsRefused) {
    MemoryDevice device("abcd");
    char byte = 0;
    EXPECT_EQ(NumberRaisedBy([&] { static_cast<void>(device.Read(-1, 2)); }), 5);
    EXPECT_EQ(NumberRaisedBy([&] { device.ReadInto(-1, &byte, 1); }), 5);
    EXPECT_EQ(NumberRaisedBy([&] { device.Write(-1, "x"); }), 5);
    EXPECT_EQ(NumberRaisedBy([&] { device.SetLength(-1); }), 5);
    EXPECT_EQ(device.Bytes(), "abcd");
}

TEST_F(DeviceTest, CopiesBetweenEveryKindOfDevice) {
    const QByteArray bytes = ManyBytes(2'500'000);
    const File from = File::Open(Make(u"from"_s, bytes), File::Access::Read);
    const MemoryDevice memory(bytes);
    File to = File::Open(At(u"to"_s), File::Access::Replace);
    MemoryDevice copy;

    EXPECT_EQ(CopyBytes(copy, 0, memory, 1, 2'400'000), 2'400'000);
    EXPECT_EQ(copy.Bytes(), bytes.sliced(1, 2'400'000));
    EXPECT_EQ(CopyBytes(copy, 2, from, 100, 1'000), 1'000);
    EXPECT_EQ(copy.Read(0, 1'002), bytes.sliced(1, 2) + bytes.sliced(100, 1'000));
    EXPECT_EQ(CopyBytes(to, 3, memory, 0, 2'500'000), 2'500'000);
    EXPECT_EQ(to.Read(3, 2'500'000), bytes);
    EXPECT_EQ(CopyBytes(to, 0, from, 5, 2'000'000), 2'000'000);
    EXPECT_EQ(to.Read(0, 2'000'000), bytes.sliced(5, 2'000'000));
}

TEST_F(DeviceTest, ACopyEndsWhereTheSourceEnds) {
    const File from = File::Open(Make(u"from"_s, "abcdef"), File::Access::Read);
    const MemoryDevice memory("abcdef");
    File to = File::Open(At(u"to"_s), File::Access::Replace);
    MemoryDevice copy;
    EXPECT_EQ(CopyBytes(copy, 0, memory, 4, 1'000'000'000'000), 2);
    EXPECT_EQ(copy.Bytes(), "ef");
    EXPECT_EQ(CopyBytes(copy, 0, memory, 40, 10), 0);
    EXPECT_EQ(CopyBytes(to, 0, from, 4, 1'000'000'000'000), 2);
    EXPECT_EQ(to.Read(0, 10), "ef");
    EXPECT_EQ(CopyBytes(copy, 0, from, 0, 0), 0);
}

TEST_F(DeviceTest, AFailingDeviceFailsAtItsTurn) {
    MemoryDevice inner("abc", u"inner"_s);
    FailingDevice device(inner, 2);
    device.Write(0, "A");
    device.SetLength(2);
    EXPECT_EQ(NumberRaisedBy([&] { device.Write(1, "B"); }), 61);
    EXPECT_EQ(NumberRaisedBy([&] { device.SetLength(0); }), 61);
    EXPECT_EQ(inner.Bytes(), "Ab");
    EXPECT_EQ(device.Read(0, 9), "Ab");
    device.FailReadsAfter(1);
    EXPECT_EQ(MessageOf([&] { static_cast<void>(device.Read(0, 9)); }), u"inner: can't be read"_s);
}
