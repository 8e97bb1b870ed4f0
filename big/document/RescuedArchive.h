// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a rescue of an archive holds: what is different from the archive on disk, and by what that is recognised.
#pragma once

#include "big/format/Archive.h"

#include <QByteArray>
#include <QString>

#include <vector>

class Device;

/// Tells an archive on disk from one that was written since. Length and time show every write but one that sets the
/// time back; the hash is that of the bytes up to where no directory is longer, of blocks spread over the rest, and of
/// the end, so that it takes no time with the largest archive either.
struct ArchiveMark {
    qint64 Length = 0; ///< bytes
    qint64 Time = 0;   ///< of the last write, in the system's own unit
    QByteArray Hash;   ///< empty: nothing is known, and no archive is the same

    /// Of the file at an inside path; nothing is known of one that can't be read.
    static ArchiveMark Of(const QString& path);

    /// The hash alone.
    static QByteArray HashOf(const Device& device);

    [[nodiscard]] bool Fits(const ArchiveMark& now) const { return !Hash.isEmpty() && *this == now; }

    bool operator==(const ArchiveMark&) const = default;
};

/// One record that is another one than in the archive on disk.
struct ArchiveChange {
    qint32 Index = 0; ///< in the table
    BigEntry Entry;
    qint32 Content = -1; ///< the number of the file beside the rescue that has the bytes of a new entry; -1: none

    bool operator==(const ArchiveChange&) const = default;
};

struct RescuedArchive {
    ArchiveMark Mark;
    qint32 Version = 0;
    bool ExactOffsets = false;
    std::vector<ArchiveChange> Changes;

    [[nodiscard]] QByteArray Encoded() const;
    /// Raises 75 for bytes that are none.
    static RescuedArchive Decoded(const QByteArray& bytes);

    /// How many entries have bytes of their own.
    [[nodiscard]] int NewCount() const;

    /// Makes the table of the archive what it was. Files beside the rescue lie in `folder` (with its backslash).
    void ApplyTo(Archive& archive, const QString& folder) const;

    /// Puts the new entries alone into whatever archive, those of the same names too.
    void AddNewTo(Archive& archive, const QString& folder) const;

    bool operator==(const RescuedArchive&) const = default;

private:
    [[nodiscard]] static QString SourceOf(const ArchiveChange& change, const QString& folder);
};
