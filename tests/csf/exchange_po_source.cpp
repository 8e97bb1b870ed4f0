// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Catalogues of a translation beside the table that was translated.
#include "tests/csf/exchange_support.h"

#include "csf/exchange/CsfPoText.h"

using namespace Qt::StringLiterals;
using CsfExchange::Format;

namespace {

CsfTable English() {
    return {0, {{u"Yes"_s, u"GUI:Yes"_s}, {u"%d men"_s, u"gui:men"_s}, {u"New"_s, u"GUI:New"_s}, {u"Off"_s, u"Off"_s}}};
}

CsfTable French() {
    return {3,
            {{u"Oui"_s, u"GUI:Yes"_s}, {u"%d hommes"_s, u"GUI:Men"_s}, {u"Vieux"_s, u"GUI:Old one"_s}, {{}, u"Off"_s}}};
}

QByteArray Catalogue() {
    const CsfTable source = English();
    return CsfExchange::Export(French(), Format::Po, {.Source = &source});
}

CsfTable Read(const QByteArray& catalogue, QStringList* notes = nullptr) {
    return CsfExchange::Import(catalogue, Format::Po, notes);
}

QByteArray Head(const QByteArray& fields) {
    return "msgid \"\"\nmsgstr \"" + fields + "\"\n\nmsgctxt \"a\"\nmsgid \"x\"\nmsgstr \"y\"\n";
}

} // namespace

TEST(CsfPoSource, TheSourceGivesTheTextsThatWereTranslated) {
    const QByteArray catalogue = Catalogue();
    EXPECT_EQ(catalogue.sliced(catalogue.indexOf("\n\n")), "\n\n"
                                                           "#: GUI:Yes\n"
                                                           "msgctxt \"GUI:Yes\"\n"
                                                           "msgid \"Yes\"\n"
                                                           "msgstr \"Oui\"\n"
                                                           "\n"
                                                           "#: GUI:Men\n"
                                                           "#, c-format\n"
                                                           "msgctxt \"GUI:Men\"\n"
                                                           "msgid \"%d men\"\n"
                                                           "msgstr \"%d hommes\"\n"
                                                           "\n"
                                                           "#. only in this table\n"
                                                           "msgctxt \"GUI:Old one\"\n"
                                                           "msgid \"Vieux\"\n"
                                                           "msgstr \"Vieux\"\n"
                                                           "\n"
                                                           "#. empty\n"
                                                           "#: Off\n"
                                                           "msgctxt \"Off\"\n"
                                                           "msgid \"Off\"\n"
                                                           "msgstr \"\"\n"
                                                           "\n"
                                                           "#. only in the source\n"
                                                           "#: GUI:New\n"
                                                           "msgctxt \"GUI:New\"\n"
                                                           "msgid \"New\"\n"
                                                           "msgstr \"\"\n");
    EXPECT_TRUE(catalogue.contains("\"Language: fr\\n\"")) << "the language is the translation's";
    EXPECT_FALSE(catalogue.contains("Language: en"));
}

TEST(CsfPoSource, WhatIsNotTouchedComesBackAsTheTable) {
    EXPECT_EQ(Read(Catalogue()), French());
}

TEST(CsfPoSource, WhatIsTranslatedOfTheSourceComesIn) {
    QByteArray catalogue = Catalogue();
    catalogue.replace("msgid \"New\"\nmsgstr \"\"", "msgid \"New\"\nmsgstr \"Neuf\"");
    catalogue.replace("msgid \"Off\"\nmsgstr \"\"", "msgid \"Off\"\nmsgstr \"Non\"");
    CsfTable wanted = French();
    wanted.Strings[3].Value = u"Non"_s;
    wanted.Strings.push_back({u"Neuf"_s, u"GUI:New"_s});
    EXPECT_EQ(Read(catalogue), wanted);
}

TEST(CsfPoSource, NamesThatComeTwiceMeetInTheirOrder) {
    const CsfTable source{0, {{u"1"_s, u"a"_s}, {u"2"_s, u"A"_s}, {u"3"_s, u"a"_s}}};
    const CsfTable table{2, {{u"eins"_s, u"a"_s}, {u"zwei"_s, u"a"_s}}};
    const QByteArray catalogue = CsfExchange::Export(table, Format::Po, {.Source = &source});
    EXPECT_TRUE(catalogue.contains("msgctxt \"a\"\nmsgid \"1\"\nmsgstr \"eins\"\n"));
    EXPECT_TRUE(catalogue.contains("msgctxt \"a\xE2\x82\x82\"\nmsgid \"2\"\nmsgstr \"zwei\"\n"));
    EXPECT_TRUE(catalogue.contains("msgctxt \"a\xE2\x82\x83\"\nmsgid \"3\"\nmsgstr \"\"\n"));
    EXPECT_EQ(Read(catalogue), table);
}

TEST(CsfPoSource, OnlyPlaceholdersThatGettextKnowsAreOnesOfC) {
    for (const QString& text : {u"%d"_s, u"100%% of %s"_s, u"%-5.2f"_s, u"%1$s %2$*3$d"_s, u"%ls"_s, u"%hhd %llu"_s,
                                u"%Lf"_s, u"%C%S"_s, u"%p"_s})
        EXPECT_TRUE(CsfPo::IsCFormat(text)) << text.toStdString();
    for (const QString& text : {u""_s, u"plain"_s, u"100%%"_s, u"%hs"_s, u"%d and %hs"_s, u"50%"_s, u"%w"_s, u"%I64d"_s,
                                u"%hf"_s, u"%Ld"_s, u"%"_s})
        EXPECT_FALSE(CsfPo::IsCFormat(text)) << text.toStdString();
}

TEST(CsfPoSource, ATranslationWithOtherPlaceholdersThanThoseOfCIsNoFormat) {
    const CsfTable source{0, {{u"%d%% done"_s, u"a"_s}, {u"%d"_s, u"b"_s}}};
    const CsfTable table{2, {{u"%d%% fertig, 100%!"_s, u"a"_s}, {u"nichts"_s, u"b"_s}}};
    const QByteArray catalogue = CsfExchange::Export(table, Format::Po, {.Source = &source});
    EXPECT_EQ(catalogue.count("#, c-format"), 1) << catalogue.constData();
    EXPECT_TRUE(catalogue.contains("#, c-format\nmsgctxt \"b\""));
}

TEST(CsfPoSource, TheLanguageThatAProgramChangedDecides) {
    QStringList notes;
    EXPECT_EQ(Read(Head("Language: fr\\nX-CSF-Language: 2\\n"), &notes).Language, 3);
    EXPECT_EQ(Read(Head("X-CSF-Language: 2\\nLanguage: de\\n"), &notes).Language, 2);
    EXPECT_EQ(Read(Head("X-CSF-Language: 5\\n"), &notes).Language, 5);
    EXPECT_EQ(Read(Head("X-CSF-Language: 2\\nLanguage: \\n"), &notes).Language, 2);
    EXPECT_EQ(Read(Head("Language: ko_KR.UTF-8\\n"), &notes).Language, 8);
    EXPECT_EQ(Read(Head("language: DE-at\\n"), &notes).Language, 0) << "codes are lower-case";
    EXPECT_EQ(notes.size(), 1);
    notes.clear();
    EXPECT_EQ(Read(Head("X-CSF-Language: 2\\nLanguage: pt_BR\\n"), &notes).Language, 2);
    EXPECT_EQ(notes, QStringList{u"the language \"pt_BR\" has no number that is known: it stays 2"_s});
}
