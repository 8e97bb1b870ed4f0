// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProcessEnd.h"

#include "tests/platform/Scratch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// The programs are children of the test, as those that open a file are; each runs until its file "go" is there.
class ProcessEndTest : public testing::Test {
protected:
    ~ProcessEndTest() override {
        for (const pid_t process : started_) {
            if (::waitpid(process, nullptr, WNOHANG) == 0)
                ::kill(process, SIGKILL);
        }
    }

    ProcessEndTest() = default;
    ProcessEndTest(const ProcessEndTest&) = delete;
    ProcessEndTest& operator=(const ProcessEndTest&) = delete;

    [[nodiscard]] Processes::Handle Start(const QByteArray& commands) {
        const pid_t process = ::fork();
        if (process == 0) {
            ::execl("/bin/sh", "sh", "-c", commands.constData(), nullptr);
            ::_exit(127);
        }
        started_ << process;
        return static_cast<Processes::Handle>(process);
    }

    [[nodiscard]] Processes::Handle StartWaitingFor(const QString& name, const QByteArray& then = {}) {
        return Start("while [ ! -e '" + scratch_.Native(name).toUtf8() + "' ]; do sleep 0.01; done; " + then);
    }

    void Go(const QString& name) const { scratch_.Write(name, "x"); }

    void Count(ProcessEnd& end, int number) {
        QObject::connect(&end, &ProcessEnd::Ended, [this, number] { ended_ << number; });
    }

    /// Turns the event loop until so many ends were told.
    void Await(qsizetype count) const {
        QElapsedTimer waited;
        waited.start();
        while (ended_.size() < count && waited.elapsed() < 20000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }

    static void Turn(int milliseconds) {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }

    static bool Runs(Processes::Handle process) { return ::kill(static_cast<pid_t>(process), 0) == 0; }

    int count_ = 1;
    std::string name_ = "test";
    std::vector<char*> arguments_{name_.data(), nullptr};
    QCoreApplication application_{count_, arguments_.data()};
    Scratch scratch_;
    QList<int> ended_;
    QList<pid_t> started_;
};

} // namespace

TEST_F(ProcessEndTest, AProgramThatEndedBeforeIsTold) {
    const Processes::Handle process = Start("exit 0");
    siginfo_t ended{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(process), &ended, WEXITED | WNOWAIT), 0);
    ProcessEnd end(process);
    Count(end, 1);
    EXPECT_TRUE(ended_.isEmpty()) << "The end comes out of the event loop.";
    Await(1);
    EXPECT_EQ(ended_, QList<int>{1});
}

TEST_F(ProcessEndTest, AProgramsEndIsToldOnceAndNotBefore) {
    ProcessEnd end(StartWaitingFor(u"go"_s));
    Count(end, 1);
    Turn(50);
    EXPECT_TRUE(ended_.isEmpty());
    Go(u"go"_s);
    Await(1);
    Turn(50);
    EXPECT_EQ(ended_, QList<int>{1});
}

TEST_F(ProcessEndTest, TheExitCodeDoesNotMatter) {
    ProcessEnd end(Start("exit 3"));
    Count(end, 1);
    Await(1);
    EXPECT_EQ(ended_, QList<int>{1});
}

TEST_F(ProcessEndTest, AProgramEndedByASignalIsTold) {
    ProcessEnd end(Start("kill -9 $$"));
    Count(end, 1);
    Await(1);
    EXPECT_EQ(ended_, QList<int>{1});
}

TEST_F(ProcessEndTest, ProgramsEndInAnyOrder) {
    ProcessEnd first(StartWaitingFor(u"first"_s));
    ProcessEnd second(StartWaitingFor(u"second"_s));
    Count(first, 1);
    Count(second, 2);
    Go(u"second"_s);
    Await(1);
    EXPECT_EQ(ended_, QList<int>{2});
    Go(u"first"_s);
    Await(2);
    EXPECT_EQ(ended_, (QList<int>{2, 1}));
}

TEST_F(ProcessEndTest, AProgramRunsOnWhenNobodyWaitsForItAnyMore) {
    const Processes::Handle process =
        StartWaitingFor(u"go"_s, "echo done > '" + scratch_.Native(u"r"_s).toUtf8() + "'");
    auto end = std::make_unique<ProcessEnd>(process);
    Count(*end, 1);
    end.reset();
    EXPECT_TRUE(Runs(process));
    Go(u"go"_s);
    EXPECT_EQ(::waitpid(static_cast<pid_t>(process), nullptr, 0), static_cast<pid_t>(process));
    Turn(20);
    EXPECT_EQ(scratch_.Read(u"r"_s), "done\n");
    EXPECT_TRUE(ended_.isEmpty());
}

TEST_F(ProcessEndTest, NothingIsLeftOfAProgramThatEnded) {
    const Processes::Handle process = Start("exit 0");
    ProcessEnd end(process);
    Count(end, 1);
    Await(1);
    EXPECT_EQ(::waitpid(static_cast<pid_t>(process), nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(ProcessEndTest, WhoIsToldMayDeleteIt) {
    auto end = std::make_unique<ProcessEnd>(StartWaitingFor(u"go"_s));
    QObject::connect(end.get(), &ProcessEnd::Ended, [&] {
        ended_ << 1;
        end.reset();
    });
    Go(u"go"_s);
    Await(1);
    EXPECT_EQ(end, nullptr);
}

TEST_F(ProcessEndTest, NoDescriptorStaysOpen) {
    const int before = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(before);
    for (int number = 0; number < 3; ++number) {
        ProcessEnd end(Start("exit 0"));
        Count(end, number);
        Await(number + 1);
    }
    const ProcessEnd unfinished(Start("exit 0"));
    const int after = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(after);
    EXPECT_LE(after, before + 1);
    EXPECT_EQ(ended_.size(), 3);
}

// The system has no descriptor for it either, as where there are none at all.
TEST_F(ProcessEndTest, AProgramOfWhichNothingIsLeftIsToldOnceToo) {
    const Processes::Handle process = Start("exit 0");
    ASSERT_EQ(::waitpid(static_cast<pid_t>(process), nullptr, 0), static_cast<pid_t>(process));
    ProcessEnd end(process);
    Count(end, 1);
    Await(1);
    Turn(300);
    EXPECT_EQ(ended_, QList<int>{1});
}

TEST_F(ProcessEndTest, TheProcessorRestsMeanwhile) {
    const ProcessEnd end(Start("sleep 0.5"));
    const std::clock_t before = std::clock();
    Turn(400);
    EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 10);
}

TEST_F(ProcessEndTest, OfNoProcessNoEndIsTold) {
    ProcessEnd end(0);
    Count(end, 1);
    Turn(20);
    EXPECT_TRUE(ended_.isEmpty());
}
