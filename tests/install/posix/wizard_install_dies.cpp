// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An installation whose process is killed at any moment: what stands in the game is whole, and the journal knows it.
#include "install/journal/InstallJournal.h"
#include "install/journal/Uninstall.h"
#include "tests/install/InstallTest.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class InstallDies : public InstallTest {
protected:
    /// Installs what was analysed in a process that is killed when its progress was told so many times.
    void DieAfter(int times) {
        const pid_t process = ::fork();
        if (process == 0) {
            view_.OnProgress = [&] {
                if (--times == 0)
                    std::thread([] { ::kill(::getpid(), SIGKILL); }).detach(); // somewhere in what comes next
            };
            Install();
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(process, &status, 0), process);
        ASSERT_TRUE(WIFSIGNALED(status)) << "it must not come to its end";
    }

    /// All that stands in a game's folders for maps and replays, those files left out that were still aside.
    static QStringList Standing() {
        QStringList paths;
        for (const QString& folder : {Maps(), Of(0).ReplayPath}) {
            for (const Files::FoundFile& file : Files::ListFolderFiles(folder, true)) {
                if (!Paths::LastPart(file.Path).startsWith(u"~brindock-"_s))
                    paths += file.Path.toCaseFolded();
            }
        }
        paths.sort();
        return paths;
    }
};

} // namespace

TEST_F(InstallDies, AtAnyMomentFilesAreWholeAndKnown) {
    constexpr int count = 120;
    std::vector<Part> parts;
    for (int number = 0; number < count; ++number) {
        const QByteArray name = "M" + QByteArray::number(number);
        parts.push_back({.Name = name + "/" + name + ".map", .Content = name.repeated(500), .Method = 8});
        parts.push_back({.Name = name + "/map.ini", .Content = name});
        parts.push_back({.Name = name + ".rep", .Content = name.repeated(300), .Method = 8});
    }
    AnalyseZip(parts);
    TickAll();
    int id = 0;
    for (const int times : {1, 2, 7, 40, 99, 150}) {
        DieAfter(times);
        const Journal journal = InstallJournal::Read();
        ASSERT_EQ(journal.Entries.size(), std::size_t{1}) << times;
        EXPECT_EQ(journal.Entries[0].How, JournalEntry::State::BrokenOff);
        EXPECT_GT(journal.Entries[0].Id, id);
        id = journal.Entries[0].Id;
        const UninstallPlan plan = Uninstall::Plan(journal, id);
        QStringList going;
        for (const QString& path : plan.Paths(PlannedRemoval::Fate::Goes))
            going += path.toCaseFolded();
        going.sort();
        EXPECT_EQ(going, Standing()) << "each with the very bytes that the journal told";
        EXPECT_FALSE(going.isEmpty());
        EXPECT_EQ(Uninstall::Run(plan), QStringList());
        EXPECT_EQ(Standing(), QStringList());
        EXPECT_EQ(Files::ListFolderFiles(Maps(), true).size(), std::size_t{0}) << "what was aside went with its folder";
        for (const QString& folder : {Maps(), Of(0).ReplayPath}) { // in the game's own folder it stays
            for (const QString& name : Names(folder)) {
                Files::DeleteFolder(folder + name);
                Ignoring([&] { Files::DeleteForced(folder + name); });
            }
        }
    }
}
