// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Names as archives store them, which lack many letters: what is given to entries goes through here, and what is lost
/// by that is remembered until it is saved or given up.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

class StoredNames {
public:
    /// The name that an entry gets for a file that is to come in. Each is followed by the next one, or Refused.
    QString Take(const QString& name);

    /// An entry has the name that Take returned last, and may be replaced. What the question adds to it: that the name
    /// is not the file's own; empty when it is.
    [[nodiscard]] QString Meet();

    /// The file does not come in after all.
    void Refused();

    /// The text that was typed for an entry, or for a folder, is stored as another one. `stored` is the entry's name,
    /// or the folder's key, which ends in a backslash.
    void Typed(const QString& text, const QString& stored);

    /// What the strip has to tell since the last call; empty for nothing.
    QString TakeTold();

    /// The question before a save, about what is still in the table. False when nothing is to be saved.
    [[nodiscard]] bool MaySave() const;

    /// All of it is in the file, or another archive is open.
    void Forget();

private:
    struct Lost {
        QString Wanted;
        QString Stored;
    };

    std::vector<Lost> lost_;
    QHash<QString, QString> wanted_; ///< a name that came in, by the one that it is stored as, folded
    Lost last_;
    QString before_; ///< the name that came in under the same stored one before the last
    QStringList toldLost_;
    QStringList toldOne_;
};
