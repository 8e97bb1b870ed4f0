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
