// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The C library's calls for files as the library of faults offers them: each asks first, and then calls the true one.
#include "tests/faults/FailingCalls.h"

#include <sys/file.h>
#include <sys/mman.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>

// The C library declares these with attributes and exceptions of its own, which its users need and its wrappers don't.
#pragma GCC diagnostic ignored "-Wattributes"

using Faults::Any;
using Faults::ByPath;
using Faults::Call;
using Faults::Changes;
using Faults::Grows;
using Faults::Moves;
using Faults::Opens;
using Faults::Outcome;

namespace {

constexpr unsigned Looks = Any | ByPath;
constexpr unsigned Alters = Any | Changes | ByPath;
constexpr unsigned Makes = Alters | Grows;
constexpr unsigned Writes = Any | Changes | Grows | Moves;

template <typename Function>
Function True(Function /*same*/, const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

unsigned TraitsOfOpen(int flags) {
    const bool writes = (flags & (O_ACCMODE | O_CREAT | O_TRUNC)) != 0;
    return Opens | ((flags & O_CREAT) != 0 ? Makes : writes ? Alters : Looks);
}

/// Half of the bytes, one at least.
template <typename Count>
Count Less(Count count) {
    return count > 1 ? count / 2 : count;
}

template <typename Function, typename... Rest>
auto ByName(const Call& call, Function function, const char* path, Rest... rest) -> decltype(function(path, rest...)) {
    static_assert(std::is_integral_v<decltype(function(path, rest...))>);
    if (Faults::At(call, AT_FDCWD, path) == Outcome::Fails)
        return -1;
    return function(path, rest...);
}

template <typename Function, typename... Rest>
auto ByFile(const Call& call, Function function, int file, Rest... rest) -> decltype(function(file, rest...)) {
    if (Faults::Of(call, file) == Outcome::Fails)
        return -1;
    return function(file, rest...);
}

template <typename Function, typename... Rest>
auto InFolder(const Call& call, Function function, int folder, const char* path, Rest... rest)
    -> decltype(function(folder, path, rest...)) {
    if (Faults::At(call, folder, path) == Outcome::Fails)
        return -1;
    return function(folder, path, rest...);
}

template <typename Function, typename Bytes, typename... Rest>
ssize_t Moving(const Call& call, Function function, int file, Bytes bytes, size_t count, Rest... rest) {
    const Outcome outcome = Faults::Of(call, file);
    if (outcome == Outcome::Fails)
        return -1;
    return function(file, bytes, outcome == Outcome::IsShort ? Less(count) : count, rest...);
}

int Opening(const char* name, int folder, const char* path, int flags, mode_t mode) {
    if (Faults::At({name, TraitsOfOpen(flags)}, folder, path) == Outcome::Fails)
        return -1;
    static const auto real = True(&::openat, "openat");
    const int file = real(folder, path, flags, mode);
    Faults::Remember(file, folder, path);
    return file;
}

mode_t ModeOf(int flags, va_list rest) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
}

} // namespace

// How the calls of one shape are written; the name stands in a program's table of symbols.
#define BY_NAME(result, name, traits, parameters, ...)                                                                 \
    result name parameters {                                                                                           \
        static const auto real = True(&::name, #name);                                                                 \
        return ByName({#name, traits}, real, __VA_ARGS__);                                                             \
    }
#define BY_FILE(result, name, traits, parameters, ...)                                                                 \
    result name parameters {                                                                                           \
        static const auto real = True(&::name, #name);                                                                 \
        return ByFile({#name, traits}, real, __VA_ARGS__);                                                             \
    }
#define IN_FOLDER(result, name, traits, parameters, ...)                                                               \
    result name parameters {                                                                                           \
        static const auto real = True(&::name, #name);                                                                 \
        return InFolder({#name, traits}, real, __VA_ARGS__);                                                           \
    }
#define MOVING(name, traits, parameters, ...)                                                                          \
    ssize_t name parameters {                                                                                          \
        static const auto real = True(&::name, #name);                                                                 \
        return Moving({#name, traits}, real, __VA_ARGS__);                                                             \
    }
#define OPENING(name)                                                                                                  \
    int name(const char* path, int flags, ...) {                                                                       \
        va_list rest;                                                                                                  \
        va_start(rest, flags);                                                                                         \
        const mode_t mode = ModeOf(flags, rest);                                                                       \
        va_end(rest);                                                                                                  \
        return Opening(#name, AT_FDCWD, path, flags, mode);                                                            \
    }
#define OPENING_AT(name)                                                                                               \
    int name(int folder, const char* path, int flags, ...) {                                                           \
        va_list rest;                                                                                                  \
        va_start(rest, flags);                                                                                         \
        const mode_t mode = ModeOf(flags, rest);                                                                       \
        va_end(rest);                                                                                                  \
        return Opening(#name, folder, path, flags, mode);                                                              \
    }

// The system's headers name the parameters in a way of their own.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

OPENING(open)
OPENING(open64)
OPENING_AT(openat)
OPENING_AT(openat64)

int creat(const char* path, mode_t mode) {
    return Opening("creat", AT_FDCWD, path, O_WRONLY | O_CREAT | O_TRUNC, mode);
}

int close(int file) {
    static const auto real = True(&::close, "close");
    const Outcome outcome = Faults::Of({"close", Any | Changes | Grows}, file);
    const int error = errno;
    Faults::Forget(file);
    const int result = real(file);
    if (outcome != Outcome::Fails)
        return result;
    errno = error;
    return -1;
}

MOVING(read, Any | Moves, (int file, void* bytes, size_t count), file, bytes, count)
MOVING(pread, Any | Moves, (int file, void* bytes, size_t count, off_t at), file, bytes, count, at)
MOVING(pread64, Any | Moves, (int file, void* bytes, size_t count, off64_t at), file, bytes, count, at)
MOVING(write, Writes, (int file, const void* bytes, size_t count), file, bytes, count)
MOVING(pwrite, Writes, (int file, const void* bytes, size_t count, off_t at), file, bytes, count, at)
MOVING(pwrite64, Writes, (int file, const void* bytes, size_t count, off64_t at), file, bytes, count, at)

BY_FILE(ssize_t, readv, Any, (int file, const iovec* pieces, int count), file, pieces, count)
BY_FILE(ssize_t, writev, Any | Changes | Grows, (int file, const iovec* pieces, int count), file, pieces, count)

ssize_t copy_file_range(int from, off64_t* fromAt, int to, off64_t* toAt, size_t count, unsigned flags) {
    static const auto real = True(&::copy_file_range, "copy_file_range");
    const Outcome outcome = Faults::Of({"copy_file_range", Writes}, to);
    if (outcome == Outcome::Fails)
        return -1;
    return real(from, fromAt, to, toAt, outcome == Outcome::IsShort ? Less(count) : count, flags);
}

ssize_t sendfile(int to, int from, off_t* at, size_t count) {
    static const auto real = True(&::sendfile, "sendfile");
    const Outcome outcome = Faults::Of({"sendfile", Writes}, to);
    return outcome == Outcome::Fails ? -1 : real(to, from, at, outcome == Outcome::IsShort ? Less(count) : count);
}

BY_FILE(int, ftruncate, Any | Changes | Grows, (int file, off_t length), file, length)
BY_FILE(int, ftruncate64, Any | Changes | Grows, (int file, off64_t length), file, length)
BY_FILE(int, fallocate, Any | Changes | Grows, (int file, int mode, off_t at, off_t length), file, mode, at, length)
BY_FILE(int, fsync, Any | Changes | Grows, (int file), file)
BY_FILE(int, fdatasync, Any | Changes | Grows, (int file), file)
BY_FILE(int, syncfs, Any | Changes | Grows, (int file), file)
BY_FILE(int, fchmod, Any | Changes, (int file, mode_t mode), file, mode)
BY_FILE(int, fchown, Any | Changes, (int file, uid_t user, gid_t group), file, user, group)
BY_FILE(int, futimens, Any | Changes, (int file, const timespec times[2]), file, times)
BY_FILE(int, flock, Any, (int file, int operation), file, operation)
BY_FILE(int, fstat, Any, (int file, struct stat* status), file, status)
BY_FILE(int, fstat64, Any, (int file, struct stat64* status), file, status)

BY_NAME(int, rename, Makes, (const char* from, const char* to), from, to)
BY_NAME(int, link, Makes, (const char* from, const char* to), from, to)
BY_NAME(int, unlink, Alters, (const char* path), path)
BY_NAME(int, remove, Alters, (const char* path), path)
BY_NAME(int, mkdir, Makes, (const char* path, mode_t mode), path, mode)
BY_NAME(int, rmdir, Alters, (const char* path), path)
BY_NAME(int, truncate, Makes, (const char* path, off_t length), path, length)
BY_NAME(int, truncate64, Makes, (const char* path, off64_t length), path, length)
BY_NAME(int, chmod, Alters, (const char* path, mode_t mode), path, mode)
BY_NAME(int, stat, Looks, (const char* path, struct stat* status), path, status)
BY_NAME(int, stat64, Looks, (const char* path, struct stat64* status), path, status)
BY_NAME(int, lstat, Looks, (const char* path, struct stat* status), path, status)
BY_NAME(int, lstat64, Looks, (const char* path, struct stat64* status), path, status)
BY_NAME(int, access, Looks, (const char* path, int mode), path, mode)
BY_NAME(int, statvfs, Looks, (const char* path, struct statvfs* status), path, status)
BY_NAME(int, statvfs64, Looks, (const char* path, struct statvfs64* status), path, status)
BY_NAME(ssize_t, readlink, Looks, (const char* path, char* bytes, size_t count), path, bytes, count)

IN_FOLDER(int, unlinkat, Alters, (int folder, const char* path, int flags), folder, path, flags)
IN_FOLDER(int, mkdirat, Makes, (int folder, const char* path, mode_t mode), folder, path, mode)
IN_FOLDER(int, fchmodat, Alters, (int folder, const char* path, mode_t mode, int flags), folder, path, mode, flags)
IN_FOLDER(int, fstatat, Looks, (int folder, const char* path, struct stat* status, int flags), folder, path, status,
          flags)
IN_FOLDER(int, statx, Looks, (int folder, const char* path, int flags, unsigned mask, struct statx* status), folder,
          path, flags, mask, status)
IN_FOLDER(int, faccessat, Looks, (int folder, const char* path, int mode, int flags), folder, path, mode, flags)
IN_FOLDER(ssize_t, readlinkat, Looks, (int folder, const char* path, char* bytes, size_t count), folder, path, bytes,
          count)
IN_FOLDER(int, utimensat, Alters, (int folder, const char* path, const timespec times[2], int flags), folder, path,
          times, flags)
IN_FOLDER(int, renameat, Makes, (int folder, const char* from, int toFolder, const char* to), folder, from, toFolder,
          to)
IN_FOLDER(int, renameat2, Makes, (int folder, const char* from, int toFolder, const char* to, unsigned flags), folder,
          from, toFolder, to, flags)
IN_FOLDER(int, linkat, Makes, (int folder, const char* from, int toFolder, const char* to, int flags), folder, from,
          toFolder, to, flags)

void* mmap(void* at, size_t length, int protection, int flags, int file, off_t offset) {
    static const auto real = True(&::mmap, "mmap");
    return Faults::Of({"mmap", Any}, file) == Outcome::Fails ? MAP_FAILED
                                                             : real(at, length, protection, flags, file, offset);
}

void* mmap64(void* at, size_t length, int protection, int flags, int file, off64_t offset) {
    static const auto real = True(&::mmap64, "mmap64");
    return Faults::Of({"mmap64", Any}, file) == Outcome::Fails ? MAP_FAILED
                                                               : real(at, length, protection, flags, file, offset);
}

char* realpath(const char* path, char* resolved) {
    static const auto real = True(&::realpath, "realpath");
    return Faults::At({"realpath", Looks}, AT_FDCWD, path) == Outcome::Fails ? nullptr : real(path, resolved);
}

DIR* opendir(const char* path) {
    static const auto real = True(&::opendir, "opendir");
    if (Faults::At({"opendir", Looks | Opens}, AT_FDCWD, path) == Outcome::Fails)
        return nullptr;
    DIR* folder = real(path);
    if (folder != nullptr)
        Faults::Remember(::dirfd(folder), AT_FDCWD, path);
    return folder;
}

int closedir(DIR* folder) {
    static const auto real = True(&::closedir, "closedir");
    Faults::Forget(::dirfd(folder));
    return real(folder);
}

dirent* readdir(DIR* folder) {
    static const auto real = True(&::readdir, "readdir");
    return Faults::Of({"readdir", Any}, ::dirfd(folder)) == Outcome::Fails ? nullptr : real(folder);
}

dirent64* readdir64(DIR* folder) {
    static const auto real = True(&::readdir64, "readdir64");
    return Faults::Of({"readdir64", Any}, ::dirfd(folder)) == Outcome::Fails ? nullptr : real(folder);
}

} // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
