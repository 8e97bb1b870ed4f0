// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A ZIP archive that is kept open, and the way of its entries to the disk.
#pragma once

#include "core/FolderGateway.h"
#include "install/FileWatch.h"
#include "install/zip/ZipAhead.h"
#include "install/zip/ZipDirectory.h"
#include "install/zip/ZipLibrary.h"
#include "platform/File.h"

#include <functional>
#include <memory>
#include <vector>

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

    /// Where an entry is to be written: to a file below a folder (an inside path, made when missing), or to a place
    /// that a gateway gave.
    struct Target {
        QString Folder;
        QString Name;
        FilePlace Place{}; ///< without a folder where the two above are given
    };

    /// Who is told, where one is set: of the bytes that are written, and of the file.
    struct Watching {
        std::function<void(qint64)> Bytes;
        FileWatch* Files = nullptr;
    };

    /// Writes an entry whole or not at all; does not wait for the disk. Yields between blocks. Raises a ZipFailure for
    /// what is wrong with the entry, and what the gateway, WriteAside and who is told raise.
    void Unpack(qsizetype place, const Target& target, const QByteArray& password, const Watching& watching);

    /// Begins to unpack entries of those places, each at most once, for those who will want them in that order;
    /// `hashes` for those who will be watched. What was unpacked for others is let go.
    void Ahead(std::vector<qsizetype> places, bool hashes);

    /// Makes a folder below a folder.
    void MakeFolder(const QString& folder, const QString& name);

private:
    FolderGateway& GatewayTo(const QString& folder);
    bool PutAhead(qsizetype place, const Target& target, const Watching& watching);
    void UnpackAside(qsizetype place, const Target& target, const QByteArray& password, const Watching& watching);
    FilePlace PlaceOf(const Target& target);
    void RequireEnd(const ZipEntry& entry, qint64 size) const;

    File archive_;
    QString fileName_; ///< the archive's, without case
    ZipDirectory directory_;
    ZipLibrary library_;
    QByteArray block_;
    std::unique_ptr<FolderGateway> gateway_; ///< of the last folder: it knows what stands there
    QString gatewayFolder_;
    std::unique_ptr<ZipAhead> ahead_; ///< the archive and its directory outlive it
};
