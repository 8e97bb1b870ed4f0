// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"

#include "platform/FolderEntries.h"
#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"
#include "platform/windows/Errors.h"
#include "platform/windows/FileTime.h"
#include "platform/windows/System.h"

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};

using OwnedHandle = std::unique_ptr<void, HandleCloser>;

std::optional<WIN32_FILE_ATTRIBUTE_DATA> Attributes(const QString& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (GetFileAttributesExW(WidePath(path).c_str(), GetFileExInfoStandard, &data) != 0)
        return data;
    NoteLastError(GetLastError(), path);
    return std::nullopt;
}

bool IsFolder(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

qint64 Wide(DWORD high, DWORD low) {
    return static_cast<qint64>((quint64{high} << 32U) | low);
}

/// The volume and the file's number on it; nothing when there is no such file or folder.
std::optional<BY_HANDLE_FILE_INFORMATION> Identity(const QString& path) {
    const HANDLE handle = CreateFileW(WidePath(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return std::nullopt;
    const OwnedHandle owned(handle);
    BY_HANDLE_FILE_INFORMATION information{};
    if (GetFileInformationByHandle(handle, &information) == 0)
        return std::nullopt;
    return information;
}

QString FolderPath(const QString& path) {
    return path.size() > 3 && path.endsWith(u'\\') ? path.chopped(1) : path;
}

[[noreturn]] void RaiseUnlisted(const QString& folder) {
    NoteLastError(GetLastError(), folder);
    throw RuntimeError(ErrorNumber::PathNotFound, QStringLiteral("%1: can't be listed").arg(folder));
}

} // namespace

std::vector<FolderEntry> FolderEntries(const QString& folder) {
    const QString pattern = (folder.isEmpty() ? QStringLiteral(".") : FolderPath(folder)) +
                            QString(folder.endsWith(u":\\") ? u"*"_s : u"\\*"_s);
    WIN32_FIND_DATAW data{};
    const HANDLE search = FindFirstFileW(WidePath(pattern).c_str(), &data);
    if (search == INVALID_HANDLE_VALUE)
        RaiseUnlisted(folder);
    const std::unique_ptr<void, BOOL (*)(HANDLE)> owned(search, [](HANDLE handle) { return FindClose(handle); });
    std::vector<FolderEntry> entries;
    do {
        const QString name = QString::fromWCharArray(static_cast<const wchar_t*>(data.cFileName));
        if (name == u"." || name == u"..")
            continue;
        const bool isFolder = IsFolder(data.dwFileAttributes);
        entries.push_back({name, isFolder ? 0 : Wide(data.nFileSizeHigh, data.nFileSizeLow), isFolder});
    } while (FindNextFileW(search, &data) != 0);
    if (GetLastError() != ERROR_NO_MORE_FILES)
        RaiseUnlisted(folder);
    return entries;
}

QByteArray FolderIdentity(const QString& folder) {
    const auto identity = Identity(folder.isEmpty() ? QStringLiteral(".") : folder);
    if (!identity || !IsFolder(identity->dwFileAttributes))
        return {};
    return QByteArray::number(qulonglong{identity->dwVolumeSerialNumber}) + ':' +
           QByteArray::number(Wide(identity->nFileIndexHigh, identity->nFileIndexLow));
}

namespace Files {

bool FileExists(const QString& path) {
    const auto attributes = Attributes(path);
    return attributes && !IsFolder(attributes->dwFileAttributes);
}

qint64 FileLength(const QString& path) {
    const auto attributes = Attributes(path);
    if (!attributes || IsFolder(attributes->dwFileAttributes))
        RaiseLastError(ERROR_FILE_NOT_FOUND, path);
    return Wide(attributes->nFileSizeHigh, attributes->nFileSizeLow);
}

bool FolderExists(const QString& path) {
    const auto attributes = Attributes(path);
    return attributes && IsFolder(attributes->dwFileAttributes);
}

// Who may do what is told by lists that nobody can foresee: it is tried.
bool TakesFiles(const QString& folder) {
    const HANDLE tried =
        CreateFileW(WidePath(folder + u'\\' + PrivateName()).c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (tried == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(tried);
    return true;
}

void MakeFolder(const QString& path) {
    if (CreateDirectoryW(WidePath(FolderPath(path)).c_str(), nullptr) != 0)
        return;
    const DWORD error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS)
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: exists already").arg(path));
    RaiseLastError(error, path);
}

void MakeFolderAsGiven(const QString& path) {
    MakeFolder(path);
}

Standing StandingAsGiven(const QString& path) {
    const auto attributes = Attributes(path);
    if (!attributes)
        return Standing::Nothing;
    return IsFolder(attributes->dwFileAttributes) ? Standing::Folder : Standing::File;
}

bool IsLink(const QString& path) {
    const DWORD attributes = GetFileAttributesW(WidePath(FolderPath(path)).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

bool IsLinkAsGiven(const QString& path) {
    return IsLink(path);
}

void RemoveLink(const QString& path) {
    const std::wstring wide = WidePath(FolderPath(path));
    if (!IsLink(path))
        RaiseLastError(ERROR_FILE_NOT_FOUND, path);
    const BOOL removed = FolderExists(path) ? RemoveDirectoryW(wide.c_str()) : DeleteFileW(wide.c_str());
    if (removed == 0)
        RaiseLastError(GetLastError(), path);
}

void RemoveFolder(const QString& path) {
    if (RemoveDirectoryW(WidePath(FolderPath(path)).c_str()) != 0)
        return;
    const DWORD error = GetLastError();
    RaiseLastError(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error, path);
}

void DeleteForced(const QString& path) {
    const std::wstring wide = WidePath(path);
    if (FolderExists(path))
        RaiseLastError(ERROR_FILE_NOT_FOUND, path);
    if (DeleteFileW(wide.c_str()) != 0)
        return;
    DWORD error = GetLastError();
    if (error == ERROR_ACCESS_DENIED && SetFileAttributesW(wide.c_str(), FILE_ATTRIBUTE_NORMAL) != 0) {
        if (DeleteFileW(wide.c_str()) != 0)
            return;
        error = GetLastError();
    }
    RaiseLastError(error == ERROR_PATH_NOT_FOUND ? ERROR_FILE_NOT_FOUND : error, path);
}

// What may be started is told by the name alone.
void MakeExecutable(const QString& path) {
    FileLength(path);
}

void Rename(const QString& from, const QString& to) {
    // Where only the case changes, some systems take the new name for the old one: it goes by way of a third.
    const QString step = SameFile(from, to) ? Paths::Folder(from) + PrivateName() + QStringLiteral(".renamed") : from;
    if (step != from && MoveFileExW(WidePath(from).c_str(), WidePath(step).c_str(), 0) == 0)
        RaiseLastError(GetLastError(), from);
    if (MoveFileExW(WidePath(step).c_str(), WidePath(to).c_str(), MOVEFILE_COPY_ALLOWED) == 0)
        RaiseLastError(GetLastError(), from);
}

void Replace(const QString& from, const QString& to) {
    if (FolderExists(to))
        RaiseLastError(ERROR_DIRECTORY, to);
    if (MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(), MOVEFILE_REPLACE_EXISTING) == 0)
        RaiseLastError(GetLastError(), to);
}

qint64 FreeSpace(const QString& folder) {
    ULARGE_INTEGER available{};
    if (GetDiskFreeSpaceExW(WidePath(folder).c_str(), &available, nullptr, nullptr) == 0) {
        const DWORD error = GetLastError();
        RaiseLastError(FolderExists(folder) ? error : ERROR_PATH_NOT_FOUND, folder);
    }
    return Wide(available.HighPart, available.LowPart);
}

void FlushSystem(const QString& path) {
    static_cast<void>(path); // only an administrator may ask for that: the system writes in its own time
}

QDateTime ModifiedTime(const QString& path) {
    const auto attributes = Attributes(path);
    if (!attributes)
        RaiseLastError(ERROR_FILE_NOT_FOUND, path);
    return FromFileTime(attributes->ftLastWriteTime).toLocalTime();
}

bool SameFile(const QString& first, const QString& second) {
    const auto one = Identity(first);
    const auto other = Identity(second);
    return one && other && one->dwVolumeSerialNumber == other->dwVolumeSerialNumber &&
           one->nFileIndexHigh == other->nFileIndexHigh && one->nFileIndexLow == other->nFileIndexLow;
}

} // namespace Files
