// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/lists/ModList.h"

#include "tests/personal/lists_support.h"

using namespace Qt::StringLiterals;

namespace {

class Mods : public ListTest {
protected:
    bool Delete(const QString& name) {
        ListGame(list_, 0);
        list_.Select(static_cast<int>(Texts(list_).indexOf(name)));
        bool done = false;
        list_.DeleteMod(done);
        return done;
    }

    ModList list_;
};

} // namespace

TEST_F(Mods, ARowHasTheFileNameAndWhatItsRecordSays) {
    Install(u"Mine.big"_s);
    Install(u"Mine.ini"_s, "[Mod]\r\nName=My mod\r\nComments=Of 2005\r\n");
    EXPECT_EQ(ListGame(list_, 0), 1);
    EXPECT_EQ(Texts(list_), QStringList{u"Mine.big"_s});
    EXPECT_EQ(Texts(list_, ModList::Name), QStringList{u"My mod"_s});
    EXPECT_EQ(Texts(list_, ModList::Comments), QStringList{u"Of 2005"_s});
    EXPECT_EQ(Keys(list_), QStringList{EntryOf(0).InstallPath + u"Mine.big"_s});
    EXPECT_EQ(list_.Folder(), EntryOf(0).InstallPath);
    EXPECT_TRUE(list_.Rows().HasChecks());
}

TEST_F(Mods, TheGamesOwnArchivesAndHiddenOnesAreNeitherListedNorCounted) {
    for (const QString& name : {u"INI.BIG"_s, u"gensec.big"_s, u"_Disabled.big"_s, u"a.BIG"_s, u"notes.txt"_s})
        Install(name);
    Files::MakeFolders(EntryOf(0).InstallPath + u"folder.big"_s);
    EXPECT_EQ(ListGame(list_, 0), 1);
    EXPECT_EQ(Texts(list_), QStringList{u"a.BIG"_s});
    EXPECT_EQ(CountGame(list_, 0), 1);
}

TEST_F(Mods, WithoutARecordOrItsKeysTheCellsAreEmpty) {
    Install(u"a.big"_s);
    Install(u"b.big"_s);
    Install(u"b.ini"_s, "[Other]\r\nName=wrong\r\n[Mod]\r\nCommentse=not read\r\n");
    Install(u"c.big"_s);
    Files::MakeFolders(EntryOf(0).InstallPath + u"c.ini"_s);
    EXPECT_EQ(ListGame(list_, 0), 3);
    for (const int column : {ModList::Name, ModList::Comments})
        EXPECT_EQ(Texts(list_, column), (QStringList{QString(), QString(), QString()}));
}

TEST_F(Mods, ExactlyTheLastFourCharactersMakeRoomForTheRecordsEnding) {
    Install(u"My.Mod.big"_s);
    Install(u"My.ini"_s, "[Mod]\r\nName=wrong\r\n");
    Install(u"My.Mod.ini"_s, "[Mod]\r\nName=right\r\n");
    ListGame(list_, 0);
    EXPECT_EQ(Texts(list_, ModList::Name), QStringList{u"right"_s});
}

TEST_F(Mods, CountingTouchesNothing) {
    Install(u"a.big"_s);
    ListGame(list_, 0);
    Install(u"b.big"_s, "x", 1);
    list_.Select(0);
    qint32 game = 1;
    EXPECT_EQ(list_.ListMods(game, true), 1);
    EXPECT_EQ(Texts(list_), QStringList{u"a.big"_s});
    EXPECT_EQ(list_.Listed(), 0);
    EXPECT_EQ(list_.Selected(), 0);
}

TEST_F(Mods, TheValue65536IsTheGameThatWasListedLast) {
    Install(u"b.big"_s, "x", 2);
    ListGame(list_, 2);
    qint32 game = 65536;
    EXPECT_EQ(list_.ListMods(game), 1);
    EXPECT_EQ(game, 2);
    EXPECT_EQ(NumberRaisedBy([&] { CountGame(list_, 65536); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { ListGame(list_, 4); }), 9);
}

TEST_F(Mods, AGameThatIsNotInstalledHasNone) {
    Game[0].InstallPath.clear();
    EXPECT_EQ(ListGame(list_, 0), 0);
    EXPECT_EQ(CountGame(list_, 0), 0);
}

TEST_F(Mods, TheThreeColumnsAreAThirdEachAndTheLastCaptionIsNotTranslated) {
    world_.UseLanguage("[LNG]\r\nFileName=Fichier\r\nName=Nom\r\nComments=Remarques\r\n");
    world_.Start();
    const ModList list;
    EXPECT_EQ(Captions(list), (QStringList{u"Fichier"_s, u"Nom"_s, u"Comments"_s}));
    for (const RowColumn& column : list.Rows().Columns())
        EXPECT_DOUBLE_EQ(column.Fraction, 1.0 / 3);
}

TEST_F(Mods, DeletingTakesTheArchiveAndLeavesItsRecord) {
    Install(u"Mine.big"_s);
    const QString record = Install(u"Mine.ini"_s, "[Mod]\r\nName=Kept\r\n");
    EXPECT_TRUE(Delete(u"Mine.big"_s));
    EXPECT_FALSE(Files::FileExists(EntryOf(0).InstallPath + u"Mine.big"_s));
    EXPECT_TRUE(Files::FileExists(record));
    Install(u"Mine.big"_s);
    ListGame(list_, 0);
    EXPECT_EQ(Texts(list_, ModList::Name), QStringList{u"Kept"_s}) << "a later mod of that name finds the old record";
}

TEST_F(Mods, AWriteProtectedArchiveIsNotDeleted) {
    const QString mod = Install(u"Mine.big"_s);
    Protect(mod);
    EXPECT_FALSE(Delete(u"Mine.big"_s));
    EXPECT_TRUE(Files::FileExists(mod));
    Protect(mod, false);
    EXPECT_TRUE(Delete(u"Mine.big"_s));
}

TEST_F(Mods, WhatHasGoneMeanwhileCountsAsDeleted) {
    const QString mod = Install(u"Mine.big"_s);
    ListGame(list_, 0);
    list_.Select(0);
    Files::DeleteForced(mod);
    bool done = false;
    list_.DeleteMod(done);
    EXPECT_TRUE(done);
    list_.Select(GameList::None);
    EXPECT_EQ(NumberRaisedBy([&] { list_.DeleteMod(done); }), 91);
}

TEST_F(Mods, TheExportListHasTheRowsWithACheckMark) {
    for (const QString& name : {u"a.big"_s, u"b.big"_s, u"c.big"_s})
        Install(name);
    ListGame(list_, 0);
    list_.Rows().SetChecked(0, true);
    list_.Rows().SetChecked(2, true);
    list_.BuildExportList();
    const std::vector<ExportRecord> expected{{EntryOf(0).InstallPath + u"a.big"_s, u"a.big"_s, 1},
                                             {EntryOf(0).InstallPath + u"c.big"_s, u"c.big"_s, 1}};
    EXPECT_EQ(ExportRecords, expected);
}

TEST_F(Mods, WithoutACheckMarkTheExportListRaises9AndHasOneEmptyRecord) {
    Install(u"a.big"_s);
    ListGame(list_, 0);
    ExportRecords.assign(3, {.Path = u"old"_s, .Name = u"old"_s, .Kind = 2});
    EXPECT_EQ(NumberRaisedBy([&] { list_.BuildExportList(); }), 9);
    EXPECT_EQ(ExportRecords, std::vector<ExportRecord>(1));
}
