// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LeftoverFiles.h"

#include "platform/PrivateName.h"
#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

#include <memory>

namespace {

/// The system's units of 100 nanoseconds.
using Ticks = std::chrono::duration<quint64, std::ratio<1, 10'000'000>>;

quint64 TicksOf(const FILETIME& time) {
    return (quint64{time.dwHighDateTime} << 32U) | time.dwLowDateTime;
}

bool IsOld(const WIN32_FIND_DATAW& found) {
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const quint64 written = TicksOf(found.ftLastWriteTime);
    return TicksOf(now) >= written && Ticks(TicksOf(now) - written) >= LeftoverAge;
}

/// One that its writer still has open shares it with nobody who would delete it.
void DeleteUnlessOpen(const QString& path) {
    const HANDLE handle = CreateFileW(WidePath(path).c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle != INVALID_HANDLE_VALUE)
        CloseHandle(handle);
}

} // namespace

void SweepLeftovers(const QString& nativeFolder) {
    const QString folder = nativeFolder.isEmpty() ? QStringLiteral(".\\") : nativeFolder;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(WidePath(folder + QStringLiteral("~brindock-*")).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    const std::unique_ptr<void, BOOL (*)(HANDLE)> owned(search, [](HANDLE handle) { return FindClose(handle); });
    do {
        const QString name = QString::fromWCharArray(static_cast<const wchar_t*>(found.cFileName));
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 && IsPrivateName(name) && IsOld(found))
            DeleteUnlessOpen(folder + name);
    } while (FindNextFileW(search, &found) != 0);
}
