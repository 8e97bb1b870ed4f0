// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/lists/ShellMapList.h"

#include "tests/personal/lists_support.h"

using namespace Qt::StringLiterals;

namespace {

class ShellMaps : public ListTest {
protected:
    [[nodiscard]] static QString Folder(const QString& name, GameIndex game = 0) {
        return EntryOf(game).InstallPath + u"Maps\\"_s + name;
    }

    void Put(const QString& name, const QByteArray& title, GameIndex game = 0) const {
        Write(Folder(name, game) + u"\\QvInfos.ini"_s,
              "[Infos]\r\nName=" + title + "\r\nComments=of " + title + "\r\n");
    }

    bool Delete(int place) {
        list_.Select(place);
        bool done = false;
        list_.Delete(done);
        ListGame(list_, 0);
        return done;
    }

    ShellMapList list_;
};

} // namespace

TEST_F(ShellMaps, ARowHasTheNameAndTheCommentsOfItsRecord) {
    Put(u"QvShellMap001"_s, "Desert");
    EXPECT_EQ(ListGame(list_, 0), 1);
    EXPECT_EQ(Texts(list_), QStringList{u"Desert"_s});
    EXPECT_EQ(Texts(list_, ShellMapList::Comments), QStringList{u"of Desert"_s});
    EXPECT_EQ(Keys(list_), QStringList{Folder(u"QvShellMap001"_s)});
    EXPECT_EQ(list_.Folder(), EntryOf(0).InstallPath);
    EXPECT_TRUE(list_.Rows().HasChecks());
}

TEST_F(ShellMaps, WithoutARecordOrItsNameTheRowIsEmpty) {
    Files::MakeFolders(Folder(u"QvShellMap001"_s));
    Write(Folder(u"QvShellMap002\\QvInfos.ini"_s), "[Mod]\r\nName=wrong\r\n");
    Files::MakeFolders(Folder(u"QvShellMap003\\QvInfos.ini"_s));
    EXPECT_EQ(ListGame(list_, 0), 3);
    EXPECT_EQ(Texts(list_), (QStringList{QString(), QString(), QString()}));
}

TEST_F(ShellMaps, ExactlyThreeCharactersFitAndAFileOfSuchANameIsListedToo) {
    Files::MakeFolders(Folder(u"QvShellMap01"_s));
    Files::MakeFolders(Folder(u"QvShellMap0001"_s));
    Files::MakeFolders(Folder(u"ShellMap1"_s));
    Put(u"QvShellMap001"_s, "Desert");
    Write(Folder(u"QvShellMap002"_s));
    Put(u"QvShellMapOld"_s, "Put aside");
    EXPECT_EQ(ListGame(list_, 0), 3);
    EXPECT_EQ(Texts(list_), (QStringList{u"Desert"_s, QString(), u"Put aside"_s}));
    EXPECT_EQ(CountGame(list_, 0), 3);
}

TEST_F(ShellMaps, TwoOfOneNameAreTwoRowsAndStandInTheOrderOfTheirNumbers) {
    Put(u"QvShellMap003"_s, "Same");
    Put(u"QvShellMap001"_s, "Same");
    Put(u"QvShellMap002"_s, "Another");
    ListGame(list_, 0);
    EXPECT_EQ(Texts(list_), (QStringList{u"Same"_s, u"Another"_s, u"Same"_s}));
    EXPECT_NE(list_.Rows().Key(0), list_.Rows().Key(2));
}

TEST_F(ShellMaps, CountingTouchesNothingAndTakesTheGameAsGiven) {
    Put(u"QvShellMap001"_s, "Desert");
    Put(u"QvShellMap001"_s, "River", 1);
    Put(u"QvShellMap002"_s, "Lake", 1);
    ListGame(list_, 0);
    EXPECT_EQ(CountGame(list_, 1), 2);
    EXPECT_EQ(Texts(list_), QStringList{u"Desert"_s});
    EXPECT_EQ(list_.Listed(), 0);
    EXPECT_EQ(NumberRaisedBy([&] { CountGame(list_, 65536); }), 9);
    qint32 game = 65536;
    EXPECT_EQ(list_.ListShellmaps(game), 1);
    EXPECT_EQ(game, 0);
}

TEST_F(ShellMaps, TheLastCaptionIsNotTranslated) {
    world_.UseLanguage("[LNG]\r\nName=Nom\r\nComments=Remarques\r\n");
    world_.Start();
    const ShellMapList list;
    EXPECT_EQ(Captions(list), (QStringList{u"Nom"_s, u"Comments"_s}));
}

TEST_F(ShellMaps, DeletingClosesTheGap) {
    Put(u"QvShellMap001"_s, "One");
    Put(u"QvShellMap002"_s, "Two");
    Put(u"QvShellMap003"_s, "Three");
    ListGame(list_, 0);
    EXPECT_TRUE(Delete(1));
    EXPECT_EQ(Texts(list_), (QStringList{u"One"_s, u"Three"_s}));
    EXPECT_EQ(Keys(list_), (QStringList{Folder(u"QvShellMap001"_s), Folder(u"QvShellMap002"_s)}));
}

TEST_F(ShellMaps, DeletingIsForTheGameThatWasListed) {
    Put(u"QvShellMap001"_s, "Here");
    Put(u"QvShellMap001"_s, "There", 1);
    ListGame(list_, 0);
    CountGame(list_, 1);
    EXPECT_TRUE(Delete(0));
    EXPECT_FALSE(Files::FolderExists(Folder(u"QvShellMap001"_s)));
    EXPECT_TRUE(Files::FolderExists(Folder(u"QvShellMap001"_s, 1)));
}

TEST_F(ShellMaps, ANameWithoutANumberIsNotDeletedAndNothingElseIs) {
    Put(u"QvShellMap001"_s, "One");
    Put(u"QvShellMap1.5"_s, "One and a half");
    Put(u"QvShellMapOld"_s, "Old");
    Write(Folder(u"QvShellMap002"_s));
    ListGame(list_, 0);
    const QStringList before = Keys(list_);
    ASSERT_EQ(before.size(), 4);
    for (int place = 1; place < 4; ++place) {
        EXPECT_FALSE(Delete(place)) << place;
        EXPECT_EQ(Keys(list_), before);
        EXPECT_EQ(Texts(list_), (QStringList{u"One"_s, QString(), u"One and a half"_s, u"Old"_s}));
    }
}

TEST_F(ShellMaps, DeletingWithoutASelectedRowRaises91) {
    Put(u"QvShellMap001"_s, "One");
    ListGame(list_, 0);
    EXPECT_EQ(NumberRaisedBy([&] { list_.DeleteShellMap(); }), 91);
}

TEST_F(ShellMaps, TheExportListNamesTheFilesOfTheFolder) {
    Put(u"QvShellMap001"_s, "One");
    Put(u"QvShellMap002"_s, "Two");
    ListGame(list_, 0);
    list_.Rows().SetChecked(1, true);
    list_.BuildExportList();
    const std::vector<ExportRecord> expected{{Folder(u"QvShellMap002\\*.*"_s), u"Two"_s, 3}};
    EXPECT_EQ(ExportRecords, expected);
}

TEST_F(ShellMaps, WithoutACheckMarkTheExportListRaises9AndHasOneEmptyRecord) {
    Put(u"QvShellMap001"_s, "One");
    ListGame(list_, 0);
    EXPECT_EQ(NumberRaisedBy([&] { list_.BuildExportList(); }), 9);
    EXPECT_EQ(ExportRecords, std::vector<ExportRecord>(1));
}

TEST_F(ShellMaps, ARecordOf20MegabytesIsRead) {
    for (const bool atTheEnd : {false, true}) {
        const QByteArray filler = "; " + QByteArray(78, 'x') + "\r\n";
        const QByteArray named = "[Infos]\r\nName=Desert\r\nComments=Night\r\n";
        const QByteArray other = "[Other]\r\n" + filler.repeated(20'000'000 / filler.size());
        Write(Folder(u"QvShellMap001\\QvInfos.ini"_s), atTheEnd ? other + named : named + other);
        ListGame(list_, 0);
        EXPECT_EQ(Texts(list_), QStringList{u"Desert"_s});
        EXPECT_EQ(Texts(list_, ShellMapList::Comments), QStringList{u"Night"_s});
    }
}
