// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Sizes.h"

#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

TEST(Sizes, NumbersAreGroupedByThousandsWithTheUsersMark) {
    const auto back = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
    QLocale::setDefault(QLocale(QLocale::English));
    EXPECT_EQ(Sizes::Grouped(0), u"0"_s);
    EXPECT_EQ(Sizes::Grouped(999), u"999"_s);
    EXPECT_EQ(Sizes::Grouped(1000), u"1,000"_s);
    EXPECT_EQ(Sizes::Grouped(1234567), u"1,234,567"_s);
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(Sizes::Grouped(1234567), u"1.234.567"_s);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::India));
    EXPECT_EQ(Sizes::Grouped(1234567), u"1,234,567"_s) << "that country writes 12,34,567";
}

TEST(Sizes, KilobytesAreWholeAndCut) {
    World world;
    world.UseLanguage("[LNG]\r\nKiloBytes=Ko\r\n");
    world.Start();
    EXPECT_EQ(Sizes::KiloBytes(0), u"0 Ko"_s);
    EXPECT_EQ(Sizes::KiloBytes(1023), u"0 Ko"_s);
    EXPECT_EQ(Sizes::KiloBytes(1024), u"1 Ko"_s);
    EXPECT_EQ(Sizes::KiloBytes(2047), u"1 Ko"_s);
}
