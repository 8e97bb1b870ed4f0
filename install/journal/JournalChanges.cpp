// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/JournalChanges.h"

#include "platform/Files.h"

#include <algorithm>

namespace {

bool Same(const QString& first, const QString& second) {
    return first.compare(second, Qt::CaseInsensitive) == 0;
}

/// Wherever the file itself is, what it replaced belongs to its path.
bool HasKept(const JournalFile& file) {
    return !file.Kept.isEmpty();
}

/// The same file under another path, where it replaces nothing that would come back.
JournalFile Under(const QString& path, const JournalFile& file) {
    return {.Path = path, .Hash = file.Hash, .Length = file.Length};
}

} // namespace

JournalChanges::JournalChanges(Journal& journal) : journal_(journal) {
    for (std::size_t entry = 0; entry < journal_.Entries.size(); ++entry) {
        for (std::size_t file = 0; file < journal_.Entries[entry].Files.size(); ++file)
            places_[JournalKey(journal_.Entries[entry].Files[file].Path)].emplace_back(entry, file);
    }
}

// A file that was taken out has no path.
JournalChanges::~JournalChanges() {
    if (!any_)
        return;
    std::erase_if(journal_.Entries, [](JournalEntry& entry) {
        const bool hadFiles = !entry.Files.empty();
        std::erase_if(entry.Files, [](const JournalFile& file) { return file.Path.isEmpty(); });
        return hadFiles && entry.Files.empty();
    });
}

void JournalChanges::Add(std::size_t entry, JournalFile file) {
    std::vector<JournalFile>& files = journal_.Entries[entry].Files;
    std::vector<Place>& places = places_[JournalKey(file.Path)];
    const Place place(entry, files.size());
    places.insert(std::ranges::upper_bound(places, place), place);
    files.push_back(std::move(file));
    any_ = true;
}

void JournalChanges::Remove(Place place) {
    std::erase(places_[JournalKey(At(place).Path)], place);
    At(place) = {};
    any_ = true;
}

/// Something else stands at the path now.
void JournalChanges::ClearFor(const QString& path) {
    const std::vector<Place> places = places_.value(JournalKey(path));
    for (const Place& place : places) {
        if (!HasKept(At(place)))
            Remove(place);
    }
}

void JournalChanges::MoveFile(const QString& from, const QString& to) {
    const std::vector<Place> places = places_.value(JournalKey(from));
    if (places.empty())
        return;
    const Place place = places.back();
    if (Same(from, to)) {
        At(place).Path = to;
        any_ = true;
        return;
    }
    JournalFile moved = Under(to, At(place));
    if (!HasKept(At(place)))
        Remove(place);
    ClearFor(to);
    Add(place.first, std::move(moved));
}

void JournalChanges::Moved(const QString& from, const QString& to) {
    QStringList below;
    for (const auto& [key, places] : std::as_const(places_).asKeyValueRange()) {
        if (!places.empty() && IsAtOrBelow(At(places.back()).Path, from))
            below.append(At(places.back()).Path);
    }
    for (const QString& path : below)
        MoveFile(path, to + path.sliced(from.size()));
    for (JournalEntry& entry : journal_.Entries) {
        for (QString& folder : entry.Folders) {
            if (!IsAtOrBelow(folder, from))
                continue;
            folder = to + folder.sliced(from.size());
            any_ = true;
        }
    }
}

void JournalChanges::Copied(const QString& from, const QString& to) {
    ClearFor(to);
    if (const std::vector<Place> places = places_.value(JournalKey(from)); !places.empty()) {
        JournalFile copy = Under(to, At(places.back()));
        Add(places.back().first, std::move(copy));
    }
    for (JournalEntry& entry : journal_.Entries) {
        const bool was = entry.Folders.removeIf([&](const QString& folder) { return Same(folder, to); }) > 0;
        const bool is = entry.Folders.contains(from, Qt::CaseInsensitive);
        if (is)
            entry.Folders.append(to);
        any_ = any_ || was || is;
    }
}

void JournalChanges::Deleted(const QString& path) {
    std::vector<Place> gone;
    for (const auto& [key, places] : std::as_const(places_).asKeyValueRange()) {
        const bool isMeant = !places.empty() && IsAtOrBelow(At(places.back()).Path, path);
        if (isMeant && !HasKept(At(places.back())) && !Files::FileExists(At(places.back()).Path))
            gone.push_back(places.back());
    }
    for (const Place& place : gone)
        Remove(place);
    for (JournalEntry& entry : journal_.Entries) {
        const auto isGone = [&](const QString& folder) {
            return IsAtOrBelow(folder, path) && !Files::FolderExists(folder);
        };
        any_ = entry.Folders.removeIf(isGone) > 0 || any_;
    }
}

void JournalChanges::Rewritten(const QString& path, const QByteArray& before, const HashedFile& now) {
    const auto found = places_.constFind(JournalKey(path));
    if (found == places_.constEnd() || found->empty() || before.isEmpty())
        return;
    JournalFile& file = At(found->back());
    if (file.Hash != before)
        return;
    file.Hash = now.Hash;
    file.Length = now.Length;
    any_ = true;
}
