// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one way by which a name out of an archive becomes a file on disk: nobody gets out of the folder.
#pragma once

#include "platform/HeldFolder.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <memory>
#include <optional>

/// Turns names into places below one folder, which is held open. The case of existing folders and files is looked up
/// once a folder. A link below it is followed only as far as it stays inside, and never where a file is to be.
class FolderGateway {
public:
    /// The folder (an inside path) is made when missing; raises when it can't be.
    explicit FolderGateway(const QString& folder);
    ~FolderGateway();
    FolderGateway(const FolderGateway&) = delete;
    FolderGateway& operator=(const FolderGateway&) = delete;

    /// Where one is set: told of each folder that is made, an inside path with its trailing backslash.
    std::function<void(const QString&)> Made;

    /// The place for a name, its folders made, in the case that the disk has. What is written there stays below the
    /// folder, whatever others do meanwhile. Raises 75 with the reason for a name that may not be written, and what the
    /// system raises for a folder.
    FilePlace PlaceFor(const QString& name);

    /// Its inside path, for folders that are the program's own: good as long as nobody exchanges anything there.
    QString TargetFor(const QString& name) { return PlaceFor(name).Path(); }

    /// Makes the folder of a name and those above it, as far as they are missing; a separator behind the name is fine.
    /// Raises as TargetFor.
    void MakeFolder(const QString& name);

    /// Why a name may not be written: it is empty or too long, leaves the folder, names a device, or holds what file
    /// names can't. Empty for a good name. Both separators count; the answer is the same on every system.
    static QString RefusalOf(QStringView name);

    /// Whether no path can be as long as a name.
    static bool IsTooLong(QStringView name);

    /// Why a name can't be one folder's; empty for a good one.
    static QString RefusalOfFolder(QStringView name);

private:
    struct Folder;

    Folder& FolderFor(QStringView relative);
    Folder& FindOrMake(Folder& parent, QStringView name, QStringView relative);
    void Find(Folder& folder, QStringView relative);
    const std::shared_ptr<const HeldFolder>& Hold(const Folder& folder);
    [[nodiscard]] std::optional<QString> InsidePart(const QString& path) const;
    void Forget();

    QString root_;
    std::shared_ptr<const HeldFolder> held_; ///< of the last folder that was asked for
    const Folder* heldFolder_ = nullptr;
    std::shared_ptr<const HeldFolder> top_;
    std::unique_ptr<Folder> topFolder_; ///< owns all that are known
    std::size_t known_ = 0;             ///< how many those are
    Folder* last_ = nullptr;            ///< of them
    QString lastName_;                  ///< as it was asked for
};
