// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

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

TEST(GamesInPrefixes, GamesAsJSONTellsThePrefixAndWhatRunsAGameThere) {
    const World world;
    world.InstallGame(0);
    world.WriteFile(u"prefix\\system.reg"_s,
                    "WINE REGISTRY Version 2\n\n[Software\\\\Electronic Arts\\\\EA Games\\\\Command and Conquer "
                    "Generals Zero Hour] 1\n\"InstallPath\"=\"C:\\\\Games\\\\\"\n");
    const QByteArray prefix = Paths::EncodeNative(Paths::ToNative(world.Root() + u"\\prefix"_s));
    world.WriteFile(u"prefix\\drive_c\\Games\\generals.exe"_s, "MZ");
    qputenv("BRINDOCK_WINE_PREFIXES", prefix);
    const auto games = [&] { return QJsonDocument::fromJson(RunCommand({u"games"_s, u"--json"_s}).Output).array(); };
    EXPECT_EQ(games()[0].toObject()[u"winePrefix"_s].toString(), QString());
    EXPECT_EQ(games()[0].toObject()[u"runner"_s].toString(), u"wine"_s);
    const QJsonObject zeroHour = games()[1].toObject();
    EXPECT_EQ(zeroHour[u"winePrefix"_s].toString().toUtf8(), prefix);
    EXPECT_EQ(zeroHour[u"InstallPath"_s].toString().toUtf8(), prefix + "/drive_c/Games/");
    EXPECT_EQ(zeroHour[u"runner"_s].toString(), u"wine"_s);
    EXPECT_EQ(games()[2].toObject()[u"runner"_s].toString(), QString());
    qputenv("BRINDOCK_WINE", "/opt/wine/bin/wine");
    EXPECT_EQ(games()[1].toObject()[u"runner"_s].toString(), u"/opt/wine/bin/wine"_s);
    qunsetenv("BRINDOCK_WINE");
}

TEST(GamesInPrefixes, AModIsListedAndInstalledInItsGamesPrefixAlthoughAnotherHasTheSamePath) {
    const World world;
    const auto make = [&](const QString& name, const QByteArray& game) {
        world.WriteFile(name + u"\\system.reg"_s,
                        "WINE REGISTRY Version 2\n\n[Software\\\\Electronic Arts\\\\EA Games\\\\" + game +
                            "] 1\n\"InstallPath\"=\"C:\\\\Games\\\\\"\n");
        world.WriteFile(name + u"\\drive_c\\Games\\generals.exe"_s, "MZ");
        world.WriteFile(name + u"\\drive_c\\Games\\mod of "_s + name + u".big"_s, "BIGF");
        return Paths::EncodeNative(Paths::ToNative(world.Root() + u'\\' + name));
    };
    const QByteArray one = make(u"one"_s, "Generals");
    const QByteArray two = make(u"two"_s, "Command and Conquer Generals Zero Hour");
    qputenv("BRINDOCK_WINE_PREFIXES", one + ':' + two);
    const QByteArray listed = RunCommand({u"mods"_s, u"list"_s, u"zh"_s}).Output;
    EXPECT_TRUE(listed.contains("mod of two.big")) << listed.constData();
    EXPECT_FALSE(listed.contains("mod of one.big")) << listed.constData();
    const QString mod = world.WriteFile(u"new mod.big"_s, "BIGF");
    const Outcome installed = RunCommand({u"install"_s, Paths::ToNative(mod), u"--game"_s, u"zh"_s, u"--all"_s});
    EXPECT_EQ(installed.Code, 0) << installed.Error.constData();
    EXPECT_EQ(World::ReadFile(world.Root() + u"\\two\\drive_c\\Games\\new mod.big"_s), "BIGF");
    EXPECT_FALSE(Files::FileExists(world.Root() + u"\\one\\drive_c\\Games\\new mod.big"_s));
}
