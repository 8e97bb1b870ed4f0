// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Processes.h"

#include "platform/CommandText.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/posix/DesktopEntries.h"
#include "platform/posix/WineRunner.h"

#include <QByteArrayList>

#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int Success = 33;
constexpr int MissingFile = 2;
constexpr int MissingPath = 3;
constexpr int AccessDenied = 5;
constexpr int NoAssociation = 31;

/// Exit codes of processes that ended by a signal start here, as shells count them.
constexpr int SignalBase = 128;

std::vector<char*> Pointers(QByteArrayList& texts) {
    std::vector<char*> pointers;
    pointers.reserve(static_cast<std::size_t>(texts.size()) + 1);
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// The environment with variables ("NAME=value") in place of those of the same name.
QByteArrayList EnvironmentWith(const QByteArrayList& changed) {
    QByteArrayList variables;
    for (char** variable = environ; *variable != nullptr; ++variable)
        variables << *variable;
    for (const QByteArray& variable : changed) {
        const QByteArray name = variable.first(variable.indexOf('=') + 1);
        variables.removeIf([&](const QByteArray& old) { return old.startsWith(name); });
        variables << variable;
    }
    return variables;
}

/// What a command text means on this system.
struct Meant {
    QString Program; ///< native
    QStringList Words;
    QByteArrayList Environment;
};

/// Starts a program of the search path in a session of its own, so that it outlives us. 0 when it can't be started.
pid_t Spawn(QByteArrayList command, QByteArrayList environment) {
    posix_spawnattr_t attributes;
    ::posix_spawnattr_init(&attributes);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    pid_t process = 0;
    const int error = ::posix_spawnp(&process, command.first().constData(), nullptr, &attributes,
                                     Pointers(command).data(), Pointers(environment).data());
    ::posix_spawnattr_destroy(&attributes);
    return error == 0 ? process : 0;
}

bool IsWindowsProgram(const QString& program) {
    return program.endsWith(u".exe"_s, Qt::CaseInsensitive);
}

Meant MeantBy(const QString& command, const QString& namedPrefix) {
    const CommandText::Parts parts = CommandText::Split(command);
    const QString program = Paths::ToNative(Paths::InPrefix(namedPrefix, parts.Program));
    Meant meant{
        .Program = program, .Words = QStringList(program) + CommandText::Arguments(parts.Rest), .Environment = {}};
    if (!IsWindowsProgram(parts.Program))
        return meant;
    const QString prefix = namedPrefix.isEmpty() ? Paths::PrefixFor(parts.Program) : namedPrefix;
    const WineRunner runner = WineRunner::For(prefix);
    meant.Words = runner.Words + meant.Words;
    meant.Environment = runner.Environment;
    if (!prefix.isEmpty())
        meant.Environment << "WINEPREFIX=" + Paths::EncodeNative(prefix);
    return meant;
}

/// A program that is named with its folder must be there; a bare name is looked up by whoever starts it. Wine would
/// look up no game's, and would be waited for in vain.
bool IsMissing(const QString& nativeProgram) {
    const bool isLookedUp = !nativeProgram.contains(u'/') && !IsWindowsProgram(nativeProgram);
    return !isLookedUp && ::access(Paths::EncodeNative(nativeProgram).constData(), F_OK) != 0;
}

std::optional<int> Reap(pid_t process) {
    int status = 0;
    const pid_t answer = ::waitpid(process, &status, WNOHANG);
    if (answer == 0 || (answer < 0 && errno == EINTR))
        return std::nullopt;
    if (answer < 0)
        return 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : SignalBase + WTERMSIG(status);
}

/// Processes that nobody waits for any more; the system keeps a dead one's number until it is asked for.
std::vector<pid_t>& Abandoned() {
    static std::vector<pid_t> abandoned;
    return abandoned;
}

/// The shell's error value for a file that can't be opened; Success otherwise.
int CheckFile(const QByteArray& path) {
    if (::access(path.constData(), R_OK) == 0)
        return Success;
    switch (errno) {
    case ENOENT:
        return MissingFile;
    case ENOTDIR:
        return MissingPath;
    default:
        return AccessDenied;
    }
}

} // namespace

QStringList Processes::CommandFor(const QString& command, const QString& prefix) {
    return MeantBy(command, prefix).Words;
}

QString Processes::RunnerFor(const QString& prefix) {
    return WineRunner::For(prefix).Words.first();
}

void Processes::StartCommand(const QString& command, FirstWindow /*window*/, const QString& prefix) {
    const Meant meant = MeantBy(command, prefix);
    QByteArrayList words;
    for (const QString& word : meant.Words)
        words << Paths::EncodeNative(word);
    if (IsMissing(meant.Program))
        throw RuntimeError(ErrorNumber::FileNotFound, u"%1: there is no such program"_s.arg(meant.Program));
    if (Spawn(words, EnvironmentWith(meant.Environment)) == 0)
        throw RuntimeError(ErrorNumber::FileNotFound,
                           u"%1: can't be started by %2"_s.arg(meant.Program, meant.Words.first()));
}

Processes::Opened Processes::OpenWithAssociation(const QString& path, quintptr /*owner*/) {
    std::erase_if(Abandoned(), [](pid_t process) { return Reap(process).has_value(); });
    const QString native = Paths::ToNative(path);
    if (const int refused = CheckFile(Paths::EncodeNative(native)); refused != Success)
        return {0, refused};
    for (const QByteArrayList& command : DesktopEntries::CommandsFor(native)) {
        if (const pid_t process = Spawn(command, EnvironmentWith({})); process != 0)
            return {static_cast<Handle>(process), Success};
    }
    return {0, NoAssociation};
}

void Processes::ChooseProgramFor(const QString& path) {
    throw RuntimeError(ErrorNumber::FileNotFound, u"%1: there is no chooser for programs"_s.arg(path));
}

std::optional<int> Processes::ExitCode(Handle process) {
    return Reap(static_cast<pid_t>(process));
}

void Processes::Close(Handle process) {
    if (process != 0 && !Reap(static_cast<pid_t>(process)))
        Abandoned().push_back(static_cast<pid_t>(process));
}

bool Processes::IsRunning(qint64 processId) {
    // Zero and less would name groups of processes.
    if (processId <= 0 || processId > std::numeric_limits<pid_t>::max())
        return false;
    return ::kill(static_cast<pid_t>(processId), 0) == 0 || errno == EPERM;
}

QString Processes::CommandLine(int argc, char** argv) {
    QStringList words;
    for (int at = 1; at < argc; ++at) {
        // A path of the system becomes one of the program's: its slashes must not look like switches.
        const QString word = Paths::DecodeNative(argv[at]);
        const bool isPath = word.lastIndexOf(u'/') > 0 || ::access(argv[at], F_OK) == 0;
        words << (isPath ? Paths::FromNative(word) : word);
    }
    return words.join(u' ');
}

void Processes::End(int exitCode) {
    std::_Exit(exitCode);
}
