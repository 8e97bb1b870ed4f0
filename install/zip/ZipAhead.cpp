// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipAhead.h"

#include "install/zip/ZipInflate.h"

#include <algorithm>
#include <exception>

namespace {

/// A batch is full with so many bytes, which its last entry may exceed by as many, or so many entries. So many batches
/// are ready at a time: with the one at hand and the one at work less than 8 MiB.
constexpr qsizetype BatchBytes = 262'144;
constexpr std::size_t BatchItems = 64;
constexpr std::size_t MostReady = 12;

} // namespace

/// What runs on the thread.
class ZipAhead::Work {
public:
    Work(ZipAhead& to, const Device& archive, const ZipDirectory& directory, bool hashes)
        : to_(to),
          directory_(directory),
          inflate_(archive, directory),
          hashes_(hashes) {}

    void Run(const std::vector<qsizetype>& places) {
        Batch batch;
        std::size_t begin = 0;
        qint64 done = 0; // those that fail count too: whoever waits does not wait for all of them
        for (std::size_t number = 0; number < places.size(); ++number) {
            const ZipEntry& entry = directory_.Entries()[static_cast<std::size_t>(places[number])];
            if (entry.Size <= Longest && entry.Packed <= Longest) {
                Add(batch, entry, number);
                done += std::max(entry.Size, entry.Packed);
            }
            batch.End = number + 1;
            if (done < BatchBytes && batch.End - begin < BatchItems)
                continue;
            if (!to_.Hand(batch))
                return;
            begin = batch.End;
            done = 0;
        }
        to_.Hand(batch);
    }

private:
    void Add(Batch& batch, const ZipEntry& entry, std::size_t number) {
        if (batch.Bytes.size() < batch.Used + entry.Size)
            batch.Bytes.resize(std::max(batch.Used + entry.Size, BatchBytes));
        char* const bytes = batch.Bytes.data() + batch.Used;
        if (!inflate_.Unpack(entry, bytes))
            return;
        batch.Items.push_back({.Number = number, .Start = batch.Used, .Hashed = {}, .Length = entry.Size});
        batch.Used += entry.Size;
        if (!hashes_)
            return;
        RunningHash hash;
        hash.Add(QByteArrayView(bytes, entry.Size));
        batch.Items.back().Hashed = hash.Result();
    }

    ZipAhead& to_;
    const ZipDirectory& directory_;
    ZipInflate inflate_;
    bool hashes_;
};

ZipAhead::ZipAhead(const Device& archive, const ZipDirectory& directory, std::vector<qsizetype> places, bool hashes)
    : numbers_(directory.Entries().size(), -1) {
    for (std::size_t number = 0; number < places.size(); ++number)
        numbers_[static_cast<std::size_t>(places[number])] = static_cast<qint32>(number);
    const auto work = [this, &archive, &directory, hashes, asked = std::move(places)] {
        try {
            Work(*this, archive, directory, hashes).Run(asked);
        } catch (...) { // no memory, or an archive that can't be read: the others do without it
        }
        const std::lock_guard lock(mutex_);
        ended_ = true;
        changed_.notify_all();
    };
    try {
        worker_ = std::thread(work);
    } catch (const std::exception&) { // no thread to be had: all do without it
        ended_ = true;
    }
}

ZipAhead::~ZipAhead() {
    {
        const std::lock_guard lock(mutex_);
        wanted_ = false;
    }
    changed_.notify_all();
    if (worker_.joinable())
        worker_.join();
}

/// The worker's: gives a batch and gets an empty one. False when no more are wanted.
bool ZipAhead::Hand(Batch& batch) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !wanted_ || ready_.size() < MostReady; });
    const std::size_t end = batch.End;
    ready_.push_back(std::move(batch));
    batch = Batch();
    if (!spare_.empty()) {
        batch = std::move(spare_.back());
        spare_.pop_back();
        batch.Items.clear();
        batch.Used = 0;
    }
    batch.End = end;
    const bool goesOn = wanted_;
    lock.unlock();
    changed_.notify_all();
    return goesOn;
}

/// Takes the next batch; false behind the last.
bool ZipAhead::Next() {
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return ended_ || !ready_.empty(); });
        if (ready_.empty())
            return false;
        std::swap(batch_, ready_.front());
        spare_.push_back(std::move(ready_.front()));
        ready_.pop_front();
        at_ = 0;
    }
    changed_.notify_all();
    return true;
}

std::optional<ZipAhead::Unpacked> ZipAhead::Take(qsizetype place) {
    if (numbers_[static_cast<std::size_t>(place)] < 0)
        return std::nullopt;
    const auto number = static_cast<std::size_t>(numbers_[static_cast<std::size_t>(place)]);
    while (batch_.End <= number) {
        if (!Next())
            return std::nullopt;
    }
    while (at_ < batch_.Items.size() && batch_.Items[at_].Number < number)
        ++at_;
    if (at_ == batch_.Items.size() || batch_.Items[at_].Number != number)
        return std::nullopt;
    const Batch::Item& item = batch_.Items[at_++];
    return Unpacked{.Bytes = QByteArrayView(batch_.Bytes).sliced(item.Start, item.Length), .Hashed = item.Hashed};
}
