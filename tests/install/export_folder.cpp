// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Copies in a folder.
#include "tests/install/ExportTest.h"

using namespace Qt::StringLiterals;
using Outcome = ExportOutcome;

namespace {

class ExportFolder : public ExportTest {
protected:
    void PutShellMap() {
        Put(u"game\\Maps\\QvShellMap001\\QvInfos.ini"_s, "i");
        Put(u"game\\Maps\\QvShellMap001\\shellmap1.map"_s, "s");
        Put(u"game\\Maps\\QvShellMap001\\inner\\a.txt"_s);
    }
};

} // namespace

TEST_F(ExportFolder, AMapIsCopiedWithAllThatIsInIt) {
    Put(u"maps\\Alpine\\Alpine.map"_s, "m");
    Put(u"maps\\Alpine\\readme"_s, "no dot");
    Put(u"maps\\Alpine\\empty.ini"_s, "");
    Put(u"maps\\Alpine\\sub\\deep\\x.tga"_s, "x");
    Files::MakeFolder(At(u"maps\\Alpine\\hollow"_s));
    EXPECT_FALSE(ToFolder({Map(u"Alpine"_s)}).HasFailures());
    EXPECT_EQ(CopiedNames(), (QStringList{u"Alpine/Alpine.map"_s, u"Alpine/empty.ini"_s, u"Alpine/readme"_s,
                                          u"Alpine/sub/deep/x.tga"_s}));
    EXPECT_EQ(Copied(u"Alpine\\Alpine.map"_s), "m");
    EXPECT_TRUE(Files::FolderExists(Out() + u"\\Alpine\\hollow"_s));
}

TEST_F(ExportFolder, ModsAndReplaysAreCopiedByTheirNames) {
    Put(u"replays\\a.rep"_s, "r");
    Put(u"game\\Contra.big"_s, QByteArray(10'000'000, 'b'));
    Put(u"game\\Contra.ini"_s, "[Mod]\r\nName=Contra\r\n");
    const ExportReport report = ToFolder({Replay(u"a.rep"_s), Mod(u"Contra.big"_s)});
    EXPECT_EQ(CopiedNames(), (QStringList{u"Contra.big"_s, u"a.rep"_s}));
    EXPECT_EQ(Copied(u"Contra.big"_s), QByteArray(10'000'000, 'b'));
    EXPECT_EQ(With(Outcome::Done, report), (QStringList{u"a.rep"_s, u"Contra.big"_s}));
}

TEST_F(ExportFolder, AShellMapIsCopiedByItsNameWithoutItsSubfolders) {
    PutShellMap();
    const ExportReport report = ToFolder({ShellMap(u"QvShellMap001"_s, u"Night"_s)});
    EXPECT_EQ(CopiedNames(), (QStringList{u"Night/QvInfos.ini"_s, u"Night/shellmap1.map"_s}));
    EXPECT_EQ(With(Outcome::Subfolder, report), QStringList{u"inner"_s});
    EXPECT_EQ(Scratch(), QStringList());
}

TEST_F(ExportFolder, AShellMapWhoseNameIsNoFolderNameIsLeftOut) {
    PutShellMap();
    Put(u"replays\\a.rep"_s);
    for (const QString& name : {u".."_s, QString(), u"a\\b"_s, u"..\\x"_s, u"a/b"_s, u"nul"_s, u"a:b"_s}) {
        const ExportReport report = ToFolder({ShellMap(u"QvShellMap001"_s, name), Replay(u"a.rep"_s)});
        EXPECT_EQ(CopiedNames(), QStringList{u"a.rep"_s}) << name.toStdString();
        EXPECT_EQ(report.Lines[0].Outcome, Outcome::Refused);
    }
    EXPECT_FALSE(Files::FolderExists(At(u"x"_s)));
}

TEST_F(ExportFolder, AMapOfSubfoldersAloneIsCopiedWithThem) {
    Put(u"maps\\Alpine\\art\\a.tga"_s);
    Files::MakeFolder(At(u"maps\\Bare"_s));
    ToFolder({Map(u"Alpine"_s), Map(u"Bare"_s)});
    EXPECT_EQ(World::ReadFile(Out() + u"\\Alpine\\art\\a.tga"_s), "x");
    EXPECT_TRUE(Files::FolderExists(Out() + u"\\Bare"_s));
}

TEST_F(ExportFolder, AShellMapWithoutANameIsToldByItsFolder) {
    Put(u"game\\Maps\\QvShellMap005\\shellmap1.map"_s);
    for (const ExportReport& report :
         {ToFolder({ShellMap(u"QvShellMap005"_s, {})}), ToZip({ShellMap(u"QvShellMap005"_s, {})})}) {
        EXPECT_EQ(report.Lines[0].Outcome, Outcome::Refused);
        EXPECT_EQ(report.Lines[0].Item, u"QvShellMap005"_s);
    }
}

TEST_F(ExportFolder, WhatStandsThereIsOverwrittenInWhateverCase) {
    Put(u"out\\alpine\\ALPINE.map"_s, "an old one that is longer");
    Put(u"out\\alpine\\other.txt"_s, "kept");
    Put(u"maps\\Alpine\\Alpine.map"_s, "new");
    EXPECT_FALSE(ToFolder({Map(u"Alpine"_s)}).HasFailures());
    EXPECT_EQ(CopiedNames(), (QStringList{u"alpine/ALPINE.map"_s, u"alpine/other.txt"_s}));
    EXPECT_EQ(Copied(u"alpine\\ALPINE.map"_s), "new");
    EXPECT_EQ(Copied(u"alpine\\other.txt"_s), "kept");
}

TEST_F(ExportFolder, FilesKeepTheirTime) {
    const QDateTime time(QDate(2003, 8, 30), QTime(20, 55, 28));
    SetTime(Put(u"replays\\a.rep"_s), time);
    SetTime(Put(u"replays\\empty.rep"_s, ""), time);
    ToFolder({Replay(u"a.rep"_s), Replay(u"empty.rep"_s)});
    EXPECT_EQ(Files::ModifiedTime(Out() + u"\\a.rep"_s), time);
    EXPECT_EQ(Files::ModifiedTime(Out() + u"\\empty.rep"_s), time);
}

TEST_F(ExportFolder, AFileIsNotCopiedOverItself) {
    const QString path = Put(u"replays\\a.rep"_s, "r");
    Put(u"maps\\Alpine\\Alpine.map"_s, "m");
    const auto sources = ExportSources::Of({Replay(u"a.rep"_s)});
    ExportReport report = Exporting::ToFolder(sources, At(u"replays"_s), {});
    EXPECT_EQ(report.Lines[0].Outcome, Outcome::AlreadyThere);
    EXPECT_FALSE(report.HasFailures());
    report = Exporting::ToFolder(ExportSources::Of({Map(u"Alpine"_s)}), At(u"maps"_s), {});
    EXPECT_EQ(With(Outcome::AlreadyThere, report), QStringList{u"Alpine.map"_s});
    EXPECT_EQ(World::ReadFile(path), "r");
    EXPECT_EQ(World::ReadFile(At(u"maps\\Alpine\\Alpine.map"_s)), "m");
}

TEST_F(ExportFolder, AMapMayBeCopiedIntoItself) {
    Put(u"maps\\Alpine\\Alpine.map"_s, "m");
    const auto sources = ExportSources::Of({Map(u"Alpine"_s)});
    EXPECT_FALSE(Exporting::ToFolder(sources, At(u"maps\\Alpine"_s), {}).HasFailures());
    EXPECT_EQ(World::ReadFile(At(u"maps\\Alpine\\Alpine\\Alpine.map"_s)), "m");
    EXPECT_FALSE(Files::FolderExists(At(u"maps\\Alpine\\Alpine\\Alpine"_s)));
}

TEST_F(ExportFolder, WhatIsGoneIsToldAndMakesNoFolder) {
    Put(u"replays\\a.rep"_s);
    const ExportReport report = ToFolder(
        {Map(u"Gone"_s), ShellMap(u"QvShellMap009"_s, u"Gone"_s), Replay(u"gone.rep"_s), {}, Replay(u"a.rep"_s)});
    EXPECT_EQ(Files::ListFolder(Out() + u"\\*"_s, true), QStringList{u"a.rep"_s});
    EXPECT_EQ(With(Outcome::Gone, report).size(), 3);
    EXPECT_EQ(With(Outcome::NoPath, report).size(), 1);
}

TEST_F(ExportFolder, ASourceThatVanishesMidwayIsTold) {
    Put(u"maps\\A\\A.map"_s);
    Put(u"maps\\A\\b.ini"_s);
    Put(u"maps\\A\\c.ini"_s);
    watch_.Yield = [&] {
        Ignoring([&] { Files::DeleteForced(At(u"maps\\A\\b.ini"_s)); });
        return true;
    };
    const ExportReport report = ToFolder({Map(u"A"_s)});
    EXPECT_EQ(CopiedNames(), (QStringList{u"A/A.map"_s, u"A/c.ini"_s}));
    EXPECT_EQ(With(Outcome::Failed, report), QStringList{u"b.ini"_s});
}

TEST_F(ExportFolder, AFolderThatCantBeIsToldOnce) {
    Put(u"replays\\a.rep"_s);
    Put(u"out"_s, "a file");
    const ExportReport report = ToFolder({Replay(u"a.rep"_s)});
    ASSERT_EQ(report.Lines.size(), 1U);
    EXPECT_EQ(report.Lines[0].Outcome, Outcome::NotWritten);
    EXPECT_EQ(World::ReadFile(Out()), "a file");
}

TEST_F(ExportFolder, WhatStandsInTheWayCostsThatItemOnly) {
    Put(u"maps\\A\\A.map"_s);
    Put(u"maps\\A\\sub\\x.txt"_s);
    Put(u"out\\A\\sub"_s, "a file where a folder is wanted");
    Put(u"replays\\a.rep"_s);
    Files::MakeFolders(Out() + u"\\a.rep"_s);
    const ExportReport report = ToFolder({Map(u"A"_s), Replay(u"a.rep"_s)});
    EXPECT_EQ(CopiedNames(), (QStringList{u"A/A.map"_s, u"A/sub"_s}));
    EXPECT_EQ(Copied(u"A\\sub"_s), "a file where a folder is wanted");
    EXPECT_EQ(With(Outcome::Failed, report).size(), 3) << "the folder, its file and the replay";
}

TEST_F(ExportFolder, OneThatIsCancelledKeepsWholeFilesOnly) {
    Put(u"replays\\a.rep"_s, "r");
    Put(u"game\\big.big"_s, QByteArray(9'000'000, 'b'));
    int left = 4; // before and behind the first, before the second and behind its first piece
    watch_.Yield = [&] { return --left > 0; };
    EXPECT_TRUE(ToFolder({Replay(u"a.rep"_s), Mod(u"big.big"_s)}).Cancelled);
    EXPECT_EQ(CopiedNames(), QStringList{u"a.rep"_s});
}

TEST_F(ExportFolder, TheBarMovesByBytesInLongFilesToo) {
    Put(u"game\\big.big"_s, QByteArray(qsizetype{8} * 1024 * 1024, 'b'));
    std::vector<int> values;
    watch_.Progress = [&](int percent) { values.push_back(percent); };
    ToFolder({Mod(u"big.big"_s)});
    EXPECT_EQ(values, (std::vector<int>{0, 12, 25, 37, 50, 62, 75, 87, 100}));
}

TEST_F(ExportFolder, AModsRecordComesAlongWhereItIsWanted) {
    Put(u"game\\Contra.big"_s);
    const QString ini = Put(u"game\\Contra.ini"_s, "[Mod]\r\nName=Contra\r\nComments=c\r\n");
    Put(u"out\\contra.ini"_s, "an older one");
    EXPECT_FALSE(ToFolder({Mod(u"Contra.big"_s)}, {.ModRecords = true}).HasFailures());
    EXPECT_EQ(Copied(u"contra.ini"_s),
              "[Mod]\r\nName=Contra\r\nComments=c\r\n[Infos]\r\nName=Contra\r\nComments=c\r\n");
    const QByteArray before = World::ReadFile(ini);
    Exporting::ToFolder(ExportSources::Of({Mod(u"Contra.big"_s)}), At(u"game"_s), {.ModRecords = true});
    EXPECT_EQ(World::ReadFile(ini), before) << "the mod's own is left as it is";
}

TEST_F(ExportFolder, TheSecondOfOneNameReplacesTheFirstWhichIsTold) {
    Put(u"replays\\a.rep"_s, "1");
    Put(u"game\\a.rep"_s, "2");
    const ExportReport report = ToFolder({Replay(u"a.rep"_s), Mod(u"a.rep"_s)});
    EXPECT_EQ(Copied(u"a.rep"_s), "2"); // This is meant.
    EXPECT_EQ(With(Outcome::Replaced, report), QStringList{u"a.rep"_s});
}
