// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Finds names in the table of an archive without walking it each time.
#pragma once

#include <QHash>
#include <QString>

struct Archive;

/// Learns the table as it is when made, and answers as Archives::Find does while nothing but SetLast gives a record
/// another name.
class EntryIndex {
public:
    explicit EntryIndex(Archive& archive);

    /// First index with that name, ignoring case, deleted records included; -1 when there is none.
    [[nodiscard]] int Find(const QString& name) const;

    /// Makes `index` the table's last one and gives it a blank record of that name, which no record has. An index
    /// beyond the table's end adds records.
    void SetLast(int index, const QString& name);

private:
    Archive& archive_;
    QHash<QString, int> firstByName_;
};
