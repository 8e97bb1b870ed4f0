// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Other programs: started by a command text, or by the file that they open.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Processes {

/// A process that was started; 0 is none.
using Handle = quintptr;

enum class FirstWindow {
    Normal,
    Minimised, ///< where a system lets the one who starts a program say that: on Windows
};

/// Starts a command text: a program, quoted or up to the first blank, and its arguments, which reach it unchanged.
/// On Linux a Windows program (.exe) runs through Wine in the prefix named, or else in the one that its path belongs
/// to; the path is looked up there without regard to case. Does not wait. Raises 53 when the program can't be started.
void StartCommand(const QString& command, FirstWindow window = FirstWindow::Normal, const QString& prefix = {});

/// The program and arguments that StartCommand would run on this system, for show.
QStringList CommandFor(const QString& command, const QString& prefix = {});

/// What runs Windows programs in a Wine prefix: a Wine's or a Proton's program. BRINDOCK_WINE names it, else the
/// launcher that the prefix belongs to, else it is the system's `wine`. Empty on Windows.
QString RunnerFor(const QString& prefix);

struct Opened {
    Handle Process = 0; ///< to be waited for, 0 when there is none
    int InstApp = 33;   ///< the shell's answer: above 32 for success, else its error value (2, 3, 5, 8, 26 to 32)
};

/// Hands a file to the program that the system associates with it.
Opened OpenWithAssociation(const QString& path, quintptr owner);

/// Lets the user choose a program for a file. Raises 53 where the system has no such chooser.
void ChooseProgramFor(const QString& path);

/// The exit code once the process has ended; nothing while it runs.
std::optional<int> ExitCode(Handle process);

/// Gives the handle back; the process runs on.
void Close(Handle process);

/// Whether a process of that number runs. The system gives a number to another process in time.
bool IsRunning(qint64 processId);

/// The command line of this process without the executable's name, as it was typed where the system keeps that,
/// otherwise its arguments joined by single blanks, as inside paths those that have a slash behind their beginning or
/// name an existing file or folder.
QString CommandLine(int argc, char** argv);

/// Ends this process at once, without any further work.
[[noreturn]] void End(int exitCode);

} // namespace Processes
