// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The tree of files to install as an item model: groups and their files, with check marks.
#pragma once

#include "install/wizard/FilesTree.h"

#include <QAbstractItemModel>
#include <QIcon>

#include <array>
#include <vector>

class FilesTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    explicit FilesTreeModel(QObject* parent = nullptr);

    /// Shows another tree, which outlives its use here; none for null.
    void SetTree(FilesTree* tree);

    /// Empty for an invalid index.
    [[nodiscard]] QString KeyOf(const QModelIndex& index) const;
    /// Invalid for a key that no node has.
    [[nodiscard]] QModelIndex IndexOf(const QString& key) const;

    /// A group was opened or closed, which its picture shows.
    void SetOpen(const QModelIndex& index, bool open);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// A check mark alone can be set; a group's goes to its files.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    [[nodiscard]] const FilesNode& Node(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex IndexAt(int place) const;
    [[nodiscard]] const QIcon& Picture(const QModelIndex& index) const;

    FilesTree* tree_ = nullptr;
    std::vector<int> groups_; ///< places of the groups, by row
    std::vector<bool> open_;  ///< by the groups' rows
    std::array<QIcon, 3> pictures_;
};
