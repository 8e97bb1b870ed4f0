// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What an install leaves in the journal.

#include "Places.h"
#include "tests/install/journal_fixture.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto HashOfAbc = "bddd813c634239723171ef3fee98579b94964e3bb1cb3e427262c8c068d52319";

class Journaling : public JournalTest {
protected:
    static HashedFile Hashed(QByteArrayView bytes) {
        RunningHash hash;
        hash.Add(bytes);
        return hash.Result();
    }
};

} // namespace

TEST_F(Journaling, AnInstallIsAppended) {
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    EXPECT_EQ(InstallFiles({{InGame(u"Mod.big"_s), "abc"}, {InGame(u"Mod.ini"_s), "[Mod]\r\n"}}), 1);
    const JournalEntry entry = Entry(1);
    EXPECT_EQ(entry.Source, u"Pack.zip"_s);
    EXPECT_EQ(entry.SourceHash.toHex(), QByteArray(HashOfAbc));
    EXPECT_EQ(entry.Game, 0);
    EXPECT_EQ(entry.How, State::Ended);
    EXPECT_GE(entry.Time, before);
    EXPECT_LE(entry.Time, QDateTime::currentDateTimeUtc());
    ASSERT_EQ(entry.Files.size(), std::size_t{2});
    EXPECT_EQ(entry.Files[0].Path, InGame(u"Mod.big"_s));
    EXPECT_EQ(entry.Files[0].Hash.toHex(), QByteArray(HashOfAbc));
    EXPECT_EQ(entry.Files[0].Length, 3);
    EXPECT_FALSE(entry.Files[0].Replaced);
    EXPECT_EQ(entry.Folders, QStringList()) << "the game's own folder was there";
    EXPECT_EQ(Aside(), QStringList()) << "nothing is left of the run itself";
}

TEST_F(Journaling, TheFileIsJsonThatNamesItsHash) {
    InstallFiles({{InGame(u"Mod.big"_s), "abc"}});
    const QJsonObject json = Json();
    EXPECT_EQ(json[u"format"_s].toInt(), 1);
    EXPECT_EQ(json[u"hash"_s].toString(), u"blake2b-256"_s);
    const QJsonObject install = json[u"installs"_s].toArray()[0].toObject();
    EXPECT_EQ(install[u"id"_s].toInt(), 1);
    EXPECT_TRUE(install[u"time"_s].toString().endsWith(u'Z'));
    EXPECT_EQ(install[u"game"_s].toString(), u"gen"_s);
    EXPECT_EQ(install[u"source"_s].toString(), u"Pack.zip"_s);
    EXPECT_EQ(install[u"sourceHash"_s].toString(), QString::fromLatin1(HashOfAbc));
    const QJsonObject file = install[u"files"_s].toArray()[0].toObject();
    EXPECT_EQ(file[u"path"_s].toString(), InGame(u"Mod.big"_s));
    EXPECT_EQ(file[u"hash"_s].toString(), QString::fromLatin1(HashOfAbc));
    EXPECT_EQ(file[u"replaced"_s], QJsonValue(false));
}

TEST_F(Journaling, InstallsAreNumberedAndANumberIsNeverUsedAgain) {
    EXPECT_EQ(InstallFiles({{InGame(u"A.big"_s), "a"}}), 1);
    EXPECT_EQ(InstallFiles({{InGame(u"B.big"_s), "b"}}, 1), 2);
    EXPECT_EQ(Entry(2).Game, 1);
    Uninstall::Forget(2);
    EXPECT_EQ(InstallFiles({{InGame(u"C.big"_s), "c"}}), 3);
    EXPECT_TRUE(IsKnown(1));
}

TEST_F(Journaling, AnInstallThatWritesNothingLeavesNothing) {
    {
        JournalRun run(Source(), 0);
        run.Written(InGame(u"never announced"_s));
        run.End();
        EXPECT_EQ(run.Told(), QStringList());
    }
    EXPECT_FALSE(Files::FileExists(InstallJournal::File()));
    EXPECT_FALSE(Files::FolderExists(InstallJournal::Folder()));
}

TEST_F(Journaling, ItIsOnTheDiskBeforeTheFirstWrite) {
    JournalRun run(Source(), 0);
    run.WillWrite(InGame(u"Mod.big"_s));
    EXPECT_EQ(Entry(1).How, State::Running);
    EXPECT_EQ(Json()[u"installs"_s].toArray()[0].toObject()[u"state"_s].toString(), u"running"_s);
    EXPECT_TRUE(Bytes(InstallJournal::LinesOf(1)).contains("Mod.big"));
    EXPECT_FALSE(Files::FileExists(InGame(u"Mod.big"_s)));
}

TEST_F(Journaling, AReplacedFileIsKeptAside) {
    const QString path = Install(u"Mod.big"_s, "old");
    InstallFiles({{path, "new"}});
    const JournalFile file = Entry(1).Files.at(0);
    EXPECT_TRUE(file.Replaced);
    EXPECT_EQ(file.Kept, u"1\\1"_s);
    EXPECT_EQ(Bytes(InstallJournal::KeptPath(file.Kept)), "old");
    EXPECT_EQ(Files::ListFolder(Kept(1) + u'\\', true), QStringList{u"1"_s});
}

TEST_F(Journaling, AReplacedFileIsFoundWithoutRegardToCase) {
    Install(u"MOD.BIG"_s, "old");
    JournalRun run(Source(), 0);
    run.WillWrite(InGame(u"Mod.big"_s));
    Write(InGame(u"MOD.BIG"_s), "new");
    run.Written(InGame(u"Mod.big"_s));
    run.End();
    EXPECT_EQ(Bytes(InstallJournal::KeptPath(Entry(1).Files.at(0).Kept)), "old");
}

TEST_F(Journaling, AFileThatIsWrittenInTwoStepsIsKeptAsItWasBeforeTheFirst) {
    const QString path = Install(u"Mod.ini"_s, "old");
    JournalRun run(Source(), 0);
    Step(run, path, "copied");
    Step(run, path, "abc");
    run.End();
    const JournalEntry entry = Entry(1);
    ASSERT_EQ(entry.Files.size(), std::size_t{1});
    EXPECT_EQ(entry.Files[0].Hash.toHex(), QByteArray(HashOfAbc));
    EXPECT_EQ(Bytes(InstallJournal::KeptPath(entry.Files[0].Kept)), "old");
}

TEST_F(Journaling, FoldersThatItMakesAreItsOwn) {
    InstallFiles({{InMaps(u"A\\Sub\\A.map"_s), "a"}});
    EXPECT_EQ(Entry(1).Folders, (QStringList{InMaps(u"A"_s), InMaps(u"A\\Sub"_s)}));
}

TEST_F(Journaling, AFolderThatWasMadeJustBeforeIsItsOwnToo) {
    Files::MakeFolder(InMaps(u"A"_s));
    InstallFiles({{InMaps(u"A\\A.map"_s), "a"}, {InMaps(u"A\\A.tga"_s), "t"}});
    EXPECT_EQ(Entry(1).Folders, QStringList{InMaps(u"A"_s)});
}

TEST_F(Journaling, AFolderWithSomethingInItAndTheGamesOwnAreNot) {
    Write(InMaps(u"A\\notes.txt"_s));
    InstallFiles({{InMaps(u"A\\A.map"_s), "a"}, {Game[0].ReplayPath + u"r.rep"_s, "r"}});
    EXPECT_EQ(Entry(1).Folders, QStringList());
}

TEST_F(Journaling, WhatAFailedStepDidNotWriteIsLeftOut) {
    const QString old = Install(u"Old.big"_s, "old");
    JournalRun run(Source(), 0);
    run.WillWrite(InMaps(u"A\\A.map"_s));
    run.WillWrite(old);
    Step(run, InGame(u"Done.big"_s), "done");
    run.End();
    EXPECT_EQ(PathsOf(1), QStringList{InGame(u"Done.big"_s)});
    EXPECT_EQ(Entry(1).Folders, QStringList());
    EXPECT_EQ(Aside(), QStringList()) << "nothing was replaced";
}

TEST_F(Journaling, WhenAllStepsFailedNoInstallIsLeft) {
    {
        JournalRun run(Source(), 0);
        run.WillWrite(InGame(u"Mod.big"_s));
    }
    EXPECT_TRUE(InstallJournal::Read().Entries.empty());
    EXPECT_EQ(Aside(), QStringList());
}

TEST_F(Journaling, AStepThatFailedHalfwayIsKnownButNotWhatItWrote) {
    const QString old = Install(u"Old.big"_s, "old");
    JournalRun run(Source(), 0);
    run.WillWrite(old);
    Write(old, "half");
    run.End();
    const JournalFile file = Entry(1).Files.at(0);
    EXPECT_EQ(file.Hash, QByteArray());
    EXPECT_EQ(Bytes(InstallJournal::KeptPath(file.Kept)), "old");
}

TEST_F(Journaling, AFileIsNotReadAgainWhereItsHashIsAtHand) {
    JournalRun run(Source(), 0);
    run.WillWrite(InGame(u"A.big"_s));
    RunningHash hash;
    hash.Add("a");
    hash.Add("bc");
    run.WrittenAs(InGame(u"A.big"_s), hash.Result()); // there is no such file
    run.End();
    EXPECT_EQ(Entry(1).Files.at(0).Hash.toHex(), QByteArray(HashOfAbc));
    EXPECT_EQ(Entry(1).Files.at(0).Length, 3);
}

TEST_F(Journaling, FilesOfEverySizeAreReadToTheirEnd) {
    for (const qsizetype size : {0, 1, (1 << 18) - 1, 1 << 18, (1 << 18) + 1, 3 << 18}) {
        const QByteArray bytes(size, 'x');
        RunningHash expected;
        expected.Add(bytes);
        const HashedFile hashed = HashOf(Write(InGame(u"A.big"_s), bytes));
        EXPECT_EQ(hashed.Length, size);
        EXPECT_EQ(hashed.Hash, expected.Result().Hash) << size;
    }
}

TEST_F(Journaling, CallsBehindTheEndDoNothing) {
    JournalRun run(Source(), 0);
    Step(run, InGame(u"A.big"_s), "a");
    run.End();
    run.WillWrite(InGame(u"B.big"_s));
    run.Written(InGame(u"A.big"_s));
    run.End();
    EXPECT_EQ(PathsOf(1), QStringList{InGame(u"A.big"_s)});
}

TEST_F(Journaling, ASourceThatIsGoneHasNoHash) {
    JournalRun run(world_.Root() + u"\\downloads\\gone.big"_s, 0);
    Step(run, InGame(u"A.big"_s), "a");
    run.End();
    EXPECT_EQ(run.Told(), QStringList());
    EXPECT_EQ(Entry(1).Source, u"gone.big"_s);
    EXPECT_EQ(Entry(1).SourceHash, QByteArray());
}

TEST_F(Journaling, EveryNameComesBackAsItWas) {
    const QString name = u"\\a\"b\t\n\u0001\u007F\u00E4\u2028"_s + QChar(0xDC80) + QChar(0xDC81) + u"\U0001F5FA"_s +
                         QChar(0xD800) + u"end"_s;
    Journal journal;
    journal.NextId = 2;
    JournalEntry entry;
    entry.Id = 1;
    entry.Time = QDateTime::fromSecsSinceEpoch(1000000000, Qt::UTC);
    entry.Source = name;
    entry.Folders = {name, name};
    entry.Files = {{.Path = name}, {.Path = name + u'2'}};
    journal.Entries.push_back(entry);
    const std::optional<Journal> read = JournalText::Decode(JournalText::Encode(journal));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Entries.at(0).Source, name);
    EXPECT_EQ(read->Entries.at(0).Folders, entry.Folders);
    EXPECT_EQ(read->Entries.at(0).Files.at(1).Path, name + u'2');
}

TEST_F(Journaling, NamesThatAreNoTextComeBackWhole) {
    const JournalFile file{.Path = u"\\games\\a"_s + QChar(0xDC80) + QChar(0xF05C) + u"\u0413\U0001F5FA"_s};
    JournalEntry entry;
    JournalText::ReadLines(JournalText::FileLine(file), entry);
    ASSERT_EQ(entry.Files.size(), std::size_t{1});
    EXPECT_EQ(entry.Files[0].Path, file.Path);
}

TEST_F(Journaling, AnInstallGoesOnWithoutItsJournalAndSaysSo) {
    Files::MakeFolder(InstallJournal::File()); // can't be a file then
    JournalRun run(Source(), 0);
    Step(run, InGame(u"A.big"_s), "a");
    Step(run, InGame(u"B.big"_s), "b");
    run.End();
    EXPECT_EQ(run.Told().size(), 1);
    EXPECT_EQ(Aside(), QStringList());
}

TEST_F(Journaling, WhatCanNotBePutAsideIsTold) {
    const QString first = Install(u"First.big"_s, "first");
    const QString second = Install(u"Second.big"_s, "second");
    JournalRun run(Source(), 0);
    Step(run, first, "new");
    Files::MakeFolder(InstallJournal::KeptPath(u"1\\2"_s));
    Step(run, second, "new");
    run.End();
    ASSERT_EQ(run.Told().size(), 1);
    EXPECT_TRUE(run.Told().at(0).startsWith(Paths::ToNative(second)));
    EXPECT_TRUE(Entry(1).Files.at(1).Replaced);
    EXPECT_EQ(Entry(1).Files.at(1).Kept, QString());
}

TEST_F(Journaling, TheJournalIsWrittenTwiceForThousandsOfFiles) {
    constexpr int count = Places::SystemIsEmulated ? 2000 : 20000;
    JournalRun run(Source(), 0);
    run.WillWrite(Game[0].ReplayPath + u"0.rep"_s);
    const FileState begun = StateOf(InstallJournal::File());
    for (int number = 0; number < count; ++number) {
        const QString path = Game[0].ReplayPath + QString::number(number) + u".rep"_s;
        run.WillWrite(path);
        File::OpenAsGiven(path, File::Access::New).Write(0, QByteArray::number(number));
        run.Written(path);
    }
    EXPECT_EQ(StateOf(InstallJournal::File()), begun);
    run.End();
    const JournalEntry entry = Entry(1);
    ASSERT_EQ(entry.Files.size(), std::size_t{count});
    EXPECT_EQ(entry.Files[1234].Path, Game[0].ReplayPath + u"1234.rep"_s);
    EXPECT_EQ(entry.Files[1234].Length, 4);
    EXPECT_EQ(PlanOf(1).Paths(Fate::Goes).size(), count);
}

TEST_F(Journaling, AFileThatIsPutInOneStepIsKnownWithAllThatItWillHold) {
    JournalRun run(Source(), 0);
    const QString path = InGame(u"A.big"_s);
    EXPECT_TRUE(run.WillPut(path, Hashed("abc")));
    JournalEntry before;
    JournalText::ReadLines(Bytes(InstallJournal::LinesOf(1)), before);
    ASSERT_EQ(before.Files.size(), std::size_t{1});
    EXPECT_EQ(before.Files[0].Hash.toHex(), QByteArray(HashOfAbc)) << "before it stands there";
    EXPECT_EQ(before.Files[0].Length, 3);
    Write(path, "abc");
    run.WrittenAs(path, Hashed("abc"));
    EXPECT_EQ(Bytes(InstallJournal::LinesOf(1)).count('\n'), 1) << "one line is enough";
    run.End();
    EXPECT_EQ(Entry(1).Files.at(0).Hash.toHex(), QByteArray(HashOfAbc));
    EXPECT_FALSE(Entry(1).Files.at(0).Replaced);
    EXPECT_EQ(PlanOf(1).Paths(Fate::Goes), QStringList{path});
}

TEST_F(Journaling, NothingIsPutWhereSomethingStandsInAnyCase) {
    Install(u"Old.big"_s, "old");
    JournalRun run(Source(), 0);
    EXPECT_FALSE(run.WillPut(InGame(u"old.BIG"_s), Hashed("abc")));
    EXPECT_TRUE(run.WillPut(InGame(u"A.big"_s), Hashed("abc")));
    run.WrittenAs(InGame(u"A.big"_s), Hashed("abc"));
    EXPECT_FALSE(run.WillPut(InGame(u"a.big"_s), Hashed("abc"))) << "it came a moment ago";
}

TEST_F(Journaling, WhatCameInBetweenIsPutAsideWhenTheFileTakesTheOtherWay) {
    JournalRun run(Source(), 0);
    const QString path = InGame(u"A.big"_s);
    EXPECT_TRUE(run.WillPut(path, Hashed("abc")));
    Install(u"A.big"_s, "another's");
    run.WillWrite(path);
    Write(path, "abc");
    run.WrittenAs(path, Hashed("abc"));
    run.End();
    ASSERT_EQ(PathsOf(1), QStringList{path});
    EXPECT_TRUE(Entry(1).Files.at(0).Replaced);
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "another's");
}

TEST_F(Journaling, WhatWasPromisedAndNotPutIsLeftOut) {
    JournalRun run(Source(), 0);
    EXPECT_TRUE(run.WillPut(InGame(u"A.big"_s), Hashed("abc")));
    run.WillWrite(InGame(u"A.big"_s)); // and this fails too
    Step(run, InGame(u"B.big"_s), "b");
    EXPECT_TRUE(run.WillPut(InGame(u"C.big"_s), Hashed("abc")));
    run.End();
    EXPECT_EQ(PathsOf(1), QStringList{InGame(u"B.big"_s)});
}

TEST_F(Journaling, APromiseThatAnotherOneFollowsIsLeftOutToo) {
    JournalRun run(Source(), 0);
    for (const QString& name : {u"A.big"_s, u"B.big"_s, u"C.big"_s})
        EXPECT_TRUE(run.WillPut(InGame(name), Hashed("abc")));
    JournalEntry known;
    JournalText::ReadLines(Bytes(InstallJournal::LinesOf(1)), known);
    ASSERT_EQ(known.Files.size(), std::size_t{3});
    EXPECT_EQ(known.Files[0].Hash, QByteArray()) << "also while it runs";
    EXPECT_EQ(known.Files[1].Hash, QByteArray());
    EXPECT_EQ(known.Files[2].Hash.toHex(), QByteArray(HashOfAbc));
    Write(InGame(u"C.big"_s), "abc");
    run.WrittenAs(InGame(u"C.big"_s), Hashed("abc"));
    run.End();
    EXPECT_EQ(PathsOf(1), QStringList{InGame(u"C.big"_s)});
}

TEST_F(Journaling, WhatCameInBetweenIsPutAsideAlsoWhenAnotherFileWasPromisedSince) {
    JournalRun run(Source(), 0);
    const QString path = InGame(u"A.big"_s);
    EXPECT_TRUE(run.WillPut(path, Hashed("abc")));
    Install(u"A.big"_s, "another's");
    EXPECT_TRUE(run.WillPut(InGame(u"B.big"_s), Hashed("b")));
    EXPECT_FALSE(run.WillPut(path, Hashed("abc")));
    Step(run, path, "abc");
    run.End();
    ASSERT_EQ(PathsOf(1), QStringList{path});
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "another's");
}

TEST_F(Journaling, AFolderThatIsToldToBeNewIsTheInstallsOnceAFileComesIntoIt) {
    JournalRun run(Source(), 0);
    for (const QString& name : {u"First"_s, u"Second"_s, u"Empty"_s}) {
        Files::MakeFolder(InMaps(name));
        run.MadeFolder(InMaps(name));
    }
    EXPECT_TRUE(run.WillPut(InMaps(u"First\\a.map"_s), Hashed("abc")));
    Write(InMaps(u"First\\a.map"_s), "abc");
    run.WrittenAs(InMaps(u"First\\a.map"_s), Hashed("abc"));
    Step(run, InMaps(u"Second\\a.map"_s), "b");
    Step(run, InMaps(u"Second\\b.map"_s), "b");
    run.End();
    EXPECT_EQ(Entry(1).Folders, (QStringList{InMaps(u"First"_s), InMaps(u"Second"_s)}));
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_FALSE(Files::FolderExists(InMaps(u"First"_s)));
    EXPECT_TRUE(Files::FolderExists(InMaps(u"Empty"_s)));
}
