// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A directory as the system lists it, closed with its scope.
#pragma once

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/posix/Errors.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <string_view>

class Listing {
public:
    /// Raises 76 when the native path can't be listed.
    explicit Listing(const QString& nativeFolder)
        : name_(nativeFolder),
          directory_(::opendir(Paths::EncodeNative(nativeFolder).constData()), &::closedir) {
        if (!directory_)
            Raise(errno);
    }

    /// Takes over the descriptor of an open folder; `nativeFolder` is for the message. Raises 76 when that is none.
    Listing(int descriptor, const QString& nativeFolder)
        : name_(nativeFolder),
          directory_(descriptor < 0 ? nullptr : ::fdopendir(descriptor), &::closedir) {
        if (directory_)
            return;
        const int error = errno;
        if (descriptor >= 0)
            ::close(descriptor);
        Raise(error);
    }

    /// The next entry that is neither the folder itself nor the one above it. Raises 76 when reading on fails.
    const dirent* Next() {
        const dirent* entry = Read();
        while (entry != nullptr && IsDots(static_cast<const char*>(entry->d_name)))
            entry = Read();
        return entry;
    }

    /// Begins anew.
    void Rewind() { ::rewinddir(directory_.get()); }

    [[nodiscard]] int Descriptor() const { return ::dirfd(directory_.get()); }

    [[nodiscard]] static QString NameOf(const dirent& entry) {
        return Paths::NameFromNative(Paths::DecodeNative(static_cast<const char*>(entry.d_name)));
    }

    /// What stands behind an entry, links followed; false where nothing does.
    bool StatusOf(const dirent& entry, struct stat& status) const {
        const bool known = ::fstatat(Descriptor(), static_cast<const char*>(entry.d_name), &status, 0) == 0;
        if (!known)
            NoteErrno(errno, name_ + u'/' + Paths::DecodeNative(static_cast<const char*>(entry.d_name)));
        return known;
    }

    /// The system mostly tells what an entry is, and a look at it can be saved.
    [[nodiscard]] bool IsFolder(const dirent& entry) const {
        if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
            return entry.d_type == DT_DIR;

        struct stat status {};

        return StatusOf(entry, status) && S_ISDIR(status.st_mode);
    }

private:
    static bool IsDots(std::string_view name) { return name == "." || name == ".."; }

    const dirent* Read() {
        errno = 0; // the one way to tell an end from a failure
        const dirent* entry = ::readdir(directory_.get());
        if (entry == nullptr && errno != 0)
            Raise(errno);
        return entry;
    }

    [[noreturn]] void Raise(int error) const {
        RaiseErrno(error, QStringLiteral("%1: can't be listed").arg(name_), ErrorNumber::PathNotFound);
    }

    QString name_;
    std::unique_ptr<DIR, int (*)(DIR*)> directory_;
};
