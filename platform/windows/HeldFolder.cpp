// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HeldFolder.h"

#include "platform/FolderEntries.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"
#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

namespace {

QString WithBackslash(const QString& path) {
    return path.endsWith(u'\\') ? path : path + u'\\';
}

bool Has(DWORD attributes, DWORD attribute) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

[[noreturn]] void RaiseNoFolder(const QString& path) {
    throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a folder").arg(path));
}

} // namespace

/// While the handle is open nobody renames or removes the folder, nor one above it: its path leads here.
struct HeldFolder::System {
    System(const QString& path, DWORD more) {
        const HANDLE handle =
            CreateFileW(WidePath(path).c_str(), FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                        OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | more, nullptr);
        if (handle == INVALID_HANDLE_VALUE) {
            const DWORD error = GetLastError();
            RaiseLastError(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error, path);
        }
        Folder = File(reinterpret_cast<qintptr>(handle), path);
        BY_HANDLE_FILE_INFORMATION found{};
        if (GetFileInformationByHandle(handle, &found) == 0)
            RaiseLastError(GetLastError(), path);
        if (!Has(found.dwFileAttributes, FILE_ATTRIBUTE_DIRECTORY) ||
            (more != 0 && Has(found.dwFileAttributes, FILE_ATTRIBUTE_REPARSE_POINT)))
            RaiseNoFolder(path);
    }

    File Folder;
    /// One that nobody can foretell for all files of this folder, and their number: none of them lasts.
    QString Aside = PrivateName();
    unsigned Number = 0;
};

HeldFolder::HeldFolder(const QString& path) : path_(WithBackslash(path)), system_(std::make_unique<System>(path_, 0)) {}

// What is open already keeps its own path, so that only what stands below can be a link.
HeldFolder::HeldFolder(const HeldFolder& top, const QString& below) : path_(WithBackslash(top.path_ + below)) {
    for (qsizetype end = path_.indexOf(u'\\', top.path_.size()); end >= 0; end = path_.indexOf(u'\\', end + 1)) {
        auto step = std::make_unique<System>(path_.first(end), FILE_FLAG_OPEN_REPARSE_POINT);
        system_.swap(step); // the one above is let go only now
    }
}

HeldFolder::~HeldFolder() = default;

bool HeldFolder::Lives() const {
    return true; // as long as it is held
}

QStringList HeldFolder::Names() const {
    QStringList names;
    for (const FolderEntry& entry : FolderEntries(path_))
        names.append(entry.Name);
    return names;
}

HeldFolder::Standing HeldFolder::StandingOf(const QString& name) const {
    const DWORD attributes = GetFileAttributesW(WidePath(path_ + name).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return Standing::Nothing;
    if (Has(attributes, FILE_ATTRIBUTE_REPARSE_POINT))
        return Standing::Link;
    return Has(attributes, FILE_ATTRIBUTE_DIRECTORY) ? Standing::Folder : Standing::File;
}

FileState HeldFolder::StateOf(const QString& name) const {
    return StandingOf(name) == Standing::File ? ::StateOf(path_ + name) : FileState();
}

File HeldFolder::OpenToRead(const QString& name) const {
    if (StandingOf(name) == Standing::Link)
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a file").arg(path_ + name));
    return File::OpenAsGiven(path_ + name, File::Access::Read);
}

void HeldFolder::MakeFolder(const QString& name) const {
    if (CreateDirectoryW(WidePath(path_ + name).c_str(), nullptr) != 0)
        return;
    const DWORD error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS)
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: exists already").arg(path_ + name));
    RaiseLastError(error, path_ + name);
}

bool HeldFolder::Put(const QString& name, QByteArrayView bytes) const {
    const std::wstring target = WidePath(path_ + name);
    if (GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES)
        return false;
    const QString aside = path_ + system_->Aside + QString::number(++system_->Number);
    File file;
    if (!Ignoring([&] { file = File::Open(aside, File::Access::New); }))
        return false;
    const bool isWritten = Ignoring([&] {
        file.Write(0, bytes);
        file.Close();
    });
    file = File();
    const std::wstring from = WidePath(aside);
    if (isWritten && MoveFileExW(from.c_str(), target.c_str(), 0) != 0)
        return true;
    DeleteFileW(from.c_str());
    return false;
}

qintptr HeldFolder::Handle() const {
    return system_->Folder.Handle();
}
