// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NumberedFiles.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/posix/Errors.h"
#include "platform/posix/Transfer.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <memory>

namespace {

struct Numbered {
    Descriptor File;
    QString Name;
};

std::map<int, Numbered>& Table() {
    static std::map<int, Numbered> table;
    return table;
}

Numbered& Find(int number) {
    const auto found = Table().find(number);
    if (found == Table().end())
        throw RuntimeError(ErrorNumber::BadFileNumber, QStringLiteral("file number %1 is not open").arg(number));
    return found->second;
}

int Flags(NumberedFiles::Access access) {
    switch (access) {
    case NumberedFiles::Access::Read:
        return O_RDONLY;
    case NumberedFiles::Access::ReadWrite:
        return O_RDWR | O_CREAT;
    case NumberedFiles::Access::Replace:
        return O_RDWR | O_CREAT | O_TRUNC;
    }
    return O_RDONLY;
}

void OpenNative(int number, const QString& name, NumberedFiles::Access access) {
    if (NumberedFiles::IsOpen(number))
        throw RuntimeError(ErrorNumber::FileAlreadyOpen, QStringLiteral("file number %1 is open already").arg(number));
    // A pipe must not make the program wait for its other end.
    const int flags = Flags(access) | O_CLOEXEC | O_NONBLOCK;
    Descriptor file(::open(Paths::EncodeNative(name).constData(), flags, 0666));
    if (!file.Valid())
        RaiseErrno(errno == ENOENT && access != NumberedFiles::Access::Read ? ENOTDIR : errno, name);

    struct stat status {};

    if (::fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a file").arg(name));
    Table()[number] = {std::move(file), name};
}

/// Memory of megabytes, about to be filled, in large pages where the system gives them: filling it is then mostly
/// copying, where it was mostly page faults. Advice only, so what it answers is not asked.
void PreferLargePages(QByteArray& bytes) {
    constexpr std::size_t page = std::size_t{2} * 1024 * 1024;
    auto room = static_cast<std::size_t>(bytes.size());
    void* whole = bytes.data();
    if (std::align(page, page, whole, room) != nullptr)
        static_cast<void>(::madvise(whole, room / page * page, MADV_HUGEPAGE));
}

} // namespace

namespace NumberedFiles {

void Open(int number, const QString& path, Access access) {
    OpenNative(number, Paths::ToNative(path), access);
}

void OpenAsGiven(int number, const QString& path, Access access) {
    OpenNative(number, Paths::ToNativeAsGiven(path), access);
}

bool IsOpen(int number) {
    return Table().contains(number);
}

void Close(int number) {
    const auto found = Table().find(number);
    if (found == Table().end())
        return;
    Numbered closing = std::move(found->second);
    Table().erase(found);
    if (::close(closing.File.Release()) != 0)
        RaiseErrno(errno, closing.Name);
}

void CloseAll() {
    Table().clear();
}

qint64 Length(int number) {
    Numbered& file = Find(number);

    struct stat status {};

    if (::fstat(file.File.Number(), &status) != 0)
        RaiseErrno(errno, file.Name);
    return status.st_size;
}

QByteArray Read(int number, qint64 offset, qint64 count) {
    Numbered& file = Find(number);
    const qint64 there = std::clamp<qint64>(Length(number) - offset, 0, count);
    QByteArray bytes(there, Qt::Uninitialized);
    PreferLargePages(bytes);
    bytes.truncate(ReadFully(file.File.Number(), offset, bytes.data(), there, file.Name));
    return bytes;
}

qint64 ReadInto(int number, qint64 offset, char* bytes, qint64 count) {
    const Numbered& file = Find(number);
    return ReadFully(file.File.Number(), offset, bytes, count, file.Name);
}

void Write(int number, qint64 offset, QByteArrayView bytes) {
    const Numbered& file = Find(number);
    WriteFully(file.File.Number(), offset, bytes.data(), bytes.size(), file.Name);
}

qint64 Copy(int to, qint64 toOffset, int from, qint64 fromOffset, qint64 count) {
    Numbered& target = Find(to);
    const Numbered& source = Find(from);
    return TransferBytes(target.File.Number(), toOffset, source.File.Number(), fromOffset, count, target.Name,
                         source.Name);
}

void SetLength(int number, qint64 length) {
    Numbered& file = Find(number);
    if (::ftruncate(file.File.Number(), length) != 0)
        RaiseErrno(errno, file.Name);
}

void Flush(int number) {
    Numbered& file = Find(number);
    if (::fsync(file.File.Number()) != 0)
        RaiseErrno(errno, file.Name);
}

} // namespace NumberedFiles
