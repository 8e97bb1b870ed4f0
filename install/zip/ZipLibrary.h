// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Decrypts and unpacks entries through libzip.
///
/// The library never sees the archive's own directory, which it would refuse as a whole for one bad name, and search
/// for ever where a comment is full of ends: it is shown the archive with a plain directory behind it, a few thousand
/// entries at a time, whose names are empty.
#pragma once

#include "install/zip/ReadAhead.h"
#include "install/zip/ZipDirectory.h"

#include <memory>

struct zip;
struct zip_file;

/// The bytes that one entry yields.
class ZipStream {
public:
    ZipStream(std::shared_ptr<zip> archive, zip_file* file, QString name);
    ~ZipStream();
    ZipStream(const ZipStream&) = delete;
    ZipStream& operator=(const ZipStream&) = delete;

    /// The next bytes; fewer than `count` only at the end, when all that can be verified was found good. Raises a
    /// ZipFailure where it was not.
    qint64 Read(char* bytes, qint64 count);

private:
    std::shared_ptr<zip> archive_;
    zip_file* file_;
    QString name_;
};

class ZipLibrary {
public:
    /// Both outlive it and its streams.
    ZipLibrary(const Device& archive, const ZipDirectory& directory)
        : archive_(archive),
          bytes_(archive),
          directory_(directory) {}

    /// Opens an entry by its place in the directory; the password is not looked at where none is needed. Raises a
    /// ZipFailure; nothing says then that a password that was not refused is the right one.
    std::unique_ptr<ZipStream> Open(qsizetype place, const QByteArray& password);

    /// Raises a ZipFailure for an entry that no password would open.
    void RequireReadable(qsizetype place);

    /// Whoever had a failure calls this: the library would not read on.
    void Forget() { opened_.reset(); }

private:
    void Show(qsizetype place);
    void RequireInPlace(const ZipEntry& entry);
    std::unique_ptr<ZipStream> OpenFile(qsizetype place, const QByteArray& password, bool decryptOnly) const;

    const Device& archive_;
    ReadAhead bytes_;
    const ZipDirectory& directory_;
    std::shared_ptr<zip> opened_;
    qsizetype first_ = 0; ///< the place of the first entry that is shown
};
