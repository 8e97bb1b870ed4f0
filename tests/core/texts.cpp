// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

QString LogPath(const World& world) {
    return world.ProgramFolder() + u"\\localization.log"_s;
}

int LengthAt(const QByteArray& log, qsizetype offset) {
    return static_cast<quint8>(log.at(offset)) | static_cast<quint8>(log.at(offset + 1)) << 8;
}

class Texts : public testing::Test {
protected:
    World world_;

    void Use(const QByteArray& lngText) {
        world_.UseLanguage(lngText);
        world_.Start();
    }
};

} // namespace

TEST_F(Texts, AKeyGivesItsTextOfSectionLNG) {
    Use("[Infos]\r\nOpen=wrong\r\n[LNG]\r\nOpen=Ouvrir\r\n");
    EXPECT_EQ(GetText(u"Open"_s), u"Ouvrir"_s);
}

TEST_F(Texts, BytesOfTheFileAreTheAnsiCodePage) {
    Use("[LNG]\r\nDetails=D\xE9tails \x80\r\n");
    EXPECT_EQ(GetText(u"Details"_s), u"Détails €"_s);
}

TEST_F(Texts, AFileThatNamesItsPageIsReadInIt) {
    const auto text = [&](const QByteArray& page, const QByteArray& bytes) {
        Use("[Infos]\r\nVersion=2005\r\nCodePage=" + page + "\r\n[LNG]\r\nA=" + bytes + "\r\n");
        return GetText(u"A"_s);
    };
    EXPECT_EQ(text("1252", "D\xE9tails \x80"), u"Détails €"_s);
    EXPECT_EQ(text("1250", "Za\xBF\xF3\xB3\xE6"), u"Za\u017C\u00F3\u0142\u0107"_s);
    EXPECT_EQ(text("1251", "\xC8\xE3\xF0\xFB\\n!"), u"\u0418\u0433\u0440\u044B\r\n!"_s);
    EXPECT_EQ(text("932", "\x83\x51\x81\x5B\x83\x80"), u"\u30B2\u30FC\u30E0"_s);
    EXPECT_EQ(text("936", "\xD3\xCE\xCF\xB7"), u"\u6E38\u620F"_s);
    EXPECT_EQ(text("949", "\xB0\xD4\xC0\xD3"), u"\uAC8C\uC784"_s);
    EXPECT_EQ(text("950", "\xB9\x43\xC0\xB8"), u"\u904A\u6232"_s);
    EXPECT_EQ(text("874", "\xE0\xA1\xC1"), u"\u0E40\u0E01\u0E21"_s);
    EXPECT_EQ(text("65001", "\xE6\xB8\xB8\xD0\x98"), u"\u6E38\u0418"_s);
    EXPECT_EQ(text("65001", QByteArray("\xE6\xB8\xB8").repeated(300)), QString(254, QChar(0x6E38)));
}

TEST_F(Texts, AFileWhosePageNobodyKnowsIsInTheAnsiCodePage) {
    for (const QByteArray page : {"", "1", "0", "-1", "99999", "UTF-8"}) {
        Use("[Infos]\r\nCodePage=" + page + "\r\n[LNG]\r\nA=\xE9\x80\r\n");
        EXPECT_EQ(GetText(u"A"_s), u"é€"_s) << page.constData();
    }
    Use("[LNG]\r\nA=\xE9\r\n[Infos]\r\nCodePage=1251\r\n");
    EXPECT_EQ(GetText(u"A"_s), u"\u0439"_s) << "wherever the section stands";
}

TEST_F(Texts, BackslashNStandsForALineBreak) {
    Use("[LNG]\r\nA=one\\ntwo\r\n");
    EXPECT_EQ(GetText(u"A"_s), u"one\r\ntwo"_s);
}

TEST_F(Texts, TheLimitOf254CharactersCountsBeforeTheReplacement) {
    Use("[LNG]\r\nA=" + QByteArray(253, 'x') + "\\n\r\n");
    EXPECT_EQ(GetText(u"A"_s), QString(253, u'x') + u'\\');
    Use("[LNG]\r\nA=" + QByteArray(252, 'x') + "\\nmore\r\n");
    EXPECT_EQ(GetText(u"A"_s), QString(252, u'x') + u"\r\n"_s);
}

TEST_F(Texts, AMissingKeyIsItsOwnText) {
    Use("[LNG]\r\nA=b\r\n");
    EXPECT_EQ(GetText(u"Missing"_s), u"Missing"_s);
}

TEST_F(Texts, AnEmptyValueCountsAsMissingAndIsLogged) {
    Use("[LNG]\r\nA=\r\n");
    EXPECT_EQ(GetText(u"A"_s), u"A"_s);
    EXPECT_TRUE(World::ReadFile(LogPath(world_)).contains(" - ID=A, TradFileName=Test.lng\r\n"));
}

TEST_F(Texts, ATextThatIsFoundIsNotLogged) {
    Use("[LNG]\r\nA=b\r\n");
    GetText(u"A"_s);
    EXPECT_FALSE(Files::FileExists(LogPath(world_)));
}

TEST_F(Texts, AChangeOfTheFileIsSeenAtTheNextLookup) {
    Use("[LNG]\r\nA=before\r\n");
    EXPECT_EQ(GetText(u"A"_s), u"before"_s);
    world_.WriteFile(u"program\\Test.lng"_s, "[LNG]\r\nA=after\r\n");
    EXPECT_EQ(GetText(u"A"_s), u"after"_s);
}

TEST_F(Texts, ANewLanguageTakesEffectAtTheNextStart) {
    Use("[LNG]\r\nA=first\r\n");
    world_.UseLanguage("[LNG]\r\nA=second\r\n", u"Other.lng"_s);
    EXPECT_EQ(GetText(u"A"_s), u"first"_s);
    world_.Start();
    EXPECT_EQ(GetText(u"A"_s), u"second"_s);
}

TEST_F(Texts, WithoutALanguageFileEveryKeyIsItsOwnText) {
    EXPECT_EQ(GetText(u"Open"_s), u"Open"_s);
    EXPECT_TRUE(World::ReadFile(LogPath(world_)).endsWith(" - ID=Open, TradFileName=\r\n"));
    mMain::LanguageFileName = u"Gone.lng"_s;
    EXPECT_EQ(GetText(u"Open"_s), u"Open"_s);
}

TEST_F(Texts, ALogRecordIsATagALengthAndTheAnsiText) {
    Use("[LNG]\r\n");
    GetText(u"Clé"_s);
    const QByteArray log = World::ReadFile(LogPath(world_));
    EXPECT_EQ(log.first(2), QByteArray("\x08\x00", 2));
    EXPECT_EQ(LengthAt(log, 2), log.size() - 4);
    EXPECT_TRUE(log.endsWith(" - ID=Cl\xE9, TradFileName=Test.lng\r\n"));
}

TEST_F(Texts, TheSecondRecordStartsOneByteBeforeTheEndOfTheFirst) {
    Use("[LNG]\r\n");
    GetText(u"First"_s);
    const qsizetype first = World::ReadFile(LogPath(world_)).size();
    GetText(u"Second"_s);
    const QByteArray log = World::ReadFile(LogPath(world_));
    EXPECT_EQ(log.at(first - 2), '\r');
    EXPECT_EQ(log.sliced(first - 1, 2), QByteArray("\x08\x00", 2));
    EXPECT_EQ(LengthAt(log, first + 1), log.size() - (first - 1) - 4);
    EXPECT_TRUE(log.endsWith(" - ID=Second, TradFileName=Test.lng\r\n"));
}

TEST_F(Texts, ALogThatCannotBeWrittenIsIgnored) {
    Use("[LNG]\r\n");
    Files::MakeFolder(LogPath(world_));
    EXPECT_EQ(GetText(u"A"_s), u"A"_s);
    EXPECT_EQ(GetText(u"A"_s), u"A"_s);
}

TEST_F(Texts, AFileOfGarbageShowsTheKeys) {
    QByteArray garbage;
    for (int i = 0; i < 5000; ++i)
        garbage.append(static_cast<char>(i * 37));
    Use(garbage);
    EXPECT_EQ(GetText(u"Open"_s), u"Open"_s);
}
