// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/lists/MapList.h"

#include "tests/personal/lists_support.h"

using namespace Qt::StringLiterals;

namespace {

class Maps : public ListTest {
protected:
    /// Lists the first game and selects the row of that text.
    void Select(const QString& name) {
        ListGame(list_, 0);
        list_.Select(static_cast<int>(Texts(list_).indexOf(name)));
    }

    bool Delete(const QString& name) {
        Select(name);
        bool done = false;
        list_.DeleteMap(done);
        return done;
    }

    [[nodiscard]] static QString Folder(const QString& name) { return EntryOf(0).MapPath + name; }

    MapList list_;
};

} // namespace

TEST_F(Maps, AFolderWithAMapOfItsOwnNameIsARow) {
    PutMap(u"Alpine"_s);
    Write(Folder(u"Drafts\\Other.map"_s));
    Files::MakeFolders(Folder(u"Empty"_s));
    EXPECT_EQ(ListGame(list_, 0), 1);
    EXPECT_EQ(Texts(list_), QStringList{u"Alpine"_s});
    EXPECT_EQ(Keys(list_), QStringList{EntryOf(0).MapPath + u"Alpine"_s}) << "no backslash behind it";
    EXPECT_EQ(list_.Folder(), EntryOf(0).MapPath);
    EXPECT_EQ(list_.Listed(), 0);
    EXPECT_TRUE(list_.Rows().HasChecks());
    EXPECT_FALSE(list_.Rows().IsChecked(0));
}

TEST_F(Maps, ACaseThatDiffersIsTheSameName) {
    Write(Folder(u"Alpine\\alpine.MAP"_s));
    EXPECT_EQ(ListGame(list_, 0), 1);
    EXPECT_EQ(Texts(list_), QStringList{u"Alpine"_s});
}

TEST_F(Maps, AMapInTheFoldersRootIsNone) {
    Write(Folder(u"x.map"_s));
    Write(Folder(u"y"_s));
    EXPECT_EQ(ListGame(list_, 0), 0);
    EXPECT_EQ(CountGame(list_, 0), 0);
}

TEST_F(Maps, AFolderInTheMapsPlaceIsNone) {
    Files::MakeFolders(Folder(u"Alpine\\Alpine.map"_s));
    EXPECT_EQ(ListGame(list_, 0), 0);
}

TEST_F(Maps, AMapOfNoBytesIsOne) {
    Write(Folder(u"Bare\\Bare.map"_s), {});
    EXPECT_EQ(ListGame(list_, 0), 1);
}

TEST_F(Maps, NamesOfEveryKindAreListedByNameWithoutRegardToCase) {
    const QStringList byName{u"alpine"_s,      u"Alpine 2"_s,      u"beach"_s,
                             u"Tower.2"_s,     u"[RANK] Tower"_s,  u"_old"_s,
                             u"\u00E9toile"_s, u"\u00C9t\u00E9"_s, u"\u0413\u043E\u0440\u044B"_s};
    for (const int at : {4, 8, 1, 7, 2, 5, 3, 0, 6})
        PutMap(byName.at(at));
    ListGame(list_, 0);
    EXPECT_EQ(Texts(list_), byName);
}

TEST_F(Maps, EachGameHasItsOwn) {
    for (GameIndex game = 0; game < GameCount; ++game)
        PutMap(u"map %1"_s.arg(game), game);
    for (GameIndex game = 0; game < GameCount; ++game) {
        EXPECT_EQ(ListGame(list_, game), 1);
        EXPECT_EQ(Keys(list_), QStringList{EntryOf(game).MapPath + u"map %1"_s.arg(game)});
    }
}

TEST_F(Maps, CountingTouchesNeitherRowsNorTheStoredGame) {
    PutMap(u"a"_s, 0);
    PutMap(u"b"_s, 1);
    PutMap(u"c"_s, 1);
    ListGame(list_, 0);
    list_.Select(0);
    qint32 game = 1;
    EXPECT_EQ(list_.ListMaps(game, true), 2);
    EXPECT_EQ(Texts(list_), QStringList{u"a"_s});
    EXPECT_EQ(list_.Listed(), 0);
    EXPECT_EQ(list_.Folder(), EntryOf(0).MapPath);
    EXPECT_EQ(list_.Selected(), 0);
}

TEST_F(Maps, TheValue65536IsTheGameThatWasListedLast) {
    PutMap(u"b"_s, 1);
    ListGame(list_, 1);
    list_.Select(0);
    qint32 game = 65536;
    EXPECT_EQ(list_.ListMaps(game), 1);
    EXPECT_EQ(game, 1) << "in the caller's variable too";
    EXPECT_EQ(Texts(list_), QStringList{u"b"_s});
    EXPECT_EQ(list_.Selected(), GameList::None);
}

TEST_F(Maps, AGameThatIsNoneRaises9AndCountingKnowsNoCurrentGame) {
    for (const qint32 game : {-1, 4, 65537})
        EXPECT_EQ(NumberRaisedBy([&] { ListGame(list_, game); }), 9) << game;
    EXPECT_EQ(NumberRaisedBy([&] { CountGame(list_, 65536); }), 9);
}

TEST_F(Maps, AFolderThatIsMissingHasNone) {
    Files::DeleteFolder(EntryOf(0).MapPath);
    EXPECT_EQ(ListGame(list_, 0), 0);
    Game[0].MapPath.clear();
    EXPECT_EQ(ListGame(list_, 0), 0) << "and no path is not the current folder";
}

TEST_F(Maps, TheOneColumnIsAsWideAsTheList) {
    world_.UseLanguage("[LNG]\r\nName=Nom\r\n");
    world_.Start();
    const MapList list;
    EXPECT_EQ(Captions(list), QStringList{u"Nom"_s});
    EXPECT_EQ(list.Rows().Columns()[0].Fraction, 1);
}

TEST_F(Maps, DeletingTakesFilesAndFolderAndLeavesTheRow) {
    const QString folder = PutMap(u"Alpine"_s);
    Write(folder + u"\\Alpine.tga"_s);
    Write(folder + u"\\noext"_s);
    PutMap(u"Beach"_s);
    EXPECT_TRUE(Delete(u"Alpine"_s));
    EXPECT_FALSE(Files::FolderExists(folder));
    EXPECT_EQ(Texts(list_), (QStringList{u"Alpine"_s, u"Beach"_s})) << "the owner takes the row away";
    EXPECT_EQ(ListGame(list_, 0), 1);
}

TEST_F(Maps, ASubfolderKeepsTheFolderAndDeletingFails) {
    const QString folder = PutMap(u"Alpine"_s);
    const QString below = Write(folder + u"\\sub\\file"_s);
    EXPECT_FALSE(Delete(u"Alpine"_s));
    EXPECT_TRUE(Files::FileExists(below));
    EXPECT_FALSE(Files::FileExists(folder + u"\\Alpine.map"_s)) << "the files of the folder itself go";
}

TEST_F(Maps, AWriteProtectedFileMakesDeletingFail) {
    const QString map = PutMap(u"Alpine"_s) + u"\\Alpine.map"_s;
    Protect(map);
    EXPECT_FALSE(Delete(u"Alpine"_s));
    EXPECT_TRUE(Files::FileExists(map));
    Protect(map, false);
    EXPECT_TRUE(Delete(u"Alpine"_s));
}

TEST_F(Maps, DeletingWhatHasGoneMeanwhileFails) {
    const QString folder = PutMap(u"Alpine"_s);
    Select(u"Alpine"_s);
    Files::DeleteFolder(folder);
    bool done = true;
    list_.DeleteMap(done);
    EXPECT_FALSE(done);
}

TEST_F(Maps, DeletingWithoutASelectedRowRaises91) {
    PutMap(u"Alpine"_s);
    ListGame(list_, 0);
    bool done = false;
    EXPECT_EQ(NumberRaisedBy([&] { list_.DeleteMap(done); }), 91);
}

TEST_F(Maps, TheExportListHasTheRowsWithACheckMarkInTheOrderShown) {
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
        PutMap(name);
    ListGame(list_, 0);
    list_.Rows().SetChecked(0, true);
    list_.Rows().SetChecked(2, true);
    list_.Rows().SortBy(0);
    list_.Rows().SortBy(0); // descending
    ExportRecords.assign(5, {.Path = u"old"_s, .Name = u"old"_s, .Kind = 2});
    list_.BuildExportList();
    const std::vector<ExportRecord> expected{{EntryOf(0).MapPath + u"c"_s, u"c"_s, 0},
                                             {EntryOf(0).MapPath + u"a"_s, u"a"_s, 0}};
    EXPECT_EQ(ExportRecords, expected);
}

TEST_F(Maps, WithoutACheckMarkTheExportListHasOneEmptyRecord) {
    PutMap(u"a"_s);
    ListGame(list_, 0);
    ExportRecords.assign(5, {.Path = u"old"_s, .Name = u"old"_s, .Kind = 2});
    list_.BuildExportList();
    EXPECT_EQ(ExportRecords, std::vector<ExportRecord>(1));
}

TEST_F(Maps, ThePreviewIsThePictureOfTheMapsNameOrElseTheOther) {
    const QString folder = PutMap(u"Alpine"_s);
    EXPECT_EQ(MapFiles::Preview(folder, u"Alpine"_s), QString());
    Write(folder + u"\\Alpine_pic.tga"_s);
    EXPECT_EQ(MapFiles::Preview(folder, u"Alpine"_s), folder + u"\\Alpine_pic.tga"_s);
    Write(folder + u"\\Alpine.tga"_s);
    EXPECT_EQ(MapFiles::Preview(folder, u"Alpine"_s), folder + u"\\Alpine.tga"_s) << "of both, this one";
}
