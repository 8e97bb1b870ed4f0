// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the suite does to installed files is followed, and a window's uninstallation.

#include "install/journal/JournalFollower.h"
#include "personal/lists/MapList.h"
#include "personal/lists/ModList.h"
#include "personal/lists/ReplayList.h"
#include "personal/lists/ShellMapList.h"
#include "personal/mShellMaps.h"
#include "tests/install/journal_fixture.h"
#include "tests/personal/replay_bytes.h"
#include "tests/support/ScriptedHost.h"

using namespace Qt::StringLiterals;

namespace {

class Following : public JournalTest {
protected:
    [[nodiscard]] static QString ShellMap(int number) {
        return GameFiles::ShellMapFolder(0, GameFiles::ShellMapName(QString::number(number)));
    }

    /// A shell map of two files; returns the install's number.
    int InstallShellMap(int number) const {
        return InstallFiles({{ShellMap(number) + u"\\shellmap1.map"_s, "map " + QByteArray::number(number)},
                             {ShellMap(number) + u"\\QvInfos.ini"_s, "[Infos]\r\nName=" + QByteArray::number(number)}});
    }

    [[nodiscard]] static QString Replay(const QString& name) { return Game[0].ReplayPath + name + u".rep"_s; }

    template <typename List>
    static void DeleteOf(List& list, int place) {
        qint32 game = 0;
        list.List(game, false);
        list.Select(place);
        bool done = false;
        list.Delete(done);
        EXPECT_TRUE(done);
    }

    static void WriteIni(const QString& file, const QString& key, const QString& value) {
        const FileMoves::Rewrite rewrite(file);
        EXPECT_EQ(mMain::INI().WriteINI(u"Mod"_s, key, value, file), u"1"_s);
    }

    ScriptedHost host_;
    JournalFollower follower_;
};

} // namespace

TEST_F(Following, AReplayThatIsRenamedGoesUnderItsNewName) {
    InstallFiles({{Replay(u"a"_s), SampleReplay()}, {Replay(u"b"_s), SampleReplay()}});
    ReplayList list;
    qint32 game = 0;
    list.ListReplays(game);
    list.Rename(0, u"final"_s);
    EXPECT_EQ(PathsOf(1), (QStringList{Replay(u"b"_s), Replay(u"final"_s)}));
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_FALSE(Files::FileExists(Replay(u"final"_s)));
}

TEST_F(Following, ARenameThatChangesCaseOnlyIsFollowed) {
    const QString old = Write(Replay(u"a"_s), "old");
    InstallFiles({{old, SampleReplay()}});
    follower_.Moved(old, Replay(u"A"_s));
    ASSERT_EQ(PathsOf(1), QStringList{Replay(u"A"_s)});
    EXPECT_NE(Entry(1).Files.at(0).Kept, QString());
}

TEST_F(Following, WhatARenamedFileHadReplacedComesBackUnderTheOldName) {
    Write(Replay(u"a"_s), "old");
    InstallFiles({{Replay(u"a"_s), SampleReplay()}});
    ReplayList list;
    qint32 game = 0;
    list.ListReplays(game);
    list.Rename(0, u"final"_s);
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_FALSE(Files::FileExists(Replay(u"final"_s)));
    EXPECT_EQ(Bytes(Replay(u"a"_s)), "old");
    EXPECT_FALSE(IsKnown(1));
}

TEST_F(Following, AFolderThatMovesTakesItsFilesAlong) {
    InstallFiles({{InMaps(u"A\\A.map"_s), "m"}, {InMaps(u"AB\\A.map"_s), "m"}});
    Files::Rename(InMaps(u"A"_s), InMaps(u"C"_s));
    FileMoves::Moved(InMaps(u"A"_s), InMaps(u"C"_s));
    EXPECT_EQ(PathsOf(1), (QStringList{InMaps(u"AB\\A.map"_s), InMaps(u"C\\A.map"_s)}));
    EXPECT_EQ(Entry(1).Folders, (QStringList{InMaps(u"C"_s), InMaps(u"AB"_s)}));
}

TEST_F(Following, ShellMapsThatMoveANumberDownAreFollowed) {
    for (int number = 1; number <= 3; ++number)
        InstallShellMap(number);
    mShellMaps::RemoveShellMap(1, 0);
    EXPECT_FALSE(IsKnown(1)) << "it was deleted";
    EXPECT_EQ(PathsOf(2), (QStringList{ShellMap(1) + u"\\QvInfos.ini"_s, ShellMap(1) + u"\\shellmap1.map"_s}));
    EXPECT_EQ(Entry(2).Folders, QStringList{ShellMap(1)});
    EXPECT_EQ(PathsOf(3), (QStringList{ShellMap(2) + u"\\QvInfos.ini"_s, ShellMap(2) + u"\\shellmap1.map"_s}));
    EXPECT_EQ(Entry(3).Folders, QStringList{ShellMap(2)});
    EXPECT_EQ(UninstallIt(2), QStringList());
    EXPECT_EQ(Bytes(ShellMap(1) + u"\\shellmap1.map"_s), "map 3");
    EXPECT_FALSE(Files::FolderExists(ShellMap(2)));
    EXPECT_EQ(Entry(3).Folders, QStringList{ShellMap(1)}) << "an uninstallation's own gap is followed too";
    EXPECT_EQ(UninstallIt(3), QStringList());
    EXPECT_FALSE(Files::FolderExists(ShellMap(1)));
    EXPECT_TRUE(InstallJournal::Read().Entries.empty());
}

TEST_F(Following, AFileThatStaysBehindInAShellMapsFolderIsStillTheInstalls) {
    InstallShellMap(1);
    InstallFiles({{ShellMap(2) + u"\\shellmap1.map"_s, "2"}, {ShellMap(2) + u"\\b.txt"_s, "b"}});
    InstallShellMap(3);
    mShellMaps::RemoveShellMap(1, 0);
    EXPECT_EQ(UninstallIt(2), QStringList());
    EXPECT_EQ(Bytes(ShellMap(1) + u"\\shellmap1.map"_s), "map 3");
    EXPECT_FALSE(Files::FileExists(ShellMap(1) + u"\\b.txt"_s));
    EXPECT_EQ(UninstallIt(3), QStringList());
    EXPECT_FALSE(Files::FolderExists(ShellMap(1)));
}

TEST_F(Following, TheHighestShellMapThatIsDeletedIsForgotten) {
    InstallShellMap(1);
    InstallShellMap(2);
    ShellMapList list;
    DeleteOf(list, 1);
    EXPECT_TRUE(IsKnown(1));
    EXPECT_FALSE(IsKnown(2));
}

TEST_F(Following, WhatIsDeletedAsEverIsForgotten) {
    InstallFiles({{InMaps(u"A\\A.map"_s), "m"}, {InMaps(u"A\\A.tga"_s), "t"}});
    InstallFiles({{InGame(u"Mod.big"_s), "a"}, {InGame(u"Mod.ini"_s), "[Mod]\r\n"}});
    InstallFiles({{Replay(u"a"_s), SampleReplay()}});
    MapList maps;
    DeleteOf(maps, 0);
    EXPECT_FALSE(IsKnown(1));
    ModList mods;
    DeleteOf(mods, 0);
    EXPECT_EQ(PathsOf(2), QStringList{InGame(u"Mod.ini"_s)}) << "it stays, as it always did";
    ReplayList replays;
    DeleteOf(replays, 0);
    EXPECT_FALSE(IsKnown(3));
}

TEST_F(Following, WhatADeletedFileHadReplacedIsKept) {
    Install(u"Mod.big"_s, "old");
    InstallFiles({{InGame(u"Mod.big"_s), "new"}});
    ModList mods;
    DeleteOf(mods, 0);
    EXPECT_EQ(PlanOf(1).Paths(Fate::ComesBack), QStringList{InGame(u"Mod.big"_s)});
}

TEST_F(Following, ARecordThatTheSuiteRewritesIsStillTheInstalls) {
    InstallFiles({{InGame(u"Mod.ini"_s), "[Mod]\r\nName=a\r\n"}});
    WriteIni(InGame(u"Mod.ini"_s), u"Name"_s, u"ab"_s);
    WriteIni(InGame(u"MOD.ini"_s), u"Name"_s, u"abc"_s);
    EXPECT_EQ(PlanOf(1).Paths(Fate::Goes), QStringList{InGame(u"Mod.ini"_s)});
}

TEST_F(Following, ARecordThatTheUserHasEditedIsNot) {
    InstallFiles({{InGame(u"Mod.ini"_s), "[Mod]\r\nName=a\r\n"}});
    Write(InGame(u"Mod.ini"_s), "[Mod]\r\nName=a\r\nMine=1\r\n");
    WriteIni(InGame(u"Mod.ini"_s), u"Name"_s, u"b"_s);
    EXPECT_EQ(PlanOf(1).Paths(Fate::Changed), QStringList{InGame(u"Mod.ini"_s)});
}

TEST_F(Following, ARecordThatOnlyTheEarlierOfTwoInstallsKnowsSoStaysTheLaters) {
    InstallFiles({{InGame(u"Mod.ini"_s), "[Mod]\r\nName=a\r\n"}});
    InstallFiles({{InGame(u"Mod.ini"_s), "[Mod]\r\nName=b\r\n"}});
    WriteIni(InGame(u"Mod.ini"_s), u"Name"_s, u"c"_s);
    EXPECT_EQ(UninstallIt(2), QStringList());
    EXPECT_EQ(Bytes(InGame(u"Mod.ini"_s)), "[Mod]\r\nName=a\r\n");
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_FALSE(Files::FileExists(InGame(u"Mod.ini"_s)));
}

TEST_F(Following, WithoutAJournalNothingIsMade) {
    Write(Replay(u"a"_s), SampleReplay());
    ReplayList list;
    DeleteOf(list, 0);
    WriteIni(InGame(u"Mod.ini"_s), u"Name"_s, u"b"_s);
    FileMoves::Copied(u"C:\\a"_s, u"C:\\b"_s);
    follower_.Flush();
    EXPECT_FALSE(Files::FileExists(InstallJournal::File()));
    EXPECT_FALSE(Files::FolderExists(InstallJournal::Folder()));
}

TEST_F(Following, ADamagedJournalIsLeftAlone) {
    Write(InstallJournal::File(), "damaged");
    Write(Replay(u"a"_s), SampleReplay());
    ReplayList list;
    DeleteOf(list, 0);
    EXPECT_EQ(Bytes(InstallJournal::File()), "damaged");
    EXPECT_FALSE(follower_.Knows(Replay(u"a"_s)));
}

TEST_F(Following, WhatIsNotTheInstallsDoesNotWriteTheJournal) {
    InstallFiles({{InGame(u"A.big"_s), "a"}});
    const FileState before = StateOf(InstallJournal::File());
    FileMoves::Moved(Replay(u"a"_s), Replay(u"b"_s));
    FileMoves::Deleted(InMaps(u"A"_s));
    WriteIni(InGame(u"A.ini"_s), u"Name"_s, u"b"_s);
    EXPECT_EQ(StateOf(InstallJournal::File()), before);
}

TEST_F(Following, FilesAndTheirFoldersAreKnown) {
    EXPECT_FALSE(follower_.Knows(InMaps(u"A"_s)));
    InstallFiles({{InMaps(u"A\\A.map"_s), "m"}});
    EXPECT_TRUE(follower_.Knows(InMaps(u"A"_s)));
    EXPECT_TRUE(follower_.Knows(InMaps(u"a\\a.MAP"_s)));
    EXPECT_FALSE(follower_.Knows(InMaps(u"A\\B.map"_s)));
    EXPECT_FALSE(follower_.Knows(InMaps(u"AB"_s)));
}

TEST_F(Following, TheWindowsUninstallationShowsTheListAndNoIsTheDefault) {
    InstallFiles({{InMaps(u"A\\A.map"_s), "m"}, {InGame(u"Mod.big"_s), "b"}});
    host_.Answers = {Host::Answer::No};
    EXPECT_FALSE(follower_.Uninstall(InMaps(u"A"_s)));
    ASSERT_EQ(host_.Messages.size(), std::size_t{1});
    EXPECT_EQ(host_.Messages[0].Default, Host::Answer::No);
    EXPECT_EQ(host_.Messages[0].Sign, Host::Icon::Question);
    EXPECT_EQ(host_.Messages[0].Title, u"Brindock 2005"_s);
    EXPECT_TRUE(host_.Messages[0].Text.contains(u"Mod.big"_s)) << "all that came with it";
    EXPECT_TRUE(Files::FileExists(InGame(u"Mod.big"_s)));
    host_.Answers = {Host::Answer::Yes};
    EXPECT_TRUE(follower_.Uninstall(InMaps(u"A"_s)));
    EXPECT_FALSE(Files::FileExists(InGame(u"Mod.big"_s)));
    EXPECT_FALSE(Files::FolderExists(InMaps(u"A"_s)));
    EXPECT_FALSE(follower_.Knows(InMaps(u"A"_s)));
}

TEST_F(Following, TheLastOfSeveralInstallsIsUninstalled) {
    InstallFiles({{InMaps(u"A\\A.map"_s), "m"}});
    InstallFiles({{InMaps(u"A\\A.tga"_s), "t"}});
    host_.Answers = {Host::Answer::Yes};
    EXPECT_TRUE(follower_.Uninstall(InMaps(u"A"_s)));
    EXPECT_TRUE(Files::FileExists(InMaps(u"A\\A.map"_s)));
    EXPECT_FALSE(Files::FileExists(InMaps(u"A\\A.tga"_s)));
}

TEST_F(Following, WhatCouldNotBeUninstalledIsShown) {
    Install(u"Mod.big"_s, "old");
    InstallFiles({{InGame(u"Mod.big"_s), "new"}});
    Files::Delete(InstallJournal::KeptPath(u"1\\1"_s));
    host_.Answers = {Host::Answer::Yes};
    EXPECT_TRUE(follower_.Uninstall(InGame(u"Mod.big"_s)));
    ASSERT_EQ(host_.Messages.size(), std::size_t{2});
    EXPECT_EQ(host_.Messages[1].Sign, Host::Icon::Critical);
    EXPECT_TRUE(host_.Messages[1].Text.startsWith(u"UninstallFailed"));
}

TEST_F(Following, WhatNobodyKnowsIsNotAskedAbout) {
    EXPECT_FALSE(follower_.Uninstall(InGame(u"Mod.big"_s)));
    EXPECT_TRUE(host_.Messages.empty());
}
