// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HeldFolder.h"

#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"
#include "platform/posix/Errors.h"
#include "platform/posix/Listing.h"
#include "platform/posix/OpenNative.h"
#include "platform/posix/Transfer.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <mutex>
#include <set>
#include <utility>

namespace {

// The system takes away what the process's mask takes away.
constexpr mode_t UsualForFiles = 0666;
constexpr mode_t UsualForFolders = 0777;

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

/// Opens a folder below an open one through no link, where the system does that in one call; -1 with the reason.
int OpenAtOnce(int top, const QByteArray& below) {
    open_how how{};
    how.flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    how.resolve = RESOLVE_NO_SYMLINKS | RESOLVE_BENEATH;
    return static_cast<int>(::syscall(SYS_openat2, top, below.constData(), &how, sizeof how));
}

/// The same folder by folder, for systems that know no other way or forbid it.
int OpenStepwise(int top, const QByteArray& below) {
    Descriptor folder;
    for (const QByteArray& name : below.split('/')) {
        const int above = folder.Valid() ? folder.Number() : top;
        folder = Descriptor(::openat(above, name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!folder.Valid())
            return -1;
    }
    return folder.Release();
}

int OpenBelow(int top, const QByteArray& below) {
    const int number = OpenAtOnce(top, below);
    const bool isUnknown = number < 0 && (errno == ENOSYS || errno == EPERM || errno == EINVAL);
    return isUnknown ? OpenStepwise(top, below) : number;
}

QString WithBackslash(const QString& path) {
    return path.endsWith(u'\\') ? path : path + u'\\';
}

QString WithoutBackslash(const QString& path) {
    return path.size() > 1 && path.endsWith(u'\\') ? path.chopped(1) : path;
}

QByteArray NativeName(const QString& name) {
    return Paths::EncodeNative(Paths::NameToNative(name));
}

} // namespace

struct HeldFolder::System {
    explicit System(int number, const QString& path) : Folder(number) {
        struct stat status {};

        if (!Folder.Valid() || ::fstat(Folder.Number(), &status) != 0)
            Raise(errno, path);
        Device = status.st_dev;
        CanTell = !Unable().Has(Device);
    }

    [[noreturn]] static void Raise(int error, const QString& path) {
        const QString native = Paths::ToNativeAsGiven(WithoutBackslash(path));
        if (error == ELOOP || error == ENOTDIR)
            throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a folder").arg(native));
        RaiseErrno(error == ENOENT ? ENOTDIR : error, native);
    }

    bool Status(const QString& name, struct stat& status) const {
        if (::fstatat(Folder.Number(), NativeName(name).constData(), &status, AT_SYMLINK_NOFOLLOW) == 0)
            return true;
        NoteErrno(errno, name);
        return false;
    }

    [[nodiscard]] int MakeAside(const QByteArray& name) const {
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        return ::openat(Folder.Number(), name.constData(), flags, UsualForFiles);
    }

    bool Put(const QByteArray& name, QByteArrayView bytes, const QString& folder) {
        const QByteArray aside = NextAside();
        const int file = MakeAside(aside);
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

    Descriptor Folder;
    dev_t Device = 0;
    bool CanTell = false; ///< the file system can put a name where none stands, and only there
    bool Looks = false;   ///< something stood in the way before
};

HeldFolder::HeldFolder(const QString& path) : path_(WithBackslash(path)) {
    const QByteArray native = Paths::EncodeNative(Paths::ToNativeAsGiven(path_));
    const int number = ::open(native.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (number < 0 && errno == ENOTDIR)
        System::Raise(ENOENT, path_);
    system_ = std::make_unique<System>(number, path_);
}

HeldFolder::HeldFolder(const HeldFolder& top, const QString& below) : path_(WithBackslash(top.path_ + below)) {
    const QByteArray native = Paths::EncodeNative(Paths::ToNativeAsGiven(WithoutBackslash(below)));
    system_ = std::make_unique<System>(OpenBelow(top.system_->Folder.Number(), native), path_);
}

HeldFolder::~HeldFolder() = default;

bool HeldFolder::Lives() const {
    struct stat status {};

    return ::fstat(system_->Folder.Number(), &status) == 0 && status.st_nlink > 0;
}

QStringList HeldFolder::Names() const {
    // A descriptor of its own: the place in the list is the descriptor's.
    Listing listing(::openat(system_->Folder.Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC),
                    Paths::ToNativeAsGiven(path_));
    QStringList names;
    while (const dirent* entry = listing.Next())
        names.append(Listing::NameOf(*entry));
    return names;
}

HeldFolder::Standing HeldFolder::StandingOf(const QString& name) const {
    struct stat status {};

    if (!system_->Status(name, status))
        return Standing::Nothing;
    if (S_ISLNK(status.st_mode))
        return Standing::Link;
    return S_ISDIR(status.st_mode) ? Standing::Folder : Standing::File;
}

FileState HeldFolder::StateOf(const QString& name) const {
    struct stat status {};

    return system_->Status(name, status) && S_ISREG(status.st_mode) ? StateFrom(status) : FileState();
}

File HeldFolder::OpenToRead(const QString& name) const {
    return OpenNative(system_->Folder.Number(), NativeName(name), Paths::ToNativeAsGiven(path_ + name),
                      File::Access::Read, O_NOFOLLOW);
}

void HeldFolder::MakeFolder(const QString& name) const {
    if (::mkdirat(system_->Folder.Number(), NativeName(name).constData(), UsualForFolders) == 0)
        return;
    const int error = errno;
    const QString native = Paths::ToNativeAsGiven(path_ + name);
    if (error == EEXIST)
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: exists already").arg(native));
    RaiseErrno(error == ENOENT ? ENOTDIR : error, native);
}

bool HeldFolder::Put(const QString& name, QByteArrayView bytes) const {
    if (!system_->CanTell || (system_->Looks && StandingOf(name) != Standing::Nothing))
        return false;
    return system_->Put(NativeName(name), bytes, path_);
}

qintptr HeldFolder::Handle() const {
    return system_->Folder.Number();
}
