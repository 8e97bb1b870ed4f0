// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A folder whose files are listed and opened by the thousand: its path is looked up once and not for each of them.
#pragma once

#include "platform/File.h"

#include <QString>
#include <QStringList>

#include <memory>

class ListedFolder {
public:
    /// An inside path, with a trailing backslash or without. Raises 76 with its name when it can't be listed.
    explicit ListedFolder(const QString& folder);
    ~ListedFolder();
    ListedFolder(const ListedFolder&) = delete;
    ListedFolder& operator=(const ListedFolder&) = delete;

    /// The names in the directory's order, without "." and "..". Folders and links to folders are among them or not:
    /// the system mostly tells what a name stands for, and a look at each file is saved. Raises 76 when the folder
    /// can't be listed to its end.
    [[nodiscard]] QStringList Names(bool withFolders) const;

    /// Opens a file of that name, in exactly these letters, to be read. Raises like File::Open.
    [[nodiscard]] File Open(const QString& name) const;

    /// The path of a file of that name as the system writes it, for messages.
    [[nodiscard]] QString NativePath(const QString& name) const;

private:
    struct System;

    std::unique_ptr<System> system_;
};
