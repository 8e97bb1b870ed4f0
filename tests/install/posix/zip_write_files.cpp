// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files that are more than bytes and a name: links, pipes, huge ones, ones on a full disk.
#include "platform/File.h"
#include "platform/Files.h"
#include "tests/install/ZipTest.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <sys/stat.h>
#include <unistd.h>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

class ZipFiles : public ZipTest {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNative(At(name)));
    }

    void Link(const QString& name, const QByteArray& target) const {
        ASSERT_EQ(::symlink(target.constData(), Native(name).constData()), 0);
    }

    int AddingError(const QString& path) {
        return ErrorOf([&] { zip_.FileAdd(path, ZipClass::Relative, true); });
    }
};

} // namespace

TEST_F(ZipFiles, AWalkLeavesLinksThatLeadOut) {
    Put(u"outside\\secret.t"_s);
    Put(u"f\\a.t"_s);
    Put(u"f\\sub\\b.t"_s);
    Link(u"f\\file.t"_s, "../outside/secret.t");
    Link(u"f\\sub\\file.t"_s, "../../outside/secret.t");
    Link(u"f\\folder"_s, "../outside");
    Link(u"f\\nowhere.t"_s, "gone");
    EXPECT_EQ(zip_.FileAdd(u"f\\*.*"_s, 2, true), 2);
    EXPECT_EQ(Names(), (QStringList{u"f\\a.t"_s, u"f\\sub\\b.t"_s}));
}

TEST_F(ZipFiles, AWalkForOneNameLeavesLinksThatLeadOut) {
    Put(u"outside\\secret.t"_s);
    Put(u"f\\sub\\b.t"_s);
    Link(u"f\\sub\\file.t"_s, "../../outside/secret.t");
    EXPECT_EQ(zip_.FileAdd(u"f\\file.t"_s, 2, true), 0);
}

TEST_F(ZipFiles, AWalkTakesALinkToAFileBelow) {
    Put(u"f\\sub\\b.t"_s, "below");
    Link(u"f\\a.t"_s, "sub/b.t");
    Link(u"f\\sub\\c.t"_s, "b.t");
    EXPECT_EQ(zip_.FileAdd(u"f\\*.*"_s, 2, true), 3);
    EXPECT_EQ(Names(), (QStringList{u"f\\a.t"_s, u"f\\sub\\b.t"_s, u"f\\sub\\c.t"_s}));
    EXPECT_EQ(zip_.SizeUncompressed(1), 5);
}

TEST_F(ZipFiles, AWalkEndsWhereLinksLeadAroundInCircles) {
    Put(u"f\\sub\\b.t"_s);
    Link(u"f\\circle"_s, ".");
    Link(u"f\\sub\\up"_s, "..");
    Link(u"f\\loop.t"_s, "loop.t");
    EXPECT_EQ(zip_.FileAdd(u"f\\*.*"_s, 2, true), 1);
}

TEST_F(ZipFiles, AWalkBelowAFolderThatIsALinkItselfTakesItsFiles) {
    Put(u"real\\a.t"_s);
    Put(u"real\\b.t"_s);
    Link(u"f"_s, "real");
    Link(u"real\\c.t"_s, "a.t");
    EXPECT_EQ(zip_.FileAdd(u"f\\*.*"_s, 2, true), 3);
}

TEST_F(ZipFiles, ALinkThatIsNamedIsFollowed) {
    Put(u"outside\\a.t"_s, "1234");
    Link(u"link.t"_s, "outside/a.t");
    EXPECT_EQ(zip_.FileAdd(u"link.t"_s, 2, false), 1);
    EXPECT_EQ(zip_.FileName(1), u"link.t"_s);
    EXPECT_EQ(zip_.SizeUncompressed(1), 4);
}

TEST_F(ZipFiles, AWalkTakesPlainFilesOnly) {
    Put(u"f\\a.t"_s);
    Files::MakeFolder(At(u"f\\folder.t"_s));
    ASSERT_EQ(::mkfifo(Native(u"f\\pipe.t"_s).constData(), 0600), 0);
    ASSERT_EQ(::mkfifo(Native(u"f\\folder.t\\pipe.t"_s).constData(), 0600), 0);
    Link(u"f\\zeros.t"_s, "/dev/zero");
    EXPECT_EQ(zip_.FileAdd(u"f\\*.*"_s, 2, true), 1);
    EXPECT_EQ(zip_.FileAdd(u"f\\gone\\..\\pipe.tt"_s, 2, true), 0);
}

TEST_F(ZipFiles, WhatIsNamedAndCanNotBeOpenedIsRaised) {
    ASSERT_EQ(::mkfifo(Native(u"pipe.t"_s).constData(), 0600), 0);
    EXPECT_EQ(AddingError(u"pipe.t"_s), 75);
    EXPECT_TRUE(failure_.contains(u"pipe.t"_s));
    if (::geteuid() != 0) { // root opens everything
        Put(u"f\\a.t"_s);
        Put(u"f\\b.t"_s);
        ASSERT_EQ(::chmod(Native(u"f\\a.t"_s).constData(), 0), 0);
        EXPECT_EQ(AddingError(u"f\\*.*"_s), 70);
        EXPECT_EQ(zip_.FileCount(), 0) << "the walk ends there";
    }
}

TEST_F(ZipFiles, ANameThatEndsInADotIsFoundInSubfoldersToo) {
    Put(u"f\\sub\\odd."_s);
    Put(u"f\\tub\\odd"_s);
    Put(u"f\\tub\\odd."_s);
    EXPECT_EQ(zip_.FileAdd(u"f\\odd"_s, 2, true), 2);
    EXPECT_EQ(Names(), (QStringList{u"f\\sub\\odd."_s, u"f\\tub\\odd"_s}));
}

TEST_F(ZipFiles, AFileBeyondTheSizesOfTheFormatIsRefusedUnread) {
    for (const qint64 length : {qint64{2'126'222'000}, qint64{1} << 31U, qint64{1} << 33U}) {
        File::Open(At(u"huge.big"_s), File::Access::ReadWrite).SetLength(length);
        EXPECT_EQ(AddingError(u"huge.big"_s), 6) << length;
        EXPECT_TRUE(failure_.contains(u"huge.big"_s));
    }
}

TEST_F(ZipFiles, ADiskThatIsFullAtAnyByteLeavesWhatStoodThere) {
    const QByteArray old(300, 'o');
    const QString target = Put(u"out.zip"_s, old);
    zip_.FileAdd(Put(u"a.t"_s, "hello"), 0, false);
    zip_.FileAdd(Put(u"b.t"_s, "hi"), 0, false);
    const qsizetype whole = Written().size();
    for (qsizetype room = 0; room < whole; ++room) {
        const FileLengthLimit limit(static_cast<rlim_t>(room));
        EXPECT_NE(ErrorOf([&] { static_cast<void>(zip_.WriteZip(target, true)); }), 0) << room;
        EXPECT_TRUE(failure_.contains(u"out.zip"_s)) << failure_.toStdString();
        EXPECT_EQ(World::ReadFile(target), old) << room;
        EXPECT_NE(ErrorOf([&] { static_cast<void>(zip_.WriteZip(At(u"new.zip"_s), false)); }), 0) << room;
    }
    EXPECT_EQ(Files::ListFolder(At(u"*.zip"_s)) + Files::ListFolder(At(u"~*"_s)), QStringList{u"out.zip"_s});
    EXPECT_TRUE(zip_.WriteZip(target, true));
    EXPECT_EQ(World::ReadFile(target), Written());
}

TEST_F(ZipFiles, AWriteProtectedTargetStays) {
    const QString target = Put(u"out.zip"_s, "old");
    ASSERT_EQ(::chmod(Native(u"out.zip"_s).constData(), 0444), 0);
    zip_.FileAdd(Put(u"a.t"_s), 0, false);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(zip_.WriteZip(target, true)); }), 70);
    EXPECT_EQ(World::ReadFile(target), "old");
}

TEST_F(ZipFiles, TimesAreTheUsersOwn) {
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "EAST-9");
    ::tzset();
    PutAt(QDateTime(QDate(2004, 12, 31), QTime(20, 0), Qt::UTC), u"a.t"_s, "x");
    zip_.FileAdd(u"a.t"_s, 0, false);
    before.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", before);
    ::tzset();
    // Five in the morning of the next year.
    EXPECT_EQ(Written().sliced(10, 4), Bytes("\x00\x28\x21\x32"));
}
