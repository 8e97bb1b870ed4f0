// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Maps and mods whose names are links, hold what would be a pattern, or are no text.
#include "personal/lists/MapList.h"
#include "personal/lists/ModList.h"
#include "tests/personal/lists_support.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class ListLinks : public ListTest {
protected:
    static QByteArray Native(const QString& path) { return Paths::EncodeNative(Paths::ToNativeAsGiven(path)); }

    static void Link(const QString& at, const QString& target) {
        ASSERT_EQ(::symlink(Native(target).constData(), Native(at).constData()), 0);
    }

    static bool DeleteFirst(GameList& list) {
        ListGame(list, 0);
        list.Select(0);
        bool done = false;
        list.Delete(done);
        return done;
    }
};

} // namespace

TEST_F(ListLinks, OfAMapFolderThatIsALinkTheLinkGoesAndNotWhatItLeadsTo) {
    const QString outside = Write(world_.Root() + u"\\outside\\Alpine.map"_s);
    Link(Game[0].MapPath + u"Alpine"_s, world_.Root() + u"\\outside"_s);
    MapList list;
    EXPECT_TRUE(DeleteFirst(list));
    EXPECT_EQ(Texts(list), QStringList{u"Alpine"_s});
    EXPECT_FALSE(Files::IsLink(Game[0].MapPath + u"Alpine"_s));
    EXPECT_TRUE(Files::FileExists(outside));
}

TEST_F(ListLinks, OfLinksInAMapFolderTheLinksGo) {
    const QString outside = Write(world_.Root() + u"\\outside\\file"_s);
    const QString folder = PutMap(u"Alpine"_s);
    Link(folder + u"\\Alpine.tga"_s, outside);
    Link(folder + u"\\nowhere"_s, world_.Root() + u"\\nothing"_s);
    MapList list;
    EXPECT_TRUE(DeleteFirst(list));
    EXPECT_TRUE(Files::FileExists(outside));
    PutMap(u"Alpine"_s);
    Link(folder + u"\\sub"_s, world_.Root() + u"\\outside"_s);
    EXPECT_FALSE(DeleteFirst(list)) << "a link to a folder is a subfolder";
    EXPECT_TRUE(Files::FileExists(outside));
}

TEST_F(ListLinks, OfAModThatIsALinkTheLinkGoes) {
    const QString outside = Write(world_.Root() + u"\\outside\\a.big"_s);
    Link(Game[0].InstallPath + u"a.big"_s, outside);
    ModList list;
    EXPECT_TRUE(DeleteFirst(list));
    EXPECT_TRUE(Files::FileExists(outside));
}

TEST_F(ListLinks, ANameThatWouldBeAPatternIsANameOnly) {
    Install(u"*.big"_s);
    Install(u"INI.big"_s);
    Install(u"b.big"_s);
    ModList mods;
    EXPECT_TRUE(DeleteFirst(mods));
    EXPECT_EQ(Files::ListFolder(Game[0].InstallPath + u"*"_s).size(), 2);
    PutMap(u"*"_s);
    PutMap(u"b"_s);
    MapList maps;
    EXPECT_TRUE(DeleteFirst(maps));
    EXPECT_EQ(ListGame(maps, 0), 1);
}

TEST_F(ListLinks, NamesInOtherCodePagesAndWithBackslashesAreListedAndDeleted) {
    for (const QByteArray& name : {QByteArray("\xCA\xE0\xF0\xF2\xE0"), QByteArray("a\\b")}) {
        const QByteArray folder = Native(Game[0].MapPath) + name;
        ASSERT_EQ(::mkdir(folder.constData(), 0700), 0);
        const int file = ::creat((folder + '/' + name + ".map").constData(), 0600);
        ASSERT_GE(file, 0);
        ::close(file);
        MapList list;
        EXPECT_TRUE(DeleteFirst(list)) << name.toPercentEncoding().constData();
        EXPECT_EQ(ListGame(list, 0), 0);
        EXPECT_NE(::access(folder.constData(), F_OK), 0);
    }
}

TEST_F(ListLinks, APipeInThePlaceOfARecordHoldsNobodyUp) {
    Install(u"a.big"_s);
    ASSERT_EQ(::mkfifo(Native(Game[0].InstallPath + u"a.ini"_s).constData(), 0600), 0);
    ModList list;
    EXPECT_EQ(ListGame(list, 0), 1);
    EXPECT_EQ(Texts(list, ModList::Name), QStringList{QString()});
}
