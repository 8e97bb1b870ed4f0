// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Replays whose names are links, pipes, folders or no text, and those that nobody may read or delete.
#include "platform/FileNumbers.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "tests/personal/replay_bytes.h"
#include "tests/platform/posix/AnotherUser.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class ReplayFileKinds : public ReplayFolders {
protected:
    ReplayFileKinds() { Files::MakeFolders(Folder()); }

    [[nodiscard]] static QByteArray Native(const QString& name) {
        return Paths::EncodeNative(Paths::ToNative(Folder())) + Paths::EncodeNative(name);
    }

    static void Link(const QByteArray& target, const QString& name) {
        ASSERT_EQ(::symlink(target.constData(), Native(name).constData()), 0);
    }

    /// Expects that the listing ends in an error whose message names the file.
    int NumberNaming(const QString& name) {
        try {
            List();
        } catch (const RuntimeError& error) {
            EXPECT_TRUE(error.Description().startsWith(Paths::DecodeNative(Native(name))))
                << error.Description().toStdString();
            return error.Number();
        }
        return 0;
    }

    static bool Stands(const QString& name) {
        struct stat status {};

        return ::lstat(Native(name).constData(), &status) == 0;
    }
};

} // namespace

TEST_F(ReplayFileKinds, ALinkToAReplayIsListedAndDeletingItLeavesTheReplay) {
    const QString elsewhere = world_.WriteFile(u"elsewhere\\kept.dat"_s, SampleReplay());
    Link(Paths::ToNative(elsewhere).toUtf8(), u"link.rep"_s);
    EXPECT_EQ(List(), 1);
    EXPECT_EQ(Names(), QStringList{u"link"_s});
    list_.Select(0);
    bool done = false;
    list_.DeleteReplay(done);
    EXPECT_TRUE(done);
    EXPECT_FALSE(Stands(u"link.rep"_s));
    EXPECT_EQ(World::ReadFile(elsewhere), SampleReplay());
}

TEST_F(ReplayFileKinds, ALinkToAFolderIsNoReplay) {
    Link("/tmp", u"folder.rep"_s);
    EXPECT_EQ(List(), 0);
}

TEST_F(ReplayFileKinds, ALinkToNowhereOrToItselfEndsTheListingWithItsName) {
    Link("/nowhere/x", u"lost.rep"_s);
    EXPECT_EQ(NumberNaming(u"lost.rep"_s), 53);
    ASSERT_EQ(::unlink(Native(u"lost.rep"_s).constData()), 0);
    Link("loop.rep", u"loop.rep"_s);
    EXPECT_NE(NumberNaming(u"loop.rep"_s), 0);
    EXPECT_FALSE(NumberedFiles::IsOpen(FileNumbers::Replay));
}

TEST_F(ReplayFileKinds, APipeEndsTheListingWithItsNameAndDoesNotHang) {
    ASSERT_EQ(::mkfifo(Native(u"pipe.rep"_s).constData(), 0644), 0);
    EXPECT_EQ(NumberNaming(u"pipe.rep"_s), 75);
}

TEST_F(ReplayFileKinds, AReplayThatNobodyMayReadEndsTheListingWithItsName) {
    Put(u"a.rep"_s, SampleReplay());
    Put(u"closed.rep"_s, SampleReplay());
    ASSERT_EQ(::chmod(Native(u"closed.rep"_s).constData(), 0), 0);
    ASSERT_EQ(::chmod(Paths::ToNative(world_.Root()).toUtf8().constData(), 0755), 0);
    const AnotherUser nobody;
    EXPECT_EQ(NumberNaming(u"closed.rep"_s), 70);
    EXPECT_EQ(Names(), QStringList{u"a"_s});
    EXPECT_FALSE(NumberedFiles::IsOpen(FileNumbers::Replay));
}

TEST_F(ReplayFileKinds, AReplayThatCannotBeDeletedIsNotDone) {
    Put(u"a.rep"_s, SampleReplay());
    List();
    list_.Select(0);
    ASSERT_EQ(::chmod(Native({}).constData(), 0555), 0);
    ASSERT_EQ(::chmod(Paths::ToNative(world_.Root()).toUtf8().constData(), 0755), 0);
    bool done = false;
    {
        const AnotherUser nobody;
        list_.DeleteReplay(done);
    }
    EXPECT_FALSE(done);
    EXPECT_TRUE(Stands(u"a.rep"_s));
    ASSERT_EQ(::chmod(Native({}).constData(), 0755), 0);
}

TEST_F(ReplayFileKinds, ANameThatIsNoTextIsListedRenamedAndDeleted) {
    const QByteArray folder = Native({});
    const int file = ::open((folder + "caf\xE9.rep").constData(), O_WRONLY | O_CREAT, 0644);
    ASSERT_EQ(::write(file, SampleReplay().constData(), 300), 300);
    ::close(file);
    EXPECT_EQ(List(), 1);
    const QString name = Names()[0];
    list_.Rename(0, name + u'2');
    EXPECT_EQ(::access((folder + "caf\xE9"
                                 "2.rep")
                           .constData(),
                       F_OK),
              0);
    EXPECT_EQ(List(), 1);
    list_.Select(0);
    bool done = false;
    list_.DeleteReplay(done);
    EXPECT_TRUE(done);
    EXPECT_EQ(List(), 0);
}

TEST_F(ReplayFileKinds, DeletingANameWithAStarDeletesThatFileAlone) {
    Put(u"a*.rep"_s, SampleReplay());
    Put(u"ab.rep"_s, SampleReplay());
    List();
    EXPECT_EQ(Names(), QStringList({u"a*"_s, u"ab"_s}));
    list_.Select(0);
    bool done = false;
    list_.DeleteReplay(done);
    EXPECT_TRUE(done);
    EXPECT_FALSE(Stands(u"a*.rep"_s));
    EXPECT_TRUE(Stands(u"ab.rep"_s));
}

TEST_F(ReplayFileKinds, ARenameNeverTakesTheNameOfALink) {
    Put(u"a.rep"_s, SampleReplay());
    Link("/nowhere/x", u"b.rep"_s);
    Link("a.rep", u"c.rep"_s);
    ASSERT_EQ(::link(Native(u"a.rep"_s).constData(), Native(u"d.rep"_s).constData()), 0);
    EXPECT_EQ(NumberRaisedBy([&] { List(); }), 53);
    for (const QString& taken : {u"b"_s, u"c"_s, u"d"_s}) {
        list_.Rows().SetText(0, u"a"_s);
        EXPECT_EQ(NumberRaisedBy([&] { list_.Rename(0, taken); }), 58) << taken.toStdString();
        EXPECT_TRUE(Stands(u"a.rep"_s));
        EXPECT_TRUE(Stands(taken + u".rep"_s));
    }
}
