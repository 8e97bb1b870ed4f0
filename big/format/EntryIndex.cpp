// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/EntryIndex.h"

#include "big/format/mBIG.h"

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

namespace mBIG {

EntryIndex::EntryIndex() {
    firstByName_.reserve(static_cast<qsizetype>(BigEntries.size()));
    for (int index = static_cast<int>(BigEntries.size()) - 1; index >= 0; --index)
        firstByName_.insert(Folded(BigEntries[static_cast<std::size_t>(index)].Name), index);
}

int EntryIndex::Find(const QString& name) const {
    return firstByName_.value(Folded(name), -1);
}

void EntryIndex::SetLast(int index, const QString& name) {
    const auto place = static_cast<std::size_t>(index);
    if (place < BigEntries.size()) {
        const auto old = firstByName_.constFind(Folded(BigEntries[place].Name));
        if (old != firstByName_.constEnd() && *old == index)
            firstByName_.erase(old);
    }
    BigEntries.resize(place + 1);
    BigEntries[place] = {};
    BigEntries[place].Name = name;
    firstByName_.insert(Folded(name), index);
}

} // namespace mBIG
