// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the details panes show of a selected row.

#include "tests/personal/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class PersonalDetails : public PersonalDocument {
protected:
    PersonalDetails() { Personal.UseDecoder(&Decoder); }

    /// Shows a map with the picture that the decoder gives.
    void SelectMap(int row, const QByteArray& bitmap) {
        Decoder.Bitmap = bitmap;
        Personal.RowSelected(row);
    }

    [[nodiscard]] QString Scratch() const { return Place.ProgramFolder() + u"\\Temp\\TGA.bmp"_s; }
};

} // namespace

TEST_F(PersonalDetails, OfAMapAreItsNameAndTheWholeKilobytesOfItsMapFile) {
    PutMap(u"Alpine"_s, 3 * 1024 + 1023);
    Open(u"GenMaps"_s, 0);
    EXPECT_EQ(Panes(), u"map"_s);
    EXPECT_EQ(Actions(), u"yes yes yes"_s);
    EXPECT_EQ(State().MapName, u"Alpine"_s);
    EXPECT_EQ(State().MapSize, u"3 KiloBytes"_s);
}

TEST_F(PersonalDetails, OfAMapHaveAMarkBetweenTheThousands) {
    PutMap(u"Alpine"_s, qsizetype{1234} * 1024);
    Open(u"GenMaps"_s, 0);
    EXPECT_EQ(State().MapSize, u"1,234 KiloBytes"_s);
}

TEST_F(PersonalDetails, OfAMapWithoutAPictureAreLowAndDecodeNothing) {
    PutMap(u"Alpine"_s);
    Open(u"GenMaps"_s, 0);
    EXPECT_EQ(State().MapPaneHeight, 85);
    EXPECT_TRUE(Decoder.Sources.isEmpty());
    EXPECT_EQ(View.PictureChanges, 0);
}

TEST_F(PersonalDetails, OfAMapShowItsPictureAndDeleteTheBitmapAgain) {
    Put(PutMap(u"Alpine"_s) + u"\\Alpine.tga"_s, "tga");
    Decoder.Bitmap = "BM the picture";
    Open(u"GenMaps"_s, 0);
    EXPECT_EQ(State().MapPaneHeight, 237);
    EXPECT_EQ(Decoder.SourceBytes, QByteArray("tga"));
    EXPECT_EQ(Decoder.Bitmaps, QStringList{Scratch()});
    EXPECT_EQ(State().MapPicture, QByteArray("BM the picture"));
    EXPECT_EQ(View.PictureChanges, 1);
    EXPECT_FALSE(Files::FileExists(Scratch()));
}

TEST_F(PersonalDetails, OfAMapTakeThePictureOfItsOwnNameBeforeTheOther) {
    const QString folder = PutMap(u"Alpine"_s);
    Put(folder + u"\\Alpine_pic.tga"_s, "second");
    Open(u"GenMaps"_s, 0);
    EXPECT_EQ(Decoder.SourceBytes, QByteArray("second"));
    EXPECT_EQ(State().MapPaneHeight, 237);
    Put(folder + u"\\Alpine.tga"_s, "first");
    Personal.RowSelected(0);
    EXPECT_EQ(Decoder.SourceBytes, QByteArray("first"));
}

TEST_F(PersonalDetails, OfAMapWhosePictureCanNotBeLoadedKeepTheStaleOne) {
    Put(PutMap(u"A"_s) + u"\\A.tga"_s, "a");
    Put(PutMap(u"B"_s) + u"\\B.tga"_s, "b");
    Open(u"GenMaps"_s);
    SelectMap(0, "BM of A");
    SelectMap(1, {});
    EXPECT_EQ(State().MapName, u"B"_s);
    EXPECT_EQ(State().MapPaneHeight, 237);
    EXPECT_EQ(State().MapPicture, QByteArray("BM of A"));
    SelectMap(1, "no bitmap at all");
    EXPECT_EQ(State().MapPicture, QByteArray("BM of A"));
    EXPECT_EQ(View.PictureChanges, 1);
    EXPECT_FALSE(Files::FileExists(Scratch()));
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(PersonalDetails, OfAMapWithoutAPictureKeepTheStaleOneOutOfSight) {
    Put(PutMap(u"A"_s) + u"\\A.tga"_s, "a");
    PutMap(u"B"_s);
    Open(u"GenMaps"_s);
    SelectMap(0, "BM of A");
    Personal.RowSelected(1);
    EXPECT_EQ(State().MapPicture, QByteArray("BM of A"));
    EXPECT_EQ(State().MapPaneHeight, 85);
}

TEST_F(PersonalDetails, OfAMapDoNotShowABitmapThatAnEarlierDayLeft) {
    Put(PutMap(u"A"_s) + u"\\A.tga"_s, "a");
    Put(Scratch(), "BM of yesterday");
    Open(u"GenMaps"_s, 0);
    EXPECT_EQ(State().MapPicture, QByteArray());
    EXPECT_FALSE(Files::FileExists(Scratch()));
}

TEST_F(PersonalDetails, OfTheNextMapAbandonThePictureOfTheOneBefore) {
    Put(PutMap(u"A"_s) + u"\\A.tga"_s, "a");
    Put(PutMap(u"B"_s) + u"\\B.tga"_s, "b");
    PutMap(u"C"_s);
    Decoder.Waits = true;
    Decoder.Bitmap = "BM";
    Open(u"GenMaps"_s, 0);
    EXPECT_EQ(Decoder.Abandoned, 0);
    EXPECT_TRUE(State().MapDetailsVisible) << "the details do not wait for the picture";
    Personal.RowSelected(1);
    EXPECT_EQ(Decoder.Abandoned, 1);
    Personal.RowSelected(2);
    EXPECT_EQ(Decoder.Abandoned, 2);
    EXPECT_EQ(View.PictureChanges, 0);
    EXPECT_FALSE(Files::FileExists(Scratch()));
}

TEST_F(PersonalDetails, OfAMapGoAwayWhileThePictureComes) {
    Put(PutMap(u"A"_s) + u"\\A.tga"_s, "a");
    Decoder.Waits = true;
    Decoder.Bitmap = "BM late";
    Open(u"GenMaps"_s, 0);
    Personal.NodeClicked(u"GenMods"_s);
    Decoder.Answer();
    EXPECT_EQ(State().MapPicture, QByteArray("BM late"));
    EXPECT_EQ(Panes(), QString());
}

TEST_F(PersonalDetails, AreClosedWithADecodingUnderWay) {
    Put(PutMap(u"A"_s) + u"\\A.tga"_s, "a");
    Decoder.Waits = true;
    Decoder.Bitmap = "BM";
    {
        PersonalFiles second(View);
        second.UseDecoder(&Decoder);
        second.RebuildTree();
        second.NodeClicked(u"GenMaps"_s);
        second.RowSelected(0);
    }
    EXPECT_EQ(Decoder.Abandoned, 1);
    Decoder.Answer();
    EXPECT_EQ(View.PictureChanges, 0);
}

TEST_F(PersonalDetails, OfAMapUseTheScratchFolderOfThisProgramAlone) {
    Put(PutMap(u"A"_s) + u"\\A.tga"_s, "a");
    ProgramFolders::UseScratchBelow(u"2"_s);
    Open(u"GenMaps"_s, 0);
    ProgramFolders::UseScratchBelow({});
    EXPECT_EQ(Decoder.Bitmaps, QStringList{Place.ProgramFolder() + u"\\Temp\\2\\TGA.bmp"_s});
}

TEST_F(PersonalDetails, OfAMapWhoseFileIsGoneRaiseFileNotFound) {
    const QString folder = PutMap(u"A"_s);
    Open(u"GenMaps"_s);
    Files::DeleteFolder(folder);
    EXPECT_EQ(NumberRaisedBy([&] { Personal.RowSelected(0); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(State().MapName, u"A"_s);
}

TEST_F(PersonalDetails, OfAReplayAreItsNameSizeVersionMapAndPlayers) {
    PutReplay(u"Duel.rep"_s,
              ReplayBytes(MatchOf("03maps/alpine assault", "HAlice,0,0,TT,1,0,1,2,1:O:X:X:X:X:X:X:"), "Version 1.04") +
                  QByteArray(5000, 'o'));
    Open(u"GenReplays"_s, 0);
    EXPECT_EQ(Panes(), u"replay"_s);
    EXPECT_EQ(Actions(), u"yes yes yes"_s);
    EXPECT_EQ(State().ReplayName, u"Duel"_s);
    EXPECT_EQ(State().ReplaySize, u"5 KiloBytes"_s);
    EXPECT_EQ(State().ReplayVersion, u"1.04"_s);
    EXPECT_EQ(State().ReplayMap, u"Alpine assault"_s);
    QStringList players;
    for (const PlayerNode& node : State().Players)
        players += node.Text;
    EXPECT_EQ(players, (QStringList{u"Observers"_s, u"Observer 1"_s, u"Team 3"_s, u"Alice ()"_s}));
    EXPECT_EQ(View.PlayerChanges, 1);
}

TEST_F(PersonalDetails, OfTheSameReplayMakeThePlayersAnewEachTime) {
    PutReplay(u"Duel.rep"_s);
    Open(u"GenReplays"_s, 0);
    const std::size_t players = State().Players.size();
    Personal.RowSelected(0);
    EXPECT_EQ(View.PlayerChanges, 2);
    EXPECT_EQ(State().Players.size(), players);
}

TEST_F(PersonalDetails, OfAReplayKeepTheStalePlayersWhereTheRowHasNoSlots) {
    PutReplay(u"a.rep"_s);
    PutReplay(u"b.rep"_s);
    Open(u"GenReplays"_s, 0);
    const std::size_t players = State().Players.size();
    ASSERT_GT(players, 0U);
    Personal.List(PersonalKind::Replay).Rows().SetTag(1, {});
    Personal.RowSelected(1);
    EXPECT_EQ(State().ReplayName, u"b"_s);
    EXPECT_EQ(State().Players.size(), players);
}

TEST_F(PersonalDetails, OfAReplayThatIsGoneRaiseFileNotFound) {
    const QString path = PutReplay(u"a.rep"_s);
    Open(u"GenReplays"_s);
    Files::Delete(path);
    EXPECT_EQ(NumberRaisedBy([&] { Personal.RowSelected(0); }), ErrorNumber::FileNotFound);
}

TEST_F(PersonalDetails, OfAModAreItsFileSizeNameAndComments) {
    PutMod(u"Rise"_s, "[Mod]\r\nName=Rise of the Reds\r\nComments=Large\r\n");
    Put(Of(0).InstallPath + u"Rise.big"_s, QByteArray(2048, 'b'));
    Open(u"GenMods"_s, 0);
    EXPECT_EQ(Panes(), u"mod"_s);
    EXPECT_EQ(State().ModFile, u"Rise.big"_s);
    EXPECT_EQ(State().ModSize, u"2 KiloBytes"_s);
    EXPECT_EQ(State().NameText, u"Rise of the Reds"_s);
    EXPECT_EQ(State().CommentsText, u"Large"_s);
    EXPECT_EQ(View.BoxChanges, 1);
}

TEST_F(PersonalDetails, OfAModWithoutARecordHaveEmptyBoxesAndWriteNothing) {
    PutMod(u"Bare"_s);
    Open(u"GenMods"_s, 0);
    EXPECT_EQ(State().NameText, QString());
    EXPECT_EQ(State().CommentsText, QString());
    EXPECT_FALSE(Files::FileExists(Of(0).InstallPath + u"Bare.ini"_s));
}

TEST_F(PersonalDetails, OfAModTakeExactlyTheLastFourCharactersOffItsName) {
    PutMod(u"My.Mod"_s, "[Mod]\r\nName=Mine\r\n");
    Open(u"GenMods"_s, 0);
    EXPECT_EQ(State().NameText, u"Mine"_s);
}

TEST_F(PersonalDetails, OfAShellMapAreItsNameSizeAndComments) {
    PutShellMap(1, "[Infos]\r\nName=Storm\r\nComments=At sea\r\n", 2 * 1024 + 5);
    Open(u"GenShellMaps"_s, 0);
    EXPECT_EQ(Panes(), u"mod"_s);
    EXPECT_EQ(State().ModFile, u"Storm"_s);
    EXPECT_EQ(State().ModSize, u"2 KiloBytes"_s);
    EXPECT_EQ(State().NameText, u"Storm"_s);
    EXPECT_EQ(State().CommentsText, u"At sea"_s);
}

TEST_F(PersonalDetails, OfAShellMapTakeTheOtherMapsSizeWhereTheFirstGivesNothing) {
    const QString small = PutShellMap(1, "[Infos]\r\n", 1023);
    Put(small + u"\\shellmapmd.map"_s, QByteArray(qsizetype{5} * 1024, 'm'));
    const QString absent = PutShellMap(2, "[Infos]\r\n");
    Files::Delete(absent + u"\\shellmap1.map"_s);
    Put(absent + u"\\shellmapmd.map"_s, QByteArray(qsizetype{7} * 1024, 'm'));
    const QString none = PutShellMap(3, "[Infos]\r\n", 1023);
    Open(u"GenShellMaps"_s, 0);
    EXPECT_EQ(State().ModSize, u"5 KiloBytes"_s) << "1,023 bytes are no kilobyte";
    Personal.RowSelected(1);
    EXPECT_EQ(State().ModSize, u"7 KiloBytes"_s);
    Personal.RowSelected(2);
    EXPECT_EQ(State().ModSize, u"0 KiloBytes"_s);
}

TEST_F(PersonalDetails, OfAShellMapDoNotLookAtTheSecondMapBesideALargeFirst) {
    const QString folder = PutShellMap(1, "[Infos]\r\n", 1024);
    Put(folder + u"\\shellmapmd.map"_s, QByteArray(qsizetype{9} * 1024, 'm'));
    Open(u"GenShellMaps"_s, 0);
    EXPECT_EQ(State().ModSize, u"1 KiloBytes"_s);
}

TEST_F(PersonalDetails, ARowThatIsNoneShowsNothing) {
    PutMap(u"A"_s);
    Open(u"GenMaps"_s);
    Personal.RowSelected(-1);
    Personal.RowSelected(1);
    EXPECT_EQ(Panes(), QString());
    EXPECT_EQ(Actions(), u"yes no no"_s);
    Personal.NodeClicked(u"Gen"_s);
    Personal.RowSelected(0);
    EXPECT_EQ(Panes(), QString()) << "no list is visible";
}

TEST_F(PersonalDetails, OnlyThePaneOfTheKindIsShown) {
    PutMap(u"A"_s);
    PutReplay(u"a.rep"_s);
    PutMod(u"m"_s);
    PutShellMap(1, "[Infos]\r\n");
    Open(u"GenMaps"_s, 0);
    EXPECT_EQ(Panes(), u"map"_s);
    Open(u"GenReplays"_s, 0);
    EXPECT_EQ(Panes(), u"replay"_s);
    Open(u"GenMods"_s, 0);
    EXPECT_EQ(Panes(), u"mod"_s);
    Open(u"GenShellMaps"_s, 0);
    EXPECT_EQ(Panes(), u"mod"_s);
}
