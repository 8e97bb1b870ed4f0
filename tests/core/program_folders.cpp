// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/ProgramFolders.h"

#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ProgramFoldersTest, AFolderThatTakesFilesIsWorkedIn) {
    const World world;
    EXPECT_EQ(ProgramFolders::WorkFolder(), world.ProgramFolder());
    EXPECT_EQ(ProgramFolders::LogFolder(), world.ProgramFolder());
    EXPECT_EQ(ProgramFolders::ScratchFolder(), world.ProgramFolder() + u"\\Temp"_s);
    EXPECT_TRUE(Files::ListFolder(world.ProgramFolder() + u"\\*"_s).isEmpty()) << "nothing is left of the look";
}

TEST(ProgramFoldersTest, WhereNoFileCanBeMadeTheUsersOwnFoldersAreWorkedIn) {
    const World world;
    qputenv("BRINDOCK_REGISTRY", Paths::ToNative(world.Root() + u"\\own\\registry.reg"_s).toUtf8());
    ProgramFolders::Use(world.Root() + u"\\gone"_s);
    EXPECT_EQ(ProgramFolders::ProgramFolder, world.Root() + u"\\gone"_s);
    EXPECT_EQ(ProgramFolders::WorkFolder(), world.Root() + u"\\own"_s);
    EXPECT_EQ(ProgramFolders::ScratchFolder(), world.Root() + u"\\own\\Temp"_s);
    EXPECT_TRUE(Files::FolderExists(world.Root() + u"\\own"_s));
    EXPECT_EQ(mTraduction::GetText(u"NoSuchText"_s), u"NoSuchText"_s);
    EXPECT_TRUE(Files::FileExists(world.Root() + u"\\own\\localization.log"_s));
    ProgramFolders::Use(world.ProgramFolder());
    EXPECT_EQ(ProgramFolders::WorkFolder(), world.ProgramFolder());
}
