// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class GamePage;

namespace LossText {

/// What leaving a game's page is about to replace, in the user's language; empty where that is nothing.
QString Of(const GamePage& page);

} // namespace LossText
