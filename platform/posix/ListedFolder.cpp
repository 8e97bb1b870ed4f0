// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ListedFolder.h"

#include "platform/posix/Listing.h"
#include "platform/posix/OpenNative.h"

struct ListedFolder::System {
    explicit System(const QString& nativeFolder)
        : Folder(nativeFolder.endsWith(u'/') ? nativeFolder : nativeFolder + u'/'),
          Entries(nativeFolder) {}

    QString Folder; ///< native, with a trailing slash
    Listing Entries;
};

ListedFolder::ListedFolder(const QString& folder)
    : system_(std::make_unique<System>(Paths::ToNative(folder.isEmpty() ? QStringLiteral(".") : folder))) {}

ListedFolder::~ListedFolder() = default;

QStringList ListedFolder::Names(bool withFolders) const {
    Listing& entries = system_->Entries;
    entries.Rewind();
    QStringList names;
    while (const dirent* entry = entries.Next()) {
        if (withFolders || !entries.IsFolder(*entry))
            names.append(Listing::NameOf(*entry));
    }
    return names;
}

File ListedFolder::Open(const QString& name) const {
    const QString native = Paths::NameToNative(name);
    return OpenNative(system_->Entries.Descriptor(), Paths::EncodeNative(native), system_->Folder + native,
                      File::Access::Read);
}

QString ListedFolder::NativePath(const QString& name) const {
    return system_->Folder + Paths::NameToNative(name);
}
