// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// brindock-cli: the suite's file logic for scripts and build pipelines.
#include "app/cli/BigCommands.h"
#include "app/cli/BigEditCommands.h"
#include "app/cli/CsfCommands.h"
#include "app/cli/GameCommands.h"
#include "app/cli/Output.h"
#include "app/cli/PreviewCommand.h"
#include "app/cli/ScriptHost.h"
#include "app/cli/VerifyCommand.h"

#include "core/mMain.h"
#include "media/MediaChild.h"
#include "platform/Arguments.h"
#include "platform/RuntimeError.h"

#include <CLI/CLI.hpp>

namespace {

constexpr int WrongUsage = 2;

int Run(const std::vector<std::string>& arguments) {
    ScriptHost host;
    mMain::UseRuntimes();
    CLI::App commands("Brindock 2005 for scripts: the games' archives, settings and texts.", "brindock-cli");
    commands.require_subcommand(1);
    commands.set_version_flag("--version", mMain::VersionText().toStdString());
    AddGameCommands(commands);
    AddBigCommands(commands);
    AddBigEditCommands(commands);
    AddVerifyCommand(commands);
    AddCsfCommands(commands);
    AddPreviewCommand(commands);
    try {
        commands.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        // All is done; taking a large table apart would only cost time.
        EndWith(0);
    } catch (const CLI::ParseError& error) {
        return commands.exit(error) == 0 ? 0 : WrongUsage;
    }
}

} // namespace

int main(int argc, char** argv) {
    if (MediaChild::IsAsked(argc, argv))
        return MediaChild::Run(argc, argv);
    try {
        return Run(ProcessArguments(argc, argv));
    } catch (const RuntimeError& error) {
        return Report(error);
    } catch (const std::exception& error) {
        return Report(RuntimeError(ErrorNumber::InvalidCall, QString::fromLocal8Bit(error.what())));
    }
}
