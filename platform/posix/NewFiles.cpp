// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NewFiles.h"

#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/posix/Transfer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace {

constexpr mode_t UsualForFiles = 0666; // the system takes away what the process's mask takes away

bool WriteAll(int file, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(file, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written == 0 || (written < 0 && errno != EINTR))
            return false;
        bytes = bytes.sliced(written < 0 ? 0 : written);
    }
    return true;
}

/// One name that nobody can foretell for many files, and their number: none of them lasts.
QByteArray NextAside() {
    constexpr unsigned many = 256;
    thread_local QByteArray name;
    thread_local unsigned number = 0;
    if (number++ % many == 0)
        name = PrivateName().toLatin1();
    return name + QByteArray::number(number);
}

} // namespace

struct NewFiles::System {
    Descriptor Folder;
    bool CanTell = true; ///< the file system can put a name where none stands, and only there
    bool Looks = false;  ///< something stood in the way before

    bool Stands(const QByteArray& name) const {
        struct stat status {};

        return ::fstatat(Folder.Number(), name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    }

    bool Put(const QByteArray& name, QByteArrayView bytes) {
        const QByteArray aside = NextAside();
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        const int file = ::openat(Folder.Number(), aside.constData(), flags, UsualForFiles);
        if (file < 0)
            return false;
        const bool isWritten = WriteAll(file, bytes);
        if (::close(file) == 0 && isWritten &&
            ::renameat2(Folder.Number(), aside.constData(), Folder.Number(), name.constData(), RENAME_NOREPLACE) == 0)
            return true;
        CanTell = !isWritten || (errno != EINVAL && errno != ENOSYS);
        Looks = isWritten;
        ::unlinkat(Folder.Number(), aside.constData(), 0);
        return false;
    }
};

NewFiles::NewFiles(const QString& folder) : folder_(folder) {
    const QByteArray native = Paths::EncodeNative(Paths::ToNativeAsGiven(folder));
    Descriptor opened(::open(native.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.Valid())
        system_ = std::make_unique<System>(System{.Folder = std::move(opened)});
}

NewFiles::~NewFiles() = default;

bool NewFiles::Put(const QString& name, QByteArrayView bytes) {
    if (system_ == nullptr || !system_->CanTell)
        return false;
    const QByteArray native = Paths::EncodeNative(Paths::NameToNative(name));
    return !(system_->Looks && system_->Stands(native)) && system_->Put(native, bytes);
}
