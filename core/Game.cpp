// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Game.h"

using namespace Qt::StringLiterals;

std::array<GameEntry, GameCount> Game;

QString SettingsPrefix(GameIndex game) {
    static const std::array<QString, GameCount> prefixes{u"Gen"_s, u"ZH"_s, u"BFME"_s, u"BFME2"_s};
    return prefixes.at(static_cast<std::size_t>(game));
}
