// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ListedFolder.h"

#include "platform/FolderEntries.h"

struct ListedFolder::System {
    explicit System(const QString& folder) : Folder(folder), Entries(FolderEntries(folder)) {
        if (!Folder.isEmpty() && !Folder.endsWith(u'\\'))
            Folder += u'\\';
    }

    QString Folder; ///< with a trailing backslash
    std::vector<FolderEntry> Entries;
};

ListedFolder::ListedFolder(const QString& folder) : system_(std::make_unique<System>(folder)) {}

ListedFolder::~ListedFolder() = default;

QStringList ListedFolder::Names(bool withFolders) const {
    QStringList names;
    for (const FolderEntry& entry : system_->Entries) {
        if (withFolders || !entry.IsFolder)
            names.append(entry.Name);
    }
    return names;
}

File ListedFolder::Open(const QString& name) const {
    return File::OpenAsGiven(NativePath(name), File::Access::Read);
}

QString ListedFolder::NativePath(const QString& name) const {
    return system_->Folder + name;
}
