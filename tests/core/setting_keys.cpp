// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/SettingKeys.h"

#include "core/Settings.h"
#include "core/mMain.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

QStringList ForAllGames(QString (*key)(GameIndex)) {
    QStringList keys;
    for (GameIndex game = 0; game < GameCount; ++game)
        keys << key(game);
    return keys;
}

} // namespace

TEST(SettingKeys, TheSuitesOwn) {
    EXPECT_EQ(QString(SettingKeys::TradFileName), u"TradFileName"_s);
    EXPECT_EQ(QString(SettingKeys::AutoCheckForUpdates), u"AutoCheckForUpdates"_s);
    EXPECT_EQ(QString(SettingKeys::ViewFileIcons), u"ViewFileIcons"_s);
    EXPECT_EQ(QString(SettingKeys::BigView), u"BigView"_s);
    EXPECT_EQ(QString(SettingKeys::ExactOffsets), u"ExactOffsets"_s);
}

TEST(SettingKeys, EachGameHasItsOptionsItsModAndItsShellMap) {
    EXPECT_EQ(ForAllGames(SettingKeys::StartupOptions),
              (QStringList{u"GenStartupOptions"_s, u"ZHStartupOptions"_s, u"BFMEStartupOptions"_s,
                           u"BFME2StartupOptions"_s}));
    EXPECT_EQ(ForAllGames(SettingKeys::LoadMod),
              (QStringList{u"GenLoadMod"_s, u"ZHLoadMod"_s, u"BFMELoadMod"_s, u"BFME2LoadMod"_s}));
    EXPECT_EQ(ForAllGames(SettingKeys::ShellMapMode),
              (QStringList{u"GenShellMapMode"_s, u"ZHShellMapMode"_s, u"BFMEShellMapMode"_s, u"BFME2ShellMapMode"_s}));
    EXPECT_THROW(SettingKeys::LoadMod(4), std::out_of_range);
}

TEST(SettingKeys, ASettingIsReadUnderItsName) {
    const World world;
    WriteSetting(u"BigView"_s, u"3"_s);
    EXPECT_EQ(ReadSetting(SettingKeys::BigView), u"3"_s);
}

TEST(ProgramFolders, TheScratchFolderIsInTheProgramsFolder) {
    const World world;
    EXPECT_EQ(ProgramFolders::ProgramFolder, world.ProgramFolder());
    EXPECT_EQ(ProgramFolders::ScratchFolder(), world.ProgramFolder() + u"\\Temp"_s);
    EXPECT_EQ(&mMain::ProgramFolder, &ProgramFolders::ProgramFolder);
}
