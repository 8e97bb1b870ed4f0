// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The first page of adding files: what a file is, and the game that it is for.

#include "core/mMain.h"
#include "install/InstallSource.h"
#include "install/wizard/SourcePage.h"
#include "tests/support/Printing.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tools/demoworld/ZipBytes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto dialog = SourcePage::By::Dialog;
constexpr auto commandLine = SourcePage::By::CommandLine;

class SourcePageTest : public testing::Test {
protected:
    SourcePageTest() {
        world_.UseLanguage("[LNG]\r\nGenerals=Generals\r\nZeroHour=Zero Hour\r\nBFME=Middle-earth\r\n"
                           "BFME2=Middle-earth II\r\nKiloBytes=KB\r\nFiles=File(s)\r\nMap=A map\r\nMod=A mod\r\n"
                           "Replay=A replay\r\nShellMap=A shell map\r\nZIP=An archive\r\n");
    }

    /// These games are installed.
    SourcePage& With(std::initializer_list<GameIndex> games) {
        for (const GameIndex game : games)
            world_.InstallGame(game);
        world_.Start();
        page_ = std::make_unique<SourcePage>();
        return *page_;
    }

    QString Put(const QString& name, const QByteArray& bytes = "x") const {
        return world_.WriteFile(u"files\\"_s + name, bytes);
    }

    [[nodiscard]] QStringList GameTexts() const {
        QStringList texts;
        for (const SourcePage::GameRow& row : page_->Games())
            texts += row.Text;
        return texts;
    }

    /// The texts of the messages, which are all critical.
    [[nodiscard]] QStringList Messages() const {
        QStringList texts;
        for (const ScriptedHost::Shown& shown : host_.Messages) {
            EXPECT_EQ(shown.Sign, Host::Icon::Critical);
            texts += shown.Text;
        }
        return texts;
    }

    World world_;
    ScriptedHost host_;
    std::unique_ptr<SourcePage> page_;
};

} // namespace

TEST_F(SourcePageTest, TheInstalledGamesAreOfferedInTheirOrderAndTheFirstOneIsSelected) {
    With({3, 0, 2, 1});
    EXPECT_EQ(GameTexts(), (QStringList{u"Generals"_s, u"Zero Hour"_s, u"Middle-earth"_s, u"Middle-earth II"_s}));
    EXPECT_EQ(page_->State().GameRow, 0);
}

TEST_F(SourcePageTest, AGameThatIsNotInstalledHasNoRow) {
    With({1, 3});
    EXPECT_EQ(GameTexts(), (QStringList{u"Zero Hour"_s, u"Middle-earth II"_s}));
    EXPECT_EQ(page_->Games().at(1).Game, 3);
}

TEST_F(SourcePageTest, WithoutAFileThereIsNothingToSeeAndNoNext) {
    With({0});
    EXPECT_FALSE(page_->State().InformationsVisible);
    EXPECT_FALSE(page_->State().GameEnabled);
    EXPECT_FALSE(page_->State().NextEnabled);
}

TEST_F(SourcePageTest, EachTypeIsNamed) {
    With({0});
    const QList<std::pair<QString, QString>> types{{u"a.map"_s, u"A map"_s},
                                                   {u"a.rep"_s, u"A replay"_s},
                                                   {u"a.big"_s, u"A mod"_s},
                                                   {u"ShellMap1.map"_s, u"A shell map"_s},
                                                   {u"SHELLMAPMD.map"_s, u"A shell map"_s},
                                                   {u"shellmap2.map"_s, u"A map"_s},
                                                   {u"myshellmap1.map"_s, u"A map"_s}};
    for (const auto& [name, type] : types) {
        page_->Choose(Put(name), dialog);
        const SourcePageState& state = page_->State();
        EXPECT_EQ(state.FileType, type) << name.toStdString();
        EXPECT_EQ(state.Name, name);
        EXPECT_TRUE(state.InformationsVisible && state.NextEnabled);
        EXPECT_FALSE(state.ContentVisible);
        EXPECT_EQ(state.InformationsHeight, 108);
    }
}

TEST_F(SourcePageTest, AZipTellsHowManyEntriesItHas) {
    With({0});
    page_->Choose(Put(u"a.zip"_s, ZipBytes::Archive({{.Name = "one/"}, {.Name = "one/a.map"}, {.Name = "b.rep"}})),
                  dialog);
    EXPECT_EQ(page_->State().FileType, u"An archive"_s);
    EXPECT_EQ(page_->State().Content, u"3 file(s)"_s);
    EXPECT_TRUE(page_->State().ContentVisible);
    EXPECT_EQ(page_->State().InformationsHeight, 124);
    page_->Choose(Put(u"a.map"_s), dialog);
    EXPECT_FALSE(page_->State().ContentVisible);
    EXPECT_EQ(page_->State().InformationsHeight, 108);
}

TEST_F(SourcePageTest, AZipThatCantBeReadHasNoEntries) {
    With({0});
    page_->Choose(Put(u"a.zip"_s, "no archive"), dialog);
    EXPECT_EQ(page_->State().Content, u"0 file(s)"_s);
    EXPECT_TRUE(page_->State().NextEnabled);
}

TEST_F(SourcePageTest, CapitalsAndOtherTypesAreRefusedUnderTheFilesName) {
    With({0});
    for (const auto by : {dialog, commandLine}) {
        for (const QString& name : {u"a.MAP"_s, u"a.txt"_s, u"a.bfme2replay"_s, u"ap"_s, u"p"_s, u"a.7z"_s}) {
            host_.Messages.clear();
            page_->Choose(Put(name), by);
            EXPECT_EQ(Messages(), QStringList{u"UnsupportedFormat"_s}) << name.toStdString();
            EXPECT_EQ(host_.Messages.front().Title, name);
            EXPECT_FALSE(page_->State().NextEnabled);
        }
    }
}

TEST_F(SourcePageTest, TheLastThreeCharactersNeedNoDotBeforeThem) {
    With({0});
    page_->Choose(Put(u"worldmap"_s), dialog);
    EXPECT_EQ(page_->State().FileType, u"A map"_s);
}

TEST_F(SourcePageTest, ARefusedFileLeavesTheEarlierOneInForce) {
    With({0, 1});
    const QString good = Put(u"shellmapmd.map"_s);
    page_->Choose(good, dialog);
    page_->Choose(Put(u"a.txt"_s), dialog);
    EXPECT_EQ(page_->SourcePath(), good);
    EXPECT_EQ(page_->SourceName(), u"shellmapmd.map"_s);
    EXPECT_EQ(page_->State().Name, u"shellmapmd.map"_s);
    EXPECT_FALSE(page_->State().GameEnabled);
    EXPECT_TRUE(page_->State().NextEnabled);
}

TEST_F(SourcePageTest, TheDialogsSizeIsRoundedAndTheCommandLinesIsCut) {
    With({0});
    const QString path = Put(u"a.map"_s, QByteArray(1234567, 'm'));
    page_->Choose(path, dialog);
    EXPECT_EQ(page_->State().Size, u"1,206 KB"_s);
    page_->Choose(path, commandLine);
    EXPECT_EQ(page_->State().Size, u"1205 KB"_s);
    page_->Choose(Put(u"b.map"_s, QByteArray(512, 'm')), dialog);
    EXPECT_EQ(page_->State().Size, u"1 KB"_s) << "a half is rounded up";
    page_->Choose(Put(u"c.map"_s, {}), dialog);
    EXPECT_EQ(page_->State().Size, u"0 KB"_s);
}

TEST_F(SourcePageTest, TheDialogTakesTheFourTypesAndACancelChangesNothing) {
    With({0});
    host_.FileNames = {std::nullopt, Put(u"a.rep"_s)};
    page_->Browse();
    EXPECT_FALSE(page_->State().InformationsVisible);
    EXPECT_EQ(host_.Dialogs.front().Filter, u"Game files (*.map,*.rep,*.big,*.zip)|*.map;*.rep;*.big;*.zip"_s);
    page_->Browse();
    EXPECT_EQ(page_->SourceName(), u"a.rep"_s);
    EXPECT_TRUE(page_->SourcePath().endsWith(u"\\files\\a.rep"_s));
}

TEST_F(SourcePageTest, AFileThatIsGoneBehindTheDialogChangesNothing) {
    With({0});
    page_->Choose(world_.Root() + u"\\gone.map"_s, dialog);
    EXPECT_FALSE(page_->State().InformationsVisible);
    EXPECT_EQ(host_.Beeps, 1);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(SourcePageTest, TheCommandLineIsTakenOnlyWhenAFileIsToBeAdded) {
    With({0});
    mMain::CommandFileArgument = Put(u"two words.map"_s);
    page_->TakeCommandLine();
    EXPECT_FALSE(page_->State().InformationsVisible);
    mMain::AddFileRequested = true;
    page_->TakeCommandLine();
    EXPECT_EQ(page_->SourceName(), u"two words.map"_s);
    EXPECT_EQ(page_->SourcePath(), mMain::CommandFileArgument);
}

TEST_F(SourcePageTest, TheSwitchWithoutAFileShowsAnEmptyPage) {
    With({0});
    mMain::AddFileRequested = true;
    page_->TakeCommandLine();
    EXPECT_FALSE(page_->State().InformationsVisible);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(SourcePageTest, FailuresOnTheWayFromTheCommandLineArePassedOver) {
    With({0});
    mMain::AddFileRequested = true;
    mMain::CommandFileArgument = world_.Root() + u"\\gone.map"_s;
    page_->TakeCommandLine();
    EXPECT_TRUE(host_.Messages.empty());
    EXPECT_EQ(page_->State().Size, QString());
    EXPECT_EQ(page_->State().FileType, u"A map"_s);
}

TEST_F(SourcePageTest, TheZeroHourShellMapSelectsItsGameForGood) {
    With({0, 1, 2});
    page_->Choose(Put(u"ShellMapMD.map"_s), dialog);
    EXPECT_EQ(page_->State().GameRow, 1);
    EXPECT_FALSE(page_->State().GameEnabled);
    EXPECT_TRUE(page_->TakeGame());
    EXPECT_EQ(AddFiles::ActiveGame, 1);
    page_->Choose(Put(u"a.map"_s), dialog);
    EXPECT_TRUE(page_->State().GameEnabled);
    EXPECT_EQ(page_->State().GameRow, 1);
}

TEST_F(SourcePageTest, TheZeroHourShellMapWithoutZeroHourHitsWhateverStandsThere) {
    With({2, 3});
    page_->SelectGame(1);
    page_->Choose(Put(u"shellmapmd.map"_s), dialog);
    EXPECT_EQ(page_->State().GameRow, 0) << "the first Middle-earth";
    EXPECT_FALSE(page_->State().GameEnabled);
}

TEST_F(SourcePageTest, TheZeroHourShellMapWithGeneralsAloneFailsWithoutAWord) {
    With({0});
    page_->Choose(Put(u"shellmapmd.map"_s), dialog);
    EXPECT_EQ(page_->State().GameRow, 0);
    EXPECT_FALSE(page_->State().GameEnabled);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(SourcePageTest, TheShellMapOfGeneralsIsRefusedForTheSecondRow) {
    With({0, 1});
    page_->Choose(Put(u"ShellMap1.map"_s), dialog);
    page_->SelectGame(1);
    EXPECT_EQ(Messages(), QStringList{u"WrongGame"_s});
    EXPECT_EQ(host_.Messages.front().Title, u"Brindock 2005"_s);
    EXPECT_EQ(page_->State().GameRow, 0);
    EXPECT_TRUE(page_->TakeGame());
    EXPECT_EQ(AddFiles::ActiveGame, 0);
}

TEST_F(SourcePageTest, TheSecondRowIsRefusedWhicheverGameStandsThere) {
    With({2, 3});
    page_->Choose(Put(u"shellmap1.map"_s), dialog);
    page_->SelectGame(1);
    EXPECT_EQ(Messages(), QStringList{u"WrongGame"_s});
    EXPECT_EQ(page_->State().GameRow, 0);
}

TEST_F(SourcePageTest, TheThirdRowIsNotLookedAt) {
    With({0, 1, 2});
    page_->Choose(Put(u"shellmap1.map"_s), dialog);
    page_->SelectGame(2);
    EXPECT_TRUE(page_->TakeGame());
    EXPECT_EQ(AddFiles::ActiveGame, 2);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(SourcePageTest, ZeroHourAloneIsRefusedAtNextOnly) {
    With({1});
    AddFiles::ActiveGame = 3;
    page_->Choose(Put(u"shellmap1.map"_s), dialog);
    page_->SelectGame(0);
    EXPECT_TRUE(host_.Messages.empty());
    EXPECT_FALSE(page_->TakeGame());
    EXPECT_EQ(Messages(), QStringList{u"WrongGame"_s});
    EXPECT_EQ(AddFiles::ActiveGame, 3);
}

TEST_F(SourcePageTest, ZeroHourThatWasSelectedBeforeTheFileIsRefusedAtNext) {
    With({0, 1});
    page_->SelectGame(1);
    page_->Choose(Put(u"shellmap1.map"_s), dialog);
    EXPECT_TRUE(host_.Messages.empty()) << "choosing a file is no click on a game";
    EXPECT_FALSE(page_->TakeGame());
    EXPECT_EQ(page_->State().GameRow, 1);
}

TEST_F(SourcePageTest, WithoutAGameThereIsNoNext) {
    With({});
    page_->Choose(Put(u"a.map"_s), dialog);
    EXPECT_EQ(page_->State().GameRow, -1);
    EXPECT_FALSE(page_->TakeGame());
    EXPECT_EQ(Messages(), QStringList{u"NoGameDetected"_s});
}
