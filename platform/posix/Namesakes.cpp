// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Namesakes.h"

#include "platform/Paths.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

bool IsFile(int parent, const QByteArray& name) {
    struct stat status {};

    return ::fstatat(parent, name.constData(), &status, 0) == 0 && !S_ISDIR(status.st_mode);
}

/// The look that is needed where no name is spelt as asked.
bool HoldsInAnyCase(int parent, const QByteArray& folder, const QString& name) {
    const Directory directory = Open(parent, folder);
    if (!directory)
        return false;
    while (const dirent* entry = ::readdir(directory.get())) {
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
    if (!directory)
        return names;
    const int parent = ::dirfd(directory.get());
    const QByteArray end = Paths::EncodeNative(ending);
    while (const dirent* entry = ::readdir(directory.get())) {
        if (!MayBeFolder(*entry))
            continue;
        const QByteArray name(static_cast<const char*>(entry->d_name));
        if (IsFile(parent, name + '/' + name + end) || HoldsInAnyCase(parent, name, Paths::DecodeNative(name) + ending))
            names.append(Paths::NameFromNative(Paths::DecodeNative(name)));
    }
    return names;
}
