// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Archives whose data lie beside their offsets are told when they are saved, recognised, and read shifted back.
#include "big/format/OffsetShift.h"

#include "big/format/Archive.h"
#include "platform/Device.h"
#include "tests/support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using Archives::Placement;
using OffsetShift::Shift;
using OffsetShift::ShiftOf;

namespace {

/// A table of old entries, each with bytes of its own letter, and the bytes that they are read from.
struct Sample {
    MemoryDevice Old;
    Archive Table;

    Sample(qint32 version, const std::vector<std::pair<int, int>>& namesAndSizes) {
        Table.Version = version;
        for (const auto& [name, size] : namesAndSizes) {
            const auto letter = static_cast<char>('a' + Table.Entries.size() % 26);
            BigEntry entry;
            entry.Name = QString(name, QChar::fromLatin1(letter));
            entry.Offset = static_cast<qint32>(Old.Length());
            entry.Size = size;
            Table.Entries.push_back(entry);
            Old.Write(Old.Length(), QByteArray(size, letter));
        }
    }

    Shift Save(Placement placement, QByteArray& bytes) const {
        MemoryDevice target;
        Shift shift = Archives::Write(Table, target, &Old, placement);
        bytes = target.Bytes();
        return shift;
    }
};

/// Whether each entry's bytes, all of its own letter, are where the table says.
bool AllLieRight(const Archive& archive, const QByteArray& bytes) {
    for (std::size_t i = 0; i < archive.Entries.size(); ++i) {
        const BigEntry& entry = archive.Entries[i];
        if (bytes.mid(entry.Offset, entry.Size) != QByteArray(entry.Size, static_cast<char>('a' + i % 26)))
            return false;
    }
    return true;
}

} // namespace

TEST(OffsetShift, ASaveOfTheUnalignedVariantLiesOneByteBeforeItsOffsets) {
    const Sample sample(2, {{5, 5}, {1, 2}});
    QByteArray bytes;
    const Shift told = sample.Save(Placement::Told, bytes);
    EXPECT_EQ(told.Count, 2);
    EXPECT_EQ(told.First, -1);
    EXPECT_EQ(told.Distances, (std::vector<qint64>{-1, -1}));
    EXPECT_FALSE(told.ExactFits);
    const Archive read = Archives::Read(QByteArrayView(bytes));
    EXPECT_EQ(ShiftOf(read, bytes.size()).Distances, told.Distances) << "recognised when it is opened";
    const Archive back = ReadShiftedBack(read, told);
    EXPECT_EQ(back.Entries[0].Offset, 47);
    EXPECT_EQ(back.Entries[1].Offset, 52);
    EXPECT_TRUE(AllLieRight(back, bytes));
}

TEST(OffsetShift, ASaveWhoseHeaderLeavesARemainderOfOneLiesFourBytesBefore) {
    for (const int version : {0, 1}) {
        const Sample sample(version, {{2, 3}, {1, 1}});
        QByteArray bytes;
        EXPECT_EQ(sample.Save(Placement::Told, bytes).Distances, (std::vector<qint64>{-4, -4}));
        EXPECT_EQ(ShiftOf(Archives::Read(QByteArrayView(bytes)), bytes.size()).First, -4);
    }
}

TEST(OffsetShift, AnEntryWithoutBytesShiftsAllBehindIt) {
    // 24 + 4 * 10 = 64.
    const Sample sample(0, {{1, 3}, {1, 0}, {1, 2}, {1, 1}});
    QByteArray bytes;
    const Shift told = sample.Save(Placement::Told, bytes);
    EXPECT_EQ(told.Distances, (std::vector<qint64>{0, 0, 4, 4}));
    EXPECT_EQ(told.Count, 2);
    EXPECT_EQ(told.First, 4);
    EXPECT_EQ(ShiftOf(Archives::Read(QByteArrayView(bytes)), bytes.size()).Distances, told.Distances);
}

TEST(OffsetShift, AnArchiveWithoutAShiftHasNone) {
    for (const int version : {0, 3}) {
        const Sample sample(version, {{1, 5}, {1, 2}});
        QByteArray bytes;
        EXPECT_TRUE(sample.Save(Placement::Told, bytes).IsNone()) << version;
        EXPECT_TRUE(ShiftOf(Archives::Read(QByteArrayView(bytes)), bytes.size()).IsNone());
    }
}

TEST(OffsetShift, AnExactArchiveHasNone) {
    for (int version = 0; version < 4; ++version) {
        const Sample sample(version, {{2, 3}, {1, 0}, {3, 1}});
        QByteArray bytes;
        EXPECT_TRUE(sample.Save(Placement::Exact, bytes).IsNone()) << version;
        const Shift read = ShiftOf(Archives::Read(QByteArrayView(bytes)), bytes.size());
        EXPECT_TRUE(read.IsNone() || read.ExactFits) << version;
        EXPECT_TRUE(AllLieRight(Archives::Read(QByteArrayView(bytes)), bytes)) << version;
    }
}

TEST(OffsetShift, AnotherLengthOrAnotherOffsetIsNoSaveOfOurs) {
    const Sample sample(2, {{5, 5}, {1, 2}});
    QByteArray bytes;
    sample.Save(Placement::Told, bytes);
    Archive read = Archives::Read(QByteArrayView(bytes));
    EXPECT_TRUE(ShiftOf(read, bytes.size() + 1).IsNone());
    EXPECT_TRUE(ShiftOf(read, bytes.size() - 1).IsNone());
    ++read.Entries[1].Offset;
    EXPECT_TRUE(ShiftOf(read, bytes.size()).IsNone());
    EXPECT_TRUE(ShiftOf({}, 0).IsNone());
}

TEST(OffsetShift, WhereAnExactArchiveHasTheSameLengthItIsOnlySaidSo) {
    // 24 + 3 * 11 = 57: the first entry lies four bytes early, the one without bytes takes four, the last lies right.
    const Sample sample(0, {{2, 3}, {2, 0}, {2, 2}});
    QByteArray told;
    QByteArray exact;
    EXPECT_TRUE(sample.Save(Placement::Told, told).ExactFits);
    sample.Save(Placement::Exact, exact);
    ASSERT_EQ(told.size(), exact.size());
    EXPECT_EQ(ShiftOf(Archives::Read(QByteArrayView(told)), told.size()).Distances, (std::vector<qint64>{-4, 0, 0}));
    EXPECT_TRUE(ShiftOf(Archives::Read(QByteArrayView(told)), told.size()).ExactFits);
    EXPECT_TRUE(ShiftOf(Archives::Read(QByteArrayView(exact)), exact.size()).ExactFits)
        << "nobody can tell the two apart";
}

TEST(OffsetShift, AnArchiveOfOneEntryThatADeletionLeftIsRecognised) {
    Sample sample(2, {{3, 3}, {1, 2}});
    sample.Table.Entries[1].Deleted = true;
    QByteArray bytes;
    EXPECT_EQ(sample.Save(Placement::Told, bytes).Distances, std::vector<qint64>{-1});
    EXPECT_EQ(ShiftOf(Archives::Read(QByteArrayView(bytes)), bytes.size()).Count, 1);
}

TEST(OffsetShift, AFurtherSaveOfAShiftedArchiveLosesBytesAndOneThatIsReadBackLosesNone) {
    const Sample sample(2, {{3, 9}, {1, 9}});
    QByteArray bytes;
    const Shift shift = sample.Save(Placement::Told, bytes);
    const MemoryDevice saved(bytes);
    MemoryDevice lossy;
    const Archive read = Archives::Read(QByteArrayView(bytes));
    Archives::Write(read, lossy, &saved, Placement::Exact);
    EXPECT_FALSE(AllLieRight(Archives::Read(QByteArrayView(lossy.Bytes())), lossy.Bytes()));
    MemoryDevice repaired;
    EXPECT_TRUE(Archives::Write(ReadShiftedBack(read, shift), repaired, &saved, Placement::Exact).IsNone());
    EXPECT_TRUE(AllLieRight(Archives::Read(QByteArrayView(repaired.Bytes())), repaired.Bytes()));
}

// Whatever names and sizes a table has, what the writer tells is where the bytes are, and the reader recognises it.
TEST(OffsetShift, OfManyTablesEveryOneReadsBackWhole) {
    quint32 state = 4711;
    const auto next = [&state](quint32 limit) {
        state = state * 1664525U + 1013904223U;
        return static_cast<int>((state >> 8U) % limit);
    };
    int shifted = 0;
    for (int round = 0; round < 600; ++round) {
        std::vector<std::pair<int, int>> entries;
        for (int count = 2 + next(6); count > 0; --count)
            entries.emplace_back(1 + next(9), next(3) == 0 ? 0 : next(12));
        const Sample sample(next(4), entries);
        QByteArray bytes;
        const Shift told = sample.Save(Placement::Told, bytes);
        const Archive read = Archives::Read(QByteArrayView(bytes));
        EXPECT_TRUE(AllLieRight(ReadShiftedBack(read, told), bytes)) << round;
        EXPECT_EQ(ShiftOf(read, bytes.size()).Distances, told.Distances) << round;
        shifted += told.IsNone() ? 0 : 1;
        sample.Save(Placement::Exact, bytes);
        EXPECT_TRUE(AllLieRight(Archives::Read(QByteArrayView(bytes)), bytes)) << round;
    }
    EXPECT_GT(shifted, 200);
}

TEST(OffsetShift, ReadingBackReachesTheFirstByteAndNothingBeforeIt) {
    Archive archive;
    archive.Entries.resize(2);
    archive.Entries[0].Offset = 4;
    archive.Entries[1].Offset = 3;
    Shift shift;
    shift.Distances = {-4, -4};
    const Archive read = ReadShiftedBack(archive, shift);
    EXPECT_EQ(read.Entries[0].Offset, 0);
    EXPECT_EQ(read.Entries[1].Offset, 3);
}
