// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Who played a replay, as a tree: observers, eight teams, and players without a team.
#pragma once

#include "core/Game.h"

#include <QString>
#include <QStringList>

#include <vector>

struct PlayerNode {
    QString Key;
    QString Text;
    QString Picture;         ///< a key of the image list; empty for none
    QString SelectedPicture; ///< the same while the node is selected; empty: as Picture
    QString Parent;          ///< the key of the node above; empty for a branch
};

namespace ReplayPlayers {

/// The keys of the image list, in its order.
QStringList PictureKeys();

/// The nodes for a slot entry with a ";" behind it, branches before their children and empty ones left out. Sides are
/// named by `gdatas.cfg` in the program's folder. Failures are passed over, a player at a time.
std::vector<PlayerNode> Tree(const QString& slotEntry, GameIndex game);

} // namespace ReplayPlayers
