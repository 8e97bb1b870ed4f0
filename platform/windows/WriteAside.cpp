// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/WriteAside.h"

#include "platform/PrivateName.h"
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

/// Puts one file in the place of another with what the old one has: its attributes, its owner, who may do what.
bool PutOver(const QString& aside, const QString& target) {
    constexpr DWORD ignoreAclErrors = 0x4; // REPLACEFILE_IGNORE_ACL_ERRORS, which not every SDK names
    constexpr DWORD mergeWhatCanBe = REPLACEFILE_IGNORE_MERGE_ERRORS | ignoreAclErrors;
    const std::wstring from = WidePath(aside);
    const std::wstring to = WidePath(target);
    if (ReplaceFileW(to.c_str(), from.c_str(), nullptr, mergeWhatCanBe, nullptr, nullptr) != 0)
        return true;
    // Not every file system can do that: then the attributes alone.
    SetFileAttributesW(from.c_str(), GetFileAttributesW(to.c_str()));
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

} // namespace

WriteAside::WriteAside(const QString& target, Names names) : name_(target), target_(Followed(target)) {
    static_cast<void>(names); // the system finds every spelling
    const DWORD attributes = GetFileAttributesW(WidePath(target_).c_str());
    if (Has(attributes, FILE_ATTRIBUTE_DIRECTORY))
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a file").arg(name_));
    if (Has(attributes, FILE_ATTRIBUTE_READONLY))
        Raise(ERROR_ACCESS_DENIED);
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
    if (Has(attributes, FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY))
        Raise(ERROR_ACCESS_DENIED);
    const bool done =
        attributes == INVALID_FILE_ATTRIBUTES
            ? MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0
            : PutOver(aside_, target_);
    if (!done)
        Raise(static_cast<long>(GetLastError()));
    aside_.clear();
}

void WriteAside::Raise(long error) const {
    RaiseLastError(static_cast<unsigned long>(error), name_);
}
