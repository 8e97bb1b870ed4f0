// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"

#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/RuntimeError.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class PathsTest : public testing::Test {
protected:
    ~PathsTest() override { Paths::ForgetPrefixes(); }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(PathsTest, ConvertsTheSeparatorsBothWays) {
    EXPECT_EQ(Paths::FromNative(u"/home/me/a.big"_s), u"\\home\\me\\a.big"_s);
    EXPECT_EQ(Paths::ToNative(u"\\no such\\folder\\a.big"_s), u"/no such/folder/a.big"_s);
}

TEST_F(PathsTest, ABackslashInsideANameComesBack) {
    const QString native = folder_.path() + u"/odd\\name"_s;
    EXPECT_EQ(Paths::ToNative(Paths::FromNative(native)), native);
    EXPECT_EQ(Paths::FromNative(native).count(u'\\'), native.count(u'/'));
}

TEST_F(PathsTest, BytesThatAreNoUtf8ComeBack) {
    const QByteArray bytes("/tmp/\xE9t\xC3\xA9\xFF.map");
    EXPECT_EQ(Paths::EncodeNative(Paths::DecodeNative(bytes)), bytes);
    EXPECT_EQ(Paths::DecodeNative("/tmp/\xC3\xA9"), u"/tmp/é"_s);
}

TEST_F(PathsTest, FollowsADriveThroughThePrefixOfThePath) {
    QDir(folder_.path()).mkpath(u"one/drive_c/Games/Gen"_s);
    QDir(folder_.path()).mkpath(u"two/dosdevices"_s);
    QDir(folder_.path()).mkpath(u"two/real/Games/ZH"_s);
    ASSERT_EQ(::symlink("../real", (folder_.path() + u"/two/dosdevices/c:"_s).toUtf8().constData()), 0);
    Paths::UsePrefix(u"C:\\Games\\Gen\\"_s, folder_.path() + u"/one"_s);
    Paths::UsePrefix(u"C:\\Games\\ZH\\"_s, folder_.path() + u"/two"_s);
    EXPECT_EQ(Paths::ToNative(u"C:\\games\\gen"_s), folder_.path() + u"/one/drive_c/Games/Gen"_s);
    EXPECT_EQ(Paths::ToNative(u"c:\\Games\\zh\\x.big"_s), folder_.path() + u"/two/dosdevices/c:/Games/ZH/x.big"_s);
    EXPECT_EQ(Paths::PrefixFor(u"C:\\Games\\ZH\\x.big"_s), folder_.path() + u"/two"_s);
}

TEST_F(PathsTest, APathFromTheRootOnIsAbsoluteWhereverItIsSaid) {
    EXPECT_EQ(Paths::AbsoluteIn(u"C:\\Games"_s, u"\\home\\me\\"_s), u"\\home\\me"_s);
    EXPECT_EQ(Paths::AbsoluteIn(u"\\home"_s, u"me\\..\\you\\.\\*.*"_s), u"\\home\\you\\*.*"_s);
    EXPECT_EQ(Paths::AbsoluteIn(u"\\home"_s, u"..\\..\\.."_s), u"\\"_s);
}

TEST_F(PathsTest, AnUnknownDriveLeadsNowhere) {
    EXPECT_FALSE(Files::FileExists(u"Q:\\x.big"_s));
    EXPECT_THROW(Files::MakeFolder(u"Q:\\x"_s), RuntimeError);
}

TEST_F(PathsTest, APipeIsNoFileAndDoesNotHang) {
    const QString native = folder_.path() + u"/pipe"_s;
    ASSERT_EQ(::mkfifo(native.toUtf8().constData(), 0600), 0);
    EXPECT_THROW(NumberedFiles::Open(1, Paths::FromNative(native), NumberedFiles::Access::Read), RuntimeError);
}

TEST_F(PathsTest, LinksInACircleEndTheWalk) {
    QDir(folder_.path()).mkpath(u"a/b"_s);
    ASSERT_EQ(::symlink("../..", (folder_.path() + u"/a/b/up"_s).toUtf8().constData()), 0);
    NumberedFiles::Open(1, Paths::FromNative(folder_.path() + u"/a/f"_s), NumberedFiles::Access::Replace);
    NumberedFiles::Close(1);
    EXPECT_EQ(Files::ListFolderFiles(Paths::FromNative(folder_.path()), true).size(), 1U);
}
