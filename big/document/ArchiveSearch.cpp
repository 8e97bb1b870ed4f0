// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ArchiveSearch.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/Wildcards.h"

#include <QStringList>

#include <algorithm>
#include <exception>
#include <system_error>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 blockSize = qint64{256} * 1024;
constexpr qint64 jobSize = qint64{4} * 1024 * 1024;
/// What lies between two texts is read with them where it is less than that.
constexpr qint64 largestGap = qint64{16} * 1024;
constexpr unsigned mostThreads = 4;

/// A file read in blocks, so that small texts that are neighbours take one look at the disk.
class Blocks {
public:
    Blocks(const File& file, qint64 end, qint64 size) : file_(file), end_(end), block_(size, Qt::Uninitialized) {}

    /// Some bytes from `offset` on, none from `until` on, none behind the file's end.
    QByteArrayView At(qint64 offset, qint64 until) {
        const bool isHere = offset >= start_ && until <= start_ + length_;
        if (!isHere) {
            const qint64 wanted = std::clamp<qint64>(end_ - offset, 0, block_.size());
            length_ = 0;
            length_ = file_.ReadInto(offset, block_.data(), wanted);
            start_ = offset;
        }
        return {block_.constData() + (offset - start_), std::min(until, start_ + length_) - offset};
    }

private:
    const File& file_;
    qint64 end_;
    QByteArray block_;
    qint64 start_ = 0;
    qint64 length_ = 0;
};

/// Whether one of the patterns, none longer than `longest`, lies within a stretch of a file.
bool IsIn(Blocks& blocks, qint64 from, qint64 end, const std::vector<TextPattern>& patterns, qsizetype longest,
          const std::stop_token& stop) {
    while (from < end && !stop.stop_requested()) {
        const QByteArrayView bytes = blocks.At(from, end);
        const auto holds = [bytes](const TextPattern& pattern) { return pattern.IndexIn(bytes) >= 0; };
        if (std::ranges::any_of(patterns, holds))
            return true;
        if (bytes.size() < longest || from + bytes.size() >= end)
            return false;
        from += bytes.size() - (longest - 1); // one that begins in this block may end in the next
    }
    return false;
}

} // namespace

bool ArchiveSearch::IsText(const QString& name) {
    static const QStringList kinds{u"ini"_s, u"txt"_s, u"str"_s, u"csf"_s, u"wnd"_s, u"xml"_s, u"lua"_s};
    const qsizetype stop = name.lastIndexOf(u'.');
    return stop >= 0 && kinds.contains(name.sliced(stop + 1).toLower());
}

std::vector<int> ArchiveSearch::InNames(const Archive& archive, const QString& text) {
    std::vector<int> found;
    for (int index = 0; !text.isEmpty() && index < static_cast<int>(archive.Entries.size()); ++index) {
        const BigEntry& entry = archive.Entries[static_cast<std::size_t>(index)];
        const bool fits =
            entry.Name.contains(text, Qt::CaseInsensitive) || FitsPattern(Paths::LastPart(entry.Name), text);
        if (fits && !entry.Deleted && !entry.Name.isEmpty())
            found.push_back(index);
    }
    return found;
}

TextSearch::TextSearch(const Archive& archive, const QString& text)
    : plain_(TextPattern::OfPlainText(text)),
      table_(plain_) {
    table_.push_back(TextPattern::OfTableValue(text));
    for (const TextPattern& pattern : table_)
        longest_ = std::max(longest_, pattern.Length());
    std::vector<Text> old;
    for (std::size_t index = 0; index < archive.Entries.size() && longest_ > 0; ++index) {
        const BigEntry& entry = archive.Entries[index];
        if (entry.Deleted || !ArchiveSearch::IsText(entry.Name))
            continue;
        const Text place{.Index = static_cast<int>(index),
                         .Offset = entry.IsNew ? 0 : entry.Offset,
                         .Size = std::max(entry.Size, 0),
                         .IsTable = entry.Name.endsWith(".csf"_L1, Qt::CaseInsensitive)};
        if (!entry.IsNew && (place.Size == 0 || place.Offset < 0))
            continue;
        total_ += 1 + place.Size;
        if (entry.IsNew)
            jobs_.push_back({.Texts = {place}, .Path = Paths::FromNative(Paths::ToNative(entry.SourcePath))});
        else
            old.push_back(place);
    }
    if (!old.empty())
        Ignoring([&] { archive_ = File::Open(archive.FileName, File::Access::Read); });
    MakeJobs(std::move(old));
}

void TextSearch::MakeJobs(std::vector<Text> old) {
    std::ranges::stable_sort(old, {}, &Text::Offset);
    qint64 begin = 0;
    bool isBegun = false;
    for (const Text& text : old) {
        if (!isBegun || text.Offset > jobs_.back().End + largestGap || text.Offset > begin + jobSize) {
            jobs_.push_back({.Texts = {}, .Path = {}, .End = text.Offset});
            begin = text.Offset;
            isBegun = true;
        }
        jobs_.back().Texts.push_back(text);
        jobs_.back().End = std::max(jobs_.back().End, text.Offset + text.Size);
    }
}

int TextSearch::Run(const std::stop_token& stop, const Watch& watch) {
    const unsigned wanted = std::clamp(std::thread::hardware_concurrency(), 1U, mostThreads);
    std::vector<std::jthread> helpers;
    try {
        for (std::size_t i = 1; i < std::min<std::size_t>(wanted, jobs_.size()); ++i)
            helpers.emplace_back([&] { Work(stop, watch); });
    } catch (const std::system_error&) { // those that there are do the work
    }
    Work(stop, watch);
    helpers.clear();
    return unread_;
}

void TextSearch::Work(const std::stop_token& stop, const Watch& watch) {
    for (std::size_t job = next_++; job < jobs_.size() && !stop.stop_requested(); job = next_++) {
        std::size_t done = 0;
        try {
            Look(jobs_[job], done, stop, watch);
        } catch (const std::exception&) { // what can't be read, or what there is no memory for
            unread_ += static_cast<int>(jobs_[job].Texts.size() - done);
        }
    }
}

void TextSearch::Look(const Job& job, std::size_t& done, const std::stop_token& stop, const Watch& watch) {
    const bool isNew = !job.Path.isEmpty();
    File own;
    if (isNew)
        own = File::OpenAsGiven(job.Path, File::Access::Read);
    const File& file = isNew ? own : archive_;
    const qint64 length = file.Length();
    const qint64 jobEnd = isNew ? length : std::min(job.End, length);
    Blocks blocks(file, jobEnd, std::max<qint64>(std::min(blockSize, jobEnd), 4 * longest_));
    for (const Text& text : job.Texts) {
        const qint64 end = isNew ? length : std::min(text.Offset + text.Size, length);
        const bool found = IsIn(blocks, text.Offset, end, text.IsTable ? table_ : plain_, longest_, stop);
        if (stop.stop_requested())
            return;
        ++done;
        Tell(text, found, watch);
    }
}

void TextSearch::Tell(const Text& text, bool found, const Watch& watch) {
    const std::scoped_lock lock(telling_);
    looked_ += 1 + text.Size;
    watch(text.Index, found, static_cast<int>(100 * looked_ / total_));
}
