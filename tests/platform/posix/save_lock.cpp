// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/SaveLock.h"

#include "platform/FolderLock.h"
#include "platform/LockedFile.h"
#include "platform/WriteAside.h"
#include "tests/platform/InAFolder.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

class SaveLockTest : public InAFolder {};

} // namespace

TEST_F(SaveLockTest, TheSaveOfAnotherProgramIsWaitedFor) {
    std::array<int, 2> pipes{};
    ASSERT_EQ(::pipe(pipes.data()), 0);
    Make(u"a"_s, "old");
    const pid_t other = ::fork();
    if (other == 0) {
        const SaveLock lock(At(u"a"_s));
        char byte = 1;
        static_cast<void>(::write(pipes[1], &byte, 1));
        ::usleep(100'000);
        WriteWhole(At(u"a"_s), "new");
        ::_exit(0);
    }
    char byte = 0;
    ASSERT_EQ(::read(pipes[0], &byte, 1), 1);
    const SaveLock lock(At(u"a"_s));
    EXPECT_EQ(BytesOf(u"a"_s), "new") << "not before the other one had saved";
    ::waitpid(other, nullptr, 0);
}

TEST_F(SaveLockTest, AProcessMayHoldItTwiceAndLetsGoAtTheEnd) {
    const QString path = Make(u"a"_s, "old");
    std::optional<SaveLock> first(path);
    { const SaveLock second(path); }
    File other;
    EXPECT_EQ(LockForSave(path, other), LockResult::Taken);
    first.reset();
    EXPECT_EQ(LockForSave(path, other), LockResult::Held);
}

TEST_F(SaveLockTest, AProgramThatHasTheFolderToItselfStopsNoSave) {
    const FolderLock folder(At({}).chopped(1));
    ASSERT_TRUE(folder.Held());
    File held;
    EXPECT_EQ(LockForSave(Make(u"a"_s, "old"), held), LockResult::Held);
}

TEST_F(SaveLockTest, WhereNoLockIsToBeHadAllGoesOn) {
    EXPECT_NO_THROW(SaveLock(At(u"missing\\a"_s)));
}
