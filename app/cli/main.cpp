// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// brindock-cli: the suite's file logic for scripts and build pipelines.
#include "app/cli/BigCommands.h"
#include "app/cli/CsfCommands.h"
#include "app/cli/Description.h"
#include "app/cli/ExportCommand.h"
#include "app/cli/GameCommands.h"
#include "app/cli/InstallCommand.h"
#include "app/cli/InstalledCommands.h"
#include "app/cli/ListCommands.h"
#include "app/cli/Output.h"
#include "app/cli/ReplayCommands.h"
#include "app/cli/ScriptHost.h"
#include "app/cli/ZipCommands.h"

#include "core/mMain.h"
#include "install/journal/JournalFollower.h"
#include "media/MediaChild.h"
#include "platform/Arguments.h"
#include "platform/Console.h"
#include "platform/RuntimeError.h"

namespace {

CommandGroup Csf() {
    CommandGroup group{"csf", "CSF string tables", {}};
    for (const auto& commands : {CsfCommands(), CsfExchangeCommands(), CsfCompareCommands()})
        group.Commands.insert(group.Commands.end(), commands.begin(), commands.end());
    return group;
}

CommandGroup Big() {
    CommandGroup group{"big", "BIG archives", {}};
    for (const auto& commands : {BigReadingCommands(), SearchCommands(), BigSavingCommands(), BigEditCommands(),
                                 VerifyCommands(), PreviewCommands()})
        group.Commands.insert(group.Commands.end(), commands.begin(), commands.end());
    return group;
}

/// A failure, and what may have led to it.
int ReportAll(const RuntimeError& error) {
    const int code = Report(error);
    ReportRefusals();
    return code;
}

int Run(const std::vector<std::string>& words) {
    ScriptHost host;
    mMain::UseRuntimes();
    const JournalFollower follower;
    std::vector<CommandGroup> groups = GameCommands();
    groups.push_back(Big());
    groups.push_back(Csf());
    groups.push_back({"replays", "A game's replays", ReplayCommands()});
    groups.push_back({"maps", "A game's maps", MapCommands()});
    groups.push_back({"mods", "A game's mods", ModCommands()});
    groups.push_back({"shellmaps", "A game's shell maps", ShellMapCommands()});
    groups.push_back({{}, {}, ExportCommands()});
    groups.push_back({"installed", "What was installed into the games", InstalledCommands()});
    groups.push_back({"zip", "ZIP archives", ZipCommands()});
    groups.push_back({{}, {}, InstallCommands()});
    if (words == std::vector<std::string>{"--describe"}) {
        Console::Write(Described(groups));
        return 0;
    }
    // All is done by then; taking a large table apart would only cost time.
    EndWith(RunCommand(groups, words));
}

} // namespace

int main(int argc, char** argv) {
    if (MediaChild::IsAsked(argc, argv))
        return MediaChild::Run(argc, argv);
    try {
        return Run(ProcessArguments(argc, argv));
    } catch (const RuntimeError& error) {
        return ReportAll(error);
    } catch (const std::exception& error) {
        return ReportAll(RuntimeError(ErrorNumber::InvalidCall, QString::fromLocal8Bit(error.what())));
    }
}
