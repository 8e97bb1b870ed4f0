// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/CaseFolding.h"

#include "tests/support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CaseFolding, IsThatOfTheLibraryForEveryLetter) {
    for (char16_t unit = 0; unit < 0x3000; ++unit) {
        const QString text = u"Ab"_s + QChar(unit) + u"yZ"_s;
        ASSERT_EQ(CaseFolded(text), text.toCaseFolded()) << static_cast<int>(unit);
    }
    for (const QString& text : {u""_s, u"@AZ[`az{"_s, u"STRASSE \u1E9E"_s, u"\U00010400"_s, QString(QChar(0xD800))})
        EXPECT_EQ(CaseFolded(text), text.toCaseFolded());
}

TEST(CaseFolding, ATextThatIsFoldedAlreadyIsNotCopied) {
    const QString text = u"map.ini"_s;
    EXPECT_EQ(CaseFolded(text).constData(), text.constData());
}
