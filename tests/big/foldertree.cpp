// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RuntimeError.h"
#include "tests/big/foldertree_support.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(FolderTree, TheRootIsNodeOneWithTheGivenTextAndTheArchivePicture) {
    const FolderTree tree = TreeOf({});
    ASSERT_EQ(tree.Count(), 1);
    const FolderNode& root = tree.Node(1);
    EXPECT_EQ(root.Key, QString());
    EXPECT_EQ(root.Text, u"a.big"_s);
    EXPECT_EQ(root.Parent, FolderTree::None);
    EXPECT_EQ(static_cast<int>(root.Image()), 3);
    EXPECT_EQ(static_cast<int>(root.SelectedImage()), 3);
}

TEST(FolderTree, EachFolderOfANameBecomesANodeBelowTheOneBefore) {
    const FolderTree tree = TreeOf({u"Data\\INI\\X.ini"_s});
    ASSERT_EQ(tree.Count(), 3);
    EXPECT_EQ(tree.Node(2).Key, u"data\\"_s);
    EXPECT_EQ(tree.Node(2).Text, u"data"_s);
    EXPECT_EQ(tree.Node(2).Parent, 1);
    EXPECT_EQ(tree.Node(3).Key, u"data\\ini\\"_s);
    EXPECT_EQ(tree.Node(3).Text, u"ini"_s);
    EXPECT_EQ(tree.Node(3).Parent, 2);
    EXPECT_EQ(static_cast<int>(tree.Node(3).Image()), 2);
    EXPECT_EQ(static_cast<int>(tree.Node(3).SelectedImage()), 1);
}

TEST(FolderTree, AKnownFolderIsNotAddedAgainWhateverItsCase) {
    const FolderTree tree = TreeOf({u"Data\\a"_s, u"DATA\\b"_s, u"x"_s, u"data\\Sub\\c"_s, u"Data\\SUB\\d"_s});
    EXPECT_EQ(KeysOf(tree), QStringList({{}, u"data\\"_s, u"data\\sub\\"_s}));
}

TEST(FolderTree, FoldersOfOneNameInTwoPlacesAreTwoNodes) {
    const FolderTree tree = TreeOf({u"a\\art\\1"_s, u"b\\art\\1"_s, u"art\\1"_s});
    EXPECT_EQ(KeysOf(tree), QStringList({{}, u"a\\"_s, u"a\\art\\"_s, u"b\\"_s, u"b\\art\\"_s, u"art\\"_s}));
    EXPECT_EQ(tree.Node(1).Children, (std::vector<int>{2, 4, 6}));
    EXPECT_EQ(tree.Node(6).Row, 2);
    EXPECT_EQ(tree.Node(5).Parent, 4);
}

TEST(FolderTree, ANameWithoutABackslashAddsNothing) {
    EXPECT_EQ(TreeOf({u"readme.txt"_s, u"with/slash.txt"_s, {}}).Count(), 1);
}

TEST(FolderTree, ANameThatEndsInABackslashAddsItsFolder) {
    EXPECT_EQ(KeysOf(TreeOf({u"Empty\\"_s})), QStringList({{}, u"empty\\"_s}));
}

TEST(FolderTree, ALeadingBackslashMakesAFolderWithoutText) {
    const FolderTree tree = TreeOf({u"\\a\\b"_s});
    EXPECT_EQ(KeysOf(tree), QStringList({{}, u"\\"_s, u"\\a\\"_s}));
    EXPECT_EQ(tree.Node(2).Text, QString());
    EXPECT_EQ(tree.Node(3).Parent, 2);
}

TEST(FolderTree, DeletedRecordsAddNothing) {
    std::vector<BigEntry> table = TableOf({u"a\\1"_s, u"b\\1"_s});
    table[0].Deleted = true;
    FolderTree tree;
    tree.CreateDirs(u"a.big"_s, table);
    EXPECT_EQ(KeysOf(tree), QStringList({{}, u"b\\"_s}));
}

TEST(FolderTree, MakingItAnewForgetsTheOldFolders) {
    FolderTree tree = TreeOf({u"a\\1"_s});
    tree.CreateDirs(u"b.big"_s, TableOf({u"b\\1"_s}));
    EXPECT_EQ(KeysOf(tree), QStringList({{}, u"b\\"_s}));
    EXPECT_EQ(tree.Find(u"a\\"_s), FolderTree::None);
}

TEST(FolderTree, ANodeIsFoundByItsKeyAndTheRootByTheEmptyOne) {
    const FolderTree tree = TreeOf({u"a\\b\\1"_s});
    EXPECT_EQ(tree.Find({}), 1);
    EXPECT_EQ(tree.Find(u"a\\b\\"_s), 3);
    EXPECT_EQ(tree.Find(u"a\\b"_s), FolderTree::None);
}

TEST(FolderTree, AccentedFoldersAreLowerCasedToo) {
    EXPECT_EQ(KeysOf(TreeOf({u"\u00C9t\u00C9\\1"_s, u"\u00E9t\u00E9\\2"_s})), QStringList({{}, u"\u00E9t\u00E9\\"_s}));
}

TEST(FolderTree, AskingForAMissingNodeRaises91) {
    FolderTree tree;
    const auto numberOf = [](const std::function<void()>& step) {
        try {
            step();
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        return 0;
    };
    EXPECT_EQ(numberOf([&] { static_cast<void>(tree.Node(1)); }), 91);
    EXPECT_EQ(numberOf([&] { tree.SetRootText(u"x"_s); }), 91);
    EXPECT_EQ(numberOf([&] { tree.Add(1, u"a\\"_s, u"a"_s); }), 91);
    EXPECT_FALSE(tree.Has(1));
}

TEST(FolderTree, AFullArchiveOfDeepFoldersHasEachFolderOnce) {
    QStringList names;
    for (int index = 0; index < mBIG::MaximumEntries; ++index)
        names += u"Data\\Folder%1\\Sub%2\\File%3.ini"_s.arg(index % 97).arg(index % 11).arg(index);
    const FolderTree tree = TreeOf(names);
    EXPECT_EQ(tree.Count(), 2 + 97 + 97 * 11);
}
