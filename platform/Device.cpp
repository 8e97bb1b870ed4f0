// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Device.h"

#include "platform/File.h"
#include "platform/LargePages.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr qint64 BlockSize = qint64{1024} * 1024;

void RequirePosition(qint64 position, const QString& name) {
    if (position < 0)
        throw RuntimeError(ErrorNumber::InvalidCall, QStringLiteral("%1: a position before the start").arg(name));
}

} // namespace

QByteArray Device::Read(qint64 offset, qint64 count) const {
    RequirePosition(offset, Name());
    const qint64 there = std::clamp<qint64>(Length() - offset, 0, std::max<qint64>(count, 0));
    QByteArray bytes(there, Qt::Uninitialized);
    PreferLargePages(bytes);
    bytes.truncate(ReadInto(offset, bytes.data(), there));
    return bytes;
}

MemoryDevice::MemoryDevice(QByteArray bytes, QString name) : bytes_(std::move(bytes)), name_(std::move(name)) {}

qint64 MemoryDevice::Length() const {
    return bytes_.size();
}

qint64 MemoryDevice::ReadInto(qint64 offset, char* bytes, qint64 count) const {
    RequirePosition(offset, name_);
    const qint64 there = std::clamp<qint64>(bytes_.size() - offset, 0, std::max<qint64>(count, 0));
    if (there > 0)
        std::memcpy(bytes, bytes_.constData() + offset, static_cast<std::size_t>(there));
    return there;
}

void MemoryDevice::Write(qint64 offset, QByteArrayView bytes) {
    RequirePosition(offset, name_);
    if (bytes.isEmpty())
        return;
    SetLength(std::max<qint64>(bytes_.size(), offset + bytes.size()));
    std::memcpy(bytes_.data() + offset, bytes.data(), static_cast<std::size_t>(bytes.size()));
}

void MemoryDevice::SetLength(qint64 length) {
    RequirePosition(length, name_);
    bytes_.resize(length, '\0');
}

QString MemoryDevice::Name() const {
    return name_;
}

qint64 CopyBytes(Device& to, qint64 toOffset, const Device& from, qint64 fromOffset, qint64 count) {
    if (auto* target = dynamic_cast<File*>(&to); target != nullptr) {
        if (const auto* source = dynamic_cast<const File*>(&from); source != nullptr)
            return target->CopyFrom(toOffset, *source, fromOffset, count);
    }
    QByteArray block(std::clamp<qint64>(count, 0, BlockSize), Qt::Uninitialized);
    qint64 done = 0;
    while (done < count) {
        const qint64 wanted = std::min<qint64>(count - done, block.size());
        const qint64 had = from.ReadInto(fromOffset + done, block.data(), wanted);
        to.Write(toOffset + done, QByteArrayView(block).first(had));
        done += had;
        if (had < wanted)
            break;
    }
    return done;
}
