// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// One entry of a ZIP archive that is being written: its name, what its records say, its deflated data.
#pragma once

#include "install/zip/ZipRecords.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <functional>

class ZipFile {
public:
    /// Told how many bytes more are packed, piece by piece. What it throws ends the packing.
    using Watch = std::function<void(qint64)>;

    /// Reads a whole file (inside path) and deflates it; its name is the path's last part. Raises 9 for an empty file,
    /// 6 for one of some 2,126,000,000 bytes or more, 7 for one that the memory does not hold, and as File::Open for
    /// one that can't be read.
    explicit ZipFile(const QString& path, const Watch& watch = {});

    [[nodiscard]] const QString& Name() const { return name_; }

    enum class Letters {
        Page,           ///< in the ANSI code page, '?' for what it lacks
        Utf8WhereNeeded ///< in UTF-8, flagged as such, where the page lacks a letter; else in the page
    };

    /// The name as it will stand in the archive. Raises 6 beyond 32,767 bytes.
    void SetName(const QString& name, Letters letters = Letters::Page);

    /// The name's bytes, in the ANSI code page or in UTF-8.
    [[nodiscard]] const QByteArray& NameBytes() const { return nameBytes_; }

    [[nodiscard]] qint32 SizeCompressed() const { return static_cast<qint32>(entry_.Compressed); }

    [[nodiscard]] qint32 SizeUncompressed() const { return static_cast<qint32>(entry_.Uncompressed); }

    /// A raw deflate stream.
    [[nodiscard]] const QByteArray& Data() const { return data_; }

    [[nodiscard]] const ZipRecords::Entry& Entry() const { return entry_; }

    /// How many bytes the compressor may give out for so many: one in a hundred more and 12, rounded half to even.
    static qint64 OutputLimit(qint64 length);

private:
    void Deflate(const QByteArray& content, const QString& path, const Watch& watch);

    QString name_;
    QByteArray nameBytes_;
    QByteArray data_;
    ZipRecords::Entry entry_;
};

namespace DosTime {

/// Day, month, year less 1980. A year before is a negative number whose low seven bits count.
quint16 Date(const QDateTime& moment);

/// Half the seconds, minutes, hours.
quint16 Time(const QDateTime& moment);

} // namespace DosTime
