// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/InstallJournal.h"
#include "install/journal/JournalRun.h"
#include "tests/cli/ListCommandTest.h"

using namespace Qt::StringLiterals;

namespace {

class InstalledCommandsTest : public ListCommandTest {
protected:
    InstalledCommandsTest() : ListCommandTest(u"installed"_s) {}

    /// An install of files in the game's own folder.
    void InstallFiles(const QStringList& names) const {
        JournalRun run(world_.WriteFile(u"Pack.zip"_s, "abc"), 0);
        for (const QString& name : names) {
            run.WillWrite(InGame(name));
            Install(name, "installed");
            run.Written(InGame(name));
        }
    }

    [[nodiscard]] static QString InGame(const QString& name) { return Game[0].InstallPath + name; }

    [[nodiscard]] static QByteArray Native(const QString& name) {
        return Paths::ToNativeAsGiven(InGame(name)).toUtf8();
    }
};

} // namespace

TEST_F(InstalledCommandsTest, ListPrintsALineAnInstall) {
    EXPECT_EQ(Output({u"list"_s}), QByteArray());
    InstallFiles({u"A.big"_s, u"A.ini"_s});
    InstallFiles({u"B.big"_s});
    const QList<QByteArray> lines = Output({u"list"_s}).split('\n');
    ASSERT_EQ(lines.size(), 3);
    const QList<QByteArray> columns = lines[0].split('\t');
    ASSERT_EQ(columns.size(), 6);
    EXPECT_EQ(columns[0], "1");
    EXPECT_TRUE(columns[1].endsWith('Z'));
    EXPECT_EQ(columns.mid(2), (QList<QByteArray>{"gen", "ended", "2", "Pack.zip"}));
    EXPECT_TRUE(lines[1].startsWith("2\t"));
}

TEST_F(InstalledCommandsTest, ListTellsAllAsJson) {
    Install(u"A.big"_s, "old");
    InstallFiles({u"A.big"_s, u"B.big"_s});
    const QJsonArray installs = Json({u"list"_s});
    ASSERT_EQ(installs.size(), 1);
    const QJsonObject install = installs[0].toObject();
    EXPECT_EQ(install[u"id"_s].toInt(), 1);
    EXPECT_EQ(install[u"game"_s].toString(), u"gen"_s);
    EXPECT_EQ(install[u"source"_s].toString(), u"Pack.zip"_s);
    EXPECT_EQ(install[u"state"_s].toString(), u"ended"_s);
    EXPECT_EQ(install[u"sourceHash"_s].toString().size(), 64);
    const QJsonArray files = install[u"files"_s].toArray();
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(files[0].toObject()[u"path"_s].toString().toUtf8(), Native(u"A.big"_s));
    EXPECT_EQ(files[0].toObject()[u"replaced"_s], QJsonValue(true));
    EXPECT_EQ(files[0].toObject()[u"kept"_s].toString(), Paths::ToNative(InstallJournal::KeptPath(u"1\\1"_s)));
    EXPECT_EQ(files[1].toObject()[u"replaced"_s], QJsonValue(false));
    EXPECT_TRUE(files[1].toObject()[u"kept"_s].isNull());
    EXPECT_EQ(Json({u"list"_s}), installs);
}

TEST_F(InstalledCommandsTest, APlanIsPrintedAndNothingIsDone) {
    Install(u"Old.big"_s, "old");
    InstallFiles({u"A.big"_s, u"Old.big"_s, u"Changed.big"_s});
    Install(u"Changed.big"_s, "mine");
    EXPECT_EQ(Output({u"uninstall"_s, u"1"_s, u"--plan"_s}), "goes\t" + Native(u"A.big"_s) + "\ncomes back\t" +
                                                                 Native(u"Old.big"_s) + "\nstays, changed\t" +
                                                                 Native(u"Changed.big"_s) + '\n');
    EXPECT_TRUE(Files::FileExists(InGame(u"A.big"_s)));
    EXPECT_TRUE(InstallJournal::Read().Find(1) != nullptr);
}

TEST_F(InstalledCommandsTest, UninstallDoesAsPlanned) {
    Install(u"Old.big"_s, "old");
    InstallFiles({u"Maps\\New\\New.map"_s, u"Old.big"_s});
    const QByteArray plan = Output({u"uninstall"_s, u"1"_s, u"--plan"_s});
    EXPECT_TRUE(plan.contains("folder goes\t" + Native(u"Maps\\New"_s) + '\n'));
    EXPECT_EQ(Output({u"uninstall"_s, u"1"_s, u"--yes"_s}), plan);
    EXPECT_FALSE(Files::FolderExists(InGame(u"Maps\\New"_s)));
    EXPECT_EQ(World::ReadFile(InGame(u"Old.big"_s)), "old");
    EXPECT_EQ(Output({u"list"_s}), QByteArray());
}

TEST_F(InstalledCommandsTest, UninstallNeedsToBeToldWhich) {
    InstallFiles({u"A.big"_s});
    EXPECT_TRUE(Failure({u"uninstall"_s, u"1"_s}, 2).contains("--yes"));
    EXPECT_TRUE(Failure({u"uninstall"_s, u"1"_s, u"--yes"_s, u"--plan"_s}, 2).contains("--plan"));
    EXPECT_FALSE(Failure({u"uninstall"_s, u"one"_s, u"--yes"_s}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"uninstall"_s, u"--yes"_s}, 2).isEmpty());
    EXPECT_TRUE(Failure({u"uninstall"_s, u"7"_s, u"--yes"_s}).contains('7'));
    EXPECT_TRUE(Files::FileExists(InGame(u"A.big"_s)));
}

TEST_F(InstalledCommandsTest, WhatCouldNotBeDoneIsToldALineEach) {
    Install(u"Old.big"_s, "old");
    InstallFiles({u"A.big"_s, u"Old.big"_s});
    Files::Delete(InstallJournal::KeptPath(u"1\\1"_s));
    const Outcome outcome = RunCommand({u"installed"_s, u"uninstall"_s, u"1"_s, u"--yes"_s});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Error.count('\n'), 1) << outcome.Error.constData();
    EXPECT_TRUE(outcome.Output.contains("goes\t" + Native(u"A.big"_s)));
    EXPECT_FALSE(Files::FileExists(InGame(u"A.big"_s)));
    EXPECT_TRUE(InstallJournal::Read().Find(1) != nullptr);
}

TEST_F(InstalledCommandsTest, AnInstallThatGoesOnIsNotTouched) {
    JournalRun run(world_.WriteFile(u"Pack.zip"_s, "abc"), 0);
    run.WillWrite(InGame(u"A.big"_s));
    EXPECT_TRUE(Output({u"list"_s}).contains("\trunning\t"));
    EXPECT_FALSE(Failure({u"uninstall"_s, u"1"_s, u"--yes"_s}).isEmpty());
    EXPECT_FALSE(Failure({u"forget"_s, u"1"_s}).isEmpty());
}

TEST_F(InstalledCommandsTest, ForgetLeavesTheFiles) {
    InstallFiles({u"A.big"_s});
    EXPECT_EQ(Output({u"forget"_s, u"1"_s}), QByteArray());
    EXPECT_TRUE(Files::FileExists(InGame(u"A.big"_s)));
    EXPECT_EQ(Output({u"list"_s}), QByteArray());
    EXPECT_FALSE(Failure({u"forget"_s, u"1"_s}).isEmpty());
}

TEST_F(InstalledCommandsTest, ForgetLosesNoReplacedFileUnasked) {
    Install(u"Old.big"_s, "old");
    InstallFiles({u"Old.big"_s});
    EXPECT_TRUE(Failure({u"forget"_s, u"1"_s}).contains("--yes"));
    EXPECT_TRUE(Files::FileExists(InstallJournal::KeptPath(u"1\\1"_s)));
    EXPECT_EQ(Output({u"forget"_s, u"1"_s, u"--yes"_s}), QByteArray());
    EXPECT_FALSE(Files::FileExists(InstallJournal::KeptPath(u"1\\1"_s)));
    EXPECT_EQ(World::ReadFile(InGame(u"Old.big"_s)), "installed");
}

TEST_F(InstalledCommandsTest, ADamagedJournalIsToldAndLeft) {
    world_.WriteFile(u"installed.json"_s, "damaged");
    EXPECT_TRUE(Failure({u"list"_s}).contains("installed.json"));
    EXPECT_FALSE(Failure({u"uninstall"_s, u"1"_s, u"--yes"_s}).isEmpty());
    EXPECT_EQ(World::ReadFile(InstallJournal::File()), "damaged");
}

TEST_F(InstalledCommandsTest, OtherCommandsAreFollowed) {
    InstallFiles({u"Mod.big"_s, u"Mod.ini"_s});
    EXPECT_EQ(RunCommand({u"mods"_s, u"describe"_s, u"gen"_s, u"Mod.big"_s, u"--name"_s, u"Mine"_s}).Code, 0);
    EXPECT_EQ(Output({u"uninstall"_s, u"1"_s, u"--plan"_s}),
              "goes\t" + Native(u"Mod.big"_s) + "\ngoes\t" + Native(u"Mod.ini"_s) + '\n');
}
