// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/AnsiCodec.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(AnsiCodec, EveryByteComesBackUnchanged) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.append(static_cast<char>(byte));
    const QString text = AnsiCodec::Decode(bytes);
    EXPECT_EQ(text.size(), 256);
    EXPECT_EQ(AnsiCodec::Encode(text), bytes);
}

TEST(AnsiCodec, KnowsTheCharactersOfWindows1252) {
    EXPECT_EQ(AnsiCodec::Encode(u"é€œ™Ÿ"_s), QByteArray("\xE9\x80\x9C\x99\x9F"));
    EXPECT_EQ(AnsiCodec::Decode("\x8A\xE7\xFF"), u"Šçÿ"_s);
}

TEST(AnsiCodec, GivesUnassignedBytesTheirOwnNumber) {
    const QString text = AnsiCodec::Decode("\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(text, QString::fromUtf16(u"\u0081\u008D\u008F\u0090\u009D"));
}

TEST(AnsiCodec, ReplacesWhatThePageLacks) {
    EXPECT_EQ(AnsiCodec::Encode(u"a\u4E2Db"_s), QByteArray("a?b"));
    EXPECT_EQ(AnsiCodec::Encode(u"x\U0001F600y"_s), QByteArray("x?y"));
}
