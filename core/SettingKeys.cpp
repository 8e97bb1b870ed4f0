// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/SettingKeys.h"

using namespace Qt::StringLiterals;

QString SettingKeys::StartupOptions(GameIndex game) {
    return SettingsPrefix(game) + u"StartupOptions"_s;
}

QString SettingKeys::LoadMod(GameIndex game) {
    return SettingsPrefix(game) + u"LoadMod"_s;
}

QString SettingKeys::ShellMapMode(GameIndex game) {
    return SettingsPrefix(game) + u"ShellMapMode"_s;
}
