// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/ArchiveEdits.h"

#include <limits>
#include <utility>

namespace ArchiveEdits {
namespace {

BigEntry& At(Archive& archive, int index) {
    return archive.Entries.at(static_cast<std::size_t>(index));
}

int HighestIndex(const Archive& archive) {
    return archive.Entries.empty() ? 0 : static_cast<int>(archive.Entries.size()) - 1;
}

void TakeSource(BigEntry& entry, const Source& source) {
    entry.IsNew = true;
    entry.SourcePath = source.Path;
    if (source.Size >= 0 && source.Size <= std::numeric_limits<qint32>::max())
        entry.Size = static_cast<qint32>(source.Size);
}

} // namespace

int Add(Archive& archive, const QString& name, const Source& source) {
    int index = Archives::Find(archive, name);
    if (index < 0) {
        // A new record goes behind index 0 even when there is no table, so that a blank one stays in front.
        // This is meant.
        index = HighestIndex(archive) + 1;
        archive.Entries.resize(static_cast<std::size_t>(index) + 1);
    }
    BigEntry& entry = At(archive, index);
    entry.Name = name;
    TakeSource(entry, source);
    entry.Deleted = false;
    return index;
}

int Put(Archive& archive, const QString& name, const Source& source) {
    int index = Archives::Find(archive, name);
    if (index < 0) {
        index = static_cast<int>(archive.Entries.size());
        archive.Entries.emplace_back();
    }
    BigEntry& entry = At(archive, index);
    entry = {};
    entry.Name = name;
    TakeSource(entry, source);
    return index;
}

void Replace(Archive& archive, int index, const QString& sourcePath) {
    TakeSource(At(archive, index), {.Path = sourcePath});
}

Drop::Drop(Archive& archive, MayReplace mayReplace)
    : archive_(archive),
      names_(archive),
      mayReplace_(std::move(mayReplace)) {}

void Drop::File(const QString& name, const Source& source) {
    Take(name, source, Found::ComesBack);
}

// A file over a deleted entry of a dropped folder stays hidden. This is meant.
void Drop::FileOfFolder(const QString& name, const Source& source) {
    Take(name, source, Found::StaysDeleted);
}

void Drop::Take(const QString& name, const Source& source, Found found) {
    int index = names_.Find(name);
    const bool isNew = index < 0;
    if (isNew) {
        index = PlaceForNew();
        if (IsLoss(index))
            result_.Lost += At(archive_, index).Name;
        names_.SetLast(index, name);
    } else if (!mayReplace_(name)) {
        return;
    }
    BigEntry& entry = At(archive_, index);
    entry.Name = name;
    TakeSource(entry, source);
    if (found == Found::ComesBack)
        entry.Deleted = false;
    if (entry.Deleted)
        result_.Hidden += name;
    else if (!isNew)
        result_.Replaced += name;
    ++result_.Taken;
}

/// While record 0 is blank the highest index is taken as it is, and a record that stands there is lost. This is meant.
int Drop::PlaceForNew() const {
    const bool increase = !archive_.Entries.empty() && !archive_.Entries.front().Name.isEmpty();
    return HighestIndex(archive_) + (increase ? 1 : 0);
}

/// Whether a record stands there that somebody may want.
bool Drop::IsLoss(int index) const {
    if (static_cast<std::size_t>(index) >= archive_.Entries.size())
        return false;
    const BigEntry& entry = archive_.Entries[static_cast<std::size_t>(index)];
    return !entry.Deleted && entry != BigEntry();
}

void DeleteEntry(Archive& archive, int index) {
    At(archive, index).Deleted = true;
}

int DeleteFolder(Archive& archive, const QString& key) {
    int held = 0;
    for (BigEntry& entry : archive.Entries) {
        if (!entry.Name.contains(key))
            continue;
        entry.Deleted = true;
        ++held;
    }
    return held;
}

void RenameEntry(Archive& archive, int index, const QString& oldText, const QString& text) {
    if (!oldText.isEmpty())
        At(archive, index).Name.replace(oldText, text);
}

int RenameFolder(Archive& archive, const QString& oldKey, const QString& newKey) {
    int held = 0;
    for (BigEntry& entry : archive.Entries) {
        if (!entry.Name.contains(oldKey))
            continue;
        entry.Name.replace(oldKey, newKey);
        ++held;
    }
    return held;
}

QString RenamedKey(const QString& key, const QString& text) {
    const qsizetype parent = key.size() < 2 ? 0 : key.lastIndexOf(u'\\', -2) + 1;
    return key.first(parent) + text + u'\\';
}

} // namespace ArchiveEdits
