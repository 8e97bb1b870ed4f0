// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Archives as values: read from bytes and devices, written to them, with no window, no disk and no open archive.
#include "big/format/Archive.h"

#include "platform/RuntimeError.h"
#include "tests/big/Archives.h"
#include "tests/support/FailingDevice.h"
#include "tests/support/Printing.h"

using namespace Qt::StringLiterals;
using Archives::Placement;

namespace {

/// Two entries at 48 and 56.
QByteArray TwoEntries() {
    return HeaderOf("BIGF", 2, 48) + Record(48, 5, "a.ini") + Record(56, 2, "b") + Bytes("L225\0\0\0\0hello\0\0\0hi");
}

/// An archive of old entries "aa" ("abc"), "ee" (no bytes), "bb" ("hi") that lie one behind the other, and its bytes.
struct Old {
    MemoryDevice Device{"abchi", u"old.big"_s};
    Archive Table{.Entries = {{.Name = u"aa"_s, .Offset = 0, .Size = 3, .SourcePath = {}},
                              {.Name = u"ee"_s, .Offset = 0, .Size = 0, .SourcePath = {}},
                              {.Name = u"bb"_s, .Offset = 3, .Size = 2, .SourcePath = {}}},
                  .Version = 0,
                  .FileName = u"old.big"_s};
};

QByteArray Written(const Archive& archive, const Device* old, Placement placement) {
    MemoryDevice target;
    Archives::Write(archive, target, old, placement);
    return target.Bytes();
}

QStringList NamesOf(const Archive& archive) {
    QStringList names;
    for (const BigEntry& entry : archive.Entries)
        names += entry.Name;
    return names;
}

} // namespace

TEST(ArchiveValue, IsReadFromBytes) {
    const Archive archive = Archives::Read(QByteArrayView(TwoEntries()));
    EXPECT_EQ(NamesOf(archive), (QStringList{u"a.ini"_s, u"b"_s}));
    EXPECT_EQ(archive.Entries[1].Offset, 56);
    EXPECT_EQ(archive.Entries[1].Size, 2);
    EXPECT_EQ(archive.Version, 0);
    EXPECT_EQ(archive.FileName, QString());
}

TEST(ArchiveValue, AnUnknownMarkLeavesTheVariantThatWasGiven) {
    EXPECT_EQ(Archives::Read(QByteArrayView(TwoEntries().replace("L225", "L999")), 2).Version, 2);
    EXPECT_EQ(Archives::Read(QByteArrayView(TwoEntries().replace("L225", "L231")), 2).Version, 1);
}

TEST(ArchiveValue, CutOffAtAnyByteIsRefusedOrReadsWithBlankRecords) {
    const QByteArray whole = TwoEntries();
    for (qsizetype length = 0; length < whole.size(); ++length) {
        if (length < 20) {
            EXPECT_THROW(Archives::Read(QByteArrayView(whole.first(length))), RuntimeError) << length;
            continue;
        }
        const Archive archive = Archives::Read(QByteArrayView(whole.first(length)));
        ASSERT_EQ(archive.Entries.size(), 2U) << length;
        EXPECT_TRUE(u"a.ini"_s.startsWith(archive.Entries[0].Name)) << length;
        EXPECT_EQ(archive.Entries[1].Name, length < 39 ? QString() : u"b"_s) << length;
    }
}

TEST(ArchiveValue, ADeviceThatFailsAtAnyReadIsRefused) {
    MemoryDevice bytes(TwoEntries());
    FailingDevice counting(bytes);
    Archives::Read(counting);
    ASSERT_GT(counting.Reads(), 1);
    for (int good = 0; good < counting.Reads(); ++good) {
        FailingDevice failing(bytes);
        failing.FailReadsAfter(good);
        EXPECT_THROW(Archives::Read(failing), RuntimeError) << good;
    }
}

TEST(ArchiveValue, IsWrittenAsToldToADevice) {
    const Old old;
    // 16 + 3 * 11 + 8 = 57: the directory says 60, 64 and 64; the bytes begin at 56, and "ee" repeats those of "aa".
    EXPECT_EQ(Written(old.Table, &old.Device, Placement::Told), Bytes("BIGF\x42\0\0\0\0\0\0\x03\0\0\0\x39"
                                                                      "\0\0\0\x3C\0\0\0\x03"
                                                                      "aa\0"
                                                                      "\0\0\0\x40\0\0\0\0"
                                                                      "ee\0"
                                                                      "\0\0\0\x40\0\0\0\x02"
                                                                      "bb\0"
                                                                      "L225\0\0\0abc\0abc\0hi"));
}

TEST(ArchiveValue, IsWrittenExactlyToADevice) {
    const Old old;
    EXPECT_EQ(Written(old.Table, &old.Device, Placement::Exact), Bytes("BIGF\x42\0\0\0\0\0\0\x03\0\0\0\x39"
                                                                       "\0\0\0\x3C\0\0\0\x03"
                                                                       "aa\0"
                                                                       "\0\0\0\x40\0\0\0\0"
                                                                       "ee\0"
                                                                       "\0\0\0\x40\0\0\0\x02"
                                                                       "bb\0"
                                                                       "L225\0\0\0\0\0\0\0abc\0hi"));
}

TEST(ArchiveValue, ExactBytesOfTheVariantWithoutAlignmentLieWhereTheDirectorySays) {
    Old old;
    old.Table.Version = 2;
    EXPECT_EQ(Written(old.Table, &old.Device, Placement::Exact), Bytes("BIG4\x3E\0\0\0\0\0\0\x03\0\0\0\x39"
                                                                       "\0\0\0\x39\0\0\0\x03"
                                                                       "aa\0"
                                                                       "\0\0\0\x3C\0\0\0\0"
                                                                       "ee\0"
                                                                       "\0\0\0\x3C\0\0\0\x02"
                                                                       "bb\0"
                                                                       "L219\0\0\0\0abchi"));
}

TEST(ArchiveValue, AnArchiveOfOneEntryCanBeWrittenExactly) {
    const MemoryDevice old("x");
    const Archive archive{
        .Entries = {{.Name = u"only"_s, .Offset = 0, .Size = 1, .SourcePath = {}}}, .Version = 0, .FileName = {}};
    // 16 + 13 + 8 = 37.
    EXPECT_EQ(Written(archive, &old, Placement::Exact), Bytes("BIGF\x29\0\0\0\0\0\0\x01\0\0\0\x25"
                                                              "\0\0\0\x28\0\0\0\x01"
                                                              "only\0"
                                                              "L225\0\0\0\0\0\0\0x"));
}

TEST(ArchiveValue, AnExactArchiveWithoutAByteEndsBehindItsMark) {
    const Archive archive{.Entries = {{.Name = u"e"_s, .SourcePath = {}}}, .Version = 3, .FileName = {}};
    EXPECT_EQ(Written(archive, nullptr, Placement::Exact).sliced(24), Bytes("e\0L253\x15\x05"));
}

TEST(ArchiveValue, WhatIsWrittenExactlyReadsBackWithEveryByteOfEveryVariant) {
    for (int version = 0; version < 4; ++version) {
        for (int length = 1; length < 6; ++length) {
            Old old;
            old.Table.Version = version;
            old.Table.Entries[0].Name = QString(length, u'n');
            const QByteArray bytes = Written(old.Table, &old.Device, Placement::Exact);
            const Archive read = Archives::Read(QByteArrayView(bytes));
            EXPECT_EQ(read.Version, version);
            EXPECT_EQ(bytes.sliced(read.Entries[0].Offset, 3), "abc") << version << ' ' << length;
            EXPECT_EQ(bytes.sliced(read.Entries[2].Offset, 2), "hi") << version << ' ' << length;
            EXPECT_EQ(bytes.size(), read.Entries[2].Offset + 2);
        }
    }
}

TEST(ArchiveValue, ATargetThatFailsAtAnyWriteFailsTheWriting) {
    const Old old;
    for (const Placement placement : {Placement::Told, Placement::Exact}) {
        MemoryDevice target;
        FailingDevice counting(target);
        Archives::Write(old.Table, counting, &old.Device, placement);
        ASSERT_GT(counting.Writes(), 2);
        for (int good = 0; good < counting.Writes(); ++good) {
            FailingDevice failing(target, good);
            EXPECT_THROW(Archives::Write(old.Table, failing, &old.Device, placement), RuntimeError) << good;
        }
    }
}

TEST(ArchiveValue, AnOldArchiveThatFailsAtAnyReadFailsTheWriting) {
    Old old;
    FailingDevice counting(old.Device);
    Written(old.Table, &counting, Placement::Told);
    ASSERT_GT(counting.Reads(), 1);
    for (int good = 0; good < counting.Reads(); ++good) {
        FailingDevice failing(old.Device);
        failing.FailReadsAfter(good);
        EXPECT_THROW(Written(old.Table, &failing, Placement::Told), RuntimeError) << good;
    }
}

TEST(ArchiveValue, OldBytesWithoutAnOldArchiveAreRefusedBeforeAnythingIsWritten) {
    const Old old;
    MemoryDevice target("before");
    EXPECT_THROW(Archives::Write(old.Table, target, nullptr, Placement::Told), RuntimeError);
    EXPECT_EQ(target.Bytes(), "before");
    Archive empty = old.Table;
    empty.Entries[0].Deleted = empty.Entries[2].Deleted = true;
    EXPECT_NO_THROW(Archives::Write(empty, target, nullptr, Placement::Told));
}

TEST(ArchiveValue, WhatPassesTwoGibibytesIsRefusedWhenItIsToBeExact) {
    Old old;
    old.Table.Entries[0].Size = 0x7FFFFFF0;
    MemoryDevice target;
    EXPECT_THROW(Archives::Write(old.Table, target, &old.Device, Placement::Exact), RuntimeError);
    EXPECT_EQ(target.Bytes(), QByteArray());
}

TEST(ArchiveValue, OnlyNoRecordAndTheBlankOneOfAFreshArchiveAreNothingToSave) {
    EXPECT_TRUE(Archives::IsBlank({}));
    Archive archive{.Entries = {{}}, .Version = 2, .FileName = u"x.big"_s};
    EXPECT_TRUE(Archives::IsBlank(archive));
    archive.Entries[0].Name = u"a"_s;
    EXPECT_FALSE(Archives::IsBlank(archive));
    archive.Entries = {{}, {}};
    EXPECT_FALSE(Archives::IsBlank(archive));
}

TEST(ArchiveValue, TellsWhereEachEntryIsBehindASave) {
    Archive archive = Old().Table;
    archive.Entries[1].Deleted = true;
    EXPECT_EQ(Archives::IndicesAfterSave(archive), (std::vector<int>{0, -1, 1}));
}

namespace {

class ArchiveOnDisk : public ArchiveTest {};

} // namespace

TEST_F(ArchiveOnDisk, IsReadFromAPathAndWrittenOverItself) {
    const QString path = Put(u"a.big"_s, TwoEntries());
    Archive archive = Archives::Read(path);
    EXPECT_EQ(archive.FileName, path);
    archive.Entries[0].Deleted = true;
    Archives::Write(archive, path, Placement::Told);
    // 16 + 10 + 8 = 34.
    EXPECT_EQ(World::ReadFile(path).sliced(26), Bytes("L225\0\0\0\0\0\0hi"));
    EXPECT_TRUE(mBIG::BigEntries.empty()) << "the open archive is another matter";
}

TEST_F(ArchiveOnDisk, AFileThatIsMissingOrRefusedRaisesWithItsName) {
    for (const QString& path : {At(u"missing.big"_s), Put(u"no.big"_s, "no archive")}) {
        try {
            Archives::Read(path);
            ADD_FAILURE();
        } catch (const RuntimeError& error) {
            EXPECT_TRUE(error.Description().contains(u".big: "_s)) << error.what();
        }
    }
}

TEST_F(ArchiveOnDisk, TellsTheSourcesThatAreMissing) {
    Archive archive;
    for (const QString& name : {u"here"_s, u"gone"_s, u"gone and deleted"_s})
        archive.Entries.push_back({.Name = name, .IsNew = true, .SourcePath = At(name)});
    archive.Entries.push_back({.Name = u"old"_s, .SourcePath = At(u"gone"_s)});
    archive.Entries[2].Deleted = true;
    Put(u"here"_s, "x");
    EXPECT_EQ(Archives::MissingSources(archive), std::vector<int>{1});
}
