// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a mere visit to a game's page would replace, and how it is kept.

#include "core/options/LossText.h"
#include "tests/core/OptionsTest.h"

using namespace Qt::StringLiterals;

namespace {

class KeptChoices : public OptionsTest {
protected:
    KeptChoices() {
        for (const QString& digits : {u"001"_s, u"002"_s, u"005"_s})
            MakeShellMap(0, digits);
        Write(0, u"Alpha.big"_s);
        Write(0, u"Beta.big"_s);
    }

    /// Enters a game, keeps what is stored and leaves it.
    void VisitAndKeep(GameIndex game) {
        page_.Enter(game);
        page_.KeepStored();
        EXPECT_FALSE(page_.Replaced().Any());
        page_.SaveGameOptions();
    }

    GamePage page_;
};

} // namespace

TEST_F(KeptChoices, AVisitThatReplacesNothingTellsNothing) {
    WriteSetting(u"GenStartupOptions"_s, u" -noshellmap"_s);
    WriteSetting(u"GenLoadMod"_s, u"beta.BIG"_s);
    WriteSetting(u"GenShellMapMode"_s, u"Load001"_s);
    page_.Enter(0);
    EXPECT_FALSE(page_.Replaced().Any());
    EXPECT_EQ(LossText::Of(page_), QString());
    WriteSetting(u"GenShellMapMode"_s, u"Load1"_s);
    page_.Enter(0);
    EXPECT_FALSE(page_.Replaced().Any()) << "the same shell map";
    WriteSetting(u"GenShellMapMode"_s, u"NoShellMap"_s);
    page_.Enter(0);
    EXPECT_FALSE(page_.Replaced().Any());
}

TEST_F(KeptChoices, TheTextNamesOptionsModAndShellMap) {
    WriteSetting(u"GenStartupOptions"_s, u" -xres 1024 -nologo"_s);
    WriteSetting(u"GenLoadMod"_s, u"Gone.big"_s);
    WriteSetting(u"GenShellMapMode"_s, u"Load005"_s);
    page_.Enter(0);
    EXPECT_EQ(LossText::Of(page_), u"Goes: options -xres 1024; mod Gone.big; 005 to 001."_s);
}

TEST_F(KeptChoices, TheTextNamesModesAsAPersonWould) {
    page_.Choose(ShellMapChoice::Random);
    page_.Enter(0);
    EXPECT_EQ(LossText::Of(page_), u"Goes: none to random."_s);
    WriteSetting(u"ZHShellMapMode"_s, u"Random"_s);
    page_.Enter(1);
    EXPECT_EQ(LossText::Of(page_), u"Goes: random to none."_s);
    WriteSetting(u"ZHShellMapMode"_s, u"Load"_s);
    page_.Enter(1);
    EXPECT_EQ(LossText::Of(page_), u"Goes: Load to none."_s);
}

TEST_F(KeptChoices, LongTextsAreShortened) {
    WriteSetting(u"GenStartupOptions"_s, QString(10'000, u'x'));
    WriteSetting(u"GenLoadMod"_s, QString(10'000, u'm'));
    WriteSetting(u"GenShellMapMode"_s, u"Load"_s + QString(10'000, u'9'));
    page_.Enter(0);
    EXPECT_LT(LossText::Of(page_).size(), 254);
}

TEST_F(KeptChoices, OptionsBeyondTheListAreKeptBesideThoseThatAreChosen) {
    WriteSetting(u"GenStartupOptions"_s, u" -nologo -xres 1024"_s);
    VisitAndKeep(0);
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u" -nologo -xres 1024"_s);
    page_.CheckOption(0, false);
    page_.CheckOption(1, true);
    EXPECT_EQ(page_.Choices().StartupOptions, u" -xres 1024 -noshellmap"_s);
}

TEST_F(KeptChoices, KeptOptionsStayAsTheyAreWrittenButForTheWordsThatChange) {
    for (const auto& [stored, without, with] :
         {std::tuple(u" -mod \"a  b\""_s, u" -mod \"a  b\""_s, u" -mod \"a  b\" -nologo"_s),
          {u" -xres 1024 -nologo"_s, u" -xres 1024"_s, u" -xres 1024 -nologo"_s},
          {u" -nologos -nologo"_s, u" -nologos"_s, u" -nologos -nologo"_s},
          {u"-nologo  -xres 1024 "_s, u"  -xres 1024 "_s, u"-nologo  -xres 1024 "_s},
          {u" -nologo -x  -nologo -y"_s, u" -x -y"_s, u" -nologo -x  -nologo -y"_s},
          {u" -mod \"a -nologo b\""_s, u" -mod \"a -nologo b\""_s, u" -mod \"a -nologo b\" -nologo"_s}}) {
        WriteSetting(u"GenStartupOptions"_s, stored);
        VisitAndKeep(0);
        EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), stored);
        page_.CheckOption(0, false);
        EXPECT_EQ(page_.Choices().StartupOptions, without);
        page_.CheckOption(0, true);
        EXPECT_EQ(page_.Choices().StartupOptions, with);
    }
}

TEST_F(KeptChoices, AnOptionThatWasChangedBeforeItIsKeptStaysChanged) {
    WriteSetting(u"GenStartupOptions"_s, u" -xres 1024 -nologo"_s);
    page_.Enter(0);
    page_.CheckOption(0, false);
    page_.CheckOption(1, true);
    page_.KeepStored();
    EXPECT_EQ(page_.Choices().StartupOptions, u" -xres 1024 -noshellmap"_s);
}

TEST_F(KeptChoices, ABlankBetweenQuotesPartsNoWord) {
    WriteSetting(u"GenStartupOptions"_s, u" -mod \"a  b\" -nologo"_s);
    page_.Enter(0);
    EXPECT_EQ(page_.Replaced().Options, (QStringList{u"-mod"_s, u"\"a  b\""_s}));
}

TEST_F(KeptChoices, AnOptionThatWasOnlyAPartOfAWordIsNotAdded) {
    WriteSetting(u"GenStartupOptions"_s, u" -nologos"_s);
    page_.Enter(0);
    EXPECT_EQ(CheckedOptions(page_), QStringList{u"nologo"_s});
    VisitAndKeep(0);
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u" -nologos"_s);
}

TEST_F(KeptChoices, AModThatIsGoneIsKeptUntilAnotherIsChosen) {
    WriteSetting(u"GenLoadMod"_s, u"Gone.big"_s);
    VisitAndKeep(0);
    EXPECT_EQ(ReadSetting(u"GenLoadMod"_s), u"Gone.big"_s);
    page_.SelectMod(1);
    EXPECT_EQ(page_.Choices().LoadMod, u"Gone.big"_s) << "a look at the list chooses nothing";
    page_.SetLoadsMod(true);
    EXPECT_EQ(page_.Choices().LoadMod, u"Beta.big"_s);
    page_.SetLoadsMod(false);
    EXPECT_EQ(page_.Choices().LoadMod, QString());
}

TEST_F(KeptChoices, TheSecondMiddleEarthsModIsShownOnceItIsKept) {
    Write(3, u"Alpha.big"_s);
    Write(3, u"Beta.big"_s);
    WriteSetting(u"BFME2LoadMod"_s, u"beta.big"_s);
    page_.Enter(3);
    EXPECT_EQ(LossText::Of(page_), u"Goes: mod beta.big."_s);
    VisitAndKeep(3);
    EXPECT_EQ(ReadSetting(u"BFME2LoadMod"_s), u"beta.big"_s);
    EXPECT_EQ(page_.Mod, 1);
    EXPECT_TRUE(page_.LoadsMod);
}

TEST_F(KeptChoices, AShellMapIsShownByItsNumberOnceItIsKept) {
    WriteSetting(u"GenShellMapMode"_s, u"Load005"_s);
    VisitAndKeep(0);
    EXPECT_EQ(ReadSetting(u"GenShellMapMode"_s), u"Load005"_s);
    EXPECT_EQ(page_.ShellMap, 2);
    page_.SelectShellMap(1);
    EXPECT_EQ(page_.Choices().ShellMapMode, u"Load002"_s);
}

TEST_F(KeptChoices, AShellMapThatIsNotThereIsKeptWithNoneSelected) {
    for (const QString& mode : {u"Load009"_s, u"Load"_s, u"LoadXYZ"_s}) {
        WriteSetting(u"GenShellMapMode"_s, mode);
        VisitAndKeep(0);
        EXPECT_EQ(ReadSetting(u"GenShellMapMode"_s), mode);
        EXPECT_EQ(page_.ShellMap, -1);
    }
    page_.Choose(ShellMapChoice::Load);
    EXPECT_EQ(page_.Choices().ShellMapMode, u"Load001"_s);
}

TEST_F(KeptChoices, AModeIsKeptWhereThereAreNoShellMaps) {
    WriteSetting(u"ZHShellMapMode"_s, u"Random"_s);
    VisitAndKeep(1);
    EXPECT_EQ(ReadSetting(u"ZHShellMapMode"_s), u"Random"_s);
    EXPECT_EQ(page_.Choice, ShellMapChoice::None);
}

TEST_F(KeptChoices, AnEmptyModeIsKeptFromTheGameBefore) {
    page_.Choose(ShellMapChoice::Random);
    VisitAndKeep(0);
    EXPECT_EQ(ReadSetting(u"GenShellMapMode"_s), QString());
    EXPECT_EQ(page_.Choice, ShellMapChoice::None);
}

TEST_F(KeptChoices, WhatTheUserChoosesIsNoLoss) {
    WriteSetting(u"GenLoadMod"_s, u"Gone.big"_s);
    WriteSetting(u"GenShellMapMode"_s, u"Load005"_s);
    page_.Enter(0);
    page_.SelectShellMap(1);
    EXPECT_EQ(LossText::Of(page_), u"Goes: mod Gone.big."_s);
    page_.SetLoadsMod(true);
    EXPECT_FALSE(page_.Replaced().Any());
    page_.KeepStored();
    EXPECT_EQ(page_.Choices().ShellMapMode, u"Load002"_s);
    EXPECT_EQ(page_.Choices().LoadMod, u"Alpha.big"_s);
}

TEST_F(KeptChoices, WhatIsKeptForOneGameIsNotKeptForTheNext) {
    WriteSetting(u"GenStartupOptions"_s, u" -xres"_s);
    WriteSetting(u"GenLoadMod"_s, u"Gone.big"_s);
    WriteSetting(u"GenShellMapMode"_s, u"Load009"_s);
    VisitAndKeep(0);
    MakeShellMap(1, u"004"_s);
    page_.Enter(1);
    const GameChoices choices = page_.Choices();
    EXPECT_EQ(choices.StartupOptions, QString());
    EXPECT_EQ(choices.LoadMod, QString());
    EXPECT_EQ(choices.ShellMapMode, u"Load004"_s);
}
