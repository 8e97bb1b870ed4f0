// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What becomes of a journal's files when the suite moves, copies, deletes or rewrites them.
#pragma once

#include "install/journal/Journal.h"

#include <QHash>

#include <utility>
#include <vector>

/// Changes a journal; what it takes out of it is out when this goes. Where several installs have written a file, what
/// stands there is the last one's.
class JournalChanges {
public:
    explicit JournalChanges(Journal& journal);
    ~JournalChanges();
    JournalChanges(const JournalChanges&) = delete;
    JournalChanges& operator=(const JournalChanges&) = delete;

    /// True when something in the journal was changed by now.
    [[nodiscard]] bool Any() const { return any_; }

    /// The file or folder `from` is `to` now. What a moved file had replaced still belongs to the old path.
    void Moved(const QString& from, const QString& to);
    /// The file or folder `from` is `to` as well, in the place of what was there.
    void Copied(const QString& from, const QString& to);
    /// What is missing on the disk by now, at the path or below it, is gone, but for what had replaced a file. An
    /// install of which nothing is left goes too.
    void Deleted(const QString& path);
    /// The file holds `now` in place of `before`; what held anything else stays as it was known.
    void Rewritten(const QString& path, const QByteArray& before, const HashedFile& now);

private:
    using Place = std::pair<std::size_t, std::size_t>; ///< in the entries, and in that one's files

    [[nodiscard]] JournalFile& At(Place place) const { return journal_.Entries[place.first].Files[place.second]; }

    void Add(std::size_t entry, JournalFile file);
    void Remove(Place place);
    void MoveFile(const QString& from, const QString& to);
    void ClearFor(const QString& path);

    Journal& journal_;
    QHash<QString, std::vector<Place>> places_; ///< by JournalKey; those of later installs behind
    bool any_ = false;
};
