// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rows/RowList.h"

#include "tests/support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

RowList Replays(RowList::Checks checks = RowList::Checks::Yes, RowList::Edits edits = RowList::Edits::Yes) {
    RowList list({{.Caption = u"Name"_s}, {.Caption = u"Players"_s, .Sort = SortKind::Number}}, checks, edits);
    list.Add({.Text = u"desert"_s, .SubItems = {u"10"_s}, .Key = u"C:\\d.rep"_s});
    list.Add({.Text = u"Alpine"_s, .SubItems = {u"9"_s}, .Key = u"C:\\a.rep"_s});
    list.Add({.Text = u"city"_s, .SubItems = {u"2"_s}, .Key = u"C:\\c.rep"_s});
    return list;
}

QStringList Shown(const RowList& list) {
    QStringList texts;
    for (int place = 0; place < list.Count(); ++place)
        texts += list.Text(place, 0);
    return texts;
}

} // namespace

TEST(RowList, RowsStandInTheOrderThatTheyCameIn) {
    EXPECT_EQ(Shown(Replays()), QStringList({u"desert"_s, u"Alpine"_s, u"city"_s}));
}

TEST(RowList, ARowHasItsTextItsSubItemsAndItsKey) {
    const RowList list = Replays();
    EXPECT_EQ(list.Text(1, 0), u"Alpine"_s);
    EXPECT_EQ(list.Text(1, 1), u"9"_s);
    EXPECT_EQ(list.Key(1), u"C:\\a.rep"_s);
}

TEST(RowList, ASubItemThatIsMissingIsEmptyAndCanBeSet) {
    RowList list(std::vector<RowColumn>(3));
    list.Add({.Text = u"a"_s});
    EXPECT_EQ(list.Text(0, 2), QString());
    list.SetSubItem(0, 2, u"second"_s);
    EXPECT_EQ(list.Text(0, 1), QString());
    EXPECT_EQ(list.Text(0, 2), u"second"_s);
}

TEST(RowList, TextsSortWithoutRegardToCaseAndKeysGoAlong) {
    RowList list = Replays();
    EXPECT_EQ(list.SortBy(0), (std::vector<int>{2, 0, 1}));
    EXPECT_EQ(Shown(list), QStringList({u"Alpine"_s, u"city"_s, u"desert"_s}));
    EXPECT_EQ(list.Key(0), u"C:\\a.rep"_s);
    EXPECT_EQ(list.OrderOf(0), SortOrder::Ascending);
}

TEST(RowList, AColumnOfNumbersSortsByThem) {
    RowList list = Replays();
    list.SortBy(1);
    EXPECT_EQ(Shown(list), QStringList({u"city"_s, u"Alpine"_s, u"desert"_s}));
    list.SortBy(1);
    EXPECT_EQ(Shown(list), QStringList({u"desert"_s, u"Alpine"_s, u"city"_s}));
}

TEST(RowList, ANewRowComesLastWhateverTheOrder) {
    RowList list = Replays();
    list.SortBy(0);
    EXPECT_EQ(list.Add({.Text = u"aaa"_s}), 3);
    EXPECT_EQ(Shown(list).last(), u"aaa"_s);
}

TEST(RowList, ClearingTakesRowsAndMarksOfOrder) {
    RowList list = Replays();
    list.SortBy(0);
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.OrderOf(0), SortOrder::None);
}

TEST(RowList, CheckMarksAreToldInTheOrderShown) {
    RowList list = Replays();
    EXPECT_TRUE(list.Checked().empty());
    list.SetChecked(0, true);
    list.SetChecked(1, true);
    EXPECT_EQ(list.Checked(), (std::vector<int>{0, 1}));
    list.SortBy(0);
    EXPECT_EQ(list.Checked(), (std::vector<int>{0, 2})) << "A mark goes with its row.";
}

TEST(RowList, AllRowsCanBeCheckedAndNone) {
    RowList list = Replays();
    list.CheckAll(true);
    EXPECT_EQ(list.Checked().size(), 3U);
    list.CheckAll(false);
    EXPECT_TRUE(list.Checked().empty());
}

TEST(RowList, AnEditIsTakenWhenItsTextIsNewAndNotEmpty) {
    const RowList list = Replays();
    EXPECT_TRUE(list.CanEdit());
    EXPECT_TRUE(list.TakesEdit(0, u"Desert"_s));
    EXPECT_FALSE(list.TakesEdit(0, u"desert"_s));
    EXPECT_FALSE(list.TakesEdit(0, QString()));
}

TEST(RowList, ChecksAndEditsAreOnlyThereWhereTheyAreWanted) {
    const RowList list = Replays(RowList::Checks::No, RowList::Edits::No);
    EXPECT_FALSE(list.HasChecks());
    EXPECT_FALSE(list.CanEdit());
}

TEST(RowList, ARowIsFoundByItsKey) {
    RowList list = Replays();
    EXPECT_EQ(list.Find(u"C:\\c.rep"_s), 2);
    list.SetKey(2, u"C:\\new.rep"_s);
    EXPECT_EQ(list.Find(u"C:\\c.rep"_s), -1);
    EXPECT_EQ(list.Find(u"C:\\new.rep"_s), 2);
}

TEST(RowList, ARowCanBeTakenAwayAndChanged) {
    RowList list = Replays();
    list.SetText(2, u"town"_s);
    list.SetTag(2, u"HAlice;"_s);
    list.Remove(0);
    EXPECT_EQ(Shown(list), QStringList({u"Alpine"_s, u"town"_s}));
    EXPECT_EQ(list.Row(1).Tag, u"HAlice;"_s);
}
