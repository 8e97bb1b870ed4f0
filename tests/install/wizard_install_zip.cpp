// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What is ticked in an archive goes into a game.
#include "tests/install/InstallTest.h"

#include "tests/install/ZipSamples.h"

using namespace Qt::StringLiterals;

namespace {

class InstallArchive : public InstallTest {
protected:
    /// The same archive under which two samples are a mod and a replay.
    QString PutEncrypted() const {
        QByteArray bytes = ZipSamples::Sample(ZipSamples::Traditional);
        bytes.replace("a.txt", "a.rep").replace("b.txt", "b.rep");
        return Put(u"Pack.zip"_s, bytes);
    }
};

} // namespace

TEST_F(InstallArchive, NothingTickedEndsAsIfAllWereDone) {
    AnalyseZip({{.Name = "a.rep"}, {.Name = "b.map"}, {.Name = "c.big"}});
    Install();
    EXPECT_EQ(view_.Texts, QStringList{u"InstallationComplete"_s});
    EXPECT_EQ(view_.Values, (std::vector{33, 67, 100}));
    EXPECT_EQ(view_.Finished, 1);
    EXPECT_EQ(host_.Beeps, 1);
    EXPECT_TRUE(outcome_.Files().empty());
    EXPECT_EQ(Names(Of(0).ReplayPath), QStringList());
}

TEST_F(InstallArchive, OnlyWhatIsTickedIsInstalled) {
    AnalyseZip({{.Name = "d/a.rep", .Content = "1"}, {.Name = "b.rep", .Content = "2", .Method = 8}});
    AddFiles::Source.InstallRecords[1].Selected = true;
    Install();
    EXPECT_EQ(Names(Of(0).ReplayPath), QStringList{u"b.rep"_s});
    EXPECT_EQ(At(Of(0).ReplayPath + u"b.rep"_s), "2");
    EXPECT_EQ(view_.Texts, (QStringList{u"CurrentFile2 b.rep"_s, u"InstallationComplete"_s}));
    EXPECT_EQ(view_.Values.back(), 100);
}

TEST_F(InstallArchive, TheBarTakesItsValueAfterEachRecord) {
    AnalyseZip({{.Name = "a.rep"},
                {.Name = "b.rep", .Content = QByteArray(900000, 'x'), .Method = 8},
                {.Name = "c.rep"},
                {.Name = "d.rep"},
                {.Name = "e.rep"},
                {.Name = "f.rep"},
                {.Name = "g.rep"},
                {.Name = "h.rep"}});
    for (const std::size_t number : {1U, 7U})
        AddFiles::Source.InstallRecords[number].Selected = true;
    Install();
    // 12.5 and 37.5 are rounded to the even one of their neighbours.
    std::vector<int> told;
    for (const int value : {12, 25, 38, 50, 62, 75, 88, 100})
        told.push_back(value);
    std::vector<int> last;
    for (const int value : view_.Values) {
        if (std::ranges::find(told, value) != told.end() && (last.empty() || last.back() != value))
            last.push_back(value);
    }
    EXPECT_EQ(last, told);
    EXPECT_GT(view_.Values.size(), told.size()); // by bytes in between
    EXPECT_TRUE(std::ranges::is_sorted(view_.Values));
}

TEST_F(InstallArchive, AMapIsAFolderOfFiles) {
    InstallZip({{.Name = "Maps/Bay/"},
                {.Name = "Maps/Bay/Bay.map", .Content = "b", .Method = 8},
                {.Name = "Maps/Bay/Bay.tga", .Content = "t"},
                {.Name = "Maps/Bay/readme.txt", .Content = "r"},
                {.Name = "Maps/Bay/art/a.dds"},
                {.Name = "maps/bay/other.case"},
                {.Name = "Maps/readme.txt"}});
    EXPECT_EQ(Names(Maps() + u"Bay"_s), (QStringList{u"Bay.map"_s, u"Bay.tga"_s, u"readme.txt"_s}));
    EXPECT_EQ(At(Maps() + u"Bay\\Bay.map"_s), "b");
    EXPECT_EQ(Names(Maps()), QStringList{u"Bay"_s});
    EXPECT_FALSE(outcome_.AnyFailed());
}

TEST_F(InstallArchive, AMapInAFolderOfAnotherNameGetsItsOwn) {
    InstallZip({{.Name = "download (1)/Bay.map"}, {.Name = "download (1)/map.ini"}});
    EXPECT_EQ(Names(Maps() + u"Bay"_s), (QStringList{u"Bay.map"_s, u"map.ini"_s}));
}

TEST_F(InstallArchive, AMapInTheRootTakesAllOfTheRoot) {
    InstallZip({{.Name = "Bay.map"}, {.Name = "readme.txt"}, {.Name = "a.rep"}, {.Name = "d/x.txt"}});
    EXPECT_EQ(Names(Maps() + u"Bay"_s), (QStringList{u"Bay.map"_s, u"a.rep"_s, u"readme.txt"_s}));
    EXPECT_EQ(Names(Of(0).ReplayPath), QStringList{u"a.rep"_s});
}

TEST_F(InstallArchive, FiveMapsInFiveFoldersStayApart) {
    std::vector<Part> parts;
    for (const char* const name : {"A", "B", "C", "D", "E"}) {
        parts.push_back({.Name = QByteArray(name) + "/" + name + ".map", .Content = name});
        parts.push_back({.Name = QByteArray(name) + "/map.str", .Content = name});
    }
    InstallZip(parts);
    for (const QString& name : {u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s})
        EXPECT_EQ(At(Maps() + name + u"\\map.str"_s), name.toLatin1());
    EXPECT_EQ(outcome_.Files().size(), 10U);
}

TEST_F(InstallArchive, NamesOfAnyLettersComeOut) {
    const QByteArray cyrillic = "\xD0\x90\xD1\x80\xD0\xBA";
    const QByteArray longName(40, 'l');
    InstallZip({{.Name = "[RANK] Arctic Arena ZH v1/[RANK] Arctic Arena ZH v1.map"},
                {.Name = cyrillic + "/" + cyrillic + ".map", .Flags = 0x800},
                {.Name = "\xFC/\xFC.map"},
                {.Name = longName + "/" + longName + ".map"}});
    EXPECT_FALSE(outcome_.AnyFailed()) << FailureText().toStdString();
    for (const QString& name :
         {u"[RANK] Arctic Arena ZH v1"_s, u"\u0410\u0440\u043A"_s, u"\u00FC"_s, QString(40, u'l')})
        EXPECT_TRUE(Files::FileExists(Maps() + name + u'\\' + name + u".map"_s)) << name.toStdString();
}

TEST_F(InstallArchive, BackslashesOfAnArchiveAreFolders) {
    InstallZip({{.Name = "Bay\\Bay.map"}, {.Name = "Bay\\map.ini"}, {.Name = "x/y\\z.map", .Host = 3}});
    EXPECT_EQ(Names(Maps() + u"Bay"_s), (QStringList{u"Bay.map"_s, u"map.ini"_s}));
    EXPECT_EQ(Names(Maps()), QStringList{u"Bay"_s});
    EXPECT_EQ(Failures(), QStringList{u"x/y\\z.map"_s});
}

TEST_F(InstallArchive, AModBringsTwoKeysAndNotItsIniFile) {
    AnalyseZip({{.Name = "d/M.big", .Content = "m"},
                {.Name = "d/M.ini", .Content = "[Infos]\r\nName=n\r\nComments=c\r\n[Other]\r\nX=1\r\n"}});
    TickAll();
    AddFiles::Source.InstallRecords[0].Comments = u"typed"_s;
    Install();
    EXPECT_EQ(At(Own() + u"M.big"_s), "m");
    EXPECT_EQ(At(Own() + u"M.ini"_s), "[Mod]\r\nName=n\r\nComments=typed\r\n");
}

TEST_F(InstallArchive, AShellMapTakesItsFolderAndGetsTheNextNumber) {
    Files::MakeFolders(Own() + u"Maps\\QvShellMap003"_s);
    InstallZip({{.Name = "S/shellmap1.map", .Content = "1"},
                {.Name = "S/QvInfos.ini", .Content = "[Infos]\r\nName=Bay\r\n"},
                {.Name = "S/sub/x.tga"},
                {.Name = "T/my shellmap1.map", .Content = "2"}});
    const QString first = Own() + u"Maps\\QvShellMap004\\"_s;
    const QString second = Own() + u"Maps\\QvShellMap005\\"_s;
    EXPECT_EQ(Names(first), (QStringList{u"QvInfos.ini"_s, u"shellmap1.map"_s}));
    EXPECT_EQ(At(first + u"QvInfos.ini"_s), "[Infos]\r\nName=Bay\r\nComments=\r\n");
    EXPECT_EQ(At(second + u"my shellmap1.map"_s), "2");
    EXPECT_EQ(At(second + u"QvInfos.ini"_s), "[Infos]\r\nName=ShellMap\r\nComments=\r\n");
    EXPECT_EQ(Scratch(), QStringList());
    EXPECT_FALSE(outcome_.AnyFailed()) << FailureText().toStdString();
}

TEST_F(InstallArchive, AShellMapInTheRootTakesAllOfTheRoot) {
    InstallZip({{.Name = "shellmap1.map"}, {.Name = "readme.txt"}, {.Name = "M.big"}, {.Name = "d/x"}});
    EXPECT_EQ(Names(Own() + u"Maps\\QvShellMap001"_s),
              (QStringList{u"M.big"_s, u"QvInfos.ini"_s, u"readme.txt"_s, u"shellmap1.map"_s}));
}

TEST_F(InstallArchive, WhatADeadProcessLeftIsNoPartOfAShellMap) {
    world_.WriteFile(u"program\\Temp\\SMTemp\\old.tga"_s, "o");
    const QString other = world_.WriteFile(u"program\\Temp\\else.tga"_s, "e");
    InstallZip({{.Name = "shellmap1.map"}});
    EXPECT_EQ(Names(Own() + u"Maps\\QvShellMap001"_s), (QStringList{u"QvInfos.ini"_s, u"shellmap1.map"_s}));
    EXPECT_TRUE(Files::FileExists(other));
    EXPECT_FALSE(Files::FolderExists(world_.ProgramFolder() + u"\\Temp\\SMTemp"_s));
}

TEST_F(InstallArchive, HostileNamesStayInTheirFolderAndAreListed) {
    InstallZip({{.Name = "../evil.rep", .Content = "e"},
                {.Name = "a/con.rep"},
                {.Name = "b/bad?.rep"},
                {.Name = "c/...map"},
                {.Name = "d/nul.map"},
                {.Name = "e/.map"},
                {.Name = "f/Good.map"},
                {.Name = "f/aux.txt"},
                {.Name = "g/C:\\x.big", .Host = 3},
                {.Name = "/abs.rep", .Content = "a"}});
    EXPECT_EQ(Names(Of(0).ReplayPath), (QStringList{u"abs.rep"_s, u"evil.rep"_s}));
    EXPECT_EQ(Names(Maps()), QStringList{u"Good"_s});
    EXPECT_EQ(Names(Maps() + u"Good"_s), QStringList{u"Good.map"_s});
    EXPECT_EQ(At(Own() + u"x.ini"_s), "[Mod]\r\nName=\r\nComments=\r\n");
    EXPECT_EQ(Failures(), (QStringList{u"a/con.rep"_s, u"b/bad?.rep"_s, u"c/...map"_s, u"d/nul.map"_s, u"e/.map"_s,
                                       u"f/aux.txt"_s}));
    EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
}

TEST_F(InstallArchive, WhatIsBadInTheArchiveIsListedAndTheRestGoesOn) {
    InstallZip({{.Name = "a.rep", .Content = "1", .Crc = 1},
                {.Name = "b.rep", .Content = "22", .Method = 8, .Size = 1},
                {.Name = "c.rep", .Content = "3", .Method = 77},
                {.Name = "d.rep", .Content = "4"}});
    EXPECT_EQ(Names(Of(0).ReplayPath), QStringList{u"d.rep"_s});
    EXPECT_EQ(Failures(), (QStringList{u"a.rep"_s, u"b.rep"_s, u"c.rep"_s}));
    EXPECT_FALSE(FailureText().contains(u"a.rep: a.rep"_s)) << FailureText().toStdString();
}

TEST_F(InstallArchive, AnArchiveThatVanishesIsListed) {
    const QString path =
        PutZip({{.Name = "a.rep"}, {.Name = "M/m.map"}, {.Name = "S/shellmap1.map"}, {.Name = "b.big"}});
    Analyse(path);
    TickAll();
    zip_.Init({});
    Files::DeleteForced(path);
    Install();
    EXPECT_EQ(Failures(), (QStringList{u"a.rep"_s, u"M/m.map"_s, u"S/shellmap1.map"_s, u"b.big"_s}));
    EXPECT_EQ(Names(Own()), QStringList());
    EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
}

TEST_F(InstallArchive, AnotherArchiveInItsPlaceHasNotWhatIsWanted) {
    AnalyseZip({{.Name = "a.rep"}, {.Name = "M/m.map"}});
    TickAll();
    zip_.Init({});
    const QString other = PutZip({{.Name = "other.rep"}});
    Install();
    EXPECT_EQ(Failures(), (QStringList{u"a.rep"_s, u"M/m.map"_s})) << other.toStdString();
}

TEST_F(InstallArchive, EveryCutIsInstalledOrListed) {
    const QByteArray bytes = ZipBytes::Archive({{.Name = "M/m.map", .Content = "m"},
                                                {.Name = "M/m.tga", .Content = "tttttttttttttt", .Method = 8},
                                                {.Name = "a.rep", .Content = "r"}});
    AnalyseZip({{.Name = "M/m.map"}, {.Name = "a.rep"}});
    TickAll();
    zip_.Init({});
    for (qsizetype length = 0; length < bytes.size(); ++length) {
        for (const QByteArray& cut : {bytes.first(length), bytes.sliced(length)}) {
            Put(u"Pack.zip"_s, cut);
            host_.Answers = {Host::Answer::Yes};
            Install();
            ASSERT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
            ASSERT_FALSE(outcome_.Files().empty());
        }
    }
}

TEST_F(InstallArchive, ReplaysOfOneNameLeaveTheLastAndTell) {
    InstallZip({{.Name = "a/Last.rep", .Content = "1"}, {.Name = "b/LAST.rep", .Content = "2"}});
    EXPECT_EQ(Names(Of(0).ReplayPath).size(), 1);
    EXPECT_EQ(At(Of(0).ReplayPath + u"Last.rep"_s), "2");
    EXPECT_EQ(Failures(), QStringList{u"a/Last.rep"_s});
    EXPECT_TRUE(FailureText().contains(u"b/LAST.rep"_s));
}

TEST_F(InstallArchive, TwoMapsOfOneNameInOneArchiveAsk) {
    host_.Answers = {Host::Answer::No};
    InstallZip({{.Name = "a/Bay.map", .Content = "1"}, {.Name = "b/Bay.map", .Content = "2"}});
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(At(Maps() + u"Bay\\Bay.map"_s), "1");
    EXPECT_EQ(Failures(), QStringList{u"b/Bay.map"_s});
    InstallZip({{.Name = "a/Foo.map", .Content = "1"}, {.Name = "b/Foo.map", .Content = "1"}});
    EXPECT_EQ(host_.Messages.size(), 1U);
}

TEST_F(InstallArchive, MapsThatAreThereAlreadyAskOnceForAll) {
    std::vector<Part> parts;
    parts.reserve(21);
    for (int number = 0; number < 20; ++number)
        parts.push_back({.Name = "m/" + QByteArray::number(number) + "/M" + QByteArray::number(number) + ".map"});
    InstallZip(parts);
    EXPECT_TRUE(host_.Messages.empty());
    for (Part& part : parts)
        part.Content = "other";
    parts.push_back({.Name = "New/New.map"});
    host_.Answers = {Host::Answer::No};
    InstallZip(parts);
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Text.count(u"\r\n"_s), 17);
    EXPECT_TRUE(host_.Messages[0].Text.endsWith(u"AndMore"_s));
    EXPECT_EQ(Failures().size(), 20);
    EXPECT_TRUE(Files::FileExists(Maps() + u"New\\New.map"_s));
    EXPECT_EQ(At(Maps() + u"M3\\M3.map"_s), "");
}

TEST_F(InstallArchive, AModOfTheGamesOwnNameAsks) {
    host_.Answers = {Host::Answer::No};
    InstallZip({{.Name = "x/INI.big"}, {.Name = "Mine.big", .Content = "m"}});
    EXPECT_EQ(Failures(), QStringList{u"x/INI.big"_s});
    EXPECT_EQ(At(Own() + u"Mine.big"_s), "m");
    EXPECT_FALSE(Files::FileExists(Own() + u"INI.big"_s));
}

TEST_F(InstallArchive, VeryMuchAsksBeforeAnythingIsWritten) {
    const Part dense{.Name = "a.rep", .Content = QByteArray(qsizetype{65} * 1024 * 1024, 'x'), .Method = 8};
    host_.Answers = {Host::Answer::No};
    InstallZip({dense, {.Name = "b.rep", .Content = "b"}});
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Default, Host::Answer::No);
    EXPECT_EQ(Names(Of(0).ReplayPath), QStringList());
    EXPECT_EQ(Failures(), (QStringList{u"a.rep"_s, u"b.rep"_s}));
    host_.Answers = {Host::Answer::Yes};
    Install();
    EXPECT_EQ(Names(Of(0).ReplayPath), (QStringList{u"a.rep"_s, u"b.rep"_s}));
}

TEST_F(InstallArchive, WhatSaysToBeVeryMuchAsks) {
    host_.Answers = {Host::Answer::Yes};
    InstallZip({{.Name = "a.rep", .Content = "x", .Size = 2147483649}});
    EXPECT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(Failures(), QStringList{u"a.rep"_s});
    InstallZip({{.Name = "a.rep", .Content = QByteArray(qsizetype{65} * 1024 * 1024, 'x')}});
    EXPECT_EQ(host_.Messages.size(), 1U);
}

TEST_F(InstallArchive, QuestionsCanBeAnsweredAhead) {
    AnalyseZip({{.Name = "INI.big", .Content = "m"}});
    TickAll();
    Install(0, {.Asks = false});
    EXPECT_EQ(At(Own() + u"INI.big"_s), "m");
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(InstallArchive, APasswordIsAskedForOnce) {
    Analyse(PutEncrypted());
    TickAll();
    host_.InputTexts = {u"secret"_s};
    Install();
    EXPECT_EQ(At(Of(0).ReplayPath + u"a.rep"_s), "hello");
    EXPECT_FALSE(outcome_.AnyFailed()) << FailureText().toStdString();
}

TEST_F(InstallArchive, ACancelledPasswordIsListed) {
    Analyse(PutEncrypted());
    TickAll();
    host_.InputTexts = {std::nullopt};
    Install();
    EXPECT_EQ(Failures(), (QStringList{u"a.rep"_s, u"b.rep"_s}));
    EXPECT_EQ(Names(Of(0).ReplayPath), QStringList());
    Install(0, {.Password = u"secret"_s});
    EXPECT_FALSE(outcome_.AnyFailed());
}

TEST_F(InstallArchive, EveryFileIsToldBeforeItIsWrittenAndBehind) {
    RecordingWatch watch;
    AnalyseZip({{.Name = "M/m.map"},
                {.Name = "M/bad.tga", .Content = "x", .Crc = 1},
                {.Name = "a.rep"},
                {.Name = "S/shellmap1.map"}});
    TickAll();
    Install(0, {.Watch = &watch});
    QStringList wanted;
    for (const QString& path :
         {Maps() + u"m\\m.map"_s, Of(0).ReplayPath + u"a.rep"_s, Own() + u"Maps\\QvShellMap001\\shellmap1.map"_s,
          Own() + u"Maps\\QvShellMap001\\QvInfos.ini"_s})
        wanted += {u"will "_s + path, u"did "_s + path};
    EXPECT_EQ(watch.Log, wanted);
}

TEST_F(InstallArchive, AFileThatTheWatchRefusesStaysAsItWas) {
    RecordingWatch watch;
    world_.WriteFile(u"seen"_s, "");
    AnalyseZip({{.Name = "a.rep", .Content = "new"}, {.Name = "b.rep"}});
    TickAll();
    watch.Refused = Of(0).ReplayPath + u"a.rep"_s;
    Install(0, {.Watch = &watch});
    EXPECT_EQ(Names(Of(0).ReplayPath), QStringList{u"b.rep"_s});
    EXPECT_EQ(Failures(), QStringList{u"a.rep"_s});
}

TEST_F(InstallArchive, MapsAndReplaysInTurnsAllGoIntoTheirFolders) {
    std::vector<Part> parts;
    parts.reserve(300);
    for (int number = 0; number < 300; ++number) {
        const QByteArray name = QByteArray::number(number);
        parts.push_back({.Name = name + "/" + name + ".map"});
        parts.push_back({.Name = name + "/" + name + ".rep"});
    }
    InstallZip(parts);
    EXPECT_FALSE(outcome_.AnyFailed());
    EXPECT_EQ(Names(Maps()).size(), 300);
    EXPECT_EQ(Names(Of(0).ReplayPath).size(), 300);
}

TEST_F(InstallArchive, LinesTellFailuresFirst) {
    world_.UseLanguage("[LNG]\r\nInstalled2=In:\r\nNotInstalled2=Not:\r\n");
    world_.Start();
    InstallZip({{.Name = "a.rep"}, {.Name = "nul.rep"}});
    ASSERT_EQ(outcome_.Lines().size(), 2);
    EXPECT_TRUE(outcome_.Lines()[0].startsWith(u"Not: nul.rep: "_s)) << outcome_.Lines()[0].toStdString();
    EXPECT_EQ(outcome_.Lines()[1], u"In: "_s + Paths::ToNative(Of(0).ReplayPath + u"a.rep"_s));
    EXPECT_EQ(outcome_.Lines(true).size(), 1);
}
