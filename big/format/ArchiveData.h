// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The data part of an archive being written: entries are loaded into a copy buffer and put at the current position.
#pragma once

#include "big/format/Layout.h"
#include "big/format/mBIG.h"

#include <QByteArray>

#include <utility>
#include <vector>

/// The copy buffer keeps its content from one entry to the next, as an entry of no bytes is written from what stands in
/// it. It is kept as a list of places to read from, not as bytes, and the output goes through one block of memory, so
/// that no size in a file decides how much memory is used. Failures to write raise; what can't be read is zeros.
class ArchiveData {
public:
    /// Numbers of open files; `source` is a free number for the files of new entries. `length` is the target's length
    /// so far, `position` where the data begins.
    ArchiveData(int target, int oldArchive, int source, qint64 length, qint64 position);

    /// Sizes the copy buffer to the entry's data and fills it. Without a byte the buffer keeps its size; its beginning
    /// is read again from the entry's place. A new entry whose file is gone empties the buffer.
    void Load(const BigEntry& entry);

    /// Moves forward to a multiple of 4.
    void Align() { position_ = Layout::RoundUp(position_); }

    /// Writes the buffer and moves behind it.
    void Put();

    /// Writes what is waiting. Returns the target's length.
    qint64 Finish();

private:
    /// A stretch of the buffer: from the old archive, from a new entry's file, or zeros.
    struct Piece {
        enum class Place { OldArchive, NewFile, Zeros } From;
        QString Path; ///< of the new entry's file
        qint64 Offset;
        qint64 Length;
    };

    void LoadOld(const BigEntry& entry);
    void LoadNew(const BigEntry& entry);

    /// Bytes of the old archive to be copied to the target in one go, and the stretches in them that must be zeros.
    struct Run {
        qint64 Target = 0;
        qint64 Source = 0;
        qint64 Length = 0;
        std::vector<std::pair<qint64, qint64>> Gaps; ///< target offset and length
    };

    void PutGap(qint64 length);
    void PutOld(qint64 offset, qint64 length);
    void PutNew(qint64 offset, qint64 length);
    void PutZeros(qint64 length);

    [[nodiscard]] qint64 End() const { return run_.Length > 0 ? run_.Target + run_.Length : blockStart_ + filled_; }

    void OpenSource(const QString& path);
    void FlushRun();
    void Flush();

    int target_;
    int oldArchive_;
    int source_;
    qint64 oldLength_ = 0;
    qint64 length_;
    qint64 position_;
    std::vector<Piece> buffer_;
    QString openSource_;
    Run run_;
    QByteArray block_;
    qsizetype filled_ = 0;
    qint64 blockStart_;
};
