// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The "Maps" folder in a game's own folder, as far as it really is in there.
#pragma once

#include "core/Game.h"

#include <QString>
#include <QStringList>

class MapsFolder {
public:
    /// `game` is 0 to 3.
    explicit MapsFolder(GameIndex game);

    /// False when there is no such folder, the game is not installed, or a link leads out of the game's folder.
    [[nodiscard]] bool IsThere() const { return !maps_.isEmpty(); }

    /// Whether anything stands in the folder under a name, whatever its case.
    [[nodiscard]] bool Has(const QString& name) const { return names_.contains(name, Qt::CaseInsensitive); }

    /// The full path of what stands in the folder under a name, in the disk's own case; in the case given when nothing
    /// does. Of two that differ in case only, the one spelt as given.
    [[nodiscard]] QString Find(const QString& name) const;

    /// Whether a path leads to what is in the game's folder, links followed.
    [[nodiscard]] bool Holds(const QString& path) const;

private:
    QString game_; ///< where the folders really are
    QString maps_;
    QStringList names_;
};
