// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/BaseConvert.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using mBIG::BaseConvert;

TEST(BaseConvert, ZeroIsZero) {
    EXPECT_EQ(BaseConvert(u"0"_s, 16, 10), u"0"_s);
}

TEST(BaseConvert, AnyOtherTextOfValueZeroGivesEmptyText) {
    EXPECT_EQ(BaseConvert(u"00000000"_s, 16, 10), QString());
    EXPECT_EQ(BaseConvert(u"00"_s, 10, 16), QString());
}

TEST(BaseConvert, ConvertsBetweenBases) {
    EXPECT_EQ(BaseConvert(u"FF"_s, 16, 10), u"255"_s);
    EXPECT_EQ(BaseConvert(u"255"_s, 10, 16), u"FF"_s);
    EXPECT_EQ(BaseConvert(u"1295"_s, 10, 36), u"ZZ"_s);
    EXPECT_EQ(BaseConvert(u"101"_s, 2, 10), u"5"_s);
    EXPECT_EQ(BaseConvert(u"7FFFFFFF"_s, 16, 10), u"2147483647"_s);
}

TEST(BaseConvert, ATargetBaseOfZeroGivesDecimalText) {
    EXPECT_EQ(BaseConvert(u"10"_s, 16, 0), u"16"_s);
}

TEST(BaseConvert, ADigitThatOverflowsIsSkipped) {
    EXPECT_EQ(BaseConvert(u"80000001"_s, 16, 10), u"1"_s);
    EXPECT_EQ(BaseConvert(u"F2345678"_s, 16, 16), u"2345678"_s);
    EXPECT_EQ(BaseConvert(u"80000000"_s, 16, 10), QString());
}
