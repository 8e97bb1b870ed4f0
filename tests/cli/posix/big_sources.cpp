// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/BigCommandTest.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class BigSources : public BigCommandTest {
protected:
    QByteArray Create() {
        return Failure({u"big"_s, u"create"_s, Native(u"x.big"_s), u"--version"_s, u"0"_s, Native(u"in"_s)});
    }

    [[nodiscard]] QByteArray Path(const QString& name) const { return Native(name).toUtf8(); }
};

} // namespace

TEST_F(BigSources, APipeInTheFolderIsRefusedByName) {
    world_.WriteFile(u"in\\a"_s, "1");
    world_.WriteFile(u"in\\b"_s, "2");
    ASSERT_EQ(::mkfifo(Path(u"in/pipe"_s).constData(), 0600), 0);
    EXPECT_TRUE(Create().contains("pipe"));
    EXPECT_FALSE(Files::FileExists(At(u"x.big"_s)));
}

TEST_F(BigSources, AFileThatCanNotBeReadIsRefusedByName) {
    if (::geteuid() == 0) { // nothing is unreadable for root: a link to itself is for everybody
        ASSERT_EQ(::mkdir(Path(u"in"_s).constData(), 0700), 0);
        ASSERT_EQ(::symlink("loop", Path(u"in/loop"_s).constData()), 0);
    } else {
        world_.WriteFile(u"in\\loop"_s, "1");
        ASSERT_EQ(::chmod(Path(u"in/loop"_s).constData(), 0), 0);
    }
    world_.WriteFile(u"in\\a"_s, "1");
    world_.WriteFile(u"in\\b"_s, "2");
    EXPECT_TRUE(Create().contains("loop"));
    EXPECT_FALSE(Files::FileExists(At(u"x.big"_s)));
}

TEST_F(BigSources, AddingAFolderOrADeviceIsRefusedByName) {
    TwoEntries();
    for (const QString& source : {Native(u"."_s), u"/dev/null"_s}) {
        const QByteArray line =
            Failure({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"out.big"_s), u"--add"_s, u"n="_s + source});
        EXPECT_TRUE(line.contains(": ")) << line.constData();
        EXPECT_FALSE(Files::FileExists(At(u"out.big"_s)));
    }
}

TEST_F(BigSources, AWriteProtectedArchiveIsNotSavedOver) {
    TwoEntries();
    ASSERT_EQ(::chmod(Path(u"two.big"_s).constData(), 0444), 0);
    const QByteArray before = World::ReadFile(At(u"two.big"_s));
    EXPECT_TRUE(Failure({u"big"_s, u"delete"_s, Native(u"two.big"_s), u"a.ini"_s, u"--exact"_s}).contains("two.big"));
    EXPECT_EQ(World::ReadFile(At(u"two.big"_s)), before);
}
