// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/Journal.h"

#include "core/CaseFolding.h"

#include <algorithm>

const JournalEntry* Journal::Find(int id) const {
    const auto found = std::ranges::find(Entries, id, &JournalEntry::Id);
    return found == Entries.end() ? nullptr : &*found;
}

JournalEntry* Journal::Find(int id) {
    const auto found = std::ranges::find(Entries, id, &JournalEntry::Id);
    return found == Entries.end() ? nullptr : &*found;
}

QString JournalKey(const QString& path) {
    return CaseFolded(path);
}

bool IsAtOrBelow(const QString& path, const QString& above) {
    return path.startsWith(above, Qt::CaseInsensitive) &&
           (path.size() == above.size() || above.endsWith(u'\\') || path[above.size()] == u'\\');
}
