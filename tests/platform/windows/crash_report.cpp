// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CrashReport.h"

#include "platform/windows/System.h"
#include "tests/platform/Scratch.h"
#include "tests/support/Printing.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Place = "BRINDOCK_TESTS_CRASH";

/// A process of this program that crashes as it is told, with a report wished for.
QByteArrayList ReportOf(const QString& test) {
    const Scratch scratch;
    const Variable place(Place, (scratch.Inside(u"report"_s) + u"s\\report.txt"_s).toUtf8()); // its folder is made too
    QProcess process;
    process.start(Paths::ToNative(Paths::Executable()),
                  {u"--gtest_also_run_disabled_tests"_s, u"--gtest_catch_exceptions=0"_s,
                   u"--gtest_filter=CrashingProcess.DISABLED_"_s + test});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_NE(process.exitCode(), 0);
    return scratch.Read(u"reports/report.txt"_s).split('\n');
}

void Begin() {
    CrashReport::Leave(qEnvironmentVariable(Place), "the facts\n");
    CrashReport::Note("window.command");
}

} // namespace

// What the tests below start.
TEST(CrashingProcess, DISABLED_WritesNowhere) {
    Begin();
    constexpr SIZE_T page = 4096;
    auto* const nothing = static_cast<volatile int*>(VirtualAlloc(nullptr, page, MEM_RESERVE, PAGE_NOACCESS));
    *nothing = 1;
}

TEST(CrashingProcess, DISABLED_Aborts) {
    Begin();
    std::abort();
}

TEST(CrashReports, TellTheFaultTheStackAndTheLastCommands) {
    const QByteArrayList report = ReportOf(u"WritesNowhere"_s);
    ASSERT_GT(report.size(), 6) << report.join('\n').toStdString();
    EXPECT_EQ(report.first(2), (QByteArrayList{"the facts", "exception 0xc0000005"}));
    // The test and those who called it.
    EXPECT_GE(std::ranges::count_if(report, [](const auto& line) { return line.startsWith("platform_tests.exe+0x"); }),
              3);
    EXPECT_EQ(report.sliced(report.indexOf("last commands:")),
              (QByteArrayList{"last commands:", "window.command", ""}));
}

TEST(CrashReports, TellOfAnAbort) {
    const QByteArrayList report = ReportOf(u"Aborts"_s);
    ASSERT_GT(report.size(), 4) << report.join('\n').toStdString();
    EXPECT_EQ(report.first(2), (QByteArrayList{"the facts", "abort 0x16"}));
}
