// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/document_fixture.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class EditorChanges : public EditorDocument {
protected:
    /// The names of the records that are marked as deleted.
    [[nodiscard]] static QStringList DeletedNames() {
        QStringList names;
        for (const BigEntry& entry : mBIG::BigEntries)
            if (entry.Deleted)
                names += entry.Name;
        return names;
    }

    [[nodiscard]] int PlaceOf(const QString& text) { return static_cast<int>(Shown().indexOf(text)); }

    /// Selects rows with the list in play, as clicks do.
    void SelectRows(const QStringList& texts) {
        View.Selected.clear();
        for (const QString& text : texts) {
            View.Selected.push_back(PlaceOf(text));
            Editor.ClickRow(PlaceOf(text));
        }
    }

    void Delete(Answer answer = Answer::Yes) {
        Speaker.Answers = {answer};
        Editor.Delete();
    }

    [[nodiscard]] QStringList Keys() const {
        QStringList keys;
        for (int node = FolderTree::Root; node <= Editor.Tree().Count(); ++node)
            keys += Editor.Tree().Node(node).Key;
        return keys;
    }
};

} // namespace

TEST_F(EditorChanges, DeleteAsksFirstAndNoChangesNothing) {
    OpenSample();
    SelectRows({u"readme.txt"_s});
    Delete(Answer::No);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"ConfirmDelete\r\n\r\nreadme.txt"_s);
    EXPECT_EQ(Speaker.Messages[0].Default, Answer::Yes);
    EXPECT_EQ(Speaker.Messages[0].Title, u"Brindock 2005"_s);
    EXPECT_EQ(Speaker.Messages[0].Sign, Host::Icon::Question);
    EXPECT_EQ(Speaker.Messages[0].Choice, Host::Buttons::YesNo);
    EXPECT_EQ(DeletedNames(), QStringList());
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorChanges, TheQuestionNamesWhatGoesAndMuchIsNotTheUsualAnswer) {
    Place.UseLanguage("[LNG]\r\nConfirmDelete=Sure?\r\nDeletesOfFolder=%1: %2\r\n");
    Place.Start();
    OpenArchive({{u"data\\ini\\1"_s, "1"},
                 {u"data\\ini\\sub\\2"_s, "2"},
                 {u"data\\3"_s, "3"},
                 {u"Data\\capital"_s, "4"},
                 {u"5"_s, "5"}});
    const auto asked = [this](QStringView what, Answer usual) {
        Delete(Answer::No);
        EXPECT_EQ(Speaker.Messages.back().Text, u"Sure?\r\n\r\n"_s + what.toString());
        EXPECT_EQ(Speaker.Messages.back().Default, usual);
    };
    Editor.ClickNode(NodeOf(u"data\\"_s));
    asked(u"data: 3", Answer::No);
    SelectRows({u"ini"_s});
    asked(u"ini: 2", Answer::No);
    SelectRows({u"ini"_s, u"3"_s});
    asked(u"data: 3", Answer::No);
    SelectRows({u"3"_s});
    asked(u"3", Answer::Yes);
    Editor.ClickNode(NodeOf(u"data\\ini\\sub\\"_s));
    asked(u"sub: 1", Answer::Yes);
    EXPECT_EQ(DeletedNames(), QStringList());
}

TEST_F(EditorChanges, DeleteInTheListMarksEverySelectedFile) {
    OpenArchive({{u"a"_s, "1"}, {u"b"_s, "2"}, {u"c"_s, "3"}});
    SelectRows({u"a"_s, u"c"_s});
    Delete();
    EXPECT_EQ(DeletedNames(), QStringList({u"a"_s, u"c"_s}));
    EXPECT_EQ(Shown(), QStringList({u"b"_s}));
    EXPECT_EQ(mBIG::BigEntries.size(), 3U);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorChanges, DeleteInTheTreeMarksTheFolderWithAllBelowAndShowsTheOneAbove) {
    OpenArchive({{u"data\\ini\\1"_s, "1"}, {u"data\\ini\\sub\\2"_s, "2"}, {u"data\\art\\3"_s, "3"}, {u"4"_s, "4"}});
    Editor.ClickNode(NodeOf(u"data\\ini\\"_s));
    Delete();
    EXPECT_EQ(DeletedNames(), QStringList({u"data\\ini\\1"_s, u"data\\ini\\sub\\2"_s}));
    EXPECT_EQ(Keys(), QStringList({{}, u"data\\"_s, u"data\\art\\"_s}));
    EXPECT_EQ(State().SelectedNode, NodeOf(u"data\\"_s));
    EXPECT_EQ(Shown(), QStringList({u"art"_s}));
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorChanges, TheKeyCountsWhereverItStandsInTheName) {
    OpenArchive({{u"a\\1"_s, "1"}, {u"data\\2"_s, "2"}, {u"b\\a\\3"_s, "3"}, {u"b\\4"_s, "4"}});
    Editor.ClickNode(NodeOf(u"a\\"_s));
    Delete();
    EXPECT_EQ(DeletedNames(), QStringList({u"a\\1"_s, u"data\\2"_s, u"b\\a\\3"_s}));
}

TEST_F(EditorChanges, EntriesWithCapitalsInTheirFolderStayAndBringItBack) {
    OpenArchive({{u"Data\\X.ini"_s, "1"}, {u"data\\y.ini"_s, "2"}, {u"other"_s, "3"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Delete();
    EXPECT_EQ(DeletedNames(), QStringList({u"data\\y.ini"_s}));
    EXPECT_EQ(Keys(), QStringList(QString()));
    Editor.CreateDirs();
    EXPECT_EQ(Keys(), QStringList({{}, u"data\\"_s}));
}

TEST_F(EditorChanges, AFolderWithoutItsDeletedEntriesIsNotBackInTheNextTree) {
    OpenArchive({{u"data\\1"_s, "1"}, {u"2"_s, "2"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Delete();
    Editor.CreateDirs();
    EXPECT_EQ(Keys(), QStringList(QString()));
}

TEST_F(EditorChanges, DeletingTheRootDoesNothingEvenAfterYes) {
    OpenSample();
    Editor.ClickNode(FolderTree::Root);
    Delete();
    EXPECT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(DeletedNames(), QStringList());
    EXPECT_EQ(Editor.Tree().Count(), 3);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorChanges, OnATableOfOneRecordTheRootItselfGoes) {
    OpenArchive({{u"data\\1"_s, "1"}});
    Editor.ClickNode(FolderTree::Root);
    Delete();
    EXPECT_EQ(Editor.Tree().Count(), 0);
    EXPECT_EQ(State().SelectedNode, FolderTree::None);
    EXPECT_EQ(Editor.List().Count(), 0);
    EXPECT_EQ(DeletedNames(), QStringList());
}

TEST_F(EditorChanges, WithoutARootTheCommandsFailSilently) {
    OpenArchive({{u"data\\1"_s, "1"}});
    Delete();
    ASSERT_EQ(Editor.Tree().Count(), 0);
    Editor.NewFolder();
    EXPECT_EQ(View.Edited, FolderTree::None);
    Delete();
    EXPECT_EQ(Editor.Tree().Count(), 0);
    EXPECT_FALSE(Editor.MayRenameNode(FolderTree::Root));
    EXPECT_FALSE(Editor.RenameNode(2, u"x"_s));
    Editor.ClickNode(FolderTree::Root);
    Editor.ShowFolder({});
    Speaker.FileNames = {Place.WriteFile(u"n.txt"_s, "1")};
    Editor.Add();
    EXPECT_EQ(mBIG::BigEntries.back().Name, u"n.txt"_s);
    EXPECT_EQ(Shown(), QStringList({u"n.txt"_s}));
    Editor.Save();
    EXPECT_EQ(Keys(), QStringList({{}, u"data\\"_s})) << "A save brings the tree back.";
}

TEST_F(EditorChanges, ATableOfOneRecordLosesTheFolderAndKeepsTheRecord) {
    OpenArchive({{u"data\\1"_s, "1"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Delete();
    EXPECT_EQ(Keys(), QStringList(QString()));
    EXPECT_EQ(DeletedNames(), QStringList());
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorChanges, OnATableOfOneRecordTheFirstSelectedFolderRowGoes) {
    Speaker.FileNames = {Place.Root() + u"\\fresh.big"_s};
    Editor.New();
    for (int folder = 0; folder < 3; ++folder) {
        Editor.ClickNode(FolderTree::Root);
        Editor.NewFolder();
    }
    Editor.ClickNode(FolderTree::Root);
    SelectRows({u"New Folder1"_s, u"New Folder3"_s});
    Delete();
    EXPECT_EQ(Shown(), QStringList({u"New Folder2"_s, u"New Folder3"_s}));
}

TEST_F(EditorChanges, AFolderRowGoesWithItsEntries) {
    OpenArchive({{u"a\\1"_s, "1"}, {u"b\\2"_s, "2"}, {u"3"_s, "3"}});
    SelectRows({u"a"_s, u"3"_s});
    Delete();
    EXPECT_EQ(DeletedNames(), QStringList({u"a\\1"_s, u"3"_s}));
    EXPECT_EQ(Shown(), QStringList({u"b"_s}));
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
}

TEST_F(EditorChanges, TheSecondFolderRowOfASelectionIsTakenAtItsStaleIndex) {
    OpenArchive({{u"a\\1"_s, "1"}, {u"b\\2"_s, "2"}, {u"c\\3"_s, "3"}, {u"d\\4"_s, "4"}});
    SelectRows({u"a"_s, u"b"_s});
    Delete();
    // When a's node 2 has gone, node 3 is c.
    EXPECT_EQ(DeletedNames(), QStringList({u"a\\1"_s, u"c\\3"_s}));
    EXPECT_EQ(Shown(), QStringList({u"b"_s, u"d"_s}));
}

TEST_F(EditorChanges, AStaleIndexBehindTheLastNodeIsPassedOver) {
    OpenArchive({{u"a\\x\\1"_s, "1"}, {u"b\\2"_s, "2"}, {u"3"_s, "3"}});
    SelectRows({u"a"_s, u"b"_s, u"3"_s});
    Delete();
    EXPECT_EQ(DeletedNames(), QStringList({u"a\\x\\1"_s, u"3"_s}));
    EXPECT_EQ(Shown(), QStringList({u"b"_s}));
}

TEST_F(EditorChanges, PlacesThatTheListDoesNotHaveArePassedOver) {
    OpenSample();
    SelectRows({u"readme.txt"_s});
    View.Selected = {-1, 99};
    Delete();
    EXPECT_EQ(DeletedNames(), QStringList());
}

TEST_F(EditorChanges, ADeletedNewEntryIsNotSaved) {
    OpenSample();
    Speaker.FileNames = {Place.WriteFile(u"n.txt"_s, "1")};
    Editor.Add();
    SelectRows({u"n.txt"_s});
    Delete();
    Editor.Save();
    EXPECT_EQ(mBIG::BigEntries.size(), 3U);
    EXPECT_EQ(Shown(), QStringList({u"data"_s, u"readme.txt"_s}));
}

TEST_F(EditorChanges, ANewFolderIsShownSelectedAndNamedAtOnce) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\ini\\"_s));
    Editor.NewFolder();
    const int node = NodeOf(u"data\\ini\\new folder1\\"_s);
    ASSERT_EQ(node, 4);
    EXPECT_EQ(Editor.Tree().Node(node).Text, u"New Folder1"_s);
    EXPECT_EQ(Editor.Tree().Node(node).Parent, NodeOf(u"data\\ini\\"_s));
    EXPECT_EQ(State().SelectedNode, node);
    EXPECT_EQ(View.Edited, node);
    EXPECT_EQ(Editor.List().Count(), 0);
    EXPECT_EQ(State().NewFolderNumber, 2);
    EXPECT_FALSE(State().Modified);
    Editor.ClickNode(NodeOf(u"data\\ini\\"_s));
    EXPECT_EQ(Shown(), QStringList({u"New Folder1"_s, u"Object.ini"_s}));
}

TEST_F(EditorChanges, TwoNewFoldersHaveTheNumbersOneAndTwoWhateverTheyAreCalledThen) {
    OpenSample();
    Editor.NewFolder();
    EXPECT_TRUE(Editor.RenameNode(State().SelectedNode, u"mine"_s));
    Editor.ClickNode(FolderTree::Root);
    Editor.NewFolder();
    EXPECT_EQ(Editor.Tree().Node(State().SelectedNode).Text, u"New Folder2"_s);
}

TEST_F(EditorChanges, EachOpeningBeginsWithOneAgain) {
    OpenSample();
    Editor.NewFolder();
    Editor.NewFolder();
    OpenSample();
    Editor.NewFolder();
    EXPECT_EQ(Editor.Tree().Node(State().SelectedNode).Text, u"New Folder1"_s);
}

TEST_F(EditorChanges, ANumberWhoseFolderIsInTheArchiveIsPassedOver) {
    OpenArchive({{u"New Folder1\\1"_s, "1"}, {u"2"_s, "2"}});
    Editor.NewFolder();
    EXPECT_EQ(Editor.Tree().Node(State().SelectedNode).Text, u"New Folder2"_s);
    EXPECT_EQ(State().NewFolderNumber, 3);
}

TEST_F(EditorChanges, AnEmptyNewFolderIsGoneAfterTheNextReload) {
    OpenSample();
    Editor.NewFolder();
    Editor.Save();
    EXPECT_EQ(Keys(), QStringList({{}, u"data\\"_s, u"data\\ini\\"_s}));
}

TEST_F(EditorChanges, WhatIsAddedToANewFolderStaysWithIt) {
    OpenSample();
    Editor.NewFolder();
    EXPECT_TRUE(Editor.RenameNode(State().SelectedNode, u"Maps"_s));
    Speaker.FileNames = {Place.WriteFile(u"n.txt"_s, "1")};
    Editor.Add();
    EXPECT_EQ(mBIG::BigEntries.back().Name, u"Maps\\n.txt"_s) << "The case as typed.";
    EXPECT_EQ(Shown(), QStringList({u"n.txt"_s}));
    Editor.Save();
    EXPECT_NE(NodeOf(u"maps\\"_s), FolderTree::None);
}
