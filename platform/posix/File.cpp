// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/File.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/posix/Errors.h"
#include "platform/posix/FileTime.h"
#include "platform/posix/OpenNative.h"
#include "platform/posix/Transfer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace {

int Flags(File::Access access) {
    switch (access) {
    case File::Access::Read:
        return O_RDONLY;
    case File::Access::ReadWrite:
        return O_RDWR | O_CREAT;
    case File::Access::Replace:
        return O_RDWR | O_CREAT | O_TRUNC;
    case File::Access::New:
        return O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW;
    }
    return O_RDONLY;
}

[[noreturn]] void RaiseNoFile(const QString& name) {
    throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a file").arg(name));
}

int Number(const File& file) {
    return static_cast<int>(file.Handle());
}

struct stat Status(const File& file, const QString& name) {
    struct stat status {};

    if (::fstat(Number(file), &status) != 0)
        RaiseErrno(errno, name);
    return status;
}

} // namespace

FileState StateFrom(const struct stat& status) {
    const QByteArray identity = QByteArray::number(static_cast<qulonglong>(status.st_dev)) + ':' +
                                QByteArray::number(static_cast<qulonglong>(status.st_ino));
    constexpr qint64 nanosecondsASecond = 1'000'000'000;
    return {identity, status.st_size, qint64{status.st_mtim.tv_sec} * nanosecondsASecond + status.st_mtim.tv_nsec};
}

File OpenNative(int folder, const QByteArray& path, const QString& name, File::Access access, int more) {
    // A pipe must not make the program wait for its other end.
    const int flags = Flags(access) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | more;
    const int number = ::openat(folder, path.constData(), flags, 0666);
    if (number < 0) {
        const int error = errno;
        if (error == ENXIO)
            RaiseNoFile(name); // a pipe or socket with nobody at its other end
        RaiseErrno(error == ENOENT && access != File::Access::Read ? ENOTDIR : error, name);
    }

    struct stat status {};

    const int error = ::fstat(number, &status) == 0 ? 0 : errno;
    if (error != 0 || !S_ISREG(status.st_mode)) {
        ::close(number);
        if (error != 0)
            RaiseErrno(error, name);
        RaiseNoFile(name);
    }
    if (access == File::Access::Read)
        return {number, name, File::Told{.Modified = Milliseconds(status.st_mtim), .Length = status.st_size}};
    return {number, name};
}

File File::Open(const QString& path, Access access) {
    const QString name = Paths::ToNative(path);
    return OpenNative(AT_FDCWD, Paths::EncodeNative(name), name, access);
}

File File::OpenAsGiven(const QString& path, Access access) {
    const QString name = Paths::ToNativeAsGiven(path);
    return OpenNative(AT_FDCWD, Paths::EncodeNative(name), name, access);
}

File::~File() {
    if (IsOpen())
        ::close(static_cast<int>(handle_));
}

void File::Close() {
    if (IsOpen() && ::close(static_cast<int>(std::exchange(handle_, NoHandle))) != 0)
        RaiseErrno(errno, name_);
}

void File::Flush() {
    if (::fsync(Number(*this)) != 0)
        RaiseErrno(errno, name_);
}

FileState File::State() const {
    return StateFrom(Status(*this, name_));
}

QDateTime File::Modified() const {
    const qint64 known = told_ ? told_->Modified : Milliseconds(Status(*this, name_).st_mtim);
    return QDateTime::fromMSecsSinceEpoch(known, Qt::UTC);
}

qint64 File::CopyFrom(qint64 toOffset, const File& from, qint64 fromOffset, qint64 count) {
    return TransferBytes(Number(*this), toOffset, Number(from), fromOffset, count, name_, from.name_);
}

qint64 File::Length() const {
    return Status(*this, name_).st_size;
}

qint64 File::ReadInto(qint64 offset, char* bytes, qint64 count) const {
    return ReadFully(Number(*this), offset, bytes, count, name_);
}

void File::Write(qint64 offset, QByteArrayView bytes) {
    WriteFully(Number(*this), offset, bytes.data(), bytes.size(), name_);
}

void File::SetLength(qint64 length) {
    if (::ftruncate(Number(*this), length) != 0)
        RaiseErrno(errno, name_);
}

FileState StateOf(const QString& path) {
    struct stat status {};

    const QString native = Paths::ToNative(path);
    const bool there = ::stat(Paths::EncodeNative(native).constData(), &status) == 0;
    if (!there)
        NoteErrno(errno, native);
    return there && S_ISREG(status.st_mode) ? StateFrom(status) : FileState();
}
