// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/csf/exchange_support.h"

#include "platform/AnsiCodec.h"

#include <random>

using namespace Qt::StringLiterals;
using CsfExchange::Format;

namespace {

constexpr Format AllFormats[] = {Format::Json, Format::Csv, Format::Po};

/// Every 8-bit character in names and values, and what the formats have to keep apart.
CsfTable Awkward() {
    CsfTable table{9, {}};
    QString all;
    for (int code = 0; code < 256; ++code) {
        const QString letter = AnsiCodec::Decode(QByteArray(1, static_cast<char>(code)));
        table.Strings.push_back({u"a"_s + letter, letter});
        table.Strings.push_back({letter, u"value of "_s + letter});
        all += letter;
    }
    table.Strings.push_back({all, all});
    for (const QString& text : {u""_s,
                                u"\n"_s,
                                u"\r\n"_s,
                                u"\n\n\nx"_s,
                                u"x\r\ny\rz\n"_s,
                                u" x "_s,
                                u"\""_s,
                                u"\"\""_s,
                                u"a,b"_s,
                                u"\\n"_s,
                                u"\\"_s,
                                u"x#1"_s,
                                u"x#2"_s,
                                u"#"_s,
                                u"#12"_s,
                                u"x"_s,
                                u"x"_s,
                                u"x"_s,
                                u"language 5"_s,
                                u"msgid \"x\""_s,
                                u"\u00FF1"_s,
                                u"\u0001"
                                u"7"_s}) {
        table.Strings.push_back({text, text});
        table.Strings.push_back({text, text});
    }
    return table;
}

} // namespace

TEST(CsfExchange, WhatWasExportedComesBackTheSame) {
    for (const Format format : AllFormats) {
        EXPECT_EQ(CsfExchange::Import(CsfExchange::Export(Small(), format), format), Small());
        const CsfTable awkward = Awkward();
        const CsfTable back = CsfExchange::Import(CsfExchange::Export(awkward, format), format);
        EXPECT_EQ(back.Language, 9);
        ASSERT_EQ(back.Strings.size(), awkward.Strings.size());
        for (std::size_t i = 0; i < awkward.Strings.size(); ++i)
            EXPECT_EQ(back.Strings[i], awkward.Strings[i]) << i;
    }
}

TEST(CsfExchange, TablesPutTogetherAtRandomComeBackTheSame) {
    static const QStringList pieces{u"a"_s,          u"#1"_s,         u"\n"_s, u"\r"_s, u"\r\n"_s,
                                    u"\t"_s,         u" "_s,          u"\""_s, u"\\"_s, u","_s,
                                    u"msgid \""_s,   u"language 5"_s, u"\0"_s, u"#~"_s, u"\u00EF\u00BB\u00BF"_s,
                                    u"name,value"_s, u"\\n"_s,        {}};
    std::mt19937 random(2005);
    const auto below = [&](std::size_t bound) { return random() % static_cast<std::uint32_t>(bound); };
    const auto text = [&] {
        QString made;
        for (auto left = below(5); left > 0; --left) {
            const QChar letter = AnsiCodec::Decode(QByteArray(1, static_cast<char>(below(256)))).front();
            made += below(2) == 0 ? QString(letter)
                                  : pieces[static_cast<qsizetype>(below(static_cast<std::size_t>(pieces.size())))];
        }
        return made;
    };
    for (int round = 0; round < 500; ++round) {
        CsfTable table{static_cast<int>(below(256)), {}};
        for (auto rows = below(20); rows > 0; --rows) {
            table.Strings.push_back({text(), text()});
            if (below(3) == 0)
                table.Strings.push_back({text(), table.Strings[below(table.Strings.size())].Name});
        }
        for (const Format format : AllFormats) {
            const QByteArray exported = CsfExchange::Export(table, format);
            ASSERT_TRUE(CsfExchange::Import(exported, format) == table) << round << ": " << exported.constData();
        }
    }
}

TEST(CsfExchange, AsManyRowsAsATableHoldsComeBackTheSame) {
    CsfTable table{3, {}};
    for (int row = 0; row < mCSF::MaximumStrings; ++row)
        table.Strings.push_back({row % 3 == 0 ? QString() : u"Caf\u00E9\r\n%1"_s.arg(row),
                                 row % 5 == 0 ? QString() : u"GUI:%1"_s.arg(row / 2)});
    for (const Format format : AllFormats)
        EXPECT_TRUE(CsfExchange::Import(CsfExchange::Export(table, format), format) == table);
}

TEST(CsfExchange, TheEndingOfAFilesNameTellsTheFormat) {
    EXPECT_EQ(CsfExchange::FormatOf(u"a.json"_s), Format::Json);
    EXPECT_EQ(CsfExchange::FormatOf(u"C:\\A.CSV"_s), Format::Csv);
    EXPECT_EQ(CsfExchange::FormatOf(u"fr.po"_s), Format::Po);
    EXPECT_EQ(CsfExchange::FormatOf(u"a.csf"_s), std::nullopt);
}

TEST(CsfExchange, WritesJson) {
    EXPECT_EQ(CsfExchange::Export({3, {{u"Caf\u00E9\n"_s, u"GUI:A"_s}}}, Format::Json),
              "{\n    \"language\": 3,\n    \"strings\": [\n        {\n            \"name\": \"GUI:A\",\n"
              "            \"value\": \"Caf\xC3\xA9\\n\"\n        }\n    ]\n}\n");
}

TEST(CsfExchange, WritesCsvWithQuotesOnlyWhereTheyAreNeeded) {
    EXPECT_EQ(CsfExchange::Export(Small(), Format::Csv),
              "name,language 3\r\nGUI:A,\"Caf\xC3\xA9\nnoir\"\r\n,\"say \"\"hi\"\", you\"\r\nGUI:A,\r\n");
}

TEST(CsfExchange, ReadsCsvOfOtherPrograms) {
    EXPECT_EQ(CsfExchange::Import("\xEF\xBB\xBF"
                                  "name,value\n\"a\",\"b\"\n\nc,d",
                                  Format::Csv),
              (CsfTable{0, {{u"b"_s, u"a"_s}, {u"d"_s, u"c"_s}}}));
}

TEST(CsfExchange, ReadsJsonWithoutALanguage) {
    EXPECT_EQ(CsfExchange::Import("{\"strings\":[{\"value\":\"v\",\"name\":\"n\",\"note\":1}]}", Format::Json),
              (CsfTable{0, {{u"v"_s, u"n"_s}}}));
}

TEST(CsfExchange, RefusesWhatIsNoJsonTable) {
    EXPECT_TRUE(RefusalOf("{\"strings\":[", Format::Json).startsWith(u"line 1: "_s));
    EXPECT_TRUE(RefusalOf("{\n\"strings\":\n[}\n", Format::Json).startsWith(u"line 3: "_s));
    EXPECT_EQ(RefusalOf("[]", Format::Json), u"there is no list \"strings\""_s);
    EXPECT_EQ(RefusalOf("{\"strings\":{}}", Format::Json), u"there is no list \"strings\""_s);
    EXPECT_EQ(RefusalOf("{\"strings\":[{\"name\":\"a\",\"value\":\"b\"},{\"name\":\"a\"}]}", Format::Json),
              u"strings[1] has no text \"value\""_s);
    EXPECT_EQ(RefusalOf("{\"language\":\"fr\",\"strings\":[]}", Format::Json), u"\"language\" is no language number"_s);
}

TEST(CsfExchange, RefusesWhatIsNoCsvTable) {
    EXPECT_TRUE(RefusalOf("", Format::Csv).startsWith(u"line 1: "_s));
    EXPECT_TRUE(RefusalOf("key,value\n", Format::Csv).startsWith(u"line 1: "_s));
    EXPECT_EQ(RefusalOf("name,value\na,b\nc\n", Format::Csv), u"line 3: 1 fields, not 2"_s);
    EXPECT_EQ(RefusalOf("name,value\n\"a\nb\",c,d\n", Format::Csv), u"line 2: 3 fields, not 2"_s);
    EXPECT_EQ(RefusalOf("name,value\n\"a\nb\",c\nd,e,f\n", Format::Csv), u"line 4: 3 fields, not 2"_s);
    EXPECT_EQ(RefusalOf("name,value\na,\"b", Format::Csv), u"line 2: a quote is not closed"_s);
    EXPECT_EQ(RefusalOf("name,value\na,\"b\"c\n", Format::Csv), u"line 2: text behind a closing quote"_s);
    EXPECT_EQ(RefusalOf("name,language x\n", Format::Csv), u"line 1: \"x\" is no language number"_s);
    EXPECT_EQ(RefusalOf("name,value\na,b\na,\xE9\n", Format::Csv), u"line 3: not UTF-8"_s);
}

TEST(CsfExchange, EveryCutOfAnExportIsReadOrRefused) {
    for (const Format format : AllFormats) {
        const QByteArray whole = CsfExchange::Export(Small(), format);
        for (qsizetype length = 0; length < whole.size(); ++length) {
            try {
                EXPECT_LE(CsfExchange::Import(whole.first(length), format).Strings.size(), 3U);
            } catch (const RuntimeError& error) {
                EXPECT_EQ(error.Number(), 13);
            }
        }
    }
}

TEST(CsfExchange, EscapesWhatALineCantHold) {
    EXPECT_EQ(CsfExchange::Escaped(u"a\nb\tc\\d\re"_s), u"a\\nb\\tc\\\\d\\re"_s);
    EXPECT_EQ(CsfExchange::Escaped(u"\u001B[31m"_s + QChar(0) + QChar(0x7F) + u"\u00E9"_s),
              u"\\x1b[31m\\x00\\x7f\u00E9"_s);
    EXPECT_EQ(CsfExchange::Unescaped(u"\\x1b\\x00\\x7F\\r"_s), QString(u"\u001B"_s + QChar(0) + QChar(0x7F) + u'\r'));
    EXPECT_EQ(CsfExchange::Unescaped(u"\\x1\\xg0\\x+1\\x 1\\"_s), u"\\x1\\xg0\\x+1\\x 1\\"_s);
    EXPECT_EQ(CsfExchange::Unescaped(u"a\\nb\\tc\\\\nd"_s), u"a\nb\tc\\nd"_s);
    EXPECT_EQ(CsfExchange::Unescaped(u"C:\\x\\"_s), u"C:\\x\\"_s);
}
