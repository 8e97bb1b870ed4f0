// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Shell maps and links: nothing that a link leads to is written or deleted.
#include "personal/lists/ShellMapList.h"
#include "tests/personal/shellmap_support.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using mShellMaps::ActivateShellMap;
using mShellMaps::RemoveShellMap;

namespace {

class ShellMapLinks : public ShellMapTest {
protected:
    ShellMapLinks() { Write(Outside(u"secret.txt"_s), "secret"); }

    [[nodiscard]] QString Outside(const QString& name = {}) const {
        return world_.Root() + u"\\outside"_s + (name.isEmpty() ? QString() : u'\\' + name);
    }

    /// What is outside, in order: nothing may change there.
    [[nodiscard]] QStringList FilesOutside() const {
        QStringList names = Files::ListFolder(Outside() + u'\\', true);
        NameOrder::Sort(names);
        return names;
    }

    static QByteArray Native(const QString& path) { return Paths::EncodeNative(Paths::ToNativeAsGiven(path)); }

    static void Link(const QString& at, const QString& target) {
        ASSERT_EQ(::symlink(Native(target).constData(), Native(at).constData()), 0);
    }
};

} // namespace

TEST_F(ShellMapLinks, APlaceThatIsALinkBecomesAFolder) {
    Store(1);
    for (const QString& target : {Outside(), Outside(u"nothing"_s)}) {
        Link(Folder(u"ShellMap1"_s), target);
        SetMode(u"Load001"_s);
        ActivateShellMap(0);
        EXPECT_FALSE(Files::IsLink(Folder(u"ShellMap1"_s)));
        EXPECT_EQ(FilesIn(u"ShellMap1"_s), (QStringList{u"QvInfos.ini"_s, u"shellmap1.map"_s}));
        EXPECT_EQ(FilesOutside(), QStringList{u"secret.txt"_s});
        Files::DeleteFolder(Folder(u"ShellMap1"_s));
    }
}

TEST_F(ShellMapLinks, APlaceThatIsALinkIntoTheStoreDoesNotEmptyTheStore) {
    Store(1);
    Link(Folder(u"ShellMap1"_s), Folder(u"QvShellMap001"_s));
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"QvShellMap001"_s), (QStringList{u"QvInfos.ini"_s, u"shellmap1.map"_s}));
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), FilesIn(u"QvShellMap001"_s));
}

TEST_F(ShellMapLinks, WithAnEmptyModeOnlyTheLinkGoes) {
    Store(1, 1);
    Link(Folder(u"ShellMapMD"_s, 1), Outside());
    ActivateShellMap(1);
    EXPECT_EQ(InMaps(1), QStringList{Name(1)});
    EXPECT_EQ(FilesOutside(), QStringList{u"secret.txt"_s});
}

TEST_F(ShellMapLinks, ForZeroHourALinkInThePlaceBecomesAnEmptyFolder) {
    Store(1, 1);
    Link(Folder(u"ShellMapMD"_s, 1), Outside());
    SetMode(u"Load001"_s, 1);
    ActivateShellMap(1);
    EXPECT_EQ(FilesIn(u"ShellMapMD"_s, 1), QStringList());
    EXPECT_FALSE(Files::IsLink(Folder(u"ShellMapMD"_s, 1)));
    EXPECT_EQ(FilesOutside(), QStringList{u"secret.txt"_s});
}

TEST_F(ShellMapLinks, WhatLeadsOutOfTheGamesFolderIsNotCopied) {
    Store(1);
    Link(Folder(u"QvShellMap001\\out.txt"_s), Outside(u"secret.txt"_s));
    Link(Folder(u"QvShellMap001\\nowhere.txt"_s), Outside(u"nothing"_s));
    Link(Folder(u"QvShellMap001\\inside.map"_s), Folder(u"QvShellMap001\\shellmap1.map"_s));
    ASSERT_EQ(::mkfifo(Native(Folder(u"QvShellMap001\\pipe"_s)).constData(), 0600), 0);
    Link(Folder(u"QvShellMap002"_s), Outside());
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), (QStringList{u"inside.map"_s, u"QvInfos.ini"_s, u"shellmap1.map"_s}));
    SetMode(u"Load002"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList());
    EXPECT_EQ(FilesOutside(), QStringList{u"secret.txt"_s});
}

TEST_F(ShellMapLinks, LinksInThePlaceGoAndNotWhatTheyLeadTo) {
    Store(1);
    Files::MakeFolders(Folder(u"ShellMap1"_s));
    Link(Folder(u"ShellMap1\\shellmap1.map"_s), Outside(u"secret.txt"_s));
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    EXPECT_EQ(World::ReadFile(Outside(u"secret.txt"_s)), QByteArray("secret"));
    EXPECT_EQ(Bytes(u"ShellMap1\\shellmap1.map"_s), QByteArray("1"));
}

TEST_F(ShellMapLinks, AMapsFolderThatLeadsOutIsLeftAlone) {
    Write(Outside(u"QvShellMap001\\shellmap1.map"_s));
    Write(Outside(u"ShellMap1\\mine.map"_s));
    Link(Folder({}).chopped(1), Outside());
    for (const QString& mode : {QString(), u"Load001"_s, u"Random"_s}) {
        SetMode(mode);
        ActivateShellMap(0);
        EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList{u"mine.map"_s});
    }
    RemoveShellMap(1, 0);
    EXPECT_EQ(FilesIn(Name(1)), QStringList{u"shellmap1.map"_s});
}

TEST_F(ShellMapLinks, AGamesFolderThatIsItselfALinkIsTheGamesFolder) {
    Store(1);
    Link(world_.Root() + u"\\way"_s, EntryOf(0).InstallPath);
    Game[0].InstallPath = world_.Root() + u"\\way\\"_s;
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    EXPECT_EQ(Bytes(u"ShellMap1\\shellmap1.map"_s), QByteArray("1"));
}

TEST_F(ShellMapLinks, TwoPlacesThatDifferInCaseOnlyAreTheOneThatTheGameAsksFor) {
    Store(1);
    Write(Folder(u"ShellMap1\\old.map"_s));
    ASSERT_EQ(::mkdir(Native(Folder(u"shellmap1"_s)).constData(), 0700), 0);
    Write(Folder(u"shellmap1\\other.map"_s));
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), (QStringList{u"QvInfos.ini"_s, u"shellmap1.map"_s}));
    EXPECT_EQ(FilesIn(u"shellmap1"_s), QStringList{u"other.map"_s});
}

TEST_F(ShellMapLinks, OfARemovedShellMapThatIsALinkTheLinkGoes) {
    Store(1);
    Link(Folder(u"QvShellMap002"_s), Outside());
    RemoveShellMap(2, 0);
    EXPECT_EQ(InMaps(), QStringList{Name(1)});
    Link(Folder(u"QvShellMap002"_s), Outside());
    Store(3);
    RemoveShellMap(2, 0);
    EXPECT_EQ(InMaps(), (QStringList{Name(1), Name(2)}));
    EXPECT_EQ(Bytes(u"QvShellMap002\\shellmap1.map"_s), QByteArray("3"));
    EXPECT_EQ(FilesOutside(), QStringList{u"secret.txt"_s});
}

TEST_F(ShellMapLinks, AStoredMapThatIsALinkMovesDownAsFilesAndNothingBehindItChanges) {
    Store(1);
    Link(Folder(u"QvShellMap002"_s), Outside());
    Store(3);
    RemoveShellMap(1, 0);
    EXPECT_EQ(FilesIn(Name(1)), QStringList{u"secret.txt"_s});
    EXPECT_EQ(Bytes(u"QvShellMap002\\shellmap1.map"_s), QByteArray("3"));
    EXPECT_EQ(InMaps(), (QStringList{Name(1), Name(2)}));
    EXPECT_EQ(FilesOutside(), QStringList{u"secret.txt"_s});
    EXPECT_EQ(World::ReadFile(Outside(u"secret.txt"_s)), QByteArray("secret"));
}

TEST_F(ShellMapLinks, TheHighestThatIsALinkGoesAsALink) {
    Store(1);
    Link(Folder(u"QvShellMap002"_s), Outside());
    RemoveShellMap(1, 0);
    EXPECT_EQ(InMaps(), QStringList{Name(1)});
    EXPECT_EQ(FilesIn(Name(1)), QStringList{u"secret.txt"_s});
    EXPECT_EQ(FilesOutside(), QStringList{u"secret.txt"_s});
}

TEST_F(ShellMapLinks, AFileThatIsALinkIsNotWrittenThroughWhenAnotherMovesOverIt) {
    Store(1);
    Store(2);
    Store(3);
    Files::DeleteForced(Folder(u"QvShellMap002\\shellmap1.map"_s));
    Link(Folder(u"QvShellMap002\\shellmap1.map"_s), Outside(u"secret.txt"_s));
    RemoveShellMap(1, 0);
    EXPECT_EQ(World::ReadFile(Outside(u"secret.txt"_s)), QByteArray("secret"));
    EXPECT_EQ(Bytes(u"QvShellMap001\\shellmap1.map"_s), QByteArray("secret"));
    EXPECT_EQ(Bytes(u"QvShellMap002\\shellmap1.map"_s), QByteArray("3"));
}

TEST_F(ShellMapLinks, OfTwoFoldersThatDifferInCaseOnlyTheOtherIsNotDeleted) {
    Store(1);
    const QString other = Folder(u"qvshellmap001"_s);
    ASSERT_EQ(::mkdir(Native(other).constData(), 0700), 0);
    ShellMapList list;
    ASSERT_EQ(ListGame(list, 0), 2);
    list.Select(static_cast<int>(Keys(list).indexOf(other)));
    bool done = true;
    list.Delete(done);
    EXPECT_FALSE(done);
    EXPECT_EQ(FilesIn(Name(1)), (QStringList{u"QvInfos.ini"_s, u"shellmap1.map"_s}));
}
