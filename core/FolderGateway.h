// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one way by which a name out of an archive becomes a file on disk: nobody gets out of the folder.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

#include <memory>

/// Turns names into target paths below one folder. The case of existing folders and files is looked up once a folder.
class FolderGateway {
public:
    /// The folder (an inside path) is made when missing; raises when it can't be.
    explicit FolderGateway(const QString& folder);
    ~FolderGateway();
    FolderGateway(const FolderGateway&) = delete;
    FolderGateway& operator=(const FolderGateway&) = delete;

    /// The full inside path for a name, its folders made, in the case that the disk has: for
    /// NumberedFiles::OpenAsGiven. Raises 75 with the reason for a name that may not be written, and what the system
    /// raises for a folder.
    QString TargetFor(const QString& name);

    /// Makes the folder of a name and those above it, as far as they are missing; a separator behind the name is fine.
    /// Raises as TargetFor.
    void MakeFolder(const QString& name);

    /// Why a name may not be written: it is empty or too long, leaves the folder, names a device, or holds what file
    /// names can't. Empty for a good name. Both separators count; the answer is the same on every system.
    static QString RefusalOf(QStringView name);

    /// Why a name can't be one folder's; empty for a good one.
    static QString RefusalOfFolder(QStringView name);

private:
    struct Folder;

    Folder& FolderFor(QStringView relative);
    [[nodiscard]] bool IsInside(const QString& path) const;

    QString root_;
    QHash<QString, std::shared_ptr<Folder>> folders_;
};
