// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/MediaFiles.h"

#include "platform/NumberedFiles.h"

using NumberedFiles::Access;

namespace {
constexpr int Number = 9;
}

QByteArray MediaFiles::Read(const QString& path, qint64 longest) {
    NumberedFiles::Close(Number);
    NumberedFiles::Open(Number, path, Access::Read);
    const qint64 length = NumberedFiles::Length(Number);
    QByteArray bytes = NumberedFiles::Read(Number, 0, length <= longest ? length : 0);
    NumberedFiles::Close(Number);
    return bytes;
}

void MediaFiles::Write(const QString& path, const QByteArray& bytes) {
    NumberedFiles::Close(Number);
    NumberedFiles::Open(Number, path, Access::Replace);
    NumberedFiles::Write(Number, 0, bytes);
    NumberedFiles::Close(Number);
}
