// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Settings.h"
#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/cli/Command.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

class GameCommands : public testing::Test {
protected:
    World world_;

    /// Runs a command that must succeed without a word on standard error.
    QByteArray Output(const QStringList& arguments) {
        const Outcome outcome = RunCommand(arguments);
        EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
        EXPECT_EQ(outcome.Error, QByteArray());
        return outcome.Output;
    }
};

QByteArray Native(const QString& path) {
    return Paths::EncodeNative(Paths::ToNative(path));
}

} // namespace

TEST_F(GameCommands, GamesListsEachGameInSevenColumns) {
    world_.InstallGame(1);
    world_.Start();
    const QList<QByteArray> lines = Output({u"games"_s}).split('\n');
    ASSERT_EQ(lines.size(), 5);
    EXPECT_EQ(lines.last(), QByteArray());
    EXPECT_EQ(lines[0].split('\t').size(), 7);
    EXPECT_TRUE(lines[0].startsWith("0\tGen\tno\t\t"));
    EXPECT_TRUE(lines[2].startsWith("2\tBFME\tno\t\t"));
    const QList<QByteArray> zeroHour = lines[1].split('\t');
    ASSERT_EQ(zeroHour.size(), 7);
    EXPECT_EQ(zeroHour.first(3).join(' '), QByteArray("1 ZH yes"));
    EXPECT_EQ(zeroHour[3], Native(Game[1].InstallPath));
    EXPECT_EQ(zeroHour[4], Native(Game[1].ReplayPath));
    EXPECT_EQ(zeroHour[5], Native(Game[1].MapPath));
    EXPECT_EQ(zeroHour[6], Native(world_.Root() + u"\\registry.reg"_s));
}

TEST_F(GameCommands, GamesMakesNoFolders) {
    world_.InstallGame(0);
    world_.Start();
    Output({u"games"_s});
    EXPECT_FALSE(Files::FolderExists(Game[0].ReplayPath));
}

TEST_F(GameCommands, GamesAsJSONHoldsTheSame) {
    world_.InstallGame(3);
    world_.Start();
    const QJsonArray games = QJsonDocument::fromJson(Output({u"games"_s, u"--json"_s})).array();
    ASSERT_EQ(games.size(), 4);
    const QJsonObject last = games[3].toObject();
    EXPECT_EQ(last[u"index"_s].toInt(), 3);
    EXPECT_EQ(last[u"prefix"_s].toString(), u"BFME2"_s);
    EXPECT_TRUE(last[u"installed"_s].toBool());
    EXPECT_EQ(last[u"InstallPath"_s].toString(), Paths::ToNative(Game[3].InstallPath));
    EXPECT_EQ(last[u"ReplayPath"_s].toString(), Paths::ToNative(Game[3].ReplayPath));
    EXPECT_EQ(last[u"MapPath"_s].toString(), Paths::ToNative(Game[3].MapPath));
    EXPECT_EQ(last[u"foundIn"_s].toString(), Paths::ToNative(world_.Root() + u"\\registry.reg"_s));
    EXPECT_FALSE(games[0].toObject()[u"installed"_s].toBool());
}

TEST_F(GameCommands, LaunchCommandPrintsTheTextAndItsLastBlank) {
    world_.InstallGame(2);
    world_.Start();
    EXPECT_EQ(Output({u"launch-command"_s, u"bfme"_s}), '"' + Game[2].InstallPath.toUtf8() + "lotrbfme.exe\" \n");
    WriteSetting(u"BFMEStartupOptions"_s, u" -noaudio"_s);
    WriteSetting(u"BFMELoadMod"_s, u"Mod.big"_s);
    EXPECT_EQ(Output({u"launch-command"_s, u"bfme"_s}),
              '"' + Game[2].InstallPath.toUtf8() + "lotrbfme.exe\"  -noaudio -mod Mod.big\n");
    EXPECT_EQ(Output({u"launch-command"_s, u"gen"_s}), QByteArray("\"generals.exe\" \n"));
    EXPECT_EQ(Output({u"launch-command"_s, u"zh"_s}), QByteArray("\"generals.exe\" \n"));
    EXPECT_EQ(Output({u"launch-command"_s, u"bfme2"_s}), QByteArray("\"lotrbfme2.exe\" \n"));
}

TEST_F(GameCommands, TextPrintsUtf8AndPlainLineEnds) {
    world_.UseLanguage("[LNG]\r\nA=\xC9t\xE9\\n\x80\r\n");
    EXPECT_EQ(Output({u"text"_s, u"A"_s}), QByteArray("\xC3\x89t\xC3\xA9\n\xE2\x82\xAC\n"));
    EXPECT_EQ(Output({u"text"_s, u"Missing"_s}), QByteArray("Missing\n"));
}

TEST_F(GameCommands, ASettingThatWasSetIsGot) {
    EXPECT_EQ(Output({u"setting"_s, u"get"_s, u"GenLoadMod"_s}), QByteArray("\n"));
    EXPECT_EQ(Output({u"setting"_s, u"set"_s, u"GenLoadMod"_s, u"Été.big"_s}), QByteArray());
    EXPECT_EQ(Output({u"setting"_s, u"get"_s, u"GenLoadMod"_s}), QByteArray("\xC3\x89t\xC3\xA9.big\n"));
    EXPECT_EQ(ReadSetting(u"GenLoadMod"_s), u"Été.big"_s);
}

TEST_F(GameCommands, ASettingCanBeEmptyOrBeginWithABlankOrADash) {
    for (const QString& value : {u""_s, u" -nologo -noshellmap"_s, u"-nologo"_s}) {
        Output({u"setting"_s, u"set"_s, u"--"_s, u"GenStartupOptions"_s, value});
        EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), value);
    }
    Output({u"setting"_s, u"set"_s, u"GenStartupOptions"_s, u" -quickstart"_s});
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u" -quickstart"_s);
    Output({u"setting"_s, u"set"_s, u"GenStartupOptions"_s, u""_s});
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), QString());
}

TEST_F(GameCommands, AnINIValueThatWasSetIsGot) {
    const QString file = world_.WriteFile(u"a b.ini"_s, "; kept\r\n[S]\r\nK=old\r\n");
    EXPECT_EQ(Output({u"ini"_s, u"get"_s, u"s"_s, u"k"_s, Paths::ToNative(file)}), QByteArray("old\n"));
    EXPECT_EQ(Output({u"ini"_s, u"set"_s, u"S"_s, u"K"_s, u"n\u00E9w"_s, Paths::ToNative(file)}), QByteArray());
    EXPECT_EQ(World::ReadFile(file), QByteArray("; kept\r\n[S]\r\nK=n\xE9w\r\n"));
    EXPECT_EQ(Output({u"ini"_s, u"get"_s, u"S"_s, u"K"_s, Paths::ToNative(file)}), QByteArray("n\xC3\xA9w\n"));
    EXPECT_EQ(Output({u"ini"_s, u"get"_s, u"S"_s, u"Other"_s, Paths::ToNative(file)}), QByteArray("\n"));
}

TEST_F(GameCommands, WhatWouldBecomeSomethingElseIsNotStored) {
    const QString file = world_.WriteFile(u"a.ini"_s, "[S]\r\nK=old\r\n");
    Output({u"setting"_s, u"set"_s, u"GenLoadMod"_s, u"old"_s});
    for (const QString& value : {u"Ж.big"_s, u"two\nlines"_s, u"two\rlines"_s, u"\U0001F600"_s}) {
        const Outcome setting = RunCommand({u"setting"_s, u"set"_s, u"GenLoadMod"_s, value});
        EXPECT_EQ(setting.Code, 1);
        EXPECT_TRUE(setting.Error.contains("GenLoadMod: a text holds a l")) << setting.Error.constData();
        EXPECT_EQ(ReadSetting(u"GenLoadMod"_s), u"old"_s);
        for (const QStringList& texts :
             {QStringList{value, u"K"_s, u"x"_s}, {u"S"_s, value, u"x"_s}, {u"S"_s, u"K"_s, value}}) {
            const Outcome ini =
                RunCommand(QStringList{u"ini"_s, u"set"_s} + texts + QStringList(Paths::ToNative(file)));
            EXPECT_EQ(ini.Code, 1);
            EXPECT_TRUE(ini.Error.startsWith("brindock-cli: " + Paths::ToNative(file).toUtf8() + ": a text holds"))
                << ini.Error.constData();
        }
        EXPECT_EQ(World::ReadFile(file), QByteArray("[S]\r\nK=old\r\n"));
    }
}

TEST_F(GameCommands, AnINIFileThatIsRefusedIsNamedOnOneLine) {
    const QString folder = Paths::ToNative(world_.Root());
    const Outcome outcome = RunCommand({u"ini"_s, u"set"_s, u"S"_s, u"K"_s, u"V"_s, folder});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Output, QByteArray());
    EXPECT_TRUE(outcome.Error.startsWith("brindock-cli: " + folder.toUtf8() + ": ")) << outcome.Error.constData();
    EXPECT_EQ(outcome.Error.count('\n'), 1);
}

TEST_F(GameCommands, ASettingThatCannotBeStoredFails) {
    qputenv("BRINDOCK_REGISTRY", Native(world_.Root()));
    const Outcome outcome = RunCommand({u"setting"_s, u"set"_s, u"BigView"_s, u"1"_s});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_TRUE(outcome.Error.startsWith("brindock-cli: ")) << outcome.Error.constData();
    EXPECT_EQ(outcome.Error.count('\n'), 1);
}

TEST_F(GameCommands, WrongUsageHasTheCode2) {
    const QList<QStringList> wrong{
        {u"launch-command"_s},
        {u"launch-command"_s, u"quake"_s},
        {u"launch-command"_s, u"0"_s},
        {u"launch-command"_s, u"GEN"_s},
        {u"text"_s},
        {u"text"_s, u"A"_s, u"B"_s},
        {u"setting"_s},
        {u"setting"_s, u"get"_s},
        {u"setting"_s, u"set"_s, u"BigView"_s},
        {u"ini"_s, u"get"_s, u"S"_s, u"K"_s},
        {u"ini"_s, u"set"_s, u"S"_s, u"K"_s, u"V"_s},
        {u"games"_s, u"--xml"_s},
    };
    for (const QStringList& arguments : wrong) {
        const Outcome outcome = RunCommand(arguments);
        EXPECT_EQ(outcome.Code, 2) << arguments.join(u' ').toStdString();
        EXPECT_FALSE(outcome.Error.isEmpty()) << arguments.join(u' ').toStdString();
        EXPECT_EQ(outcome.Output, QByteArray()) << arguments.join(u' ').toStdString();
    }
}

TEST_F(GameCommands, EachCommandTellsItsUse) {
    const QList<QStringList> commands{{u"games"_s},   {u"launch-command"_s},    {u"text"_s},
                                      {u"setting"_s}, {u"setting"_s, u"get"_s}, {u"setting"_s, u"set"_s},
                                      {u"ini"_s},     {u"ini"_s, u"get"_s},     {u"ini"_s, u"set"_s}};
    for (const QStringList& command : commands)
        EXPECT_TRUE(Output(command + QStringList{u"--help"_s}).contains("Usage: ")) << command.join(u' ').toStdString();
}
