// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A table's entries by name, where names may come again: each is known by how often its name came before.
#pragma once

#include "csf/format/CsfTable.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

class KeyedEntries {
public:
    using Key = std::pair<QString, int>; ///< the name, case-folded where that is wished, and the number, from 0

    /// The table outlives this.
    explicit KeyedEntries(const CsfTable& table, Qt::CaseSensitivity names = Qt::CaseSensitive) : table_(table) {
        QHash<QString, int> occurrences;
        for (const CsfString& entry : table.Strings) {
            const QString name = names == Qt::CaseSensitive ? entry.Name : entry.Name.toCaseFolded();
            keys_.emplace_back(name, occurrences[name]++);
            places_.insert(keys_.back(), keys_.size() - 1);
        }
    }

    /// In the table's order.
    [[nodiscard]] const std::vector<Key>& Keys() const { return keys_; }

    /// Where an entry stands; nothing when there is no such entry.
    [[nodiscard]] std::optional<std::size_t> PlaceOf(const Key& key) const {
        const auto found = places_.constFind(key);
        return found == places_.constEnd() ? std::nullopt : std::optional(*found);
    }

    /// Null when there is no such entry.
    [[nodiscard]] const CsfString* Find(const Key& key) const {
        const auto place = PlaceOf(key);
        return place ? &table_.Strings[*place] : nullptr;
    }

private:
    const CsfTable& table_;
    std::vector<Key> keys_;
    QHash<Key, std::size_t> places_;
};
