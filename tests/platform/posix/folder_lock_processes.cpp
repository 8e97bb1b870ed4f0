// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/FolderLock.h"
#include "tests/platform/InAFolder.h"
#include "tests/platform/posix/AnotherUser.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

using namespace Qt::StringLiterals;
using Result = FolderLock::Result;

namespace {

/// Another process that locks a folder and then waits to be killed.
class OtherProcess {
public:
    explicit OtherProcess(const QString& folder) {
        EXPECT_EQ(::pipe(told_.data()), 0);
        process_ = ::fork();
        if (process_ == 0) {
            const FolderLock lock(folder);
            const char answer = lock.Held() ? 'h' : 'n';
            static_cast<void>(!::write(told_[1], &answer, 1));
            for (;;)
                ::pause();
        }
    }

    ~OtherProcess() {
        Kill();
        ::close(told_[0]);
        ::close(told_[1]);
    }

    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    /// Waits until it has asked for the lock.
    [[nodiscard]] bool Holds() const {
        char answer = 0;
        return ::read(told_[0], &answer, 1) == 1 && answer == 'h';
    }

    void Kill() {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
            ::waitpid(process_, nullptr, 0);
        }
        process_ = 0;
    }

private:
    std::array<int, 2> told_{-1, -1};
    pid_t process_ = 0;
};

class FolderLockProcesses : public InAFolder {};

} // namespace

TEST_F(FolderLockProcesses, WhatAnotherProcessHasIsTakenUntilItDies) {
    Files::MakeFolder(At(u"Temp"_s));
    OtherProcess other(At(u"Temp"_s));
    ASSERT_TRUE(other.Holds());
    EXPECT_EQ(FolderLock(At(u"Temp"_s)).State(), Result::Taken);
    EXPECT_EQ(FolderLock(At(u"temp"_s)).State(), Result::Taken) << "by another spelling too";
    other.Kill();
    EXPECT_TRUE(FolderLock(At(u"Temp"_s)).Held());
}

TEST_F(FolderLockProcesses, AFolderThatMayNotBeReadHasNoLock) {
    ASSERT_EQ(::chmod(Paths::EncodeNative(Paths::ToNative(At({}))).constData(), 0755), 0);
    Files::MakeFolder(At(u"Temp"_s));
    ASSERT_EQ(::chmod(Paths::EncodeNative(Paths::ToNative(At(u"Temp"_s))).constData(), 0), 0);
    const AnotherUser user;
    EXPECT_EQ(FolderLock(At(u"Temp"_s)).State(), Result::NoLocking);
}
