// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CrashReport.h"

#include "tests/platform/Scratch.h"
#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include <dlfcn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// The calls below must not become jumps, or these would not be on the stack.
volatile int depth = 0;

[[gnu::noinline]] void FailHere() {
    constexpr std::size_t page = 4096;
    auto* const nothing =
        static_cast<volatile int*>(::mmap(nullptr, page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    *nothing = depth;
    depth = 1;
}

[[gnu::noinline]] void Abort() {
    std::abort();
}

[[gnu::noinline]] int Deeper(int level) { // NOLINT(misc-no-recursion): until the stack is full
    volatile char room[4096];
    room[0] = static_cast<char>(level);
    return depth < 0 ? 0 : Deeper(level + 1) + room[0];
}

void FillStack() {
    depth = Deeper(0);
}

class CrashReports : public testing::Test {
protected:
    Scratch scratch_;

    /// The signal that ends a process of ours that does this, with a report wished for.
    int EndOf(void (*crash)()) {
        const QString path = scratch_.Inside(u"report"_s) + u"s\\report.txt"_s; // its folder is made too
        const pid_t child = ::fork();
        if (child == 0) {
            // The sanitizers would tell of it in their own way.
            for (const int signal : {SIGSEGV, SIGBUS, SIGABRT})
                ::signal(signal, SIG_DFL);
            CrashReport::Leave(path, "the facts\nof the program\n");
            for (int i = 0; i < 11; ++i)
                CrashReport::Note("window.command" + QByteArray::number(i));
            crash();
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        report_ = scratch_.Read(u"reports/report.txt"_s).split('\n');
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

    /// Whether a frame of the report lies in the first bytes of a function of ours.
    bool HasFrameIn(void (*function)()) const {
        Dl_info module{};
        ::dladdr(reinterpret_cast<void*>(function), &module);
        const auto begin = reinterpret_cast<quintptr>(function) - reinterpret_cast<quintptr>(module.dli_fbase);
        return std::ranges::any_of(report_, [&](const QByteArray& line) {
            const qsizetype plus = line.indexOf("+0x");
            const quint64 offset = line.sliced(plus < 0 ? line.size() : plus + 3).toULongLong(nullptr, 16);
            return line.startsWith("platform_tests+") && offset >= begin && offset < begin + 200;
        });
    }

    QByteArrayList report_;
};

} // namespace

TEST_F(CrashReports, TellTheFaultTheStackAndTheLastCommands) {
    EXPECT_EQ(EndOf(FailHere), SIGSEGV);
    ASSERT_GT(report_.size(), 12);
    EXPECT_EQ(report_.first(3), (QByteArrayList{"the facts", "of the program", "SIGSEGV"}));
    EXPECT_TRUE(HasFrameIn(FailHere)) << report_.join('\n').toStdString();
    EXPECT_EQ(
        report_.sliced(report_.indexOf("last commands:")),
        (QByteArrayList{"last commands:", "window.command3", "window.command4", "window.command5", "window.command6",
                        "window.command7", "window.command8", "window.command9", "window.command10", ""}));
}

TEST_F(CrashReports, TellOfAnAbort) {
    EXPECT_EQ(EndOf(Abort), SIGABRT);
    EXPECT_EQ(report_.value(2), "SIGABRT");
    EXPECT_TRUE(HasFrameIn(Abort)) << report_.join('\n').toStdString();
}

TEST_F(CrashReports, TellOfAStackThatIsFull) {
    EXPECT_EQ(EndOf(FillStack), SIGSEGV);
    EXPECT_EQ(report_.value(2), "SIGSEGV");
}

TEST_F(CrashReports, AreNotMadeWithoutACrash) {
    EXPECT_EQ(EndOf([] {}), 0);
    EXPECT_EQ(report_, QByteArrayList{QByteArray()});
}
