// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Texts of every alphabet, extra data and the games' own text form.

#include "csf/exchange/CsfExchange.h"
#include "platform/RuntimeError.h"
#include "tests/csf/Tables.h"

#include <QStringEncoder>

using namespace Qt::StringLiterals;
using CsfExchange::Format;

namespace {

CsfTable Languages() {
    return {8,
            {{u"\uD55C\uAD6D\uC5B4\nTh\u00E9: \u0E44\u0E17\u0E22"_s, u"GUI:A"_s},
             {u"\u0416\u0443\u043A \U0001F5FA"_s, u"GUI:B"_s, Bytes("voice\0\"\n\\"), false},
             {u"\u2400 \u2404 \u241B"_s + QChar(0) + QChar(4), u"GUI:B"_s, ""_ba, false},
             {u"za\u017C\u00F3\u0142\u0107"_s, u"gui:c"_s}}};
}

CsfTable There(const CsfTable& table, Format format) {
    return CsfExchange::Import(CsfExchange::Export(table, format), format);
}

CsfTable FromStr(const QByteArray& bytes) {
    return CsfExchange::Import(bytes, Format::Str);
}

QString RefusalOfStr(const QByteArray& bytes) {
    try {
        static_cast<void>(FromStr(bytes));
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return {};
}

} // namespace

TEST(ExchangeOfWholeTables, EveryLetterAndExtraDataComeBackTheSame) {
    for (const Format format : {Format::Json, Format::Csv, Format::Po})
        EXPECT_EQ(There(Languages(), format), Languages());
}

TEST(ExchangeOfWholeTables, SeveralStringsOfALabelStayTogether) {
    CsfTable table{0, {{u"1"_s, u"m"_s}, {u"2"_s, u"m"_s, "x"_ba, true}, {u"3"_s, u"m"_s, {}, true}}};
    for (const Format format : {Format::Json, Format::Po})
        EXPECT_EQ(There(table, format), table);
}

TEST(ExchangeOfWholeTables, ExtraDataStandsWhereItIsLookedFor) {
    const CsfTable table{0, {{u"v"_s, u"n"_s, "a\"b"_ba, false}, {u"w"_s, u"o"_s}}};
    EXPECT_EQ(CsfExchange::Export(table, Format::Csv),
              "\xEF\xBB\xBFname,language 0,extra\r\nn,v,\"a\"\"b\"\r\no,w\r\n");
    EXPECT_TRUE(CsfExchange::Export(table, Format::Json).contains("\"extra\": \"a\\\"b\",\n"));
    EXPECT_TRUE(CsfExchange::Export(table, Format::Po).contains("\n\n#. extra: \"a\\\"b\"\nmsgctxt \"n\"\n"));
}

TEST(ExchangeOfWholeTables, CsvIsReadAsSpreadsheetsSaveIt) {
    const CsfTable expected{3, {{u"1;2"_s, u"a"_s}, {u""_s, u"b"_s}, {u"\u0416"_s, u"c"_s}}};
    const QString rows = u"a%1\"1;2\"%1\r\nb%1%1\r\n\r\n%1%1\r\nc%1\u0416%1\r\n"_s;
    for (const QChar separator : {u',', u';', u'\t'}) {
        const QString text = u"Name%1LANGUAGE 3%1\r\n"_s.arg(separator) + rows.arg(separator);
        QStringList notes;
        EXPECT_EQ(CsfExchange::Import(text.toUtf8(), Format::Csv, &notes), expected);
        EXPECT_EQ(notes, QStringList{u"2 blank rows are passed over"_s});
        EXPECT_EQ(CsfExchange::Import("\xEF\xBB\xBF" + text.toUtf8(), Format::Csv), expected);
        EXPECT_EQ(CsfExchange::Import(QStringEncoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom)(text),
                                      Format::Csv),
                  expected);
        EXPECT_EQ(CsfExchange::Import(QStringEncoder(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom)(text),
                                      Format::Csv),
                  expected);
        EXPECT_EQ(
            CsfExchange::Import(CsfExchange::Export(expected, Format::Csv, {.Separator = separator}), Format::Csv),
            expected);
    }
}

TEST(ExchangeOfWholeTables, FurtherColumnsAreLeftOutWithAWord) {
    QStringList notes;
    EXPECT_EQ(CsfExchange::Import("\"NAME\";value;Note;Extra\r\na;b;c;d\r\ne;f;g\r\n", Format::Csv, &notes),
              (CsfTable{0, {{u"b"_s, u"a"_s, "d"_ba, false}, {u"f"_s, u"e"_s}}}));
    EXPECT_EQ(notes, QStringList{u"the column \"Note\" is left out"_s});
    EXPECT_THROW(CsfExchange::Import("name,value\na,b,c\n", Format::Csv), RuntimeError);
}

TEST(ExchangeOfWholeTables, AnEntryOfNothingIsNoBlankRow) {
    const CsfTable table{0, {{u""_s, u""_s}, {u"x"_s, u""_s}, {u""_s, u""_s, ""_ba, false}}};
    EXPECT_EQ(There(table, Format::Csv), table);
}

TEST(ExchangeOfWholeTables, CommentsOfOtherProgramsAreNoExtraData) {
    const QByteArray po = "#. extra: \"x\"\n#. more\nmsgctxt \"n\"\nmsgid \"v\"\nmsgstr \"\"\n";
    EXPECT_EQ(CsfExchange::Import(po, Format::Po).Strings[0].Extra, std::nullopt) << "the head is not ours";
}

TEST(GamesText, IsWrittenAsTheGamesReadIt) {
    EXPECT_EQ(CsfExchange::Export({3, {{u"say \"hi\"\nC:\\x"_s, u"GUI:A"_s}, {u"\u00E9"_s, u"b"_s}}}, Format::Str),
              "GUI:A\r\n\"say \\\"hi\\\"\\nC:\\\\x\"\r\nEND\r\n\r\nb\r\n\"\xE9\"\r\nEND\r\n\r\n");
    EXPECT_EQ(CsfExchange::Export({0, {{u"\u0416"_s, u"a"_s}}}, Format::Str), "\xEF\xBB\xBF"
                                                                              "a\r\n\"\xD0\x96\"\r\nEND\r\n\r\n");
}

TEST(GamesText, ComesBackTheSame) {
    CsfTable table = Languages();
    table.Language = 0;
    for (CsfString& entry : table.Strings)
        entry.Extra.reset();
    EXPECT_EQ(There(table, Format::Str), table);
    table.Strings.resize(1);
    table.Strings[0].Value = u"back\\slash \\n \\\" end\\"_s;
    EXPECT_EQ(There(table, Format::Str), table);
}

TEST(GamesText, IsReadAsModdersWriteIt) {
    const CsfTable table = FromStr("// head\nGUI:Ok // the button\n\"Fine\\nby me \\q // no comment\"\nend\n\n\n"
                                   "  Label With Blanks  \r\n\t\"over\r\ntwo lines\"\r\nEND\n"
                                   "BARE\nEnd\nTWO\n\"1\" \"2\"\nEND");
    EXPECT_EQ(table.Strings, (std::vector<CsfString>{{u"Fine\nby me \\q // no comment"_s, u"GUI:Ok"_s},
                                                     {u"over\ntwo lines"_s, u"Label With Blanks"_s},
                                                     {u"1"_s, u"TWO"_s},
                                                     {u"2"_s, u"TWO"_s, {}, true}}));
    EXPECT_EQ(FromStr("").Strings.size(), 0U);
}

TEST(GamesText, WhatIsNoneIsRefusedWithTheLine) {
    EXPECT_EQ(RefusalOfStr("A\n\"x\"\nEND\n\n\"y\"\nEND\n"), u"line 5: a text without a label"_s);
    EXPECT_EQ(RefusalOfStr("A\n\n\"x\n\n"), u"line 3: a quote is not closed"_s);
    EXPECT_EQ(RefusalOfStr("A\n\"x\"\nB\n\"y\"\nEND\n"), u"line 1: A: no END"_s);
    EXPECT_EQ(RefusalOfStr("A\n\"x\""), u"line 1: A: no END"_s);
    EXPECT_EQ(RefusalOfStr("A"), u"line 1: A: no END"_s);
    const QByteArray whole = CsfExchange::Export(Languages(), Format::Str);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QString refusal = RefusalOfStr(whole.first(length));
        EXPECT_TRUE(refusal.isEmpty() || refusal.startsWith(u"line "_s)) << length;
    }
}
