// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Games that were installed in Wine prefixes.

#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Prefixes : public testing::Test {
protected:
    World world_;

    /// A prefix with one game below drive C and a user of its own.
    void MakePrefix(const QString& name, const QByteArray& gameKey, const QByteArray& user) {
        world_.WriteFile(name + u"\\system.reg"_s, "WINE REGISTRY Version 2\n;; All keys relative to \\\\Machine\n\n"
                                                   "[Software\\\\Wow6432Node\\\\Electronic Arts\\\\EA Games\\\\" +
                                                       gameKey +
                                                       "] 1700000000\n\"InstallPath\"=\"C:\\\\Games\\\\\"\n"
                                                       "\"UserDataLeafName\"=\"Leaf of " +
                                                       user + "\"\n");
        world_.WriteFile(
            name + u"\\user.reg"_s,
            "WINE REGISTRY Version 2\n;; All keys relative to \\\\User\\\\S-1-5-21-0-0-0-1000\n\n"
            "[Software\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\Explorer\\\\Shell Folders] 1700000000\n"
            "\"Personal\"=\"C:\\\\users\\\\" +
                user + "\\\\Documents\"\n");
        Files::MakeFolders(world_.Root() + u'\\' + name + u"\\drive_c\\users\\"_s + QString::fromLatin1(user) +
                           u"\\Documents"_s);
    }

    QString NativeOf(const QString& path) const { return Paths::ToNative(world_.Root() + u'\\' + path); }

    void UsePrefixes(const QStringList& names) {
        QStringList folders;
        for (const QString& name : names)
            folders.append(NativeOf(name));
        qputenv("BRINDOCK_WINE_PREFIXES", folders.join(u':').toUtf8());
        world_.Start();
    }
};

} // namespace

TEST_F(Prefixes, AGameOfAPrefixIsFoundAndItsPathsLeadThere) {
    MakePrefix(u"one"_s, "Generals", "ann");
    UsePrefixes({u"one"_s});
    EXPECT_EQ(Game[0].InstallPath, u"C:\\Games\\"_s);
    EXPECT_EQ(Game[0].ReplayPath, u"C:\\users\\ann\\Documents\\Command and Conquer Generals Data\\Replays\\"_s);
    EXPECT_EQ(Paths::ToNative(Game[0].ReplayPath),
              NativeOf(u"one"_s) + u"/drive_c/users/ann/Documents/Command and Conquer Generals Data/Replays/"_s);
    EXPECT_EQ(mMain::InstallPathFoundIn(0).contains(NativeOf(u"one"_s)), true);
}

TEST_F(Prefixes, TheUserFoldersComeFromTheGamesOwnPrefix) {
    MakePrefix(u"one"_s, "Generals", "ann");
    MakePrefix(u"two"_s, "Command and Conquer Generals Zero Hour", "bob");
    UsePrefixes({u"one"_s, u"two"_s});
    EXPECT_EQ(Game[0].MapPath, u"C:\\users\\ann\\Documents\\Command and Conquer Generals Data\\Maps\\"_s);
    EXPECT_EQ(Game[1].MapPath, u"C:\\users\\bob\\Documents\\Leaf of bob\\Maps\\"_s);
    EXPECT_TRUE(Paths::ToNative(Game[0].MapPath).startsWith(NativeOf(u"one"_s) + u"/drive_c/users/ann/"_s));
    EXPECT_TRUE(Paths::ToNative(Game[1].MapPath).startsWith(NativeOf(u"two"_s) + u"/drive_c/users/bob/"_s));
}

TEST_F(Prefixes, UserFoldersAreMadeInTheGamesOwnPrefix) {
    MakePrefix(u"one"_s, "Generals", "ann");
    MakePrefix(u"two"_s, "Command and Conquer Generals Zero Hour", "bob");
    UsePrefixes({u"one"_s, u"two"_s});
    mMain::MakeUserFolders();
    const QString below = u"\\drive_c\\users\\"_s;
    EXPECT_TRUE(Files::FolderExists(world_.Root() + u"\\one"_s + below +
                                    u"ann\\Documents\\Command and Conquer Generals Data\\Replays"_s));
    EXPECT_TRUE(Files::FolderExists(world_.Root() + u"\\two"_s + below + u"bob\\Documents\\Leaf of bob\\Maps"_s));
}

TEST_F(Prefixes, TheSuitesOwnRegistryComesFirst) {
    MakePrefix(u"one"_s, "Generals", "ann");
    world_.InstallGame(0);
    UsePrefixes({u"one"_s});
    EXPECT_EQ(Game[0].InstallPath, world_.Root() + u"\\games\\Generals\\"_s);
    EXPECT_EQ(Game[0].MapPath, world_.Root() + u"\\user\\Documents\\Command and Conquer Generals Data\\Maps\\"_s);
}

TEST_F(Prefixes, APrefixThatIsNoneAnymoreIsForgotten) {
    MakePrefix(u"one"_s, "Generals", "ann");
    UsePrefixes({u"one"_s});
    UsePrefixes({});
    EXPECT_EQ(Game[0].InstallPath, QString());
    EXPECT_FALSE(Paths::ToNative(u"C:\\Games"_s).startsWith(NativeOf(u"one"_s)));
}
