// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A tree of nodes that are known by their keys, as an item model.
#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <QString>

#include <vector>

struct KeyedNode {
    QString Key;
    QString Text;
    QString Parent; ///< the key of the node above, which stands before this one; empty for none
    QIcon Picture{};
};

class KeyedTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    using QAbstractItemModel::QAbstractItemModel;

    /// Takes other nodes; one whose parent is not among those before it is left out.
    void Reset(std::vector<KeyedNode> nodes);

    /// Invalid when no node has the key.
    [[nodiscard]] QModelIndex IndexOf(const QString& key) const;
    /// Empty for an invalid index.
    [[nodiscard]] QString KeyOf(const QModelIndex& index) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    static constexpr int none = -1;

    struct Place {
        KeyedNode Node;
        int Parent; ///< a place; none for a node of the first level
        int Row;    ///< among its siblings
        std::vector<int> Children{};
    };

    [[nodiscard]] int PlaceOf(const QString& key) const;
    [[nodiscard]] QModelIndex IndexAt(int place) const;
    [[nodiscard]] const std::vector<int>& ChildrenOf(const QModelIndex& index) const;

    std::vector<Place> places_;
    std::vector<int> roots_;
};
