// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfCompare.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QHash<QString, const CsfString*> ByName(const CsfTable& table) {
    QHash<QString, const CsfString*> entries;
    for (const CsfString& entry : table.Strings) {
        if (const QString name = entry.Name.toCaseFolded(); !entries.contains(name))
            entries.insert(name, &entry);
    }
    return entries;
}

/// Placeholders that all have numbers may stand in any order.
QStringList Comparable(const QString& placeholders) {
    QStringList list = placeholders.split(u' ');
    if (std::ranges::all_of(list, [](const QString& placeholder) { return placeholder.contains(u'$'); }))
        list.sort();
    return list;
}

/// Whether each letter is as it was once its upper byte is gone.
bool HasEightBits(const QString& text) {
    constexpr char16_t highest = 0xFF;
    return std::ranges::all_of(text, [](QChar letter) { return letter.unicode() <= highest; });
}

/// What is between an entry and the other table's of that name, null where that has none. A text without letters needs
/// no translation.
void CheckAgainst(const CsfString& entry, const CsfString* other, std::vector<CsfFinding>& findings) {
    using Kind = CsfFinding::Kind;
    if (other == nullptr)
        return findings.push_back({Kind::Extra, entry.Name, {}, {}});
    const QString here = CsfCompare::Placeholders(entry.Value);
    const QString there = CsfCompare::Placeholders(other->Value);
    if (Comparable(here) != Comparable(there))
        findings.push_back({Kind::Placeholders, entry.Name, here, there});
    if (entry.Value == other->Value && std::ranges::any_of(entry.Value, [](QChar letter) { return letter.isLetter(); }))
        findings.push_back({Kind::Untranslated, entry.Name, {}, {}});
}

} // namespace

namespace CsfCompare {

QString Placeholders(const QString& text) {
    // A blank flag is left out: "50% of" is no placeholder.
    static const QRegularExpression pattern(
        u"%(?:%|(\\d+\\$)?[-+#0]*(\\*|\\d+)?(?:\\.(\\*|\\d+)?)?(hh|h|ll|l|w|L|j|z|t|I64|I32)?([diouxXeEfFgGaAcCsSpn]))"_s);
    QString found;
    auto matches = pattern.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (match.captured(5).isEmpty()) // "%%"
            continue;
        const QString stars =
            (match.captured(2) == u'*' ? u"*"_s : QString()) + (match.captured(3) == u'*' ? u".*"_s : QString());
        found +=
            (found.isEmpty() ? u"%"_s : u" %"_s) + match.captured(1) + stars + match.captured(4) + match.captured(5);
    }
    return found;
}

std::vector<CsfFinding> Check(const CsfTable& table, const Checks& checks) {
    using Kind = CsfFinding::Kind;
    const auto others = checks.Against == nullptr ? QHash<QString, const CsfString*>() : ByName(*checks.Against);
    QSet<QString> names;
    std::vector<CsfFinding> findings;
    for (const CsfString& entry : table.Strings) {
        const QString name = entry.Name.toCaseFolded();
        if (names.contains(name))
            findings.push_back({Kind::Duplicate, entry.Name, {}, {}});
        names.insert(name);
        if (entry.Value.isEmpty())
            findings.push_back({Kind::Empty, entry.Name, {}, {}});
        if (checks.Against != nullptr)
            CheckAgainst(entry, others.value(name), findings);
        if (checks.Maximum > 0 && entry.Value.size() > checks.Maximum)
            findings.push_back({Kind::Long, entry.Name, QString::number(entry.Value.size()), {}});
        if (checks.EightBits && !HasEightBits(entry.Value))
            findings.push_back({Kind::Letters, entry.Name, {}, {}});
        if (checks.EightBits && entry.Extra)
            findings.push_back({Kind::ExtraData, entry.Name, {}, {}});
    }
    if (checks.Against == nullptr)
        return findings;
    for (const CsfString& other : checks.Against->Strings) {
        if (const QString name = other.Name.toCaseFolded(); !names.contains(name)) {
            findings.push_back({Kind::Missing, other.Name, {}, {}});
            names.insert(name);
        }
    }
    return findings;
}

} // namespace CsfCompare
