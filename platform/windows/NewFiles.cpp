// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NewFiles.h"

#include "platform/File.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"
#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

struct NewFiles::System {
    /// One that nobody can foretell for all files of this folder, and their number: none of them lasts.
    QString Aside = PrivateName();
    unsigned Number = 0;
};

NewFiles::NewFiles(const QString& folder) : folder_(folder), system_(std::make_unique<System>()) {}

NewFiles::~NewFiles() = default;

bool NewFiles::Put(const QString& name, QByteArrayView bytes) {
    const std::wstring target = WidePath(folder_ + name);
    if (GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES)
        return false;
    const QString aside = folder_ + system_->Aside + QString::number(++system_->Number);
    File file;
    if (!Ignoring([&] { file = File::Open(aside, File::Access::New); }))
        return false;
    const bool isWritten = Ignoring([&] {
        file.Write(0, bytes);
        file.Close();
    });
    file = File();
    const std::wstring from = WidePath(aside);
    if (isWritten && MoveFileExW(from.c_str(), target.c_str(), 0) != 0)
        return true;
    DeleteFileW(from.c_str());
    return false;
}
