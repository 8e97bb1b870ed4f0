// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfCompare.h"

#include "csf/exchange/KeyedEntries.h"
#include "platform/AnsiCodec.h"

#include <QHash>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A name and how often it has come before.
using Key = KeyedEntries::Key;

bool Same(const CsfString* left, const CsfString* right) {
    if (left == nullptr || right == nullptr)
        return left == right;
    return left->Value == right->Value && left->Extra == right->Extra;
}

QString ExtraOf(const CsfString& entry) {
    return AnsiCodec::Decode(entry.Extra.value_or(QByteArray()));
}

/// The three sides of one entry; null where a side has none.
struct Sides {
    const CsfString* Base;
    const CsfString* Ours;
    const CsfString* Theirs;

    [[nodiscard]] bool IsConflict() const { return !Same(Base, Ours) && !Same(Base, Theirs) && !Same(Ours, Theirs); }

    /// The side that changed, and of two that did the preferred one.
    [[nodiscard]] const CsfString* Result(CsfCompare::Side preferred) const {
        if (IsConflict())
            return preferred == CsfCompare::Side::Ours ? Ours : Theirs;
        return Same(Base, Ours) ? Theirs : Ours;
    }

    [[nodiscard]] CsfConflict Conflict() const {
        const auto value = [](const CsfString* entry) { return entry == nullptr ? QString() : entry->Value; };
        return {(Ours == nullptr ? Theirs : Ours)->Name, Reason(), value(Ours), value(Theirs)};
    }

    [[nodiscard]] QString Reason() const {
        if (Ours == nullptr)
            return u"deleted in ours, changed in theirs"_s;
        if (Theirs == nullptr)
            return u"changed in ours, deleted in theirs"_s;
        return Base == nullptr ? u"added in both"_s : u"changed in both"_s;
    }
};

/// Stands for what is before all entries.
const Key NoKey{{}, -1};

/// The entries that only theirs has, by the entry of ours that they stand behind there.
QHash<Key, std::vector<Key>> AddedBehind(const KeyedEntries& ours, const KeyedEntries& theirs) {
    QHash<Key, std::vector<Key>> added;
    Key last = NoKey;
    for (const Key& key : theirs.Keys()) {
        if (ours.Find(key) != nullptr)
            last = key;
        else
            added[last].push_back(key);
    }
    return added;
}

} // namespace

namespace CsfCompare {

std::vector<CsfDifference> Diff(const CsfTable& before, const CsfTable& after) {
    using Kind = CsfDifference::Kind;
    const KeyedEntries old(before);
    const KeyedEntries now(after);
    std::vector<CsfDifference> differences;
    for (const Key& key : old.Keys()) {
        const CsfString* const was = old.Find(key);
        const CsfString* const is = now.Find(key);
        if (is == nullptr)
            differences.push_back({Kind::Removed, key.first, was->Value, {}});
        else if (was->Value != is->Value)
            differences.push_back({Kind::Changed, key.first, was->Value, is->Value});
        else if (!Same(was, is))
            differences.push_back({Kind::Extra, key.first, ExtraOf(*was), ExtraOf(*is)});
    }
    for (const Key& key : now.Keys()) {
        if (old.Find(key) == nullptr)
            differences.push_back({Kind::Added, key.first, {}, now.Find(key)->Value});
    }
    return differences;
}

bool HaveSameOrder(const CsfTable& before, const CsfTable& after) {
    const KeyedEntries old(before);
    const KeyedEntries now(after);
    const auto common = [](const KeyedEntries& keyed, const KeyedEntries& other) {
        std::vector<Key> keys;
        std::ranges::copy_if(keyed.Keys(), std::back_inserter(keys),
                             [&](const Key& key) { return other.Find(key) != nullptr; });
        return keys;
    };
    return common(old, now) == common(now, old);
}

CsfMerged Merge(const CsfTable& base, const CsfTable& ours, const CsfTable& theirs, Side preferred) {
    const KeyedEntries baseKeys(base, Qt::CaseInsensitive);
    const KeyedEntries ourKeys(ours, Qt::CaseInsensitive);
    const KeyedEntries theirKeys(theirs, Qt::CaseInsensitive);
    CsfMerged merged;
    const auto take = [&](const Key& key) {
        const Sides sides{baseKeys.Find(key), ourKeys.Find(key), theirKeys.Find(key)};
        if (sides.IsConflict())
            merged.Conflicts.push_back(sides.Conflict());
        if (const CsfString* const result = sides.Result(preferred); result != nullptr) {
            merged.Table.Strings.push_back(*result);
            if (sides.Ours != nullptr)
                merged.Table.Strings.back().Name = sides.Ours->Name;
        }
    };
    const auto added = AddedBehind(ourKeys, theirKeys);
    const auto takeAdded = [&](const Key& behind) {
        for (const Key& key : added.value(behind))
            take(key);
    };
    takeAdded(NoKey);
    for (const Key& key : ourKeys.Keys()) {
        take(key);
        takeAdded(key);
    }
    merged.LanguageConflict =
        ours.Language != base.Language && theirs.Language != base.Language && ours.Language != theirs.Language;
    const bool takesTheirs = ours.Language == base.Language || (merged.LanguageConflict && preferred == Side::Theirs);
    merged.Table.Language = takesTheirs ? theirs.Language : ours.Language;
    return merged;
}

} // namespace CsfCompare
