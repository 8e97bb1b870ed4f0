// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Clock.h"

#include "tests/support/Printing.h"

#include <QDate>
#include <QTime>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Clock, NowIsOneLineWithTheDateAndTheTime) {
    const QString now = Clock::Now();
    const QString year = QString::number(QDate::currentDate().year() % 100);
    EXPECT_TRUE(now.contains(year)) << now.toStdString();
    EXPECT_GE(now.count(u':') + now.count(u'.'), 2) << now.toStdString();
    EXPECT_TRUE(now.contains(u' ')) << now.toStdString();
    EXPECT_FALSE(now.contains(u'\n') || now.contains(u'\r')) << now.toStdString();
}

TEST(Clock, TheLocalDayIsThatOfTheUsersZone) {
    constexpr qint64 halfAnHour = 30LL * 60 * 1000;
    const QDateTime start(QDate(2003, 8, 28), QTime(0, 0), Qt::UTC);
    for (int step = 0; step < 400; ++step) {
        const QDateTime time = start.addMSecs(step * halfAnHour);
        EXPECT_EQ(Clock::LocalDay(time), time.toLocalTime().date()) << step;
    }
    const QDateTime early = QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC);
    EXPECT_EQ(Clock::LocalDay(early), early.toLocalTime().date());
}

TEST(Clock, SecondsOfDayCountFromLocalMidnightWithAFraction) {
    const double before = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
    const double now = Clock::SecondsOfDay();
    const double after = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
    // At midnight the later of the readings is the smaller one.
    EXPECT_TRUE(after < before || (now >= before - 0.1 && now <= after + 0.1)) << before << ' ' << now << ' ' << after;
}

TEST(Clock, ASpanIsShownAsTheTimeOfDayOfItsMagnitude) {
    const QString fiveSeconds = Clock::TimeOfDay(5);
    EXPECT_TRUE(fiveSeconds.contains(u":00:05"_s)) << fiveSeconds.toStdString();
    EXPECT_EQ(Clock::TimeOfDay(-5), fiveSeconds);
    EXPECT_EQ(Clock::TimeOfDay(86405), fiveSeconds);
    EXPECT_TRUE(Clock::TimeOfDay(2 * 3600 + 3 * 60 + 4).contains(u"2:03:04"_s));
    EXPECT_EQ(Clock::TimeOfDay(86400), Clock::TimeOfDay(0));
}
