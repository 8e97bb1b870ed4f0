// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What an installation would write, and over what: a value. Making one writes nothing.
#pragma once

#include "install/InstallSource.h"

#include <QString>

#include <vector>

class ccZip;

struct PlannedFile {
    enum class Effect {
        New,
        Replaces, ///< something of that name stands there, or comes before it in the same plan
        Same,     ///< the same, with the very same bytes
        Itself,   ///< the file stands there already: it stays as it is
        Refused,  ///< it may not be written there
    };

    QString Source; ///< the entry's name, or an inside path
    QString Target; ///< inside path
    qint64 Size = 0;
    Effect What = Effect::New;
    QString Refusal{};
};

struct PlannedItem {
    std::size_t Number = 0; ///< in the source's InstallRecords; 0 for a single file
    qint32 Kind = FileKind::None;
    QString Name;              ///< of the file
    QString Folder;            ///< where its files go, inside path with a trailing backslash
    QString Refusal{};         ///< why nothing of it can be installed; empty for a good one
    bool IsOwnArchive = false; ///< it has the name of one of the game's own archives
    std::vector<PlannedFile> Files{};
    QString IniFile{}; ///< that gets the name and the comments; empty: none

    /// Whether something that stands there is lost.
    [[nodiscard]] bool ReplacesSomething() const;
};

struct InstallPlan {
    std::vector<PlannedItem> Items; ///< the ticked ones; a single file in any case
    qint64 Size = 0;                ///< bytes that are to be written
    qint64 Packed = 0;              ///< those they are made of
    bool IsOfArchive = false;
    bool IsDense = false; ///< one file or all together are packed as nothing is that people make
};

namespace InstallPlans {

/// What is packed below this is not looked at.
inline constexpr qint64 LargeEvenIfDense = 64LL * 1024 * 1024;
inline constexpr qint64 DensestUsual = 500;

/// The archive is the source's, and open; a single file needs none. Files that a map would replace are compared with
/// what takes their place.
InstallPlan Make(const InstallSource& source, GameIndex game, const ccZip& zip);

/// The number that the next shell map of a game gets, by the names in its "Maps" folder; 0 where the last one of them
/// ends in no number.
int NextShellMapNumber(const QStringList& names);

} // namespace InstallPlans
