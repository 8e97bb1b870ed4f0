// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A ZIP archive that is kept open, and the way of its entries to the disk.
#pragma once

#include "core/FolderGateway.h"
#include "install/zip/ZipDirectory.h"
#include "install/zip/ZipLibrary.h"
#include "platform/File.h"

#include <functional>
#include <memory>

class ZipReading {
public:
    /// Opens an archive (inside path). Raises a ZipFailure for what is none, and as File::Open.
    explicit ZipReading(const QString& path);
    ~ZipReading();
    ZipReading(const ZipReading&) = delete;
    ZipReading& operator=(const ZipReading&) = delete;

    [[nodiscard]] const ZipDirectory& Directory() const { return directory_; }

    [[nodiscard]] const ZipEntry& Entry(qsizetype place) const {
        return directory_.Entries()[static_cast<std::size_t>(place)];
    }

    /// Raises a ZipFailure for an entry that no password would open.
    void RequireReadable(qsizetype place) { library_.RequireReadable(place); }

    /// Writes an entry to the file `target` below a folder (an inside path, made when missing), whole or not at all;
    /// does not wait for the disk. `watch`, where one is set, is told of the bytes that are written. Yields between
    /// blocks. Raises a ZipFailure for what is wrong with the entry, and what the gateway and WriteAside raise.
    void Unpack(qsizetype place, const QString& folder, const QString& target, const QByteArray& password,
                const std::function<void(qint64)>& watch);

    /// Makes a folder below a folder.
    void MakeFolder(const QString& folder, const QString& name);

private:
    FolderGateway& GatewayTo(const QString& folder);
    QString TargetIn(const QString& folder, const QString& name);
    void RequireEnd(const ZipEntry& entry, qint64 size) const;

    File archive_;
    QString fileName_; ///< the archive's, without case
    ZipDirectory directory_;
    ZipLibrary library_;
    QByteArray block_;
    std::unique_ptr<FolderGateway> gateway_; ///< of the last folder: it knows what stands there
    QString gatewayFolder_;
};
