// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "core/mShellExecuteWait.h"
#include "tests/support/Printing.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;
using mShellExecuteWait::OpenWithShell;
using mShellExecuteWait::ReactTo;

namespace {

class Opening : public testing::Test {
protected:
    World world_;
    ScriptedHost host_;
    ScriptedNavigator navigator_;
};

} // namespace

TEST_F(Opening, ACSFFileGoesToTheCSFEditorAndNeverToTheSystem) {
    const QString path = world_.WriteFile(u"generals.csf"_s, " FSC");
    EXPECT_EQ(OpenWithShell(path, 0, true), 0U);
    EXPECT_EQ(navigator_.Calls, QStringList{u"OpenCSFFile "_s + path});
    EXPECT_TRUE(mMain::CsfOpenedByHost);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Opening, TheFlagStandsBeforeTheEditorOpens) {
    bool seen = false;
    navigator_.OnCall = [&](const QString&) { seen = mMain::CsfOpenedByHost; };
    OpenWithShell(u"x.csf"_s, 0, false);
    EXPECT_TRUE(seen);
}

TEST_F(Opening, AnyNameThatEndsInTheThreeLettersIsACSFFile) {
    OpenWithShell(u"namecsf"_s, 0, false);
    EXPECT_EQ(navigator_.Calls, QStringList{u"OpenCSFFile namecsf"_s});
}

TEST_F(Opening, ACSFFileInCapitalsGoesToTheSystem) {
    OpenWithShell(world_.Root() + u"\\missing.CSF"_s, 0, true);
    EXPECT_TRUE(navigator_.Calls.isEmpty());
    EXPECT_FALSE(mMain::CsfOpenedByHost);
}

TEST_F(Opening, AMissingFileIsPassedOverWithoutAMessage) {
    EXPECT_EQ(OpenWithShell(world_.Root() + u"\\missing.txt"_s, 0, true), 0U);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Opening, EachRefusalHasItsFixedFrenchText) {
    const std::map<int, QString> texts{
        {3, u"Le chemin du fichier à ouvrir est incorrect."_s},
        {5, u"Accès au fichier refusé."_s},
        {8, u"Mémoire insuffisante."_s},
        {26, u"Le fichier est déjà ouvert."_s},
        {27, u"Information d'association du fichier incomplète."_s},
        {28, u"Opération DDE dépassée."_s},
        {29, u"Opération DDE echouée."_s},
        {30, u"Opération DDE occupée."_s},
        {32, u"Dynamic-link library non trouvé."_s},
    };
    for (const auto& [answer, text] : texts) {
        host_.Messages.clear();
        ReactTo(answer, u"x.txt"_s);
        ASSERT_EQ(host_.Messages.size(), 1U) << answer;
        EXPECT_EQ(host_.Messages.front().Text, text);
        EXPECT_EQ(host_.Messages.front().Sign, Host::Icon::Exclamation);
        EXPECT_EQ(host_.Messages.front().Title, u"Brindock 2005"_s);
    }
}

TEST_F(Opening, EveryOtherAnswerIsPassedOver) {
    for (const int answer : {0, 1, 2, 4, 6, 7, 9, 25, 33, 42})
        ReactTo(answer, u"x.txt"_s);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Opening, WhatIsRefusedIsOpenedNowhere) {
    EXPECT_TRUE(mShellExecuteWait::IsOpened(mShellExecuteWait::Open(u"x.csf"_s, 0))) << "the CSF Editor has it";
    EXPECT_FALSE(mShellExecuteWait::IsOpened(mShellExecuteWait::Open(world_.Root() + u"\\missing.txt"_s, 0)));
    for (const int refusal : {0, 2, 5, 27, 30, 32})
        EXPECT_FALSE(mShellExecuteWait::IsOpened({.Process = 0, .InstApp = refusal})) << refusal;
    for (const int opened : {31, 33, 42}) // 31: the user was asked for a program
        EXPECT_TRUE(mShellExecuteWait::IsOpened({.Process = 0, .InstApp = opened})) << opened;
}
