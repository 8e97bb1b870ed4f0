// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The folder tree as an item model. The root node is the only top-level item.
#pragma once

#include "big/document/FolderTree.h"
#include "big/window/BigIcons.h"

#include <QAbstractItemModel>
#include <QIcon>

class FolderTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    /// The tree outlives the model.
    explicit FolderTreeModel(const FolderTree& tree, QObject* parent = nullptr);

    /// Takes the tree as it is now. To be called after each change of its nodes.
    void Reset();

    /// Folders look as in the list: with the system's icon or with the program's own. The view is to be painted anew.
    void ShowSystemIcons(bool show) { systemIcons_ = show; }

    /// The root's text is another one.
    void RootTextChanged();

    [[nodiscard]] QModelIndex IndexOf(int node) const;
    /// FolderTree::None for an invalid index.
    [[nodiscard]] static int NodeOf(const QModelIndex& index);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// A node's text can be edited, the root's excepted: tells RenameWanted, and takes nothing by itself.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    /// The end of the edit of a node's text, with the text as typed.
    void RenameWanted(int node, const QString& text);

private:
    const FolderTree& tree_;
    QIcon archiveIcon_;
    QIcon folderIcon_;
    BigIcons icons_;
    bool systemIcons_ = false;
};
