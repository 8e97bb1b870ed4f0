// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The machine's folders as a tree that is read branch by branch, each when it is opened. It is an item model over its
/// own nodes; the top node is the only top-level item.
#pragma once

#include "ui/folders/FileBoxSystem.h"

#include <QAbstractItemModel>

#include <functional>
#include <map>
#include <vector>

class FileBoxTree : public QAbstractItemModel {
    Q_OBJECT
public:
    /// Of data(): the key of the node and that of its picture.
    enum Role { KeyRole = Qt::UserRole, ImageRole };

    static constexpr int None = -1;
    static constexpr std::size_t MostFiles = 10'001; ///< of one folder; further ones are not shown

    /// The system outlives the tree, which is empty until Refresh.
    explicit FileBoxTree(const FileBoxSystem& system, QObject* parent = nullptr);

    bool ShowFiles = false;
    bool ShowHiddenFiles = false;
    QString Filter; ///< extensions to show, with their dots; empty means all

    /// Serves the interface; called for each entry of a walk. It may do anything to the tree.
    std::function<void()> Yield;

    /// Drops all nodes and takes another machine.
    void Use(const FileBoxSystem& system);

    /// Drops all nodes and builds the top anew.
    void Refresh();

    /// Reads what is below the node, if that has not been read yet, and gives it its open picture.
    void Open(int node);

    /// Gives the node its closed picture; what was read stays.
    void Close(int node);

    /// The path of a node: that of a folder ends in a backslash, that of the top node is empty.
    [[nodiscard]] QString Path(int node) const;

    /// Puts a folder that has just been made below an opened node; None when that is gone.
    int AddFolder(int parent, const QString& name);

    /// The node has not been opened: its only child is a placeholder.
    [[nodiscard]] bool IsUnread(int node) const;

    /// The child that shows this name; None when there is none.
    [[nodiscard]] int ChildNamed(int node, const QString& name) const;

    /// The child by which a folder (inside path) below the node is reached, or which is that folder; None when none is
    /// shown.
    [[nodiscard]] int ChildToward(int node, const QString& folder) const;

    [[nodiscard]] bool Has(int node) const { return nodes_.contains(node); }

    [[nodiscard]] QString Key(int node) const { return nodes_.at(node).Key; }

    [[nodiscard]] int Root() const { return root_; }

    /// The first node with that mark below the top; None when there is none.
    [[nodiscard]] int TopNode(QStringView mark) const;

    [[nodiscard]] QModelIndex IndexOf(int node) const;
    [[nodiscard]] static int NodeOf(const QModelIndex& index);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    struct Node {
        int Parent = None;
        int Row = 0;
        QString Key;
        QString Text;
        QString Icon; ///< path of the folder whose own picture it has; empty for the common ones
        std::vector<int> Children;
    };

    struct Walk;

    int Make(int parent, QString key, QString text);
    void MakePlaceholder(int parent);
    void MakeTop();
    void MakeDrives();
    void Take(Walk& walk, const ShellFolders::Entry& entry) const;
    [[nodiscard]] bool Shows(const QString& fileName) const;
    void RemoveChildren(int parent);
    void Insert(int parent, std::size_t row, const std::vector<Node>& children);
    void SwapMark(int node, QStringView from, QStringView to);
    [[nodiscard]] QString ImageOf(const Node& node) const;

    const FileBoxSystem* system_;
    std::map<int, Node> nodes_;
    int root_ = None;
    int next_ = 0; // numbers are never used again, so that one that is gone is known to be
};
