// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CommandText.h"

#include "tests/support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::pair<QString, QString> Parts(const QString& command) {
    const CommandText::Parts parts = CommandText::Split(command);
    return {parts.Program, parts.Rest};
}

} // namespace

TEST(CommandText, AQuotedProgramMayHoldBlanks) {
    EXPECT_EQ(Parts(u"\"C:\\a b\\x.exe\"  -one -two"_s), std::pair(u"C:\\a b\\x.exe"_s, u"-one -two"_s));
    EXPECT_EQ(Parts(u"\"C:\\a b\\x.exe\" "_s), std::pair(u"C:\\a b\\x.exe"_s, u""_s));
    EXPECT_EQ(Parts(u"\"C:\\a b\\x.exe"_s), std::pair(u"C:\\a b\\x.exe"_s, u""_s));
}

TEST(CommandText, AProgramWithoutQuotesEndsAtTheFirstBlank) {
    EXPECT_EQ(Parts(u"x.exe  a b"_s), std::pair(u"x.exe"_s, u"a b"_s));
    EXPECT_EQ(Parts(u"x.exe"_s), std::pair(u"x.exe"_s, u""_s));
    EXPECT_EQ(Parts(u""_s), std::pair(u""_s, u""_s));
}

TEST(CommandText, ArgumentsArePartedByBlanksInTheirOrder) {
    EXPECT_EQ(CommandText::Arguments(u" -win  -xres\t1024 -mod a.big "_s),
              (QStringList{u"-win"_s, u"-xres"_s, u"1024"_s, u"-mod"_s, u"a.big"_s}));
    EXPECT_EQ(CommandText::Arguments(u"  "_s), QStringList());
}

TEST(CommandText, QuotesJoinAnArgument) {
    EXPECT_EQ(CommandText::Arguments(u"\"a b\" c\"d e\"f \"\" \"open end"_s),
              (QStringList{u"a b"_s, u"cd ef"_s, u""_s, u"open end"_s}));
    EXPECT_EQ(CommandText::Arguments(u"\"a\"\"b c\""_s), QStringList{u"a\"b c"_s});
}

TEST(CommandText, BackslashesAreThemselvesUnlessAQuoteFollows) {
    EXPECT_EQ(CommandText::Arguments(u"C:\\a\\\\b\\ x"_s), (QStringList{u"C:\\a\\\\b\\"_s, u"x"_s}));
    EXPECT_EQ(CommandText::Arguments(u"a\\\"b \"c\\\\\" d"_s), (QStringList{u"a\"b"_s, u"c\\"_s, u"d"_s}));
    EXPECT_EQ(CommandText::Arguments(u"a\\"_s), QStringList{u"a\\"_s});
}
