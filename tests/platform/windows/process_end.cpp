// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProcessEnd.h"

#include "platform/windows/System.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class ProcessEndTest : public testing::Test {
protected:
    static HANDLE Start(std::wstring command, DWORD flags = 0) {
        STARTUPINFOW startup{};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION started{};
        if (::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, flags, nullptr, nullptr, &startup,
                             &started) == 0)
            return nullptr;
        ::CloseHandle(started.hThread);
        return started.hProcess;
    }

    /// A program that does nothing until it is ended.
    static HANDLE StartWaiting() { return Start(L"cmd.exe", CREATE_SUSPENDED); }

    void Count(ProcessEnd& end, int number) {
        QObject::connect(&end, &ProcessEnd::Ended, [this, number] { ended_ << number; });
    }

    void Await(qsizetype count, qint64 atMost = 20000) const {
        QElapsedTimer waited;
        waited.start();
        while (ended_.size() < count && waited.elapsed() < atMost)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }

    int count_ = 1;
    std::string name_ = "test";
    std::vector<char*> arguments_{name_.data(), nullptr};
    QCoreApplication application_{count_, arguments_.data()};
    QList<int> ended_;
};

Processes::Handle HandleOf(HANDLE process) {
    return reinterpret_cast<Processes::Handle>(process);
}

} // namespace

TEST_F(ProcessEndTest, AProgramThatEndedBeforeIsTold) {
    const HANDLE process = Start(L"cmd.exe /c exit 3");
    ASSERT_EQ(::WaitForSingleObject(process, 20000), WAIT_OBJECT_0);
    ProcessEnd end(HandleOf(process));
    Count(end, 1);
    Await(1);
    EXPECT_EQ(ended_, QList<int>{1});
}

TEST_F(ProcessEndTest, ProgramsEndInAnyOrderAndEachIsToldOnce) {
    const HANDLE first = StartWaiting();
    const HANDLE second = StartWaiting();
    HANDLE secondAgain = nullptr;
    ::DuplicateHandle(::GetCurrentProcess(), second, ::GetCurrentProcess(), &secondAgain, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    ProcessEnd firstEnd(HandleOf(first));
    ProcessEnd secondEnd(HandleOf(second));
    Count(firstEnd, 1);
    Count(secondEnd, 2);
    Await(1, 200);
    EXPECT_TRUE(ended_.isEmpty());
    ::TerminateProcess(secondAgain, 259);
    Await(1);
    EXPECT_EQ(ended_, QList<int>{2});
    ::TerminateProcess(first, 0);
    Await(3, 2000);
    EXPECT_EQ(ended_, (QList<int>{2, 1}));
    ::CloseHandle(secondAgain);
}

TEST_F(ProcessEndTest, WhoIsToldMayDeleteIt) {
    auto end = std::make_unique<ProcessEnd>(HandleOf(Start(L"cmd.exe /c exit 0")));
    QObject::connect(end.get(), &ProcessEnd::Ended, [&] {
        ended_ << 1;
        end.reset();
    });
    Await(1);
    EXPECT_EQ(end, nullptr);
}
