// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Games that were installed in Wine prefixes.

#include "core/GameFiles.h"
#include "core/mLaunch.h"
#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Prefixes : public testing::Test {
protected:
    World world_;

    /// A prefix with one game below drive C and a user of its own.
    void MakePrefix(const QString& name, const QByteArray& gameKey, const QByteArray& user,
                    const QByteArray& path = "C:\\\\Games\\\\") {
        world_.WriteFile(name + u"\\system.reg"_s, "WINE REGISTRY Version 2\n;; All keys relative to \\\\Machine\n\n"
                                                   "[Software\\\\Wow6432Node\\\\Electronic Arts\\\\EA Games\\\\" +
                                                       gameKey + "] 1700000000\n\"InstallPath\"=\"" + path +
                                                       "\"\n"
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

    /// What a launch runs through Wine: the prefix, and the program.
    QString StartedBy(GameIndex game) {
        const QString record = NativeOf(u"record"_s);
        QFile::remove(record);
        qputenv("RECORD", record.toUtf8());
        world_.WriteFile(u"bin\\wine"_s,
                         "#!/bin/sh\nprintf '%s|%s' \"$WINEPREFIX\" \"$1\" > \"$RECORD.part\"\nmv \"$RECORD.part\" "
                         "\"$RECORD\"\n");
        mLaunch::LaunchGame(game);
        QElapsedTimer waited;
        waited.start();
        while (!QFile::exists(record) && waited.elapsed() < 10000)
            QThread::msleep(5);
        return QString::fromUtf8(World::ReadFile(world_.Root() + u"\\record"_s));
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

TEST_F(Prefixes, TwoPrefixesWithTheSamePathKeepTheirGamesApart) {
    MakePrefix(u"one"_s, "Generals", "ann");
    MakePrefix(u"two"_s, "Command and Conquer Generals Zero Hour", "ann");
    world_.WriteFile(u"one\\drive_c\\Games\\of one.big"_s, {});
    world_.WriteFile(u"two\\drive_c\\Games\\of two.big"_s, {});
    world_.WriteFile(u"two\\drive_c\\Games\\Maps\\QvShellMap007\\x"_s, {});
    UsePrefixes({u"one"_s, u"two"_s});
    EXPECT_EQ(Game[0].InstallPath, Game[1].InstallPath);
    EXPECT_EQ(Game[0].Prefix, NativeOf(u"one"_s));
    EXPECT_EQ(Game[1].Prefix, NativeOf(u"two"_s));
    EXPECT_EQ(GameFiles::Mods(0), QStringList{u"of one.big"_s});
    EXPECT_EQ(GameFiles::Mods(1), QStringList{u"of two.big"_s});
    EXPECT_EQ(GameFiles::ShellMaps(0), QStringList());
    EXPECT_EQ(GameFiles::ShellMaps(1), QStringList{u"QvShellMap007"_s});
    EXPECT_EQ(Paths::ToNative(Game[1].MapFolder()),
              NativeOf(u"two"_s) + u"/drive_c/users/ann/Documents/Leaf of ann/Maps/"_s);
}

TEST_F(Prefixes, EachOfTwoGamesWithTheSamePathIsStartedInItsOwnPrefix) {
    MakePrefix(u"one"_s, "Generals", "ann");
    MakePrefix(u"two"_s, "Command and Conquer Generals Zero Hour", "bob");
    world_.WriteFile(u"one\\drive_c\\Games\\Generals.exe"_s, {});
    world_.WriteFile(u"two\\drive_c\\Games\\generals.exe"_s, {});
    UsePrefixes({u"one"_s, u"two"_s});
    EXPECT_EQ(StartedBy(0), NativeOf(u"one"_s) + u"|"_s + NativeOf(u"one"_s) + u"/drive_c/Games/Generals.exe"_s);
    EXPECT_EQ(StartedBy(1), NativeOf(u"two"_s) + u"|"_s + NativeOf(u"two"_s) + u"/drive_c/Games/generals.exe"_s);
    EXPECT_EQ(mLaunch::LaunchCommand(1), u"\"C:\\Games\\generals.exe\" "_s);
}

TEST_F(Prefixes, AGameInAFolderOfAnyLettersIsFoundAndStarted) {
    const std::vector<std::pair<QByteArray, QString>> folders{
        {"\\x0418\\x0433\\x0440\\x044b", u"\u0418\u0433\u0440\u044B"_s}, {"\\x6e38\\x620f", u"\u6E38\u620F"_s}};
    for (const auto& [written, folder] : folders) {
        MakePrefix(u"one"_s, "Generals", "ann", "C:\\\\" + written + "\\\\Generals\\\\");
        world_.WriteFile(u"one\\drive_c\\"_s + folder + u"\\Generals\\generals.exe"_s, {});
        UsePrefixes({u"one"_s});
        EXPECT_EQ(Game[0].InstallPath, u"C:\\"_s + folder + u"\\Generals\\"_s);
        EXPECT_EQ(StartedBy(0), NativeOf(u"one"_s) + u"|"_s + NativeOf(u"one"_s) + u"/drive_c/"_s + folder +
                                    u"/Generals/generals.exe"_s);
    }
}

TEST_F(Prefixes, AnEntryWithoutItsGameDoesNotHideTheGameOfAnotherPrefix) {
    MakePrefix(u"empty"_s, "Generals", "ann", "");
    MakePrefix(u"dead"_s, "Generals", "ann");
    MakePrefix(u"left"_s, "Generals", "ann");
    MakePrefix(u"live"_s, "Generals", "bob");
    world_.WriteFile(u"left\\drive_c\\Games\\a mod.big"_s, {});
    UsePrefixes({u"empty"_s, u"dead"_s});
    EXPECT_EQ(Game[0].FoundIn, NativeOf(u"dead"_s)) << "With no better one the path stands as it is.";
    UsePrefixes({u"empty"_s, u"dead"_s, u"left"_s, u"live"_s});
    EXPECT_EQ(Game[0].FoundIn, NativeOf(u"left"_s));
    world_.WriteFile(u"live\\drive_c\\Games\\generals.exe"_s, {});
    UsePrefixes({u"empty"_s, u"dead"_s, u"left"_s, u"live"_s});
    EXPECT_EQ(mMain::InstallPathFoundIn(0), NativeOf(u"live"_s));
    EXPECT_EQ(Game[0].Prefix, NativeOf(u"live"_s));
    EXPECT_TRUE(Game[0].MapPath.startsWith(u"C:\\users\\bob\\"_s)) << "The user's folders are that prefix's.";
}

TEST_F(Prefixes, AGameWhosePathLeadsIntoAnotherPrefixRunsThere) {
    MakePrefix(u"one"_s, "Generals", "ann",
               "Z:" + NativeOf(u"two"_s).replace(u"/"_s, u"\\\\"_s).toUtf8() + "\\\\drive_c\\\\Games\\\\");
    MakePrefix(u"two"_s, "Command and Conquer Generals Zero Hour", "bob");
    world_.WriteFile(u"two\\drive_c\\Games\\generals.exe"_s, {});
    UsePrefixes({u"one"_s, u"two"_s});
    EXPECT_EQ(Game[0].FoundIn, NativeOf(u"one"_s));
    EXPECT_EQ(Game[0].Prefix, NativeOf(u"two"_s));
    EXPECT_TRUE(Game[0].MapPath.startsWith(u"C:\\users\\bob\\"_s));
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
