// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/StoredNames.h"

#include "big/format/mBIG.h"
#include "core/LostLetters.h"
#include "core/mTraduction.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

bool HoldsFolder(const QString& key) {
    return std::ranges::any_of(mBIG::BigEntries,
                               [&](const BigEntry& entry) { return !entry.Deleted && entry.Name.contains(key); });
}

} // namespace

QString StoredNames::Take(const QString& name) {
    last_ = {name, LostLetters::AsStored(name)};
    const QString folded = last_.Stored.toCaseFolded();
    before_ = wanted_.value(folded, last_.Stored);
    if (last_.Stored == name)
        return name;
    lost_.push_back(last_);
    toldLost_ += name;
    if (!wanted_.contains(folded))
        wanted_.insert(folded, name);
    return last_.Stored;
}

QString StoredNames::Meet() {
    if (before_.compare(last_.Wanted, Qt::CaseInsensitive) != 0)
        toldOne_ += before_ + " + "_L1 + last_.Wanted;
    if (last_.Stored == last_.Wanted)
        return {};
    return GetText(u"NameStoredAs"_s).replace("%1"_L1, last_.Wanted);
}

void StoredNames::Refused() {
    if (last_.Stored == last_.Wanted)
        return;
    lost_.pop_back();
    toldLost_.removeLast();
}

void StoredNames::Typed(const QString& text, const QString& stored) {
    lost_.push_back({text, stored});
    toldLost_ += text;
}

QString StoredNames::TakeTold() {
    QStringList told{LostLetters::Told(toldLost_)};
    if (!toldOne_.isEmpty())
        told += GetText(u"NamesBecameOne"_s).replace("%1"_L1, LostLetters::NameOrCount(toldOne_));
    toldLost_.clear();
    toldOne_.clear();
    return told.join(u' ').trimmed();
}

bool StoredNames::MaySave() const {
    if (lost_.empty())
        return true;
    QSet<QString> names;
    for (const BigEntry& entry : mBIG::BigEntries)
        if (!entry.Deleted)
            names.insert(entry.Name);
    QStringList lines;
    for (const Lost& lost : lost_)
        if (names.contains(lost.Stored) || (lost.Stored.endsWith(u'\\') && HoldsFolder(lost.Stored)))
            lines += lost.Wanted + u" \u2192 "_s + lost.Stored;
    lines.removeDuplicates();
    return LostLetters::MaySave(lines);
}

void StoredNames::Forget() {
    *this = {};
}
