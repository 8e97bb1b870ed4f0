// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Writes ZIP archives, record by record, with names in the ANSI code page (or, where asked for,
/// in UTF-8) and backslashes in them. Layout: PKWARE's
/// APPNOTE.TXT, the records of version 2.0. Each file is read and deflated when it is added and stays in memory.
#pragma once

#include "install/zip/ZipFile.h"

#include <functional>
#include <vector>

class Device;

class ZipClass {
public:
    static constexpr qint32 NameOnly = 0;  ///< the last part of the path; every value but the other two, too
    static constexpr qint32 WholePath = 1; ///< the path, made absolute
    static constexpr qint32 Relative = 2;  ///< from the current directory on where it lies below, else the whole path

    /// Where relative paths begin, and names stored as such: an inside path. The process's own to begin with, which is
    /// never changed.
    QString CurrentDirectory;

    /// Whether names that the ANSI page lacks a letter for are stored in UTF-8 and flagged, and not with '?' for it.
    /// Not so to begin with.
    bool Utf8Names = false;

    /// Serves the interface between files and folders, where it is set. What it runs leaves this archive alone.
    std::function<void()> Yield;

    /// Where one is set: told how many bytes more of the file that is being added are packed, piece by piece. What it
    /// throws ends the adding; the file is not in then.
    std::function<void(qint64)> Watch;

    ZipClass();

    [[nodiscard]] qint32 FileCount() const { return static_cast<qint32>(entries_.size()); }

    /// The archive's comment; empty to begin with.
    [[nodiscard]] const QString& Comment() const { return comment_; }

    /// Raises 6 for more than 32,767 bytes in the ANSI code page, and the comment stays as it was.
    void SetComment(const QString& comment);

    /// Entries by their number, from 1 on: an empty text and 0 for a number that is none.
    [[nodiscard]] QString FileName(qint32 index) const;
    [[nodiscard]] qint32 SizeCompressed(qint32 index) const;
    [[nodiscard]] qint32 SizeUncompressed(qint32 index) const;

    /// Takes an entry out; false for a number that is none.
    bool FileDel(qint32 index);

    /// Adds a file, or the files that a pattern names, with `recurse` those in all subfolders below too (ZipWalk);
    /// returns how many. An empty text adds nothing. Raises at an empty file (9), at one that can't be read or is too
    /// large, and at a folder that can't be listed: that ends the walk, and what was added before stays.
    qint32 FileAdd(const QString& path, qint32 pathStorage, bool recurse);

    /// Writes the archive, in one step over what stands there; the entries stay. False, and nothing is touched, when
    /// the file exists and may not be overwritten. Raises 6 for more than 32,767 entries or 4 GiB, and what the system
    /// says of a failed write: then what stood there stands.
    ///
    /// An archive that grows by one item after another is written once, behind the last: each write would be the whole
    /// archive, and of all but the last nothing is ever to be seen.
    [[nodiscard]] bool WriteZip(const QString& path, bool overwrite) const;

    /// The archive's bytes, from a device's beginning on.
    void Write(Device& out) const;

private:
    [[nodiscard]] const ZipFile* Entry(qint32 index) const;
    bool AddOneFile(const QString& path, qint32 pathStorage);
    [[nodiscard]] QString StoredName(const QString& path, qint32 pathStorage) const;
    void Serve() const;

    QString comment_;
    std::vector<ZipFile> entries_;
};
