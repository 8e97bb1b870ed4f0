// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What an archive holds that nothing would install, and why.
#pragma once

#include "install/InstallSource.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// Learns what is recognised, then tells of all other entries.
class PassedOver {
public:
    /// Files in that folder (EntryNames::Folder) travel with a map.
    void AddMapFolder(const QString& folder) { mapFolders_.insert(folder); }

    /// An entry of that name was read beside a mod.
    void AddModIni(const QString& entry) { modInis_.insert(entry); }

    /// One that was too large to be read there.
    void AddTooLarge(const QString& entry) { tooLarge_.insert(entry); }

    /// An entry that is no map, mod, replay or shell map.
    void AddOther(const QString& entry) { others_.append(entry); }

    /// Those of the other entries that stay behind, in their order; folders are not among them.
    [[nodiscard]] std::vector<PassedOverEntry> Entries() const;

private:
    [[nodiscard]] std::optional<QString> ReasonOf(const QString& entry) const;
    [[nodiscard]] bool IsBelowAMap(QString folder) const;

    QSet<QString> mapFolders_;
    QSet<QString> modInis_;
    QSet<QString> tooLarge_;
    QStringList others_;
};
