// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RuntimeError.h"
#include "tests/big/foldertree_support.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Each node stands where its parent says, and behind it.
void ExpectWhole(const FolderTree& tree) {
    for (int index = FolderTree::Root; index <= tree.Count(); ++index) {
        const FolderNode& node = tree.Node(index);
        EXPECT_LT(node.Parent, index);
        for (std::size_t row = 0; row < node.Children.size(); ++row) {
            EXPECT_EQ(tree.Node(node.Children[row]).Parent, index);
            EXPECT_EQ(tree.Node(node.Children[row]).Row, static_cast<int>(row));
        }
        EXPECT_LE(tree.Find(node.Key), index);
    }
}

} // namespace

TEST(FolderTreeRemove, TakesTheFoldersBelowAlongAndMovesTheLaterNodesDown) {
    FolderTree tree = TreeOf({u"a\\x\\1"_s, u"b\\y\\2"_s, u"c\\3"_s});
    ASSERT_EQ(KeysOf(tree), QStringList({{}, u"a\\"_s, u"a\\x\\"_s, u"b\\"_s, u"b\\y\\"_s, u"c\\"_s}));
    tree.Remove(4);
    EXPECT_EQ(KeysOf(tree), QStringList({{}, u"a\\"_s, u"a\\x\\"_s, u"c\\"_s}));
    EXPECT_EQ(tree.Node(1).Children, std::vector<int>({2, 4}));
    EXPECT_EQ(tree.Node(4).Row, 1);
    EXPECT_EQ(tree.Find(u"c\\"_s), 4);
    EXPECT_EQ(tree.Find(u"b\\"_s), FolderTree::None);
    EXPECT_EQ(tree.Find(u"b\\y\\"_s), FolderTree::None);
    ExpectWhole(tree);
}

TEST(FolderTreeRemove, FindsChildrenThatStandFarBehindTheirFolder) {
    FolderTree tree = TreeOf({u"a\\1"_s, u"b\\2"_s, u"a\\late\\3"_s, u"b\\late\\4"_s});
    tree.Remove(tree.Find(u"a\\"_s));
    EXPECT_EQ(KeysOf(tree), QStringList({{}, u"b\\"_s, u"b\\late\\"_s}));
    ExpectWhole(tree);
}

TEST(FolderTreeRemove, TheRootLeavesAnEmptyTree) {
    FolderTree tree = TreeOf({u"a\\x\\1"_s});
    tree.Remove(FolderTree::Root);
    EXPECT_EQ(tree.Count(), 0);
    EXPECT_FALSE(tree.Has(FolderTree::Root));
    EXPECT_EQ(tree.Find({}), FolderTree::None);
    EXPECT_THROW(tree.SetRootText(u"x"_s), RuntimeError);
}

TEST(FolderTreeRemove, AnIndexThatNoNodeHasRaises91) {
    FolderTree tree = TreeOf({u"a\\1"_s});
    for (const int index : {-1, 0, 3, 1000}) {
        try {
            tree.Remove(index);
            ADD_FAILURE() << index;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::ObjectNotSet);
        }
        EXPECT_THROW(tree.Rename(index, u"k\\"_s, u"k"_s), RuntimeError);
    }
    EXPECT_EQ(tree.Count(), 2);
}

TEST(FolderTreeRename, TheKeysBelowFollow) {
    FolderTree tree = TreeOf({u"data\\ini\\x\\1"_s, u"data\\art\\2"_s});
    tree.Rename(tree.Find(u"data\\ini\\"_s), u"data\\Rules\\"_s, u"Rules"_s);
    EXPECT_EQ(KeysOf(tree),
              QStringList({{}, u"data\\"_s, u"data\\Rules\\"_s, u"data\\Rules\\x\\"_s, u"data\\art\\"_s}));
    EXPECT_EQ(tree.Node(3).Text, u"Rules"_s);
    EXPECT_EQ(tree.Node(4).Text, u"x"_s);
    EXPECT_EQ(tree.Find(u"data\\Rules\\x\\"_s), 4);
    EXPECT_EQ(tree.Find(u"data\\ini\\"_s), FolderTree::None);
}

TEST(FolderTreeRename, TheOldKeyIsReplacedWhereverItOccurs) {
    FolderTree tree = TreeOf({u"a\\1"_s, u"data\\a\\2"_s});
    tree.Rename(tree.Find(u"a\\"_s), u"b\\"_s, u"b"_s);
    EXPECT_EQ(KeysOf(tree), QStringList({{}, u"b\\"_s, u"datb\\"_s, u"datb\\b\\"_s}));
    EXPECT_EQ(tree.Node(3).Text, u"data"_s) << "The texts stay.";
}

TEST(FolderTreeRename, ANewKeyThatHoldsTheOldOneIsReplacedOnceMore) {
    FolderTree tree = TreeOf({u"ini\\1"_s});
    tree.Rename(2, u"my ini\\"_s, u"my ini"_s);
    EXPECT_EQ(tree.Node(2).Key, u"my my ini\\"_s);
    EXPECT_EQ(tree.Node(2).Text, u"my ini"_s);
}

TEST(FolderTreeRename, OfTwoNodesWithOneKeyTheFirstIsFound) {
    FolderTree tree = TreeOf({u"a\\1"_s, u"b\\2"_s});
    tree.Rename(3, u"a\\"_s, u"a"_s);
    EXPECT_EQ(tree.Count(), 3);
    EXPECT_EQ(tree.Find(u"a\\"_s), 2);
    tree.Remove(2);
    EXPECT_EQ(tree.Find(u"a\\"_s), 2) << "The other one has moved down.";
    ExpectWhole(tree);
}

TEST(FolderTreeAdd, ASecondNodeOfAKeyIsNotFoundBeforeTheFirst) {
    FolderTree tree = TreeOf({u"a\\1"_s});
    EXPECT_EQ(tree.Add(FolderTree::Root, u"a\\"_s, u"a"_s), 3);
    EXPECT_EQ(tree.Find(u"a\\"_s), 2);
}
