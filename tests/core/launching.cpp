// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Settings.h"
#include "core/mLaunch.h"
#include "core/mMain.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using mLaunch::LaunchCommand;

namespace {

class Launching : public testing::Test {
protected:
    World world_;

    Launching() {
        for (std::size_t game = 0; game < GameCount; ++game)
            Game.at(game).InstallPath = u"C:\\Games\\%1\\"_s.arg(game);
    }
};

} // namespace

TEST_F(Launching, WithoutOptionsOrModTheCommandEndsInTheBlankAfterTheQuote) {
    EXPECT_EQ(LaunchCommand(0), u"\"C:\\Games\\0\\generals.exe\" "_s);
}

TEST_F(Launching, EachGameHasItsExecutableAndTheFirstTwoShareAName) {
    EXPECT_EQ(LaunchCommand(1), u"\"C:\\Games\\1\\generals.exe\" "_s);
    EXPECT_EQ(LaunchCommand(2), u"\"C:\\Games\\2\\lotrbfme.exe\" "_s);
    EXPECT_EQ(LaunchCommand(3), u"\"C:\\Games\\3\\lotrbfme2.exe\" "_s);
}

TEST_F(Launching, TwoOptionsAndAModStandBehindTwoBlanks) {
    WriteSetting(u"ZHStartupOptions"_s, u" -quickstart -noshaders"_s);
    WriteSetting(u"ZHLoadMod"_s, u"MyMod.big"_s);
    EXPECT_EQ(LaunchCommand(1), u"\"C:\\Games\\1\\generals.exe\"  -quickstart -noshaders -mod MyMod.big"_s);
}

TEST_F(Launching, AModWithoutOptionsStandsBehindTwoBlanks) {
    WriteSetting(u"BFMELoadMod"_s, u"Mod.big"_s);
    EXPECT_EQ(LaunchCommand(2), u"\"C:\\Games\\2\\lotrbfme.exe\"  -mod Mod.big"_s);
}

TEST_F(Launching, AModWithABlankInItsNameIsNotQuoted) {
    WriteSetting(u"BFME2LoadMod"_s, u"My Mod.big"_s);
    EXPECT_EQ(LaunchCommand(3), u"\"C:\\Games\\3\\lotrbfme2.exe\"  -mod My Mod.big"_s);
}

TEST_F(Launching, EachGameHasItsOwnOptions) {
    const QStringList prefixes{u"Gen"_s, u"ZH"_s, u"BFME"_s, u"BFME2"_s};
    for (GameIndex game = 0; game < GameCount; ++game) {
        EXPECT_EQ(SettingsPrefix(game), prefixes.at(game));
        WriteSetting(prefixes.at(game) + u"StartupOptions"_s, u" -option%1"_s.arg(game));
    }
    for (GameIndex game = 0; game < GameCount; ++game)
        EXPECT_TRUE(LaunchCommand(game).endsWith(u".exe\"  -option%1"_s.arg(game)));
}

TEST_F(Launching, AGameThatIsNotInstalledNamesABareExecutable) {
    Game[0].InstallPath.clear();
    EXPECT_EQ(LaunchCommand(0), u"\"generals.exe\" "_s);
}

TEST_F(Launching, AnIndexOutsideTheTableDoesNothing) {
    EXPECT_EQ(LaunchCommand(-1), QString());
    EXPECT_EQ(LaunchCommand(4), QString());
    EXPECT_NO_THROW(mLaunch::LaunchGame(-1));
    EXPECT_NO_THROW(mLaunch::LaunchGame(4));
}
