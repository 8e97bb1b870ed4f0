// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/MediaFiles.h"

#include "platform/File.h"

QByteArray MediaFiles::Read(const QString& path, qint64 longest) {
    const File file = File::Open(path, File::Access::Read);
    const qint64 length = file.Length();
    return length <= longest ? file.Read(0, length) : QByteArray();
}

void MediaFiles::Write(const QString& path, const QByteArray& bytes) {
    File file = File::Open(path, File::Access::Replace);
    file.Write(0, bytes);
    file.Close();
}
