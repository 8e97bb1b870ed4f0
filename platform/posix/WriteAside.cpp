// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/WriteAside.h"

#include "platform/Leftovers.h"
#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/ReplacedFile.h"
#include "platform/RuntimeError.h"
#include "platform/posix/Errors.h"
#include "platform/posix/Transfer.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <optional>

namespace {

constexpr mode_t Permissions = 0777;
constexpr mode_t AnyWriteBit = 0222;
constexpr mode_t OwnersOnly = 0600;
constexpr mode_t UsualForFiles = 0666;

QString FolderOf(const QString& native) {
    return native.first(native.lastIndexOf(u'/') + 1);
}

/// Where the system looks for a path: in a folder that is held, where links are not followed, or everywhere.
int FolderNumber(const HeldFolder* folder) {
    return folder == nullptr ? AT_FDCWD : static_cast<int>(folder->Handle());
}

std::optional<struct stat> StatusOf(const QString& native, const HeldFolder* folder = nullptr) {
    struct stat status {};

    const int flags = folder == nullptr ? 0 : AT_SYMLINK_NOFOLLOW;
    if (::fstatat(FolderNumber(folder), Paths::EncodeNative(native).constData(), &status, flags) == 0)
        return status;
    const int error = errno;
    NoteErrno(error, native);
    errno = error;
    return std::nullopt;
}

bool IsLink(const struct stat& status) {
    return S_ISLNK(status.st_mode);
}

/// The path that a chain of links ends at, also where nothing stands there; empty when there are too many.
QString Followed(QString native) {
    constexpr int mostLinks = 40;
    for (int link = 0; link < mostLinks; ++link) {
        std::array<char, PATH_MAX> bytes{};
        const ssize_t length = ::readlink(Paths::EncodeNative(native).constData(), bytes.data(), bytes.size());
        if (length < 0)
            return native;
        const QString to = Paths::DecodeNative(QByteArray(bytes.data(), length));
        native = to.startsWith(u'/') ? to : FolderOf(native) + to;
    }
    return {};
}

/// 0, or the error for a target that may not be replaced. Raises 75 for what is no plain file.
int RefusalOf(const QString& native, const QString& name, const HeldFolder* folder = nullptr) {
    const auto status = StatusOf(native, folder);
    if (!status)
        return errno == ENOENT ? 0 : errno;
    if (IsLink(*status)) // in a folder that is held: it goes itself
        return 0;
    if (!S_ISREG(status->st_mode))
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a file").arg(name));
    if ((status->st_mode & AnyWriteBit) == 0)
        return EACCES; // the system's administrator too keeps a file that was protected
    if (::faccessat(FolderNumber(folder), Paths::EncodeNative(native).constData(), W_OK, AT_EACCESS) == 0)
        return 0;
    const int error = errno;
    NoteErrno(error, name);
    return error;
}

/// The permissions that a new file gets where nobody asks for others.
mode_t UsualMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return UsualForFiles & ~mask;
}

/// False, with the reason in errno, when the file lets more people in than the mode says. File systems without
/// permissions of their own refuse the change, and what they give all files is then as good.
bool GiveMode(int file, mode_t mode) {
    if (::fchmod(file, mode) == 0)
        return true;
    const int error = errno;

    struct stat status {};

    const bool asGood = (error == EPERM || error == ENOTSUP || error == ENOSYS) && ::fstat(file, &status) == 0 &&
                        (status.st_mode & 07777 & ~mode) == 0;
    errno = error;
    return asGood;
}

/// Owner and permissions of what is replaced. Where the group can't be kept, another one gets what everybody has.
bool TakeOver(int file, const struct stat& old) {
    const bool ownerKept = ::fchown(file, old.st_uid, old.st_gid) == 0;
    const bool groupKept = ownerKept || ::fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0;
    mode_t mode = old.st_mode & (ownerKept ? 07777 : Permissions);
    if (!groupKept)
        mode = (mode & ~mode_t{S_IRWXG}) | ((mode & S_IRWXO) << 3U);
    return GiveMode(file, mode);
}

/// The folder's new entry reaches the disk; where the system can't promise that, nothing is lost but the promise.
void FlushFolder(const QString& native) {
    const QString folder = FolderOf(native);
    const QString path = folder.isEmpty() ? QStringLiteral(".") : folder;
    const Descriptor open(::open(Paths::EncodeNative(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (open.Valid())
        static_cast<void>(::fsync(open.Number()));
}

} // namespace

WriteAside::WriteAside(const QString& target, Names names)
    : name_(names == Names::AsGiven ? Paths::ToNativeAsGiven(target) : Paths::ToNative(target)),
      target_(Followed(name_)) {
    if (target_.isEmpty())
        Raise(ELOOP);
    if (const int error = RefusalOf(target_, name_); error != 0)
        Raise(error);
    MakeAside();
}

WriteAside::WriteAside(const FilePlace& target, Old old)
    : folder_(target.Folder),
      isOldDropped_(old == Old::Dropped),
      name_(Paths::ToNativeAsGiven(target.Path())),
      target_(Paths::NameToNative(target.Name)) {
    if (const int error = RefusalOf(target_, name_, folder_.get()); error != 0 && !isOldDropped_)
        Raise(error);
    MakeAside();
}

void WriteAside::MakeAside() {
    Leftovers::Sweep(folder_ == nullptr ? FolderOf(target_) : Paths::ToNativeAsGiven(folder_->Path()));
    int number = -1;
    do {
        aside_ = FolderOf(target_) + PrivateName();
        constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        number = ::openat(FolderNumber(folder_.get()), Paths::EncodeNative(aside_).constData(), flags, OwnersOnly);
    } while (number < 0 && errno == EEXIST);
    if (number < 0)
        Raise(errno == ENOENT ? ENOTDIR : errno);
    static_cast<void>(::flock(number, LOCK_EX | LOCK_NB)); // while it is held, nobody sweeps it away
    out_ = File(number, name_);
}

WriteAside::~WriteAside() {
    if (!aside_.isEmpty())
        ::unlinkat(FolderNumber(folder_.get()), Paths::EncodeNative(aside_).constData(), 0);
}

void WriteAside::Commit(bool flush) {
    const int number = static_cast<int>(out_.Handle());
    const int folder = FolderNumber(folder_.get());
    const auto old = isOldDropped_ ? std::nullopt : StatusOf(target_, folder_.get());
    if (!(old && !IsLink(*old) ? TakeOver(number, *old) : GiveMode(number, UsualMode())))
        Raise(errno);
    if (flush)
        out_.Flush();
    out_.Close();
    const QByteArray from = Paths::EncodeNative(aside_);
    if (::renameat(folder, from.constData(), folder, Paths::EncodeNative(target_).constData()) != 0)
        Raise(errno == ENOENT ? ENOTDIR : errno);
    aside_.clear();
    if (flush && folder_ != nullptr)
        static_cast<void>(::fsync(folder));
    else if (flush)
        FlushFolder(target_);
}

void WriteAside::Raise(long error) const {
    RaiseErrno(static_cast<int>(error), name_);
}

namespace ReplacedFile {

QString BehindLinks(const QString& path) {
    const QString native = Paths::ToNative(path);
    const QString followed = Followed(native);
    return followed.isEmpty() || followed == native ? path : Paths::FromNative(followed);
}

bool IsWriteProtected(const QString& path) {
    const QString native = Paths::ToNative(path);
    const auto status = StatusOf(native);
    return status && S_ISREG(status->st_mode) && RefusalOf(native, native) != 0;
}

// What is open lives on without a name.
StaysOpen::StaysOpen(File& file, const QString& path) : file_(file) {
    static_cast<void>(path);
}

StaysOpen::~StaysOpen() {
    static_cast<void>(file_);
}

bool KeepOwnerAndMode(const File& file, const QString& old) {
    const auto status = StatusOf(Paths::ToNative(old));
    return status && TakeOver(static_cast<int>(file.Handle()), *status);
}

} // namespace ReplacedFile
