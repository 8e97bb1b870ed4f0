// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"

#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/RuntimeError.h"
#include "tests/platform/Scratch.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class PathsTest : public testing::Test {
protected:
    ~PathsTest() override { Paths::ForgetPrefixes(); }

    /// A folder that Wine would take for a prefix, with a folder on its drive C.
    QString MakePrefix(const QString& name, const QString& folder = u"Games"_s) {
        QString prefix = folder_.path() + u'/' + name;
        QDir().mkpath(prefix + u"/drive_c/"_s + folder);
        EXPECT_TRUE(QFile(prefix + u"/system.reg"_s).open(QIODevice::WriteOnly));
        return prefix;
    }

    QTemporaryDir folder_;
    Variable prefixes_{"BRINDOCK_WINE_PREFIXES", ""};
    Variable winePrefix_{"WINEPREFIX", std::nullopt};
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

TEST_F(PathsTest, APathCanBeReadInAPrefixOfItsOwn) {
    const QString one = MakePrefix(u"one"_s);
    const QString two = MakePrefix(u"two"_s);
    Paths::UsePrefix(u"C:\\Games\\"_s, one);
    EXPECT_EQ(Paths::ToNative(u"C:\\games\\x"_s), one + u"/drive_c/Games/x"_s);
    EXPECT_EQ(Paths::ToNative(Paths::InPrefix(two, u"C:\\games\\x"_s)), two + u"/drive_c/Games/x"_s);
    EXPECT_EQ(Paths::InPrefix(two, u"\\home\\me"_s), u"\\home\\me"_s);
    EXPECT_EQ(Paths::InPrefix(two, u"Z:\\home\\me"_s), u"\\home\\me"_s);
    EXPECT_EQ(Paths::InPrefix(two, u"D:\\x"_s), u"D:\\x"_s);
    EXPECT_EQ(Paths::InPrefix({}, u"C:\\x"_s), u"C:\\x"_s);
}

TEST_F(PathsTest, APathThatLeadsIntoAnotherPrefixBelongsToThatOne) {
    const QString one = MakePrefix(u"one"_s);
    const QString two = MakePrefix(u"two"_s);
    QDir().mkpath(one + u"/dosdevices"_s);
    ASSERT_TRUE(QFile::link(two + u"/drive_c/Games"_s, one + u"/dosdevices/g:"_s));
    ASSERT_TRUE(QFile::link(u"/"_s, one + u"/dosdevices/z:"_s));
    ASSERT_TRUE(QFile::link(u"../drive_c"_s, one + u"/dosdevices/c:"_s));
    EXPECT_EQ(Paths::PrefixFor(u"C:\\Games\\x.exe"_s, one), one);
    EXPECT_EQ(Paths::ToNative(Paths::InPrefix(one, u"c:\\games"_s)), one + u"/drive_c/Games"_s);
    EXPECT_EQ(Paths::PrefixFor(u"G:\\x.exe"_s, one), two);
    const QString inside = Paths::FromNative(two) + u"\\drive_c\\Games\\x.exe"_s;
    EXPECT_EQ(Paths::PrefixFor(u"Z:"_s + inside, one), two);
    EXPECT_EQ(Paths::PrefixFor(inside), two);
    EXPECT_EQ(Paths::PrefixFor(Paths::FromNative(folder_.path()) + u"\\x.exe"_s), QString());
}

TEST_F(PathsTest, ADriveWithoutARuleIsTheOneThatWineItselfWouldTake) {
    const QString home = MakePrefix(u".wine"_s);
    const QString named = MakePrefix(u"named"_s);
    const Variable atHome("HOME", folder_.path().toUtf8());
    EXPECT_TRUE(Paths::PrefixFor(u"C:\\Games"_s).isEmpty()) << "The variable names none.";
    {
        const Variable searched("BRINDOCK_WINE_PREFIXES", std::nullopt);
        EXPECT_EQ(Paths::ToNative(u"C:\\games"_s), home + u"/drive_c/Games"_s);
        const Variable chosen("WINEPREFIX", named.toUtf8());
        EXPECT_EQ(Paths::ToNative(u"C:\\games"_s), named + u"/drive_c/Games"_s);
    }
    const Variable listed("BRINDOCK_WINE_PREFIXES", (u"/nowhere:"_s + named).toUtf8());
    EXPECT_EQ(Paths::ToNative(u"C:\\games"_s), named + u"/drive_c/Games"_s);
}

TEST_F(PathsTest, APathWithADriveLetterCanBeTyped) {
    EXPECT_EQ(Paths::Absolute(u"C:\\Games\\.\\x\\..\\a b.big"_s), u"C:\\Games\\a b.big"_s);
    const QString cwd = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder_.path()));
    ASSERT_TRUE(QFile(u"C:\\x"_s).open(QIODevice::WriteOnly));
    EXPECT_EQ(Paths::ToNative(Paths::Absolute(u"C:\\x"_s)), folder_.path() + u"/C:\\x"_s);
    ASSERT_TRUE(QDir::setCurrent(cwd));
}

TEST_F(PathsTest, ADriveThatNobodyKnowsIsReadAsItWasGiven) {
    const QString native = Paths::ToNative(u"C:\\Games\\x.big"_s);
    EXPECT_EQ(Paths::EncodeShown(native + u": missing"_s), "C:/Games/x.big: missing");
    EXPECT_EQ(Paths::FromNative(native), u"C:\\Games\\x.big"_s);
    EXPECT_FALSE(QFile::exists(native));
    EXPECT_THROW(Files::MakeFolders(u"C:\\Games\\new"_s), RuntimeError);
    EXPECT_FALSE(QFile::exists(u"C:"_s));
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
