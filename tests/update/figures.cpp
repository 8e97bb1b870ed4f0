// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The figures of a download, in their 32 bits, and versions as numbers.

#include "core/mMain.h"
#include "platform/Clock.h"
#include "tests/support/Printing.h"
#include "tests/support/Raised.h"
#include "tests/support/World.h"
#include "update/SignedFile.h"
#include "update/TransferFigures.h"
#include "update/VersionNumbers.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

class Figures : public testing::Test {
protected:
    Figures() {
        world_.UseLanguage("[LNG]\r\nKiloBytes=KB\r\nSeconds=s\r\n");
        world_.Start();
        QLocale::setDefault(QLocale::c());
    }

    ~Figures() override { QLocale::setDefault(QLocale::system()); }

    World world_;
    TransferFigures figures_;
};

constexpr qint32 Large = std::numeric_limits<qint32>::max();

} // namespace

TEST_F(Figures, ThePercentageIsCut) {
    figures_.Start(0);
    figures_.Count(1024, 100000, 1);
    EXPECT_EQ(figures_.Percent(), 1);
    figures_.Count(98975, 100000, 1);
    EXPECT_EQ(figures_.Percent(), 99);
    figures_.Count(1, 100000, 1);
    EXPECT_EQ(figures_.Percent(), 100);
}

TEST_F(Figures, TheLastByteCountThatStillMovesTheBarIs21474836) {
    figures_.Start(0);
    figures_.Count(21474836, 42949673, 1);
    EXPECT_EQ(figures_.Percent(), 49);
    figures_.Count(1, 21474837, 1); // would be all of it
    EXPECT_EQ(figures_.Percent(), 49);
    figures_.Count(20000000, 42949673, 1);
    EXPECT_EQ(figures_.Percent(), 49);
    EXPECT_EQ(figures_.DownloadedBytes(), 41474837);
}

TEST_F(Figures, TheBytesStopWhereTheirBitsEnd) {
    figures_.Start(0);
    figures_.Count(Large, Large, 1);
    figures_.Count(1, Large, 1);
    EXPECT_EQ(figures_.DownloadedBytes(), Large);
}

TEST_F(Figures, ABarTakesNoMoreThanAHundred) {
    figures_.Start(0);
    figures_.Count(100, 200, 1);
    figures_.Count(102, 200, 1);
    EXPECT_EQ(figures_.Percent(), 50);
}

TEST_F(Figures, AFileWithoutALengthHasNoPercentage) {
    figures_.Start(0);
    figures_.Count(1024, 0, 1);
    EXPECT_EQ(figures_.Percent(), 0);
    EXPECT_EQ(figures_.DownloadedBytes(), 1024);
}

TEST_F(Figures, TheRateIsOfAllBytesSinceTheRoundedStart) {
    figures_.Start(100.6); // 101
    figures_.Count(1024, 10000, 103);
    EXPECT_EQ(figures_.BytesPerSecond(), 512);
    figures_.Count(1025, 10000, 103);
    EXPECT_EQ(figures_.BytesPerSecond(), 1024) << "halves go to the even neighbour";
    figures_.Count(2, 10000, 103);
    EXPECT_EQ(figures_.BytesPerSecond(), 1026) << "halves go to the even neighbour";
}

TEST_F(Figures, ARateInTheSecondOfTheStartIsPassedOverOrNegative) {
    figures_.Start(100.5); // 100, the even one
    figures_.Count(1000, 10000, 100);
    EXPECT_EQ(figures_.BytesPerSecond(), 0);
    figures_.Count(1000, 10000, 99.5);
    EXPECT_EQ(figures_.BytesPerSecond(), -4000);
    figures_.Count(Large - 2000, Large, 100.001);
    EXPECT_EQ(figures_.BytesPerSecond(), -4000) << "more than 32 bits";
}

TEST_F(Figures, TheRateIsShownInKilobytesWithTwoDecimals) {
    figures_.Start(0);
    EXPECT_EQ(figures_.RateText(), u"0.00 KB/s"_s);
    figures_.Count(1024 * 1024 * 3 + 128, Large, 1);
    EXPECT_EQ(figures_.RateText(), u"3072.13 KB/s"_s) << "no marks between thousands, halves go up";
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(figures_.RateText(), u"3072,13 KB/s"_s);
}

TEST_F(Figures, TheTimesAreClockTimes) {
    figures_.Start(1000);
    figures_.Count(250, 1000, 1001);
    EXPECT_EQ(figures_.ElapsedText(1062.4), Clock::TimeOfDay(62));
    // A quarter in 60 seconds leaves 180.
    EXPECT_EQ(figures_.RemainingText(1060, 1000), Clock::TimeOfDay(180));
    figures_.Count(750, 1000, 1060);
    EXPECT_EQ(figures_.RemainingText(1060, 1000), Clock::TimeOfDay(0));
}

TEST_F(Figures, AcrossMidnightTheTimesAreNegativeAndShownWithoutTheirSign) {
    figures_.Start(86399);
    figures_.Count(500, 1000, 1);
    EXPECT_EQ(figures_.ElapsedText(1), Clock::TimeOfDay(86398));
    EXPECT_EQ(figures_.BytesPerSecond(), 0);
}

TEST_F(Figures, BeforeTheFirstByteTheTimesDivideByZero) {
    figures_.Start(1000);
    EXPECT_EQ(NumberRaisedBy([&] { static_cast<void>(figures_.RemainingText(1001, 1000)); }), 11);
    figures_.Count(1, 1000, 1001);
    EXPECT_EQ(NumberRaisedBy([&] { static_cast<void>(figures_.RemainingText(1001, 1000)); }), 0);
}

TEST(Versions, AreThreePlainNumbers) {
    EXPECT_EQ(VersionNumbers::Of(u"3.5.4"_s), (VersionNumbers::Numbers{3, 5, 4}));
    EXPECT_EQ(VersionNumbers::Of(u"4294967295.0.007"_s), (VersionNumbers::Numbers{4294967295, 0, 7}));
    for (const QString& text : {u""_s, u"3"_s, u"3.5"_s, u"3.5.4.1"_s, u"3..4"_s, u"3.5."_s, u"3.5.-4"_s, u"3.5.+4"_s,
                                u"3.5.4 "_s, u"3.5.x"_s, u"3.5.4294967296"_s, u"\u0663.5.4"_s, u"v3.5.4"_s})
        EXPECT_FALSE(VersionNumbers::Of(text).has_value()) << text.toStdString();
}

TEST(Versions, AreComparedAsNumbers) {
    for (const QString& newer : {u"3.5.5"_s, u"3.6.0"_s, u"4.0.0"_s, u"3.5.10"_s, u"3.10.0"_s, u"10.0.0"_s})
        EXPECT_TRUE(SignedFiles::IsNewer(newer, u"3.5.4"_s)) << newer.toStdString();
    for (const QString& older : {u"3.5.4"_s, u"3.05.0004"_s, u"3.5.3"_s, u"2.9.9"_s, u"3.4.99"_s, u""_s, u"new"_s})
        EXPECT_FALSE(SignedFiles::IsNewer(older, u"3.5.4"_s)) << older.toStdString();
}
