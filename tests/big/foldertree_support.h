// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Folder trees made of names, and what is asked of them.
#pragma once

#include "big/document/FolderTree.h"
#include "tests/big/document_support.h"

inline FolderTree TreeOf(const QStringList& names) {
    FolderTree tree;
    tree.CreateDirs(QStringLiteral("a.big"), TableOf(names));
    return tree;
}

/// The keys of all nodes, in the order of their indices.
inline QStringList KeysOf(const FolderTree& tree) {
    QStringList keys;
    for (int index = FolderTree::Root; index <= tree.Count(); ++index)
        keys += tree.Node(index).Key;
    return keys;
}
