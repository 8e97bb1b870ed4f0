// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/ListCommandTest.h"

using namespace Qt::StringLiterals;

namespace {

class ModCommands : public ListCommandTest {
protected:
    ModCommands() : ListCommandTest(u"mods"_s) {}

    [[nodiscard]] static QByteArray Record(const QString& name) { return World::ReadFile(Game[0].InstallPath + name); }
};

} // namespace

TEST_F(ModCommands, ListPrintsFileNameAndComments) {
    for (const QString& name : {u"B.big"_s, u"a.big"_s, u"INI.big"_s, u"_off.big"_s})
        Install(name);
    Install(u"B.ini"_s, "[Mod]\r\nName=\xC9t\xE9\r\nComments=a\tb\r\n");
    EXPECT_EQ(Output({u"list"_s, u"gen"_s}), QByteArray("a.big\t\t\nB.big\t\xC3\x89t\xC3\xA9\ta b\n"));
    const QJsonArray mods = Json({u"list"_s, u"gen"_s});
    ASSERT_EQ(mods.size(), 2);
    const QJsonObject last = mods[1].toObject();
    EXPECT_EQ(last[u"file"_s].toString(), u"B.big"_s);
    EXPECT_EQ(last[u"name"_s].toString(), u"\u00C9t\u00E9"_s);
    EXPECT_EQ(last[u"comments"_s].toString(), u"a\tb"_s);
    EXPECT_EQ(last[u"path"_s].toString(), Paths::ToNative(Game[0].InstallPath + u"B.big"_s));
}

TEST_F(ModCommands, DeleteTakesTheArchiveAndLeavesItsRecord) {
    const QString mod = Install(u"Mine.big"_s);
    const QString record = Install(u"Mine.ini"_s, "[Mod]\r\n");
    EXPECT_FALSE(Failure({u"delete"_s, u"gen"_s, u"Mine.big"_s}, 2).isEmpty());
    EXPECT_TRUE(Files::FileExists(mod));
    EXPECT_EQ(Output({u"delete"_s, u"gen"_s, u"mine.BIG"_s, u"--yes"_s}), QByteArray());
    EXPECT_FALSE(Files::FileExists(mod));
    EXPECT_TRUE(Files::FileExists(record));
}

TEST_F(ModCommands, WhatIsNoModIsNotDeleted) {
    const QString own = Install(u"INI.big"_s);
    const QString hidden = Install(u"_off.big"_s);
    const QString outside = world_.WriteFile(u"games\\x.big"_s, "x");
    for (const QString& name : {u"INI.big"_s, u"_off.big"_s, u"..\\x.big"_s, u"../x.big"_s})
        EXPECT_TRUE(Failure({u"delete"_s, u"gen"_s, name, u"--yes"_s}).contains(name.toUtf8()));
    for (const QString& path : {own, hidden, outside})
        EXPECT_TRUE(Files::FileExists(path)) << path.toStdString();
}

TEST_F(ModCommands, DescribeWritesWhatIsGivenAndLeavesTheRest) {
    Install(u"My.Mod.big"_s);
    EXPECT_EQ(Output({u"describe"_s, u"gen"_s, u"my.mod.big"_s, u"--name"_s, u"Mine"_s, u"--comments"_s, u"Of 2005"_s}),
              QByteArray());
    EXPECT_EQ(Record(u"My.Mod.ini"_s), QByteArray("[Mod]\r\nName=Mine\r\nComments=Of 2005\r\n"));
    EXPECT_EQ(Output({u"describe"_s, u"gen"_s, u"My.Mod.big"_s, u"--comments"_s, u"\u00C9t\u00E9"_s}), QByteArray());
    EXPECT_EQ(Record(u"My.Mod.ini"_s), QByteArray("[Mod]\r\nName=Mine\r\nComments=\xC9t\xE9\r\n"));
    EXPECT_EQ(Output({u"describe"_s, u"gen"_s, u"My.Mod.big"_s, u"--name"_s, u""_s}), QByteArray());
    EXPECT_EQ(Record(u"My.Mod.ini"_s), QByteArray("[Mod]\r\nName=\r\nComments=\xC9t\xE9\r\n"));
    EXPECT_EQ(Output({u"describe"_s, u"gen"_s, u"My.Mod.big"_s, u"--name=-x"_s}), QByteArray());
    EXPECT_EQ(Record(u"My.Mod.ini"_s), QByteArray("[Mod]\r\nName=-x\r\nComments=\xC9t\xE9\r\n"));
}

TEST_F(ModCommands, DescribeRefusesWhatCanNotBeWritten) {
    EXPECT_TRUE(Failure({u"describe"_s, u"gen"_s, u"Mine.big"_s, u"--name"_s, u"x"_s}).contains("Mine.big"));
    EXPECT_FALSE(Files::FileExists(Game[0].InstallPath + u"Mine.ini"_s));
    Install(u"Mine.big"_s);
    EXPECT_TRUE(Failure({u"describe"_s, u"gen"_s, u"Mine.big"_s}, 2).contains("--comments"));
    EXPECT_TRUE(Failure({u"describe"_s, u"gen"_s, u"Mine.big"_s, u"--name"_s, u"a\n[Other]"_s}).contains("Mine.ini"));
    EXPECT_FALSE(Files::FileExists(Game[0].InstallPath + u"Mine.ini"_s));
    Files::MakeFolders(Game[0].InstallPath + u"Mine.ini"_s);
    EXPECT_TRUE(Failure({u"describe"_s, u"gen"_s, u"Mine.big"_s, u"--name"_s, u"x"_s}).contains("Mine.ini"));
}

TEST_F(ModCommands, DescribeTellsOfALetterThatTheCodePageLacks) {
    Install(u"Mine.big"_s);
    const Outcome outcome =
        RunCommand({u"mods"_s, u"describe"_s, u"gen"_s, u"Mine.big"_s, u"--name"_s, u"\u0413\u043E"_s});
    EXPECT_EQ(outcome.Code, 0);
    EXPECT_EQ(outcome.Error, QByteArray("a letter becomes '?'\t--name\n"));
    EXPECT_EQ(Record(u"Mine.ini"_s), QByteArray("[Mod]\r\nName=?\?\r\n"));
}
