// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/ArchiveEdits.h"

#include "tests/support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using ArchiveEdits::Drop;

namespace {

Archive ArchiveOf(const QStringList& names) {
    Archive archive;
    for (const QString& name : names) {
        archive.Entries.emplace_back();
        archive.Entries.back().Name = name;
    }
    return archive;
}

QStringList NamesOf(const Archive& archive) {
    QStringList names;
    for (const BigEntry& entry : archive.Entries)
        names += entry.Name;
    return names;
}

bool Always(const QString&) {
    return true;
}

} // namespace

TEST(ArchiveEdits, AddGoesBehindTheHighestIndexEvenWithoutATable) {
    Archive archive;
    EXPECT_EQ(ArchiveEdits::Add(archive, u"a"_s, {u"C:\\a"_s, 3}), 1);
    EXPECT_EQ(NamesOf(archive), (QStringList{{}, u"a"_s}));
    EXPECT_EQ(ArchiveEdits::Add(archive, u"b"_s, {u"C:\\b"_s, 4}), 2);
    const BigEntry added{u"b"_s, 0, 4, true, false, u"C:\\b"_s};
    EXPECT_EQ(archive.Entries[2], added);
}

TEST(ArchiveEdits, AddTakesTheEntryOfThatNameAndBringsItBack) {
    Archive archive = ArchiveOf({u"a"_s, u"Data\\X.ini"_s});
    archive.Entries[1].Deleted = true;
    archive.Entries[1].Offset = 77;
    EXPECT_EQ(ArchiveEdits::Add(archive, u"data\\x.INI"_s, {u"C:\\x"_s, 3}), 1);
    const BigEntry replaced{u"data\\x.INI"_s, 77, 3, true, false, u"C:\\x"_s};
    EXPECT_EQ(archive.Entries[1], replaced);
}

TEST(ArchiveEdits, ASizeThatNoArchiveCanHoldIsNotTakenOver) {
    Archive archive = ArchiveOf({u"a"_s, u"b"_s});
    archive.Entries[1].Size = 5;
    ArchiveEdits::Add(archive, u"b"_s, {u"C:\\b"_s, 0x80000000LL});
    EXPECT_EQ(archive.Entries[1].Size, 5);
    ArchiveEdits::Add(archive, u"b"_s, {u"C:\\b"_s});
    EXPECT_EQ(archive.Entries[1].Size, 5);
    ArchiveEdits::Add(archive, u"b"_s, {u"C:\\b"_s, 0x7FFFFFFF});
    EXPECT_EQ(archive.Entries[1].Size, 0x7FFFFFFF);
}

TEST(ArchiveEdits, PutAppendsTheFirstOneTooAndForgetsWhatTheEntryWas) {
    Archive archive;
    EXPECT_EQ(ArchiveEdits::Put(archive, u"a"_s, {u"C:\\a"_s, 1}), 0);
    archive.Entries[0].Deleted = true;
    archive.Entries[0].Offset = 9;
    EXPECT_EQ(ArchiveEdits::Put(archive, u"A"_s, {u"C:\\b"_s, 2}), 0);
    const BigEntry put{u"A"_s, 0, 2, true, false, u"C:\\b"_s};
    EXPECT_EQ(archive.Entries, std::vector<BigEntry>{put});
}

TEST(ArchiveEdits, ReplaceTakesTheFileAndKeepsTheSize) {
    Archive archive = ArchiveOf({u"a"_s});
    archive.Entries[0].Size = 8;
    ArchiveEdits::Replace(archive, 0, u"C:\\a"_s);
    const BigEntry replaced{u"a"_s, 0, 8, true, false, u"C:\\a"_s};
    EXPECT_EQ(archive.Entries[0], replaced);
}

TEST(ArchiveEdits, ADroppedFileIsAddedBehindTheOthers) {
    Archive archive = ArchiveOf({u"a"_s});
    Drop drop(archive, Always);
    drop.File(u"b"_s, {u"C:\\b"_s, 2});
    drop.FileOfFolder(u"f\\c"_s, {u"C:\\f\\c"_s, 3});
    EXPECT_EQ(NamesOf(archive), (QStringList{u"a"_s, u"b"_s, u"f\\c"_s}));
    EXPECT_EQ(archive.Entries[2].Size, 3);
    EXPECT_EQ(drop.Result().Taken, 2);
    EXPECT_EQ(drop.Result().Replaced + drop.Result().Lost + drop.Result().Hidden, QStringList());
}

TEST(ArchiveEdits, WhileTheFirstRecordIsBlankADropTakesTheLastPlaceAndTellsWhatIsLost) {
    Archive archive = ArchiveOf({{}, u"first"_s});
    archive.Entries[1].Size = 5;
    Drop drop(archive, Always);
    drop.File(u"second"_s, {u"C:\\second"_s, 2});
    drop.File(u"third"_s, {u"C:\\third"_s, 2});
    EXPECT_EQ(NamesOf(archive), (QStringList{{}, u"third"_s}));
    EXPECT_EQ(drop.Result().Lost, (QStringList{u"first"_s, u"second"_s}));
}

TEST(ArchiveEdits, OnAFreshArchiveADropTakesTheBlankRecordsPlaceAndNothingIsLost) {
    Archive archive = ArchiveOf({QString()});
    Drop drop(archive, Always);
    drop.File(u"a"_s, {u"C:\\a"_s, 2});
    drop.File(u"b"_s, {u"C:\\b"_s, 2});
    EXPECT_EQ(NamesOf(archive), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(drop.Result().Replaced + drop.Result().Lost + drop.Result().Hidden, QStringList());
}

TEST(ArchiveEdits, WithoutATableADropTakesTheFirstPlace) {
    Archive archive;
    Drop drop(archive, Always);
    drop.File(u"a"_s, {u"C:\\a"_s, 2});
    EXPECT_EQ(NamesOf(archive), QStringList{u"a"_s});
}

TEST(ArchiveEdits, ADropAsksForEachEntryThatIsThereAndKeepsTheOnesRefused) {
    Archive archive = ArchiveOf({u"a"_s, u"B"_s});
    QStringList asked;
    Drop drop(archive, [&](const QString& name) {
        asked += name;
        return name == u"b"_s;
    });
    drop.File(u"A"_s, {u"C:\\a"_s, 2});
    drop.File(u"b"_s, {u"C:\\b"_s, 2});
    EXPECT_EQ(asked, (QStringList{u"A"_s, u"b"_s}));
    EXPECT_EQ(NamesOf(archive), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_FALSE(archive.Entries[0].IsNew);
    EXPECT_EQ(drop.Result().Replaced, QStringList{u"b"_s});
    EXPECT_EQ(drop.Result().Taken, 1);
}

TEST(ArchiveEdits, ADeletedEntryComesBackForADroppedFileAndNotForOneOfADroppedFolder) {
    Archive archive = ArchiveOf({u"a"_s, u"f\\b"_s});
    archive.Entries[0].Deleted = archive.Entries[1].Deleted = true;
    Drop drop(archive, Always);
    drop.File(u"a"_s, {u"C:\\a"_s, 2});
    drop.FileOfFolder(u"f\\b"_s, {u"C:\\f\\b"_s, 2});
    EXPECT_FALSE(archive.Entries[0].Deleted);
    EXPECT_TRUE(archive.Entries[1].Deleted);
    EXPECT_TRUE(archive.Entries[1].IsNew);
    EXPECT_EQ(drop.Result().Hidden, QStringList{u"f\\b"_s});
}

TEST(ArchiveEdits, AFolderIsDeletedByItsExactKeyAtAnyPlace) {
    Archive archive = ArchiveOf({u"data\\a"_s, u"Data\\b"_s, u"x\\data\\c"_s, u"data"_s});
    EXPECT_EQ(ArchiveEdits::DeleteFolder(archive, u"data\\"_s), 2);
    EXPECT_TRUE(archive.Entries[0].Deleted);
    EXPECT_FALSE(archive.Entries[1].Deleted);
    EXPECT_TRUE(archive.Entries[2].Deleted);
    EXPECT_FALSE(archive.Entries[3].Deleted);
    EXPECT_EQ(ArchiveEdits::DeleteFolder(archive, u"none\\"_s), 0);
    ArchiveEdits::DeleteEntry(archive, 3);
    EXPECT_TRUE(archive.Entries[3].Deleted);
}

TEST(ArchiveEdits, AnEntryIsRenamedWhereverTheTextStandsInIt) {
    Archive archive = ArchiveOf({u"a.ini\\a.ini"_s, u"a.ini"_s});
    ArchiveEdits::RenameEntry(archive, 0, u"a.ini"_s, u"b"_s);
    ArchiveEdits::RenameEntry(archive, 1, {}, u"b"_s);
    EXPECT_EQ(NamesOf(archive), (QStringList{u"b\\b"_s, u"a.ini"_s}));
}

TEST(ArchiveEdits, AFolderIsRenamedByItsExactKeyAtEveryPlace) {
    Archive archive = ArchiveOf({u"a\\a\\x"_s, u"A\\x"_s, u"b\\a\\x"_s, u"a"_s});
    EXPECT_EQ(ArchiveEdits::RenameFolder(archive, u"a\\"_s, u"Neu\\"_s), 2);
    EXPECT_EQ(NamesOf(archive), (QStringList{u"Neu\\Neu\\x"_s, u"A\\x"_s, u"b\\Neu\\x"_s, u"a"_s}));
}

TEST(ArchiveEdits, TheLastPartOfAKeyIsRenamed) {
    EXPECT_EQ(ArchiveEdits::RenamedKey(u"a\\b\\"_s, u"C"_s), u"a\\C\\"_s);
    EXPECT_EQ(ArchiveEdits::RenamedKey(u"b\\"_s, u"C"_s), u"C\\"_s);
    EXPECT_EQ(ArchiveEdits::RenamedKey(u"\\"_s, u"C"_s), u"C\\"_s);
}
