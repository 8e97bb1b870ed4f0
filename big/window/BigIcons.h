// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The pictures of archives, folders and files.
#pragma once

#include "big/document/FolderTree.h"

#include <QHash>
#include <QIcon>
#include <QString>

class BigIcons {
public:
    BigIcons();

    /// A node's two pictures in one.
    static QIcon Of(FolderImage closed, FolderImage selected);

    [[nodiscard]] QIcon File() const { return file_; }

    /// The system's picture of a real folder, or the program's own where that is wanted or the system has none.
    [[nodiscard]] QIcon Folder(bool system) const;

    /// What the system shows for a file of that name, which need not exist; a picture of the program's own by the kind
    /// of file where the system has none. Kept by extension.
    [[nodiscard]] QIcon ByType(const QString& fileName) const;

private:
    QIcon file_;
    QIcon folder_;
    mutable QIcon systemFolder_;
    mutable QHash<QString, QIcon> byExtension_;
};
