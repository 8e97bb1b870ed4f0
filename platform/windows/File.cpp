// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/File.h"

#include "platform/RuntimeError.h"
#include "platform/windows/Errors.h"
#include "platform/windows/FileTime.h"
#include "platform/windows/System.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 BlockSize = qint64{1024} * 1024;

DWORD Creation(File::Access access) {
    switch (access) {
    case File::Access::Read:
        return OPEN_EXISTING;
    case File::Access::ReadWrite:
        return OPEN_ALWAYS;
    case File::Access::Replace:
        return CREATE_ALWAYS;
    case File::Access::New:
        return CREATE_NEW;
    }
    return OPEN_EXISTING;
}

OVERLAPPED At(qint64 offset) {
    OVERLAPPED position{};
    position.Offset = static_cast<DWORD>(static_cast<quint64>(offset) & 0xFFFFFFFFU);
    position.OffsetHigh = static_cast<DWORD>(static_cast<quint64>(offset) >> 32U);
    return position;
}

HANDLE SystemHandle(const File& file) {
    return reinterpret_cast<HANDLE>(file.Handle()); // NOLINT(performance-no-int-to-ptr): a handle is no address
}

qint64 Wide(DWORD high, DWORD low) {
    return static_cast<qint64>((quint64{high} << 32U) | low);
}

bool ReadState(HANDLE handle, FileState& state) {
    BY_HANDLE_FILE_INFORMATION found{};
    if (GetFileInformationByHandle(handle, &found) == 0)
        return false;
    state.Identity = QByteArray::number(qulonglong{found.dwVolumeSerialNumber}) + ':' +
                     QByteArray::number(Wide(found.nFileIndexHigh, found.nFileIndexLow));
    state.Length = Wide(found.nFileSizeHigh, found.nFileSizeLow);
    state.Time = Wide(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime);
    return true;
}

} // namespace

File File::Open(const QString& path, Access access) {
    const DWORD wanted = access == Access::Read ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | (access == Access::Read ? FILE_SHARE_DELETE : 0);
    const HANDLE handle =
        CreateFileW(WidePath(path).c_str(), wanted, shared, nullptr, Creation(access), FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        RaiseLastError(GetLastError(), path);
    File file(reinterpret_cast<qintptr>(handle), path);
    if (GetFileType(handle) != FILE_TYPE_DISK)
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a file").arg(path));
    return file;
}

File File::OpenAsGiven(const QString& path, Access access) {
    return Open(path, access);
}

File::~File() {
    if (IsOpen())
        CloseHandle(SystemHandle(*this));
}

void File::Close() {
    if (!IsOpen())
        return;
    const HANDLE handle = SystemHandle(*this);
    handle_ = NoHandle;
    if (CloseHandle(handle) == 0)
        RaiseLastError(GetLastError(), name_);
}

void File::Flush() {
    if (FlushFileBuffers(SystemHandle(*this)) == 0)
        RaiseLastError(GetLastError(), name_);
}

FileState File::State() const {
    FileState state;
    if (!ReadState(SystemHandle(*this), state))
        RaiseLastError(GetLastError(), name_);
    return state;
}

qint64 File::CopyFrom(qint64 toOffset, const File& from, qint64 fromOffset, qint64 count) {
    QByteArray block(std::clamp<qint64>(count, 0, BlockSize), Qt::Uninitialized);
    qint64 done = 0;
    while (done < count) {
        const qint64 wanted = std::min<qint64>(count - done, block.size());
        const qint64 had = from.ReadInto(fromOffset + done, block.data(), wanted);
        Write(toOffset + done, QByteArrayView(block).first(had));
        done += had;
        if (had < wanted)
            break;
    }
    return done;
}

QDateTime File::Modified() const {
    FILETIME time{};
    if (GetFileTime(SystemHandle(*this), nullptr, nullptr, &time) == 0)
        RaiseLastError(GetLastError(), name_);
    return FromFileTime(time);
}

qint64 File::Length() const {
    LARGE_INTEGER length{};
    if (GetFileSizeEx(SystemHandle(*this), &length) == 0)
        RaiseLastError(GetLastError(), name_);
    return length.QuadPart;
}

qint64 File::ReadInto(qint64 offset, char* bytes, qint64 count) const {
    qint64 done = 0;
    while (done < count) {
        OVERLAPPED position = At(offset + done);
        DWORD had = 0;
        const auto wanted = static_cast<DWORD>(std::min(count - done, BlockSize));
        if (ReadFile(SystemHandle(*this), bytes + done, wanted, &had, &position) == 0) {
            if (const DWORD error = GetLastError(); error != ERROR_HANDLE_EOF)
                RaiseLastError(error, name_);
        }
        if (had == 0)
            break;
        done += had;
    }
    return done;
}

void File::Write(qint64 offset, QByteArrayView bytes) {
    qint64 done = 0;
    while (done < bytes.size()) {
        OVERLAPPED position = At(offset + done);
        DWORD written = 0;
        const auto wanted = static_cast<DWORD>(std::min<qint64>(bytes.size() - done, BlockSize));
        if (WriteFile(SystemHandle(*this), bytes.data() + done, wanted, &written, &position) == 0)
            RaiseLastError(GetLastError(), name_);
        done += written;
    }
}

void File::SetLength(qint64 length) {
    LARGE_INTEGER end{};
    end.QuadPart = length;
    const HANDLE handle = SystemHandle(*this);
    if (SetFilePointerEx(handle, end, nullptr, FILE_BEGIN) == 0 || SetEndOfFile(handle) == 0)
        RaiseLastError(GetLastError(), name_);
}

FileState StateOf(const QString& path) {
    FileState state;
    const HANDLE handle = CreateFileW(WidePath(path).c_str(), FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return state;
    const File file(reinterpret_cast<qintptr>(handle), path);
    if (GetFileType(handle) == FILE_TYPE_DISK)
        ReadState(handle, state);
    return state;
}
