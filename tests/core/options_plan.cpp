// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The options dialog's tabs, and what is stored when.

#include "core/options/OptionsPlan.h"
#include "tests/core/OptionsTest.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList AllKeys{u"GenStartupOptions"_s, u"ZHStartupOptions"_s,  u"BFMEStartupOptions"_s,
                          u"GenShellMapMode"_s,   u"ZHShellMapMode"_s,    u"BFMEShellMapMode"_s,
                          u"GenLoadMod"_s,        u"ZHLoadMod"_s,         u"BFMELoadMod"_s,
                          u"BFME2LoadMod"_s,      u"BFME2ShellMapMode"_s, u"BFME2StartupOptions"_s};

class OptionsPlans : public OptionsTest {
protected:
    void AddOther() const {
        world_.WriteFile(u"program\\Other.lng"_s, "[Infos]\r\nLanguage=Other\r\nVersion=2005\r\n");
    }

    static QStringList TabKeys(const OptionsPlan& plan) {
        QStringList keys;
        for (const OptionsPlan::Tab& tab : plan.Tabs())
            keys += tab.Key;
        return keys;
    }
};

} // namespace

TEST_F(OptionsPlans, ThereIsATabForTheProgramAndOneForEachInstalledGame) {
    const OptionsPlan plan;
    EXPECT_EQ(TabKeys(plan), (QStringList{u"Options"_s, u"Generals"_s, u"ZeroHour"_s, u"BFME"_s, u"BFME2"_s}));
    EXPECT_EQ(plan.Tabs()[0].Caption, u"Program"_s);
    EXPECT_EQ(plan.Tabs()[2].Caption, u"Hour"_s);
    EXPECT_EQ(plan.Tabs()[0].Game, -1);
    EXPECT_EQ(plan.Tabs()[4].Game, 3);
}

TEST_F(OptionsPlans, OnlyInstalledGamesHaveATabAndWithoutAnyThereIsTheProgramsAlone) {
    Game[0].InstallPath.clear();
    Game[2].InstallPath.clear();
    EXPECT_EQ(TabKeys(OptionsPlan()), (QStringList{u"Options"_s, u"ZeroHour"_s, u"BFME2"_s}));
    Game = {};
    EXPECT_EQ(TabKeys(OptionsPlan()), QStringList{u"Options"_s});
}

TEST_F(OptionsPlans, AGamesTabIsFoundByItsKeyWhereverItStands) {
    Game[0].InstallPath.clear();
    OptionsPlan plan;
    plan.SelectTab(u"BFME"_s);
    EXPECT_EQ(plan.SelectedGame(), 2);
    plan.SelectTab(u"Options"_s);
    EXPECT_EQ(plan.SelectedGame(), -1);
}

TEST_F(OptionsPlans, LeavingAGamesTabStoresItAndLeavingTheProgramsStoresNothing) {
    OptionsPlan plan;
    plan.ChecksForUpdates = true;
    plan.SelectTab(u"Generals"_s);
    EXPECT_EQ(ReadSetting(u"AutoCheckForUpdates"_s), QString());
    plan.Page.CheckOption(0, true);
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), QString());
    plan.SelectTab(u"ZeroHour"_s);
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u" -nologo"_s);
    EXPECT_EQ(plan.SelectedGame(), 1);
}

TEST_F(OptionsPlans, CancelBringsBackEveryGamesSettings) {
    for (const QString& key : AllKeys)
        WriteSetting(key, u"before "_s + key);
    OptionsPlan plan;
    for (const QString& key : {u"Generals"_s, u"ZeroHour"_s, u"BFME"_s, u"BFME2"_s, u"Options"_s})
        plan.SelectTab(key);
    for (const QString& key : AllKeys)
        EXPECT_NE(ReadSetting(key), u"before "_s + key) << "a visit replaces what it does not know";
    plan.Cancel();
    for (const QString& key : AllKeys)
        EXPECT_EQ(ReadSetting(key), u"before "_s + key);
}

TEST_F(OptionsPlans, CancelBringsThemBackInOneOrder) {
    OptionsPlan().Cancel();
    const QByteArray registry = World::ReadFile(world_.Root() + u"\\registry.reg"_s);
    qsizetype behind = 0; // a value that was not there is put at the end
    for (const QString& key : AllKeys) {
        const qsizetype found = registry.indexOf('"' + key.toLatin1() + '"');
        EXPECT_GT(found, behind) << key.toStdString();
        behind = found;
    }
}

TEST_F(OptionsPlans, CancelTouchesNoSettingOfTheProgram) {
    const QStringList keys{u"AutoCheckForUpdates"_s, u"ViewFileIcons"_s, u"ExactOffsets"_s, u"TradFileName"_s};
    AddOther();
    OptionsPlan plan;
    ASSERT_EQ(plan.Language(), 1);
    for (const QString& key : keys)
        WriteSetting(key, u"meanwhile"_s);
    plan.ChecksForUpdates = true;
    plan.ExactOffsets = true;
    plan.ShowIcons(true);
    plan.ChooseLanguage(0);
    plan.Cancel();
    for (const QString& key : keys)
        EXPECT_EQ(ReadSetting(key), u"meanwhile"_s);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(OptionsPlans, OkStoresTheSelectedGamesPage) {
    OptionsPlan plan;
    plan.SelectTab(u"BFME2"_s);
    plan.Page.CheckOption(1, true);
    EXPECT_TRUE(plan.Accept());
    EXPECT_EQ(ReadSetting(u"BFME2StartupOptions"_s), u" -noaudio"_s);
}

TEST_F(OptionsPlans, OkOnTheProgramsTabStoresNoGameASecondTime) {
    OptionsPlan plan;
    plan.SelectTab(u"Generals"_s);
    plan.Page.CheckOption(0, true);
    plan.SelectTab(u"Options"_s);
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u" -nologo"_s);
    WriteSetting(u"GenStartupOptions"_s, u"meanwhile"_s);
    EXPECT_TRUE(plan.Accept());
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u"meanwhile"_s);
}

TEST_F(OptionsPlans, TheProgramsBoxesAreSetByTheNumberOneAndClearForAllElse) {
    for (const QString& text : {QString(), u"0"_s, u"2"_s, u"yes"_s, u"nan"_s, QString(10'000, u'1')}) {
        for (const QString& key : {u"AutoCheckForUpdates"_s, u"ViewFileIcons"_s, u"ExactOffsets"_s})
            WriteSetting(key, text);
        const OptionsPlan plan;
        EXPECT_FALSE(plan.ChecksForUpdates || plan.ViewsIcons() || plan.ExactOffsets) << text.left(9).toStdString();
    }
    for (const QString& key : {u"AutoCheckForUpdates"_s, u"ViewFileIcons"_s, u"ExactOffsets"_s})
        WriteSetting(key, u"1"_s);
    const OptionsPlan plan;
    EXPECT_TRUE(plan.ChecksForUpdates && plan.ViewsIcons() && plan.ExactOffsets);
}

TEST_F(OptionsPlans, ABoxShowsWhatItsNumberCountsAsAndOneThatStaysKeepsTheNumber) {
    for (const auto& [text, updates] : {std::pair(u"1.9"_s, true),
                                        {u"1.5"_s, true},
                                        {u"1"_s, true},
                                        {u"0.5"_s, false},
                                        {u"0.9"_s, false},
                                        {u"2"_s, false},
                                        {u"-1"_s, false}}) {
        WriteSetting(u"AutoCheckForUpdates"_s, text);
        WriteSetting(u"ExactOffsets"_s, text);
        OptionsPlan plan;
        EXPECT_EQ(plan.ChecksForUpdates, updates) << text.toStdString();
        EXPECT_EQ(plan.ChecksForUpdates, mMain::AutomaticCheckWanted()) << text.toStdString();
        EXPECT_EQ(plan.ExactOffsets, text == u"1") << text.toStdString();
        EXPECT_TRUE(plan.Accept());
        EXPECT_EQ(ReadSetting(u"AutoCheckForUpdates"_s), text);
        EXPECT_EQ(ReadSetting(u"ExactOffsets"_s), text);
        plan.ChecksForUpdates = !plan.ChecksForUpdates;
        EXPECT_TRUE(plan.Accept());
        EXPECT_EQ(ReadSetting(u"AutoCheckForUpdates"_s), updates ? u"0"_s : u"1"_s);
    }
}

TEST_F(OptionsPlans, ABoxThatStaysClearForATextThatIsNoNumberStoresZero) {
    WriteSetting(u"AutoCheckForUpdates"_s, u"yes"_s);
    EXPECT_TRUE(OptionsPlan().Accept());
    EXPECT_EQ(ReadSetting(u"AutoCheckForUpdates"_s), u"0"_s);
}

TEST_F(OptionsPlans, OkStoresUpdatesAndExactOffsetsWithoutARestart) {
    OptionsPlan plan;
    plan.ExactOffsets = true;
    EXPECT_TRUE(plan.Accept());
    EXPECT_EQ(ReadSetting(u"AutoCheckForUpdates"_s), u"0"_s) << "an empty text counts as on until the first OK";
    EXPECT_EQ(ReadSetting(u"ExactOffsets"_s), u"1"_s);
    EXPECT_EQ(ReadSetting(u"ViewFileIcons"_s), QString());
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(OptionsPlans, WithNoTheNewLanguageAndTheIconsAreLost) {
    AddOther();
    OptionsPlan plan;
    ASSERT_EQ(plan.Languages().size(), 2U);
    EXPECT_EQ(plan.Language(), 1);
    plan.ChooseLanguage(0);
    plan.ShowIcons(true);
    host_.Answers = {Host::Answer::No};
    EXPECT_TRUE(plan.Accept());
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Text, u"RebootConfirm"_s);
    EXPECT_EQ(host_.Messages[0].Title, u"Brindock 2005"_s);
    EXPECT_EQ(host_.Messages[0].Sign, Host::Icon::Question);
    EXPECT_EQ(host_.Messages[0].Choice, Host::Buttons::YesNo);
    EXPECT_EQ(plan.Language(), 0) << "the list keeps what was selected";
    EXPECT_EQ(ReadSetting(u"TradFileName"_s), u"Test.lng"_s);
    EXPECT_EQ(ReadSetting(u"ViewFileIcons"_s), QString());
    EXPECT_FALSE(mMain::RestartRequested);
    EXPECT_TRUE(navigator_.Calls.isEmpty());
}

TEST_F(OptionsPlans, PageAndBoxesAreStoredBeforeTheQuestion) {
    OptionsPlan plan;
    plan.ChecksForUpdates = true;
    plan.ExactOffsets = true;
    plan.ShowIcons(true);
    plan.SelectTab(u"Generals"_s);
    plan.Page.CheckOption(0, true);
    host_.Answers = {Host::Answer::No};
    host_.OnMessage = [] {
        EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u" -nologo"_s);
        EXPECT_EQ(ReadSetting(u"AutoCheckForUpdates"_s), u"1"_s);
        EXPECT_EQ(ReadSetting(u"ExactOffsets"_s), u"1"_s);
    };
    EXPECT_TRUE(plan.Accept());
    EXPECT_EQ(host_.Messages.size(), 1U);
}

TEST_F(OptionsPlans, ARestartWithoutALanguageIsRefusedAndStoresNothing) {
    WriteSetting(u"TradFileName"_s, u"Gone.lng"_s);
    OptionsPlan plan;
    EXPECT_EQ(plan.Language(), -1);
    plan.ShowIcons(true);
    host_.Answers = {Host::Answer::Yes};
    EXPECT_FALSE(plan.Accept());
    ASSERT_EQ(host_.Messages.size(), 2U);
    EXPECT_EQ(host_.Messages[1].Text, u"SelectLanguage"_s);
    for (const QString& key : {u"ViewFileIcons"_s, u"AutoCheckForUpdates"_s, u"ExactOffsets"_s})
        EXPECT_EQ(ReadSetting(key), QString()) << key.toStdString();
    EXPECT_EQ(ReadSetting(u"TradFileName"_s), u"Gone.lng"_s);
    EXPECT_FALSE(mMain::RestartRequested);
    EXPECT_TRUE(navigator_.Calls.isEmpty()) << "no tool is asked for nothing";
}

TEST_F(OptionsPlans, AToolThatStaysKeepsTheDialogWhichCanStillBeCancelled) {
    WriteSetting(u"GenStartupOptions"_s, u" -before"_s);
    WriteSetting(u"AutoCheckForUpdates"_s, u"1"_s);
    OptionsPlan plan;
    plan.ChecksForUpdates = false;
    plan.ExactOffsets = true;
    plan.SelectTab(u"Generals"_s);
    plan.ChooseLanguage(0);
    plan.ShowIcons(true);
    host_.Answers = {Host::Answer::Yes};
    navigator_.ProgramMayEnd = false;
    navigator_.OnCall = [](const QString&) { EXPECT_EQ(ReadSetting(u"ViewFileIcons"_s), QString()); };
    EXPECT_FALSE(plan.Accept());
    EXPECT_EQ(navigator_.Calls, QStringList{u"MayEndProgram"_s});
    EXPECT_EQ(ReadSetting(u"ViewFileIcons"_s), QString());
    EXPECT_FALSE(mMain::RestartRequested);
    plan.Cancel();
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u" -before"_s);
    EXPECT_EQ(ReadSetting(u"AutoCheckForUpdates"_s), u"1"_s);
    EXPECT_EQ(ReadSetting(u"ExactOffsets"_s), QString());
}

TEST_F(OptionsPlans, ARefusedRestartCanStillBeAcceptedWithoutOne) {
    OptionsPlan plan;
    plan.ChecksForUpdates = true;
    plan.ShowIcons(true);
    navigator_.ProgramMayEnd = false;
    host_.Answers = {Host::Answer::Yes, Host::Answer::No};
    EXPECT_FALSE(plan.Accept());
    EXPECT_EQ(ReadSetting(u"AutoCheckForUpdates"_s), QString());
    EXPECT_TRUE(plan.Accept());
    EXPECT_EQ(ReadSetting(u"AutoCheckForUpdates"_s), u"1"_s);
}

TEST_F(OptionsPlans, TheNoticeStandsForTheGamesPageAndItsLinkKeeps) {
    WriteSetting(u"GenStartupOptions"_s, u" -xres"_s);
    OptionsPlan plan;
    int kept = 0;
    EXPECT_TRUE(plan.LossNotice({}).Text.isEmpty());
    plan.SelectTab(u"Generals"_s);
    const Notice notice = plan.LossNotice([&] { ++kept; });
    EXPECT_EQ(notice.Text, u"Goes: options -xres."_s);
    ASSERT_EQ(notice.Links.size(), 1U);
    EXPECT_EQ(notice.Links[0].Text, u"Keep"_s);
    notice.Links[0].Run();
    EXPECT_EQ(kept, 1);
    EXPECT_TRUE(plan.LossNotice({}).Text.isEmpty());
    plan.SelectTab(u"Options"_s);
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u" -xres"_s);
    EXPECT_TRUE(plan.LossNotice({}).Text.isEmpty());
}
