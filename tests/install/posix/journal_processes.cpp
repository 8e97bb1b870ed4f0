// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Installs in processes of their own.

#include "tests/install/journal_fixture.h"

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class JournalProcesses : public JournalTest {
protected:
    /// Runs steps in a process that ends without any ado behind them.
    template <typename Steps>
    static pid_t Begin(Steps&& steps) {
        const pid_t process = ::fork();
        if (process == 0) {
            steps();
            ::_exit(0);
        }
        return process;
    }

    static void Await(pid_t process) {
        int status = 0;
        ASSERT_EQ(::waitpid(process, &status, 0), process);
        ASSERT_EQ(status, 0);
    }
};

} // namespace

TEST_F(JournalProcesses, FourThatInstallAtOnceLoseNoEntry) {
    constexpr std::size_t each = 5;
    constexpr std::size_t all = 4 * each;
    std::vector<pid_t> processes;
    processes.reserve(4);
    for (int number = 0; number < 4; ++number)
        processes.push_back(Begin([&] {
            for (std::size_t time = 0; time < each; ++time) {
                JournalRun run(Source(), 0);
                Step(run, InGame(u"%1-%2.big"_s.arg(number).arg(time)), "a");
            }
        }));
    for (const pid_t process : processes)
        Await(process);
    const Journal journal = InstallJournal::Read();
    EXPECT_EQ(journal.Entries.size(), all);
    for (const JournalEntry& entry : journal.Entries)
        EXPECT_EQ(entry.Files.size(), std::size_t{1}) << entry.Id;
}

TEST_F(JournalProcesses, OneThatDiesLeavesAnInstallThatBrokeOff) {
    Install(u"Old.big"_s, "old");
    Await(Begin([&] {
        auto* const run = new JournalRun(Source(), 0);
        Step(*run, InGame(u"A.big"_s), "a");
        Step(*run, InGame(u"Old.big"_s), "new");
        run->WillWrite(InGame(u"B.big"_s));
    }));
    EXPECT_EQ(Entry(1).How, State::BrokenOff);
    EXPECT_EQ(PathsOf(1).size(), 3);
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_FALSE(Files::FileExists(InGame(u"A.big"_s)));
    EXPECT_EQ(Bytes(InGame(u"Old.big"_s)), "old");
    EXPECT_FALSE(IsKnown(1));
}
