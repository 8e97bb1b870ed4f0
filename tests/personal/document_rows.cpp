// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The rows of the visible list: names, order, check marks, the status bar, and what the context menu offers.

#include "platform/Paths.h"
#include "tests/personal/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class PersonalRows : public PersonalDocument {
protected:
    /// The status bar with words that have their places.
    void UseWords() const {
        Place.UseLanguage("[LNG]\r\nRowCount=Items: %1\r\nRowsChecked=Checked: %1 (%2)\r\nKiloBytes=KB\r\n"
                          "MegaBytes=MB\r\n");
        mMain::LanguageFileName = u"Test.lng"_s;
    }
};

} // namespace

TEST_F(PersonalRows, AReplaysNewNameRenamesItsFileAndTheDetailsWait) {
    PutReplay(u"old.rep"_s);
    Open(u"GenReplays"_s, 0);
    Personal.RenameRow(0, u"new"_s);
    EXPECT_TRUE(Files::FileExists(Of(0).ReplayPath + u"new.rep"_s));
    EXPECT_FALSE(Files::FileExists(Of(0).ReplayPath + u"old.rep"_s));
    EXPECT_EQ(Names(PersonalKind::Replay), QStringList{u"new"_s});
    EXPECT_EQ(View.Rows, std::vector{0});
    EXPECT_EQ(State().ReplayName, u"old"_s);
    Personal.RowSelected(0);
    EXPECT_EQ(State().ReplayName, u"new"_s);
}

TEST_F(PersonalRows, ARenameNeverOverwritesAndTheRowKeepsTheTypedText) {
    PutReplay(u"a.rep"_s);
    const QString other = PutReplay(u"b.rep"_s, SampleReplay() + "b");
    Open(u"GenReplays"_s, 0);
    EXPECT_EQ(NumberRaisedBy([&] { Personal.RenameRow(0, u"b"_s); }), ErrorNumber::FileAlreadyExists);
    EXPECT_EQ(Names(PersonalKind::Replay), (QStringList{u"b"_s, u"b"_s}));
    EXPECT_EQ(View.Rows, std::vector{0});
    EXPECT_TRUE(World::ReadFile(other).endsWith('b'));
}

TEST_F(PersonalRows, AnEmptyNameAndTheRowsOwnAreNoRename) {
    const QString path = PutReplay(u"a.rep"_s);
    Open(u"GenReplays"_s, 0);
    Files::Delete(path); // a rename would raise
    Personal.RenameRow(0, {});
    Personal.RenameRow(0, u"a"_s);
    EXPECT_EQ(Names(PersonalKind::Replay), QStringList{u"a"_s});
    EXPECT_TRUE(View.Rows.empty());
}

TEST_F(PersonalRows, OfOtherKindsAreNotRenamed) {
    const QString folder = PutMap(u"A"_s);
    Open(u"GenMaps"_s, 0);
    Personal.RenameRow(0, u"B"_s);
    EXPECT_TRUE(Files::FolderExists(folder));
    EXPECT_EQ(Names(PersonalKind::Map), QStringList{u"A"_s});
    Personal.NodeClicked(u"GenReplays"_s);
    Personal.RenameRow(0, u"B"_s); // there is no row
}

TEST_F(PersonalRows, AHeaderSortsAndTheSelectionGoesAlong) {
    PutMod(u"a"_s, "[Mod]\r\nName=2\r\n");
    PutMod(u"b"_s, "[Mod]\r\nName=1\r\n");
    Open(u"GenMods"_s, 0);
    View.Log.clear();
    Personal.HeaderClicked(ModList::Name);
    EXPECT_EQ(Names(PersonalKind::Mod), (QStringList{u"b.big"_s, u"a.big"_s}));
    EXPECT_EQ(Personal.NewPlaces(), (std::vector{1, 0}));
    EXPECT_EQ(View.Log, (QStringList{u"Changing Mod Sort"_s, u"Changed Mod Sort"_s}));
    Personal.NameTyped(u"of a"_s);
    EXPECT_EQ(Rows(PersonalKind::Mod).Text(1, ModList::Name), u"of a"_s);
    EXPECT_EQ(Ini(u"Mod"_s, u"Name"_s, Of(0).InstallPath + u"a.ini"_s), u"of a"_s);
    EXPECT_EQ(Ini(u"Mod"_s, u"Name"_s, Of(0).InstallPath + u"b.ini"_s), u"1"_s);
}

TEST_F(PersonalRows, AHeaderWithoutAListOrASelectionDoesNoHarm) {
    Personal.RebuildTree();
    Personal.HeaderClicked(0);
    PutMap(u"A"_s);
    Open(u"GenMaps"_s);
    Personal.HeaderClicked(0);
    EXPECT_EQ(Personal.List(PersonalKind::Map).Selected(), GameList::None);
}

TEST_F(PersonalRows, AreCountedInTheStatusBarWithTheSizeOfTheMarkedOnes) {
    UseWords();
    RecordingPersonalView view;
    PersonalFiles personal(view);
    PutMod(u"a"_s);
    Put(Of(0).InstallPath + u"a.big"_s, QByteArray(3000, 'a'));
    PutMod(u"b"_s);
    Put(Of(0).InstallPath + u"b.big"_s, QByteArray(qsizetype{1536} * 1024, 'b'));
    personal.RebuildTree();
    personal.NodeClicked(u"GenMods"_s);
    EXPECT_EQ(personal.State().StatusText, u"Items: 2"_s);
    personal.CheckChanged(0, true);
    EXPECT_EQ(personal.State().StatusText, u"Items: 2, Checked: 1 (2 KB)"_s);
    personal.CheckChanged(1, true);
    EXPECT_EQ(personal.State().StatusText, u"Items: 2, Checked: 2 (1.5 MB)"_s);
    personal.CheckChanged(1, true);
    EXPECT_EQ(personal.State().StatusText, u"Items: 2, Checked: 2 (1.5 MB)"_s) << "a mark counts once";
    personal.CheckChanged(1, false);
    EXPECT_EQ(personal.State().StatusText, u"Items: 2, Checked: 1 (2 KB)"_s);
    personal.CheckChanged(0, false);
    EXPECT_EQ(personal.State().StatusText, u"Items: 2"_s);
    personal.NodeClicked(u"Gen"_s);
    EXPECT_EQ(personal.State().StatusText, QString());
}

TEST_F(PersonalRows, OfMapsAndShellMapsCountAllFilesOfTheirFolders) {
    UseWords();
    RecordingPersonalView view;
    PersonalFiles personal(view);
    Put(PutMap(u"A"_s, 1024) + u"\\A.tga"_s, QByteArray(2048, 't'));
    Put(PutShellMap(1, "[Infos]\r\n", 4096) + u"\\more"_s, QByteArray(1024, 'm'));
    personal.RebuildTree();
    personal.NodeClicked(u"GenMaps"_s);
    personal.CheckAll(true);
    EXPECT_EQ(personal.State().StatusText, u"Items: 1, Checked: 1 (3 KB)"_s);
    personal.NodeClicked(u"GenShellMaps"_s);
    personal.CheckAll(true);
    EXPECT_EQ(personal.State().StatusText, u"Items: 1, Checked: 1 (5 KB)"_s);
}

TEST_F(PersonalRows, AreMarkedAllAndNone) {
    PutMod(u"a"_s);
    PutMod(u"b"_s);
    Open(u"GenMods"_s);
    Personal.CheckChanged(0, true);
    View.Rows.clear();
    Personal.CheckAll(true);
    EXPECT_EQ(Rows(PersonalKind::Mod).Checked(), (std::vector{0, 1}));
    EXPECT_EQ(View.Rows, std::vector{1}) << "the first one had its mark";
    Personal.CheckAll(false);
    EXPECT_TRUE(Rows(PersonalKind::Mod).Checked().empty());
}

TEST_F(PersonalRows, WhoseMarkTheListHasAlreadyAreOnlyCounted) {
    PutMod(u"a"_s);
    Open(u"GenMods"_s);
    Personal.List(PersonalKind::Mod).Rows().SetChecked(0, true);
    Personal.CheckChanged(0, true);
    EXPECT_TRUE(View.Rows.empty());
    EXPECT_EQ(State().StatusText, u"RowCount, RowsChecked"_s);
    EXPECT_GT(View.StatusChanges, 0);
}

TEST_F(PersonalRows, AMarkedReplayThatIsRenamedStaysMarkedOnce) {
    PutReplay(u"a.rep"_s);
    Open(u"GenReplays"_s, 0);
    Personal.CheckChanged(0, true);
    Personal.RenameRow(0, u"b"_s);
    EXPECT_EQ(State().StatusText, u"RowCount, RowsChecked"_s);
    Personal.CheckChanged(0, false);
    EXPECT_EQ(State().StatusText, u"RowCount"_s);
}

TEST_F(PersonalRows, LoseTheirMarksWhenTheListIsMadeAnew) {
    PutMod(u"a"_s);
    Open(u"GenMods"_s);
    Personal.CheckAll(true);
    Personal.NodeClicked(u"GenMods"_s);
    EXPECT_EQ(State().StatusText, u"RowCount"_s);
}

TEST_F(PersonalRows, AnEmptyListSaysWhatWouldStandThere) {
    Open(u"GenMaps"_s);
    EXPECT_EQ(State().HintText, u"NoMaps"_s);
    Personal.NodeClicked(u"GenReplays"_s);
    EXPECT_EQ(State().HintText, u"NoReplays"_s);
    Personal.NodeClicked(u"GenMods"_s);
    EXPECT_EQ(State().HintText, u"NoMods"_s);
    Personal.NodeClicked(u"GenShellMaps"_s);
    EXPECT_EQ(State().HintText, u"NoShellMaps"_s);
    Personal.NodeClicked(u"Gen"_s);
    EXPECT_EQ(State().HintText, QString());
    PutMap(u"A"_s);
    Personal.NodeClicked(u"GenMaps"_s);
    EXPECT_EQ(State().HintText, QString());
}

TEST_F(PersonalRows, OpenTheFolderThatTheyAreOrLieIn) {
    const QString folder = PutMap(u"A"_s);
    PutReplay(u"r.rep"_s);
    Open(u"GenMaps"_s);
    Personal.OpenFolder(0);
    EXPECT_EQ(View.Opened, folder);
    Personal.NodeClicked(u"GenReplays"_s);
    Personal.OpenFolder(0);
    EXPECT_EQ(View.Opened, Of(0).ReplayPath);
    View.Opened.clear();
    Personal.OpenFolder(1);
    EXPECT_EQ(View.Opened, QString());
}

TEST_F(PersonalRows, GiveTheirPathAsTheSystemWritesIt) {
    const QString mod = PutMod(u"a"_s);
    Open(u"GenMods"_s);
    Personal.CopyPath(0);
    EXPECT_EQ(View.Copied, Paths::ToNative(mod));
    Personal.CopyPath(1);
    EXPECT_EQ(View.Copied, Paths::ToNative(mod));
}

TEST_F(PersonalRows, AreAskedForTheirSizeOnceWhenTheyGetTheirMark) {
    UseWords();
    RecordingPersonalView view;
    PersonalFiles personal(view);
    const QString first = PutMod(u"a"_s);
    Put(first, QByteArray(qsizetype{3} * 1024, 'a'));
    Put(PutMod(u"b"_s), QByteArray(qsizetype{4} * 1024, 'b'));
    personal.RebuildTree();
    personal.NodeClicked(u"GenMods"_s);
    personal.CheckChanged(0, true);
    Files::Delete(first);
    personal.CheckChanged(1, true);
    EXPECT_EQ(personal.State().StatusText, u"Items: 2, Checked: 2 (7 KB)"_s) << "no file is asked a second time";
    personal.CheckChanged(0, false);
    EXPECT_EQ(personal.State().StatusText, u"Items: 2, Checked: 1 (4 KB)"_s);
}

TEST_F(PersonalRows, ThatAreGoneCountAsNothing) {
    const QString mod = PutMod(u"a"_s);
    Open(u"GenMods"_s);
    Files::Delete(mod);
    Personal.CheckAll(true);
    EXPECT_EQ(State().StatusText, u"RowCount, RowsChecked"_s);
}
