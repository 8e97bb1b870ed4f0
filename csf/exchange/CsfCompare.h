// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Two string tables compared, three merged, one checked. Entries belong together by their name (letter by letter, in a
/// merge without regard to case), and where a name comes again by how often it has come.
#pragma once

#include "csf/exchange/CsfExchange.h"

#include <QString>

#include <vector>

struct CsfDifference {
    enum class Kind {
        Added,
        Removed,
        Changed,
        Extra, ///< the value is the same, the extra data is not
    };

    Kind What = Kind::Added;
    QString Name;
    QString Before; ///< the value, or the extra data as a text; empty for an added entry
    QString After;  ///< the same; empty for a removed entry

    bool operator==(const CsfDifference&) const = default;
};

struct CsfConflict {
    QString Name;
    QString Reason;
    QString Ours;   ///< the value; empty where ours has no such entry
    QString Theirs; ///< likewise

    bool operator==(const CsfConflict&) const = default;
};

struct CsfMerged {
    CsfTable Table;
    std::vector<CsfConflict> Conflicts; ///< the preferred side was kept in each
    bool LanguageConflict = false;
};

struct CsfFinding {
    enum class Kind {
        Duplicate,
        Empty,
        Placeholders,
        Long,
        Letters,      ///< 8-bit editors lose letters of it
        ExtraData,    ///< they lose its extra data
        Missing,      ///< only the other table has it
        Extra,        ///< only this table has it
        Untranslated, ///< its text is the other table's
    };

    Kind What = Kind::Duplicate;
    QString Name;
    QString Here;  ///< the value's placeholders, or its length
    QString There; ///< the other value's placeholders

    bool operator==(const CsfFinding&) const = default;
};

namespace CsfCompare {

/// What was removed and changed, in the order of `before`, then what was added, in the order of `after`. The order of
/// the entries is no difference.
std::vector<CsfDifference> Diff(const CsfTable& before, const CsfTable& after);

/// Whether the entries that both tables have come in the same order.
bool HaveSameOrder(const CsfTable& before, const CsfTable& after);

enum class Side { Ours, Theirs };

/// What either side changed against `base`. The result has the order and the spelling of names of `ours`; what only
/// `theirs` added stands behind what it stands behind there. Where both changed an entry, the preferred side counts.
CsfMerged Merge(const CsfTable& base, const CsfTable& ours, const CsfTable& theirs, Side preferred = Side::Ours);

struct Checks {
    const CsfTable* Against = nullptr; ///< entries are compared with those of that name, in any case, of this table
    qsizetype Maximum = 0;             ///< characters a value may have; 0 for any number
    bool EightBits = false;            ///< tell what editors of 8 bits would lose of a table that was read whole
};

/// Names that come again without regard to case, empty values, and what `checks` asks for, in the table's order; what
/// is missing comes last, in the other table's order.
std::vector<CsfFinding> Check(const CsfTable& table, const Checks& checks);

/// The printf-style placeholders of a text, without width and precision, joined by blanks.
QString Placeholders(const QString& text);

} // namespace CsfCompare
