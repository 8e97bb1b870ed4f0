// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Game.h"

#include "platform/Paths.h"

using namespace Qt::StringLiterals;

std::array<GameEntry, GameCount> Game;

QString GameEntry::InstallFolder() const {
    return Paths::InPrefix(Prefix, InstallPath);
}

QString GameEntry::ReplayFolder() const {
    return Paths::InPrefix(UserPrefix, ReplayPath);
}

QString GameEntry::MapFolder() const {
    return Paths::InPrefix(UserPrefix, MapPath);
}

QString SettingsPrefix(GameIndex game) {
    static const std::array<QString, GameCount> prefixes{u"Gen"_s, u"ZH"_s, u"BFME"_s, u"BFME2"_s};
    return prefixes.at(static_cast<std::size_t>(game));
}

QString ExecutableName(GameIndex game) {
    static const std::array<QString, GameCount> names{u"generals.exe"_s, u"generals.exe"_s, u"lotrbfme.exe"_s,
                                                      u"lotrbfme2.exe"_s};
    return names.at(static_cast<std::size_t>(game));
}
