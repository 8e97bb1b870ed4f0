// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The tree of games and kinds, and what a click on its nodes shows.

#include "platform/FileNumbers.h"
#include "platform/NumberedFiles.h"
#include "tests/personal/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

using PersonalTreeTest = PersonalDocument;

} // namespace

TEST_F(PersonalTreeTest, HasForEachGameFourKindsInTheirOrderWithTheirCounts) {
    PutReplay(u"a.rep"_s);
    PutReplay(u"b.rep"_s);
    PutMap(u"Alpine"_s, 1, 1);
    PutMod(u"Big"_s, {}, 2);
    PutShellMap(1, "[Infos]\r\n", 1, 3);
    Personal.RebuildTree();
    EXPECT_EQ(NodeTexts(),
              (QStringList{u"Generals"_s, u"Replays (2)"_s, u"Maps (0)"_s, u"Mods (0)"_s, u"ShellMaps (0)"_s,
                           u"ZeroHour"_s, u"Replays (0)"_s, u"Maps (1)"_s, u"Mods (0)"_s, u"ShellMaps (0)"_s,
                           u"BFME"_s,     u"Replays (0)"_s, u"Maps (0)"_s, u"Mods (1)"_s, u"ShellMaps (0)"_s,
                           u"BFME2"_s,    u"Replays (0)"_s, u"Maps (0)"_s, u"Mods (0)"_s, u"ShellMaps (1)"_s}));
    QStringList keys;
    for (const PersonalNode& node : State().Nodes) {
        keys += node.Key;
        EXPECT_EQ(node.Parent.isEmpty(), !node.Kind.has_value());
        EXPECT_TRUE(node.Key.startsWith(node.Parent));
    }
    EXPECT_EQ(keys.first(5), (QStringList{u"Gen"_s, u"GenReplays"_s, u"GenMaps"_s, u"GenMods"_s, u"GenShellMaps"_s}));
    EXPECT_EQ(keys.sliced(5, 1) + keys.sliced(10, 1) + keys.sliced(15, 1),
              (QStringList{u"ZH"_s, u"BFME"_s, u"BFME2"_s}));
}

TEST_F(PersonalTreeTest, LeavesOutAGameThatIsNotInstalled) {
    Game[0].InstallPath.clear();
    Game[2].InstallPath.clear();
    Personal.RebuildTree();
    EXPECT_EQ(State().Nodes.size(), 10U);
    EXPECT_EQ(State().Nodes.front().Key, u"ZH"_s);
}

TEST_F(PersonalTreeTest, IsEmptyWithoutAnyGameAndNoActionIsEnabled) {
    for (GameEntry& game : Game)
        game.InstallPath.clear();
    Personal.RebuildTree();
    EXPECT_TRUE(State().Nodes.empty());
    Personal.NodeClicked(u"GenMaps"_s);
    EXPECT_EQ(Actions(), u"no no no"_s);
    Personal.Add();
    Personal.Delete();
    Personal.Export();
    EXPECT_TRUE(Way.Calls.isEmpty());
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(PersonalTreeTest, AtFirstShowsNoListAndNoDetails) {
    Personal.RebuildTree();
    EXPECT_FALSE(State().ShownList.has_value());
    EXPECT_EQ(Panes(), QString());
    EXPECT_EQ(Actions(), u"no no no"_s);
    EXPECT_EQ(State().SelectedNode, QString());
    EXPECT_EQ(State().Kind, PersonalKind::Map);
    EXPECT_EQ(View.Log, (QStringList{u"Tree"_s, u"State"_s}));
}

TEST_F(PersonalTreeTest, CountsReplaysWithoutOpeningThem) {
    PutReplay(u"a.rep"_s, "no replay at all");
    PutReplay(u"b.rep"_s, "GENREP");
    Personal.RebuildTree();
    EXPECT_EQ(NodeText(u"GenReplays"_s), u"Replays (2)"_s);
    EXPECT_FALSE(NumberedFiles::IsOpen(FileNumbers::Replay));
}

TEST_F(PersonalTreeTest, AClickListsTheKindOfItsGame) {
    PutReplay(u"zh.rep"_s, SampleReplay(), 1);
    PutMap(u"Alpine"_s, 1, 3);
    PutMod(u"Rise"_s, {}, 2);
    PutShellMap(4, "[Infos]\r\nName=Four\r\n");
    Open(u"ZHReplays"_s);
    EXPECT_EQ(State().ShownList, PersonalKind::Replay);
    EXPECT_EQ(Names(PersonalKind::Replay), QStringList{u"zh"_s});
    EXPECT_EQ(Personal.List(PersonalKind::Replay).Listed(), 1);
    Personal.NodeClicked(u"BFME2Maps"_s);
    EXPECT_EQ(State().ShownList, PersonalKind::Map);
    EXPECT_EQ(Names(PersonalKind::Map), QStringList{u"Alpine"_s});
    Personal.NodeClicked(u"BFMEMods"_s);
    EXPECT_EQ(State().ShownList, PersonalKind::Mod);
    EXPECT_EQ(Names(PersonalKind::Mod), QStringList{u"Rise.big"_s});
    Personal.NodeClicked(u"GenShellMaps"_s);
    EXPECT_EQ(State().ShownList, PersonalKind::ShellMap);
    EXPECT_EQ(Names(PersonalKind::ShellMap), QStringList{u"Four"_s});
    EXPECT_EQ(State().SelectedNode, u"GenShellMaps"_s);
    EXPECT_EQ(View.Busy, 0);
    EXPECT_GT(View.MostBusy, 0);
}

TEST_F(PersonalTreeTest, TheKindsHaveTheWindowsNumbers) {
    Personal.RebuildTree();
    const QStringList nodes{u"ZHMaps"_s, u"ZHReplays"_s, u"ZHShellMaps"_s, u"ZHMods"_s};
    for (int number = 0; number < PersonalKindCount; ++number) {
        Personal.NodeClicked(nodes.at(number));
        EXPECT_EQ(static_cast<int>(State().Kind), number);
    }
}

TEST_F(PersonalTreeTest, EachClickEnablesAddAloneAndHidesTheDetails) {
    PutMap(u"Alpine"_s);
    PutReplay(u"a.rep"_s);
    PutMod(u"Rise"_s);
    PutShellMap(1, "[Infos]\r\n");
    Personal.RebuildTree();
    for (const QString& shown : {u"GenMaps"_s, u"GenReplays"_s, u"GenMods"_s, u"GenShellMaps"_s}) {
        for (const QString& clicked :
             {u"GenMaps"_s, u"GenReplays"_s, u"GenMods"_s, u"GenShellMaps"_s, u"Gen"_s, u"BFME"_s}) {
            Personal.NodeClicked(shown);
            Personal.RowSelected(0);
            EXPECT_EQ(Actions(), u"yes yes yes"_s);
            EXPECT_NE(Panes(), QString());
            Personal.NodeClicked(clicked);
            EXPECT_EQ(Actions(), u"yes no no"_s);
            EXPECT_EQ(Panes(), QString());
        }
    }
}

TEST_F(PersonalTreeTest, AGameHidesAllListsAndLeavesTheKind) {
    Open(u"GenMods"_s);
    Personal.NodeClicked(u"ZH"_s);
    EXPECT_FALSE(State().ShownList.has_value());
    EXPECT_EQ(State().Kind, PersonalKind::Mod);
    EXPECT_EQ(State().SelectedNode, u"ZH"_s);
}

TEST_F(PersonalTreeTest, AKeyThatNoNodeHasDoesNothing) {
    Open(u"GenMods"_s);
    Personal.NodeClicked(u"GenMusic"_s);
    EXPECT_EQ(State().SelectedNode, u"GenMods"_s);
    EXPECT_EQ(State().ShownList, PersonalKind::Mod);
}

TEST_F(PersonalTreeTest, ReplaysAreShownBeforeTheyAreListedAndTheOthersBehindThat) {
    Open(u"GenMods"_s);
    View.Log.clear();
    QStringList shown;
    View.OnStateChanged = [&] {
        shown += State().ShownList ? RecordingPersonalView::NameOf(*State().ShownList) : QString();
    };
    Personal.NodeClicked(u"GenReplays"_s);
    EXPECT_EQ(View.Log, (QStringList{u"State"_s, u"Changing Replay"_s, u"Changed Replay"_s, u"State"_s}));
    EXPECT_EQ(shown.front(), u"Replay"_s);
    View.Log.clear();
    Personal.NodeClicked(u"GenMaps"_s);
    EXPECT_EQ(View.Log, (QStringList{u"Changing Map"_s, u"Changed Map"_s, u"State"_s}));
    EXPECT_EQ(shown.back(), u"Map"_s);
}

TEST_F(PersonalTreeTest, AReplayThatEndsTheListingRaisesItsErrorWithTheReplaysShown) {
    PutReplay(u"a.rep"_s);
    PutReplay(u"b.rep"_s, "GENREP");
    PutReplay(u"c.rep"_s);
    Open(u"GenMods"_s);
    const auto click = [&] { Personal.NodeClicked(u"GenReplays"_s); };
    QString told;
    EXPECT_EQ(NumberRaisedBy([&] {
                  try {
                      click();
                  } catch (const RuntimeError& error) {
                      told = error.Description();
                      throw;
                  }
              }),
              ErrorNumber::InvalidCall);
    EXPECT_TRUE(told.contains(u"b.rep"_s)) << told.toStdString();
    EXPECT_EQ(State().ShownList, PersonalKind::Replay);
    EXPECT_EQ(Names(PersonalKind::Replay), (QStringList{u"a"_s, u"b"_s})) << "the list is left as far as it got";
    EXPECT_EQ(View.Log.count(u"Changed Replay"_s), 1) << "the change of the rows has come to its end";
    EXPECT_EQ(View.Busy, 0);
}

TEST_F(PersonalTreeTest, ChangesOutsideShowBehindAClickOrARebuild) {
    Open(u"GenMaps"_s);
    PutMap(u"Alpine"_s);
    EXPECT_EQ(NodeText(u"GenMaps"_s), u"Maps (0)"_s);
    EXPECT_EQ(Names(PersonalKind::Map), QStringList());
    Personal.NodeClicked(u"GenMaps"_s);
    EXPECT_EQ(Names(PersonalKind::Map), QStringList{u"Alpine"_s});
    EXPECT_EQ(NodeText(u"GenMaps"_s), u"Maps (0)"_s) << "a click does not count";
    Personal.RebuildTree();
    EXPECT_EQ(NodeText(u"GenMaps"_s), u"Maps (1)"_s);
    EXPECT_EQ(Names(PersonalKind::Map), QStringList{u"Alpine"_s}) << "counting leaves the rows";
}

TEST_F(PersonalTreeTest, ARebuildForgetsWhichNodeIsSelectedAndLeavesTheList) {
    Open(u"GenMaps"_s);
    Personal.RebuildTree();
    EXPECT_EQ(State().SelectedNode, QString());
    EXPECT_EQ(State().ShownList, PersonalKind::Map);
}

TEST_F(PersonalTreeTest, MapsHaveTheDecoderReady) {
    Personal.UseDecoder(&Decoder);
    Open(u"GenMods"_s);
    EXPECT_EQ(Decoder.Prepared, 0);
    Personal.NodeClicked(u"GenMaps"_s);
    EXPECT_EQ(Decoder.Prepared, 1);
}
