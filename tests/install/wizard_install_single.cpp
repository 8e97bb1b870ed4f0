// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A loose file goes into a game.
#include "tests/install/InstallTest.h"

using namespace Qt::StringLiterals;

namespace {

class InstallSingle : public InstallTest {};

} // namespace

TEST_F(InstallSingle, AMapTakesAllFilesBesideItAlong) {
    Put(u"Bay\\map.ini"_s, "i");
    Put(u"Bay\\readme"_s, "r");
    Put(u"Bay\\Other.map"_s, "o");
    Put(u"Bay\\sub\\deep.txt"_s, "d");
    InstallFile(Put(u"Bay\\Bay.map"_s, "b"));
    EXPECT_EQ(Names(Maps() + u"Bay"_s), (QStringList{u"Bay.map"_s, u"Other.map"_s, u"map.ini"_s, u"readme"_s}));
    EXPECT_EQ(At(Maps() + u"Bay\\Bay.map"_s), "b");
    EXPECT_EQ(view_.Texts, (QStringList{u"CurrentFile2 Bay.map"_s, u"InstallationComplete"_s}));
    EXPECT_EQ(view_.Values.back(), 100);
    EXPECT_EQ(view_.Finished, 1);
    EXPECT_EQ(host_.Beeps, 0);
    EXPECT_FALSE(outcome_.AnyFailed());
    EXPECT_EQ(outcome_.Files().size(), 4U);
    EXPECT_TRUE(host_.Messages.empty());
}

// Lists of replays show the day of the game by it.
TEST_F(InstallSingle, AFileKeepsItsTime) {
    const QString path = Put(u"a.rep"_s);
    const QDateTime time(QDate(2003, 8, 30), QTime(20, 55, 28));
    QFile file(Paths::ToNative(path));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();
    InstallFile(path);
    EXPECT_EQ(Files::ModifiedTime(Of(0).ReplayPath + u"a.rep"_s), time);
}

TEST_F(InstallSingle, AMapGoesToTheFolderOfItsNameLessFourCharacters) {
    InstallFile(Put(u"a\\[RANK] Arctic Arena ZH v1.map"_s, "m"), 1);
    EXPECT_EQ(At(Of(1).MapPath + u"[RANK] Arctic Arena ZH v1\\[RANK] Arctic Arena ZH v1.map"_s), "m");
    const QString cyrillic = u"\u0410\u0440\u043A\u0442\u0438\u043A\u0430"_s;
    InstallFile(Put(u"b\\"_s + cyrillic + u".map"_s, "m"));
    EXPECT_EQ(At(Maps() + cyrillic + u'\\' + cyrillic + u".map"_s), "m");
    InstallFile(Put(u"c\\bitmap"_s, "m"));
    EXPECT_EQ(At(Maps() + u"bi\\bitmap"_s), "m");
}

TEST_F(InstallSingle, AFolderForMapsIsMadeButNotTheOneAboveIt) {
    Files::DeleteFolder(Maps());
    InstallFile(Put(u"a\\a.map"_s));
    EXPECT_TRUE(Files::FileExists(Maps() + u"a\\a.map"_s));
    Files::DeleteFolder(Maps());
    const QString above = Maps().first(Maps().lastIndexOf(u'\\', -2));
    Files::DeleteFolder(above);
    InstallFile(Put(u"a\\a.map"_s));
    EXPECT_FALSE(Files::FolderExists(above));
    EXPECT_EQ(Failures().size(), 1);
    EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
    EXPECT_EQ(view_.Values.back(), 100);
}

TEST_F(InstallSingle, AMapThatHasNoNameOrABadOneIsLeftOut) {
    for (const QString& name : {u".map"_s, u"map"_s, u"...map"_s}) {
        InstallFile(Put(u"x\\"_s + name));
        EXPECT_EQ(Failures().size(), 1) << name.toStdString();
        EXPECT_EQ(Names(Maps()), QStringList()) << name.toStdString();
    }
}

TEST_F(InstallSingle, ASecondMapOfTheSameNameAsksAndOverwrites) {
    world_.WriteFile(u"first\\Bay.map"_s, "old");
    Analyse(Put(u"Bay\\Bay.map"_s, "old"));
    Put(u"Bay\\map.ini"_s, "same");
    Put(u"Bay\\map.str"_s, "one");
    Install();
    Put(u"Bay\\map.str"_s, "two");
    host_.Answers = {Host::Answer::No};
    Install();
    EXPECT_EQ(At(Maps() + u"Bay\\map.str"_s), "one");
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Default, Host::Answer::No);
    EXPECT_EQ(host_.Messages[0].Sign, Host::Icon::Question);
    EXPECT_TRUE(host_.Messages[0].Text.contains(u"map.str"_s));
    EXPECT_FALSE(host_.Messages[0].Text.contains(u"map.ini"_s));
    EXPECT_EQ(Failures().size(), 1);
    host_.Answers = {Host::Answer::Yes};
    Install();
    EXPECT_EQ(At(Maps() + u"Bay\\map.str"_s), "two");
    EXPECT_FALSE(outcome_.AnyFailed());
}

TEST_F(InstallSingle, TheSameMapOnceMoreDoesNotAsk) {
    Analyse(Put(u"Bay\\Bay.map"_s, "b"));
    Install();
    Install();
    EXPECT_TRUE(host_.Messages.empty());
    EXPECT_FALSE(outcome_.AnyFailed());
}

TEST_F(InstallSingle, AMapThatIsInPlaceAlreadyIsLeftAsItIs) {
    Files::MakeFolder(Maps() + u"Bay"_s);
    const QString path = Maps() + u"Bay\\Bay.map"_s;
    QFile file(Paths::ToNative(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("b");
    file.close();
    InstallFile(path);
    EXPECT_EQ(At(path), "b");
    ASSERT_EQ(outcome_.Files().size(), 1U);
    EXPECT_EQ(outcome_.Files()[0].How, InstalledFile::State::Kept);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(InstallSingle, AModWithoutAnIniFileGetsOneWithTwoEmptyValues) {
    InstallFile(Put(u"My.Mod.big"_s, "m"));
    EXPECT_EQ(At(Own() + u"My.Mod.big"_s), "m");
    EXPECT_EQ(At(Own() + u"My.Mod.ini"_s), "[Mod]\r\nName=\r\nComments=\r\n");
}

TEST_F(InstallSingle, AModsIniFileIsCopiedAndItsTwoKeysAreWritten) {
    Put(u"M.ini"_s, "; mine\r\n[Mod]\r\nName=n\r\nOther=o\r\n");
    InstallFile(Put(u"M.big"_s, "m"));
    EXPECT_EQ(At(Own() + u"M.ini"_s), "; mine\r\n[Mod]\r\nName=n\r\nOther=o\r\nComments=\r\n");
    EXPECT_EQ(outcome_.Files().size(), 2U);
}

TEST_F(InstallSingle, AModReplacesAnotherOneWithoutAQuestion) {
    world_.WriteFile(u"games\\Generals\\M.big"_s, "old");
    InstallFile(Put(u"M.big"_s, "new"));
    EXPECT_EQ(At(Own() + u"M.big"_s), "new");
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(InstallSingle, AModThatWouldReplaceTheGamesOwnArchiveAsks) {
    const QString own = world_.WriteFile(u"games\\Generals\\INI.big"_s, "game");
    Analyse(Put(u"ini.big"_s, "mod"));
    host_.Answers = {Host::Answer::No};
    Install();
    EXPECT_EQ(At(own), "game");
    EXPECT_FALSE(Files::FileExists(Own() + u"INI.ini"_s));
    EXPECT_EQ(host_.Messages.at(0).Default, Host::Answer::No);
    EXPECT_TRUE(host_.Messages.at(0).Text.contains(u"ini.big"_s));
    EXPECT_EQ(Failures().size(), 1);
    host_.Answers = {Host::Answer::Yes};
    Install();
    EXPECT_EQ(At(own), "mod");
}

TEST_F(InstallSingle, AModThatIsInPlaceAlreadyIsLeftAsItIsWithItsIniFile) {
    const QByteArray longText = "[Mod]\r\nName=" + QByteArray(300, 'n') + "\r\nComments=c\r\n";
    const QString ini = world_.WriteFile(u"games\\Generals\\M.ini"_s, longText);
    InstallFile(world_.WriteFile(u"games\\Generals\\M.big"_s, "m"));
    EXPECT_EQ(At(ini), longText);
    EXPECT_EQ(At(Own() + u"M.big"_s), "m");
    for (const InstalledFile& file : outcome_.Files())
        EXPECT_EQ(file.How, InstalledFile::State::Kept);
}

TEST_F(InstallSingle, AModThatCanNotBeCopiedIsARunTimeErrorWithItsName) {
    const QString path = Put(u"M.big"_s);
    Analyse(path);
    Files::DeleteForced(path);
    EXPECT_EQ(ErrorOf([&] { Install(); }), ErrorNumber::FileNotFound);
    EXPECT_TRUE(failure_.contains(u"M.big"_s)) << failure_.toStdString();
    EXPECT_EQ(view_.Finished, 0);
    EXPECT_FALSE(Files::FileExists(Own() + u"M.ini"_s));
    // A folder has its name.
    Put(u"M.big"_s);
    Files::MakeFolder(Own() + u"M.big"_s);
    EXPECT_NE(ErrorOf([&] { Install(); }), 0);
    EXPECT_TRUE(failure_.contains(u"M.big"_s)) << failure_.toStdString();
}

TEST_F(InstallSingle, AnIniFileThatCanNotBeWrittenIsListed) {
    Files::MakeFolder(Own() + u"M.ini"_s);
    InstallFile(Put(u"M.big"_s, "m"));
    EXPECT_EQ(At(Own() + u"M.big"_s), "m");
    EXPECT_EQ(Failures(), QStringList{Paths::ToNative(Own() + u"M.ini"_s)});
    EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
}

TEST_F(InstallSingle, AReplayGoesToTheReplays) {
    Files::MakeFolders(Of(3).ReplayPath);
    Files::RemoveFolder(Of(3).ReplayPath);
    InstallFile(Put(u"a.BfME2Replay"_s, "r"), 3);
    EXPECT_FALSE(outcome_.AnyFailed()) << FailureText().toStdString();
    EXPECT_EQ(At(Of(3).ReplayPath + u"a.BfME2Replay"_s), "r");
    EXPECT_EQ(Names(Of(3).ReplayPath).size(), 1);
}

TEST_F(InstallSingle, ASourceThatVanishesIsListed) {
    for (const QString& name : {u"a.rep"_s, u"d\\a.map"_s, u"e\\shellmap1.map"_s}) {
        const QString path = Put(name);
        Analyse(path);
        Files::DeleteFolder(world_.Root() + u"\\source"_s);
        Install();
        EXPECT_TRUE(outcome_.AnyFailed()) << name.toStdString();
        EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
    }
}

TEST_F(InstallSingle, AShellMapGetsTheFirstNumber) {
    Put(u"S\\QvInfos.ini"_s, "[Infos]\r\nName=Bay\r\nX=1\r\n");
    Put(u"S\\shellmap1.tga"_s, "t");
    InstallFile(Put(u"S\\shellmap1.map"_s, "m"));
    const QString folder = Own() + u"Maps\\QvShellMap001\\"_s;
    EXPECT_EQ(Names(folder), (QStringList{u"QvInfos.ini"_s, u"shellmap1.map"_s, u"shellmap1.tga"_s}));
    EXPECT_EQ(At(folder + u"QvInfos.ini"_s), "[Infos]\r\nName=Bay\r\nX=1\r\nComments=\r\n");
    EXPECT_FALSE(outcome_.AnyFailed());
}

TEST_F(InstallSingle, AShellMapWithoutARecordIsCalledShellMap) {
    InstallFile(Put(u"S\\shellmap1.map"_s));
    EXPECT_EQ(At(Own() + u"Maps\\QvShellMap001\\QvInfos.ini"_s), "[Infos]\r\nName=ShellMap\r\nComments=\r\n");
}

TEST_F(InstallSingle, TheNumberFollowsTheLastListedName) {
    const std::vector<std::pair<QStringList, QString>> cases{
        {{u"QvShellMap003"_s, u"QvShellMap009"_s}, u"QvShellMap010"_s},
        {{u"QvShellMap9"_s}, u"QvShellMap000"_s},
        {{u"QvShellMap009"_s, u"QvShellMapx02"_s}, u"QvShellMap000"_s},
        {{u"QvShellMap009"_s, u"QvShellMapx  2"_s}, u"QvShellMap003"_s},
        {{u"qvshellmap007"_s}, u"QvShellMap001"_s},
        {{u"QvShellMap0041"_s, u"QvShellMap005"_s}, u"QvShellMap006"_s},
        {{u"ShellMap1"_s, u"Zz"_s}, u"QvShellMap001"_s},
        {{u"QvShellMap998"_s}, u"QvShellMap999"_s}};
    for (const auto& [there, wanted] : cases) {
        Files::DeleteFolder(Own() + u"Maps"_s);
        for (const QString& name : there)
            Files::MakeFolders(Own() + u"Maps\\"_s + name);
        InstallFile(Put(u"S\\shellmap1.map"_s));
        EXPECT_TRUE(Files::FileExists(Own() + u"Maps\\"_s + wanted + u"\\shellmap1.map"_s)) << wanted.toStdString();
        EXPECT_FALSE(outcome_.AnyFailed()) << FailureText().toStdString();
    }
}

TEST_F(InstallSingle, ANameOfAFileCountsForTheNumber) {
    world_.WriteFile(u"games\\Generals\\Maps\\QvShellMap004"_s, "a file");
    InstallFile(Put(u"S\\shellmap1.map"_s));
    EXPECT_TRUE(Files::FileExists(Own() + u"Maps\\QvShellMap005\\shellmap1.map"_s));
}

TEST_F(InstallSingle, BehindNumber999ThereIsNoRoom) {
    Files::MakeFolders(Own() + u"Maps\\QvShellMap999"_s);
    InstallFile(Put(u"S\\shellmap1.map"_s));
    EXPECT_EQ(Names(Own() + u"Maps"_s), QStringList{u"QvShellMap999"_s});
    EXPECT_EQ(Failures().size(), 1);
    EXPECT_TRUE(FailureText().contains(u"1000"_s)) << FailureText().toStdString();
    EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
}

TEST_F(InstallSingle, AFileOfAnotherEndingInstallsNothing) {
    InstallFile(Put(u"a.txt"_s));
    EXPECT_EQ(Failures().size(), 1);
}

TEST_F(InstallSingle, TheBarMovesByBytesOfALongFile) {
    InstallFile(Put(u"a.rep"_s, QByteArray(qsizetype{5} * 1024 * 1024, 'x')));
    EXPECT_EQ(view_.Values, (std::vector{20, 40, 60, 80, 100, 100}));
    EXPECT_GE(host_.Yields, 4);
}

TEST_F(InstallSingle, EveryFileIsToldBeforeItIsWrittenAndBehind) {
    RecordingWatch watch;
    Put(u"M.ini"_s, "[Mod]\r\n");
    Analyse(Put(u"M.big"_s));
    Install(0, {.Watch = &watch});
    const QString mod = Own() + u"M.big"_s;
    const QString ini = Own() + u"M.ini"_s;
    EXPECT_EQ(watch.Log, (QStringList{u"will "_s + mod, u"did "_s + mod, u"will "_s + ini, u"did "_s + ini,
                                      u"will "_s + ini, u"did "_s + ini}));
}

TEST_F(InstallSingle, AFileThatTheWatchRefusesIsNotWritten) {
    RecordingWatch watch;
    Put(u"S\\shellmap1.tga"_s);
    Analyse(Put(u"S\\shellmap1.map"_s));
    const QString folder = Own() + u"Maps\\QvShellMap001\\"_s;
    watch.Refused = folder + u"shellmap1.map"_s;
    Install(0, {.Watch = &watch});
    EXPECT_EQ(Names(folder), (QStringList{u"QvInfos.ini"_s, u"shellmap1.tga"_s}));
    EXPECT_EQ(Failures().size(), 1);
    EXPECT_TRUE(FailureText().contains(u"no room aside"_s));
}
