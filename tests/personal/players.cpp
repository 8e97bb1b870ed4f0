// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/replay/ReplayPlayers.h"

#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A language and sides of two games.
class Players : public testing::Test {
protected:
    Players() {
        world_.UseLanguage("[LNG]\r\nObservers=Watchers\r\nObserver=Watcher\r\nTeam=Side\r\nNoTeam=Alone\r\nAI=KI\r\n"
                           "EasyAI=Easy\r\nMediumAI=Medium\r\nHardAI=Hard\r\nSideUSA=America\r\nSideRandom=Any\r\n");
        world_.WriteFile(u"program\\gdatas.cfg"_s,
                         "[0Data]\r\nSide-1=SideRandom\r\nSide-1Icon=Random\r\nSide2=SideUSA\r\nSide2Icon=USA\r\n"
                         "Side3=SideUnknown\r\nSide3Icon=China\r\n[3Data]\r\nSide2=Elves\r\nSide2Icon=Elf\r\n");
        world_.Start();
    }

    /// The tree as lines "key|text|picture|picture of the selected node", children behind two blanks.
    static QStringList Drawn(const QString& slotEntry, GameIndex game = 0) {
        QStringList lines;
        QString branch;
        for (const PlayerNode& node : ReplayPlayers::Tree(slotEntry, game)) {
            if (node.Parent.isEmpty())
                branch = node.Key;
            EXPECT_TRUE(node.Parent.isEmpty() || node.Parent == branch) << node.Key.toStdString();
            const QString line = QStringList{node.Key, node.Text, node.Picture, node.SelectedPicture}.join(u'|');
            lines += (node.Parent.isEmpty() ? QString() : u"  "_s) + line;
        }
        return lines;
    }

    World world_;
};

/// A human player's slot.
QString Human(const QString& name, const QString& side, const QString& team) {
    return u'H' + name + u",0,0,TT,1,"_s + side + u",1,"_s + team + u",1"_s;
}

const QString NoTeamBranch = u"Team -1|Alone|TI|TI"_s;

} // namespace

TEST_F(Players, OneHumanWithoutATeamGivesOneBranchAndItsChild) {
    EXPECT_EQ(Drawn(Human(u"Zoé"_s, u"2"_s, u"-1"_s) + u":X:X:X:X:X:X:X:;"_s),
              QStringList({NoTeamBranch, u"  Zoé (America)|Zoé (America)|USA|"_s}));
}

TEST_F(Players, Team0IsDrawnUnderTheFirstTeamsBranch) {
    EXPECT_EQ(Drawn(Human(u"A"_s, u"2"_s, u"0"_s) + u':' + Human(u"B"_s, u"-1"_s, u"7"_s) + u":;"_s),
              QStringList({u"Team 0|Side 1|T1|T1"_s, u"  A (America)|A (America)|USA|"_s, u"Team 7|Side 8|T8|T8"_s,
                           u"  B (Any)|B (Any)|Random|"_s}));
}

TEST_F(Players, ObserversAreNumberedFrom1InSlotOrderUnderOneBranch) {
    EXPECT_EQ(Drawn(u"O:X:O:"_s + Human(u"A"_s, u"2"_s, u"-1"_s) + u":O:;"_s),
              QStringList({u"obs|Watchers|Obs|Obs"_s, u"  obs1|Watcher 1|obs|obs"_s, u"  obs2|Watcher 2|obs|obs"_s,
                           u"  obs3|Watcher 3|obs|obs"_s, NoTeamBranch, u"  A (America)|A (America)|USA|"_s}));
}

TEST_F(Players, BranchesComeInTheirOrderAndChildrenInThatOfTheSlots) {
    EXPECT_EQ(Drawn(u"CE,1,2,-1,1:O:CM,1,2,-1,0:CH,1,2,-1,1:;"_s),
              QStringList({u"obs|Watchers|Obs|Obs"_s, u"  obs1|Watcher 1|obs|obs"_s, u"Team 0|Side 1|T1|T1"_s,
                           u"  KI2|Medium (America)|USA|"_s, u"Team 1|Side 2|T2|T2"_s, u"  KI0|Easy (America)|USA|"_s,
                           u"  KI3|Hard (America)|USA|"_s}));
}

TEST_F(Players, AComputerOfUnknownStrengthIsHard) {
    EXPECT_EQ(Drawn(u"CH,-1,-1,-1,-1:;"_s), QStringList({NoTeamBranch, u"  KI0|Hard (Any)|Random|"_s}));
    EXPECT_EQ(Drawn(u"C,1,2,1,-1:Cm,1,2,1,-1:CEE,1,2,1,-1:;"_s),
              QStringList({NoTeamBranch, u"  KI0|Hard (America)|USA|"_s, u"  KI1|Hard (America)|USA|"_s,
                           u"  KI2|Hard (America)|USA|"_s}));
}

TEST_F(Players, AComputerOfTeam2IsUnderTheThirdBranchWithItsSlotsIndexInItsKey) {
    EXPECT_EQ(Drawn(u"X:X:X:CE,1,2,-1,2:X:;"_s),
              QStringList({u"Team 2|Side 3|T3|T3"_s, u"  KI3|Easy (America)|USA|"_s}));
}

TEST_F(Players, ClosedAndOtherSlotsAndTheLastPartAreNotDrawn) {
    EXPECT_EQ(Drawn(u"X:x::o:OO:hA,0,0,TT,1,2,1,0,1:Z:X:;"_s), QStringList());
    EXPECT_EQ(Drawn(u";"_s), QStringList());
    EXPECT_EQ(Drawn(QString()), QStringList());
}

TEST_F(Players, AnEntryWithoutAColonAtItsEndSpoilsItsLastSlot) {
    EXPECT_EQ(Drawn(u"O:O;"_s), QStringList({u"obs|Watchers|Obs|Obs"_s, u"  obs1|Watcher 1|obs|obs"_s}));
    EXPECT_EQ(Drawn(u"CE,1,2,-1,3:CE,1,2,-1,4;"_s),
              QStringList({u"Team 3|Side 4|T4|T4"_s, u"  KI0|Easy (America)|USA|"_s, u"  KI1|Easy (America)|USA|"_s}))
        << "the second's team is no number";
}

TEST_F(Players, EveryGameHasItsOwnSides) {
    EXPECT_EQ(Drawn(u"CE,1,2,-1,-1:;"_s, 3), QStringList({NoTeamBranch, u"  KI0|Easy (Elves)|Elf|"_s}));
}

TEST_F(Players, AnUnknownSideGivesEmptyBracketsAndNoPicture) {
    EXPECT_EQ(Drawn(Human(u"A"_s, u"99"_s, u"-1"_s) + u":;"_s), QStringList({NoTeamBranch, u"  A ()|A ()||"_s}));
    EXPECT_EQ(Drawn(Human(u"A"_s, u"2"_s, u"-1"_s) + u":;"_s, 1), QStringList({NoTeamBranch, u"  A ()|A ()||"_s}));
}

TEST_F(Players, WithoutTheSidesFileAllBracketsAreEmpty) {
    world_.WriteFile(u"program\\gdatas.cfg"_s, {});
    EXPECT_EQ(Drawn(u"CM,1,2,-1,-1:;"_s), QStringList({NoTeamBranch, u"  KI0|Medium ()||"_s}));
}

TEST_F(Players, ASideWhoseNameTheLanguageLacksIsNamedByItsKey) {
    EXPECT_EQ(Drawn(u"CM,1,3,-1,-1:;"_s), QStringList({NoTeamBranch, u"  KI0|Medium (SideUnknown)|China|"_s}));
}

TEST_F(Players, ATeamOutOfRangeLeavesThePlayerOut) {
    for (const QString& team : {u"9"_s, u"-2"_s, u"32767"_s, u"-32768"_s})
        EXPECT_EQ(Drawn(Human(u"A"_s, u"2"_s, team) + u":;"_s), QStringList()) << team.toStdString();
}

TEST_F(Players, Team8CountsAsNoTeam) {
    EXPECT_EQ(Drawn(Human(u"A"_s, u"2"_s, u"8"_s) + u":;"_s),
              QStringList({NoTeamBranch, u"  A (America)|A (America)|USA|"_s}));
}

TEST_F(Players, AFieldThatIsNoNumberKeepsTheValueOfThePlayerBefore) {
    for (const QString& bad : {u"x"_s, u""_s, u"32768"_s, u"-32769"_s, u"1e9"_s, u"nan"_s, u"inf"_s, u"1 2"_s})
        EXPECT_EQ(Drawn(u"CE,1,2,-1,4:"_s + Human(u"B"_s, bad, bad) + u":;"_s),
                  QStringList(
                      {u"Team 4|Side 5|T5|T5"_s, u"  KI0|Easy (America)|USA|"_s, u"  B (America)|B (America)|USA|"_s}))
            << bad.toStdString();
}

TEST_F(Players, AFieldThatIsMissingKeepsTheValueOfThePlayerBefore) {
    EXPECT_EQ(Drawn(u"CE,1,2,-1,-1:HB:CM,1:;"_s),
              QStringList({NoTeamBranch, u"  KI0|Easy (America)|USA|"_s, u"  B (America)|B (America)|USA|"_s,
                           u"  KI2|Medium (America)|USA|"_s}));
}

TEST_F(Players, TheFirstPlayersBadFieldsCountAs0) {
    EXPECT_EQ(Drawn(u"HB:;"_s), QStringList({u"Team 0|Side 1|T1|T1"_s, u"  B ()|B ()||"_s}));
}

TEST_F(Players, AKeptTeamMayBeOneThatIsNone) {
    EXPECT_EQ(Drawn(u"CE,1,2,-1,12:HB:CM,1,2,-1,3:;"_s),
              QStringList({u"Team 3|Side 4|T4|T4"_s, u"  KI2|Medium (America)|USA|"_s}));
}

TEST_F(Players, NumbersMayHaveBlanksAndFractions) {
    EXPECT_EQ(Drawn(u"CE,1, 2 ,-1,-1.0:CM,1,2.4,-1,2.5:;"_s),
              QStringList({u"Team 2|Side 3|T3|T3"_s, u"  KI1|Medium (America)|USA|"_s, NoTeamBranch,
                           u"  KI0|Easy (America)|USA|"_s}));
}

TEST_F(Players, FieldsThatAreNotReadMayBeAnything) {
    EXPECT_EQ(
        Drawn(u"HA,,,,x,2,x,1:CE,x,2,x,1:;"_s),
        QStringList({u"Team 1|Side 2|T2|T2"_s, u"  A (America)|A (America)|USA|"_s, u"  KI1|Easy (America)|USA|"_s}));
}

TEST_F(Players, TheSecondOfTwoHumansWithOneNameAndSideIsMissing) {
    EXPECT_EQ(Drawn(Human(u"A"_s, u"2"_s, u"0"_s) + u':' + Human(u"A"_s, u"2"_s, u"1"_s) + u':' +
                    Human(u"A"_s, u"-1"_s, u"1"_s) + u":;"_s),
              QStringList({u"Team 0|Side 1|T1|T1"_s, u"  A (America)|A (America)|USA|"_s, u"Team 1|Side 2|T2|T2"_s,
                           u"  A (Any)|A (Any)|Random|"_s}));
}

TEST_F(Players, NamesMayHoldBracketsUmlautsOrNothing) {
    EXPECT_EQ(Drawn(Human(u"[Gün(ter)]"_s, u"2"_s, u"-1"_s) + u':' + Human({}, u"2"_s, u"-1"_s) + u":;"_s),
              QStringList({NoTeamBranch, u"  [Gün(ter)] (America)|[Gün(ter)] (America)|USA|"_s,
                           u"   (America)| (America)|USA|"_s}));
}

TEST_F(Players, MoreThanEightSlotsAreDrawnToo) {
    EXPECT_EQ(Drawn(u"X:X:X:X:X:X:X:X:X:CE,1,2,-1,-1:;"_s),
              QStringList({NoTeamBranch, u"  KI9|Easy (America)|USA|"_s}));
}

TEST_F(Players, TheImageListHasItsKeysInTheirOrder) {
    EXPECT_EQ(
        ReplayPlayers::PictureKeys().join(u' '),
        u"Random USA China GLA Obs T1 T2 T3 T4 T5 T6 T7 T8 TI TP Rohan Gondor Isengard Mordor Dwarf Elf Goblin"_s);
}
