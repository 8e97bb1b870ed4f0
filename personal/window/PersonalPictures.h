// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The pictures of games, kinds and sides. One that is missing is a null icon.
#pragma once

#include "personal/document/PersonalFilesView.h"

#include <QIcon>
#include <QString>

#include <optional>

namespace PersonalPictures {

/// The name of a kind's picture; of a game's without a kind.
QString NameOf(std::optional<PersonalKind> kind);

QIcon Of(std::optional<PersonalKind> kind);

/// The picture of a player's node. Its keys are found without regard to case.
QIcon OfPlayer(const PlayerNode& node);

} // namespace PersonalPictures
