// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/File.h"

#include "platform/RuntimeError.h"

#include <utility>

File::File(qintptr handle, QString name, std::optional<qint64> modified)
    : handle_(handle),
      name_(std::move(name)),
      modified_(modified) {}

File::File(File&& other) noexcept
    : handle_(std::exchange(other.handle_, NoHandle)),
      name_(std::move(other.name_)),
      modified_(other.modified_) {}

File& File::operator=(File&& other) noexcept {
    std::swap(handle_, other.handle_);
    std::swap(name_, other.name_);
    std::swap(modified_, other.modified_);
    return *this;
}

qintptr File::Handle() const {
    if (!IsOpen())
        throw RuntimeError(ErrorNumber::BadFileNumber, QStringLiteral("%1: the file is not open").arg(name_));
    return handle_;
}

QString File::Name() const {
    return name_;
}

QByteArray ReadWhole(const QString& path) {
    const File file = File::Open(path, File::Access::Read);
    return file.Read(0, file.Length());
}

QByteArray WholeOrNothing(const QString& path) {
    try {
        return ReadWhole(path);
    } catch (const RuntimeError& failure) {
        if (failure.Number() != ErrorNumber::FileNotFound && failure.Number() != ErrorNumber::PathNotFound)
            throw;
        return {};
    }
}
