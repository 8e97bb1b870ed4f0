// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a file that is saved over keeps.
#include "csf/format/CsfTable.h"

#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/csf/Tables.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class CsfKeeps : public TableTest {
protected:
    CsfKeeps() { mCSF::CsfStrings = {{u"b"_s, u"a"_s}}; }

    static QByteArray Native(const QString& path) { return Paths::EncodeNative(Paths::ToNative(path)); }

    static struct stat StatusOf(const QString& path) {
        struct stat status {};

        EXPECT_EQ(::stat(Native(path).constData(), &status), 0);
        return status;
    }

    /// Both roads of a save.
    template <typename Check>
    static void ForBoth(const QString& path, Check&& check) {
        EXPECT_TRUE(mCSF::WriteCSF(path, 0));
        check();
        CsfTable{0, {{u"b"_s, u"a"_s}}}.Write(path);
        check();
    }
};

} // namespace

TEST_F(CsfKeeps, ThePermissions) {
    const QString path = Put(u"a.csf"_s, "old");
    for (const mode_t mode : {0600U, 0640U, 0666U, 0755U}) {
        ASSERT_EQ(::chmod(Native(path).constData(), mode), 0);
        ForBoth(path, [&] { EXPECT_EQ(StatusOf(path).st_mode & 07777U, mode); });
    }
}

TEST_F(CsfKeeps, TheUsualPermissionsForANewFile) {
    const mode_t before = ::umask(027);
    EXPECT_TRUE(mCSF::WriteCSF(At(u"new.csf"_s), 0));
    ::umask(before);
    EXPECT_EQ(StatusOf(At(u"new.csf"_s)).st_mode & 07777U, 0640U);
}

TEST_F(CsfKeeps, TheGroupOrWhatItMayDo) {
    const QString path = Put(u"a.csf"_s, "old");
    const gid_t group = ::geteuid() == 0 ? 4242 : ::getegid();
    ASSERT_EQ(::chown(Native(path).constData(), static_cast<uid_t>(-1), group), 0);
    ForBoth(path, [&] { EXPECT_EQ(StatusOf(path).st_gid, group); });
}

TEST_F(CsfKeeps, ALinkAndTheFileBehindIt) {
    const QString real = Put(u"mod\\real.csf"_s, "old");
    const QString link = At(u"link.csf"_s);
    ASSERT_EQ(::symlink("mod/real.csf", Native(link).constData()), 0);
    ForBoth(link, [&] {
        EXPECT_TRUE(Files::IsLink(link));
        EXPECT_EQ(World::ReadFile(real), CsfHeader(1) + EntryRecords("a", "b"));
        EXPECT_FALSE(Files::FileExists(real + u".sav"_s));
        EXPECT_FALSE(Files::FileExists(link + u".sav"_s));
    });
}

TEST_F(CsfKeeps, TheBackupBehindALinkWhenTheSaveBreaksOff) {
    const QString real = Put(u"mod\\real.csf"_s, "old");
    const QString link = At(u"link.csf"_s);
    ASSERT_EQ(::symlink("mod/real.csf", Native(link).constData()), 0);
    mCSF::CsfStrings.assign(32769, {u"x"_s, u"a"_s});
    CsfSaves saves;
    EXPECT_FALSE(mCSF::WriteCSF(link, 0, &saves));
    EXPECT_EQ(saves.Aside, real + u".sav"_s);
    EXPECT_EQ(World::ReadFile(saves.Aside), "old");
    mCSF::CsfStrings.resize(1);
    EXPECT_TRUE(mCSF::WriteCSF(link, 0, &saves));
    EXPECT_EQ(World::ReadFile(real), CsfHeader(1) + EntryRecords("a", "x"));
    EXPECT_FALSE(Files::FileExists(real + u".sav"_s));
}
