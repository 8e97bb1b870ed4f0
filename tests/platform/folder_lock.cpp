// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FolderLock.h"

#include "platform/Files.h"
#include "tests/platform/InAFolder.h"

#include <optional>

using namespace Qt::StringLiterals;
using Result = FolderLock::Result;

namespace {

class FolderLockTest : public InAFolder {
protected:
    [[nodiscard]] QString Folder() const {
        Files::MakeFolders(At(u"Temp"_s));
        return At(u"Temp"_s);
    }
};

} // namespace

TEST_F(FolderLockTest, TheFirstHasItUntilItGoes) {
    std::optional<FolderLock> first(Folder());
    EXPECT_EQ(first->State(), Result::Held);
    EXPECT_EQ(FolderLock(Folder()).State(), Result::Taken);
    EXPECT_EQ(FolderLock(Folder()).State(), Result::Taken) << "asking changes nothing";
    first.reset();
    EXPECT_TRUE(FolderLock(Folder()).Held());
}

TEST_F(FolderLockTest, AFolderBelowIsAnotherOne) {
    const FolderLock lock(Folder());
    Files::MakeFolder(Folder() + u"\\own"_s);
    EXPECT_TRUE(FolderLock(Folder() + u"\\own"_s).Held());
}

TEST_F(FolderLockTest, ALockedFolderIsUsedAsAnyOther) {
    const FolderLock lock(Folder());
    Make(u"Temp\\file"_s, "bytes");
    EXPECT_EQ(BytesOf(u"Temp\\file"_s), "bytes");
    Files::EmptyFolder(Folder());
    EXPECT_FALSE(Files::FileExists(At(u"Temp\\file"_s)));
    EXPECT_EQ(FolderLock(Folder()).State(), Result::Taken) << "also when it was emptied";
}

TEST_F(FolderLockTest, WhereThereIsNoFolderNobodyHasIt) {
    EXPECT_EQ(FolderLock(At(u"none"_s)).State(), Result::NoLocking);
    EXPECT_EQ(FolderLock(Make(u"file"_s, "")).State(), Result::NoLocking);
}
