// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/WriteAside.h"

#include "platform/Leftovers.h"
#include "platform/PrivateName.h"
#include "platform/ReplacedFile.h"
#include "platform/RuntimeError.h"
#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

#include <algorithm>
#include <vector>

namespace {

bool Has(DWORD attributes, DWORD attribute) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

/// With its separator; the system takes both.
QString FolderOf(const QString& path) {
    return path.first(std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1);
}

/// The path that a link leads to; the path itself when it is none, or leads nowhere.
QString Followed(const QString& path) {
    if (!Has(GetFileAttributesW(WidePath(path).c_str()), FILE_ATTRIBUTE_REPARSE_POINT))
        return path;
    const HANDLE handle = CreateFileW(WidePath(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return path;
    const File owned(reinterpret_cast<qintptr>(handle), path);
    constexpr std::size_t longestPath = 32'768;
    std::vector<wchar_t> text(longestPath);
    const DWORD length = GetFinalPathNameByHandleW(handle, text.data(), longestPath, FILE_NAME_NORMALIZED);
    return length == 0 || length >= longestPath ? path : QString::fromWCharArray(text.data(), static_cast<int>(length));
}

/// A part of who owns a file and who may do what with it; empty where the file system has no such thing.
std::vector<char> SecurityOf(const std::wstring& path, SECURITY_INFORMATION part) {
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), part, nullptr, 0, &size);
    std::vector<char> security(size);
    if (size == 0 || GetFileSecurityW(path.c_str(), part, security.data(), size, &size) == 0)
        return {};
    return security;
}

/// What the old file has, as far as that is allowed: its attributes, who may do what, its owner.
void TakeOver(const std::wstring& aside, const std::wstring& target, DWORD attributes) {
    SetFileAttributesW(aside.c_str(), attributes);
    for (const SECURITY_INFORMATION part : {DACL_SECURITY_INFORMATION, OWNER_SECURITY_INFORMATION}) {
        std::vector<char> security = SecurityOf(target, part);
        if (!security.empty() && security != SecurityOf(aside, part))
            SetFileSecurityW(aside.c_str(), part, security.data());
    }
}

} // namespace

WriteAside::WriteAside(const QString& target, Names names) : name_(target), target_(Followed(target)) {
    static_cast<void>(names); // the system finds every spelling
    const DWORD attributes = GetFileAttributesW(WidePath(target_).c_str());
    if (Has(attributes, FILE_ATTRIBUTE_DIRECTORY))
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a file").arg(name_));
    if (Has(attributes, FILE_ATTRIBUTE_READONLY))
        Raise(ERROR_ACCESS_DENIED);
    MakeAside();
}

// The path of a folder that is held leads to it, and renaming follows no link.
WriteAside::WriteAside(const FilePlace& target, Old old)
    : folder_(target.Folder),
      isOldDropped_(old == Old::Dropped),
      name_(target.Path()),
      target_(name_) {
    const DWORD attributes = GetFileAttributesW(WidePath(target_).c_str());
    if (Has(attributes, FILE_ATTRIBUTE_DIRECTORY))
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a file").arg(name_));
    if (Has(attributes, FILE_ATTRIBUTE_READONLY) && !isOldDropped_)
        Raise(ERROR_ACCESS_DENIED);
    MakeAside();
}

void WriteAside::MakeAside() {
    Leftovers::Sweep(FolderOf(target_));
    HANDLE handle = INVALID_HANDLE_VALUE;
    do {
        aside_ = FolderOf(target_) + PrivateName();
        handle = CreateFileW(WidePath(aside_).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                             CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    } while (handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_EXISTS);
    if (handle == INVALID_HANDLE_VALUE)
        Raise(static_cast<long>(GetLastError()));
    out_ = File(reinterpret_cast<qintptr>(handle), name_);
}

WriteAside::~WriteAside() {
    if (aside_.isEmpty())
        return;
    Ignoring([&] { out_.Close(); });
    DeleteFileW(WidePath(aside_).c_str());
}

void WriteAside::Commit(bool flush) {
    if (flush)
        out_.Flush();
    static_cast<void>(out_.Handle()); // raises when there is nothing to be put in place
    out_.Close();
    const std::wstring from = WidePath(aside_);
    const std::wstring to = WidePath(target_);
    const DWORD attributes = GetFileAttributesW(to.c_str());
    if (isOldDropped_ && Has(attributes, FILE_ATTRIBUTE_READONLY))
        SetFileAttributesW(to.c_str(), FILE_ATTRIBUTE_NORMAL);
    else if (Has(attributes, FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY))
        Raise(ERROR_ACCESS_DENIED);
    const bool isLink = Has(attributes, FILE_ATTRIBUTE_REPARSE_POINT);
    if (attributes != INVALID_FILE_ATTRIBUTES && !isOldDropped_ && !isLink)
        TakeOver(from, to, attributes);
    // ReplaceFileW would keep all that by itself, but in two renames, between which there is no target.
    const DWORD flags = MOVEFILE_REPLACE_EXISTING | (flush ? MOVEFILE_WRITE_THROUGH : 0U);
    if (MoveFileExW(from.c_str(), to.c_str(), flags) == 0)
        Raise(static_cast<long>(GetLastError()));
    aside_.clear();
}

void WriteAside::Raise(long error) const {
    RaiseLastError(static_cast<unsigned long>(error), name_);
}

namespace ReplacedFile {

QString BehindLinks(const QString& path) {
    const QString followed = Followed(path);
    const QString share = QStringLiteral("\\\\?\\UNC\\");
    const QString device = QStringLiteral("\\\\?\\");
    if (followed.startsWith(share))
        return QStringLiteral("\\\\") + followed.sliced(share.size());
    return followed.startsWith(device) ? followed.sliced(device.size()) : followed;
}

bool IsWriteProtected(const QString& path) {
    const DWORD attributes = GetFileAttributesW(WidePath(path).c_str());
    constexpr DWORD either = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & either) == FILE_ATTRIBUTE_READONLY;
}

// Nothing takes the place of an open file here, so it is held by a second name meanwhile, which goes with its handle,
// even when the process dies. Some file systems have no second names.
StaysOpen::StaysOpen(File& file, const QString& path) : file_(file) {
    const QString target = Followed(path);
    name_ = FolderOf(target) + PrivateName();
    if (CreateHardLinkW(WidePath(name_).c_str(), WidePath(target).c_str(), nullptr) == 0)
        name_.clear();
    Ignoring([&] { file_.Close(); });
}

StaysOpen::~StaysOpen() {
    if (name_.isEmpty())
        return;
    const HANDLE handle = CreateFileW(WidePath(name_).c_str(), GENERIC_READ | DELETE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        DeleteFileW(WidePath(name_).c_str());
    else
        file_ = File(reinterpret_cast<qintptr>(handle), name_);
}

// The owner is the folder's matter here; hidden and system files stay so.
bool KeepOwnerAndMode(const File& file, const QString& old) {
    FILE_BASIC_INFO information{}; // times of zero stay as they are
    information.FileAttributes = GetFileAttributesW(WidePath(old).c_str());
    return information.FileAttributes != INVALID_FILE_ATTRIBUTES &&
           SetFileInformationByHandle(reinterpret_cast<HANDLE>(file.Handle()), FileBasicInfo, &information,
                                      sizeof information) != 0;
}

} // namespace ReplacedFile
