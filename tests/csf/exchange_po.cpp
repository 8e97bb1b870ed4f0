// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/csf/exchange_support.h"

using namespace Qt::StringLiterals;
using CsfExchange::Format;

namespace {

CsfTable Read(const QByteArray& catalogue) {
    return CsfExchange::Import(catalogue, Format::Po);
}

QString RefusalOf(const QByteArray& catalogue) {
    return RefusalOf(catalogue, Format::Po);
}

/// The values of a catalogue in turn.
QStringList ValuesOf(const QByteArray& catalogue) {
    QStringList values;
    for (const CsfString& entry : Read(catalogue).Strings)
        values += entry.Value;
    return values;
}

} // namespace

TEST(CsfPo, WritesTheNameAsContext) {
    EXPECT_EQ(CsfExchange::Export(Small(), Format::Po), "msgid \"\"\n"
                                                        "msgstr \"\"\n"
                                                        "\"MIME-Version: 1.0\\n\"\n"
                                                        "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                                                        "\"Content-Transfer-Encoding: 8bit\\n\"\n"
                                                        "\"Language: fr\\n\"\n"
                                                        "\"X-CSF-Language: 3\\n\"\n"
                                                        "\n"
                                                        "msgctxt \"GUI:A\"\n"
                                                        "msgid \"\"\n"
                                                        "\"Caf\xC3\xA9\\n\"\n"
                                                        "\"noir\"\n"
                                                        "msgstr \"\"\n"
                                                        "\n"
                                                        "msgctxt \"\"\n"
                                                        "msgid \"say \\\"hi\\\", you\"\n"
                                                        "msgstr \"\"\n"
                                                        "\n"
                                                        "msgctxt \"GUI:A\xE2\x82\x82\"\n"
                                                        "msgid \"\"\n"
                                                        "msgstr \"\"\n");
}

TEST(CsfPo, ANameThatComesAgainGetsItsNumberInLoweredDigits) {
    CsfTable table{0, {}};
    for (int row = 1; row <= 12; ++row)
        table.Strings.push_back({u"x"_s, u"a#1"_s});
    const QByteArray catalogue = CsfExchange::Export(table, Format::Po);
    EXPECT_TRUE(catalogue.contains("msgctxt \"a#1\"\n"));
    EXPECT_TRUE(catalogue.contains("msgctxt \"a#1\xE2\x82\x82\"\n"));
    EXPECT_TRUE(catalogue.contains("msgctxt \"a#1\xE2\x82\x81\xE2\x82\x82\"\n"));
    EXPECT_EQ(Read(catalogue), table);
}

TEST(CsfPo, TheContextsOfOtherProgramsAreTakenAsTheyAre) {
    const CsfTable table = Read("msgctxt \"Button #1\"\nmsgid \"a\"\nmsgstr \"\"\n\n"
                                "msgctxt \"#2\"\nmsgid \"b\"\nmsgstr \"\"\n\n"
                                "msgctxt \"x#3\"\nmsgid \"c\"\nmsgstr \"\"\n\n"
                                "msgctxt \"CO\xE2\x82\x82\"\nmsgid \"\xE2\x90\x80\"\nmsgstr \"\"\n");
    EXPECT_EQ(
        table,
        (CsfTable{0, {{u"a"_s, u"Button #1"_s}, {u"b"_s, u"#2"_s}, {u"c"_s, u"x#3"_s}, {u"\u2400"_s, u"CO\u2082"_s}}}));
}

TEST(CsfPo, TheTwoCharactersThatGettextCantHoldStandAsTheirPictures) {
    const CsfTable table{0, {{u"\0x"_s, u"\u0004"_s}, {u"\u0004"_s, u"a\0"_s}, {u"\u0001"_s, u"\u007F"_s}}};
    const QByteArray catalogue = CsfExchange::Export(table, Format::Po);
    EXPECT_TRUE(catalogue.endsWith("\nmsgctxt \"\xE2\x90\x84\"\nmsgid \"\xE2\x90\x80x\"\nmsgstr \"\"\n"
                                   "\nmsgctxt \"a\xE2\x90\x80\"\nmsgid \"\xE2\x90\x84\"\nmsgstr \"\"\n"
                                   "\nmsgctxt \"\\177\"\nmsgid \"\\001\"\nmsgstr \"\"\n"));
    EXPECT_EQ(Read(catalogue), table);
}

TEST(CsfPo, ATranslationTakesThePlaceOfItsSource) {
    const CsfTable table = Read("# by hand\n"
                                "msgid \"\"\nmsgstr \"x-csf-language: 2\\n\"\n"
                                "#: GUI\nmsgctxt \"A\"\nmsgid \"Yes\"\nmsgstr \"J\"\n\"a\"\n\n"
                                "#, fuzzy, c-format\n#| msgid \"old\"\nmsgctxt \"B\"\nmsgid \"No\"\n"
                                "msgstr \"Nein?\"\n"
                                "msgctxt \"C\"\nmsgid \"\\x41\\101\\1018\"\nmsgstr \"\"\n"
                                "#~ msgctxt \"gone\"\n#~ msgid \"x\"\n#~ msgstr \"y\"\r\n");
    EXPECT_EQ(table, (CsfTable{2, {{u"Ja"_s, u"A"_s}, {u"No"_s, u"B"_s}, {u"AAA8"_s, u"C"_s}}}));
}

TEST(CsfPo, OnlyTheFlagFuzzySetsATranslationAside) {
    EXPECT_EQ(ValuesOf("#, no-fuzzy-at-all,c-format\nmsgctxt \"a\"\nmsgid \"x\"\nmsgstr \"y\"\n\n"
                       "#, c-format,fuzzy\nmsgctxt \"b\"\nmsgid \"x\"\nmsgstr \"y\"\n\n"
                       "# fuzzy\nmsgctxt \"c\"\nmsgid \"x\"\nmsgstr \"y\"\n"),
              (QStringList{u"y"_s, u"x"_s, u"y"_s}));
}

TEST(CsfPo, TheFlagsOfAnEntryOutOfUseAreItsOwn) {
    EXPECT_EQ(ValuesOf("#, fuzzy\n#~ msgctxt \"gone\"\n#~ msgid \"x\"\n#~ msgstr \"y\"\n\n"
                       "msgctxt \"a\"\nmsgid \"x\"\nmsgstr \"y\"\n"),
              QStringList{u"y"_s});
}

TEST(CsfPo, ReadsTextsOfManyLinesHoweverTheyAreBroken) {
    EXPECT_EQ(Read("msgctxt\t\"a\"\n   \"b\"\r\nmsgid\"one \" \"two\"\"\"\n\n\t\"three\\n\"\nmsgstr \"\""),
              (CsfTable{0, {{u"one twothree\n"_s, u"ab"_s}}}));
}

TEST(CsfPo, AnEscapeSequenceStandsForAByte) {
    EXPECT_EQ(ValuesOf("msgctxt \"a\"\nmsgid \"\\303\\251 \\xC3\\xA9 \\a\\b\\f\\v\\r\\t\\\\\\\"\"\nmsgstr \"\"\n"),
              QStringList{u"\u00E9 \u00E9 \a\b\f\v\r\t\\\""_s});
}

TEST(CsfPo, TheHeadTellsTheCharacterSet) {
    const auto readAs = [](const QByteArray& name) {
        return ValuesOf("msgid \"\"\nmsgstr \"content-type: text/plain; Charset=" + name +
                        "\\n\"\n\nmsgctxt \"a\"\nmsgid \"\xE9\x80\\351\"\nmsgstr \"\"\n");
    };
    EXPECT_EQ(readAs("windows-1252"), QStringList{u"\u00E9\u20AC\u00E9"_s});
    EXPECT_EQ(readAs("ISO-8859-1"), QStringList{u"\u00E9\u20AC\u00E9"_s});
    EXPECT_EQ(RefusalOf("msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=KOI8-R\\n\"\n"),
              u"line 1: the character set KOI8-R is not read; \"msgconv --to-code=UTF-8\" converts the file"_s);
    EXPECT_EQ(ValuesOf("\xEF\xBB\xBFmsgid \"\"\nmsgstr \"Content-Type: text/plain; charset=CHARSET\\n\"\n\n"
                       "msgctxt \"a\"\nmsgid \"\xC3\xA9\"\nmsgstr \"\"\n"),
              QStringList{u"\u00E9"_s});
}

TEST(CsfPo, RefusesWhatIsNoTable) {
    EXPECT_EQ(RefusalOf("\nmsgid \"a\"\nmsgstr \"b\"\n"), u"line 2: an entry without msgctxt would have no name"_s);
    EXPECT_EQ(RefusalOf("msgctxt \"a\"\nmsgstr \"b\"\n\n"), u"line 1: an entry without msgid or msgstr"_s);
    EXPECT_EQ(RefusalOf("# a comment\nmsgctxt \"a\"\nmsgid \"b\"\n"), u"line 2: an entry without msgid or msgstr"_s);
    EXPECT_EQ(RefusalOf("msgstr \"b\"\n"), u"line 1: an entry without msgid or msgstr"_s);
    EXPECT_EQ(RefusalOf("\"a\"\n"), u"line 1: a quoted text is expected"_s);
    EXPECT_EQ(RefusalOf("msgctxt a\n"), u"line 1: a quoted text is expected"_s);
    EXPECT_EQ(RefusalOf("msgctxt\n"), u"line 1: a quoted text is expected"_s);
    EXPECT_EQ(RefusalOf("msgctxt \"a\" b\n"), u"line 1: a quoted text is expected"_s);
    EXPECT_EQ(RefusalOf("msgctxt \"\n"), u"line 1: a quote is not closed"_s);
    EXPECT_EQ(RefusalOf("msgctxt \"\\\"\n"), u"line 1: a quote is not closed"_s);
    EXPECT_EQ(RefusalOf("msgctxt \"\\q\"\n"), u"line 1: an unknown escape sequence"_s);
    EXPECT_EQ(RefusalOf("msgctxt \"\\"), u"line 1: an unknown escape sequence"_s);
    EXPECT_EQ(RefusalOf("msgctxt \"a\"\nmsgid \"b\"\nmsgid_plural \"c\"\n"),
              u"line 3: a string table has no plural forms"_s);
    EXPECT_EQ(RefusalOf("msgctxt \"a\"\nmsgctxt \"b\"\n"), u"line 2: \"msgctxt\" is not expected here"_s);
    EXPECT_EQ(RefusalOf("nonsense\n"), u"line 1: \"nonsense\" is not expected here"_s);
    EXPECT_EQ(RefusalOf("\n\nmsgctxt \"\xE9\"\nmsgid \"b\"\nmsgstr \"\"\n"), u"line 3: not UTF-8"_s);
    EXPECT_EQ(RefusalOf("msgid \"\"\nmsgstr \"X-CSF-Language: fr\\n\"\n"), u"line 1: \" fr\" is no language number"_s);
}
