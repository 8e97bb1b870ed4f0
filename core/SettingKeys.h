// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The names of all settings. Each is a text, also where it holds a number; a missing one reads as empty text.
#pragma once

#include "core/Game.h"

#include <QLatin1String>
#include <QString>

namespace SettingKeys {

/// File name of the language file in use, no folder. Empty: every text is its key.
inline constexpr QLatin1String TradFileName{"TradFileName"};
/// "0" or "1". Empty counts as on.
inline constexpr QLatin1String AutoCheckForUpdates{"AutoCheckForUpdates"};
/// "1": the BIG Editor's rows have the icons of their files. Empty is off.
inline constexpr QLatin1String ViewFileIcons{"ViewFileIcons"};
/// The view mode of the BIG Editor's list, a decimal number.
inline constexpr QLatin1String BigView{"BigView"};
/// "1": a save puts each entry's data where the archive's directory says. Empty is off.
inline constexpr QLatin1String ExactOffsets{"ExactOffsets"};

// One each game; `game` is 0 to 3.

/// The game's options, each as a blank, a dash and its name.
QString StartupOptions(GameIndex game);
/// File name of the mod's archive in the game's folder. Empty: no mod.
QString LoadMod(GameIndex game);
/// "Random", or "Load" and a shell map's three digits. Empty: no shell map.
QString ShellMapMode(GameIndex game);

} // namespace SettingKeys
