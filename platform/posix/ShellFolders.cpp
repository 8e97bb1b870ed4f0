// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ShellFolders.h"

#include "platform/Paths.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>

#include <algorithm>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using ShellFolders::DriveKind;

constexpr auto remoteTypes = "/9p/afs/ceph/cifs/davfs/fuse.davfs2/fuse.rclone/fuse.sshfs/ncpfs/nfs/nfs4/smb3/smbfs/"_L1;
constexpr auto discTypes = "/iso9660/udf/"_L1;
// Parts of the system that happen to be mounted on their own; nobody keeps files there.
constexpr auto systemMounts = "/boot/boot/efi/efi/"_L1;

bool Among(QLatin1StringView list, const QString& type) {
    return list.contains(u'/' + type + u'/');
}

/// What the kernel says of the disk that a partition is on. Partitions have no such file; their disk's folder is above.
bool IsRemovable(const QString& device) {
    const QString block = u"/sys/class/block/"_s + QFileInfo(QFileInfo(device).canonicalFilePath()).fileName();
    for (const QString& place : {QString(u"/removable"_s), QString(u"/../removable"_s)}) {
        QFile file(QFileInfo(block).canonicalFilePath() + place);
        if (file.open(QIODevice::ReadOnly))
            return file.readAll().trimmed() == "1";
    }
    return false;
}

std::optional<DriveKind> KindOf(const QStorageInfo& volume) {
    const QString type = QString::fromLatin1(volume.fileSystemType());
    const QString device = QFile::decodeName(volume.device());
    if (Among(remoteTypes, type))
        return DriveKind::Remote;
    if (device.startsWith(u"/dev/sr") || Among(discTypes, type))
        return DriveKind::CdRom;
    if (volume.rootPath() == u"/")
        return DriveKind::Fixed; // whatever it is mounted from, in a container too
    // Packages that are mounted from a file are no drives, and neither is a file laid over another.
    if (!device.startsWith(u"/dev/") || type == u"squashfs" || Among(systemMounts, volume.rootPath().sliced(1)) ||
        !QFileInfo(volume.rootPath()).isDir())
        return std::nullopt;
    return IsRemovable(device) ? DriveKind::Removable : DriveKind::Fixed;
}

bool IsFolder(int directory, const QByteArray& name, int flags, bool* isLink) {
    struct stat status {};

    if (::fstatat(directory, name.constData(), &status, flags) != 0)
        return false;
    if (isLink != nullptr)
        *isLink = S_ISLNK(status.st_mode);
    return S_ISDIR(status.st_mode);
}

ShellFolders::Entry EntryOf(int directory, const QByteArray& name, const QString& folder) {
    ShellFolders::Entry entry;
    entry.Name = Paths::NameFromNative(Paths::DecodeNative(name));
    entry.IsHidden = name.startsWith('.');
    bool isLink = false;
    entry.IsFolder = IsFolder(directory, name, AT_SYMLINK_NOFOLLOW, &isLink);
    if (isLink && IsFolder(directory, name, 0, nullptr)) {
        entry.IsFolder = true;
        entry.TargetIsFolder = true;
        entry.Target = Paths::Real(folder + entry.Name);
    }
    return entry;
}

} // namespace

QString ShellFolders::Documents() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return Paths::FromNative(QFileInfo(documents).isDir() ? documents : QDir::homePath());
}

QString ShellFolders::NetworkPlaces() {
    // Where the desktop mounts what the user has opened in its file manager.
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR", u"/run/user/%1"_s.arg(::getuid()));
    const QString mounts = runtime + u"/gvfs"_s;
    return QFileInfo(mounts).isDir() ? Paths::FromNative(mounts) : QString();
}

std::vector<ShellFolders::Place> ShellFolders::OtherPlaces() {
    const QString home = Paths::FromNative(QDir::homePath());
    if (home == Documents())
        return {};
    return {{home, QDir::home().dirName()}};
}

std::vector<ShellFolders::Drive> ShellFolders::Drives() {
    std::vector<Drive> drives;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const auto kind = volume.isReady() ? KindOf(volume) : std::nullopt;
        if (!kind)
            continue;
        const QString root = volume.rootPath();
        QString path = Paths::FromNative(root);
        if (!path.endsWith(u'\\'))
            path += u'\\';
        const QString label = volume.name().isEmpty() ? QFileInfo(root).fileName() : volume.name();
        drives.push_back({path, label.isEmpty() ? root : u"%1 (%2)"_s.arg(label, root), *kind});
    }
    std::ranges::sort(drives, {}, &Drive::Path);
    const auto samePath = [](const Drive& left, const Drive& right) { return left.Path == right.Path; };
    drives.erase(std::unique(drives.begin(), drives.end(), samePath), drives.end());
    return drives;
}

void ShellFolders::ForEachEntry(const QString& folder, const std::function<bool(const Entry&)>& take) {
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(
        ::opendir(Paths::EncodeNative(Paths::ToNative(folder)).constData()), &::closedir);
    if (!directory)
        return;
    // A directory has no order here, and people look for a name: case counts only between equals.
    std::vector<QByteArray> names;
    while (const dirent* entry = ::readdir(directory.get()))
        names.emplace_back(static_cast<const char*>(entry->d_name));
    std::ranges::sort(names, [](const QByteArray& left, const QByteArray& right) {
        const int order = QString::compare(QString::fromUtf8(left), QString::fromUtf8(right), Qt::CaseInsensitive);
        return order != 0 ? order < 0 : left < right;
    });
    const QString base = folder.endsWith(u'\\') ? folder : folder + u'\\';
    for (const QByteArray& name : names)
        if (name != "." && name != ".." && !take(EntryOf(::dirfd(directory.get()), name, base)))
            return;
}
