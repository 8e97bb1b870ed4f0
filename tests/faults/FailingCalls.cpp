// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A library to be loaded before the C library (LD_PRELOAD): it counts the calls that a program makes for the files
/// below one folder, and has one of them fail, or ends the process before it. The environment tells:
/// FAULTS_BELOW  the folder, native; calls for other files are let through uncounted
/// FAULTS_LOG    a file outside of it that gets a line a call: number, name, C for one that changes the disk or R for
/// one
///               that reads, the faults that fit it (separated by commas), the path; separated by tabs
/// FAULTS_AT     the number of the call that is meant, from 1
/// FAULTS_KIND   KILL, ENOSPC, EIO, EACCES, EROFS, EMFILE or SHORT
/// FAULTS_ALWAYS set when all fitting calls from that number on fail
#include "tests/faults/FailingCalls.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>

namespace {

using Faults::Call;

constexpr int MostFiles = 1024;

struct Kind {
    const char* Name;
    int Error;
    unsigned Fits; ///< to calls with one of these traits
};

constexpr std::array<Kind, 7> kinds{{{"KILL", 0, Faults::Changes},
                                     {"ENOSPC", ENOSPC, Faults::Grows},
                                     {"EIO", EIO, Faults::Any},
                                     {"EACCES", EACCES, Faults::ByPath},
                                     {"EROFS", EROFS, Faults::Changes},
                                     {"EMFILE", EMFILE, Faults::Opens},
                                     {"SHORT", 0, Faults::Moves}}};

struct Settings {
    Settings() {
        const auto text = [](const char* name) {
            const char* value = std::getenv(name);
            return value == nullptr ? "" : value;
        };
        std::snprintf(Below.data(), Below.size(), "%s", text("FAULTS_BELOW"));
        At = std::atol(text("FAULTS_AT"));
        Always = *text("FAULTS_ALWAYS") != '\0';
        for (const Kind& kind : kinds) {
            if (std::strcmp(kind.Name, text("FAULTS_KIND")) == 0)
                Fault = &kind;
        }
        if (*text("FAULTS_LOG") != '\0')
            Log = static_cast<int>(
                ::syscall(SYS_openat, AT_FDCWD, text("FAULTS_LOG"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644));
    }

    std::array<char, PATH_MAX> Below{};
    long At = 0;
    bool Always = false;
    const Kind* Fault = nullptr;
    int Log = -1;
};

const Settings& Given() {
    static const Settings settings;
    return settings;
}

std::atomic<long> counted;
std::array<std::atomic<char*>, MostFiles> opened; ///< the paths of files and folders that are open, null for others

const char* PathOf(int file) {
    return file >= 0 && file < MostFiles ? opened.at(static_cast<std::size_t>(file)).load() : nullptr;
}

bool IsBelow(const char* path) {
    const char* below = Given().Below.data();
    const std::size_t length = std::strlen(below);
    return length > 0 && std::strncmp(path, below, length) == 0 && (path[length] == '/' || path[length] == '\0');
}

/// Puts the whole path of a name in a folder that is open into `whole`; false where that is not known.
bool Join(int folder, const char* name, std::array<char, PATH_MAX>& whole) {
    if (*name == '/')
        return std::snprintf(whole.data(), whole.size(), "%s", name) > 0;
    if (folder != AT_FDCWD) {
        const char* above = PathOf(folder);
        return above != nullptr && std::snprintf(whole.data(), whole.size(), "%s/%s", above, name) > 0;
    }
    std::array<char, PATH_MAX> current{};
    if (::syscall(SYS_getcwd, current.data(), current.size()) < 0)
        return false;
    return std::snprintf(whole.data(), whole.size(), "%s/%s", current.data(), name) > 0;
}

void Write(long number, const Call& call, const char* path) {
    std::array<char, PATH_MAX + 200> line{};
    std::array<char, 100> fits{};
    for (const Kind& kind : kinds) {
        if ((call.Traits & kind.Fits) != 0) {
            std::strcat(fits.data(), *fits.data() == '\0' ? "" : ",");
            std::strcat(fits.data(), kind.Name);
        }
    }
    const bool changes = (call.Traits & Faults::Changes) != 0;
    const int length = std::snprintf(line.data(), line.size(), "%ld\t%s\t%c\t%s\t%s\n", number, call.Name,
                                     changes ? 'C' : 'R', fits.data(), path);
    ::syscall(SYS_write, Given().Log, line.data(), length);
}

Faults::Outcome Decide(const Call& call, const char* path) {
    const long number = ++counted;
    const Settings& given = Given();
    if (given.Log >= 0)
        Write(number, call, path);
    const bool meant = number == given.At || (given.Always && number > given.At && given.At > 0);
    if (!meant || given.Fault == nullptr || (call.Traits & given.Fault->Fits) == 0)
        return Faults::Outcome::GoesOn;
    if (std::strcmp(given.Fault->Name, "KILL") == 0)
        ::kill(::getpid(), SIGKILL);
    if (given.Fault->Error == 0)
        return Faults::Outcome::IsShort;
    errno = given.Fault->Error;
    return Faults::Outcome::Fails;
}

} // namespace

namespace Faults {

Outcome At(const Call& call, int folder, const char* path) {
    std::array<char, PATH_MAX> whole{};
    if (path == nullptr || !Join(folder, path, whole) || !IsBelow(whole.data()))
        return Outcome::GoesOn;
    return Decide(call, whole.data());
}

Outcome Of(const Call& call, int file) {
    const char* path = PathOf(file);
    return path == nullptr ? Outcome::GoesOn : Decide(call, path);
}

void Remember(int file, int folder, const char* path) {
    std::array<char, PATH_MAX> whole{};
    Forget(file);
    if (file >= 0 && file < MostFiles && Join(folder, path, whole) && IsBelow(whole.data()))
        opened.at(static_cast<std::size_t>(file)) = ::strdup(whole.data());
}

void Forget(int file) {
    if (file >= 0 && file < MostFiles)
        std::free(opened.at(static_cast<std::size_t>(file)).exchange(nullptr));
}

} // namespace Faults
