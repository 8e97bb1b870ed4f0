// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NewFiles.h"

#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"
#include "platform/posix/Transfer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <mutex>
#include <set>
#include <utility>

namespace {

constexpr mode_t UsualForFiles = 0666; // the system takes away what the process's mask takes away

/// One name that nobody can foretell for many files, and their number: none of them lasts.
QByteArray NextAside() {
    constexpr unsigned many = 256;
    thread_local QByteArray name;
    thread_local unsigned number = 0;
    if (number++ % many == 0)
        name = PrivateName().toLatin1();
    return name + QByteArray::number(number);
}

/// The devices whose file systems can't put a name only where none stands: each is tried once in a process.
class UnableDevices {
public:
    void Add(dev_t device) {
        const std::lock_guard lock(mutex_);
        devices_.insert(device);
    }

    bool Has(dev_t device) {
        const std::lock_guard lock(mutex_);
        return devices_.contains(device);
    }

private:
    std::mutex mutex_;
    std::set<dev_t> devices_;
};

UnableDevices& Unable() {
    static UnableDevices devices;
    return devices;
}

} // namespace

struct NewFiles::System {
    Descriptor Folder;
    dev_t Device = 0;
    bool CanTell = false; ///< the file system can put a name where none stands, and only there
    bool Looks = false;   ///< something stood in the way before

    bool Open(const QString& folder) {
        const QByteArray native = Paths::EncodeNative(Paths::ToNativeAsGiven(folder));
        Folder = Descriptor(::open(native.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));

        struct stat status {};

        if (!Folder.Valid() || ::fstat(Folder.Number(), &status) != 0)
            return false;
        Device = status.st_dev;
        CanTell = !Unable().Has(Device);
        return CanTell;
    }

    bool Stands(const QByteArray& name) const {
        struct stat status {};

        return ::fstatat(Folder.Number(), name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    }

    int MakeAside(const QByteArray& name) const {
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        return ::openat(Folder.Number(), name.constData(), flags, UsualForFiles);
    }

    bool Put(const QByteArray& name, QByteArrayView bytes, const QString& folder) {
        const QByteArray aside = NextAside();
        int file = MakeAside(aside);
        // It was removed, and another one may stand in its place.
        if (file < 0 && (errno == ENOENT || !Folder.Valid()) && Open(folder))
            file = MakeAside(aside);
        if (file < 0)
            return false;
        const bool isWritten = Ignoring([&] { WriteFully(file, 0, bytes.data(), bytes.size(), folder); });
        const bool isClosed = ::close(file) == 0;
        if (isWritten && isClosed && Rename(aside, name))
            return true;
        ::unlinkat(Folder.Number(), aside.constData(), 0);
        return false;
    }

    bool Rename(const QByteArray& aside, const QByteArray& name) {
        const int number = Folder.Number();
        if (::renameat2(number, aside.constData(), number, name.constData(), RENAME_NOREPLACE) == 0)
            return true;
        CanTell = errno != EINVAL && errno != ENOSYS;
        Looks = true;
        if (!CanTell)
            Unable().Add(Device);
        return false;
    }
};

NewFiles::NewFiles(const QString& folder) : folder_(folder) {
    System opened;
    if (opened.Open(folder))
        system_ = std::make_unique<System>(std::move(opened));
}

NewFiles::~NewFiles() = default;

bool NewFiles::Put(const QString& name, QByteArrayView bytes) {
    if (system_ == nullptr || !system_->CanTell)
        return false;
    const QByteArray native = Paths::EncodeNative(Paths::NameToNative(name));
    return !(system_->Looks && system_->Stands(native)) && system_->Put(native, bytes, folder_);
}
