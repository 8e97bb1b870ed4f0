// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/ListCommandTest.h"
#include "tests/install/ZipSamples.h"
#include "tools/demoworld/ZipBytes.h"

#include <QDirIterator>

using namespace Qt::StringLiterals;
using ZipBytes::Part;

namespace {

class InstallCommand : public ListCommandTest {
protected:
    InstallCommand() : ListCommandTest(u"install"_s) {
        world_.UseLanguage("[LNG]\r\nEmptyFile=Nothing in it\r\nWrongGame=Wrong game\r\nUnsupportedFormat=Not that\r\n"
                           "AskSameMap=Over it?\r\nAskOwnArchive=Own?\r\nNotWanted=left out\r\n"
                           "PassedOverToRead=To read\r\nKiloBytes=KB\r\n");
        world_.Start();
        mMain::MakeUserFolders();
    }

    /// A file to be installed; returns its native path.
    QString Put(const QString& name, const QByteArray& bytes = "x") const {
        return Paths::ToNative(world_.WriteFile(u"source\\"_s + name, bytes));
    }

    [[nodiscard]] QString PutZip(const std::vector<Part>& parts) const {
        return Put(u"Pack.zip"_s, ZipBytes::Archive(parts));
    }

    [[nodiscard]] static QStringList Names(const QString& folder) {
        QStringList names = Files::ListFolder(folder + u"\\*"_s, true);
        names.sort();
        return names;
    }

    /// Every file and folder of the world with its size.
    [[nodiscard]] QStringList Everything() const {
        QStringList all;
        QDirIterator found(Paths::ToNative(world_.Root()), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (found.hasNext()) {
            found.next();
            all += found.filePath() + u' ' + QString::number(found.fileInfo().size());
        }
        all.sort();
        return all;
    }

    [[nodiscard]] QJsonObject Plan(const QStringList& arguments) const {
        return QJsonDocument::fromJson(Output(arguments + QStringList{u"--plan"_s, u"--json"_s})).object();
    }

    static QByteArray Line(const QStringList& columns) { return columns.join(u'\t').toUtf8() + '\n'; }

    const QString game_ = u"--game"_s;
    const QString gen_ = u"gen"_s;
};

} // namespace

TEST_F(InstallCommand, ALooseMapGoesInWithWhatIsBesideIt) {
    Put(u"Bay\\map.ini"_s);
    const QByteArray output = Output({Put(u"Bay\\Bay.map"_s), game_, gen_});
    const QString folder = Game[0].MapPath + u"Bay\\"_s;
    EXPECT_EQ(Names(folder), (QStringList{u"Bay.map"_s, u"map.ini"_s}));
    EXPECT_EQ(output, Line({u"installed"_s, Paths::ToNative(folder + u"Bay.map"_s)}) +
                          Line({u"installed"_s, Paths::ToNative(folder + u"map.ini"_s)}));
}

TEST_F(InstallCommand, APlanTellsAllAndWritesNothing) {
    const QString loose = Put(u"Bay\\Bay.map"_s, "12345");
    Put(u"Bay\\map.ini"_s, "123");
    const QString zip = PutZip({{.Name = "a.rep", .Content = "11"},
                                {.Name = "S/shellmap1.map"},
                                {.Name = "S/QvInfos.ini", .Content = "[Infos]"},
                                {.Name = "M.big"},
                                {.Name = "M.ini", .Content = "[Infos]"},
                                {.Name = "e/readme.txt"},
                                {.Name = "d/con.map"}});
    const QStringList before = Everything();
    const QString folder = Game[0].MapPath + u"Bay\\"_s;
    EXPECT_EQ(Output({loose, game_, gen_, u"--plan"_s}),
              Line({u"map"_s, u"Bay.map"_s, u"2"_s, u"8"_s, Paths::ToNative(folder)}) +
                  Line({u"new"_s, u"5"_s, Paths::ToNative(folder + u"Bay.map"_s), loose}) +
                  Line({u"new"_s, u"3"_s, Paths::ToNative(folder + u"map.ini"_s),
                        Paths::ToNative(world_.Root() + u"\\source\\Bay\\map.ini"_s)}));
    const QByteArray output = Output({zip, game_, gen_, u"--plan"_s});
    EXPECT_TRUE(output.contains("passed over\te/readme.txt\tTo read\n")) << output.constData();
    EXPECT_TRUE(output.contains("refused\tmap\tcon.map\tis the name of a device\n")) << output.constData();
    EXPECT_TRUE(output.contains("QvShellMap001")) << output.constData();
    const QJsonObject plan = Plan({zip, game_, gen_, u"--only"_s, u"*.rep"_s});
    EXPECT_EQ(plan[u"items"_s].toArray().size(), 1);
    EXPECT_EQ(plan[u"size"_s].toInt(), 2);
    EXPECT_EQ(plan[u"passedOver"_s].toArray()[0].toObject()[u"name"_s].toString(), u"M.ini"_s);
    EXPECT_EQ(Everything(), before);
}

TEST_F(InstallCommand, APlanTellsWhatIsReplaced) {
    world_.WriteFile(u"games\\Generals\\INI.big"_s, "own");
    const QString zip = PutZip({{.Name = "Bay/Bay.map", .Content = "same"},
                                {.Name = "Bay/map.str", .Content = "other"},
                                {.Name = "INI.big", .Content = "o"}});
    Files::MakeFolder(Game[0].MapPath + u"BAY"_s);
    for (const QString& name : {u"bay.map"_s, u"map.str"_s}) {
        QFile file(Paths::ToNative(Game[0].MapPath + u"BAY\\"_s + name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("same");
    }
    const QJsonArray items = Plan({zip, game_, gen_, u"--all"_s})[u"items"_s].toArray();
    const QJsonArray files = items[0].toObject()[u"files"_s].toArray();
    EXPECT_EQ(files[0].toObject()[u"effect"_s].toString(), u"same"_s);
    EXPECT_EQ(files[0].toObject()[u"target"_s].toString(), Paths::ToNative(Game[0].MapPath + u"BAY\\bay.map"_s));
    EXPECT_EQ(files[1].toObject()[u"effect"_s].toString(), u"replaces"_s);
    EXPECT_TRUE(items[1].toObject()[u"ownArchive"_s].toBool());
    EXPECT_EQ(items[1].toObject()[u"files"_s].toArray()[0].toObject()[u"effect"_s].toString(), u"replaces"_s);
}

TEST_F(InstallCommand, AnArchiveIsInstalledWholeOrInPart) {
    const QString zip = PutZip({{.Name = "a/One.rep"}, {.Name = "b/Two.rep"}, {.Name = "M.big"}, {.Name = "x.txt"}});
    EXPECT_TRUE(Failure({zip, game_, gen_}, 2).contains("--all"));
    EXPECT_TRUE(Failure({zip, game_, gen_, u"--all"_s, u"--only"_s, u"M.big"_s}, 2).contains("--only"));
    EXPECT_TRUE(Failure({zip, game_, gen_, u"--only"_s, u"Three.rep"_s}).contains("Three.rep"));
    EXPECT_EQ(Names(Game[0].ReplayPath), QStringList());
    static_cast<void>(Output({zip, game_, gen_, u"--only"_s, u"Two.rep"_s, u"M.*"_s}));
    EXPECT_EQ(Names(Game[0].ReplayPath), QStringList{u"Two.rep"_s});
    EXPECT_TRUE(Files::FileExists(Game[0].InstallPath + u"M.ini"_s));
    static_cast<void>(Output({zip, game_, gen_, u"--all"_s}));
    EXPECT_EQ(Names(Game[0].ReplayPath), (QStringList{u"One.rep"_s, u"Two.rep"_s}));
}

TEST_F(InstallCommand, AShellMapOfAnArchiveIsNamedByItsRecord) {
    const QString zip = PutZip(
        {{.Name = "S/shellmap1.map"}, {.Name = "S/QvInfos.ini", .Content = "[Infos]\r\nName=Bay\r\nComments=c\r\n"}});
    static_cast<void>(Output({zip, game_, gen_, u"--all"_s}));
    EXPECT_EQ(World::ReadFile(Game[0].InstallPath + u"Maps\\QvShellMap001\\QvInfos.ini"_s),
              "[Infos]\r\nName=Bay\r\nComments=c\r\n");
}

TEST_F(InstallCommand, WhatIsNotDoneStandsOnStandardError) {
    const QString zip =
        PutZip({{.Name = "a.rep", .Content = "x", .Crc = 1}, {.Name = "nul.rep"}, {.Name = "good.rep"}});
    const Outcome outcome = RunCommand({u"install"_s, zip, game_, gen_, u"--all"_s});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Output, Line({u"installed"_s, Paths::ToNative(Game[0].ReplayPath + u"good.rep"_s)}));
    EXPECT_EQ(outcome.Error.count('\n'), 2);
    EXPECT_TRUE(outcome.Error.contains("a.rep: ") && outcome.Error.contains("nul.rep: ")) << outcome.Error.constData();
    const Outcome json = RunCommand({u"install"_s, zip, game_, gen_, u"--all"_s, u"--json"_s});
    EXPECT_EQ(json.Code, 1);
    const QJsonArray files = QJsonDocument::fromJson(json.Output).array();
    ASSERT_EQ(files.size(), 3);
    EXPECT_EQ(files[0].toObject()[u"state"_s].toString(), u"failed"_s);
    EXPECT_EQ(files[2].toObject()[u"state"_s].toString(), u"installed"_s);
}

TEST_F(InstallCommand, WhatAWindowWouldAskIsLeftOutWithoutYes) {
    const QString mine = Install(u"INI.big"_s, "own");
    const QString zip = PutZip({{.Name = "INI.big", .Content = "mod"}, {.Name = "a.rep"}});
    const Outcome outcome = RunCommand({u"install"_s, zip, game_, gen_, u"--all"_s});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_TRUE(outcome.Error.contains("Own?") && outcome.Error.contains("left out")) << outcome.Error.constData();
    EXPECT_EQ(World::ReadFile(mine), "own");
    EXPECT_TRUE(Files::FileExists(Game[0].ReplayPath + u"a.rep"_s));
    static_cast<void>(Output({zip, game_, gen_, u"--all"_s, u"--yes"_s}));
    EXPECT_EQ(World::ReadFile(mine), "mod");
}

TEST_F(InstallCommand, WhatTheFirstPageRefusesIsRefused) {
    world_.InstallGame(1);
    world_.Start();
    EXPECT_TRUE(Failure({Put(u"a.txt"_s), game_, gen_}).contains("Not that"));
    EXPECT_TRUE(Failure({Put(u"a.MAP"_s), game_, gen_}).contains("Not that"));
    EXPECT_TRUE(Failure({Put(u"a.bfme2replay"_s), game_, gen_}).contains("Not that"));
    EXPECT_TRUE(Failure({Put(u"ShellMap1.map"_s), game_, u"zh"_s}).contains("Wrong game"));
    EXPECT_TRUE(Failure({Put(u"shellmapmd.map"_s), game_, gen_}).contains("Wrong game"));
    EXPECT_TRUE(Failure({Put(u"a.rep"_s), game_, u"bfme"_s}).contains("not installed"));
    EXPECT_TRUE(Failure({Put(u"a.rep"_s) + u"x.rep"_s, game_, gen_}).contains("a.repx.rep"));
    EXPECT_TRUE(Failure({PutZip({{.Name = "readme.txt"}}), game_, gen_, u"--all"_s}).contains("Nothing in it"));
    EXPECT_TRUE(Failure({Put(u"bad.zip"_s), game_, gen_, u"--all"_s}).contains("bad.zip"));
    EXPECT_TRUE(Failure({Put(u"a.rep"_s), game_, gen_, u"--only"_s, u"a.rep"_s}, 2).contains("--only"));
    EXPECT_EQ(RunCommand({u"install"_s, Put(u"a.rep"_s)}).Code, 2);
    static_cast<void>(Output({Put(u"shellmapmd.map"_s), game_, u"zh"_s}));
}

TEST_F(InstallCommand, APasswordOpensWhatIsEncrypted) {
    QByteArray bytes = ZipSamples::Sample(ZipSamples::Traditional);
    bytes.replace("a.txt", "a.rep").replace("b.txt", "b.rep");
    const QString zip = Put(u"Secret.zip"_s, bytes);
    EXPECT_EQ(RunCommand({u"install"_s, zip, game_, gen_, u"--all"_s}).Code, 1);
    EXPECT_EQ(Names(Game[0].ReplayPath), QStringList());
    static_cast<void>(Output({zip, game_, gen_, u"--all"_s, u"--password"_s, u"secret"_s}));
    EXPECT_EQ(World::ReadFile(Game[0].ReplayPath + u"a.rep"_s), "hello");
}

TEST_F(InstallCommand, WhatTheJournalHasToSayStandsOnStandardError) {
    world_.WriteFile(u"installed.json"_s, "damaged");
    const QStringList command{u"install"_s, Put(u"a.rep"_s), game_, gen_};
    const Outcome outcome = RunCommand(command);
    EXPECT_EQ(outcome.Output, Line({u"installed"_s, Paths::ToNative(Game[0].ReplayPath + u"a.rep"_s)}));
    EXPECT_TRUE(outcome.Error.contains("installed.damaged-1.json")) << outcome.Error.constData();
    world_.WriteFile(u"installed.json"_s, "damaged");
    const QJsonArray files = QJsonDocument::fromJson(RunCommand(command + QStringList(u"--json"_s)).Output).array();
    EXPECT_EQ(files.last().toObject()[u"state"_s].toString(), u"journal"_s);
}

TEST_F(InstallCommand, WhatWasDoneBeforeAFailureIsTold) {
    Put(u"M.ini"_s, "[Mod]\r\nName=m\r\n");
    const QString elsewhere = Paths::ToNative(world_.WriteFile(u"elsewhere\\x"_s, "x"));
    ASSERT_TRUE(QFile::link(elsewhere, Paths::ToNative(Game[0].InstallPath + u"M.ini"_s)));
    const Outcome outcome = RunCommand({u"install"_s, Put(u"M.big"_s), game_, gen_});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Output, Line({u"installed"_s, Paths::ToNative(Game[0].InstallPath + u"M.big"_s)}));
    EXPECT_TRUE(outcome.Error.contains("M.ini")) << outcome.Error.constData();
}

TEST_F(InstallCommand, AModThatCanNotBeCopiedIsToldWithItsName) {
    Files::MakeFolder(Game[0].InstallPath + u"M.big"_s);
    EXPECT_TRUE(Failure({Put(u"M.big"_s), game_, gen_}).contains("M.big"));
}
