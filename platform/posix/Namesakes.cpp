// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Namesakes.h"

#include "platform/Paths.h"
#include "platform/posix/Errors.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

namespace {

using Directory = std::unique_ptr<DIR, int (*)(DIR*)>;

/// A folder below an open one, or below the current one for AT_FDCWD.
Directory Open(int parent, const QByteArray& name) {
    const int number = ::openat(parent, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
    Directory directory(number < 0 ? nullptr : ::fdopendir(number), &::closedir);
    if (number >= 0 && !directory)
        ::close(number);
    return directory;
}

const dirent* ReadOn(const Directory& directory, const QString& name) {
    errno = 0; // the one way to tell an end from a failure
    const dirent* entry = ::readdir(directory.get());
    if (entry == nullptr)
        NoteErrno(errno, name);
    return entry;
}

bool IsFile(int parent, const QByteArray& name) {
    struct stat status {};

    const bool there = ::fstatat(parent, name.constData(), &status, 0) == 0;
    if (!there)
        NoteErrno(errno, Paths::DecodeNative(name));
    return there && !S_ISDIR(status.st_mode);
}

/// The look that is needed where no name is spelt as asked.
bool HoldsInAnyCase(int parent, const QByteArray& folder, const QString& name) {
    const Directory directory = Open(parent, folder);
    if (!directory)
        return false;
    while (const dirent* entry = ReadOn(directory, Paths::DecodeNative(folder))) {
        const QByteArray found(static_cast<const char*>(entry->d_name));
        if (Paths::DecodeNative(found).compare(name, Qt::CaseInsensitive) == 0 &&
            IsFile(::dirfd(directory.get()), found))
            return true;
    }
    return false;
}

bool MayBeFolder(const dirent& entry) {
    const QByteArrayView name(static_cast<const char*>(entry.d_name));
    const bool kindFits = entry.d_type == DT_DIR || entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN;
    return kindFits && name != "." && name != "..";
}

} // namespace

QStringList FoldersWithNamesake(const QString& folder, const QString& ending) {
    const QString path = folder.endsWith(u'\\') ? folder.chopped(1) : folder;
    const Directory directory = Open(AT_FDCWD, Paths::EncodeNative(Paths::ToNative(path)));
    QStringList names;
    if (!directory) {
        NoteErrno(errno, Paths::ToNative(path));
        return names;
    }
    const int parent = ::dirfd(directory.get());
    const QByteArray end = Paths::EncodeNative(ending);
    while (const dirent* entry = ReadOn(directory, path)) {
        if (!MayBeFolder(*entry))
            continue;
        const QByteArray name(static_cast<const char*>(entry->d_name));
        if (IsFile(parent, name + '/' + name + end) || HoldsInAnyCase(parent, name, Paths::DecodeNative(name) + ending))
            names.append(Paths::NameFromNative(Paths::DecodeNative(name)));
    }
    return names;
}
