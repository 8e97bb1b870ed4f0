// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Add, Delete, Export and Refresh, and when the tools menu comes back.

#include "personal/lists/ExportRecords.h"
#include "tests/personal/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class PersonalActions : public PersonalDocument {
protected:
    void AnswerDelete(Host::Answer answer) {
        Speaker.Answers.push_back(answer);
        Personal.Delete();
    }

    [[nodiscard]] static QStringList ExportedNames() {
        QStringList names;
        for (const ExportRecord& record : ExportRecords)
            names += record.Name;
        return names;
    }
};

} // namespace

TEST_F(PersonalActions, AddShowsTheWizardAndMakesTreeAndListAnew) {
    PutMap(u"A"_s);
    Open(u"GenMaps"_s, 0);
    Personal.CheckChanged(0, true);
    View.Log.clear();
    Way.OnCall = [&](const QString&) {
        EXPECT_EQ(State().SelectedNode, u"GenMaps"_s);
        EXPECT_EQ(View.Log, QStringList()) << "all else comes behind the wizard";
        PutMap(u"B"_s);
    };
    Personal.Add();
    EXPECT_EQ(Way.Calls, QStringList{u"ShowAddFiles"_s});
    EXPECT_EQ(Way.Owner, &View.Window);
    EXPECT_EQ(NodeText(u"GenMaps"_s), u"Maps (2)"_s);
    EXPECT_EQ(State().SelectedNode, u"GenMaps"_s);
    EXPECT_EQ(Names(PersonalKind::Map), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(Personal.List(PersonalKind::Map).Rows().Checked(), std::vector<int>{0});
    EXPECT_EQ(Panes(), u"map"_s) << "the row stays selected";
    EXPECT_EQ(View.Log.first(3), (QStringList{u"Tree"_s, u"State"_s, u"State"_s}));
}

TEST_F(PersonalActions, AFileThatIsDroppedNeedsNoSelectedNode) {
    Open(QString());
    Way.OnCall = [&](const QString&) { PutMap(u"B"_s); };
    Personal.AddFile(u"C:\\a map.map"_s);
    EXPECT_EQ(Way.Calls, QStringList{u"ShowAddFiles C:\\a map.map"_s});
    EXPECT_EQ(Way.Owner, &View.Window);
    EXPECT_EQ(NodeText(u"GenMaps"_s), u"Maps (1)"_s);
    EXPECT_EQ(State().SelectedNode, QString());
}

TEST_F(PersonalActions, AReplayThatStopsTheListDoesNotEndTheWizardsWay) {
    PutReplay(u"a.rep"_s, SampleReplay());
    Open(u"GenReplays"_s);
    Way.OnCall = [&](const QString&) { PutReplay(u"b.rep"_s, SampleReplay().first(100)); };
    EXPECT_NO_THROW(Personal.Add());
    EXPECT_EQ(NodeText(u"GenReplays"_s), u"Replays (2)"_s);
}

TEST_F(PersonalActions, AddWorksFromAGamesNode) {
    Open(u"BFME"_s);
    Personal.Add();
    EXPECT_EQ(State().SelectedNode, u"BFME"_s);
    EXPECT_FALSE(State().ShownList.has_value());
}

TEST_F(PersonalActions, DeleteAsksWithNoAsItsDefault) {
    PutMap(u"A"_s);
    Open(u"GenMaps"_s, 0);
    AnswerDelete(Host::Answer::No);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    const ScriptedHost::Shown& shown = Speaker.Messages.front();
    EXPECT_EQ(shown.Text, u"ConfirmDelete"_s);
    EXPECT_EQ(shown.Title, u"Brindock 2005"_s);
    EXPECT_EQ(shown.Sign, Host::Icon::Question);
    EXPECT_EQ(shown.Choice, Host::Buttons::YesNo);
    EXPECT_EQ(shown.Default, Host::Answer::No);
    EXPECT_EQ(Names(PersonalKind::Map), QStringList{u"A"_s});
    EXPECT_EQ(Panes(), u"map"_s);
    EXPECT_EQ(Actions(), u"yes yes yes"_s);
}

TEST_F(PersonalActions, DeleteListsTheSameGameAnewAndCountsAnew) {
    PutReplay(u"a.rep"_s, SampleReplay(), 1);
    PutReplay(u"b.rep"_s, SampleReplay(), 1);
    Open(u"ZHReplays"_s, 0);
    View.Log.clear();
    AnswerDelete(Host::Answer::Yes);
    EXPECT_EQ(Names(PersonalKind::Replay), QStringList{u"b"_s});
    EXPECT_EQ(Personal.List(PersonalKind::Replay).Listed(), 1);
    EXPECT_EQ(NodeText(u"ZHReplays"_s), u"Replays (1)"_s);
    EXPECT_EQ(State().SelectedNode, u"ZHReplays"_s);
    EXPECT_EQ(Panes(), QString());
    EXPECT_EQ(Actions(), u"yes no no"_s);
    EXPECT_EQ(View.Log,
              (QStringList{u"Changing Replay"_s, u"Changed Replay"_s, u"Tree"_s, u"State"_s, u"State"_s, u"State"_s}));
    EXPECT_FALSE(Files::FileExists(Of(1).ReplayPath + u"a.rep"_s));
    EXPECT_TRUE(Files::FileExists(Of(1).ReplayPath + u"b.rep"_s));
}

TEST_F(PersonalActions, DeleteTakesAMapWithItsFolder) {
    const QString folder = PutMap(u"A"_s);
    PutMap(u"B"_s);
    Open(u"GenMaps"_s, 0);
    AnswerDelete(Host::Answer::Yes);
    EXPECT_FALSE(Files::FolderExists(folder));
    EXPECT_EQ(Names(PersonalKind::Map), QStringList{u"B"_s});
    EXPECT_EQ(NodeText(u"GenMaps"_s), u"Maps (1)"_s);
}

TEST_F(PersonalActions, DeleteOfAModLeavesItsRecordBehind) {
    const QString mod = PutMod(u"A"_s, "[Mod]\r\nName=A\r\n");
    Open(u"GenMods"_s, 0);
    AnswerDelete(Host::Answer::Yes);
    EXPECT_FALSE(Files::FileExists(mod));
    EXPECT_TRUE(Files::FileExists(Of(0).InstallPath + u"A.ini"_s));
    EXPECT_EQ(NodeText(u"GenMods"_s), u"Mods (0)"_s);
    EXPECT_TRUE(View.Notices.empty());
}

TEST_F(PersonalActions, DeleteOfAShellMapClosesTheGap) {
    PutShellMap(1, "[Infos]\r\nName=one\r\n");
    PutShellMap(2, "[Infos]\r\nName=two\r\n");
    Open(u"GenShellMaps"_s, 0);
    AnswerDelete(Host::Answer::Yes);
    EXPECT_EQ(Names(PersonalKind::ShellMap), QStringList{u"two"_s});
    EXPECT_TRUE(Rows(PersonalKind::ShellMap).Row(0).Key.endsWith(u"QvShellMap001"_s));
    EXPECT_EQ(NodeText(u"GenShellMaps"_s), u"ShellMaps (1)"_s);
}

TEST_F(PersonalActions, ADeleteThatFailsBringsTheRowBackWithoutAMessage) {
    const QString folder = PutMap(u"A"_s);
    Open(u"GenMaps"_s, 0);
    const QString native = Paths::ToNative(folder);
    QFile::setPermissions(native + u"/A.map"_s, QFile::ReadOwner); // write-protected
    AnswerDelete(Host::Answer::Yes);
    QFile::setPermissions(native + u"/A.map"_s, QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_EQ(Speaker.Messages.size(), 1U) << "the question alone";
    EXPECT_EQ(Names(PersonalKind::Map), QStringList{u"A"_s});
    EXPECT_EQ(NodeText(u"GenMaps"_s), u"Maps (1)"_s);
    EXPECT_EQ(Panes(), QString());
    EXPECT_EQ(Actions(), u"yes no no"_s);
}

TEST_F(PersonalActions, ADeletesListingRaisesItsError) {
    PutReplay(u"a.rep"_s);
    PutReplay(u"b.rep"_s);
    Open(u"GenReplays"_s, 0);
    PutReplay(u"b.rep"_s, "GENREP");
    EXPECT_EQ(NumberRaisedBy([&] { AnswerDelete(Host::Answer::Yes); }), ErrorNumber::InvalidCall);
    EXPECT_FALSE(Files::FileExists(Of(0).ReplayPath + u"a.rep"_s));
}

TEST_F(PersonalActions, DeleteAndExportNeedASelectedRow) {
    PutMap(u"A"_s);
    Open(u"GenMaps"_s);
    Personal.Delete();
    Personal.Export();
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_TRUE(Way.Calls.isEmpty());
}

TEST_F(PersonalActions, ExportHandsOverTheRowsWithACheckMarkAlone) {
    for (const QString& name : {u"a.rep"_s, u"b.rep"_s, u"c.rep"_s})
        PutReplay(name, SampleReplay());
    Open(u"GenReplays"_s, 1);
    Personal.CheckChanged(0, true);
    Personal.CheckChanged(2, true);
    View.Log.clear();
    Way.OnCall = [&](const QString&) {
        EXPECT_EQ(ExportedNames(), (QStringList{u"a.rep"_s, u"c.rep"_s}));
        EXPECT_TRUE(View.Log.isEmpty());
        PutReplay(u"d.rep"_s);
    };
    Personal.Export();
    EXPECT_EQ(Way.Calls, QStringList{u"ShowExportFiles"_s});
    EXPECT_EQ(Way.Owner, &View.Window);
    EXPECT_EQ(NodeText(u"GenReplays"_s), u"Replays (4)"_s);
    EXPECT_EQ(State().SelectedNode, u"GenReplays"_s);
    EXPECT_EQ(Rows(PersonalKind::Replay).Count(), 3) << "the list waits for a click";
    EXPECT_EQ(View.Log, (QStringList{u"Tree"_s, u"State"_s, u"State"_s}));
}

TEST_F(PersonalActions, ExportWithoutACheckMarkRaisesSubscriptForReplaysModsAndShellMaps) {
    PutReplay(u"a.rep"_s);
    PutMod(u"m"_s);
    PutShellMap(1, "[Infos]\r\n");
    for (const QString& node : {u"GenReplays"_s, u"GenMods"_s, u"GenShellMaps"_s}) {
        Open(node, 0);
        EXPECT_EQ(NumberRaisedBy([&] { Personal.Export(); }), ErrorNumber::Subscript) << node.toStdString();
    }
    EXPECT_TRUE(Way.Calls.isEmpty());
}

TEST_F(PersonalActions, ExportOfMapsWithoutACheckMarkHandsOverOneEmptyRecord) {
    PutMap(u"A"_s);
    Open(u"GenMaps"_s, 0);
    Personal.Export();
    EXPECT_EQ(Way.Calls, QStringList{u"ShowExportFiles"_s});
    EXPECT_EQ(ExportRecords, std::vector<ExportRecord>(1));
}

TEST_F(PersonalActions, ExportOfARowGivesItItsCheckMarkFirst) {
    PutMod(u"a"_s);
    PutMod(u"b"_s);
    Open(u"GenMods"_s, 0);
    Personal.CheckChanged(0, true);
    Personal.ExportRow(1);
    EXPECT_EQ(ExportedNames(), (QStringList{u"a.big"_s, u"b.big"_s}));
    EXPECT_TRUE(Rows(PersonalKind::Mod).IsChecked(1));
    EXPECT_EQ(View.Rows, (std::vector{0, 1}));
    EXPECT_EQ(Way.Calls, QStringList{u"ShowExportFiles"_s});
    Personal.ExportRow(2);
    EXPECT_EQ(Way.Calls.size(), 1) << "there is no such row";
}

TEST_F(PersonalActions, RefreshMakesTreeAndListAnewAndKeepsNodeRowAndCheckMarks) {
    PutMap(u"B"_s);
    PutMap(u"C"_s);
    Open(u"GenMaps"_s, 0);
    Personal.CheckChanged(1, true);
    PutMap(u"A"_s);
    View.Log.clear();
    Personal.Refresh();
    EXPECT_EQ(NodeText(u"GenMaps"_s), u"Maps (3)"_s);
    EXPECT_EQ(State().SelectedNode, u"GenMaps"_s);
    EXPECT_EQ(Names(PersonalKind::Map), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    EXPECT_EQ(View.Selected, std::vector{1});
    EXPECT_EQ(State().MapName, u"B"_s);
    EXPECT_EQ(Personal.List(PersonalKind::Map).Selected(), 1);
    EXPECT_EQ(Rows(PersonalKind::Map).Checked(), std::vector{2});
    EXPECT_EQ(State().StatusText, u"RowCount, RowsChecked"_s);
    EXPECT_EQ(Panes(), u"map"_s);
    EXPECT_EQ(Actions(), u"yes yes yes"_s);
}

TEST_F(PersonalActions, RefreshWithoutTheRowHidesItsDetails) {
    const QString folder = PutMap(u"A"_s);
    Open(u"GenMaps"_s, 0);
    Files::DeleteFolder(folder);
    Personal.Refresh();
    EXPECT_EQ(Names(PersonalKind::Map), QStringList());
    EXPECT_EQ(Panes(), QString());
    EXPECT_EQ(Actions(), u"yes no no"_s);
    EXPECT_TRUE(View.Selected.empty());
}

TEST_F(PersonalActions, RefreshWithoutAListOnlyMakesTheTreeAnew) {
    Personal.Refresh();
    EXPECT_EQ(State().Nodes.size(), 20U);
    EXPECT_EQ(Actions(), u"no no no"_s);
    Open(u"ZH"_s);
    PutMap(u"A"_s, 1, 1);
    Personal.Refresh();
    EXPECT_EQ(NodeText(u"ZHMaps"_s), u"Maps (1)"_s);
    EXPECT_EQ(State().SelectedNode, u"ZH"_s);
    EXPECT_EQ(Actions(), u"yes no no"_s);
}

TEST_F(PersonalActions, RefreshListsTheGameThatIsShown) {
    PutMod(u"m"_s, {}, 2);
    Open(u"BFMEMods"_s);
    Personal.Refresh();
    EXPECT_EQ(Names(PersonalKind::Mod), QStringList{u"m.big"_s});
}

TEST_F(PersonalActions, TheMenuComesBackUnlessTheSwitchOpenedTheWindow) {
    EXPECT_TRUE(PersonalFiles::MayClose());
    EXPECT_TRUE(PersonalFiles::MenuFollows());
    mMain::CommandLine = u"/tpfiles"_s;
    EXPECT_FALSE(PersonalFiles::MenuFollows());
    mMain::CommandLine = u"x /tpfiles y"_s;
    EXPECT_FALSE(PersonalFiles::MenuFollows());
    mMain::CommandLine = u"/tbig"_s;
    EXPECT_TRUE(PersonalFiles::MenuFollows());
}
