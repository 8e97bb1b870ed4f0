// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/FolderTree.h"

#include "platform/RuntimeError.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// More than a path of the games' systems has, which ends at 260 characters. Each folder keeps the whole path above it:
/// without a bound, a name of a megabyte would cost hundreds of gigabytes.
constexpr int DeepestFolder = 130;

} // namespace

void FolderTree::Reset(const QString& rootText) {
    nodes_.clear();
    knownFolders_.clear();
    nodes_.push_back({.Key = {}, .Text = rootText, .Parent = None, .Row = 0, .Children = {}});
    knownFolders_.insert({}, Root);
}

void FolderTree::CreateDirs(const QString& rootText, const std::vector<BigEntry>& entries) {
    Reset(rootText);
    QStringView previous;
    for (const BigEntry& entry : entries) {
        if (entry.Deleted)
            continue;
        const QStringView path = QStringView(entry.Name).first(entry.Name.lastIndexOf(u'\\') + 1);
        // Neighbours in an archive mostly share their folder.
        if (path.isEmpty() || path == previous)
            continue;
        previous = path;
        AddFolders(path.toString().toLower());
    }
}

void FolderTree::AddFolders(const QString& path) {
    int parent = Root;
    qsizetype begin = 0;
    for (int depth = 0; begin < path.size() && depth < DeepestFolder; ++depth) {
        const qsizetype end = path.indexOf(u'\\', begin);
        const QString key = path.first(end + 1);
        const int known = knownFolders_.value(key, None);
        parent = known != None ? known : Add(parent, key, path.sliced(begin, end - begin));
        begin = end + 1;
    }
}

int FolderTree::Add(int parent, const QString& key, const QString& text) {
    Require(parent);
    const int index = Count() + 1;
    auto& siblings = nodes_[static_cast<std::size_t>(parent) - 1].Children;
    const int row = static_cast<int>(siblings.size());
    siblings.push_back(index);
    nodes_.push_back({.Key = key, .Text = text, .Parent = parent, .Row = row, .Children = {}});
    if (!knownFolders_.contains(key))
        knownFolders_.insert(key, index);
    return index;
}

void FolderTree::Remove(int index) {
    Require(index);
    // A node's new index; None for one that goes. Parents stand before their children.
    std::vector<int> kept(nodes_.size() + 1, None);
    std::vector<FolderNode> left;
    for (int node = Root; node <= Count(); ++node) {
        FolderNode& each = nodes_[static_cast<std::size_t>(node) - 1];
        const int parent = kept[static_cast<std::size_t>(each.Parent)];
        if (node == index || (node != Root && parent == None))
            continue;
        each.Parent = parent;
        left.push_back(std::move(each));
        kept[static_cast<std::size_t>(node)] = static_cast<int>(left.size());
    }
    nodes_ = std::move(left);
    CountRows();
    LearnKeys();
}

void FolderTree::Rename(int index, const QString& key, const QString& text) {
    Require(index);
    FolderNode& renamed = nodes_[static_cast<std::size_t>(index) - 1];
    const QString oldKey = std::exchange(renamed.Key, key);
    renamed.Text = text;
    // The folder's own new key counts too, and what holds the old key further in. This is meant.
    for (std::size_t node = Root; node < nodes_.size(); ++node)
        nodes_[node].Key.replace(oldKey, key);
    LearnKeys();
}

void FolderTree::CountRows() {
    for (FolderNode& node : nodes_)
        node.Children.clear();
    for (int node = Root + 1; node <= Count(); ++node) {
        FolderNode& child = nodes_[static_cast<std::size_t>(node) - 1];
        auto& siblings = nodes_[static_cast<std::size_t>(child.Parent) - 1].Children;
        child.Row = static_cast<int>(siblings.size());
        siblings.push_back(node);
    }
}

void FolderTree::LearnKeys() {
    knownFolders_.clear();
    for (int node = Count(); node >= Root; --node)
        knownFolders_.insert(nodes_[static_cast<std::size_t>(node) - 1].Key, node);
}

int FolderTree::Find(const QString& key) const {
    return knownFolders_.value(key, None);
}

const FolderNode& FolderTree::Node(int index) const {
    Require(index);
    return nodes_[static_cast<std::size_t>(index) - 1];
}

void FolderTree::SetRootText(const QString& text) {
    Require(Root);
    nodes_.front().Text = text;
}

void FolderTree::Require(int index) const {
    if (!Has(index))
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"The folder tree has no node %1."_s.arg(index));
}
