// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Namesakes.h"

#include "platform/Files.h"
#include "platform/FolderEntries.h"
#include "platform/RuntimeError.h"

QStringList FoldersWithNamesake(const QString& folder, const QString& ending) {
    const QString path = folder.endsWith(u'\\') ? folder : folder + u'\\';
    QStringList names;
    Ignoring([&] {
        for (const FolderEntry& entry : FolderEntries(path)) {
            if (entry.IsFolder && Files::FileExists(path + entry.Name + u'\\' + entry.Name + ending))
                names.append(entry.Name);
        }
    });
    return names;
}
