// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"

#include "platform/FolderEntries.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/posix/Errors.h"
#include "platform/posix/FileTime.h"
#include "platform/posix/Listing.h"
#include "platform/posix/Transfer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <optional>

namespace {

/// A path with both forms that the system calls and the messages need.
struct Native {
    explicit Native(const QString& path) : Native(Paths::ToNative(path), 0) {}

    static Native AsGiven(const QString& path) { return {Paths::ToNativeAsGiven(path), 0}; }

    [[noreturn]] void Raise(int error) const { RaiseErrno(error, Text); }

    [[nodiscard]] const char* Path() const { return Bytes.constData(); }

    QString Text;
    QByteArray Bytes;

private:
    Native(const QString& text, int) : Text(text), Bytes(Paths::EncodeNative(text)) {}
};

std::optional<struct stat> Status(const QString& path) {
    struct stat status {};

    // Most paths have the case that the disk has, and a look at it can be saved.
    const Native given = Native::AsGiven(path);
    if (::stat(given.Path(), &status) == 0)
        return status;
    NoteErrno(errno, given.Text);
    const Native found(path);
    if (found.Bytes != given.Bytes && ::stat(found.Path(), &status) == 0)
        return status;
    return std::nullopt;
}

/// What stands there, a link itself.
bool LookAt(const Native& native, struct stat& status) {
    const bool there = ::lstat(native.Path(), &status) == 0;
    if (!there)
        NoteErrno(errno, native.Text);
    return there;
}

/// A folder path without its trailing backslash; the root keeps it.
QString FolderPath(const QString& path) {
    return path.size() > 1 && path.endsWith(u'\\') ? path.chopped(1) : path;
}

bool ParentExists(const QString& path) {
    const qsizetype split = path.lastIndexOf(u'\\');
    return split <= 0 || Files::FolderExists(path.first(split));
}

Listing ListingOf(const QString& folder) {
    return Listing(Paths::ToNative(folder.isEmpty() ? QStringLiteral(".") : folder));
}

void MakeNative(const QString& native) {
    if (::mkdir(Paths::EncodeNative(native).constData(), 0777) == 0)
        return;
    const int error = errno;
    if (error == EEXIST)
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: exists already").arg(native));
    if (error == ENOENT)
        throw RuntimeError(ErrorNumber::PathNotFound, QStringLiteral("%1: path not found").arg(native));
    RaiseErrno(error, native);
}

} // namespace

std::vector<FolderEntry> FolderEntries(const QString& folder) {
    Listing listing = ListingOf(folder);
    std::vector<FolderEntry> entries;
    while (const dirent* entry = listing.Next()) {
        struct stat status {};

        const bool known = listing.StatusOf(*entry, status);
        const bool isFolder = known && S_ISDIR(status.st_mode);
        entries.push_back(
            {Listing::NameOf(*entry), isFolder ? 0 : status.st_size, isFolder, known && S_ISREG(status.st_mode)});
    }
    return entries;
}

QByteArray FolderIdentity(const QString& folder) {
    const auto status = Status(folder.isEmpty() ? QStringLiteral(".") : folder);
    if (!status || !S_ISDIR(status->st_mode))
        return {};
    return QByteArray::number(static_cast<qulonglong>(status->st_dev)) + ':' +
           QByteArray::number(static_cast<qulonglong>(status->st_ino));
}

namespace Files {

bool FileExists(const QString& path) {
    const auto status = Status(path);
    return status && !S_ISDIR(status->st_mode);
}

qint64 FileLength(const QString& path) {
    const auto status = Status(path);
    if (!status || S_ISDIR(status->st_mode))
        Native(path).Raise(ENOENT);
    return status->st_size;
}

bool FolderExists(const QString& path) {
    const auto status = Status(path);
    return status && S_ISDIR(status->st_mode);
}

bool TakesFiles(const QString& folder) {
    return FolderExists(folder) && ::access(Paths::EncodeNative(Paths::ToNative(folder)).constData(), W_OK | X_OK) == 0;
}

void MakeFolder(const QString& path) {
    MakeNative(Paths::ToNative(FolderPath(path)));
}

void MakeFolderAsGiven(const QString& path) {
    MakeNative(Paths::ToNativeAsGiven(FolderPath(path)));
}

Standing StandingAsGiven(const QString& path) {
    const Native native = Native::AsGiven(path);

    struct stat status {};

    if (!LookAt(native, status))
        return Standing::Nothing;
    if (S_ISLNK(status.st_mode) && ::stat(native.Path(), &status) != 0)
        return Standing::LinkToNowhere;
    return S_ISDIR(status.st_mode) ? Standing::Folder : Standing::File;
}

bool IsLink(const QString& path) {
    struct stat status {};

    return LookAt(Native(path), status) && S_ISLNK(status.st_mode);
}

bool IsLinkAsGiven(const QString& path) {
    struct stat status {};

    return LookAt(Native::AsGiven(path), status) && S_ISLNK(status.st_mode);
}

void RemoveLink(const QString& path) {
    const Native native(FolderPath(path));
    if (!IsLink(FolderPath(path)))
        native.Raise(ENOENT);
    if (::unlink(native.Path()) != 0)
        native.Raise(errno);
}

void RemoveFolder(const QString& path) {
    const Native native(FolderPath(path));
    if (::rmdir(native.Path()) == 0)
        return;
    const int error = errno;
    native.Raise(error == ENOENT ? ENOTDIR : error);
}

void DeleteForced(const QString& path) {
    const Native native(path);
    if (FolderExists(path))
        native.Raise(ENOENT);
    if (::unlink(native.Path()) != 0)
        native.Raise(errno);
}

void MakeExecutable(const QString& path) {
    const Native native(path);

    struct stat status {};

    if (::stat(native.Path(), &status) != 0)
        native.Raise(errno);
    constexpr mode_t readers = S_IRUSR | S_IRGRP | S_IROTH;
    constexpr int fromReadToExecute = 2;
    if (::chmod(native.Path(), status.st_mode | S_IXUSR | (status.st_mode & readers) >> fromReadToExecute) != 0)
        native.Raise(errno);
}

void Rename(const QString& from, const QString& to) {
    const Native source(from);
    const Native target(to);

    struct stat status {};

    if (::lstat(source.Path(), &status) != 0)
        source.Raise(errno);
    if (::lstat(target.Path(), &status) == 0 && !SameFile(from, to))
        target.Raise(EEXIST);
    // The target gets the case that was asked for, also where only the case changes.
    const QString name = Paths::NameToNative(to.sliced(to.lastIndexOf(u'\\') + 1));
    const QString folder = target.Text.first(target.Text.lastIndexOf(u'/') + 1);
    if (::rename(source.Path(), Paths::EncodeNative(folder + name).constData()) != 0)
        source.Raise(errno);
}

void Replace(const QString& from, const QString& to) {
    const Native source(from);
    if (FolderExists(to))
        Native(to).Raise(EISDIR);
    if (::rename(source.Path(), Native(to).Path()) != 0) {
        const int error = errno;
        if (error == ENOENT && !ParentExists(to))
            throw RuntimeError(ErrorNumber::PathNotFound,
                               QStringLiteral("%1: path not found").arg(Paths::ToNative(to)));
        source.Raise(error);
    }
}

qint64 FreeSpace(const QString& folder) {
    struct statvfs status {};

    const Native native(folder);
    if (::statvfs(native.Path(), &status) != 0)
        native.Raise(errno == ENOENT ? ENOTDIR : errno);
    return static_cast<qint64>(status.f_bavail) * static_cast<qint64>(status.f_frsize);
}

void FlushSystem(const QString& path) {
    const Descriptor file(::open(Native(path).Path(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.Valid() || ::syncfs(file.Number()) != 0)
        Native(path).Raise(errno);
}

QDateTime ModifiedTime(const QString& path) {
    const auto status = Status(path);
    if (!status)
        Native(path).Raise(ENOENT);
    return QDateTime::fromMSecsSinceEpoch(Milliseconds(status->st_mtim));
}

bool SameFile(const QString& first, const QString& second) {
    const auto one = Status(first);
    const auto other = Status(second);
    return one && other && one->st_dev == other->st_dev && one->st_ino == other->st_ino;
}

} // namespace Files
