// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CrashReport.h"

#include "tests/platform/Scratch.h"
#include "tests/support/Printing.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What the program beside this one leaves when it crashes in that way.
QByteArrayList ReportOf(const QString& kind) {
    const Scratch scratch;
    const QString path = scratch.Inside(u"report"_s) + u"s\\report.txt"_s; // its folder is made too
    QProcess process;
    process.start(Paths::ToNative(Paths::Folder(Paths::Executable())) + u"crashing.exe"_s, {kind, path});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_NE(process.exitCode(), 0);
    EXPECT_NE(process.exitCode(), 2) << "it was asked wrongly";
    return scratch.Read(u"reports/report.txt"_s).split('\n');
}

} // namespace

TEST(CrashReports, TellTheFaultTheStackAndTheLastCommands) {
    const QByteArrayList report = ReportOf(u"fault"_s);
    ASSERT_GT(report.size(), 6) << report.join('\n').toStdString();
    EXPECT_EQ(report.first(2), (QByteArrayList{"the facts", "exception 0xc0000005"}));
    // Where it failed, and who called that.
    EXPECT_GE(std::ranges::count_if(report, [](const auto& line) { return line.startsWith("crashing.exe+0x"); }), 3)
        << report.join('\n').toStdString();
    EXPECT_EQ(report.sliced(report.indexOf("last commands:")),
              (QByteArrayList{"last commands:", "window.command", ""}));
}

TEST(CrashReports, TellOfAnAbort) {
    const QByteArrayList report = ReportOf(u"abort"_s);
    ASSERT_GT(report.size(), 4) << report.join('\n').toStdString();
    EXPECT_EQ(report.first(2), (QByteArrayList{"the facts", "abort 0x16"}));
}

TEST(CrashReports, TellOfAStackThatIsFull) {
    const QByteArrayList report = ReportOf(u"stack"_s);
    ASSERT_GT(report.size(), 4) << report.join('\n').toStdString();
    EXPECT_EQ(report.first(2), (QByteArrayList{"the facts", "exception 0xc00000fd"}));
}
