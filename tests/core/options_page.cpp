// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a game's page shows, and what it stores.

#include "tests/core/OptionsTest.h"

using namespace Qt::StringLiterals;

namespace {

class GamePages : public OptionsTest {
protected:
    GamePage page_;
};

} // namespace

TEST_F(GamePages, EachGameHasItsOwnOptionsInTheirOrder) {
    const QStringList middleEarth{u"quickstart"_s, u"noaudio"_s, u"noshaders"_s, u"noshellmap"_s};
    const QList<QStringList> expected{
        {u"nologo"_s, u"noshellmap"_s}, {u"quickstart"_s, u"noshaders"_s, u"noshellmap"_s}, middleEarth, middleEarth};
    for (GameIndex game = 0; game < GameCount; ++game) {
        page_.Enter(game);
        QStringList names;
        for (const GamePage::Option& option : page_.Options)
            names += option.Name;
        EXPECT_EQ(names, expected[game]);
    }
}

TEST_F(GamePages, AnOptionIsCheckedWhereItsNameOccursInTheSetting) {
    WriteSetting(u"ZHStartupOptions"_s, u" -noshellmap -quickstart"_s);
    page_.Enter(1);
    EXPECT_EQ(CheckedOptions(page_), (QStringList{u"quickstart"_s, u"noshellmap"_s}));
}

TEST_F(GamePages, AnOptionIsSearchedForWithRegardToCaseAndWithinOtherWords) {
    WriteSetting(u"ZHStartupOptions"_s, u" -QuickStart -xnoshadersx"_s);
    page_.Enter(1);
    EXPECT_EQ(CheckedOptions(page_), QStringList{u"noshaders"_s});
}

TEST_F(GamePages, OptionsAreStoredInTheOrderOfTheListEachWithABlankAndADash) {
    page_.Enter(1);
    page_.CheckOption(2, true);
    page_.CheckOption(0, true);
    page_.CheckOption(7, true);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"ZHStartupOptions"_s), u" -quickstart -noshellmap"_s);
    page_.CheckOption(0, false);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"ZHStartupOptions"_s), u" -noshellmap"_s);
}

TEST_F(GamePages, AModIsShownByTheNameInItsIniFileOrElseByItsOwn) {
    Write(0, u"INI.big"_s);
    Write(0, u"_Hidden.big"_s);
    Write(0, u"Alpha.big"_s);
    Write(0, u"Alpha.ini"_s, "[Mod]\r\nName=The first\r\n");
    Write(0, u"Beta.big"_s);
    Write(0, u"Beta.ini"_s, "[Mod]\r\nName=\r\n");
    Write(0, u"Gamma.big"_s);
    EXPECT_EQ(page_.ListMods(0), 3);
    EXPECT_EQ(page_.Mods, (QStringList{u"The first"_s, u"Beta.big"_s, u"Gamma.big"_s}));
    EXPECT_EQ(page_.ModBigFiles, (QStringList{u"Alpha.big"_s, u"Beta.big"_s, u"Gamma.big"_s}));
    EXPECT_EQ(page_.Mod, -1);
}

TEST_F(GamePages, TheStoredModIsSelectedWithoutRegardToCase) {
    Write(0, u"Alpha.big"_s);
    Write(0, u"Beta.big"_s);
    WriteSetting(u"GenLoadMod"_s, u"BETA.BIG"_s);
    page_.Enter(0);
    EXPECT_EQ(page_.Mod, 1);
    EXPECT_TRUE(page_.LoadsMod);
    EXPECT_EQ(page_.Choices().LoadMod, u"Beta.big"_s);
}

TEST_F(GamePages, WithoutAStoredModTheFirstIsSelectedAndNoneIsLoaded) {
    Write(0, u"Alpha.big"_s);
    Write(0, u"Beta.big"_s);
    page_.Enter(0);
    EXPECT_EQ(page_.Mod, 0);
    EXPECT_FALSE(page_.LoadsMod);
    EXPECT_TRUE(page_.Choices().LoadMod.isEmpty());
}

TEST_F(GamePages, AModThatIsChosenIsStoredByItsFileName) {
    Write(0, u"Alpha.big"_s);
    Write(0, u"Beta.big"_s);
    Write(0, u"Beta.ini"_s, "[Mod]\r\nName=Second\r\n");
    page_.Enter(0);
    page_.SetLoadsMod(true);
    page_.SelectMod(1);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"GenLoadMod"_s), u"Beta.big"_s);
    page_.SetLoadsMod(false);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"GenLoadMod"_s), QString());
}

TEST_F(GamePages, AStoredModWhoseFileHasGoneIsClearedByAVisit) {
    WriteSetting(u"GenLoadMod"_s, u"Gone.big"_s);
    page_.Enter(0);
    EXPECT_TRUE(page_.Mods.isEmpty());
    EXPECT_EQ(page_.Mod, -1);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"GenLoadMod"_s), QString());
}

TEST_F(GamePages, AModThatBeginsWithAnUnderscoreIsNeverListed) {
    Write(0, u"_Alpha.big"_s);
    WriteSetting(u"GenLoadMod"_s, u"_Alpha.big"_s);
    page_.Enter(0);
    EXPECT_TRUE(page_.Mods.isEmpty());
}

TEST_F(GamePages, TheSecondMiddleEarthsModIsStoredAndNeverPreselected) {
    Write(3, u"Alpha.big"_s);
    Write(3, u"Beta.big"_s);
    page_.Enter(3);
    page_.SetLoadsMod(true);
    page_.SelectMod(1);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"BFME2LoadMod"_s), u"Beta.big"_s);
    page_.Enter(3);
    EXPECT_EQ(page_.Mod, 0);
    EXPECT_FALSE(page_.LoadsMod);
}

TEST_F(GamePages, ShellMapsAreFoldersWithTheirLastThreeCharactersAndTheirName) {
    MakeShellMap(0, u"002"_s, "Second");
    MakeShellMap(0, u"001"_s, "First");
    Files::MakeFolders(Game[0].InstallPath + u"Maps\\QvShellMapabc"_s);
    Files::MakeFolders(Game[0].InstallPath + u"Maps\\QvShellMap12"_s);
    Write(0, u"Maps\\QvShellMap004"_s);
    EXPECT_EQ(page_.ListShellMaps(0), 3);
    EXPECT_EQ(page_.ShellMaps, (QStringList{u"001 - First"_s, u"002 - Second"_s, u"abc - "_s}));
}

TEST_F(GamePages, WithoutShellMapsNoneIsLoadedAndTheModeIsStoredAsEmptyText) {
    WriteSetting(u"GenShellMapMode"_s, u"Random"_s);
    page_.Enter(0);
    EXPECT_EQ(page_.Choice, ShellMapChoice::None);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"GenShellMapMode"_s), QString());
}

TEST_F(GamePages, TheWordNoShellMapIsUnderstoodAndNeverWritten) {
    MakeShellMap(0, u"001"_s);
    page_.Choose(ShellMapChoice::Random);
    WriteSetting(u"GenShellMapMode"_s, u"NoShellMap"_s);
    page_.Enter(0);
    EXPECT_EQ(page_.Choice, ShellMapChoice::None);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"GenShellMapMode"_s), QString());
}

TEST_F(GamePages, ARandomModeIsShownAndStored) {
    MakeShellMap(0, u"001"_s);
    WriteSetting(u"GenShellMapMode"_s, u"Random"_s);
    page_.Enter(0);
    EXPECT_EQ(page_.Choice, ShellMapChoice::Random);
    EXPECT_EQ(page_.Choices().ShellMapMode, u"Random"_s);
}

TEST_F(GamePages, AnEmptyModeLeavesTheChoiceOfTheGameBeforeAndStoresIt) {
    MakeShellMap(0, u"001"_s);
    MakeShellMap(1, u"001"_s);
    WriteSetting(u"GenShellMapMode"_s, u"Random"_s);
    page_.Enter(0);
    page_.Enter(1);
    EXPECT_EQ(page_.Choice, ShellMapChoice::Random);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"ZHShellMapMode"_s), u"Random"_s);
}

TEST_F(GamePages, TheDigitsOfALoadValueAreAPositionAmongTheEntries) {
    for (const QString& digits : {u"001"_s, u"003"_s, u"005"_s})
        MakeShellMap(0, digits);
    for (const auto& [mode, place] : {std::pair(u"Load003"_s, 2), {u"Load1"_s, 0}, {u"Load2"_s, 1}}) {
        WriteSetting(u"GenShellMapMode"_s, mode);
        page_.ListShellMaps(0);
        page_.LoadGameOptions(0);
        EXPECT_EQ(page_.Choice, ShellMapChoice::Load);
        EXPECT_EQ(page_.ShellMap, place) << mode.toStdString();
    }
}

TEST_F(GamePages, ALoadValueThatNamesNoPositionPreselectsNothing) {
    for (const QString& digits : {u"001"_s, u"002"_s, u"003"_s})
        MakeShellMap(0, digits);
    for (const QString& mode : {u"Load005"_s, u"Load"_s, u"LoadXYZ"_s, u"Load000"_s, u"Load-1"_s, u"L"_s, u"random"_s,
                                u"Load99999999999999"_s, QString(10'000, u'9')}) {
        WriteSetting(u"GenShellMapMode"_s, mode);
        page_.ListShellMaps(0);
        page_.LoadGameOptions(0);
        EXPECT_EQ(page_.Choice, ShellMapChoice::Load);
        EXPECT_EQ(page_.ShellMap, -1) << mode.toStdString();
    }
}

TEST_F(GamePages, TheShellMapListEndsOnItsFirstEntryWhateverIsStored) {
    for (const QString& digits : {u"003"_s, u"004"_s, u"005"_s})
        MakeShellMap(0, digits);
    for (const QString& mode : {u"Load002"_s, u"Load005"_s, u"Load"_s, u"LoadXYZ"_s}) {
        WriteSetting(u"GenShellMapMode"_s, mode);
        page_.Enter(0);
        EXPECT_EQ(page_.ShellMap, 0);
        EXPECT_EQ(page_.Choice, ShellMapChoice::Load);
        EXPECT_EQ(page_.Choices().ShellMapMode, u"Load003"_s);
    }
}

TEST_F(GamePages, AShellMapThatIsChosenIsStoredByTheFirstThreeCharactersOfItsEntry) {
    MakeShellMap(3, u"001"_s);
    MakeShellMap(3, u"007"_s, "Seventh");
    page_.Enter(3);
    page_.Choose(ShellMapChoice::Load);
    page_.SelectShellMap(1);
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"BFME2ShellMapMode"_s), u"Load007"_s);
}

TEST_F(GamePages, SettingsOfAnyLengthAreBorne) {
    MakeShellMap(2, u"001"_s);
    const QString words = u" -noaudio "_s + QString(10'000, u'x') + u" -noshaders"_s;
    WriteSetting(u"BFMEStartupOptions"_s, words);
    WriteSetting(u"BFMELoadMod"_s, QString(10'000, u'm'));
    page_.Enter(2);
    EXPECT_EQ(CheckedOptions(page_), (QStringList{u"noaudio"_s, u"noshaders"_s}));
    page_.SaveGameOptions();
    EXPECT_EQ(ReadSetting(u"BFMEStartupOptions"_s), u" -noaudio -noshaders"_s);
}
