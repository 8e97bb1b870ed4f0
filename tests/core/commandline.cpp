// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "platform/Paths.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using mMain::Dispatch;
using mMain::FileArgument;
using Action = mMain::Dispatched::Action;

namespace {

class CommandLine : public testing::Test {
protected:
    World world_;
};

} // namespace

TEST_F(CommandLine, TheFileArgumentIsAllBehindTheSwitchesWithItsBlanks) {
    EXPECT_EQ(FileArgument(u"/addfile C:\\my maps\\a.zip"_s), u"C:\\my maps\\a.zip"_s);
    EXPECT_EQ(FileArgument(u"/a /b  two  blanks"_s), u" two  blanks"_s);
    EXPECT_EQ(FileArgument(u"C:\\plain.zip /behind"_s), u"C:\\plain.zip /behind"_s);
}

TEST_F(CommandLine, SwitchesAloneLeaveNoFileArgument) {
    EXPECT_EQ(FileArgument(u"/addfile"_s), QString());
    EXPECT_EQ(FileArgument(u"/launch /gen"_s), QString());
    EXPECT_EQ(FileArgument(u"/addfile "_s), QString());
    EXPECT_EQ(FileArgument(QString()), QString());
}

TEST_F(CommandLine, QuotesOfTheFileArgumentStay) {
    EXPECT_EQ(FileArgument(u"/addfile \"C:\\a b.zip\""_s), u"\"C:\\a b.zip\""_s);
}

TEST_F(CommandLine, LaunchNamesItsGame) {
    const std::vector<std::pair<QString, GameIndex>> lines{
        {u"/launch /gen"_s, 0},     {u"/launch /zh"_s, 1},          {u"/launch /bfme"_s, 2},
        {u"/launch /bfme2"_s, 3},   {u"/gen /launch"_s, 0},         {u"/launch/zh"_s, 1},
        {u"/launch /gen /zh"_s, 1}, {u"/launch /bfme /bfme2"_s, 3}, {u"/launch /tbig /bfme"_s, 2},
    };
    for (const auto& [line, game] : lines) {
        const mMain::Dispatched dispatched = Dispatch(line);
        EXPECT_EQ(dispatched.What, Action::LaunchGame) << line.toStdString();
        EXPECT_EQ(dispatched.Launched, game) << line.toStdString();
        EXPECT_EQ(dispatched.UpdateChecks, 0) << line.toStdString();
    }
}

TEST_F(CommandLine, LaunchWithoutAKnownGameIsANormalStartWithOneCheck) {
    for (const QString& line : {u"/launch"_s, u"/launch /other"_s, u"/launch /GEN"_s, u"/launch /tbig"_s}) {
        EXPECT_EQ(Dispatch(line).What, Action::NormalStart) << line.toStdString();
        EXPECT_EQ(Dispatch(line).UpdateChecks, 1) << line.toStdString();
    }
}

TEST_F(CommandLine, SwitchesInCapitalsMatchNothing) {
    for (const QString& line : {u"/LAUNCH /gen"_s, u"/TBIG"_s, u"/BigE"_s, u"/TCSF"_s, u"/TPFILES"_s, u"/ADDFILE x"_s})
        EXPECT_EQ(Dispatch(line).What, Action::NormalStart) << line.toStdString();
}

TEST_F(CommandLine, AnUnknownSwitchTestsTheCheckTwice) {
    EXPECT_EQ(Dispatch(u"/x"_s).What, Action::NormalStart);
    EXPECT_EQ(Dispatch(u"/x"_s).UpdateChecks, 2);
}

TEST_F(CommandLine, AToolWithAnExistingFileOpensIt) {
    const QString path = world_.WriteFile(u"two words.big"_s, {});
    const std::vector<std::pair<QString, Action>> tools{
        {u"/tbig "_s, Action::OpenBigFile}, {u"/bige "_s, Action::ExtractBigFile}, {u"/tcsf "_s, Action::OpenCSFFile}};
    for (const auto& [tool, action] : tools) {
        const mMain::Dispatched dispatched = Dispatch(tool + path);
        EXPECT_EQ(dispatched.What, action) << tool.toStdString();
        EXPECT_EQ(dispatched.Path, path);
        EXPECT_EQ(dispatched.UpdateChecks, 1);
    }
}

TEST_F(CommandLine, AToolWithoutAnExistingFileOpensEmpty) {
    const QString missing = world_.Root() + u"\\missing.big"_s;
    const QString quoted = u'"' + world_.WriteFile(u"quoted.big"_s, {}) + u'"';
    for (const QString& rest : {QString(), u" "_s, u' ' + missing, u' ' + world_.Root(), u' ' + quoted}) {
        EXPECT_EQ(Dispatch(u"/tbig"_s + rest).What, Action::ShowBigEditor) << rest.toStdString();
        EXPECT_EQ(Dispatch(u"/bige"_s + rest).What, Action::ShowBigEditor) << rest.toStdString();
        EXPECT_EQ(Dispatch(u"/tcsf"_s + rest).What, Action::ShowCSFEditor) << rest.toStdString();
        EXPECT_EQ(Dispatch(u"/tbig"_s + rest).Path, QString());
    }
}

TEST_F(CommandLine, ThePathStandsBehindTheFirstSixCharactersWhereverTheSwitchIs) {
    const QString path = world_.WriteFile(u"a.big"_s, {});
    EXPECT_EQ(Dispatch(u"/abcd "_s + path + u" /tbig"_s).What, Action::ShowBigEditor);
    EXPECT_EQ(Dispatch(u"/tbigx"_s + path).Path, path);
}

TEST_F(CommandLine, APathAsTheSystemWritesItBecomesAnInsidePath) {
    const QString path = world_.WriteFile(u"my maps\\a b.zip"_s, {});
    const QString native = Paths::ToNative(path);
    EXPECT_EQ(FileArgument(u"/addfile "_s + native), path);
    EXPECT_EQ(FileArgument(u"/addfile /other "_s + native), path);
    EXPECT_EQ(FileArgument(native), path);
    EXPECT_EQ(Dispatch(u"/tbig "_s + native).Path, path);
}

TEST_F(CommandLine, AFileOnItsOwnOpensItsEditor) {
    const QString archive = world_.WriteFile(u"my mods\\a b.BIG"_s, {});
    const QString table = world_.WriteFile(u"generals.csf"_s, {});
    for (const QString& line : {archive, Paths::ToNative(archive), u'"' + archive + u'"'}) {
        EXPECT_EQ(Dispatch(line).What, Action::OpenBigFile) << line.toStdString();
        EXPECT_EQ(Dispatch(line).Path, archive);
        EXPECT_EQ(Dispatch(line).UpdateChecks, 1);
    }
    EXPECT_EQ(Dispatch(table).What, Action::OpenCSFFile);
    EXPECT_EQ(Dispatch(world_.WriteFile(u"a.zip"_s, {})).What, Action::NormalStart);
    EXPECT_EQ(Dispatch(world_.Root() + u"\\missing.big"_s).What, Action::NormalStart);
    EXPECT_EQ(Dispatch(world_.Root() + u"\\missing.big"_s).UpdateChecks, 2);
    mMain::Prepare(table);
    EXPECT_EQ(mMain::CommandLine, u"/tcsf "_s + table) << "The editor's end is the program's.";
}

TEST_F(CommandLine, TheOtherToolsTakeNoPath) {
    EXPECT_EQ(Dispatch(u"/tpfiles"_s).What, Action::ShowPersonalFiles);
    EXPECT_EQ(Dispatch(u"/addfile C:\\a.zip"_s).What, Action::ShowAddFiles);
    EXPECT_EQ(Dispatch(u"/addfile"_s).UpdateChecks, 1);
}

TEST_F(CommandLine, TheFirstRowOfTheTableWins) {
    EXPECT_EQ(Dispatch(u"/tpfiles /tbig"_s).What, Action::ShowBigEditor);
    EXPECT_EQ(Dispatch(u"/tcsf /bige"_s).What, Action::ShowBigEditor);
    EXPECT_EQ(Dispatch(u"/addfile /tpfiles"_s).What, Action::ShowPersonalFiles);
    EXPECT_EQ(Dispatch(u"/tpfiles /tcsf"_s).What, Action::ShowCSFEditor);
}
