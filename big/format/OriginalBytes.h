// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where the bytes of the open archive's entries really lie when its directory leads beside them, and the archives that
/// a save replaced while they were needed for that: a save with told offsets cuts such entries off, and an exact one
/// can bring them back.
#pragma once

#include "big/format/mBIG.h"
#include "platform/File.h"
#include "platform/ReplacedFile.h"

#include <QString>

#include <memory>
#include <vector>

class OriginalBytes {
public:
    /// The most archives that are kept though others took their place: each keeps its room on the disk.
    static constexpr std::size_t MostKept = 4;

    /// The open archive, as it was read, is shifted so.
    void Know(const OffsetShift::Shift& shift);

    /// Lets everything go.
    void Forget();

    /// Whether something is known of the open archive; another one in its place is none of ours.
    [[nodiscard]] bool AreKnown() const { return archive_ != nullptr && archive_ == mBIG::CurrentIdentity(); }

    /// Whether that comes from a save of our own, and not from how the archive looked when it was opened.
    [[nodiscard]] bool AreOfASave() const { return AreKnown() && ofASave_; }

    /// False when bytes were lost, as the archive that they lie in could not be kept.
    [[nodiscard]] bool AreWhole() const { return whole_; }

    /// How many entries the last save has cut off.
    [[nodiscard]] int CutCount() const { return cutCount_; }

    /// Whether a save of the table as it is, from where its offsets lead, cuts that entry off.
    [[nodiscard]] bool IsCut(std::size_t index) const;

    /// Gives the open archive's entries the offsets at which their bytes lie, where that is in its own file. What was
    /// known is forgotten then.
    void ReadBack();

    /// The open archive's table with offsets into bytes that are put together from all the files.
    class Gathered;

    /// Whether a save of the table as it is cuts off entries whose bytes lie in the open archive's own file.
    [[nodiscard]] bool NeedOpenArchive() const;

    /// Lets the kept archives stay open while what stands under the target's name is replaced.
    [[nodiscard]] std::vector<std::unique_ptr<ReplacedFile::StaysOpen>> MakeWay(const QString& target);

    /// The open archive's table was written, from the original bytes or from where its offsets lead; `old` is the file
    /// that its entries were read from, closed when it was not needed or could not be kept. To be called before records
    /// stop being new.
    void Saved(bool fromOriginals, File old);

    /// What was written is the open archive now, with such a shift.
    void Loaded(const OffsetShift::Shift& shift);

private:
    static constexpr int own = -1;

    struct Place {
        int Kept = own; ///< which of the kept archives; `own` for the open one's file
        qint32 Offset = 0;
    };

    struct Kept {
        File Open;
        FileState State; ///< when it was kept
    };

    void DropUnused();

    mBIG::Identity archive_;
    std::vector<Place> places_; ///< by entry of the open archive
    std::vector<Kept> kept_;
    int cutCount_ = 0;
    bool whole_ = true;
    bool ofASave_ = false;
};

class OriginalBytes::Gathered : public Device {
public:
    /// `file` is the open archive's, null when there is none; both outlive this. Raises when a kept archive was changed
    /// by another program.
    Gathered(const OriginalBytes& original, const Device* file);

    [[nodiscard]] const Archive& Table() const { return table_; }

    [[nodiscard]] qint64 Length() const override { return length_; }

    qint64 ReadInto(qint64 offset, char* bytes, qint64 count) const override;

    /// Raises: these bytes are there to be read.
    void Write(qint64 offset, QByteArrayView bytes) override;
    void SetLength(qint64 length) override;

    [[nodiscard]] QString Name() const override;

private:
    struct Piece {
        qint64 Start; ///< in the whole
        const Device* From;
        qint64 Offset; ///< there
        qint64 Length;
    };

    Archive table_;
    std::vector<Piece> pieces_;
    qint64 length_ = 0;
};
