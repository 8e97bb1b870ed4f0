// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ChangeMark.h"

#include "platform/Paths.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <optional>

namespace {

/// The coarsest times of the file systems in use.
constexpr time_t StepBackSeconds = 2;

std::optional<struct stat> Status(const QString& path) {
    struct stat status {};

    if (::stat(Paths::EncodeNative(Paths::ToNative(path)).constData(), &status) != 0 || S_ISDIR(status.st_mode))
        return std::nullopt;
    return status;
}

} // namespace

void ChangeMark::Clear(const QString& path) {
    const auto status = Status(path);
    if (!status)
        return;
    const std::array<timespec, 2> times{{{0, UTIME_OMIT}, {status->st_mtim.tv_sec - StepBackSeconds, 0}}};
    ::utimensat(AT_FDCWD, Paths::EncodeNative(Paths::ToNative(path)).constData(), times.data(), 0);
}

QByteArray ChangeMark::StateOf(const QString& path) {
    const auto status = Status(path);
    if (!status)
        return {};
    QByteArray state;
    for (const auto part : {qint64(status->st_dev), qint64(status->st_ino), qint64(status->st_size),
                            qint64(status->st_mtim.tv_sec), qint64(status->st_mtim.tv_nsec)})
        state += QByteArray::number(part) + ' ';
    return state;
}
