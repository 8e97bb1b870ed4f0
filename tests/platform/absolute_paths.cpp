// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Paths::AbsoluteIn;

TEST(AbsolutePaths, ARelativePathGoesOnFromTheFolder) {
    EXPECT_EQ(AbsoluteIn(u"C:\\Games"_s, u"Maps\\a.map"_s), u"C:\\Games\\Maps\\a.map"_s);
    EXPECT_EQ(AbsoluteIn(u"C:\\Games\\"_s, u"a.map"_s), u"C:\\Games\\a.map"_s);
    EXPECT_EQ(AbsoluteIn(u"C:\\"_s, u"a.map"_s), u"C:\\a.map"_s);
    EXPECT_EQ(AbsoluteIn(u"C:\\Games"_s, QString()), u"C:\\Games"_s);
}

TEST(AbsolutePaths, APathWithADriveStaysWhereItIs) {
    EXPECT_EQ(AbsoluteIn(u"C:\\Games"_s, u"D:\\a.map"_s), u"D:\\a.map"_s);
    EXPECT_EQ(AbsoluteIn(u"C:\\Games"_s, u"C:\\"_s), u"C:\\"_s);
}

TEST(AbsolutePaths, DotsAndDoubleSeparatorsGo) {
    EXPECT_EQ(AbsoluteIn(u"C:\\Games"_s, u"..\\.\\Maps\\\\a\\.\\..\\b\\"_s), u"C:\\Maps\\b"_s);
    EXPECT_EQ(AbsoluteIn(u"C:\\Games"_s, u"..\\..\\..\\a"_s), u"C:\\a"_s);
    EXPECT_EQ(AbsoluteIn(u"C:\\Games"_s, u".hidden"_s), u"C:\\Games\\.hidden"_s);
}

TEST(AbsolutePaths, PatternsKeepTheirLetters) {
    EXPECT_EQ(AbsoluteIn(u"C:\\Games"_s, u"Maps\\*.?a[x]#"_s), u"C:\\Games\\Maps\\*.?a[x]#"_s);
}
