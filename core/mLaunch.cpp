// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mLaunch.h"

#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "platform/Processes.h"

using namespace Qt::StringLiterals;

QString mLaunch::LaunchCommand(GameIndex game) {
    if (game < 0 || game >= GameCount)
        return {};
    // The options carry their own leading blank; a mod's name is not quoted. This is meant.
    QString options = ReadSetting(SettingKeys::StartupOptions(game));
    const QString mod = ReadSetting(SettingKeys::LoadMod(game));
    if (!mod.isEmpty())
        options += u" -mod "_s + mod;
    const QString& installPath = Game.at(static_cast<std::size_t>(game)).InstallPath;
    return u'"' + installPath + ExecutableName(game) + u"\" "_s + options;
}

void mLaunch::LaunchGame(GameIndex game) {
    const QString command = LaunchCommand(game);
    if (!command.isEmpty())
        Processes::StartCommand(command, Processes::FirstWindow::Normal,
                                Game.at(static_cast<std::size_t>(game)).Prefix);
}
