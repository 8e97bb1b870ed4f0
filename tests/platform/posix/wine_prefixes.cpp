// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RegistryRuntime.h"
#include "platform/posix/WinePrefixes.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto User = RootKey::CurrentUser;
constexpr auto Machine = RootKey::LocalMachine;
const auto GameKey = u"SOFTWARE\\Electronic Arts\\EA Games\\Generals"_s;
const auto InstallPath = u"InstallPath"_s;

/// A home without anything in it, and no variable that leads elsewhere.
class WineTest : public testing::Test {
protected:
    /// A prefix whose system hive names an install path under the key.
    void MakePrefix(const QString& folder, const QByteArray& path,
                    const QByteArray& key = "Software\\\\Wow6432Node\\\\") const {
        scratch_.Write(folder + u"/system.reg"_s, "WINE REGISTRY Version 2\n\n[" + key +
                                                      "Electronic Arts\\\\EA Games\\\\Generals] 1\n\"InstallPath\"=\"" +
                                                      path + "\"\n");
    }

    /// The prefixes found, relative to the home.
    [[nodiscard]] QStringList Found() const {
        QStringList found = WinePrefixes::Find();
        for (QString& folder : found)
            folder.remove(scratch_.Native(u"x"_s).chopped(1));
        return found;
    }

    [[nodiscard]] std::string PathOfGame() const {
        return RegistryRuntime().GetString(Machine, GameKey, InstallPath).toStdString();
    }

    Scratch scratch_;
    Variable home_{"HOME", scratch_.Native(u"x"_s).chopped(2).toUtf8()};
    Variable configuration_{"XDG_CONFIG_HOME", std::nullopt};
    Variable winePrefix_{"WINEPREFIX", std::nullopt};
    Variable prefixes_{"BRINDOCK_WINE_PREFIXES", std::nullopt};
    Variable file_{"BRINDOCK_REGISTRY", scratch_.Native(u"own.reg"_s).toUtf8()};
};

} // namespace

TEST_F(WineTest, PrefixesAreFoundWhereLaunchersKeepThem) {
    const QStringList folders{u".wine"_s,
                              u".local/share/Steam/steamapps/compatdata/10/pfx"_s,
                              u"library/steamapps/compatdata/20/pfx"_s,
                              u".var/app/com.valvesoftware.Steam/.local/share/Steam/steamapps/compatdata/30/pfx"_s,
                              u"elsewhere/lutris game"_s,
                              u"Games/generals"_s,
                              u"Games/Heroic/Prefixes/one"_s,
                              u"Games/Heroic/Prefixes/default/two"_s,
                              u".local/share/bottles/bottles/three"_s,
                              u".var/app/com.usebottles.bottles/data/bottles/bottles/four"_s};
    for (const QString& folder : folders)
        MakePrefix(folder, "x");
    scratch_.Write(u".local/share/Steam/steamapps/libraryfolders.vdf"_s,
                   "\"libraryfolders\"\n{\n\t\"0\"\n\t{\n\t\t\"path\"\t\t\"" + scratch_.Native(u"library"_s).toUtf8() +
                       "\"\n\t\t\"apps\" { \"20\" \"123\" }\n\t}\n}\n");
    scratch_.Write(u".local/share/lutris/games/generals-1.yml"_s,
                   "game:\n  exe: x.exe\n  prefix: " + scratch_.Native(u"elsewhere/lutris game"_s).toUtf8() + "\n");
    EXPECT_EQ(Found(), folders);
}

TEST_F(WineTest, TheUsersWinePrefixComesFirstAndEachPrefixOnce) {
    MakePrefix(u".wine"_s, "x");
    MakePrefix(u"mine"_s, "x");
    ASSERT_TRUE(QFile::link(scratch_.Native(u".wine"_s), scratch_.Native(u"Games/again"_s)));
    const Variable named("WINEPREFIX", scratch_.Native(u"mine"_s).toUtf8());
    EXPECT_EQ(Found(), (QStringList{u"mine"_s, u".wine"_s}));
}

TEST_F(WineTest, AFolderWithoutAHiveIsNoPrefix) {
    scratch_.Write(u"Games/notes/readme.txt"_s, "x");
    EXPECT_EQ(Found(), QStringList());
}

TEST_F(WineTest, TheVariableNamesPrefixesInPlaceOfThoseFound) {
    MakePrefix(u".wine"_s, "found");
    MakePrefix(u"a"_s, "");
    MakePrefix(u"b"_s, "named");
    EXPECT_EQ(PathOfGame(), "found");
    const Variable named("BRINDOCK_WINE_PREFIXES",
                         (scratch_.Native(u"b"_s) + u":/missing:"_s + scratch_.Native(u"a"_s)).toUtf8());
    EXPECT_EQ(Found(), (QStringList{u"b"_s, u"a"_s}));
    EXPECT_EQ(PathOfGame(), "named");
    const Variable none("BRINDOCK_WINE_PREFIXES", "");
    EXPECT_EQ(PathOfGame(), "");
}

TEST_F(WineTest, The32BitViewOfTheMachineComesFirst) {
    MakePrefix(u".wine"_s, "plain", "Software\\\\");
    EXPECT_EQ(PathOfGame(), "plain");
    MakePrefix(u".wine"_s, "32", "Software\\\\Wow6432Node\\\\");
    const QByteArray both = scratch_.Read(u".wine/system.reg"_s);
    MakePrefix(u".wine"_s, "plain", "Software\\\\");
    scratch_.Write(u".wine/system.reg"_s, scratch_.Read(u".wine/system.reg"_s) + both);
    EXPECT_EQ(PathOfGame(), "32");
}

TEST_F(WineTest, UsersValuesComeFromTheUsersHive) {
    MakePrefix(u".wine"_s, "x");
    scratch_.Write(u".wine/user.reg"_s,
                   "WINE REGISTRY Version 2\n\n[Software\\\\A] 1\n\"n\"=\"caf\\xe9\"\n\"d\"=dword:00000007\n");
    const RegistryRuntime registry;
    EXPECT_EQ(registry.GetString(User, u"Software\\A"_s, u"n"_s), u"café"_s);
    EXPECT_EQ(registry.GetDword(User, u"Software\\A"_s, u"d"_s), 7U);
    EXPECT_EQ(registry.GetString(User, u"Software\\A"_s, u"d"_s), QString());
    EXPECT_EQ(registry.GetString(RootKey::Users, u"Software\\A"_s, u"n"_s), QString());
}

TEST_F(WineTest, TheOwnFileComesBeforeThePrefixes) {
    MakePrefix(u".wine"_s, "prefix");
    RegistryRuntime registry;
    EXPECT_EQ(registry.FoundIn(Machine, GameKey, InstallPath), scratch_.Native(u".wine"_s));
    EXPECT_EQ(registry.PrefixOf(Machine, GameKey, InstallPath), scratch_.Native(u".wine"_s));
    registry.SaveString(Machine, GameKey, InstallPath, u"own"_s);
    EXPECT_EQ(registry.GetString(Machine, GameKey, InstallPath), u"own"_s);
    EXPECT_EQ(registry.FoundIn(Machine, GameKey, InstallPath), scratch_.Native(u"own.reg"_s));
    EXPECT_EQ(registry.PrefixOf(Machine, GameKey, InstallPath), QString());
}

TEST_F(WineTest, AValueOfAnotherTypeInTheOwnFileHidesThePrefixes) {
    MakePrefix(u".wine"_s, "prefix");
    RegistryRuntime registry;
    registry.SaveDword(Machine, GameKey, InstallPath, 1);
    EXPECT_EQ(registry.GetString(Machine, GameKey, InstallPath), QString());
}

TEST_F(WineTest, APrefixCanBeLookedAtFirst) {
    MakePrefix(u".wine"_s, "first");
    MakePrefix(u"Games/b"_s, "second");
    MakePrefix(u"unlisted"_s, "third");
    RegistryRuntime registry;
    registry.LookFirstIn(scratch_.Native(u"Games/b"_s));
    EXPECT_EQ(registry.GetString(Machine, GameKey, InstallPath), u"second"_s);
    EXPECT_EQ(registry.PrefixOf(Machine, GameKey, InstallPath), scratch_.Native(u"Games/b"_s));
    registry.LookFirstIn(scratch_.Native(u"unlisted"_s));
    EXPECT_EQ(registry.GetString(Machine, GameKey, InstallPath), u"third"_s);
    registry.LookFirstIn({});
    EXPECT_EQ(registry.GetString(Machine, GameKey, InstallPath), u"first"_s);
}

TEST_F(WineTest, TheOwnFilesStandardPlaceIsTheConfigurationFolder) {
    const Variable unnamed("BRINDOCK_REGISTRY", std::nullopt);
    RegistryRuntime().SaveString(User, u"A"_s, u"n"_s, u"1"_s);
    EXPECT_TRUE(scratch_.Read(u".config/brindock/registry.reg"_s).endsWith("\"n\"=\"1\"\r\n"));
    const Variable configuration("XDG_CONFIG_HOME", scratch_.Native(u"conf"_s).toUtf8());
    RegistryRuntime().SaveString(User, u"A"_s, u"n"_s, u"2"_s);
    EXPECT_TRUE(scratch_.Read(u"conf/brindock/registry.reg"_s).endsWith("\"n\"=\"2\"\r\n"));
}
