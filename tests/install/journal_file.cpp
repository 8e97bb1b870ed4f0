// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The journal's file: damage, locks, installs that broke off.

#include "platform/FolderLock.h"
#include "tests/install/journal_fixture.h"

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class JournalFileTest : public JournalTest {
protected:
    static void AddEntry(const QString& source) {
        InstallJournal::Change([&](Journal& journal) {
            JournalEntry entry;
            entry.Id = journal.NextId++;
            entry.Time = QDateTime::currentDateTimeUtc();
            entry.Source = source;
            journal.Entries.push_back(entry);
            return true;
        });
    }
};

} // namespace

TEST_F(JournalFileTest, WithoutAFileThereAreNoInstalls) {
    EXPECT_TRUE(InstallJournal::Read().Entries.empty());
    EXPECT_FALSE(Files::FolderExists(InstallJournal::Folder())) << "reading makes nothing";
}

TEST_F(JournalFileTest, LiesBesideTheRegistrysFile) {
    EXPECT_EQ(InstallJournal::File(), world_.Root() + u"\\installed.json"_s);
}

TEST_F(JournalFileTest, ADamagedJournalIsNotRead) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("[]"), QByteArray("{}"), QByteArray("{\"format\":1"),
          QByteArray("{\"format\":2,\"hash\":\"blake2b-256\",\"next\":1,\"installs\":[]}"),
          QByteArray("{\"format\":1,\"hash\":\"md5\",\"next\":1,\"installs\":[]}"),
          QByteArray("{\"format\":1,\"hash\":\"blake2b-256\",\"next\":0,\"installs\":[]}"),
          QByteArray("{\"format\":1,\"hash\":\"blake2b-256\",\"next\":1,\"installs\":[1]}")}) {
        Write(InstallJournal::File(), bytes);
        EXPECT_EQ(NumberRaisedBy([] { static_cast<void>(InstallJournal::Read()); }), ErrorNumber::PathFileAccess)
            << bytes.constData();
        EXPECT_EQ(NumberRaisedBy([] { InstallJournal::Change([](Journal&) { return true; }); }),
                  ErrorNumber::PathFileAccess);
        EXPECT_EQ(Bytes(InstallJournal::File()), bytes);
    }
}

TEST_F(JournalFileTest, CutAtEveryByteItIsDamagedOrWhole) {
    Install(u"A.big"_s, "old");
    InstallFiles({{InGame(u"A.big"_s), "new"}, {InMaps(u"M\\M.map"_s), "m"}});
    const QByteArray whole = Bytes(InstallJournal::File());
    for (qsizetype length = 0; length < whole.size() - 1; ++length)
        EXPECT_FALSE(JournalText::Decode(whole.first(length))) << length;
    EXPECT_TRUE(JournalText::Decode(whole.chopped(1))) << "without its last line feed";
}

TEST_F(JournalFileTest, WhatIsPutAsideLiesBesideTheJournalOnly) {
    Install(u"A.big"_s, "old");
    InstallFiles({{InGame(u"A.big"_s), "new"}});
    const QByteArray whole = Bytes(InstallJournal::File());
    ASSERT_TRUE(whole.contains("\"1\\\\1\""));
    for (const QByteArray& kept : {QByteArray("..\\\\..\\\\x"), QByteArray("1"), QByteArray(""), QByteArray("1\\\\..")})
        EXPECT_FALSE(JournalText::Decode(QByteArray(whole).replace("\"1\\\\1\"", '"' + kept + '"')))
            << kept.constData();
}

TEST_F(JournalFileTest, ADamagedJournalIsKeptUnderAnotherNameByTheNextInstallWhichSaysSo) {
    Write(InstallJournal::File(), "damaged");
    Write(world_.Root() + u"\\installed.damaged-1.json"_s, "an earlier one");
    JournalRun run(Source(), 0);
    Step(run, InGame(u"A.big"_s), "a");
    run.End();
    const QString aside = world_.Root() + u"\\installed.damaged-2.json"_s;
    EXPECT_EQ(Bytes(aside), "damaged");
    ASSERT_EQ(run.Told().size(), 1);
    EXPECT_TRUE(run.Told().at(0).startsWith(Paths::ToNative(aside)));
    EXPECT_EQ(PathsOf(1), QStringList{InGame(u"A.big"_s)});
}

TEST_F(JournalFileTest, WhatADamagedJournalKeptAsideStays) {
    const QString path = Install(u"A.big"_s, "old");
    InstallFiles({{path, "new"}});
    Write(InstallJournal::File(), "damaged");
    JournalRun run(Source(), 0);
    Step(run, path, "newer");
    run.End();
    EXPECT_EQ(Bytes(InstallJournal::KeptPath(u"1\\1"_s)), "old");
    EXPECT_EQ(InstallJournal::Read().Entries.at(0).Id, 2);
    EXPECT_EQ(Bytes(InstallJournal::KeptPath(u"2\\1"_s)), "new");
}

TEST_F(JournalFileTest, AWholeJournalIsNotSetAside) {
    EXPECT_EQ(InstallJournal::SetDamagedAside(), QString());
    AddEntry(u"a"_s);
    EXPECT_EQ(InstallJournal::SetDamagedAside(), QString());
    EXPECT_TRUE(IsKnown(1));
}

TEST_F(JournalFileTest, AChangeThatChangesNothingWritesNothing) {
    AddEntry(u"a"_s);
    const FileState before = StateOf(InstallJournal::File());
    InstallJournal::Change([](Journal& journal) {
        journal.Entries.clear();
        return false;
    });
    EXPECT_EQ(StateOf(InstallJournal::File()), before);
    EXPECT_TRUE(IsKnown(1));
}

TEST_F(JournalFileTest, AChangeWaitsForTheLock) {
    AddEntry(u"first"_s);
    std::optional<FolderLock> lock(InstallJournal::Folder());
    ASSERT_TRUE(lock->Held());
    std::atomic<bool> changed = false;
    std::thread other([&] {
        InstallJournal::Change([&](Journal&) {
            changed = true;
            return false;
        });
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(changed);
    lock.reset();
    other.join();
    EXPECT_TRUE(changed);
}

TEST_F(JournalFileTest, ChangesOfManyAtOnceLoseNoEntry) {
    constexpr std::size_t each = 10;
    constexpr std::size_t all = 4 * each;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int number = 0; number < 4; ++number)
        threads.emplace_back([number] {
            for (std::size_t time = 0; time < each; ++time)
                AddEntry(QString::number(number));
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(InstallJournal::Read().Entries.size(), all);
}

TEST_F(JournalFileTest, TwoInstallsAtOnceKeepBothEntries) {
    JournalRun first(Source(), 0);
    JournalRun second(Source(u"Other.zip"_s), 1);
    Step(first, InGame(u"A.big"_s), "a");
    Step(second, InGame(u"B.big"_s), "b");
    second.End();
    Step(first, InGame(u"C.big"_s), "c");
    first.End();
    EXPECT_EQ(PathsOf(1), (QStringList{InGame(u"A.big"_s), InGame(u"C.big"_s)}));
    EXPECT_EQ(PathsOf(2), QStringList{InGame(u"B.big"_s)});
}

TEST_F(JournalFileTest, AnInstallThatGoesOnIsLeftAlone) {
    JournalRun run(Source(), 0);
    Step(run, InGame(u"A.big"_s), "a");
    EXPECT_EQ(Entry(1).How, State::Running);
    EXPECT_EQ(NumberRaisedBy([] { static_cast<void>(PlanOf(1)); }), ErrorNumber::PermissionDenied);
    EXPECT_EQ(NumberRaisedBy([] { Uninstall::Forget(1); }), ErrorNumber::PermissionDenied);
    AddEntry(u"another"_s);
    EXPECT_TRUE(Files::FileExists(InstallJournal::LinesOf(1))) << "its lines are still needed";
    run.End();
    EXPECT_EQ(PathsOf(1), QStringList{InGame(u"A.big"_s)});
    EXPECT_TRUE(IsKnown(2));
}

TEST_F(JournalFileTest, AnInstallThatDiedIsKnownAsFarAsItCame) {
    const QString old = Install(u"Old.big"_s, "old");
    BreakOff(Source(), [&](JournalRun& run) {
        Step(run, InGame(u"A.big"_s), "a");
        Step(run, old, "new");
        run.WillWrite(InMaps(u"B\\B.map"_s));
    });
    const JournalEntry entry = Entry(1);
    EXPECT_EQ(entry.How, State::BrokenOff);
    EXPECT_EQ(PathsOf(1), (QStringList{InGame(u"A.big"_s), old, InMaps(u"B\\B.map"_s)}));
    EXPECT_EQ(entry.Files[2].Hash, QByteArray());
    EXPECT_EQ(entry.Folders, QStringList{InMaps(u"B"_s)});
    AddEntry(u"the next save takes it in"_s);
    EXPECT_EQ(Entry(1).How, State::BrokenOff);
    EXPECT_EQ(PathsOf(1).size(), 3);
    EXPECT_FALSE(Files::FileExists(InstallJournal::LinesOf(1)));
    EXPECT_EQ(Bytes(InstallJournal::KeptPath(Entry(1).Files.at(1).Kept)), "old");
}

TEST_F(JournalFileTest, AnInstallThatDiedBetweenAnnouncingAndWritingIsUninstalled) {
    BreakOff(Source(), [&](JournalRun& run) {
        Step(run, InGame(u"A.big"_s), "a");
        run.WillWrite(InGame(u"B.big"_s));
        Write(InGame(u"B.big"_s), "half");
        run.WillWrite(InGame(u"C.big"_s));
    });
    const UninstallPlan plan = PlanOf(1);
    EXPECT_EQ(plan.Paths(Fate::Goes), QStringList{InGame(u"A.big"_s)});
    EXPECT_EQ(plan.Paths(Fate::Unknown), QStringList{InGame(u"B.big"_s)});
    EXPECT_EQ(plan.Paths(Fate::Gone), QStringList{InGame(u"C.big"_s)});
    EXPECT_EQ(Uninstall::Run(plan), QStringList());
    EXPECT_FALSE(Files::FileExists(InGame(u"A.big"_s)));
    EXPECT_EQ(Bytes(InGame(u"B.big"_s)), "half");
    EXPECT_FALSE(IsKnown(1));
    EXPECT_EQ(Aside(), QStringList());
}

TEST_F(JournalFileTest, AnInstallThatDiedOverWhatItPromisedIsUninstalledByWhatStandsThere) {
    RunningHash hash;
    hash.Add("abc");
    const HashedFile promised = hash.Result();
    BreakOff(Source(), [&](JournalRun& run) {
        for (const QString& name : {u"Put.big"_s, u"Missing.big"_s, u"Another.big"_s}) {
            EXPECT_TRUE(run.WillPut(InGame(name), promised));
            run.WrittenAs(InGame(name), promised); // as far as its lines tell, none of them stood there yet
        }
    });
    Write(InGame(u"Put.big"_s), "abc");
    Write(InGame(u"Another.big"_s), "of another program");
    const UninstallPlan plan = PlanOf(1);
    EXPECT_EQ(plan.Paths(Fate::Goes), QStringList{InGame(u"Put.big"_s)});
    EXPECT_EQ(plan.Paths(Fate::Gone), QStringList{InGame(u"Missing.big"_s)});
    EXPECT_EQ(plan.Paths(Fate::Changed), QStringList{InGame(u"Another.big"_s)});
    EXPECT_EQ(Uninstall::Run(plan), QStringList());
    EXPECT_EQ(Bytes(InGame(u"Another.big"_s)), "of another program");
}

TEST_F(JournalFileTest, LinesThatAreTornOffArePassedOver) {
    const QByteArray whole = JournalText::FileLine({.Path = u"C:\\a"_s}) + JournalText::FolderLine(u"C:\\f"_s) +
                             JournalText::FileLine({.Path = u"C:\\b"_s});
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        JournalEntry entry;
        JournalText::ReadLines(whole.first(length), entry);
        EXPECT_LE(entry.Files.size(), std::size_t{2});
    }
    JournalEntry entry;
    JournalText::ReadLines(whole.chopped(5), entry);
    EXPECT_EQ(entry.Files.size(), std::size_t{1});
    EXPECT_EQ(entry.Folders, QStringList{u"C:\\f"_s});
}
