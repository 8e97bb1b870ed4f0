// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class EditorRenames : public EditorDocument {
protected:
    [[nodiscard]] static QStringList Names() {
        QStringList names;
        for (const BigEntry& entry : mBIG::BigEntries)
            names += entry.Name;
        return names;
    }

    [[nodiscard]] int PlaceOf(const QString& text) { return static_cast<int>(Shown().indexOf(text)); }
};

} // namespace

TEST_F(EditorRenames, TheRootAndUnknownNodesRefuse) {
    OpenSample();
    EXPECT_FALSE(Editor.MayRenameNode(FolderTree::Root));
    EXPECT_FALSE(Editor.MayRenameNode(FolderTree::None));
    EXPECT_FALSE(Editor.MayRenameNode(99));
    EXPECT_TRUE(Editor.MayRenameNode(2));
    EXPECT_FALSE(Editor.RenameNode(FolderTree::Root, u"x"_s));
    EXPECT_FALSE(Editor.RenameNode(99, u"x"_s));
    EXPECT_EQ(Editor.Tree().Node(FolderTree::Root).Text, u"a.big"_s);
}

TEST_F(EditorRenames, InTheTreeAnEmptyTextCancels) {
    OpenArchive({{u"data\\1"_s, "1"}, {u"2"_s, "2"}});
    EXPECT_FALSE(Editor.RenameNode(2, {}));
    EXPECT_EQ(Names(), QStringList({u"data\\1"_s, u"2"_s}));
}

TEST_F(EditorRenames, InTheTreeTheLastPartOfTheKeyChangesInTheCaseTyped) {
    OpenArchive({{u"data\\ini\\1"_s, "1"}, {u"data\\ini\\sub\\2"_s, "2"}, {u"data\\3"_s, "3"}});
    Editor.ClickNode(NodeOf(u"data\\ini\\"_s));
    EXPECT_TRUE(Editor.RenameNode(State().SelectedNode, u"Rules"_s));
    EXPECT_EQ(Names(), QStringList({u"data\\Rules\\1"_s, u"data\\Rules\\sub\\2"_s, u"data\\3"_s}));
    const int node = NodeOf(u"data\\Rules\\"_s);
    EXPECT_EQ(State().SelectedNode, node);
    EXPECT_EQ(Editor.Tree().Node(node).Text, u"Rules"_s);
    EXPECT_NE(NodeOf(u"data\\Rules\\sub\\"_s), FolderTree::None);
    Editor.ClickNode(node);
    EXPECT_EQ(Shown(), QStringList({u"sub"_s, u"1"_s}));
}

TEST_F(EditorRenames, InTheTreeModifiedIsNotSet) {
    OpenArchive({{u"data\\1"_s, "1"}, {u"2"_s, "2"}});
    EXPECT_TRUE(Editor.RenameNode(2, u"x"_s));
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorRenames, InTheTreeABackslashIsNotLookedFor) {
    OpenArchive({{u"data\\1"_s, "1"}, {u"2"_s, "2"}});
    EXPECT_TRUE(Editor.RenameNode(2, u"x\\y"_s));
    EXPECT_EQ(Names(), QStringList({u"x\\y\\1"_s, u"2"_s}));
    EXPECT_EQ(Editor.Tree().Node(2).Key, u"x\\y\\"_s);
    EXPECT_TRUE(Editor.RenameNode(2, u"z"_s));
    EXPECT_EQ(Names(), QStringList({u"x\\z\\1"_s, u"2"_s}));
}

TEST_F(EditorRenames, NamesWithCapitalsInTheFolderDoNotFollow) {
    OpenArchive({{u"Data\\1"_s, "1"}, {u"data\\2"_s, "2"}});
    EXPECT_TRUE(Editor.RenameNode(2, u"x"_s));
    EXPECT_EQ(Names(), QStringList({u"Data\\1"_s, u"x\\2"_s}));
}

TEST_F(EditorRenames, TheOldKeyIsReplacedAtEveryPlaceOfEveryName) {
    OpenArchive({{u"a\\1"_s, "1"}, {u"data\\a\\2"_s, "2"}, {u"3"_s, "3"}});
    EXPECT_TRUE(Editor.RenameNode(NodeOf(u"a\\"_s), u"b"_s));
    EXPECT_EQ(Names(), QStringList({u"b\\1"_s, u"datb\\b\\2"_s, u"3"_s}));
    EXPECT_NE(NodeOf(u"datb\\b\\"_s), FolderTree::None);
}

TEST_F(EditorRenames, ANameThatEndsInTheOldOneMissesItsOwnFiles) {
    OpenArchive({{u"ini\\1"_s, "1"}, {u"2"_s, "2"}});
    EXPECT_TRUE(Editor.RenameNode(2, u"my ini"_s));
    EXPECT_EQ(Names(), QStringList({u"my ini\\1"_s, u"2"_s}));
    EXPECT_EQ(Editor.Tree().Node(2).Key, u"my my ini\\"_s)
        << "The new key is searched for the old one like the others.";
    Editor.CreateDirs();
    EXPECT_EQ(Editor.Tree().Node(2).Key, u"my ini\\"_s);
}

TEST_F(EditorRenames, TheNameOfASiblingMergesTheTwoUntilTheNextTree) {
    OpenArchive({{u"a\\1"_s, "1"}, {u"b\\2"_s, "2"}, {u"3"_s, "3"}});
    EXPECT_TRUE(Editor.RenameNode(NodeOf(u"b\\"_s), u"a"_s));
    EXPECT_EQ(Names(), QStringList({u"a\\1"_s, u"a\\2"_s, u"3"_s}));
    EXPECT_EQ(Editor.Tree().Count(), 3);
    for (const int node : {2, 3}) {
        Editor.ClickNode(node);
        EXPECT_EQ(State().SelectedNode, node) << "Each of the two can be selected.";
        EXPECT_EQ(Shown(), QStringList({u"1"_s, u"2"_s}));
    }
    Editor.CreateDirs();
    EXPECT_EQ(Editor.Tree().Count(), 2);
}

TEST_F(EditorRenames, InTheListAnEmptyTextAndABackslashCancel) {
    OpenArchive({{u"data\\1"_s, "1"}, {u"2"_s, "2"}});
    for (const QString& row : {u"data"_s, u"2"_s}) {
        EXPECT_FALSE(Editor.RenameRow(PlaceOf(row), {}));
        EXPECT_FALSE(Editor.RenameRow(PlaceOf(row), u"x\\y"_s));
        EXPECT_FALSE(Editor.RenameRow(PlaceOf(row), u"\\"_s));
    }
    EXPECT_FALSE(Editor.RenameRow(-1, u"x"_s));
    EXPECT_FALSE(Editor.RenameRow(99, u"x"_s));
    EXPECT_EQ(Names(), QStringList({u"data\\1"_s, u"2"_s}));
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorRenames, AFolderRowDoesWhatTheTreeDoesAndSetsModified) {
    OpenArchive({{u"data\\ini\\1"_s, "1"}, {u"2"_s, "2"}});
    EXPECT_TRUE(Editor.RenameRow(PlaceOf(u"data"_s), u"Stuff"_s));
    EXPECT_EQ(Names(), QStringList({u"Stuff\\ini\\1"_s, u"2"_s}));
    EXPECT_EQ(Editor.Tree().Node(2).Key, u"Stuff\\"_s);
    EXPECT_EQ(Editor.Tree().Node(2).Text, u"Stuff"_s);
    EXPECT_EQ(Editor.Tree().Node(3).Key, u"Stuff\\ini\\"_s);
    EXPECT_EQ(Shown(), QStringList({u"Stuff"_s, u"2"_s}));
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorRenames, AFileRowReplacesItsTextAndSetsModified) {
    OpenArchive({{u"Data\\One.ini"_s, "1"}, {u"Data\\two.ini"_s, "2"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    EXPECT_TRUE(Editor.RenameRow(0, u"First.txt"_s));
    EXPECT_EQ(Names(), QStringList({u"Data\\First.txt"_s, u"Data\\two.ini"_s}));
    EXPECT_EQ(Shown(), QStringList({u"First.txt"_s, u"two.ini"_s}));
    EXPECT_EQ(Editor.List().Type(0), u"txt"_s);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorRenames, AFileRowsTextChangesAtEveryPlaceOfTheName) {
    OpenArchive({{u"a\\a"_s, "1"}, {u"2"_s, "2"}});
    Editor.ClickNode(NodeOf(u"a\\"_s));
    EXPECT_TRUE(Editor.RenameRow(0, u"long"_s));
    EXPECT_EQ(Names(), QStringList({u"long\\long"_s, u"2"_s}));
    EXPECT_EQ(Shown(), QStringList({u"long"_s})) << "The row shows what was typed.";
}

TEST_F(EditorRenames, AFileRowsTextIsComparedExactly) {
    OpenArchive({{u"A\\a"_s, "1"}, {u"2"_s, "2"}});
    Editor.ClickNode(NodeOf(u"a\\"_s));
    EXPECT_TRUE(Editor.RenameRow(0, u"b"_s));
    EXPECT_EQ(Names(), QStringList({u"A\\b"_s, u"2"_s}));
}

TEST_F(EditorRenames, ARowWithoutTextHasNothingToReplace) {
    OpenArchive({{u"data\\"_s, "1"}, {u"2"_s, "2"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    ASSERT_EQ(Shown(), QStringList(QString()));
    EXPECT_TRUE(Editor.RenameRow(0, u"x"_s));
    EXPECT_EQ(Names(), QStringList({u"data\\"_s, u"2"_s}));
}

TEST_F(EditorRenames, ARowOfASortedListIsTheOneThatIsShown) {
    OpenArchive({{u"b"_s, "1"}, {u"c"_s, "2"}, {u"a"_s, "3"}});
    Editor.List().SortBy(FileList::Filename);
    EXPECT_TRUE(Editor.RenameRow(0, u"first"_s));
    EXPECT_EQ(Names(), QStringList({u"b"_s, u"c"_s, u"first"_s}));
    EXPECT_EQ(Shown(), QStringList({u"first"_s, u"b"_s, u"c"_s}));
}

TEST_F(EditorRenames, ARowWhoseRecordOrNodeHasGoneRefuses) {
    OpenArchive({{u"data\\1"_s, "1"}, {u"2"_s, "2"}});
    mBIG::BigEntries.clear();
    EXPECT_FALSE(Editor.RenameRow(PlaceOf(u"2"_s), u"x"_s));
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorRenames, ARenamedFileIsSavedUnderItsNewName) {
    const QString path = OpenArchive({{u"Data\\One.ini"_s, "first"}, {u"two"_s, "2"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    EXPECT_TRUE(Editor.RenameRow(0, u"New.ini"_s));
    Editor.Save();
    ASSERT_EQ(Names(), QStringList({u"Data\\New.ini"_s, u"two"_s}));
    const QByteArray saved = World::ReadFile(path);
    EXPECT_TRUE(saved.contains("Data\\New.ini"));
    EXPECT_FALSE(saved.contains("One"));
    EXPECT_TRUE(saved.contains("first"));
}
