// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/document_fixture.h"

using namespace Qt::StringLiterals;

TEST_F(EditorDocument, StartsEmptyAndReady) {
    EXPECT_FALSE(State().ArchiveOpen);
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(State().StatusText, u"Ready"_s);
    EXPECT_EQ(Editor.Tree().Count(), 0);
    EXPECT_EQ(Editor.List().Count(), 0);
}

TEST_F(EditorDocument, AnArchiveOpensAtItsRootWithEverythingEnabled) {
    const QString path = OpenSample();
    EXPECT_EQ(View.Shown, 1);
    EXPECT_EQ(mBIG::BigFileName, path);
    EXPECT_TRUE(State().ArchiveOpen);
    EXPECT_EQ(State().SelectedNode, 1);
    EXPECT_EQ(State().FocusPane, FocusedPane::Tree);
    EXPECT_EQ(State().NewFolderNumber, 1);
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_EQ(Editor.Tree().Node(1).Text, u"a.big"_s);
    EXPECT_EQ(Shown(), QStringList({u"data"_s, u"readme.txt"_s}));
    EXPECT_EQ(State().StatusText, u"Ready"_s);
    EXPECT_EQ(View.Busy, 0);
    EXPECT_EQ(Speaker.Beeps, 0);
}

TEST_F(EditorDocument, AFileThatIsNotThereIsIgnored) {
    Editor.OpenBigFile(Place.Root() + u"\\none.big"_s);
    EXPECT_EQ(View.Shown, 0);
    EXPECT_EQ(Speaker.Beeps, 0);
    EXPECT_FALSE(State().ArchiveOpen);
}

TEST_F(EditorDocument, ARefusedFileShowsTheWindowAndBeeps) {
    Editor.OpenBigFile(Place.WriteFile(u"bad.big"_s, "no archive at all"));
    EXPECT_EQ(View.Shown, 1);
    EXPECT_EQ(Speaker.Beeps, 1);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(State().ArchiveOpen);
    EXPECT_EQ(mBIG::BigFileName, QString());
}

TEST_F(EditorDocument, OnlyAPathThatEndsInBigIsLoaded) {
    const QByteArray archive = ArchiveOf({{u"a"_s, "1"}, {u"b"_s, "2"}});
    EXPECT_FALSE(Editor.LoadBig(Place.WriteFile(u"a.dat"_s, archive)));
    EXPECT_TRUE(mBIG::BigEntries.empty()) << "It is not even read.";
    EXPECT_TRUE(Editor.LoadBig(Place.WriteFile(u"B.BiG"_s, archive)));
    EXPECT_TRUE(Editor.LoadBig(Place.WriteFile(u"notbig"_s, archive))) << "Only the letters count, not a full stop.";
    EXPECT_FALSE(Editor.LoadBig(u"ig"_s));
    EXPECT_FALSE(Editor.LoadBig({}));
}

TEST_F(EditorDocument, ARefusedFileLeavesTheOldArchiveInTheWindow) {
    const QString first = OpenSample();
    const QStringList shown = Shown();
    EXPECT_FALSE(Editor.LoadBig(Place.WriteFile(u"bad.big"_s, "BIGF")));
    EXPECT_EQ(mBIG::BigFileName, first);
    EXPECT_EQ(Shown(), shown);
    EXPECT_EQ(Editor.Tree().Node(1).Text, u"a.big"_s);
}

TEST_F(EditorDocument, AnArchiveOfOneEntryShowsItsFoldersAndAnEmptyList) {
    OpenArchive({{u"Data\\only.txt"_s, "x"}});
    EXPECT_TRUE(State().ArchiveOpen);
    EXPECT_EQ(Editor.Tree().Count(), 2);
    EXPECT_EQ(Shown(), QStringList({u"data"_s}));
    Editor.ClickNode(2);
    EXPECT_EQ(Shown(), QStringList());
}

TEST_F(EditorDocument, ClickingANodeShowsItsFolderAndItsKey) {
    OpenSample();
    Editor.ClickRow(1);
    Editor.ClickNode(NodeOf(u"data\\"_s));
    EXPECT_EQ(Shown(), QStringList({u"ini"_s, u"map.tga"_s}));
    EXPECT_EQ(State().StatusText, u"data\\"_s);
    EXPECT_EQ(State().SelectedNode, 2);
    EXPECT_EQ(State().FocusPane, FocusedPane::Tree);
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_FALSE(State().ModifyEnabled);
}

TEST_F(EditorDocument, ClickingANodeThatIsNotThereChangesNothing) {
    OpenSample();
    Editor.ClickNode(99);
    EXPECT_EQ(State().SelectedNode, 1);
    EXPECT_EQ(State().StatusText, u"Ready"_s);
}

TEST_F(EditorDocument, AFileRowBringsItsDetailsAndEnablesModify) {
    OpenArchive({{u"Data\\big.tga"_s, QByteArray(3000, 'x')}, {u"Data\\small.txt"_s, QByteArray(500, 'x')}});
    Editor.ClickNode(2);
    Editor.ClickRow(0);
    EXPECT_TRUE(State().DetailsVisible);
    EXPECT_TRUE(State().ModifyEnabled);
    EXPECT_EQ(State().FocusPane, FocusedPane::List);
    EXPECT_EQ(State().StatusText, u"Data\\big.tga"_s);
    EXPECT_EQ(State().DetailsName, u"big.tga"_s);
    EXPECT_EQ(State().DetailsSize, u"2 KiloBytes"_s);
    Editor.ClickRow(1);
    EXPECT_EQ(State().DetailsSize, u"0 KiloBytes"_s);
}

TEST_F(EditorDocument, AFolderRowHidesTheDetails) {
    OpenSample();
    Editor.ClickRow(1);
    Editor.ClickRow(0);
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_FALSE(State().ModifyEnabled);
    EXPECT_EQ(State().FocusPane, FocusedPane::List);
}

TEST_F(EditorDocument, RowsBeyondTheListAreIgnored) {
    OpenSample();
    Editor.ClickRow(-1);
    Editor.ClickRow(99);
    Editor.ActivateRow(99);
    EXPECT_EQ(State().FocusPane, FocusedPane::Tree);
}

TEST_F(EditorDocument, ARowOfARecordThatIsGoneCountsAsAFileThatIsGone) {
    Place.UseLanguage("[LNG]\r\nFileNotFound=Gone\r\n");
    Place.Start();
    OpenSample();
    mBIG::BigEntries.clear();
    Editor.ClickRow(1);
    EXPECT_EQ(State().DetailsName, QString());
    EXPECT_FALSE(State().DetailsVisible);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"Gone"_s);
    EXPECT_EQ(State().FocusPane, FocusedPane::Tree);
}

TEST_F(EditorDocument, ActivatingAFolderRowOpensIt) {
    OpenSample();
    Editor.ActivateRow(0);
    EXPECT_EQ(State().SelectedNode, 2);
    EXPECT_EQ(State().StatusText, u"data\\"_s);
    EXPECT_EQ(State().FocusPane, FocusedPane::Tree);
    EXPECT_EQ(Shown(), QStringList({u"ini"_s, u"map.tga"_s}));
}

TEST_F(EditorDocument, ADeletedEntrysFolderStaysUntilTheTreeIsMadeAnew) {
    OpenSample();
    mBIG::BigEntries[1].Deleted = true;
    Editor.ShowFolder(u"data\\"_s);
    EXPECT_EQ(Shown(), QStringList({u"ini"_s, u"map.tga"_s}));
    Editor.ShowFolder(u"data\\ini\\"_s);
    EXPECT_EQ(Shown(), QStringList());
    Editor.CreateDirs();
    EXPECT_EQ(NodeOf(u"data\\ini\\"_s), FolderTree::None);
    EXPECT_EQ(State().SelectedNode, 1);
}

TEST_F(EditorDocument, AFolderThatHasGoneLeavesTheSelectionAndShowsItsFolders) {
    OpenSample();
    Editor.ClickNode(2);
    Editor.ShowFolder(u"gone\\"_s);
    EXPECT_EQ(State().SelectedNode, 2);
    EXPECT_EQ(Shown(), QStringList({u"ini"_s}));
}

TEST_F(EditorDocument, ShowingAFolderKeepsTheStatusText) {
    OpenSample();
    Editor.ClickRow(1);
    Editor.ShowFolder(u"data\\"_s);
    EXPECT_EQ(State().StatusText, u"readme.txt"_s);
    EXPECT_EQ(View.Busy, 0);
}

TEST_F(EditorDocument, ShowingAFolderWithoutAnyArchiveIsHarmless) {
    Editor.ShowFolder({});
    Editor.ShowFolder(u"x\\"_s);
    EXPECT_EQ(Editor.List().Count(), 0);
}

TEST_F(EditorDocument, TheListWordForFoldersIsLocalised) {
    Place.UseLanguage("[LNG]\r\nFolder=Dossier\r\n");
    Place.Start();
    OpenSample();
    EXPECT_EQ(Editor.List().Type(0), u"Dossier"_s);
}

TEST_F(EditorDocument, SystemIconsAreOnForTheSettingOneOnly) {
    OpenSample();
    EXPECT_FALSE(State().FileIcons);
    WriteSetting(u"ViewFileIcons"_s, u"1"_s);
    Editor.ShowFolder({});
    EXPECT_TRUE(State().FileIcons);
    WriteSetting(u"ViewFileIcons"_s, u"True"_s);
    Editor.ShowFolder({});
    EXPECT_FALSE(State().FileIcons);
}

TEST_F(EditorDocument, TheViewIsSmallIconsWhenNothingIsStored) {
    EXPECT_EQ(BigEditor::View(), ViewMode::SmallIcons);
}

TEST_F(EditorDocument, TheStoredViewIsTaken) {
    WriteSetting(u"BigView"_s, u"0"_s);
    EXPECT_EQ(BigEditor::View(), ViewMode::LargeIcons);
    WriteSetting(u"BigView"_s, u"1"_s);
    EXPECT_EQ(BigEditor::View(), ViewMode::Details);
    WriteSetting(u"BigView"_s, u"3"_s);
    EXPECT_EQ(BigEditor::View(), ViewMode::List);
    for (const QString& odd : {u"4"_s, u"-1"_s, u"list"_s}) {
        WriteSetting(u"BigView"_s, odd);
        EXPECT_EQ(BigEditor::View(), ViewMode::SmallIcons);
    }
}

TEST_F(EditorDocument, ChoosingAViewStoresIt) {
    BigEditor::SetView(ViewMode::Details);
    EXPECT_EQ(ReadSetting(u"BigView"_s), u"1"_s);
    BigEditor::SetView(ViewMode::LargeIcons);
    EXPECT_EQ(ReadSetting(u"BigView"_s), u"0"_s);
}
