// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/ArchiveData.h"

#include "platform/RuntimeError.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr qsizetype BlockSize = qsizetype{128} * 1024;
/// From here on a file is left to the system to be copied; shorter ones are gathered in the block.
constexpr qint64 LongFile = qint64{64} * 1024;
/// The gaps of a run are written behind it, while its bytes are still at hand.
constexpr qint64 LongestRun = qint64{1} << 20;

[[noreturn]] void Raise(const Device& device, const QString& what) {
    throw RuntimeError(ErrorNumber::DeviceError, QStringLiteral("%1: %2").arg(device.Name(), what));
}

} // namespace

ArchiveData::ArchiveData(Device& target, const Device* old, qint64 length)
    : target_(target),
      old_(old),
      oldLength_(old == nullptr ? 0 : old->Length()),
      block_(BlockSize, Qt::Uninitialized),
      blockStart_(length) {}

void ArchiveData::Load(const BigEntry& entry, qint64 size) {
    if (entry.IsNew)
        LoadNew(entry, size);
    else
        LoadOld(entry);
}

void ArchiveData::LoadOld(const BigEntry& entry) {
    if (entry.Size > 0) {
        const qint64 there = std::clamp<qint64>(oldLength_ - entry.Offset, 0, entry.Size);
        buffer_ = {{Piece::Place::OldArchive, {}, entry.Offset, there},
                   {Piece::Place::Zeros, {}, 0, entry.Size - there}};
        return;
    }
    // An entry of no bytes leaves the buffer as it was, and reads its beginning again from its own place.
    // This is meant.
    qint64 size = 0;
    for (const Piece& piece : buffer_)
        size += piece.Length;
    qint64 skipped = std::clamp<qint64>(oldLength_ - entry.Offset, 0, size);
    std::vector<Piece> refreshed{{Piece::Place::OldArchive, {}, entry.Offset, skipped}};
    for (const Piece& piece : buffer_) {
        const qint64 cut = std::min(skipped, piece.Length);
        skipped -= cut;
        if (cut < piece.Length)
            refreshed.push_back({piece.From, piece.Path, piece.Offset + cut, piece.Length - cut});
    }
    buffer_ = std::move(refreshed);
}

void ArchiveData::LoadNew(const BigEntry& entry, qint64 size) {
    OpenSource(entry.SourcePath);
    if (source_.LengthWhenOpened() != size)
        Raise(source_, QStringLiteral("changed while it was read"));
    // An empty file leaves the buffer as it was. This is meant.
    if (size > 0)
        buffer_ = {{Piece::Place::NewFile, entry.SourcePath, 0, size}};
}

void ArchiveData::OpenSource(const QString& path) {
    if (path == openSource_)
        return;
    openSource_.clear();
    // Most paths have the case that the disk has, and a look at it can be saved.
    if (!Ignoring([&] { source_ = File::OpenAsGiven(path, File::Access::Read); }))
        source_ = File::Open(path, File::Access::Read);
    openSource_ = path;
}

void ArchiveData::Put(qint64 position) {
    PutGap(position - End());
    for (const Piece& piece : buffer_) {
        switch (piece.From) {
        case Piece::Place::OldArchive:
            PutOld(piece.Offset, piece.Length);
            break;
        case Piece::Place::NewFile:
            OpenSource(piece.Path);
            PutNew(piece.Offset, piece.Length);
            break;
        case Piece::Place::Zeros:
            PutZeros(piece.Length);
            break;
        }
    }
}

/// The bytes between two entries: part of a run that goes on behind them, else zeros of their own.
void ArchiveData::PutGap(qint64 length) {
    const Piece& next = buffer_.front();
    // A piece of no bytes may lie anywhere, behind the archive's end too.
    const bool runGoesOn = run_.Length > 0 && next.From == Piece::Place::OldArchive && next.Length > 0 &&
                           next.Offset == run_.Source + run_.Length + length;
    if (!runGoesOn) {
        PutZeros(length);
    } else if (length > 0) {
        run_.Gaps.emplace_back(End(), length);
        run_.Length += length;
    }
}

void ArchiveData::PutOld(qint64 offset, qint64 length) {
    if (length == 0)
        return;
    if (run_.Length == 0 || run_.Length > LongestRun || offset != run_.Source + run_.Length) {
        Flush();
        run_ = {blockStart_, offset, 0, {}};
    }
    run_.Length += length;
}

void ArchiveData::PutNew(qint64 offset, qint64 length) {
    if (length >= LongFile) {
        Flush();
        if (CopyBytes(target_, blockStart_, source_, offset, length) < length)
            Raise(source_, QStringLiteral("breaks off"));
        blockStart_ += length;
        return;
    }
    FlushRun();
    for (qint64 done = 0; done < length;) {
        if (filled_ == block_.size())
            Flush();
        const qint64 wanted = std::min<qint64>(length - done, block_.size() - filled_);
        if (source_.ReadInto(offset + done, block_.data() + filled_, wanted) < wanted)
            Raise(source_, QStringLiteral("breaks off"));
        filled_ += wanted;
        done += wanted;
    }
}

void ArchiveData::PutZeros(qint64 length) {
    if (length == 0)
        return;
    if (length > block_.size() - filled_)
        Flush();
    FlushRun();
    if (length > block_.size()) { // left to the file system, which reads it as zeros
        blockStart_ += length;
        return;
    }
    std::memset(block_.data() + filled_, 0, static_cast<std::size_t>(length));
    filled_ += length;
}

void ArchiveData::FlushRun() {
    if (run_.Length == 0)
        return;
    if (CopyBytes(target_, run_.Target, *old_, run_.Source, run_.Length) < run_.Length)
        Raise(*old_, QStringLiteral("breaks off"));
    for (const auto& [offset, length] : run_.Gaps)
        target_.Write(offset, QByteArray(length, '\0'));
    blockStart_ = run_.Target + run_.Length;
    run_ = {};
}

void ArchiveData::Flush() {
    FlushRun();
    if (filled_ > 0)
        target_.Write(blockStart_, QByteArrayView(block_).first(filled_));
    blockStart_ += filled_;
    filled_ = 0;
}

void ArchiveData::Finish(qint64 length) {
    Flush();
    target_.SetLength(length);
}
