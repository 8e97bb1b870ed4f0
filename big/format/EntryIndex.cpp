// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/EntryIndex.h"

#include "big/format/Archive.h"

namespace {

/// What names that differ in case only have in common. Each character stands alone, as when two texts are compared: a
/// sharp s is no double s.
QString Folded(const QString& name) {
    QString folded = name;
    for (qsizetype at = 0; at < folded.size(); ++at) {
        const QChar character = folded[at];
        if (character.isLowSurrogate() && at > 0 && folded[at - 1].isHighSurrogate())
            folded[at] =
                QChar(QChar::lowSurrogate(QChar::toCaseFolded(QChar::surrogateToUcs4(folded[at - 1], character))));
        else
            folded[at] = character.toCaseFolded();
    }
    return folded;
}

} // namespace

EntryIndex::EntryIndex(Archive& archive) : archive_(archive) {
    firstByName_.reserve(static_cast<qsizetype>(archive_.Entries.size()));
    for (int index = static_cast<int>(archive_.Entries.size()) - 1; index >= 0; --index)
        firstByName_.insert(Folded(archive_.Entries[static_cast<std::size_t>(index)].Name), index);
}

int EntryIndex::Find(const QString& name) const {
    return firstByName_.value(Folded(name), -1);
}

void EntryIndex::SetLast(int index, const QString& name) {
    const auto place = static_cast<std::size_t>(index);
    if (place < archive_.Entries.size()) {
        const auto old = firstByName_.constFind(Folded(archive_.Entries[place].Name));
        if (old != firstByName_.constEnd() && *old == index)
            firstByName_.erase(old);
    }
    archive_.Entries.resize(place + 1);
    archive_.Entries[place] = {};
    archive_.Entries[place].Name = name;
    firstByName_.insert(Folded(name), index);
}
