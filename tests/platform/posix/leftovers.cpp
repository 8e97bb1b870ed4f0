// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/PrivateName.h"
#include "platform/Refusals.h"
#include "platform/WriteAside.h"
#include "tests/platform/InAFolder.h"
#include "tests/platform/posix/AnotherUser.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

class LeftoversTest : public InAFolder {
protected:
    /// A file as a process leaves it that died an hour ago.
    QString Leave(const QString& name) const {
        QString path = Make(name, "half");
        const timespec hourAgo{std::time(nullptr) - 3600, 0};
        const std::array<timespec, 2> times{hourAgo, hourAgo};
        EXPECT_EQ(::utimensat(AT_FDCWD, Native(path).constData(), times.data(), 0), 0);
        return path;
    }

    static QByteArray Native(const QString& path) { return Paths::EncodeNative(Paths::ToNativeAsGiven(path)); }
};

} // namespace

TEST_F(LeftoversTest, WhatAKilledProcessLeftGoesWithTheNextWritingInItsFolder) {
    const QString left = Leave(PrivateName());
    const QString users = Leave(u"~brindock-notes.txt"_s);
    WriteWhole(At(u"f"_s), "new");
    EXPECT_FALSE(Files::FileExists(left));
    EXPECT_TRUE(Files::FileExists(users)) << "a name of the user's own";
}

TEST_F(LeftoversTest, WhatIsWrittenToNowStays) {
    const QString young = Make(PrivateName(), "half");
    WriteWhole(At(u"f"_s), "new");
    EXPECT_TRUE(Files::FileExists(young));
}

TEST_F(LeftoversTest, WhatALivingProcessHoldsStays) {
    const QString held = Leave(PrivateName());
    const int file = ::open(Native(held).constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(file, LOCK_EX), 0);
    WriteWhole(At(u"f"_s), "new");
    EXPECT_TRUE(Files::FileExists(held));
    ::close(file);
}

TEST_F(LeftoversTest, AFileAsideIsHeldWhileItIsWritten) {
    WriteAside aside(At(u"f"_s));
    const int file = ::open(Native(aside.AsidePath()).constData(), O_RDONLY | O_CLOEXEC);
    EXPECT_NE(::flock(file, LOCK_EX | LOCK_NB), 0);
    ::close(file);
}

TEST_F(LeftoversTest, AFileThatCantBeLookedAtIsNamedAmongTheRefusals) {
    ASSERT_EQ(::chmod(Native(At({}).chopped(1)).constData(), 0755), 0);
    Files::MakeFolder(At(u"closed"_s));
    ASSERT_EQ(::chmod(Native(At(u"closed"_s)).constData(), 0), 0);
    const AnotherUser user;
    Refusals::Forget();
    EXPECT_FALSE(Files::FileExists(At(u"missing"_s)));
    EXPECT_EQ(Refusals::All(), QStringList()) << "that nothing stands there is an answer";
    EXPECT_FALSE(Files::FileExists(At(u"closed\\f"_s)));
    EXPECT_TRUE(Refusals::All().join(u'\n').contains(u"closed/f: Permission denied"_s));
    Refusals::Forget();
}
