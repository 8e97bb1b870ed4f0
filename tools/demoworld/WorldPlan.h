// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the demo world's four games hold, as tables.
#pragma once

#include "core/Game.h"
#include "tools/demoworld/Contents.h"

#include <QString>

#include <array>
#include <vector>

namespace Demo {

struct ArchivePlan {
    QString Name; ///< without its extension
    int Version;  ///< 0 to 3
    Content Holds;
    int Kilobytes; ///< at least, in the full world
    int Count = 0; ///< entries at least, in any world
};

struct ModPlan {
    QString Name; ///< of the archive, without its extension
    QString Title;
    QString Comments;
};

struct GamePlan {
    QString RegistryKey;   ///< below HKEY_LOCAL_MACHINE
    QString InstallFolder; ///< below "Games"
    QString UserParent;    ///< "Documents" or "Application Data"
    QString UserFolder;
    QString ShellMap; ///< the name of a shell map's file, without its extension
    int ModVersion;
    std::vector<ArchivePlan> Archives;
    std::array<ModPlan, 2> Mods;
};

/// By `GameIndex`.
const std::array<GamePlan, GameCount>& GamePlans();

} // namespace Demo
