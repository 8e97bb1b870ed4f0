// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/File.h"

#include "platform/Files.h"
#include "tests/platform/InAFolder.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class FileTest : public InAFolder {};

} // namespace

TEST_F(FileTest, EachWayToOpenDoesWithTheOldFileWhatItSays) {
    Make(u"f"_s, "old bytes");
    File file = File::Open(At(u"f"_s), File::Access::ReadWrite);
    file.Write(0, "OLD");
    file.Close();
    EXPECT_EQ(BytesOf(u"f"_s), "OLD bytes");
    file = File::Open(At(u"f"_s), File::Access::Replace);
    EXPECT_EQ(file.Length(), 0);
    file.Close();
    EXPECT_EQ(NumberRaisedBy([&] { File::Open(At(u"f"_s), File::Access::New); }), 58);
    EXPECT_EQ(NumberRaisedBy([&] { File::Open(At(u"none"_s), File::Access::Read); }), 53);
    File::Open(At(u"new"_s), File::Access::New).Write(0, "new");
    File::Open(At(u"made"_s), File::Access::ReadWrite).Write(0, "made");
    EXPECT_EQ(BytesOf(u"new"_s), "new");
    EXPECT_EQ(BytesOf(u"made"_s), "made");
}

TEST_F(FileTest, AFolderIsNoFileAndAFileInNoFolderCantBeMade) {
    Files::MakeFolder(At(u"folder"_s));
    for (const auto access : {File::Access::Read, File::Access::ReadWrite, File::Access::Replace})
        EXPECT_NE(NumberRaisedBy([&] { File::Open(At(u"folder"_s), access); }), 0);
    EXPECT_NE(NumberRaisedBy([&] { File::Open(At(u"folder"_s), File::Access::New); }), 0);
    EXPECT_EQ(NumberRaisedBy([&] { File::Open(At(u"no\\file"_s), File::Access::New); }), 76);
    EXPECT_EQ(NumberRaisedBy([&] { File::Open(At(u"no\\file"_s), File::Access::Replace); }), 76);
}

TEST_F(FileTest, TheLastOneThatHasItClosesIt) {
    Make(u"f"_s, "bytes");
    File first = File::Open(At(u"f"_s), File::Access::Read);
    File second = std::move(first);
    EXPECT_FALSE(first.IsOpen()); // NOLINT(bugprone-use-after-move): what is left is what is asked
    EXPECT_EQ(second.Read(0, 9), "bytes");
    second.Close();
    EXPECT_FALSE(second.IsOpen());
    EXPECT_EQ(NumberRaisedBy([&] { second.Close(); }), 0);
    EXPECT_EQ(NumberRaisedBy([&] { static_cast<void>(second.Length()); }), 52);
    EXPECT_EQ(NumberRaisedBy([&] { static_cast<void>(second.Read(0, 1)); }), 52);
    EXPECT_FALSE(File().IsOpen());
}

TEST_F(FileTest, WhatIsOnlyReadCanBeRenamedAndDeletedAndStaysReadable) {
    Make(u"f"_s, "bytes");
    const File file = File::Open(At(u"f"_s), File::Access::Read);
    Files::Rename(At(u"f"_s), At(u"g"_s));
    EXPECT_EQ(file.Read(0, 9), "bytes");
    Files::DeleteForced(At(u"g"_s));
    EXPECT_EQ(file.Read(0, 9), "bytes");
}

TEST_F(FileTest, WritingToAFileOpenedToBeReadRaises) {
    File file = File::Open(Make(u"f"_s, "bytes"), File::Access::Read);
    EXPECT_NE(NumberRaisedBy([&] { file.Write(0, "x"); }), 0);
    EXPECT_NE(NumberRaisedBy([&] { file.SetLength(0); }), 0);
    EXPECT_EQ(BytesOf(u"f"_s), "bytes");
}

TEST_F(FileTest, TheStateTellsAnotherFileInItsPlaceAnotherLengthAndALaterWrite) {
    const QString path = Make(u"f"_s, "bytes");
    File file = File::Open(path, File::Access::ReadWrite);
    const FileState before = file.State();
    EXPECT_FALSE(before.Identity.isEmpty());
    EXPECT_EQ(before.Length, 5);
    EXPECT_EQ(StateOf(path), before);
    file.Write(5, "!");
    EXPECT_NE(file.State(), before);
    EXPECT_EQ(StateOf(path).Length, 6);
    EXPECT_EQ(StateOf(path).Identity, before.Identity);
    file.Close();
    Files::Replace(Make(u"g"_s, "bytes"), path);
    EXPECT_NE(StateOf(path).Identity, before.Identity);
}

TEST_F(FileTest, AFileTellsTheTimeOfItsLastWrite) {
    const QString path = Make(u"f"_s, "bytes");
    QFile native(Paths::ToNative(path));
    ASSERT_TRUE(native.open(QIODevice::ReadWrite));
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(1'062'277'729'250);
    ASSERT_TRUE(native.setFileTime(time, QFileDevice::FileModificationTime));
    native.close();
    EXPECT_EQ(File::Open(path, File::Access::Read).Modified(), time);
    EXPECT_EQ(Files::ModifiedTime(path), time);
}

TEST_F(FileTest, NoFileAndAFolderHaveNoState) {
    EXPECT_EQ(StateOf(At(u"none"_s)), FileState());
    Files::MakeFolder(At(u"folder"_s));
    EXPECT_TRUE(StateOf(At(u"folder"_s)).Identity.isEmpty());
}

TEST_F(FileTest, ReadingAWholeFileGivesItsBytesOrRaises) {
    Make(u"f"_s, QByteArray("\0\r\n\x1A\xFF", 5));
    EXPECT_EQ(ReadWhole(At(u"f"_s)), QByteArray("\0\r\n\x1A\xFF", 5));
    Make(u"empty"_s, "");
    EXPECT_EQ(ReadWhole(At(u"empty"_s)), "");
    EXPECT_EQ(NumberRaisedBy([&] { ReadWhole(At(u"none"_s)); }), 53);
    Files::MakeFolder(At(u"folder"_s));
    EXPECT_NE(NumberRaisedBy([&] { ReadWhole(At(u"folder"_s)); }), 0);
}
