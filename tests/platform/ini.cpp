// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/INIRuntime.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class IniTest : public testing::Test {
protected:
    /// What a file of these bytes gives for a key.
    [[nodiscard]] std::string Reads(const QByteArray& bytes, const QString& section, const QString& key) const {
        return ini_.ReadINI(section, key, scratch_.Write(u"file.ini"_s, bytes)).toStdString();
    }

    /// The file after a write, which must have answered 1.
    [[nodiscard]] QByteArray Written(const QByteArray& bytes, const QString& section, const QString& key,
                                     const QString& value) const {
        const QString file = scratch_.Write(u"file.ini"_s, bytes);
        EXPECT_EQ(ini_.WriteINI(section, key, value, file), u"1"_s);
        return scratch_.Read(u"file.ini"_s);
    }

    Scratch scratch_;
    INIRuntime ini_;
};

} // namespace

TEST_F(IniTest, TheFirstMatchingKeyCounts) {
    EXPECT_EQ(Reads("[A]\r\nk=1\r\nk=2\r\n", u"A"_s, u"k"_s), "1");
}

TEST_F(IniTest, OnlyTheFirstMatchingSectionIsLookedAt) {
    EXPECT_EQ(Reads("[A]\r\nk=1\r\n[B]\r\nx=2\r\n[A]\r\nj=3\r\n", u"A"_s, u"j"_s), "");
}

TEST_F(IniTest, SectionsAndKeysAreFoundWithoutRegardToCase) {
    EXPECT_EQ(Reads("[Infos]\r\nLangName=French\r\n", u"iNFOS"_s, u"LANGNAME"_s), "French");
}

TEST_F(IniTest, BlanksAndTabsAroundNamesAndValuesAreDropped) {
    EXPECT_EQ(Reads(" [ A ] \r\n\t k \t = \t v w \t \r\n", u"A"_s, u"k"_s), "v w");
    EXPECT_EQ(Reads("[A]\nk=v\n", u" A "_s, u" k "_s), "v");
}

TEST_F(IniTest, OnePairOfMatchingQuotesIsDropped) {
    EXPECT_EQ(Reads("[A]\nk=\" v \"\n", u"A"_s, u"k"_s), " v ");
    EXPECT_EQ(Reads("[A]\nk=' v '\n", u"A"_s, u"k"_s), " v ");
    EXPECT_EQ(Reads("[A]\nk=\"\"v\"\"\n", u"A"_s, u"k"_s), "\"v\"");
    EXPECT_EQ(Reads("[A]\nk='\"v\"'\n", u"A"_s, u"k"_s), "\"v\"");
    EXPECT_EQ(Reads("[A]\nk=''\n", u"A"_s, u"k"_s), "");
}

TEST_F(IniTest, QuotesThatDoNotMatchStay) {
    EXPECT_EQ(Reads("[A]\nk='v\"\n", u"A"_s, u"k"_s), "'v\"");
    EXPECT_EQ(Reads("[A]\nk=\"v\"x\n", u"A"_s, u"k"_s), "\"v\"x");
    EXPECT_EQ(Reads("[A]\nk=\"\n", u"A"_s, u"k"_s), "\"");
}

TEST_F(IniTest, ACommentIsNoKey) {
    EXPECT_EQ(Reads("[A]\n;k=1\nk=2\n", u"A"_s, u"k"_s), "2");
}

TEST_F(IniTest, ASemicolonInAValueBelongsToIt) {
    EXPECT_EQ(Reads("[A]\nk=v ; w\n", u"A"_s, u"k"_s), "v ; w");
}

TEST_F(IniTest, ALineWithoutAnEqualSignReadsAsEmptyText) {
    EXPECT_EQ(Reads("[A]\nk\nk=2\n", u"A"_s, u"k"_s), "");
    EXPECT_EQ(Reads("[A]\nfoo\nk=2\n", u"A"_s, u"k"_s), "2");
}

TEST_F(IniTest, OnlyTheFirstEqualSignParts) {
    EXPECT_EQ(Reads("[A]\nk==2=3\n", u"A"_s, u"k"_s), "=2=3");
}

TEST_F(IniTest, EveryKindOfLineEndIsUnderstood) {
    EXPECT_EQ(Reads("[A]\r\nj=1\r\nk=v\r\n", u"A"_s, u"k"_s), "v");
    EXPECT_EQ(Reads("[A]\nj=1\nk=v\n", u"A"_s, u"k"_s), "v");
    EXPECT_EQ(Reads("[A]\rj=1\rk=v\r", u"A"_s, u"k"_s), "v");
    EXPECT_EQ(Reads("[A]\nj=1\nk=v", u"A"_s, u"k"_s), "v");
}

TEST_F(IniTest, AnEmptyValueReadsAsEmptyText) {
    EXPECT_EQ(Reads("[A]\nk=\nj=2\n", u"A"_s, u"k"_s), "");
}

TEST_F(IniTest, AValueOf300CharactersReadsAsItsFirst254) {
    EXPECT_EQ(Reads("[A]\nk=" + QByteArray(254, 'x') + QByteArray(46, 'y') + "\n", u"A"_s, u"k"_s),
              std::string(254, 'x'));
    EXPECT_EQ(Reads("[A]\nk=\"" + QByteArray(253, 'x') + QByteArray(46, 'y') + "\"\n", u"A"_s, u"k"_s),
              std::string(253, 'x') + "y");
}

TEST_F(IniTest, ABrokenSectionLineIsNoSection) {
    EXPECT_EQ(Reads("[A]\n[B\nk=2\n", u"A"_s, u"k"_s), "2");
    EXPECT_EQ(Reads("[A\nk=2\n", u"A"_s, u"k"_s), "");
}

TEST_F(IniTest, ASectionsNameEndsAtTheLastBracketOfItsLine) {
    EXPECT_EQ(Reads("[A]x] y\nk=2\n", u"A]x"_s, u"k"_s), "2");
}

TEST_F(IniTest, KeysBeforeTheFirstSectionHaveASectionWithoutAName) {
    EXPECT_EQ(Reads("k=1\n[A]\nk=2\n", u""_s, u"k"_s), "1");
    EXPECT_EQ(Reads("[]\nk=1\n", u""_s, u"k"_s), "");
}

TEST_F(IniTest, TheEndOfFileMarkOfOldSystemsIsABlank) {
    EXPECT_EQ(Reads("[A]\nk=v\x1A", u"A"_s, u"k"_s), "v");
}

TEST_F(IniTest, AValueEndsAtAZero) {
    EXPECT_EQ(Reads(QByteArray("[A]\nk=a\0b\nj=2\n", 14), u"A"_s, u"k"_s), "a");
    EXPECT_EQ(Reads(QByteArray("[A]\nk=a\0b\nj=2\n", 14), u"A"_s, u"j"_s), "2");
}

TEST_F(IniTest, TextsAreInTheAnsiCodePage) {
    EXPECT_EQ(Reads("[A]\nk=\xC9t\xE9 \x80\n", u"A"_s, u"k"_s), "Été €");
    EXPECT_EQ(Reads("[R\xE9glage]\ncl\xE9=1\n", u"Réglage"_s, u"clé"_s), "1");
}

TEST_F(IniTest, AByteOrderMarkIsUnderstood) {
    EXPECT_EQ(Reads("\xEF\xBB\xBF[A]\nk=\xC3\xA9\n", u"A"_s, u"k"_s), "é");
    EXPECT_EQ(Reads(QByteArray("\xFF\xFE[\0A\0]\0\n\0k\0=\0\xE9\0", 16), u"A"_s, u"k"_s), "é");
}

TEST_F(IniTest, WhatIsMissingReadsAsEmptyText) {
    EXPECT_EQ(Reads("[A]\nk=1\n", u"B"_s, u"k"_s), "");
    EXPECT_EQ(Reads("[A]\nk=1\n", u"A"_s, u"j"_s), "");
    EXPECT_EQ(Reads("", u"A"_s, u"k"_s), "");
    EXPECT_EQ(ini_.ReadINI(u"A"_s, u"k"_s, scratch_.Inside(u"missing.ini"_s)), QString());
}

TEST_F(IniTest, AFolderReadsAsEmptyText) {
    scratch_.Write(u"folder/file.ini"_s, "[A]\nk=1\n");
    EXPECT_EQ(ini_.ReadINI(u"A"_s, u"k"_s, scratch_.Inside(u"folder"_s)), QString());
}

TEST_F(IniTest, APathWithAnEmptyFileNameReadsAsEmptyText) {
    EXPECT_EQ(ini_.ReadINI(u"A"_s, u"k"_s, scratch_.Inside(u"folder"_s) + u'\\'), QString());
    EXPECT_EQ(ini_.ReadINI(u"A"_s, u"k"_s, QString()), QString());
}

TEST_F(IniTest, AFileOfGarbageOrCutOffAnywhereReadsWithoutHarm) {
    const QByteArray whole = "\xEF\xBB[x]\r\n[A]=\0]\r\n=\r\n\"k='\r\n[A]\r\nk=\"value\"\r\n;end";
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        const std::string value = Reads(whole.first(length), u"A"_s, u"k"_s);
        EXPECT_TRUE(QByteArray("\"value\"").contains(value.c_str())) << "after " << length << " bytes: " << value;
    }
}

TEST_F(IniTest, AChangeOfTheFileIsSeenAtOnce) {
    EXPECT_EQ(Reads("[A]\nk=1\n", u"A"_s, u"k"_s), "1");
    EXPECT_EQ(Reads("[A]\nk=2\n", u"A"_s, u"k"_s), "2");
}

TEST_F(IniTest, AWriteMakesTheFileTheSectionAndTheKey) {
    const QString file = scratch_.Inside(u"new.ini"_s);
    EXPECT_EQ(ini_.WriteINI(u"A"_s, u"k"_s, u"1"_s, file), u"1"_s);
    EXPECT_EQ(scratch_.Read(u"new.ini"_s), "[A]\r\nk=1\r\n");
    EXPECT_EQ(ini_.WriteINI(u"B"_s, u"j"_s, u"2"_s, file), u"1"_s);
    EXPECT_EQ(ini_.WriteINI(u"A"_s, u"i"_s, u"3"_s, file), u"1"_s);
    EXPECT_EQ(scratch_.Read(u"new.ini"_s), "[A]\r\nk=1\r\ni=3\r\n[B]\r\nj=2\r\n");
}

TEST_F(IniTest, AWriteReplacesTheValueInPlaceUnderTheNamesInTheFile) {
    EXPECT_EQ(Written("; c\r\n[Sec]\r\nKey=1\r\nOther=x ; y\r\n[Sec]\r\nkey=5\r\n", u"sEC"_s, u"kEY"_s, u"two"_s),
              "; c\r\n[Sec]\r\nKey=two\r\nOther=x ; y\r\n[Sec]\r\nkey=5\r\n");
}

TEST_F(IniTest, AWriteGivesALineWithoutAnEqualSignItsValue) {
    EXPECT_EQ(Written("[A]\r\nk\r\n", u"A"_s, u"k"_s, u"2"_s), "[A]\r\nk=2\r\n");
}

TEST_F(IniTest, AWriteChangesTheFirstMatchOnly) {
    EXPECT_EQ(Written("[A]\r\nk=1\r\nk=2\r\n", u"A"_s, u"k"_s, u"3"_s), "[A]\r\nk=3\r\nk=2\r\n");
}

TEST_F(IniTest, ALastLineWithoutItsEndGetsOne) {
    EXPECT_EQ(Written("[A]\r\nk=1", u"A"_s, u"j"_s, u"2"_s), "[A]\r\nk=1\r\nj=2\r\n");
    EXPECT_EQ(Written("[A]\r\nk=1", u"B"_s, u"j"_s, u"2"_s), "[A]\r\nk=1\r\n[B]\r\nj=2\r\n");
}

TEST_F(IniTest, AWrittenValueLosesItsLeadingBlanksAndKeepsItsQuotes) {
    EXPECT_EQ(Written("", u"A"_s, u"k"_s, u" \t2 "_s), "[A]\r\nk=2 \r\n");
    EXPECT_EQ(Written("", u"A"_s, u"k"_s, u"\"2\""_s), "[A]\r\nk=\"2\"\r\n");
    EXPECT_EQ(Written("[A]\r\nk=\"1\"\r\n", u"A"_s, u"k"_s, u"1"_s), "[A]\r\nk=1\r\n");
    EXPECT_EQ(Written("[A]\r\nk=1\r\n", u"A"_s, u"k"_s, u""_s), "[A]\r\nk=\r\n");
}

TEST_F(IniTest, AWriteWithoutASectionNameGoesToTheTop) {
    EXPECT_EQ(Written("[A]\r\nk=1\r\n", u""_s, u"k"_s, u"5"_s), "k=5\r\n[A]\r\nk=1\r\n");
}

TEST_F(IniTest, TextsAreWrittenInTheAnsiCodePage) {
    EXPECT_EQ(Written("[A]\r\n\x81=\x81\r\n", u"A"_s, u"clé"_s, u"€Ω"_s), "[A]\r\n\x81=\x81\r\ncl\xE9=\x80?\r\n");
}

TEST_F(IniTest, AFileWithAByteOrderMarkKeepsItsEncoding) {
    EXPECT_EQ(Written("\xEF\xBB\xBF[A]\r\nk=\xC3\xA9\r\n", u"A"_s, u"j"_s, u"é"_s),
              "\xEF\xBB\xBF[A]\r\nk=\xC3\xA9\r\nj=\xC3\xA9\r\n");
}

TEST_F(IniTest, WhatWasWrittenReadsAsItWasMeant) {
    const QString file = scratch_.Write(u"file.ini"_s, "[A]\r\n\r\n  k  =  1  \r\n\r\n\r\n[B]\nz=1\n");
    for (const QString& value : {u"plain"_s, u"'a' b"_s, u"x=y;z"_s, u"à€"_s, QString(254, u'v')}) {
        EXPECT_EQ(ini_.WriteINI(u"a"_s, u"K"_s, value, file), u"1"_s);
        EXPECT_EQ(ini_.WriteINI(u"A"_s, u"new"_s, value, file), u"1"_s);
        EXPECT_EQ(ini_.ReadINI(u"A"_s, u"k"_s, file), value);
        EXPECT_EQ(ini_.ReadINI(u"A"_s, u"NEW"_s, file), value);
        EXPECT_EQ(ini_.ReadINI(u"B"_s, u"z"_s, file), u"1"_s);
    }
}

TEST_F(IniTest, AWriteIntoAMissingFolderAnswersZero) {
    EXPECT_EQ(ini_.WriteINI(u"A"_s, u"k"_s, u"1"_s, scratch_.Inside(u"gone/x"_s) + u"\\y\\z.ini"_s), u"0"_s);
}

TEST_F(IniTest, AWriteOntoAFolderAnswersZero) {
    scratch_.Write(u"folder/file.ini"_s, "");
    EXPECT_EQ(ini_.WriteINI(u"A"_s, u"k"_s, u"1"_s, scratch_.Inside(u"folder"_s)), u"0"_s);
}
