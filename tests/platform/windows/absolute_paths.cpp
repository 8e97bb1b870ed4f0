// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Paths::AbsoluteIn;

TEST(AbsolutePathsHere, APathFromTheRootOnIsOnTheFoldersDrive) {
    EXPECT_EQ(AbsoluteIn(u"Z:\\Games"_s, u"\\Maps\\a.map"_s), u"Z:\\Maps\\a.map"_s);
    EXPECT_EQ(AbsoluteIn(u"Z:\\Games"_s, u"/Maps/a.map"_s), u"Z:\\Maps\\a.map"_s);
}

TEST(AbsolutePathsHere, ADriveAloneMeansTheFolderOnThatDrive) {
    EXPECT_EQ(AbsoluteIn(u"Z:\\Games"_s, u"z:a.map"_s), u"Z:\\Games\\a.map"_s);
}

TEST(AbsolutePathsHere, AnotherMachinesFolderStays) {
    EXPECT_EQ(AbsoluteIn(u"Z:\\Games"_s, u"\\\\machine\\share\\a.map"_s), u"\\\\machine\\share\\a.map"_s);
}
