// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/FolderTree.h"
#include "tests/big/document_support.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(FolderTree, AMegabyteOfFoldersInOneNameEndsAtTheDeepestOne) {
    FolderTree tree;
    tree.CreateDirs(u"a.big"_s, TableOf({u"a\\"_s.repeated(500000) + u"x"_s, u"b\\y"_s}));
    ASSERT_EQ(tree.Count(), 1 + 130 + 1);
    EXPECT_EQ(tree.Node(131).Key, u"a\\"_s.repeated(130));
    EXPECT_EQ(tree.Node(132).Key, u"b\\"_s);
}
