// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/File.h"

#include "platform/RuntimeError.h"

#include <utility>

File::File(qintptr handle, QString name, std::optional<Told> told)
    : handle_(handle),
      name_(std::move(name)),
      told_(told) {}

File::File(File&& other) noexcept
    : handle_(std::exchange(other.handle_, NoHandle)),
      name_(std::move(other.name_)),
      told_(other.told_) {}

File& File::operator=(File&& other) noexcept {
    std::swap(handle_, other.handle_);
    std::swap(name_, other.name_);
    std::swap(told_, other.told_);
    return *this;
}

qint64 File::LengthWhenOpened() const {
    return told_ ? told_->Length : Length();
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
