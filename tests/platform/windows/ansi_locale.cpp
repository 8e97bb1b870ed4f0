// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Systems of other languages: which one this is, BRINDOCK_TEST_ACP names by its code page (without it 1252).
#include "platform/AnsiCodec.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/INIRuntime.h"
#include "platform/windows/System.h"
#include "tests/platform/Scratch.h"
#include "tests/support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned Polish = 1250;

unsigned WantedPage() {
    const QByteArray named = qgetenv("BRINDOCK_TEST_ACP");
    return named.isEmpty() ? 1252U : named.toUInt();
}

} // namespace

TEST(AnsiLocale, TheSystemIsTheOneThatWasAskedFor) {
    EXPECT_EQ(GetACP(), WantedPage());
}

TEST(AnsiLocale, TextsCrossTheSystemsPageWhereItHasSingleBytes) {
    EXPECT_EQ(AnsiCodec::Decode("\xA3"), WantedPage() == Polish ? u"\u0141"_s : u"\u00A3"_s);
    EXPECT_EQ(AnsiCodec::Encode(u"\u0141"_s), WantedPage() == Polish ? "\xA3" : "?");
    QByteArray all(256, '\0');
    for (qsizetype byte = 0; byte < all.size(); ++byte)
        all[byte] = static_cast<char>(byte);
    EXPECT_EQ(AnsiCodec::Encode(AnsiCodec::Decode(all)), all);
}

TEST(AnsiLocale, ALanguageFileIsReadInThePageThatItNames) {
    const Scratch scratch;
    const QString path =
        scratch.Write(u"Fran\u00E7ais \u3042/T.lng"_s, "[Infos]\r\nCodePage=1252\r\n[LNG]\r\nA=\xE9t\xE9\r\n");
    EXPECT_EQ(INIRuntime().ReadTexts(u"LNG"_s, {u"A"_s}, path), QStringList{u"\u00E9t\u00E9"_s});
}

TEST(AnsiLocale, PathsWithLettersOfNoPageAreWrittenAndFound) {
    const Scratch scratch;
    const QString folder = scratch.Inside(u"x"_s).chopped(1) + u"\u0418\u0433\u0440\u044B \u00E9 \u3042"_s;
    Files::MakeFolder(folder);
    const QString path = folder + u"\\\u0141\u4E2D.big"_s;
    File::Open(path, File::Access::New).Write(0, "bytes");
    EXPECT_EQ(Files::ListFolder(folder + u"\\*"_s), QStringList{u"\u0141\u4E2D.big"_s});
    EXPECT_EQ(ReadWhole(path), "bytes");
    EXPECT_EQ(INIRuntime().WriteINI(u"A"_s, u"b"_s, u"1"_s, folder + u"\\\u00E9.ini"_s), u"1"_s);
    EXPECT_EQ(INIRuntime().ReadINI(u"A"_s, u"b"_s, folder + u"\\\u00E9.ini"_s), u"1"_s);
}
