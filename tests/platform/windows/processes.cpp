// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Processes.h"
#include "platform/RuntimeError.h"

#include "platform/windows/System.h"
#include "tests/platform/Scratch.h"

#include <QElapsedTimer>
#include <QThread>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SystemProcesses, ACommandReachesItsProgram) {
    const Scratch scratch;
    const QString record = QDir::toNativeSeparators(scratch.Native(u"record.txt"_s));
    Processes::StartCommand(u"cmd.exe /c echo one two>\""_s + record + u'"');
    QElapsedTimer waited;
    waited.start();
    while (!scratch.Read(u"record.txt"_s).contains("one two") && waited.elapsed() < 20000)
        QThread::msleep(20);
    EXPECT_EQ(scratch.Read(u"record.txt"_s).trimmed(), "one two");
}

TEST(SystemProcesses, AProgramThatIsNotThereRaisesFileNotFound) {
    try {
        Processes::StartCommand(u"\"C:\\nowhere\\missing.exe\" -a"_s);
        ADD_FAILURE();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::FileNotFound);
    }
}

TEST(SystemProcesses, TheCommandIsShownAsItWouldRun) {
    EXPECT_EQ(Processes::CommandFor(u"\"C:\\a b\\x.exe\"  -win -mod a.big"_s),
              (QStringList{u"C:\\a b\\x.exe"_s, u"-win"_s, u"-mod"_s, u"a.big"_s}));
}

TEST(SystemProcesses, AMissingFileIsAnsweredByTheShell) {
    const Scratch scratch;
    const Processes::Opened opened = Processes::OpenWithAssociation(scratch.Inside(u"missing.exe"_s), 0);
    EXPECT_EQ(opened.InstApp, 2);
    EXPECT_EQ(opened.Process, 0U);
}

TEST(SystemProcesses, AnExitCodeComesOnceTheProgramHasEnded) {
    const Processes::Opened opened = Processes::OpenWithAssociation(u"C:\\windows\\system32\\whoami.exe"_s, 0);
    EXPECT_GT(opened.InstApp, 32);
    ASSERT_NE(opened.Process, 0U);
    QElapsedTimer waited;
    waited.start();
    while (!Processes::ExitCode(opened.Process) && waited.elapsed() < 20000)
        QThread::msleep(20);
    EXPECT_EQ(Processes::ExitCode(opened.Process), 0);
    Processes::Close(opened.Process);
}

TEST(SystemProcesses, AProcessRunsUntilItHasEnded) {
    EXPECT_TRUE(Processes::IsRunning(::GetCurrentProcessId()));
    const Processes::Opened opened = Processes::OpenWithAssociation(u"C:\\windows\\system32\\whoami.exe"_s, 0);
    ASSERT_NE(opened.Process, 0U);
    const qint64 number = ::GetProcessId(reinterpret_cast<HANDLE>(opened.Process)); // NOLINT(performance-no-int-to-ptr)
    QElapsedTimer waited;
    waited.start();
    while (!Processes::ExitCode(opened.Process) && waited.elapsed() < 20000)
        QThread::msleep(20);
    EXPECT_FALSE(Processes::IsRunning(number));
    Processes::Close(opened.Process);
}

TEST(SystemProcesses, NumbersThatNoProcessHasRunNowhere) {
    for (const qint64 number : {qint64{0}, qint64{-1}, qint64{2147483647}, qint64{1} << 40})
        EXPECT_FALSE(Processes::IsRunning(number)) << number;
}

TEST(SystemProcesses, TheCommandLineIsWhatFollowsTheProgram) {
    const QString whole = QString::fromWCharArray(::GetCommandLineW());
    EXPECT_TRUE(whole.endsWith(Processes::CommandLine(0, nullptr)));
    EXPECT_FALSE(Processes::CommandLine(0, nullptr).contains(u"platform_tests"_s));
}
