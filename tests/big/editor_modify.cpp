// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "platform/NumberedFiles.h"
#include "tests/big/modify_fixture.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

TEST_F(EditorModify, TheMenuOpensACopyAndAsksWhetherItChangedOrNot) {
    OpenStrings();
    Speaker.Answers = {Answer::Yes};
    ModifyByMenu(0);
    EXPECT_EQ(Given, QStringList(Scratch(u"One.csf"_s)));
    EXPECT_EQ(GivenBytes, QList<QByteArray>({"the first"}));
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"InsertModifiedFile"_s);
    EXPECT_EQ(Speaker.Messages[0].Title, u"Brindock 2005"_s);
    EXPECT_EQ(Speaker.Messages[0].Choice, Host::Buttons::YesNo);
    EXPECT_TRUE(Entry(0).IsNew);
    EXPECT_EQ(Entry(0).SourcePath, Scratch(u"One.csf"_s));
    EXPECT_TRUE(Editor.List().Row(0).IsNew) << "The row turns blue.";
    EXPECT_FALSE(State().Modified) << "The menu's command is no unsaved change.";
}

TEST_F(EditorModify, NoInTheMenuDeletesTheCopy) {
    OpenStrings();
    Speaker.Answers = {Answer::No};
    ModifyByMenu(0);
    EXPECT_FALSE(Files::FileExists(Scratch(u"One.csf"_s)));
    EXPECT_FALSE(Entry(0).IsNew);
    EXPECT_EQ(Entry(0).SourcePath, QString());
}

TEST_F(EditorModify, TheMenuTakesTheFirstSelectedRow) {
    OpenStrings();
    Speaker.Answers = {Answer::No};
    View.Selected = {1, 0};
    Editor.Modify();
    EXPECT_EQ(Given, QStringList(Scratch(u"two.csf"_s)));
}

TEST_F(EditorModify, TheMenuDoesNothingOnAFolderRowAndWithoutASelection) {
    OpenStrings();
    Editor.ClickNode(FolderTree::Root);
    ModifyByMenu(0);
    View.Selected.clear();
    Editor.Modify();
    View.Selected = {99, -1};
    Editor.Modify();
    EXPECT_TRUE(Given.isEmpty());
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(EditorModify, ADoubleClickOnAFolderRowIsAClickOnItsNode) {
    OpenStrings();
    Editor.ClickNode(FolderTree::Root);
    Editor.ActivateRow(1);
    EXPECT_EQ(State().SelectedNode, NodeOf(u"other\\"_s));
    EXPECT_EQ(State().StatusText, u"other\\"_s);
    EXPECT_EQ(State().FocusPane, FocusedPane::Tree);
    EXPECT_EQ(Shown(), QStringList({u"One.csf"_s}));
}

TEST_F(EditorModify, ADoubleClickDeletesAnUnchangedCopyWithoutAWord) {
    OpenStrings();
    Editor.ActivateRow(0);
    EXPECT_EQ(Given, QStringList(Scratch(u"One.csf"_s)));
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(Files::FileExists(Scratch(u"One.csf"_s)));
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorModify, ADoubleClickAsksForAChangedCopyAndYesIsAnUnsavedChange) {
    OpenStrings();
    LetItWrite();
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(0);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"InsertModifiedFile"_s);
    EXPECT_TRUE(Entry(0).IsNew);
    EXPECT_TRUE(Editor.List().Row(0).IsNew);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorModify, NoAfterADoubleClickDeletesTheCopyAndChangesNothing) {
    OpenStrings();
    LetItWrite();
    Speaker.Answers = {Answer::No};
    Editor.ActivateRow(0);
    EXPECT_FALSE(Files::FileExists(Scratch(u"One.csf"_s)));
    EXPECT_FALSE(Entry(0).IsNew);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorModify, TheSizeStaysTheOldOneUntilTheSave) {
    OpenStrings();
    LetItWrite();
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(0);
    EXPECT_EQ(Editor.List().SizeText(0), u"9"_s);
    Editor.Save();
    EXPECT_EQ(Editor.List().SizeText(0), u"7"_s);
    EXPECT_TRUE(World::ReadFile(mBIG::BigFileName).contains("written"));
    EXPECT_FALSE(Files::FileExists(Scratch(u"One.csf"_s))) << "The save empties the scratch folder.";
}

TEST_F(EditorModify, AnEntryThatWasTakenInIsOpenedAtItsSourceWithoutAQuestion) {
    OpenStrings();
    LetItWrite();
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(0);
    Speaker.Messages.clear();
    Editor.ActivateRow(0);
    ModifyByMenu(0);
    EXPECT_EQ(Given, QStringList({Scratch(u"One.csf"_s), Scratch(u"One.csf"_s), Scratch(u"One.csf"_s)}));
    EXPECT_EQ(GivenBytes.mid(1), QList<QByteArray>({"written", "written"}));
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_TRUE(Files::FileExists(Scratch(u"One.csf"_s)));
}

TEST_F(EditorModify, AMissingSourceIsToldAfterADoubleClickAndTheEntryIsHidden) {
    OpenStrings();
    Speaker.FileNames = {Place.WriteFile(u"n.csf"_s, "1")};
    Editor.Add();
    Files::Delete(Place.Root() + u"\\n.csf"_s);
    Editor.ActivateRow(2);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"FileNotFound"_s);
    EXPECT_EQ(Speaker.Messages[0].Sign, Host::Icon::Critical);
    EXPECT_TRUE(Entry(3).Deleted);
    EXPECT_EQ(Shown(), QStringList({u"One.csf"_s, u"two.csf"_s}));
    EXPECT_TRUE(Given.isEmpty());
}

TEST_F(EditorModify, TheMenuDoesNotLookForTheSource) {
    OpenStrings();
    Speaker.FileNames = {Place.WriteFile(u"n.csf"_s, "1")};
    Editor.Add();
    Files::Delete(Place.Root() + u"\\n.csf"_s);
    ModifyByMenu(2);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(Entry(3).Deleted);
    EXPECT_EQ(Given, QStringList(Place.Root() + u"\\n.csf"_s));
}

TEST_F(EditorModify, ACopyThatTheProgramDeletedHasNothingToTakeIn) {
    OpenStrings();
    Program = [](const QString& path) { Files::Delete(path); };
    Editor.ActivateRow(0);
    ModifyByMenu(0);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(Entry(0).IsNew);
}

TEST_F(EditorModify, ANameThatLeadsOutOfTheScratchFolderOpensNothing) {
    // The list cuts the name by the key's length, wherever the key stood.
    OpenArchive({{u"..\\evil.csf"_s, "1"}, {u"CON.csf"_s, "2"}, {u"a:b.csf"_s, "3"}, {u"\\root.csf"_s, "4"}});
    const QStringList before = Files::ListFolder(Place.ProgramFolder() + u"\\*.*"_s);
    for (int place = 0; place < Editor.List().Count(); ++place) {
        if (Editor.List().Row(place).IsFolder)
            continue;
        Editor.ActivateRow(place);
        ModifyByMenu(place);
    }
    EXPECT_TRUE(Given.isEmpty());
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_EQ(Files::ListFolder(Scratch({})), QStringList());
    EXPECT_EQ(Files::ListFolder(Place.ProgramFolder() + u"\\*.*"_s), before);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorModify, WhatAnEarlierDayLeftDoesNotShowBehindAShorterEntry) {
    OpenStrings();
    Files::MakeFolders(Scratch({}));
    Write(Scratch(u"two.csf"_s), "left over");
    Editor.ActivateRow(1);
    EXPECT_EQ(GivenBytes, QList<QByteArray>({"2"}));
}

TEST_F(EditorModify, TwoEntriesOfOneNameHaveTwoCopies) {
    OpenStrings();
    LetItWrite();
    Speaker.Answers = {Answer::Yes, Answer::Yes};
    Editor.ActivateRow(0);
    Editor.ClickNode(NodeOf(u"other\\"_s));
    Program = [](const QString& path) { Write(path, "other"); };
    Editor.ActivateRow(0);
    EXPECT_EQ(Given.last(), Scratch(u"One (2).csf"_s));
    EXPECT_EQ(GivenBytes.last(), "x");
    EXPECT_EQ(World::ReadFile(Entry(0).SourcePath), "written") << "The first one's changes are safe.";
    EXPECT_EQ(World::ReadFile(Entry(2).SourcePath), "other");
}

TEST_F(EditorModify, AnEntryWithoutBytesOpensAsAnEmptyFile) {
    OpenArchive({{u"a.csf"_s, "1"}, {u"empty.csf"_s, {}}, {u"c.csf"_s, "3"}});
    LetItWrite();
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(1);
    EXPECT_EQ(GivenBytes, QList<QByteArray>({QByteArray()}));
    EXPECT_TRUE(Entry(1).IsNew) << "What was written into it is not lost.";
    EXPECT_FALSE(NumberedFiles::IsOpen(3)) << "It keeps no later entry from being extracted.";
    EXPECT_FALSE(NumberedFiles::IsOpen(4));
    Program = {};
    Editor.ActivateRow(0);
    EXPECT_EQ(GivenBytes.last(), "1");
}

TEST_F(EditorModify, FileNumbersThatWereLeftOpenAreNoHindrance) {
    OpenStrings();
    NumberedFiles::Open(4, mBIG::BigFileName, NumberedFiles::Access::Read);
    Editor.ActivateRow(1);
    EXPECT_EQ(GivenBytes, QList<QByteArray>({"2"}));
}

TEST_F(EditorModify, AnArchiveThatHasGoneOpensNothingAndBeeps) {
    OpenStrings();
    Files::Rename(mBIG::BigFileName, mBIG::BigFileName + u".away"_s);
    Editor.ActivateRow(0);
    ModifyByMenu(0);
    EXPECT_TRUE(Given.isEmpty());
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_EQ(Speaker.Beeps, 2) << "Neither is passed over in silence.";
}

TEST_F(EditorModify, TheCSFEditorKnowsWhoOpensIt) {
    OpenStrings();
    mMain::CsfOpenedByHost = false;
    Editor.ActivateRow(0);
    EXPECT_TRUE(mMain::CsfOpenedByHost);
    EXPECT_EQ(Speaker.Yields, 0) << "There is no wait.";
}
