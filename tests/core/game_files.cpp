// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/GameFiles.h"
#include "tests/support/Raised.h"

#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using GameFiles::Kind;

namespace {

class GameFilesTest : public testing::Test {
protected:
    GameFilesTest() {
        world_.InstallGame(0);
        world_.InstallGame(1);
        mMain::DetectGames();
    }

    void Write(const QString& name, const QByteArray& bytes = "x") const {
        world_.WriteFile(u"games\\Generals\\"_s + name, bytes);
    }

    void MakeShellMaps(const QStringList& names) const {
        for (const QString& name : names)
            Files::MakeFolders(Game[0].InstallPath + u"Maps\\"_s + name);
    }

    World world_;
};

} // namespace

TEST_F(GameFilesTest, AModIsAnArchiveBesideTheGamesOwn) {
    for (const QString& name : {u"INI.BIG"_s, u"gensec.big"_s, u"MyMod.big"_s, u"_Disabled.big"_s, u"notes.txt"_s,
                                u"Second.BIG"_s, u"INI.big.bak"_s})
        Write(name);
    MakeShellMaps({});
    Files::MakeFolders(Game[0].InstallPath + u"Folder.big"_s);
    EXPECT_EQ(GameFiles::Mods(0), (QStringList{u"MyMod.big"_s, u"Second.BIG"_s}));
}

TEST_F(GameFilesTest, ModsAreInOrderOfTheirNamesCapitalsAndSmallLettersAlike) {
    const QStringList ordered{u"a.big"_s,  u"Ab.big"_s, u"ab1.big"_s,    u"B.big"_s,      u"b2.big"_s,
                              u"Ba.big"_s, u"b_.big"_s, u"\u00C9.big"_s, u"\u00E9a.big"_s};
    for (const int at : {4, 8, 1, 7, 2, 5, 3, 0, 6})
        Write(ordered.at(at));
    EXPECT_EQ(GameFiles::Mods(0), ordered);
}

TEST_F(GameFilesTest, AnotherGamesArchiveIsAMod) {
    EXPECT_FALSE(GameFiles::IsMod(1, u"inizh.BIG"_s));
    EXPECT_TRUE(GameFiles::IsMod(0, u"INIZH.big"_s));
    EXPECT_TRUE(GameFiles::IsOwnArchive(0, u"window.big"_s));
    EXPECT_FALSE(GameFiles::IsOwnArchive(0, u"indow.big"_s)) << "a part of a name is none";
    EXPECT_FALSE(GameFiles::IsOwnArchive(0, u"_INI.big"_s));
    EXPECT_FALSE(GameFiles::IsMod(0, u"_INI.big"_s));
}

TEST_F(GameFilesTest, AGameThatIsNotInstalledHasNeitherModsNorShellMaps) {
    EXPECT_TRUE(Game[2].InstallPath.isEmpty());
    EXPECT_TRUE(GameFiles::Mods(2).isEmpty());
    EXPECT_TRUE(GameFiles::ShellMaps(2).isEmpty());
    EXPECT_EQ(GameFiles::HighestShellMapNumber(2), std::nullopt);
}

TEST_F(GameFilesTest, AGameWithoutFilesOrFoldersHasNone) {
    EXPECT_TRUE(GameFiles::Mods(0).isEmpty());
    EXPECT_TRUE(GameFiles::ShellMaps(0).isEmpty()) << "there is no folder for maps";
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0), std::nullopt);
}

TEST_F(GameFilesTest, ShellMapsHaveExactlyThreeCharactersBehindTheWord) {
    MakeShellMaps({u"QvShellMap010"_s, u"QvShellMap002"_s, u"QvShellMap01"_s, u"QvShellMap0001"_s, u"Tournament"_s,
                   u"qvshellmap003"_s, u"QvShellMapOld"_s});
    EXPECT_EQ(GameFiles::ShellMaps(0),
              (QStringList{u"QvShellMap002"_s, u"qvshellmap003"_s, u"QvShellMap010"_s, u"QvShellMapOld"_s}));
}

TEST_F(GameFilesTest, AFileOfAFittingNameIsListedUnlessFoldersAreAskedFor) {
    MakeShellMaps({u"QvShellMap001"_s});
    Write(u"Maps\\QvShellMap002"_s);
    EXPECT_EQ(GameFiles::ShellMaps(0), (QStringList{u"QvShellMap001"_s, u"QvShellMap002"_s}));
    EXPECT_EQ(GameFiles::ShellMaps(0, Kind::FoldersOnly), QStringList{u"QvShellMap001"_s});
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0), 2);
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0, Kind::FoldersOnly), 1);
}

TEST_F(GameFilesTest, TheLastShellMapOfTheListingHasTheHighestNumber) {
    MakeShellMaps({u"QvShellMap009"_s, u"QvShellMap003"_s, u"ZShellMap077"_s, u"ShellMap1"_s});
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0), 9);
    MakeShellMaps({u"QvShellMap010"_s});
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0), 10);
    MakeShellMaps({u"QvShellMap9012"_s});
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0), 12) << "any length, and the last three characters count";
    EXPECT_EQ(GameFiles::HighestShellMapNumber(1), std::nullopt) << "Each game has its own.";
}

TEST_F(GameFilesTest, TheHighestNumberIsThatOfANameInTheSuitesOwnLetters) {
    MakeShellMaps({u"QvShellMap002"_s, u"qvshellmap007"_s});
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0), 2);
}

TEST_F(GameFilesTest, ANameThatEndsInNoNumberIsPassedOverWhereTheHighestNumberIsWanted) {
    MakeShellMaps({u"QvShellMapOld"_s, u"QvShellMap"_s, u"QvShellMap-05"_s, u"QvShellMap1.5"_s});
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0), std::nullopt);
    MakeShellMaps({u"QvShellMap001"_s, u"QvShellMap9e9"_s});
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0), 1);
}

TEST_F(GameFilesTest, ANumberIsThreeDigits) {
    EXPECT_EQ(GameFiles::NumberIn(u"QvShellMap042"_s), 42);
    EXPECT_EQ(GameFiles::NumberIn(u"000"_s), 0);
    for (const QString& name : {u"QvShellMapOld"_s, u"+05"_s, u"5e1"_s, u" 05"_s, u"05"_s, u"1٠١"_s, QString()})
        EXPECT_EQ(GameFiles::NumberIn(name), std::nullopt) << name.toStdString();
}

TEST_F(GameFilesTest, ANameThatEndsInNoNumberRaisesATypeMismatch) {
    for (const QString& name : {u"QvShellMapnan"_s, u"QvShellMapinf"_s, QString()})
        EXPECT_EQ(NumberRaisedBy([&] { GameFiles::ShellMapNumber(name); }), 13) << name.toStdString();
    EXPECT_EQ(GameFiles::ShellMapNumber(u"C:\\Maps\\QvShellMap042"_s), 42);
    EXPECT_EQ(GameFiles::ShellMapNumber(u"9e9"_s), 1000000000);
}

TEST_F(GameFilesTest, ANumberIsFilledOutToThreeCharacters) {
    EXPECT_EQ(GameFiles::ShellMapName(u"7"_s), u"QvShellMap007"_s);
    EXPECT_EQ(GameFiles::ShellMapName(u"042"_s), u"QvShellMap042"_s);
    EXPECT_EQ(GameFiles::ShellMapName({}), u"QvShellMap000"_s);
    EXPECT_EQ(NumberRaisedBy([] { GameFiles::ShellMapName(u"1000"_s); }), 5);
    EXPECT_EQ(GameFiles::ShellMapFolder(0, u"QvShellMap007"_s), Game[0].InstallPath + u"Maps\\QvShellMap007"_s);
}

TEST_F(GameFilesTest, AModsRecordStandsBesideItUnderItsNameWithoutTheLastFourCharacters) {
    Write(u"My.Mod.ini"_s, "[Mod]\r\nName=Some mod\r\nComments=\"Of 2005\"\r\n");
    const GameFiles::RecordPlace place = GameFiles::ModRecord(0, u"My.Mod.big"_s);
    EXPECT_EQ(place.File, Game[0].InstallPath + u"My.Mod.ini"_s);
    EXPECT_EQ(place.Section, u"Mod"_s);
    const GameFiles::Record record = GameFiles::ReadRecord(place);
    EXPECT_EQ(record.Name, u"Some mod"_s);
    EXPECT_EQ(record.Comments, u"Of 2005"_s);
    const GameFiles::Record missing = GameFiles::ReadRecord(GameFiles::ModRecord(0, u"Other.big"_s));
    EXPECT_EQ(missing.Name, QString());
    EXPECT_EQ(missing.Comments, QString());
}

TEST_F(GameFilesTest, AShellMapsRecordStandsInItsFolder) {
    Write(u"Maps\\QvShellMap001\\QvInfos.ini"_s, "[Mod]\r\nName=wrong\r\n[Infos]\r\nName=Desert\r\nComments=Night\r\n");
    const GameFiles::RecordPlace place = GameFiles::ShellMapRecord(0, u"QvShellMap001"_s);
    EXPECT_EQ(place.File, Game[0].InstallPath + u"Maps\\QvShellMap001\\QvInfos.ini"_s);
    const GameFiles::Record record = GameFiles::ReadRecord(place);
    EXPECT_EQ(record.Name, u"Desert"_s);
    EXPECT_EQ(record.Comments, u"Night"_s);
}
