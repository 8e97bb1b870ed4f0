// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The folders of an archive as plain data. An archive has no records for folders: they follow from the entries' names.
#pragma once

#include "big/format/mBIG.h"

#include <QHash>
#include <QString>

#include <vector>

/// Pictures of a node: the open folder, the closed folder, the archive.
enum class FolderImage { Open = 1, Closed = 2, Archive = 3 };

struct FolderNode {
    QString Key;               ///< lower-cased path with a trailing backslash; empty for the root
    QString Text;              ///< lower-cased last part of the path; the archive's file name for the root
    int Parent = 0;            ///< node index, 0 for the root
    int Row = 0;               ///< place among the parent's children, from 0
    std::vector<int> Children; ///< node indices in the order in which they came

    [[nodiscard]] FolderImage Image() const { return Parent == 0 ? FolderImage::Archive : FolderImage::Closed; }

    [[nodiscard]] FolderImage SelectedImage() const { return Parent == 0 ? FolderImage::Archive : FolderImage::Open; }
};

/// Nodes are known by their index, from 1; node 1 is the root.
class FolderTree {
public:
    static constexpr int None = 0;
    static constexpr int Root = 1;

    /// Removes every node and adds the root.
    void Reset(const QString& rootText);

    /// Rebuilds the tree from a table; deleted records add nothing, nor do folders more than 130 levels down.
    void CreateDirs(const QString& rootText, const std::vector<BigEntry>& entries);

    /// Adds a folder behind the parent's other children and returns its index. Raises 91 for an unknown parent.
    int Add(int parent, const QString& key, const QString& text);

    /// Takes a folder away with all below it. The indices of the nodes behind move down, so those kept elsewhere go
    /// stale; a parent's is lower than its children's and stays. Raises 91 for an index that no node has.
    void Remove(int index);

    /// Gives a folder another key and text, then replaces its old key in the key of every node but the root, wherever
    /// it occurs. Two nodes may come to have the same key. Raises 91 for an index that no node has.
    void Rename(int index, const QString& key, const QString& text);

    /// The first node with that key, the root for the empty key; None when there is no such node.
    [[nodiscard]] int Find(const QString& key) const;

    [[nodiscard]] bool Has(int index) const { return index >= Root && index <= Count(); }

    /// Raises 91 for an index that no node has.
    [[nodiscard]] const FolderNode& Node(int index) const;

    [[nodiscard]] int Count() const { return static_cast<int>(nodes_.size()); }

    /// Raises 91 when there is no root.
    void SetRootText(const QString& text);

private:
    void AddFolders(const QString& path);
    void CountRows();
    void LearnKeys();
    void Require(int index) const;

    std::vector<FolderNode> nodes_;
    QHash<QString, int> knownFolders_;
};
