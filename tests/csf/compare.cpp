// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfCompare.h"

#include "tests/csf/Tables.h"

using namespace Qt::StringLiterals;
using CsfCompare::Check;
using CsfCompare::Diff;
using CsfCompare::Merge;

namespace {

/// A table of "name=value" texts.
CsfTable TableOf(const QStringList& entries, int language = 0) {
    CsfTable table{language, {}};
    for (const QString& entry : entries)
        table.Strings.push_back({entry.section(u'=', 1), entry.section(u'=', 0, 0)});
    return table;
}

QStringList Texts(const CsfTable& table) {
    QStringList texts;
    for (const CsfString& entry : table.Strings)
        texts += entry.Name + u'=' + entry.Value;
    return texts;
}

} // namespace

TEST(CsfCompare, TellsWhatWasAddedRemovedAndChanged) {
    using Kind = CsfDifference::Kind;
    EXPECT_EQ(Diff(TableOf({u"a=1"_s, u"b=2"_s, u"c=3"_s}), TableOf({u"d=4"_s, u"c=3"_s, u"b=x"_s})),
              (std::vector<CsfDifference>{{Kind::Removed, u"a"_s, u"1"_s, {}},
                                          {Kind::Changed, u"b"_s, u"2"_s, u"x"_s},
                                          {Kind::Added, u"d"_s, {}, u"4"_s}}));
}

TEST(CsfCompare, OrderIsNoDifferenceButCaseIs) {
    EXPECT_TRUE(Diff(TableOf({u"a=1"_s, u"b=2"_s}), TableOf({u"b=2"_s, u"a=1"_s})).empty());
    EXPECT_EQ(Diff(TableOf({u"a=1"_s}), TableOf({u"A=1"_s})).size(), 2U);
}

TEST(CsfCompare, DuplicatesAreComparedInTheirOrder) {
    using Kind = CsfDifference::Kind;
    EXPECT_EQ(Diff(TableOf({u"a=1"_s, u"a=2"_s}), TableOf({u"a=1"_s, u"a=3"_s, u"a=4"_s})),
              (std::vector<CsfDifference>{{Kind::Changed, u"a"_s, u"2"_s, u"3"_s}, {Kind::Added, u"a"_s, {}, u"4"_s}}));
}

TEST(CsfCompare, MergesWhatEitherSideDid) {
    const CsfTable base = TableOf(
        {u"same=1"_s, u"ours=1"_s, u"theirs=1"_s, u"both=1"_s, u"we drop=1"_s, u"they drop=1"_s, u"both drop=1"_s});
    const CsfTable ours = TableOf(
        {u"we add=2"_s, u"same=1"_s, u"ours=2"_s, u"theirs=1"_s, u"both=2"_s, u"they drop=1"_s, u"both add=2"_s});
    const CsfTable theirs = TableOf(
        {u"same=1"_s, u"ours=1"_s, u"theirs=2"_s, u"both=2"_s, u"we drop=1"_s, u"both add=2"_s, u"they add=2"_s});
    const CsfMerged merged = Merge(base, ours, theirs);
    EXPECT_EQ(Texts(merged.Table), (QStringList{u"we add=2"_s, u"same=1"_s, u"ours=2"_s, u"theirs=2"_s, u"both=2"_s,
                                                u"both add=2"_s, u"they add=2"_s}));
    EXPECT_TRUE(merged.Conflicts.empty());
}

TEST(CsfCompare, AConflictKeepsOurs) {
    const CsfMerged merged = Merge(TableOf({u"changed=1"_s, u"we drop=1"_s, u"they drop=1"_s}),
                                   TableOf({u"changed=2"_s, u"they drop=2"_s, u"added=2"_s}),
                                   TableOf({u"changed=3"_s, u"we drop=3"_s, u"added=3"_s}));
    EXPECT_EQ(Texts(merged.Table), (QStringList{u"changed=2"_s, u"they drop=2"_s, u"added=2"_s}));
    EXPECT_EQ(merged.Conflicts,
              (std::vector<CsfConflict>{{u"changed"_s, u"changed in both"_s, u"2"_s, u"3"_s},
                                        {u"we drop"_s, u"deleted in ours, changed in theirs"_s, {}, u"3"_s},
                                        {u"they drop"_s, u"changed in ours, deleted in theirs"_s, u"2"_s, {}},
                                        {u"added"_s, u"added in both"_s, u"2"_s, u"3"_s}}));
}

TEST(CsfCompare, TheirAdditionsStandWhereTheyStood) {
    const CsfTable base = TableOf({u"a=1"_s, u"b=1"_s});
    EXPECT_EQ(Texts(Merge(base, TableOf({u"b=1"_s, u"A=1"_s, u"our=1"_s}),
                          TableOf({u"first=1"_s, u"a=1"_s, u"x=1"_s, u"y=1"_s, u"b=1"_s, u"last=1"_s}))
                        .Table),
              (QStringList{u"first=1"_s, u"b=1"_s, u"last=1"_s, u"A=1"_s, u"x=1"_s, u"y=1"_s, u"our=1"_s}));
}

TEST(CsfCompare, TheirsCountsWhereItIsPreferred) {
    const CsfMerged merged =
        Merge({0, {{u"1"_s, u"n"_s}}}, {2, {{u"2"_s, u"N"_s}}}, {3, {{u"3"_s, u"n"_s}}}, CsfCompare::Side::Theirs);
    EXPECT_EQ(merged.Table, (CsfTable{3, {{u"3"_s, u"N"_s}}}));
    EXPECT_EQ(merged.Conflicts.size(), 1U);
    EXPECT_TRUE(merged.LanguageConflict);
}

TEST(CsfCompare, EveryPairOfSidesHasItsOutcome) {
    struct Row {
        QString Base, Ours, Theirs, Result, Reason; // "-" for no entry
    };

    const Row rows[] = {
        {u"-"_s, u"1"_s, u"-"_s, u"1"_s, {}},
        {u"-"_s, u"-"_s, u"1"_s, u"1"_s, {}},
        {u"-"_s, u"1"_s, u"1"_s, u"1"_s, {}},
        {u"-"_s, u"1"_s, u"2"_s, u"1"_s, u"added in both"_s},
        {u"1"_s, u"1"_s, u"1"_s, u"1"_s, {}},
        {u"1"_s, u"1"_s, u"2"_s, u"2"_s, {}},
        {u"1"_s, u"1"_s, u"-"_s, u"-"_s, {}},
        {u"1"_s, u"2"_s, u"1"_s, u"2"_s, {}},
        {u"1"_s, u"2"_s, u"2"_s, u"2"_s, {}},
        {u"1"_s, u"2"_s, u"3"_s, u"2"_s, u"changed in both"_s},
        {u"1"_s, u"2"_s, u"-"_s, u"2"_s, u"changed in ours, deleted in theirs"_s},
        {u"1"_s, u"-"_s, u"1"_s, u"-"_s, {}},
        {u"1"_s, u"-"_s, u"2"_s, u"-"_s, u"deleted in ours, changed in theirs"_s},
        {u"1"_s, u"-"_s, u"-"_s, u"-"_s, {}},
        {u"1"_s, {}, u"1"_s, {}, {}},
        {{}, u"-"_s, {}, u"-"_s, {}},
        {{}, u"-"_s, u"1"_s, u"-"_s, u"deleted in ours, changed in theirs"_s},
    };
    const auto side = [](const QString& value) {
        return value == u"-"_s ? CsfTable() : CsfTable{0, {{value, u"n"_s}}};
    };
    const auto value = [](const QString& text) { return text == u"-"_s ? QString() : text; };
    for (const Row& row : rows) {
        const CsfMerged merged = Merge(side(row.Base), side(row.Ours), side(row.Theirs));
        EXPECT_EQ(merged.Table, side(row.Result));
        EXPECT_EQ(merged.Conflicts,
                  row.Reason.isEmpty()
                      ? std::vector<CsfConflict>()
                      : std::vector<CsfConflict>({{u"n"_s, row.Reason, value(row.Ours), value(row.Theirs)}}))
            << row.Base.toStdString() << ' ' << row.Ours.toStdString() << ' ' << row.Theirs.toStdString();
    }
}

TEST(CsfCompare, DuplicatesAreMergedInTheirOrder) {
    const CsfTable base = TableOf({u"a=1"_s, u"a=2"_s, u"a=3"_s});
    const CsfMerged merged = Merge(base, TableOf({u"a=x"_s, u"a=2"_s, u"a=3"_s}), TableOf({u"a=1"_s, u"a=y"_s}));
    EXPECT_EQ(Texts(merged.Table), (QStringList{u"a=x"_s, u"a=y"_s}));
    EXPECT_TRUE(merged.Conflicts.empty());
    const CsfMerged both =
        Merge(base, TableOf({u"a=1"_s, u"a=x"_s, u"a=3"_s, u"a=4"_s}), TableOf({u"a=1"_s, u"a=y"_s, u"a=3"_s}));
    EXPECT_EQ(Texts(both.Table), (QStringList{u"a=1"_s, u"a=x"_s, u"a=3"_s, u"a=4"_s}));
    EXPECT_EQ(both.Conflicts, (std::vector<CsfConflict>{{u"a"_s, u"changed in both"_s, u"x"_s, u"y"_s}}));
}

TEST(CsfCompare, TheLanguageIsMergedToo) {
    const auto languageOf = [](int base, int ours, int theirs) { return Merge({base, {}}, {ours, {}}, {theirs, {}}); };
    EXPECT_EQ(languageOf(0, 0, 3).Table.Language, 3);
    EXPECT_EQ(languageOf(0, 2, 0).Table.Language, 2);
    EXPECT_FALSE(languageOf(0, 3, 3).LanguageConflict);
    EXPECT_EQ(languageOf(0, 2, 3).Table.Language, 2);
    EXPECT_TRUE(languageOf(0, 2, 3).LanguageConflict);
}

TEST(CsfCompare, ChecksForDuplicatesEmptyAndLongValues) {
    using Kind = CsfFinding::Kind;
    EXPECT_EQ(Check(TableOf({u"GUI:Ok=yes"_s, u"b="_s, u"gui:OK=12345"_s, u"c=1234"_s, u"B=x"_s}),
                    {.Against = nullptr, .Maximum = 4}),
              (std::vector<CsfFinding>{{Kind::Empty, u"b"_s, {}, {}},
                                       {Kind::Duplicate, u"gui:OK"_s, {}, {}},
                                       {Kind::Long, u"gui:OK"_s, u"5"_s, {}},
                                       {Kind::Duplicate, u"B"_s, {}, {}}}));
}

TEST(CsfCompare, ChecksPlaceholdersAgainstAnotherTable) {
    using Kind = CsfFinding::Kind;
    const CsfTable other = TableOf({u"A=%d of %s"_s, u"b=%s"_s, u"c=50%"_s, u"d=x"_s});
    EXPECT_EQ(Check(TableOf({u"a=%s von %d"_s, u"b=%s!"_s, u"c=50% of 100%%"_s, u"e=%s"_s}), {.Against = &other}),
              (std::vector<CsfFinding>{{Kind::Placeholders, u"a"_s, u"%s %d"_s, u"%d %s"_s},
                                       {Kind::Extra, u"e"_s, {}, {}},
                                       {Kind::Missing, u"d"_s, {}, {}}}));
}

TEST(CsfCompare, NumberedPlaceholdersMayStandInAnyOrder) {
    const CsfTable other = TableOf({u"a=%1$s of %2$d"_s, u"b=%1$s of %2$d"_s, u"c=%1$s"_s, u"d=%1$s %d"_s});
    using Kind = CsfFinding::Kind;
    EXPECT_EQ(
        Check(TableOf({u"a=%2$d von %1$s"_s, u"b=%1$s von %2$s"_s, u"c=%s"_s, u"d=%d %1$s"_s}), {.Against = &other}),
        (std::vector<CsfFinding>{{Kind::Placeholders, u"b"_s, u"%1$s %2$s"_s, u"%1$s %2$d"_s},
                                 {Kind::Placeholders, u"c"_s, u"%s"_s, u"%1$s"_s},
                                 {Kind::Placeholders, u"d"_s, u"%d %1$s"_s, u"%1$s %d"_s}}));
}

TEST(CsfCompare, WidthAndPrecisionAreNoDifference) {
    const CsfTable other = TableOf({u"a=%s %d %-5.2f %%"_s});
    EXPECT_TRUE(Check(TableOf({u"a=%10s %03d %f 100%"_s}), {.Against = &other}).empty());
    EXPECT_EQ(Check(TableOf({u"a=%s %d"_s}), {.Against = &other}).size(), 1U);
    EXPECT_EQ(Check(TableOf({u"a=%s %d %f %s"_s}), {.Against = &other}).size(), 1U);
    EXPECT_EQ(Check(TableOf({u"a=%s %u %f"_s}), {.Against = &other}).size(), 1U);
}

TEST(CsfCompare, FindsPlaceholders) {
    EXPECT_EQ(CsfCompare::Placeholders(u"%d %5.2f %-3hs %2$ls %*d %% 10% off %I64d %+.3x%"_s),
              u"%d %f %hs %2$ls %*d %I64d %x"_s);
    EXPECT_EQ(CsfCompare::Placeholders(u"100%"_s), QString());
}
