// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CodePage.h"

#include "tests/support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The bytes; "none" where there are none.
QByteArray In(int page, const QString& text) {
    return CodePage::Encode(page, text).value_or("none");
}

} // namespace

TEST(CodePageEncode, GivesTheBytesOfThePage) {
    EXPECT_EQ(In(1252, u"\u20AC\u00E9"_s), "\x80\xE9");
    EXPECT_EQ(In(1251, u"\u0416"_s), "\xC6");
    EXPECT_EQ(In(1250, u"\u0141"_s), "\xA3");
    EXPECT_EQ(In(932, u"\u3042A"_s), "\x82\xA0"
                                     "A");
    EXPECT_EQ(In(936, u"\u4E2D"_s), "\xD6\xD0");
    EXPECT_EQ(In(65001, u"\u0416"_s), "\xD0\x96");
    EXPECT_EQ(In(1251, {}), "");
}

TEST(CodePageEncode, GivesNothingForALetterThatThePageLacks) {
    EXPECT_EQ(In(1252, u"\u0416"_s), "none");
    EXPECT_EQ(In(1251, u"a\u00E9"_s), "none");
    EXPECT_EQ(In(936, u"\U0001F600"_s), "none");
    EXPECT_EQ(In(12, u"a"_s), "none") << "no page of the system's";
}
