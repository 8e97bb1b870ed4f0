// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/support/Raised.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using NumberedFiles::Access;

namespace {

class InAFolder : public testing::Test {
protected:
    ~InAFolder() override { NumberedFiles::CloseAll(); }

    [[nodiscard]] QString At(const QString& name) const { return Paths::FromNative(folder_.path()) + u'\\' + name; }

    QString Make(const QString& name, const QByteArray& bytes) const {
        NumberedFiles::Open(9, At(name), Access::Replace);
        NumberedFiles::Write(9, 0, bytes);
        NumberedFiles::Close(9);
        return At(name);
    }

    static QByteArray BytesOf(const QString& path) {
        NumberedFiles::Open(9, path, Access::Read);
        QByteArray bytes = NumberedFiles::Read(9, 0, 1 << 20);
        NumberedFiles::Close(9);
        return bytes;
    }

private:
    QTemporaryDir folder_;
};

class FilesTest : public InAFolder {};

class NumberedFilesTest : public InAFolder {};

} // namespace

TEST_F(FilesTest, AFileOfZeroBytesExistsAndAFolderDoesNot) {
    Make(u"empty"_s, {});
    Files::MakeFolder(At(u"folder"_s));
    EXPECT_TRUE(Files::FileExists(At(u"empty"_s)));
    EXPECT_FALSE(Files::FileExists(At(u"folder"_s)));
    EXPECT_FALSE(Files::FileExists(At(u"missing"_s)));
    EXPECT_TRUE(Files::FolderExists(At(u"folder"_s)));
    EXPECT_EQ(NumberRaisedBy([&] { Files::FileLength(At(u"missing"_s)); }), 53);
}

TEST_F(FilesTest, MakingAFolderTwiceRaises75AndWithoutItsParent76) {
    Files::MakeFolder(At(u"once\\"_s));
    EXPECT_EQ(NumberRaisedBy([&] { Files::MakeFolder(At(u"once"_s)); }), 75);
    EXPECT_EQ(NumberRaisedBy([&] { Files::MakeFolder(At(u"no\\parent"_s)); }), 76);
}

TEST_F(FilesTest, MakeFoldersGoesOnWhereAnotherProgramMakesTheSame) {
    for (int round = 0; round < 200; ++round) {
        const QString folder = At(u"%1\\b\\c"_s.arg(round));
        std::vector<std::thread> others;
        others.reserve(3);
        for (int other = 0; other < 3; ++other)
            others.emplace_back([&] { EXPECT_NO_THROW(Files::MakeFolders(folder)); });
        for (std::thread& thread : others)
            thread.join();
        ASSERT_TRUE(Files::FolderExists(folder));
    }
}

TEST_F(FilesTest, MakeFoldersMakesAllThatAreMissing) {
    Files::MakeFolders(At(u"a\\b\\c\\"_s));
    Files::MakeFolders(At(u"a\\b\\c"_s));
    EXPECT_TRUE(Files::FolderExists(At(u"a\\b\\c"_s)));
}

TEST_F(FilesTest, NamesAreFoundWithoutRegardToCase) {
    Files::MakeFolder(At(u"Maps"_s));
    Make(u"Maps\\Island.MAP"_s, "x");
    EXPECT_TRUE(Files::FileExists(At(u"mAPS\\island.map"_s)));
    EXPECT_EQ(BytesOf(At(u"MAPS\\ISLAND.map"_s)), "x");
}

TEST_F(FilesTest, AMissingNameKeepsTheCaseGivenBelowACorrectedFolder) {
    Files::MakeFolder(At(u"Maps"_s));
    Make(u"maps\\New.Map"_s, "y");
    EXPECT_EQ(Files::ListFolder(At(u"Maps\\"_s)), QStringList{u"New.Map"_s});
}

TEST_F(FilesTest, ListsByPatternWithFoldersOnlyWhenAsked) {
    Make(u"one.big"_s, "1");
    Make(u"two.BIG"_s, "2");
    Make(u"three.txt"_s, "3");
    Files::MakeFolder(At(u"folder.big"_s));
    QStringList names = Files::ListFolder(At(u"*.big"_s));
    names.sort();
    EXPECT_EQ(names, (QStringList{u"one.big"_s, u"two.BIG"_s}));
    EXPECT_EQ(Files::ListFolder(At(u"*.big"_s), true).size(), 3);
    EXPECT_EQ(Files::ListFolder(At(u"*.*"_s), true).size(), 4);
    EXPECT_EQ(Files::ListFolder(At(u"folder.big"_s)), QStringList{});
    EXPECT_EQ(Files::ListFolder(At(u"folder.big"_s), true), QStringList{u"folder.big"_s});
    EXPECT_EQ(Files::ListFolder(At(u"none\\*.*"_s)), QStringList{});
}

TEST_F(FilesTest, ListsFilesOfAllSubfolders) {
    Files::MakeFolders(At(u"top\\sub"_s));
    Make(u"top\\a"_s, "12");
    Make(u"top\\sub\\b"_s, "123");
    EXPECT_EQ(Files::ListFolderFiles(At(u"top"_s), false).size(), 1U);
    auto found = Files::ListFolderFiles(At(u"top\\"_s), true);
    std::sort(found.begin(), found.end(), [](const auto& l, const auto& r) { return l.Path < r.Path; });
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].Path, At(u"top\\a"_s));
    EXPECT_EQ(found[1].Path, At(u"top\\sub\\b"_s));
    EXPECT_EQ(found[1].Size, 3);
    EXPECT_TRUE(Files::ListFolderFiles(At(u"nowhere"_s), true).empty());
}

TEST_F(FilesTest, DeletesByPatternAndRaises53WhenNothingFits) {
    Make(u"a.tmp"_s, "1");
    Make(u"b.tmp"_s, "1");
    Make(u"c.txt"_s, "1");
    Files::Delete(At(u"*.tmp"_s));
    EXPECT_EQ(Files::ListFolder(At(u"*.*"_s)), QStringList{u"c.txt"_s});
    EXPECT_EQ(NumberRaisedBy([&] { Files::Delete(At(u"*.tmp"_s)); }), 53);
    EXPECT_EQ(NumberRaisedBy([&] { Files::Delete(At(u"missing"_s)); }), 53);
}

TEST_F(FilesTest, FailuresNameTheSystemsPath) {
    const QString path = Make(u"a.tmp"_s, "1");
    QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner);
    const auto toldBy = [](const auto& act) {
        try {
            act();
        } catch (const RuntimeError& error) {
            return error.Description();
        }
        return QString();
    };
    EXPECT_EQ(toldBy([&] { Files::DeleteUnprotected(path); }), Paths::ToNative(path) + u": write-protected"_s);
    EXPECT_EQ(toldBy([&] { Files::Delete(At(u"*.none"_s)); }), Paths::ToNative(At(u"*.none"_s)) + u": no such file"_s);
    const QString missing = At(u"none\\to"_s);
    EXPECT_TRUE(toldBy([&] { Files::Replace(path, missing); }).startsWith(Paths::ToNative(missing)));
    QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner | QFile::WriteOwner);
}

TEST_F(FilesTest, AWriteProtectedFileIsDeletedByForceOnly) {
    const QString path = Make(u"a.tmp"_s, "1");
    QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner);
    EXPECT_EQ(NumberRaisedBy([&] { Files::DeleteUnprotected(path); }), 70);
    EXPECT_EQ(NumberRaisedBy([&] { Files::Delete(path); }), 70);
    EXPECT_EQ(NumberRaisedBy([&] { Files::Delete(At(u"*.*"_s)); }), 70);
    EXPECT_TRUE(Files::FileExists(path));
    Files::DeleteForced(path);
    EXPECT_FALSE(Files::FileExists(path));
}

TEST_F(FilesTest, CopyReplacesTheWholeTarget) {
    Make(u"from"_s, "short");
    Make(u"to"_s, "something longer");
    Files::Copy(At(u"from"_s), At(u"to"_s));
    EXPECT_EQ(BytesOf(At(u"to"_s)), "short");
    EXPECT_EQ(NumberRaisedBy([&] { Files::Copy(At(u"missing"_s), At(u"to"_s)); }), 53);
    EXPECT_NE(NumberRaisedBy([&] { Files::Copy(At(u"from"_s), At(u"no\\folder"_s)); }), 0);
    EXPECT_EQ(Files::ListFolder(At(u"*.*"_s)).size(), 2) << "nothing written aside is left";
}

TEST_F(FilesTest, RenameRefusesAnExistingTargetAndChangesCase) {
    Make(u"from"_s, "1");
    Make(u"to"_s, "2");
    EXPECT_EQ(NumberRaisedBy([&] { Files::Rename(At(u"from"_s), At(u"to"_s)); }), 58);
    EXPECT_EQ(NumberRaisedBy([&] { Files::Rename(At(u"missing"_s), At(u"other"_s)); }), 53);
    Files::Rename(At(u"from"_s), At(u"FROM"_s));
    EXPECT_TRUE(Files::ListFolder(At(u"*.*"_s)).contains(u"FROM"_s));
    Files::Replace(At(u"FROM"_s), At(u"to"_s));
    EXPECT_EQ(BytesOf(At(u"to"_s)), "1");
}

TEST_F(FilesTest, UnicodeNamesComeBack) {
    const QString name = u"Carte d'été – 地図.map"_s;
    Make(name, "m");
    EXPECT_EQ(Files::ListFolder(At(u"*.map"_s)), QStringList{name});
    EXPECT_EQ(BytesOf(At(name)), "m");
}

TEST_F(FilesTest, KnowsTheSameFileUnderAnotherSpelling) {
    Make(u"archive.big"_s, "1");
    Make(u"other.big"_s, "1");
    EXPECT_TRUE(Files::SameFile(At(u"archive.big"_s), At(u"ARCHIVE.big"_s)));
    EXPECT_FALSE(Files::SameFile(At(u"archive.big"_s), At(u"other.big"_s)));
    EXPECT_FALSE(Files::SameFile(At(u"missing"_s), At(u"missing"_s)));
}

TEST_F(NumberedFilesTest, ATakenNumberRaises55UntilItIsClosed) {
    Make(u"f"_s, "abc");
    NumberedFiles::Open(3, At(u"f"_s), Access::Read);
    EXPECT_EQ(NumberRaisedBy([&] { NumberedFiles::Open(3, At(u"f"_s), Access::Read); }), 55);
    NumberedFiles::Close(3);
    EXPECT_EQ(NumberRaisedBy([&] { NumberedFiles::Open(3, At(u"f"_s), Access::Read); }), 0);
}

TEST_F(NumberedFilesTest, ANumberThatIsNotOpenRaises52) {
    EXPECT_EQ(NumberRaisedBy([&] { NumberedFiles::Length(7); }), 52);
    EXPECT_EQ(NumberRaisedBy([&] { NumberedFiles::Close(7); }), 0);
}

TEST_F(NumberedFilesTest, ReadWriteMakesTheFileAndNeverCutsIt) {
    Make(u"f"_s, "longer than that");
    NumberedFiles::Open(1, At(u"f"_s), Access::ReadWrite);
    NumberedFiles::Write(1, 0, "SHORT");
    NumberedFiles::Close(1);
    EXPECT_EQ(BytesOf(At(u"f"_s)), "SHORTr than that");
    NumberedFiles::Open(1, At(u"new"_s), Access::ReadWrite);
    NumberedFiles::Close(1);
    EXPECT_EQ(Files::FileLength(At(u"new"_s)), 0);
}

TEST_F(NumberedFilesTest, ReadingAMissingFileRaises53AndAFolderIsNoFile) {
    EXPECT_EQ(NumberRaisedBy([&] { NumberedFiles::Open(1, At(u"missing"_s), Access::Read); }), 53);
    Files::MakeFolder(At(u"folder"_s));
    EXPECT_NE(NumberRaisedBy([&] { NumberedFiles::Open(1, At(u"folder"_s), Access::Read); }), 0);
    EXPECT_NE(NumberRaisedBy([&] { NumberedFiles::Open(1, At(u"no\\file"_s), Access::ReadWrite); }), 0);
    EXPECT_FALSE(NumberedFiles::IsOpen(1));
}

TEST_F(NumberedFilesTest, ReadsLessAtTheEndAndNothingBehindIt) {
    Make(u"f"_s, "abcdef");
    NumberedFiles::Open(1, At(u"f"_s), Access::Read);
    EXPECT_EQ(NumberedFiles::Read(1, 4, 100), "ef");
    EXPECT_EQ(NumberedFiles::Read(1, 0x7FFFFFFF, 4), "");
}

TEST_F(NumberedFilesTest, WritingBehindTheEndLeavesZerosBetween) {
    NumberedFiles::Open(1, At(u"f"_s), Access::Replace);
    NumberedFiles::Write(1, 4, "x");
    EXPECT_EQ(NumberedFiles::Read(1, 0, 10), QByteArray("\0\0\0\0x", 5));
}

TEST_F(NumberedFilesTest, CopiesBetweenFilesAndTellsHowManyBytesThereWere) {
    const QByteArray bytes(300'000, 'q');
    Make(u"from"_s, bytes + "tail");
    NumberedFiles::Open(1, At(u"to"_s), Access::Replace);
    NumberedFiles::Open(2, At(u"from"_s), Access::Read);
    EXPECT_EQ(NumberedFiles::Copy(1, 2, 2, 1, 299'999), 299'999);
    EXPECT_EQ(NumberedFiles::Copy(1, 0, 2, 300'002, 50), 2);
    EXPECT_EQ(NumberedFiles::Copy(1, 0, 2, 900'000, 50), 0);
    NumberedFiles::CloseAll();
    EXPECT_EQ(BytesOf(At(u"to"_s)), "il" + bytes.first(299'999));
}

TEST_F(InAFolder, WhatStandsAtAPathIsTold) {
    Make(u"file"_s, "x");
    Files::MakeFolder(At(u"folder"_s));
    EXPECT_EQ(Files::StandingAsGiven(At(u"file"_s)), Files::Standing::File);
    EXPECT_EQ(Files::StandingAsGiven(At(u"folder"_s)), Files::Standing::Folder);
    EXPECT_EQ(Files::StandingAsGiven(At(u"nothing"_s)), Files::Standing::Nothing);
}

TEST_F(InAFolder, ACopyToAPathAsGivenReplacesWhatStandsThere) {
    const QString from = Make(u"from"_s, "new");
    const QString to = Make(u"to"_s, "a longer one");
    Files::CopyAsGiven(from, to);
    EXPECT_EQ(BytesOf(to), "new");
    EXPECT_EQ(NumberRaisedBy([&] { Files::CopyAsGiven(from, At(u"none\\to"_s)); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberRaisedBy([&] { Files::CopyAsGiven(At(u"none"_s), to); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(Files::ListFolder(At(u"*.*"_s)).size(), 2) << "nothing is left aside";
}

TEST_F(InAFolder, AFolderIsRemovedWithEverythingInIt) {
    Files::MakeFolders(At(u"folder\\below\\empty"_s));
    Make(u"folder\\a"_s, "1");
    Make(u"folder\\below\\b"_s, "2");
    Make(u"beside"_s, "3");
    Files::DeleteFolder(At(u"folder\\"_s));
    EXPECT_EQ(Files::ListFolder(At(u"*.*"_s), true), QStringList{u"beside"_s});
    Files::DeleteFolder(At(u"folder"_s)); // once more: nothing
}
