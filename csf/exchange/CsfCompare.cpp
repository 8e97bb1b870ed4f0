// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfCompare.h"

#include "platform/AnsiCodec.h"

#include <QHash>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A name and how often it has come before.
using Key = std::pair<QString, int>;

/// The entries of a table by their keys.
class Keyed {
public:
    explicit Keyed(const CsfTable& table) {
        QHash<QString, int> occurrences;
        for (const CsfString& entry : table.Strings) {
            keys_.emplace_back(entry.Name, occurrences[entry.Name]++);
            entries_.insert(keys_.back(), &entry);
        }
    }

    [[nodiscard]] const std::vector<Key>& Keys() const { return keys_; }

    /// Null when there is no such entry.
    [[nodiscard]] const CsfString* Find(const Key& key) const { return entries_.value(key); }

private:
    std::vector<Key> keys_;
    QHash<Key, const CsfString*> entries_;
};

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

    /// Ours, unless only theirs changed.
    [[nodiscard]] const CsfString* Result() const { return Same(Base, Ours) ? Theirs : Ours; }

    [[nodiscard]] QString Reason() const {
        if (Ours == nullptr)
            return u"deleted in ours, changed in theirs"_s;
        if (Theirs == nullptr)
            return u"changed in ours, deleted in theirs"_s;
        return Base == nullptr ? u"added in both"_s : u"changed in both"_s;
    }
};

} // namespace

namespace CsfCompare {

std::vector<CsfDifference> Diff(const CsfTable& before, const CsfTable& after) {
    using Kind = CsfDifference::Kind;
    const Keyed old(before);
    const Keyed now(after);
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

CsfMerged Merge(const CsfTable& base, const CsfTable& ours, const CsfTable& theirs) {
    const Keyed baseKeys(base);
    const Keyed ourKeys(ours);
    const Keyed theirKeys(theirs);
    CsfMerged merged;
    const auto take = [&](const Key& key) {
        const Sides sides{baseKeys.Find(key), ourKeys.Find(key), theirKeys.Find(key)};
        if (sides.IsConflict())
            merged.Conflicts.push_back({key.first, sides.Reason()});
        if (const CsfString* const result = sides.Result(); result != nullptr)
            merged.Table.Strings.push_back(*result);
    };
    for (const Key& key : ourKeys.Keys())
        take(key);
    for (const Key& key : theirKeys.Keys()) {
        if (ourKeys.Find(key) == nullptr)
            take(key);
    }
    merged.Table.Language = ours.Language == base.Language ? theirs.Language : ours.Language;
    merged.LanguageConflict =
        ours.Language != base.Language && theirs.Language != base.Language && ours.Language != theirs.Language;
    return merged;
}

} // namespace CsfCompare
