// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/OriginalBytes.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

void OriginalBytes::Know(const OffsetShift::Shift& shift) {
    Forget();
    for (const BigEntry& entry : OffsetShift::ReadShiftedBack(mBIG::Open(), shift).Entries)
        places_.push_back({own, entry.Offset});
    archive_ = mBIG::CurrentIdentity();
}

void OriginalBytes::Forget() {
    *this = OriginalBytes();
}

void OriginalBytes::ReadBack() {
    for (std::size_t index = 0; index < std::min(places_.size(), mBIG::BigEntries.size()); ++index)
        if (BigEntry& entry = mBIG::BigEntries[index]; !entry.IsNew && places_[index].Kept == own)
            entry.Offset = places_[index].Offset;
    Forget();
}

bool OriginalBytes::IsCut(std::size_t index) const {
    const BigEntry& entry = mBIG::BigEntries[index];
    return AreKnown() && index < places_.size() && !entry.Deleted && !entry.IsNew && entry.Size > 0 &&
           (places_[index].Kept != own || places_[index].Offset != entry.Offset);
}

bool OriginalBytes::NeedOpenArchive() const {
    for (std::size_t index = 0; index < mBIG::BigEntries.size(); ++index)
        if (IsCut(index) && places_[index].Kept == own)
            return true;
    return false;
}

std::vector<std::unique_ptr<ReplacedFile::StaysOpen>> OriginalBytes::MakeWay(const QString& target) {
    std::vector<std::unique_ptr<ReplacedFile::StaysOpen>> staying;
    const FileState state = StateOf(target);
    for (Kept& kept : kept_)
        if (kept.State.Identity == state.Identity)
            staying.push_back(std::make_unique<ReplacedFile::StaysOpen>(kept.Open, target));
    return staying;
}

void OriginalBytes::Saved(bool fromOriginals, File old) {
    const auto oldNumber = static_cast<int>(kept_.size());
    const bool hasOld = old.IsOpen();
    if (hasOld) {
        const FileState state = old.State();
        kept_.push_back({std::move(old), state});
    }
    cutCount_ = 0;
    whole_ = whole_ || fromOriginals; // what an exact save could not bring back is no original any more
    std::vector<Place> places;
    for (std::size_t index = 0; index < mBIG::BigEntries.size(); ++index) {
        if (mBIG::BigEntries[index].Deleted)
            continue;
        Place& place = places.emplace_back();
        if (fromOriginals || !IsCut(index))
            continue;
        ++cutCount_;
        place = places_[index];
        if (place.Kept == own && hasOld)
            place.Kept = oldNumber;
        whole_ = whole_ && place.Kept != own;
    }
    places_ = std::move(places);
    whole_ = whole_ && std::ranges::all_of(kept_, [](const Kept& kept) { return kept.Open.IsOpen(); });
    archive_ = nullptr; // nothing is known until what was written is loaded
    DropUnused();
}

void OriginalBytes::DropUnused() {
    std::vector<Kept> used;
    for (std::size_t number = 0; number < kept_.size(); ++number) {
        const auto from = static_cast<int>(number);
        const auto to = static_cast<int>(used.size());
        bool isUsed = false;
        for (Place& place : places_) {
            if (place.Kept != from)
                continue;
            isUsed = true;
            // The numbers only go down, and in order: none is met twice.
            place.Kept = used.size() < MostKept ? to : own;
        }
        whole_ = whole_ && (!isUsed || used.size() < MostKept);
        if (isUsed && used.size() < MostKept)
            used.push_back(std::move(kept_[number]));
    }
    kept_ = std::move(used);
}

void OriginalBytes::Loaded(const OffsetShift::Shift& shift) {
    if (kept_.empty() && shift.IsNone()) {
        const int cutCount = cutCount_;
        const bool whole = whole_;
        Forget();
        cutCount_ = cutCount;
        whole_ = whole;
        return;
    }
    const Archive archive = OffsetShift::ReadShiftedBack(mBIG::Open(), shift);
    places_.resize(archive.Entries.size());
    for (std::size_t index = 0; index < places_.size(); ++index)
        if (places_[index].Kept == own)
            places_[index].Offset = archive.Entries[index].Offset;
    archive_ = mBIG::CurrentIdentity();
    ofASave_ = true;
}

OriginalBytes::Gathered::Gathered(const OriginalBytes& original, const Device* file) : table_(mBIG::Open()) {
    for (const Kept& kept : original.kept_)
        if (!kept.Open.IsOpen() || kept.Open.State() != kept.State)
            throw RuntimeError(ErrorNumber::PathFileAccess, kept.Open.Name() + u": changed by another program"_s);
    for (std::size_t index = 0; index < table_.Entries.size(); ++index) {
        BigEntry& entry = table_.Entries[index];
        if (entry.Deleted || entry.IsNew || entry.Size <= 0)
            continue;
        const bool isKnown = index < original.places_.size();
        const Place place = isKnown ? original.places_[index] : Place{own, entry.Offset};
        const Device* from = place.Kept == own ? file : &original.kept_[static_cast<std::size_t>(place.Kept)].Open;
        if (from == nullptr)
            throw RuntimeError(ErrorNumber::FileNotFound, Name() + u": not open"_s);
        pieces_.push_back({length_, from, place.Offset, entry.Size});
        // One that lies behind the largest offset does not fit into the archive that is written, which its writer
        // tells.
        entry.Offset = static_cast<qint32>(std::min<qint64>(length_, std::numeric_limits<qint32>::max()));
        length_ += entry.Size;
    }
}

qint64 OriginalBytes::Gathered::ReadInto(qint64 offset, char* bytes, qint64 count) const {
    const auto behind = std::ranges::upper_bound(pieces_, offset, {}, &Piece::Start);
    qint64 done = 0;
    for (auto piece = behind == pieces_.begin() ? behind : behind - 1; piece != pieces_.end() && done < count;
         ++piece) {
        const qint64 within = offset + done - piece->Start;
        const qint64 wanted = std::min(count - done, piece->Length - within);
        const qint64 had = piece->From->ReadInto(piece->Offset + within, bytes + done, wanted);
        // Behind an archive's end come zeros.
        std::memset(bytes + done + had, 0, static_cast<std::size_t>(wanted - had));
        done += wanted;
    }
    return done;
}

void OriginalBytes::Gathered::Write(qint64 offset, QByteArrayView bytes) {
    static_cast<void>(offset);
    static_cast<void>(bytes);
    throw RuntimeError(ErrorNumber::InvalidCall, Name() + u": not to be written"_s);
}

void OriginalBytes::Gathered::SetLength(qint64 length) {
    static_cast<void>(length);
    throw RuntimeError(ErrorNumber::InvalidCall, Name() + u": not to be written"_s);
}

QString OriginalBytes::Gathered::Name() const {
    return Paths::ToNative(table_.FileName);
}
