// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/WriteAside.h"
#include "tests/platform/InAFolder.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class WriteAsideKeeps : public InAFolder {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNativeAsGiven(At(name)));
    }

    [[nodiscard]] struct stat StatusOf(const QString& name) const {
        struct stat status {};

        EXPECT_EQ(::lstat(Native(name).constData(), &status), 0);
        return status;
    }

    [[nodiscard]] mode_t ModeOf(const QString& name) const { return StatusOf(name).st_mode & 07777; }

    void Link(const QByteArray& to, const QString& name) const {
        ASSERT_EQ(::symlink(to.constData(), Native(name).constData()), 0);
    }

    [[nodiscard]] QStringList Names() const {
        QStringList names = Files::ListFolder(At(u"*"_s), true);
        names.sort();
        return names;
    }
};

} // namespace

TEST_F(WriteAsideKeeps, ThePermissionsOfTheOldFile) {
    Make(u"f"_s, "old");
    for (const mode_t mode : {0600U, 0644U, 0755U, 0222U, 0666U}) {
        ASSERT_EQ(::chmod(Native(u"f"_s).constData(), mode), 0);
        WriteWhole(At(u"f"_s), "new");
        EXPECT_EQ(ModeOf(u"f"_s), mode);
    }
}

TEST_F(WriteAsideKeeps, TheUsualPermissionsOfANewFile) {
    const mode_t old = ::umask(027);
    WriteWhole(At(u"f"_s), "new");
    ::umask(old);
    EXPECT_EQ(ModeOf(u"f"_s), 0640U);
}

TEST_F(WriteAsideKeeps, OthersFromReadingWhatIsNotCommitted) {
    Make(u"f"_s, "old");
    WriteAside aside(At(u"f"_s));
    EXPECT_EQ(ModeOf(Paths::LastPart(aside.AsidePath())), 0600U);
}

TEST_F(WriteAsideKeeps, TheOwnerWhereThatIsAllowed) {
    Make(u"f"_s, "old");
    constexpr uid_t somebody = 12'345;
    constexpr gid_t someGroup = 23'456;
    const bool allowed = ::chown(Native(u"f"_s).constData(), somebody, someGroup) == 0;
    WriteWhole(At(u"f"_s), "new");
    EXPECT_EQ(StatusOf(u"f"_s).st_uid, allowed ? somebody : ::geteuid());
    EXPECT_EQ(StatusOf(u"f"_s).st_gid, allowed ? someGroup : ::getegid());
}

TEST_F(WriteAsideKeeps, LinksAndWritesWhereTheyLead) {
    Files::MakeFolder(At(u"folder"_s));
    Make(u"folder\\f"_s, "old");
    Link("folder/f", u"link"_s);
    Link("link", u"chain"_s);
    WriteWhole(At(u"chain"_s), "new");
    EXPECT_TRUE(Files::IsLink(At(u"chain"_s)));
    EXPECT_TRUE(Files::IsLink(At(u"link"_s)));
    EXPECT_FALSE(Files::IsLink(At(u"folder\\f"_s)));
    EXPECT_EQ(BytesOf(u"folder\\f"_s), "new");
    EXPECT_EQ(Files::ListFolder(At(u"folder\\*"_s)), QStringList{u"f"_s});
}

TEST_F(WriteAsideKeeps, ALinkToNowhereAndMakesTheFileThere) {
    Link("not yet", u"link"_s);
    WriteWhole(At(u"link"_s), "new");
    EXPECT_TRUE(Files::IsLink(At(u"link"_s)));
    EXPECT_EQ(BytesOf(u"not yet"_s), "new");
}

TEST_F(WriteAsideKeeps, FromGoingAroundInACircleOfLinks) {
    Link("two", u"one"_s);
    Link("one", u"two"_s);
    EXPECT_EQ(NumberRaisedBy([&] { WriteWhole(At(u"one"_s), "new"); }), 76);
    EXPECT_EQ(Names(), (QStringList{u"one"_s, u"two"_s}));
}

TEST_F(WriteAsideKeeps, AProtectedFileAlsoFromTheAdministrator) {
    Make(u"f"_s, "old");
    ASSERT_EQ(::chmod(Native(u"f"_s).constData(), 0444), 0);
    EXPECT_EQ(NumberRaisedBy([&] { WriteAside(At(u"f"_s)); }), 70);
    EXPECT_TRUE(MessageOf([&] { WriteAside(At(u"f"_s)); }).contains(Paths::ToNative(At(u"f"_s)) + u':'));
    EXPECT_EQ(BytesOf(u"f"_s), "old");
    EXPECT_EQ(Names(), QStringList{u"f"_s});
}

TEST_F(WriteAsideKeeps, PipesAndDevicesAsTheyAre) {
    ASSERT_EQ(::mkfifo(Native(u"pipe"_s).constData(), 0666), 0);
    Link("/dev/null", u"device"_s);
    EXPECT_EQ(NumberRaisedBy([&] { WriteAside(At(u"pipe"_s)); }), 75);
    EXPECT_EQ(NumberRaisedBy([&] { WriteAside(At(u"device"_s)); }), 75);
    EXPECT_EQ(Names(), (QStringList{u"device"_s, u"pipe"_s}));
}

TEST_F(WriteAsideKeeps, TheNameThatWasAskedForInMessagesOfALink) {
    Files::MakeFolder(At(u"folder"_s));
    Link("folder", u"link"_s);
    const QString message = MessageOf([&] { WriteAside(At(u"link"_s)); });
    EXPECT_TRUE(message.contains(u"/link:"_s)) << qPrintable(message);
}

TEST_F(WriteAsideKeeps, TheOldFileWhereTheProcessDiesBeforeTheCommit) {
    Make(u"f"_s, "old");
    const pid_t child = ::fork();
    if (child == 0) {
        WriteAside aside(At(u"f"_s));
        aside.Out().Write(0, "half of the new");
        ::_exit(0);
    }
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    EXPECT_EQ(BytesOf(u"f"_s), "old");
    EXPECT_EQ(Names().size(), 2) << "what was put aside is there and has another name";
    WriteWhole(At(u"f"_s), "new");
    EXPECT_EQ(BytesOf(u"f"_s), "new");
}
