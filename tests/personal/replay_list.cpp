// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "personal/lists/ExportRecords.h"
#include "personal/replay/Replay.h"
#include "platform/FileNumbers.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "tests/personal/replay_bytes.h"

#include <QFile>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

class ReplayListing : public ReplayFolders {
protected:
    static bool NumberIsTaken() { return NumberedFiles::IsOpen(FileNumbers::Replay); }

    /// The description of what a listing of the first game raises.
    QString ListingsMessage() {
        return MessageOf([&] { List(); });
    }

    /// Lists a folder with this one replay between two whole ones, expects the number, and that the message names it.
    void ExpectEndAtTheSecond(const QByteArray& second, int number) {
        Put(u"1.rep"_s, SampleReplay());
        const QString path = Put(u"2.rep"_s, second);
        Put(u"3.rep"_s, SampleReplay());
        try {
            List();
            ADD_FAILURE() << "nothing was raised";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), number);
            EXPECT_TRUE(error.Description().startsWith(Paths::ToNative(path) + u": "_s))
                << error.Description().toStdString();
        }
        EXPECT_EQ(Names(), QStringList({u"1"_s, u"2"_s}));
        EXPECT_TRUE(NumberIsTaken());
    }

    /// The texts of the second row behind its first one, and the tag.
    [[nodiscard]] QStringList SecondRow() const {
        QStringList texts;
        for (const int column : {ReplayList::Date, ReplayList::Version, ReplayList::Players, ReplayList::Map})
            texts += list_.Rows().Text(1, column);
        return texts << list_.Rows().Row(1).Tag;
    }
};

} // namespace

TEST_F(ReplayListing, ARowTellsNameDateVersionPlayersAndMap) {
    const QString path = Put(u"Last Replay.rep"_s, SampleReplay());
    QFile file(Paths::ToNative(path));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime(QDate(2003, 8, 30), QTime(12, 0)), QFileDevice::FileModificationTime));
    file.close();
    EXPECT_EQ(List(), 1);
    ASSERT_EQ(list_.Rows().Count(), 1);
    const ListRow& row = list_.Rows().Row(0);
    EXPECT_EQ(row.Text, u"Last Replay"_s);
    EXPECT_EQ(row.SubItems, QStringList({QLocale::system().toString(QDate(2003, 8, 30), QLocale::ShortFormat), u"1.0"_s,
                                         u"1"_s, u"Alpine assault"_s}));
    EXPECT_EQ(row.Key, path);
    EXPECT_EQ(row.Tag, u"HPlayer,0,0,TT,1,8,1,0,1:X:X:X:X:X:X:X:;"_s);
    EXPECT_FALSE(NumberIsTaken());
}

TEST_F(ReplayListing, EveryGameAndEveryMarkIsListedAlike) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        Put(u"a.rep"_s, ReplayBytes(MatchOf("m", "O:O:X:X:X:X:X:X:"), "Version 1", "BFMEREPL"), game);
        Put(u"b.BfME2Replay"_s, ReplayBytes(MatchOf("m", "O:X:X:X:X:X:X:X:"), "Version 2", "BFME2RPL"), game);
        Put(u"c.REP"_s, SampleReplay(), game);
        EXPECT_EQ(List(game), 3);
        EXPECT_EQ(Names(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
        EXPECT_EQ(Column(ReplayList::Players), QStringList({u"2"_s, u"1"_s, u"1"_s}));
        EXPECT_EQ(list_.Listed(), game);
        EXPECT_EQ(list_.Folder(), Folder(game));
        EXPECT_EQ(list_.Rows().Row(1).Key, Folder(game) + u"b.BfME2Replay"_s);
    }
}

TEST_F(ReplayListing, TheColumnsHaveTheirTextsAndWidths) {
    world_.UseLanguage("[LNG]\r\nFileName=Nom\r\nDate=Jour\r\nVersion=V\r\nPlayers=Joueurs\r\nMap=Carte\r\n");
    world_.Start();
    const std::vector<RowColumn> columns = ReplayList().Rows().Columns();
    ASSERT_EQ(columns.size(), 5U);
    QStringList captions;
    for (const RowColumn& column : columns)
        captions += column.Caption;
    EXPECT_EQ(captions, QStringList({u"Nom"_s, u"Jour"_s, u"V"_s, u"Joueurs"_s, u"Carte"_s}));
    EXPECT_DOUBLE_EQ(columns[0].Fraction, 1 / 2.4);
    EXPECT_DOUBLE_EQ(columns[1].Fraction, 0.25);
    EXPECT_DOUBLE_EQ(columns[2].Fraction, 0.125);
    EXPECT_DOUBLE_EQ(columns[3].Fraction, 0.125);
    EXPECT_DOUBLE_EQ(columns[4].Fraction, 0);
    EXPECT_EQ(columns[1].Sort, SortKind::Text) << "the date sorts as it is shown";
    EXPECT_TRUE(list_.Rows().HasChecks());
    EXPECT_TRUE(list_.Rows().CanEdit());
}

TEST_F(ReplayListing, NamesComeInTheirOrderCapitalsAndSmallLettersAlike) {
    for (const QString& name : {u"b.rep"_s, u"_a.rep"_s, u"C.rep"_s, u"a.rep"_s, u"B2.rep"_s})
        Put(name, SampleReplay());
    List();
    EXPECT_EQ(Names(), QStringList({u"a"_s, u"b"_s, u"B2"_s, u"C"_s, u"_a"_s}));
}

TEST_F(ReplayListing, AnEmptyFolderOrNoneGivesAnEmptyList) {
    Put(u"a.rep"_s, SampleReplay(), 1);
    Files::MakeFolders(Folder(0));
    EXPECT_EQ(List(1), 1);
    EXPECT_EQ(List(0), 0);
    EXPECT_EQ(list_.Rows().Count(), 0);
    EXPECT_EQ(List(2), 0) << "the folder is not there";
}

TEST_F(ReplayListing, FilesOfOtherNamesAndFoldersAreNeitherListedNorCounted) {
    Put(u"a.txt"_s, SampleReplay());
    Put(u"a.rep.bak"_s, SampleReplay());
    Files::MakeFolders(Folder() + u"folder.rep"_s);
    Put(u"NOTES.PREP"_s, SampleReplay());
    EXPECT_EQ(List(), 1);
    EXPECT_EQ(Names(), QStringList{u"NOTES."_s});
}

TEST_F(ReplayListing, TheCurrentGameIsListedAnewAndPutIntoTheCallersVariable) {
    Put(u"a.rep"_s, SampleReplay(), 2);
    List(2);
    qint32 game = GameList::CurrentGame;
    EXPECT_EQ(list_.ListReplays(game), 1);
    EXPECT_EQ(game, 2);
    EXPECT_EQ(list_.Listed(), 2);
}

TEST_F(ReplayListing, AGameThatIsNoneIsError9) {
    for (const qint32 game : {-1, 4, 65535})
        EXPECT_EQ(NumberRaisedBy([&] { List(game); }), 9) << game;
    qint32 current = GameList::CurrentGame;
    EXPECT_EQ(NumberRaisedBy([&] { list_.ListReplays(current, true); }), 9) << "counting knows no current game";
}

TEST_F(ReplayListing, CountingKeepsTheRowsAndOpensNoFile) {
    Put(u"whole.rep"_s, SampleReplay());
    List(0);
    list_.Select(0);
    Put(u"rep"_s, "", 1);
    Put(u"no mark.rep"_s, "nothing", 1);
    Put(u"cut.rep"_s, "GENREP", 1);
    qint32 game = 1;
    EXPECT_EQ(list_.ListReplays(game, true), 3);
    EXPECT_EQ(Names(), QStringList{u"whole"_s});
    EXPECT_EQ(list_.Selected(), 0);
    EXPECT_EQ(list_.Listed(), 0);
    EXPECT_EQ(list_.Folder(), Folder(0));
    EXPECT_FALSE(NumberIsTaken());
}

TEST_F(ReplayListing, AListingTakesTheOldRowsAndTheSelectionAway) {
    Put(u"a.rep"_s, SampleReplay());
    List();
    list_.Select(0);
    EXPECT_EQ(List(), 1);
    EXPECT_EQ(list_.Rows().Count(), 1);
    EXPECT_EQ(list_.Selected(), GameList::None);
}

TEST_F(ReplayListing, ABadFileThatComesLastLeavesTheListFullAndItsNumberOpen) {
    Put(u"a.rep"_s, SampleReplay());
    Put(u"z.rep"_s, "no replay");
    EXPECT_EQ(List(), 2) << "the count is that of the names";
    EXPECT_EQ(Names(), QStringList{u"a"_s});
    EXPECT_TRUE(NumberIsTaken());
}

TEST_F(ReplayListing, BehindAWrongMarkTheNextReplayCannotBeOpened) {
    Put(u"a.rep"_s, SampleReplay());
    const QString bad = Put(u"bad.rep"_s, "genrep");
    const QString next = Put(u"c.rep"_s, SampleReplay());
    Put(u"d.rep"_s, SampleReplay());
    EXPECT_EQ(NumberRaisedBy([&] { List(); }), 55);
    EXPECT_EQ(Names(), QStringList{u"a"_s});
    NumberedFiles::Close(FileNumbers::Replay);
    const QString message = ListingsMessage();
    EXPECT_TRUE(message.contains(Paths::ToNative(bad))) << message.toStdString();
    EXPECT_TRUE(message.startsWith(Paths::ToNative(next) + u": "_s)) << message.toStdString();
}

TEST_F(ReplayListing, TheNumberStaysTakenForAnyLaterListingUntilItIsClosed) {
    const QString bad = Put(u"z.rep"_s, "", 3);
    const QString other = Put(u"a.rep"_s, SampleReplay());
    List(3);
    EXPECT_EQ(NumberRaisedBy([&] { List(); }), 55);
    EXPECT_TRUE(ListingsMessage().contains(Paths::ToNative(bad)));
    EXPECT_TRUE(ListingsMessage().contains(Paths::ToNative(other)));
    EXPECT_EQ(NumberRaisedBy([&] { List(3); }), 55) << "the bad one itself is not opened a second time";
    EXPECT_EQ(NumberRaisedBy([&] { List(2); }), 0) << "no replay is there to be opened";
    NumberedFiles::Close(FileNumbers::Replay);
    EXPECT_EQ(List(), 1);
}

TEST_F(ReplayListing, AFileOfTenBytesGetsItsRowAndEndsTheListing) {
    ExpectEndAtTheSecond("GENREP\0\0\0\0", 5);
    EXPECT_EQ(SecondRow(), QStringList({{}, {}, {}, {}, {}}));
    EXPECT_EQ(list_.Rows().Row(1).Key, Folder() + u"2.rep"_s);
}

TEST_F(ReplayListing, AMatchThatIsCutOffLeavesARowWithANameAlone) {
    ExpectEndAtTheSecond("GENREP M=maps/a;", 5);
    EXPECT_EQ(SecondRow(), QStringList({{}, {}, {}, {}, {}}));
}

TEST_F(ReplayListing, AMapWithoutItsSemicolonEndsTheListing) {
    ExpectEndAtTheSecond("GENREP M=maps/a", 5);
}

TEST_F(ReplayListing, FewerThanEightSlotsEndTheListingWithError9) {
    ExpectEndAtTheSecond(ReplayBytes(MatchOf("a", "X:X:X")), 9);
    EXPECT_EQ(SecondRow(), QStringList({{}, {}, {}, {}, {}}));
}

TEST_F(ReplayListing, AVersionWithoutEndLeavesARowWithNameAndDate) {
    QByteArray replay = MatchOf("a", "X:X:X:X:X:X:X:X:") + Wide("Version 1").chopped(2);
    ExpectEndAtTheSecond("GENREP" + replay + QByteArray(3000, '1'), 9);
    const QString today = Replays::Dates().Of(Files::ModifiedTime(Folder() + u"2.rep"_s));
    EXPECT_EQ(SecondRow(), QStringList({today, {}, {}, {}, {}}));
}

TEST_F(ReplayListing, AFileCalledJustRepIsError5AndGetsNoRow) {
    Put(u"a.rep"_s, SampleReplay());
    const QString path = Put(u"rep"_s, SampleReplay());
    EXPECT_EQ(NumberRaisedBy([&] { List(); }), 5);
    EXPECT_EQ(Names(), QStringList{u"a"_s});
    EXPECT_TRUE(NumberIsTaken());
    NumberedFiles::CloseAll();
    EXPECT_TRUE(ListingsMessage().startsWith(Paths::ToNative(path) + u": "_s));
}

TEST_F(ReplayListing, AFileCalledJustRepWithAWrongMarkIsPassedOver) {
    Put(u"rep"_s, "no replay");
    EXPECT_EQ(List(), 1);
    EXPECT_EQ(list_.Rows().Count(), 0);
}

TEST_F(ReplayListing, OnlyTheFirst2048BytesOfALargeReplayAreRead) {
    Put(u"large.rep"_s, SampleReplay() + QByteArray(5'000'000, 'M'));
    EXPECT_EQ(List(), 1);
    EXPECT_EQ(Column(ReplayList::Map), QStringList{u"Alpine assault"_s});
}

TEST_F(ReplayListing, AFolderWhoseCaseIsNotTheDisksIsListed) {
    Put(u"a.rep"_s, SampleReplay());
    Game[0].ReplayPath = Folder().toUpper();
    EXPECT_EQ(List(), 1);
    EXPECT_EQ(list_.Rows().Row(0).Key, Folder() + u"a.rep"_s);
    list_.Select(0);
    bool done = false;
    list_.DeleteReplay(done);
    EXPECT_TRUE(done);
}

TEST_F(ReplayListing, ADeletedReplayIsGoneAndItsRowStays) {
    const QString path = Put(u"a.rep"_s, SampleReplay());
    Put(u"b.rep"_s, SampleReplay());
    List();
    list_.Select(0);
    bool done = false;
    list_.DeleteReplay(done);
    EXPECT_TRUE(done);
    EXPECT_FALSE(Files::FileExists(path));
    EXPECT_TRUE(Files::FileExists(Folder() + u"b.rep"_s));
    EXPECT_EQ(Names(), QStringList({u"a"_s, u"b"_s}));
}

TEST_F(ReplayListing, DeletingGoesByTheRowsKeyAndNotByItsText) {
    Put(u"NOTES.PREP"_s, SampleReplay());
    List();
    list_.Select(0);
    bool done = false;
    list_.DeleteReplay(done);
    EXPECT_TRUE(done);
    EXPECT_FALSE(Files::FileExists(Folder() + u"NOTES.PREP"_s));
}

TEST_F(ReplayListing, AReplayThatIsGoneAlreadyCountsAsDeletedAndNoRowAsAnError) {
    const QString path = Put(u"a.rep"_s, SampleReplay());
    List();
    list_.Select(0);
    Files::DeleteForced(path);
    bool done = false;
    list_.DeleteReplay(done);
    EXPECT_TRUE(done) << "it is gone, whoever took it away";
    list_.Select(GameList::None);
    EXPECT_EQ(NumberRaisedBy([&] { list_.DeleteReplay(done); }), 91);
}

TEST_F(ReplayListing, ExportTakesTheCheckedRowsInTheOrderShownWithTheGamesExtension) {
    for (const GameIndex game : {0, 3}) {
        for (const QString& name : {u"a.rep"_s, u"b.rep"_s, u"c.BfME2Replay"_s})
            Put(name, SampleReplay(), game);
        List(game);
        list_.Rows().SortBy(ReplayList::FileName);
        list_.Rows().SortBy(ReplayList::FileName); // descending
        list_.Rows().SetChecked(0, true);
        list_.Rows().SetChecked(2, true);
        list_.BuildExportList();
        const QString extension = game == 3 ? u".BfME2Replay"_s : u".rep"_s;
        EXPECT_EQ(ExportRecords, (std::vector<ExportRecord>{{Folder(game) + u"c.BfME2Replay"_s, u"c"_s + extension, 2},
                                                            {Folder(game) + u"a.rep"_s, u"a"_s + extension, 2}}));
    }
}

TEST_F(ReplayListing, ExportWithoutACheckMarkIsError9) {
    Put(u"a.rep"_s, SampleReplay());
    List();
    EXPECT_EQ(NumberRaisedBy([&] { list_.BuildExportList(); }), 9);
}

TEST_F(ReplayListing, APlayerTreeIsLoadedForTheSelectedRowOnly) {
    Put(u"a.rep"_s, SampleReplay(), 1);
    List(1);
    std::vector<PlayerNode> tree{{u"old"_s, {}, {}, {}, {}}};
    list_.LoadPlayerList(tree);
    ASSERT_EQ(tree.size(), 1U) << "no row is selected";
    EXPECT_EQ(tree[0].Key, u"old"_s);
    list_.Select(0);
    for (int twice = 0; twice < 2; ++twice) {
        list_.LoadPlayerList(tree);
        ASSERT_EQ(tree.size(), 2U);
        EXPECT_EQ(tree[0].Key, u"Team 0"_s);
        EXPECT_EQ(tree[1].Text, u"Player ()"_s);
    }
}

TEST_F(ReplayListing, ARowWithoutATagLeavesTheTreeAsItIs) {
    Put(u"a.rep"_s, "GENREP");
    EXPECT_EQ(NumberRaisedBy([&] { List(); }), 5);
    list_.Select(0);
    std::vector<PlayerNode> tree{{u"old"_s, {}, {}, {}, {}}};
    list_.LoadPlayerList(tree);
    EXPECT_EQ(tree.size(), 1U);
}
