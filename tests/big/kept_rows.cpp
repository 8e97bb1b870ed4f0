// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where the user is in the views stays over what makes them anew, and the details tell the row that is selected.
#include "tests/big/modify_fixture.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

using Places = std::vector<int>;

class KeptPlace : public EditorModify {
protected:
    /// An archive whose folder Data shows: sub, a.csf, b.csf, c.csf, d.csf.
    void OpenData() {
        OpenArchive({{u"top.txt"_s, "top"},
                     {u"Data\\a.csf"_s, "a"},
                     {u"Data\\b.csf"_s, "bb"},
                     {u"Data\\Sub\\e.csf"_s, "e"},
                     {u"Data\\c.csf"_s, "ccc"},
                     {u"Data\\d.csf"_s, "dddd"}});
        Editor.ClickNode(NodeOf(u"data\\"_s));
        ASSERT_EQ(Shown(), QStringList({u"sub"_s, u"a.csf"_s, u"b.csf"_s, u"c.csf"_s, u"d.csf"_s}));
        View.Place.ListScroll = {3, 40};
        View.Place.TreeScroll = {5, 60};
    }

    /// Clicks one row, as the view does.
    void Click(int place) {
        Be(place, {place});
        Editor.ClickRow(place);
    }

    void Be(int current, const Places& selected) {
        View.Selected = selected;
        View.Place.Current = current;
    }

    void ExpectAt(int current, const Places& selected) {
        EXPECT_EQ(View.Place.Current, current);
        EXPECT_EQ(View.Selected, selected);
        EXPECT_EQ(View.Place.ListScroll, QPoint(3, 40));
        EXPECT_EQ(View.Place.TreeScroll, QPoint(5, 60));
    }

    void Delete() {
        Speaker.Answers = {Answer::Yes};
        Editor.Delete();
    }

    /// A file comes in, and the list is made anew.
    void Drop(const QString& name) { Editor.DropFiles({Place.WriteFile(name, "added")}); }

    [[nodiscard]] QString Detailed() const { return State().DetailsVisible ? State().DetailsName : QString(); }
};

} // namespace

TEST_F(KeptPlace, ADropLeavesTheUserWhereHeIs) {
    OpenData();
    Click(2);
    Be(2, {2, 3});
    Drop(u"new.txt"_s);
    ExpectAt(2, {2, 3});
    EXPECT_EQ(Detailed(), u"b.csf"_s);
}

TEST_F(KeptPlace, AddOverTheRowOfTheDetailsTellsItsNewSize) {
    OpenData();
    Click(2);
    Speaker.Answers = {Answer::Yes};
    Speaker.FileNames = {Place.WriteFile(u"b.csf"_s, QByteArray(5000, 'x'))};
    Editor.Add();
    ExpectAt(2, {2});
    EXPECT_EQ(State().DetailsSize, u"4 KiloBytes"_s);
}

TEST_F(KeptPlace, DeleteGoesToTheRowBehind) {
    OpenData();
    Click(2);
    Delete();
    ExpectAt(2, {2});
    EXPECT_EQ(Detailed(), u"c.csf"_s);
    EXPECT_EQ(State().StatusText, u"Data\\c.csf"_s);
    EXPECT_EQ(State().FocusPane, FocusedPane::List);
}

TEST_F(KeptPlace, DeleteOfTheLastRowGoesToTheOneBefore) {
    OpenData();
    Click(4);
    Delete();
    ExpectAt(3, {3});
    EXPECT_EQ(Detailed(), u"c.csf"_s);
}

TEST_F(KeptPlace, DeleteOfSeveralRowsGoesToTheNextOneThatStays) {
    OpenData();
    Click(2);
    Be(2, {2, 3});
    Delete();
    ExpectAt(2, {2});
    EXPECT_EQ(Detailed(), u"d.csf"_s);
}

TEST_F(KeptPlace, DeleteOfTheLastRowsGoesToTheLastOneThatStays) {
    OpenData();
    Click(1);
    Be(4, {2, 3, 4});
    Delete();
    ExpectAt(1, {1});
}

TEST_F(KeptPlace, DetailsGoWithTheFolderAndWithTheOnlyRow) {
    OpenData();
    Click(1);
    Be(1, {1, 2, 3, 4});
    Delete();
    ExpectAt(0, {0});
    EXPECT_FALSE(State().DetailsVisible) << "A folder row has none.";
    EXPECT_FALSE(State().ModifyEnabled);

    Editor.ClickNode(NodeOf(u"data\\sub\\"_s));
    Click(0);
    EXPECT_TRUE(State().DetailsVisible);
    // Its folder has a capital, and so the entry stays in it when the folder goes; the entry by itself does go.
    Delete();
    EXPECT_EQ(Shown(), QStringList());
    ExpectAt(-1, {});
    EXPECT_FALSE(State().DetailsVisible);
}

TEST_F(KeptPlace, ANeighbourWhoseFileHasGoneIsNotShownAndStays) {
    OpenData();
    Drop(u"x.txt"_s);
    Files::Delete(mBIG::BigEntries.back().SourcePath);
    Click(4);
    Delete();
    ExpectAt(4, {4});
    EXPECT_EQ(Speaker.Messages.size(), 1U) << "The question alone.";
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_EQ(Shown().last(), u"x.txt"_s);
}

TEST_F(KeptPlace, TheCurrentRowNeedNotBeASelectedOne) {
    OpenData();
    Click(2);
    Be(4, {1, 2});
    Drop(u"new.txt"_s);
    ExpectAt(4, {1, 2});
    Be(3, {});
    Drop(u"newer.txt"_s);
    ExpectAt(3, {});
    Be(-1, {});
    Drop(u"newest.txt"_s);
    ExpectAt(-1, {});
}

TEST_F(KeptPlace, AFolderThatIsDeletedInTheTreeLeavesNoRowSelected) {
    OpenData();
    Be(1, {1});
    Editor.ClickNode(NodeOf(u"data\\sub\\"_s));
    Be(0, {0});
    Delete();
    EXPECT_EQ(State().SelectedNode, NodeOf(u"data\\"_s));
    EXPECT_EQ(View.Selected, Places());
    EXPECT_EQ(View.Place.Current, -1);
    EXPECT_EQ(View.Place.ListScroll, QPoint());
    EXPECT_EQ(View.Place.TreeScroll, QPoint(5, 60));
}

TEST_F(KeptPlace, OfEqualNamesEachStaysItself) {
    OpenArchive({{u"same"_s, "1"}, {u"SAME"_s, "2"}, {u"same"_s, "3"}, {u"last"_s, "4"}});
    Be(2, {1, 2});
    Drop(u"new.txt"_s);
    EXPECT_EQ(View.Selected, Places({1, 2}));
    EXPECT_EQ(View.Place.Current, 2);
}

TEST_F(KeptPlace, AFolderAndAFileOfOneNameAreTwo) {
    OpenArchive({{u"x\\in"_s, "1"}, {u"x"_s, "2"}, {u"y"_s, "3"}});
    ASSERT_EQ(Shown(), QStringList({u"x"_s, u"x"_s, u"y"_s}));
    Be(1, {1});
    Drop(u"new.txt"_s);
    EXPECT_EQ(View.Selected, Places({1}));
}

TEST_F(KeptPlace, SaveKeepsThePlaceAndHidesTheDetails) {
    OpenData();
    Be(1, {1});
    Editor.ClickRow(1);
    Delete();
    Drop(u"z.txt"_s);
    Click(3);
    Be(3, {0, 3});
    const QString status = State().StatusText;
    EXPECT_EQ(status, u"Data\\d.csf"_s);
    Editor.Save();
    EXPECT_EQ(Shown(), QStringList({u"sub"_s, u"b.csf"_s, u"c.csf"_s, u"d.csf"_s, u"z.txt"_s}));
    ExpectAt(3, {0, 3});
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_FALSE(State().ModifyEnabled);
    EXPECT_EQ(State().StatusText, status) << "A save leaves the text of the status bar.";
}

TEST_F(KeptPlace, SaveKeepsAFolderThatWasRenamedWithCapitals) {
    OpenArchive({{u"data\\sub\\e"_s, "e"}, {u"data\\f"_s, "f"}, {u"g"_s, "g"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Be(0, {0});
    ASSERT_TRUE(Editor.RenameRow(0, u"Maps"_s));
    Editor.Save();
    ASSERT_EQ(Shown(), QStringList({u"maps"_s, u"f"_s}));
    EXPECT_EQ(View.Selected, Places({0}));
}

TEST_F(KeptPlace, ASaveUnderAnotherNameKeepsThePlaceToo) {
    OpenData();
    Click(2);
    for (const QString& name : {u"\\b.big"_s, u"\\not an archive.dat"_s}) {
        Speaker.FileNames = {Place.Root() + name};
        Editor.SaveAs();
        ExpectAt(2, {2});
    }
}

TEST_F(KeptPlace, AnArchiveThatIsOpenedBeginsAtNoRow) {
    OpenData();
    Click(2);
    OpenSample();
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    EXPECT_EQ(State().StatusText, u"Ready"_s);
    EXPECT_FALSE(State().DetailsVisible);
}

TEST_F(KeptPlace, ModifyKeepsThePlaceAndTellsTheNewBytes) {
    OpenData();
    Click(3);
    EXPECT_EQ(State().DetailsSize, u"0 KiloBytes"_s);
    Program = [](const QString& path) { Write(path, QByteArray(3000, 'x')); };
    Speaker.Answers = {Answer::Yes};
    Editor.Modify();
    ASSERT_TRUE(Entry(4).IsNew);
    ExpectAt(3, {3});
    EXPECT_EQ(Detailed(), u"c.csf"_s);
    EXPECT_EQ(State().DetailsSize, u"2 KiloBytes"_s);
}

TEST_F(KeptPlace, DetailsThatAreNotShownStaySo) {
    OpenData();
    Be(3, {3});
    Delete();
    Program = [](const QString& path) { Write(path, "other"); };
    Speaker.Answers = {Answer::Yes};
    Editor.Modify();
    Editor.OfferRow(1);
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_EQ(State().StatusText, u"data\\"_s);
}

TEST_F(KeptPlace, TheMenusRowIsToldByTheDetails) {
    OpenData();
    Click(1);
    Be(3, {3});
    Editor.OfferRow(3);
    EXPECT_EQ(Detailed(), u"c.csf"_s);
    EXPECT_EQ(State().StatusText, u"Data\\c.csf"_s);
    EXPECT_TRUE(State().ModifyEnabled);
    Be(0, {0});
    Editor.OfferRow(0);
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_FALSE(State().ModifyEnabled);
}

TEST_F(KeptPlace, RowsThatAreSelectedWithoutAClickAreToldByTheDetails) {
    OpenData();
    Be(2, {2, 3});
    Editor.FollowSelection();
    EXPECT_FALSE(State().DetailsVisible) << "Only a click shows them.";
    Click(1);
    Be(1, {1, 2, 3});
    Editor.FollowSelection();
    EXPECT_EQ(Detailed(), u"a.csf"_s);
    Be(1, {2, 3});
    Editor.FollowSelection();
    EXPECT_EQ(Detailed(), u"b.csf"_s);
    EXPECT_EQ(State().StatusText, u"Data\\b.csf"_s);
    Be(1, {});
    Editor.FollowSelection();
    EXPECT_EQ(Detailed(), u"b.csf"_s) << "No row is selected that they could tell.";
}

TEST_F(KeptPlace, AnotherNameIsToldByTheDetails) {
    OpenData();
    Click(2);
    ASSERT_TRUE(Editor.RenameRow(2, u"Notes.txt"_s));
    EXPECT_EQ(Detailed(), u"Notes.txt"_s);
    EXPECT_EQ(State().StatusText, u"Data\\Notes.txt"_s);
    ASSERT_TRUE(Editor.RenameRow(3, u"other.txt"_s));
    EXPECT_EQ(Detailed(), u"Notes.txt"_s) << "The other row is not the one of the details.";
}

TEST_F(KeptPlace, AnotherNameOfTheFolderIsToldByTheDetails) {
    OpenArchive({{u"data\\a"_s, "a"}, {u"data\\b"_s, "b"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Click(1);
    ASSERT_TRUE(Editor.RenameNode(NodeOf(u"data\\"_s), u"Maps"_s));
    EXPECT_EQ(State().StatusText, u"Maps\\b"_s);
    EXPECT_EQ(Detailed(), u"b"_s);
}

TEST_F(KeptPlace, ARowThatASortPutsElsewhereStaysTheSelectedOne) {
    OpenData();
    Editor.List().SortBy(FileList::Size);
    ASSERT_EQ(Shown(), QStringList({u"sub"_s, u"a.csf"_s, u"b.csf"_s, u"c.csf"_s, u"d.csf"_s}));
    Be(1, {1, 2});
    Speaker.Answers = {Answer::Yes};
    Editor.DropFiles({Place.WriteFile(u"a.csf"_s, "much more")});
    ASSERT_EQ(Shown(), QStringList({u"sub"_s, u"b.csf"_s, u"c.csf"_s, u"d.csf"_s, u"a.csf"_s}));
    ExpectAt(4, {1, 4});
}

TEST_F(KeptPlace, DroppedFilesAndFoldersLeaveTheUserWhereHeIs) {
    OpenData();
    Click(2);
    Editor.DropFiles({Place.WriteFile(u"new.txt"_s, "new")});
    ExpectAt(2, {2});
    EXPECT_EQ(Detailed(), u"b.csf"_s);
    // A folder leads to the root, where it comes in.
    Editor.ClickNode(FolderTree::Root);
    Be(1, {1});
    View.Place.ListScroll = {3, 40};
    Place.WriteFile(u"more\\one.txt"_s, "1");
    Editor.DropFiles({Place.Root() + u"\\more"_s});
    ASSERT_EQ(Shown(), QStringList({u"data"_s, u"more"_s, u"top.txt"_s}));
    ExpectAt(2, {2});
}

TEST_F(KeptPlace, ARowWhoseFileHasGoneLeavesTheSelectionToItsNeighbour) {
    OpenData();
    Drop(u"x.txt"_s);
    Files::Delete(mBIG::BigEntries.back().SourcePath);
    Click(1);
    Click(5);
    EXPECT_EQ(Speaker.Messages.back().Text, u"FileNotFound"_s);
    ExpectAt(4, {4});
    EXPECT_EQ(Detailed(), u"d.csf"_s);
}
