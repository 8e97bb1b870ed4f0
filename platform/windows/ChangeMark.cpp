// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ChangeMark.h"

#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

#include <optional>

namespace {

constexpr quint64 TicksASecond = 10'000'000;
/// The coarsest times of the file systems in use.
constexpr quint64 StepBack = 2 * TicksASecond;

/// A file that is opened for its attributes alone, whoever else has it open.
class Attributes {
public:
    Attributes(const QString& path, DWORD access)
        : handle_(CreateFileW(WidePath(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                              nullptr, OPEN_EXISTING, 0, nullptr)) {}

    ~Attributes() {
        if (handle_ != INVALID_HANDLE_VALUE)
            CloseHandle(handle_);
    }

    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    [[nodiscard]] std::optional<BY_HANDLE_FILE_INFORMATION> Read() const {
        BY_HANDLE_FILE_INFORMATION information{};
        if (handle_ == INVALID_HANDLE_VALUE || GetFileInformationByHandle(handle_, &information) == 0)
            return std::nullopt;
        return information;
    }

    void SetTime(const FILETIME& time) const { SetFileTime(handle_, nullptr, nullptr, &time); }

private:
    HANDLE handle_;
};

quint64 Ticks(const FILETIME& time) {
    return (quint64{time.dwHighDateTime} << 32U) | time.dwLowDateTime;
}

} // namespace

void ChangeMark::Clear(const QString& path) {
    const DWORD attributes = GetFileAttributesW(WidePath(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return;
    SetFileAttributesW(WidePath(path).c_str(), FILE_ATTRIBUTE_NORMAL);
    const Attributes file(path, FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES);
    if (const auto information = file.Read()) {
        const quint64 earlier = Ticks(information->ftLastWriteTime) / TicksASecond * TicksASecond - StepBack;
        file.SetTime({static_cast<DWORD>(earlier), static_cast<DWORD>(earlier >> 32U)});
    }
    // Setting the time counts as writing on some file systems.
    SetFileAttributesW(WidePath(path).c_str(), FILE_ATTRIBUTE_NORMAL);
}

QByteArray ChangeMark::StateOf(const QString& path) {
    const auto information = Attributes(path, FILE_READ_ATTRIBUTES).Read();
    if (!information)
        return {};
    QByteArray state;
    for (const quint64 part :
         {quint64{information->dwFileAttributes & FILE_ATTRIBUTE_ARCHIVE}, quint64{information->dwVolumeSerialNumber},
          quint64{information->nFileIndexHigh}, quint64{information->nFileIndexLow},
          quint64{information->nFileSizeHigh}, quint64{information->nFileSizeLow}, Ticks(information->ftLastWriteTime)})
        state += QByteArray::number(part) + ' ';
    return state;
}
