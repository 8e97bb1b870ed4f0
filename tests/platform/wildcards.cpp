// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Wildcards.h"

#include "platform/RuntimeError.h"

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

namespace {

/// The number of the run-time error that a pattern raises; 0 without one.
int ErrorOf(QStringView pattern) {
    try {
        IsLike(u"x", pattern);
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace

TEST(LikePatterns, LettersCountWithTheirCase) {
    EXPECT_TRUE(IsLike(u"Map.ini", u"*.ini"));
    EXPECT_FALSE(IsLike(u"Map.INI", u"*.ini"));
    EXPECT_FALSE(IsLike(u"map", u"Map"));
}

TEST(LikePatterns, ADotIsADot) {
    EXPECT_FALSE(IsLike(u"readme", u"*.*"));
    EXPECT_TRUE(IsLike(u"read.me", u"*.*"));
    EXPECT_TRUE(IsLike(u".me", u"*.*"));
    EXPECT_TRUE(IsLike(u"read.", u"*.*"));
    EXPECT_FALSE(IsLike(u"axb", u"a.b"));
}

TEST(LikePatterns, StarAndQuestionMark) {
    EXPECT_TRUE(IsLike(u"", u"*"));
    EXPECT_TRUE(IsLike(u"", u""));
    EXPECT_FALSE(IsLike(u"a", u""));
    EXPECT_TRUE(IsLike(u"abcabd", u"*ab?"));
    EXPECT_FALSE(IsLike(u"ab", u"ab?"));
    EXPECT_TRUE(IsLike(u"ab", u"ab*"));
}

TEST(LikePatterns, ANumberSignIsOneDigit) {
    EXPECT_TRUE(IsLike(u"map7", u"map#"));
    EXPECT_FALSE(IsLike(u"mapx", u"map#"));
    EXPECT_FALSE(IsLike(u"map#", u"map#"));
    EXPECT_FALSE(IsLike(u"map\u0667", u"map#")) << "a digit of another script";
    EXPECT_FALSE(IsLike(u"map77", u"map#"));
}

TEST(LikePatterns, BracketsHoldLettersAndRanges) {
    EXPECT_TRUE(IsLike(u"b", u"[a-c]"));
    EXPECT_FALSE(IsLike(u"B", u"[a-c]"));
    EXPECT_FALSE(IsLike(u"d", u"[a-c]"));
    EXPECT_TRUE(IsLike(u"x9", u"[a-cx][0-9]"));
    EXPECT_TRUE(IsLike(u"-", u"[a-]"));
    EXPECT_TRUE(IsLike(u"-", u"[-a]"));
    EXPECT_FALSE(IsLike(u"b", u"[-a]"));
    for (const char16_t special : {u'*', u'?', u'#', u'['}) {
        const std::u16string bracket{u'[', special, u']'};
        EXPECT_TRUE(IsLike(QStringView(&special, 1), bracket));
        EXPECT_FALSE(IsLike(u"7", bracket));
    }
}

TEST(LikePatterns, AnExclamationMarkFirstInABracketMeansNoneOfThese) {
    EXPECT_TRUE(IsLike(u"d", u"[!a-c]"));
    EXPECT_FALSE(IsLike(u"b", u"[!a-c]"));
    EXPECT_FALSE(IsLike(u"", u"[!a-c]"));
    EXPECT_TRUE(IsLike(u"!", u"[a!]"));
    EXPECT_TRUE(IsLike(u"!", u"[!]"));
    EXPECT_TRUE(IsLike(u"!", u"!"));
}

TEST(LikePatterns, AnEmptyBracketStandsForNothing) {
    EXPECT_TRUE(IsLike(u"ab", u"a[]b"));
    EXPECT_FALSE(IsLike(u"axb", u"a[]b"));
    EXPECT_TRUE(IsLike(u"]", u"]"));
}

TEST(LikePatterns, WhatIsNoPatternIsRaised) {
    EXPECT_EQ(ErrorOf(u"map[1"), 93);
    EXPECT_EQ(ErrorOf(u"["), 93);
    EXPECT_EQ(ErrorOf(u"[c-a]"), 93);
    EXPECT_EQ(ErrorOf(u"[!9-0]"), 93);
    EXPECT_EQ(ErrorOf(u"[a-a]"), 0);
}

TEST(LikePatterns, ManyStarsDoNotTakeForever) {
    const std::u16string name(2000, u'a');
    EXPECT_FALSE(IsLike(name, u"*[a-z]*a*?*a*a*a*a*a*a*#"));
}
