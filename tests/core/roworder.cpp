// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rows/RowOrder.h"

#include "tests/support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
std::vector<QString> Texts(std::initializer_list<QString> texts) {
    return texts;
}
} // namespace

TEST(RowOrder, AColumnGoesFromNoOrderToAscendingAndThenBackAndForth) {
    RowOrder order(2);
    EXPECT_EQ(order.Of(1), SortOrder::None);
    order.Click(1);
    EXPECT_EQ(order.Of(1), SortOrder::Ascending);
    order.Click(1);
    EXPECT_EQ(order.Of(1), SortOrder::Descending);
    order.Click(1);
    EXPECT_EQ(order.Of(1), SortOrder::Ascending);
}

TEST(RowOrder, AClickTakesTheMarkFromTheOtherColumns) {
    RowOrder order(3);
    order.Click(0);
    order.Click(0);
    order.Click(2);
    EXPECT_EQ(order.Of(0), SortOrder::None);
    EXPECT_EQ(order.Of(2), SortOrder::Ascending);
    order.Click(0);
    EXPECT_EQ(order.Of(0), SortOrder::Ascending) << "It starts anew.";
}

TEST(RowOrder, TheMarkedColumnIsToldUntilMarksAreCleared) {
    RowOrder order(2);
    EXPECT_EQ(order.MarkedColumn(), std::nullopt);
    order.Mark(1, SortOrder::Descending);
    EXPECT_EQ(order.MarkedColumn(), 1);
    order.Clear();
    EXPECT_EQ(order.MarkedColumn(), std::nullopt);
}

TEST(RowOrder, TextsSortWithoutRegardToCase) {
    RowOrder order(1);
    order.Click(0);
    EXPECT_EQ(order.Sort(Texts({u"b"_s, u"A"_s, u"C"_s, u"a"_s})), (std::vector<int>{1, 3, 0, 2}));
}

TEST(RowOrder, EqualRowsKeepTheirOrderBothWays) {
    RowOrder order(1);
    order.Click(0);
    EXPECT_EQ(order.Sort(Texts({u"x"_s, u"a"_s, u"X"_s, u"x"_s})), (std::vector<int>{1, 0, 2, 3}));
    order.Click(0);
    EXPECT_EQ(order.Sort(Texts({u"x"_s, u"a"_s, u"X"_s, u"x"_s})), (std::vector<int>{0, 2, 3, 1}));
}

TEST(RowOrder, NumbersSortByTheirValue) {
    RowOrder order(1);
    order.Click(0);
    EXPECT_EQ(order.Sort(std::vector<qint64>{100, -3, 9}), (std::vector<int>{1, 2, 0}));
    order.Click(0);
    EXPECT_EQ(order.Sort(std::vector<qint64>{100, -3, 9}), (std::vector<int>{0, 2, 1}));
}

TEST(RowOrder, PlacesTellWhereEachRowWent) {
    EXPECT_EQ(PlacesOf({2, 0, 1}), (std::vector<int>{1, 2, 0}));
    EXPECT_TRUE(PlacesOf({}).empty());
}
