// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/GameFiles.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Action = mMain::Dispatched::Action;

namespace {

class Start : public testing::Test {
protected:
    World world_;
    ScriptedHost host_;
    ScriptedNavigator navigator_;

    Start() { WriteSetting(u"AutoCheckForUpdates"_s, u"0"_s); }

    QStringList Run(const QString& commandLine) const {
        mMain::Show(mMain::Prepare(commandLine));
        return navigator_.Calls;
    }
};

} // namespace

TEST_F(Start, WithoutAGameTheMenuOpensAndThenTheMessageComes) {
    world_.UseLanguage("[LNG]\r\nNoGameDetected=Nothing\\nfound\r\n");
    navigator_.OnCall = [&](const QString&) { EXPECT_TRUE(host_.Messages.empty()); };
    EXPECT_EQ(Run({}), QStringList{u"ShowToolsMenu"_s});
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages.front().Text, u"Nothing\r\nfound"_s);
    EXPECT_EQ(host_.Messages.front().Title, u"Brindock 2005"_s);
    EXPECT_EQ(host_.Messages.front().Sign, Host::Icon::Critical);
}

TEST_F(Start, WithAGameThereIsNoMessage) {
    world_.InstallGame(1);
    EXPECT_EQ(Run({}), QStringList{u"ShowToolsMenu"_s});
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Start, WithOnlyTheSecondMiddleEarthTheMessageComesAllTheSame) {
    world_.InstallGame(3);
    Run({});
    EXPECT_EQ(host_.Messages.size(), 1U);
}

TEST_F(Start, UserFoldersAreMadeOnTheWay) {
    world_.InstallGame(0);
    mMain::Prepare({});
    EXPECT_TRUE(Files::FolderExists(Game[0].ReplayPath));
}

TEST_F(Start, ToolsOpenWithoutTheMenuAndWithoutTheMessage) {
    const QString path = world_.WriteFile(u"a b.big"_s, {});
    const std::vector<std::pair<QString, QString>> lines{
        {u"/tbig"_s, u"ShowBigEditor"_s},        {u"/tbig "_s + path, u"OpenBigFile "_s + path},
        {u"/bige"_s, u"ShowBigEditor"_s},        {u"/bige "_s + path, u"ExtractBigFile "_s + path},
        {u"/tcsf"_s, u"ShowCSFEditor"_s},        {u"/tcsf "_s + path, u"OpenCSFFile "_s + path},
        {u"/tpfiles"_s, u"ShowPersonalFiles"_s},
    };
    for (const auto& [line, call] : lines) {
        navigator_.Calls.clear();
        EXPECT_EQ(Run(line), QStringList{call}) << line.toStdString();
    }
    EXPECT_TRUE(host_.Messages.empty());
    EXPECT_FALSE(mMain::AddFileRequested);
}

TEST_F(Start, AddFileSetsItsFlagAndArgumentBeforeTheWizardOpens) {
    navigator_.OnCall = [](const QString&) {
        EXPECT_TRUE(mMain::AddFileRequested);
        EXPECT_EQ(mMain::CommandFileArgument, u"C:\\my maps\\a.zip"_s);
    };
    EXPECT_EQ(Run(u"/addfile C:\\my maps\\a.zip"_s), QStringList{u"ShowAddFiles"_s});
}

TEST_F(Start, AFailingDetectionGoesStraightToTheMenuWithWhatWasFilledIn) {
    world_.InstallGame(0);
    const auto detectHalf = [] {
        Game[2].InstallPath = u"C:\\found\\"_s;
        throw RuntimeError(ErrorNumber::InvalidCall, u"the registry broke"_s);
    };
    mMain::Show(mMain::Prepare(u"/tbig"_s, detectHalf));
    EXPECT_EQ(navigator_.Calls, QStringList{u"ShowToolsMenu"_s});
    EXPECT_TRUE(host_.Messages.empty());
    EXPECT_EQ(mMain::CommandLine, QString());
    EXPECT_EQ(Files::ListFolder(world_.Root() + u"\\user\\Documents\\*"_s, true), QStringList());
}

TEST_F(Start, TheCommandLineIsKeptAsItWasGiven) {
    mMain::Prepare(u"/tbig  \"two  blanks\" "_s);
    EXPECT_EQ(mMain::CommandLine, u"/tbig  \"two  blanks\" "_s);
}

TEST_F(Start, TheLanguageIsTheOneOfTheSettings) {
    WriteSetting(u"TradFileName"_s, u"Some.lng"_s);
    mMain::Prepare({});
    EXPECT_EQ(mMain::LanguageFileName, u"Some.lng"_s);
}

TEST_F(Start, TheUpdateCheckRunsBeforeTheFirstWindow) {
    WriteSetting(u"AutoCheckForUpdates"_s, u"1"_s);
    EXPECT_EQ(Run({}), (QStringList{u"CheckForUpdates automatic"_s, u"ShowToolsMenu"_s}));
    navigator_.Calls.clear();
    EXPECT_EQ(Run(u"/tpfiles"_s), (QStringList{u"CheckForUpdates automatic"_s, u"ShowPersonalFiles"_s}));
    navigator_.Calls.clear();
    EXPECT_EQ(Run(u"/launch"_s), (QStringList{u"CheckForUpdates automatic"_s, u"ShowToolsMenu"_s}));
}

TEST_F(Start, AnUnknownSwitchChecksTwice) {
    WriteSetting(u"AutoCheckForUpdates"_s, u"1"_s);
    EXPECT_EQ(Run(u"/x"_s).count(u"CheckForUpdates automatic"_s), 2);
}

TEST_F(Start, TheSecondCheckReadsTheSettingAnew) {
    WriteSetting(u"AutoCheckForUpdates"_s, u"1"_s);
    navigator_.OnCall = [](const QString&) { WriteSetting(u"AutoCheckForUpdates"_s, u"0"_s); };
    EXPECT_EQ(Run(u"/x"_s).count(u"CheckForUpdates automatic"_s), 1);
}

TEST_F(Start, TheCheckIsOnUnlessTheSettingIsAnotherNumberThanOne) {
    for (const QString& on : {QString(), u"1"_s, u"1.9"_s, u" 1 "_s, u"1e0"_s, u"yes"_s, u"0x"_s, u"1,9"_s, u"nan"_s}) {
        WriteSetting(u"AutoCheckForUpdates"_s, on);
        EXPECT_TRUE(mMain::AutomaticCheckWanted()) << on.toStdString();
    }
    for (const QString& off : {u"0"_s, u"0.9"_s, u"2"_s, u"-1"_s, u"-1.9"_s, u"10"_s}) {
        WriteSetting(u"AutoCheckForUpdates"_s, off);
        EXPECT_FALSE(mMain::AutomaticCheckWanted()) << off.toStdString();
    }
}

TEST_F(Start, LaunchingPreparesTheShellMapAndShowsNothing) {
    WriteSetting(u"AutoCheckForUpdates"_s, u"1"_s);
    world_.InstallGame(3);
    QList<GameIndex> activated;
    GameFiles::ActivateShellMap = [&](GameIndex game) { activated << game; };
    const mMain::Dispatched dispatched = mMain::Prepare(u"/launch /bfme2"_s);
    EXPECT_EQ(dispatched.What, Action::LaunchGame);
    mMain::Show(dispatched);
    EXPECT_EQ(activated, QList<GameIndex>{3});
    EXPECT_TRUE(navigator_.Calls.isEmpty());
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Start, AGameThatCanNotBeStartedIsToldInOneLineAndShowsNothing) {
    world_.InstallGame(0);
    world_.Start();
    const mMain::Dispatched failed = mMain::Prepare(u"/launch /gen"_s);
    EXPECT_TRUE(failed.Failure.contains(u"generals.exe"_s)) << failed.Failure.toStdString();
    EXPECT_FALSE(failed.Failure.contains(u'\n'));
    mMain::Show(failed);
    EXPECT_TRUE(navigator_.Calls.isEmpty());
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Start, LaunchingNeedsNoWindows) {
    world_.InstallGame(0);
    Navigator::Use(nullptr);
    EXPECT_EQ(mMain::Prepare(u"/launch /gen"_s).What, Action::LaunchGame);
}

TEST_F(Start, AFailingStepDoesNotStopTheNext) {
    WriteSetting(u"AutoCheckForUpdates"_s, u"1"_s);
    navigator_.OnCall = [](const QString&) { throw RuntimeError(ErrorNumber::InvalidCall, u"refused"_s); };
    EXPECT_EQ(Run({}), (QStringList{u"CheckForUpdates automatic"_s, u"ShowToolsMenu"_s}));
    EXPECT_EQ(host_.Messages.size(), 1U);
    world_.InstallGame(1);
    EXPECT_NO_THROW(mMain::Prepare(u"/launch /zh"_s));
}

TEST_F(Start, TheVersionHasNoPadding) {
    EXPECT_EQ(mMain::VersionText(), u"3.5.4"_s);
}

TEST(Wiring, AskingForAMissingHostOrNavigatorRaises91) {
    for (const auto& ask : {+[] { Host::Current(); }, +[] { Navigator::Current(); }}) {
        try {
            ask();
            ADD_FAILURE() << "nothing was raised";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), 91);
        }
    }
}
