// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "platform/Files.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString ZeroHourKey = u"SOFTWARE\\Electronic Arts\\EA Games\\Command and Conquer Generals Zero Hour"_s;
const QString ShellFolders = u"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders"_s;

class Detection : public testing::Test {
protected:
    World world_;

    void Set(RootKey root, const QString& key, const QString& name, const QString& value) {
        mMain::Registry().SaveString(root, key, name, value);
    }

    void Install(GameIndex game) {
        world_.InstallGame(game);
        world_.Start();
    }
};

} // namespace

TEST_F(Detection, NoRegistryKeyMeansNoGame) {
    mMain::DetectGames();
    for (GameIndex game = 0; game < GameCount; ++game) {
        EXPECT_EQ(Game.at(static_cast<std::size_t>(game)).InstallPath, QString());
        EXPECT_EQ(mMain::InstallPathFoundIn(game), QString());
    }
    EXPECT_TRUE(mMain::NoGameOfFirstThree());
}

TEST_F(Detection, TheInstallPathIsTheRegistryValueAsItStands) {
    Set(RootKey::LocalMachine, ZeroHourKey, u"InstallPath"_s, u"D:/no slash added"_s);
    mMain::DetectGames();
    EXPECT_EQ(Game[1].InstallPath, u"D:/no slash added"_s);
    EXPECT_FALSE(mMain::InstallPathFoundIn(1).isEmpty());
}

TEST_F(Detection, EachGameHasAKeyOfItsOwn) {
    const QString ea = u"SOFTWARE\\Electronic Arts\\"_s;
    const QStringList keys{ea + u"EA Games\\Generals"_s, ZeroHourKey, ea + u"EA Games\\The Battle for Middle-Earth"_s,
                           ea + u"Electronic Arts\\The Battle for Middle-Earth II"_s};
    for (const QString& key : keys)
        Set(RootKey::LocalMachine, key, u"InstallPath"_s, u"C:\\%1\\"_s.arg(keys.indexOf(key)));
    mMain::DetectGames();
    for (std::size_t game = 0; game < GameCount; ++game)
        EXPECT_EQ(Game.at(game).InstallPath, u"C:\\%1\\"_s.arg(game));
}

TEST_F(Detection, UserFoldersStandWithTheDocumentsOrTheApplicationData) {
    for (GameIndex game = 0; game < GameCount; ++game)
        world_.InstallGame(game);
    world_.Start();
    const QString user = world_.Root() + u"\\user\\"_s;
    EXPECT_EQ(Game[0].ReplayPath, user + u"Documents\\Command and Conquer Generals Data\\Replays\\"_s);
    EXPECT_EQ(Game[0].MapPath, user + u"Documents\\Command and Conquer Generals Data\\Maps\\"_s);
    EXPECT_EQ(Game[1].ReplayPath, user + u"Documents\\Command and Conquer Generals Zero Hour Data\\Replays\\"_s);
    EXPECT_EQ(Game[1].MapPath, user + u"Documents\\Command and Conquer Generals Zero Hour Data\\Maps\\"_s);
    EXPECT_EQ(Game[2].ReplayPath, user + u"AppData\\My Battle for Middle-earth Files\\Replays\\"_s);
    EXPECT_EQ(Game[2].MapPath, user + u"AppData\\My Battle for Middle-earth Files\\Maps\\"_s);
    EXPECT_EQ(Game[3].ReplayPath, user + u"AppData\\My Battle for Middle-earth II Files\\Replays\\"_s);
    EXPECT_EQ(Game[3].MapPath, user + u"AppData\\My Battle for Middle-earth II Files\\Maps\\"_s);
}

TEST_F(Detection, MissingValuesLeaveThePathsBuiltFromWhatRemains) {
    mMain::DetectGames();
    EXPECT_EQ(Game[0].ReplayPath, u"\\Command and Conquer Generals Data\\Replays\\"_s);
    EXPECT_EQ(Game[1].ReplayPath, u"\\\\Replays\\"_s);
    EXPECT_EQ(Game[3].MapPath, u"\\\\Maps\\"_s);
    Set(RootKey::CurrentUser, ShellFolders, u"Personal"_s, u"C:\\Docs"_s);
    mMain::DetectGames();
    EXPECT_EQ(Game[1].MapPath, u"C:\\Docs\\\\Maps\\"_s);
    EXPECT_EQ(Game[2].MapPath, u"\\\\Maps\\"_s);
}

TEST_F(Detection, TheGamesOwnArchivesAreListedWithTheirOddities) {
    EXPECT_TRUE(Game[0].GameBigFiles.startsWith(u"/Audio.big//AudioFrench.big//AudioEnglish.big//French.big/"_s));
    EXPECT_TRUE(Game[0].GameBigFiles.contains(u"/gensec.big//INI.big/"_s));
    EXPECT_TRUE(Game[0].GameBigFiles.endsWith(u"/W3D.big//Window.big//Gensec.big/"_s));
    EXPECT_TRUE(Game[1].GameBigFiles.contains(u"/MapsZH.big//Music.big//MusicZH.big//PatchZH.big/"_s));
    EXPECT_TRUE(Game[2].GameBigFiles.contains(u"/Libraries.big//lotrsec.big//Maps.big/"_s));
    EXPECT_TRUE(Game[3].GameBigFiles.contains(u"/Textures0.big//Textures1.big//Textures2.big//Textures3.big/"_s));
    const QList<qsizetype> counts{18, 19, 19, 19};
    for (std::size_t game = 0; game < GameCount; ++game) {
        EXPECT_EQ(Game.at(game).GameBigFiles.count(u".big/"_s), counts.at(static_cast<qsizetype>(game)));
        EXPECT_EQ(Game.at(game).GameBigFiles.count(u'/'), 2 * counts.at(static_cast<qsizetype>(game)));
    }
}

TEST_F(Detection, FoldersOfInstalledGamesAreMade) {
    for (const GameIndex game : {0, 1, 2})
        world_.InstallGame(game);
    world_.Start();
    mMain::MakeUserFolders();
    for (const std::size_t game : {0U, 1U, 2U}) {
        EXPECT_TRUE(Files::FolderExists(Game.at(game).ReplayPath)) << game;
        EXPECT_TRUE(Files::FolderExists(Game.at(game).MapPath)) << game;
    }
}

TEST_F(Detection, TheSecondMiddleEarthGetsNoFolders) {
    Install(3);
    mMain::MakeUserFolders();
    EXPECT_FALSE(Files::FolderExists(world_.Root() + u"\\user\\AppData\\My Battle for Middle-earth II Files"_s));
}

TEST_F(Detection, AGameThatIsNotInstalledGetsNoFolders) {
    Install(0);
    mMain::MakeUserFolders();
    EXPECT_TRUE(Files::FolderExists(Game[0].MapPath));
    EXPECT_EQ(Files::ListFolder(world_.Root() + u"\\user\\Documents\\*"_s, true),
              QStringList{u"Command and Conquer Generals Data"_s});
}

TEST_F(Detection, AFolderThatStandsAlreadyDoesNotStopTheNext) {
    Install(1);
    Files::MakeFolders(Game[1].MapPath);
    mMain::MakeUserFolders();
    EXPECT_TRUE(Files::FolderExists(Game[1].ReplayPath));
}

TEST_F(Detection, AFileInTheWayOfAFolderIsIgnored) {
    Install(2);
    world_.WriteFile(u"user\\AppData\\My Battle for Middle-earth Files"_s, "in the way");
    EXPECT_NO_THROW(mMain::MakeUserFolders());
    EXPECT_FALSE(Files::FolderExists(Game[2].MapPath));
}

TEST_F(Detection, OnlyTheFirstThreeGamesCountForTheMessage) {
    Install(3);
    EXPECT_FALSE(Game[3].InstallPath.isEmpty());
    EXPECT_TRUE(mMain::NoGameOfFirstThree());
    Install(2);
    EXPECT_FALSE(mMain::NoGameOfFirstThree());
}
