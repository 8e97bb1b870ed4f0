// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The data part of an archive being written: entries are loaded into a copy buffer and put where a plan says.
#pragma once

#include "big/format/Archive.h"
#include "platform/File.h"

#include <QByteArray>

#include <utility>
#include <vector>

/// The copy buffer keeps its content from one entry to the next, as an entry of no bytes may be written from what
/// stands in it. It is kept as a list of places to read from, not as bytes, and the output goes through one block of
/// memory, so that no size in a file decides how much memory is used. What fails raises, but for bytes that lie behind
/// the old archive's end: those are zeros.
class ArchiveData {
public:
    /// `old` may be null. `length` is the target's length so far.
    ArchiveData(Device& target, const Device* old, qint64 length);

    /// Fills the copy buffer with the entry's data; `size` is what the plan says of a new entry's file. Without a byte
    /// the buffer keeps its size; the beginning of an old entry is read again from its place then.
    void Load(const BigEntry& entry, qint64 size);

    /// Empties the buffer.
    void Clear() { buffer_.clear(); }

    /// Writes the buffer at a position that is not before the last one's end.
    void Put(qint64 position);

    /// Writes what is waiting.
    void Finish(qint64 length);

private:
    /// A stretch of the buffer: from the old archive, from a new entry's file, or zeros.
    struct Piece {
        enum class Place { OldArchive, NewFile, Zeros } From;
        QString Path; ///< of the new entry's file
        qint64 Offset;
        qint64 Length;
    };

    void LoadOld(const BigEntry& entry);
    void LoadNew(const BigEntry& entry, qint64 size);

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

    Device& target_;
    const Device* old_;
    qint64 oldLength_;
    std::vector<Piece> buffer_;
    File source_;
    QString openSource_;
    Run run_;
    QByteArray block_;
    qsizetype filled_ = 0;
    qint64 blockStart_;
};
