// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Start-up: the shared objects, game detection, the command line and its dispatch.
#pragma once

#include "core/Game.h"
#include "core/ProgramFolders.h"
#include "platform/INIRuntime.h"
#include "platform/RegistryRuntime.h"

#include <QString>

#include <functional>

class QObject;

namespace mMain {

/// The raw command line without the executable's name.
extern QString CommandLine;
/// What follows the leading switches.
extern QString CommandFileArgument;
extern bool AddFileRequested;
/// Set by the options dialog; ShowOptions then ends the program.
extern bool RestartRequested;
/// Set when a CSF file was handed over by another tool; tested when the CSF Editor closes.
extern bool CsfOpenedByHost;
/// File name of the language file in use, no folder.
extern QString LanguageFileName;

using ProgramFolders::ProgramFolder;
using ProgramFolders::ScratchFolder;

/// Makes the shared registry and INI objects and sets ProgramFolder. Called by Main; programs without Main call it.
void UseRuntimes();

/// The shared objects; asking before UseRuntimes raises 91.
RegistryRuntime& Registry();
INIRuntime& INI();

/// Fills the Game table from the registry: install paths, user folders, archive lists.
void DetectGames();

/// Where the install path of a game was found, for show; empty when it is not installed.
QString InstallPathFoundIn(GameIndex game);

/// Makes the user-data folders that are missing. Failures are ignored.
void MakeUserFolders();

/// What stands behind the leading switches of a command line; empty when there are only switches.
QString FileArgument(const QString& commandLine);

/// An archive or a table on its own means its editor: the line with the switch before the path. Any other line as it
/// is.
QString WithTool(const QString& commandLine);

/// What a command line asks for. The first match of the table wins.
struct Dispatched {
    enum class Action {
        LaunchGame,
        OpenBigFile,
        ShowBigEditor,
        ExtractBigFile,
        OpenCSFFile,
        ShowCSFEditor,
        ShowPersonalFiles,
        ShowAddFiles,
        NormalStart,
    };
    Action What = Action::NormalStart;
    GameIndex Launched = -1;
    QString Path = {};
    int UpdateChecks = 0; ///< how often the automatic update check is tested on the way
    QString Failure = {}; ///< why the game could not be started; empty when it was
};

Dispatched Dispatch(const QString& given);

/// Whether the automatic update check runs: the setting's whole number is 1, or it is no number at all.
bool AutomaticCheckWanted();

/// True when neither Generals, Zero Hour nor the first Battle for Middle-earth is installed.
bool NoGameOfFirstThree();

/// Steps that need no window: shared objects, language, games, folders, dispatch. Launches a game when asked to, and
/// then returns an action LaunchGame that is done already. Where `detect` fails, the normal start follows with what it
/// had filled in, and the command line is not looked at.
Dispatched Prepare(const QString& commandLine, const std::function<void()>& detect = DetectGames);

/// Shows what Prepare decided, through the Navigator, with the update checks before it.
void Show(const Dispatched& dispatched);

/// Shows the options, modal over `owner`, and ends the program for the restart that they may have begun.
void ShowOptions(QObject* owner);
/// How that ends the program; tests put something else in its place.
extern std::function<void()> EndProgram;

/// "3.5.4"
QString VersionText();

} // namespace mMain
