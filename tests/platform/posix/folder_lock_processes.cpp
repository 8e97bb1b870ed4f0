// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/FolderLock.h"
#include "tests/platform/InAFolder.h"
#include "tests/platform/posix/AnotherUser.h"
#include "tests/support/posix/ChildProcess.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using Result = FolderLock::Result;

namespace {

class FolderLockProcesses : public InAFolder {};

} // namespace

TEST_F(FolderLockProcesses, WhatAnotherProcessHasIsTakenUntilItDies) {
    Files::MakeFolder(At(u"Temp"_s));
    ChildProcess other([this](const ChildProcess::Tell& tell) {
        const FolderLock lock(At(u"Temp"_s));
        tell(lock.Held() ? 'h' : 'n');
        ChildProcess::Wait();
    });
    ASSERT_EQ(other.Word(), 'h');
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
