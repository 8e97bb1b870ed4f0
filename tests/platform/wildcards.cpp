// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Wildcards.h"

#include <gtest/gtest.h>

TEST(Wildcards, StarStandsForAnyText) {
    EXPECT_TRUE(FitsPattern(u"Data.BIG", u"*.big"));
    EXPECT_TRUE(FitsPattern(u"a.b.big", u"a*.big"));
    EXPECT_FALSE(FitsPattern(u"a.bigx", u"*.big"));
}

TEST(Wildcards, QuestionMarkStandsForOneCharacter) {
    EXPECT_TRUE(FitsPattern(u"map1", u"map?"));
    EXPECT_FALSE(FitsPattern(u"map", u"map?"));
}

TEST(Wildcards, StarDotStarFitsNamesWithoutADot) {
    EXPECT_TRUE(FitsPattern(u"readme", u"*.*"));
    EXPECT_TRUE(FitsPattern(u"readme", u""));
}

TEST(Wildcards, ManyStarsDoNotTakeForever) {
    const std::u16string name(2000, u'a');
    EXPECT_FALSE(FitsPattern(name, u"*a*a*a*a*a*a*a*a*a*a*b"));
}
