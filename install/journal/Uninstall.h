// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Takes away what an install brought, as far as it is still what the install wrote, and puts back what it replaced:
/// first as a plan, then in deed.
#pragma once

#include "install/journal/Journal.h"
#include "platform/File.h"

struct PlannedRemoval {
    enum class Fate {
        Goes,
        ComesBack,  ///< what it replaced takes its place
        Changed,    ///< stays: it is not what the install wrote
        Unknown,    ///< stays: the install broke off before it was known what it wrote
        Superseded, ///< stays: a later install wrote it anew
        Gone        ///< is away already, or as it was before the install
    };

    JournalFile File;
    Fate What = Fate::Goes;
    FileState Seen; ///< when the plan was made
};

struct UninstallPlan {
    int Id = 0;
    QDateTime Time;
    QString Source;
    GameIndex Game = 0;
    std::vector<PlannedRemoval> Files;
    QStringList Folders; ///< that go, as they are empty then; inside paths

    /// What a process that died left aside in those folders; it goes with them.
    struct Leftover {
        QString Path;
        FileState Seen; ///< when the plan was made
    };

    std::vector<Leftover> Leftovers{};

    /// The paths of the files with that fate, in order.
    [[nodiscard]] QStringList Paths(PlannedRemoval::Fate fate) const;
};

namespace Uninstall {

/// What uninstalling would do now. Raises 5 when there is no install of that number, 70 while it is still running.
UninstallPlan Plan(const Journal& journal, int id);

/// Does what a plan says, but to files that are others since it was made. What was done is out of the journal then;
/// what could not be done, and a changed file that has replaced another, stays in it. The gap that a shell map leaves
/// is closed. Returns what could not be done, a line each with the path as the system writes it. Raises what the
/// saving of the journal raises.
QStringList Run(const UninstallPlan& plan);

/// Takes an install out of the journal and leaves its files; what it had put aside is deleted. Raises as Plan.
void Forget(int id);

} // namespace Uninstall
