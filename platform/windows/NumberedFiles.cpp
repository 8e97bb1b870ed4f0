// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NumberedFiles.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

#include <algorithm>
#include <map>

namespace {

constexpr qint64 BlockSize = qint64{1024} * 1024;

struct Numbered {
    HANDLE File;
    QString Name;
};

std::map<int, Numbered>& Table() {
    static std::map<int, Numbered> table;
    return table;
}

Numbered& Find(int number) {
    const auto found = Table().find(number);
    if (found == Table().end())
        throw RuntimeError(ErrorNumber::BadFileNumber, QStringLiteral("file number %1 is not open").arg(number));
    return found->second;
}

DWORD Creation(NumberedFiles::Access access) {
    switch (access) {
    case NumberedFiles::Access::Read:
        return OPEN_EXISTING;
    case NumberedFiles::Access::ReadWrite:
        return OPEN_ALWAYS;
    case NumberedFiles::Access::Replace:
        return CREATE_ALWAYS;
    }
    return OPEN_EXISTING;
}

OVERLAPPED At(qint64 offset) {
    OVERLAPPED position{};
    position.Offset = static_cast<DWORD>(static_cast<quint64>(offset) & 0xFFFFFFFFU);
    position.OffsetHigh = static_cast<DWORD>(static_cast<quint64>(offset) >> 32U);
    return position;
}

} // namespace

namespace NumberedFiles {

void Open(int number, const QString& path, Access access) {
    if (IsOpen(number))
        throw RuntimeError(ErrorNumber::FileAlreadyOpen, QStringLiteral("file number %1 is open already").arg(number));
    const DWORD wanted = access == Access::Read ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const HANDLE file = CreateFileW(WidePath(path).c_str(), wanted, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    Creation(access), FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        RaiseLastError(GetLastError(), path);
    if (GetFileType(file) != FILE_TYPE_DISK) {
        CloseHandle(file);
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("%1: not a file").arg(path));
    }
    Table()[number] = {file, path};
}

void OpenAsGiven(int number, const QString& path, Access access) {
    Open(number, path, access);
}

bool IsOpen(int number) {
    return Table().contains(number);
}

void Close(int number) {
    const auto found = Table().find(number);
    if (found == Table().end())
        return;
    const Numbered closing = found->second;
    Table().erase(found);
    if (CloseHandle(closing.File) == 0)
        RaiseLastError(GetLastError(), closing.Name);
}

void CloseAll() {
    for (const auto& [number, file] : Table())
        CloseHandle(file.File);
    Table().clear();
}

qint64 Length(int number) {
    const Numbered& file = Find(number);
    LARGE_INTEGER length{};
    if (GetFileSizeEx(file.File, &length) == 0)
        RaiseLastError(GetLastError(), file.Name);
    return length.QuadPart;
}

QByteArray Read(int number, qint64 offset, qint64 count) {
    QByteArray bytes(std::clamp<qint64>(Length(number) - offset, 0, count), Qt::Uninitialized);
    bytes.truncate(ReadInto(number, offset, bytes.data(), bytes.size()));
    return bytes;
}

qint64 ReadInto(int number, qint64 offset, char* bytes, qint64 count) {
    const Numbered& file = Find(number);
    qint64 done = 0;
    while (done < count) {
        OVERLAPPED position = At(offset + done);
        DWORD had = 0;
        const auto wanted = static_cast<DWORD>(std::min(count - done, BlockSize));
        if (ReadFile(file.File, bytes + done, wanted, &had, &position) == 0 && GetLastError() != ERROR_HANDLE_EOF)
            RaiseLastError(GetLastError(), file.Name);
        if (had == 0)
            break;
        done += had;
    }
    return done;
}

void Write(int number, qint64 offset, QByteArrayView bytes) {
    const Numbered& file = Find(number);
    qint64 done = 0;
    while (done < bytes.size()) {
        OVERLAPPED position = At(offset + done);
        DWORD written = 0;
        const auto wanted = static_cast<DWORD>(std::min<qint64>(bytes.size() - done, BlockSize));
        if (WriteFile(file.File, bytes.data() + done, wanted, &written, &position) == 0)
            RaiseLastError(GetLastError(), file.Name);
        done += written;
    }
}

qint64 Copy(int to, qint64 toOffset, int from, qint64 fromOffset, qint64 count) {
    qint64 done = 0;
    while (done < count) {
        const QByteArray block = Read(from, fromOffset + done, std::min(count - done, BlockSize));
        if (block.isEmpty())
            break;
        Write(to, toOffset + done, block);
        done += block.size();
    }
    return done;
}

void SetLength(int number, qint64 length) {
    const Numbered& file = Find(number);
    LARGE_INTEGER end{};
    end.QuadPart = length;
    if (SetFilePointerEx(file.File, end, nullptr, FILE_BEGIN) == 0 || SetEndOfFile(file.File) == 0)
        RaiseLastError(GetLastError(), file.Name);
}

void Flush(int number) {
    const Numbered& file = Find(number);
    if (FlushFileBuffers(file.File) == 0)
        RaiseLastError(GetLastError(), file.Name);
}

} // namespace NumberedFiles
