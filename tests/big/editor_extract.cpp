// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/document_fixture.h"

#include "core/mMain.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class Extracting : public EditorDocument {
protected:
    Extracting() {
        Place.Start();
        View.Target = {.ExtractFolder = At(u"out\\"_s), .ExtractCancelled = false, .RecreateFolders = true};
    }

    ~Extracting() override { NumberedFiles::CloseAll(); }

    [[nodiscard]] QString At(const QString& name) const { return Place.Root() + u'\\' + name; }

    /// The files below a folder of the world, sorted, by what stands behind its path.
    [[nodiscard]] QStringList FilesBelow(const QString& folder) const {
        QStringList names;
        for (const Files::FoundFile& file : Files::ListFolderFiles(At(folder), true))
            names += file.Path.sliced(At(folder).size() + 1);
        names.sort();
        return names;
    }

    /// The place of a row by its text.
    [[nodiscard]] int PlaceOf(const QString& text) { return static_cast<int>(Shown().indexOf(text)); }

    /// Selects rows by their texts, as clicks do.
    void Select(const QStringList& texts) {
        View.Selected.clear();
        for (const QString& text : texts)
            View.Selected.push_back(PlaceOf(text));
        Editor.ClickRow(View.Selected.front());
    }

    /// Paths of a drag by what stands behind its scratch folder.
    [[nodiscard]] static QStringList Below(const QStringList& paths) {
        QStringList names;
        for (const QString& path : paths)
            names += path.sliced(path.indexOf(u'\\', path.indexOf(u"\\Temp\\Drag"_s) + 7) + 1);
        return names;
    }
};

} // namespace

TEST_F(Extracting, TheRootTakesEveryRecordDeletedOnesIncluded) {
    OpenSample();
    mBIG::BigEntries[0].Deleted = true;
    Editor.Extract();
    EXPECT_EQ(FilesBelow(u"out"_s), (QStringList{u"Data\\INI\\Object.ini"_s, u"Data\\map.tga"_s, u"readme.txt"_s}));
    EXPECT_EQ(Speaker.Messages.back().Text, u"ExtractionComplete"_s);
}

TEST_F(Extracting, AnEmptyNameIsLeftOutAndTheOthersCome) {
    OpenSample();
    mBIG::BigEntries[0].Name.clear();
    Editor.Extract();
    EXPECT_EQ(FilesBelow(u"out"_s), (QStringList{u"Data\\INI\\Object.ini"_s, u"Data\\map.tga"_s}));
    EXPECT_EQ(Speaker.ProgressTexts.size(), 2);
}

TEST_F(Extracting, ANodesKeyIsComparedExactlyAndAnywhereInTheName) {
    OpenArchive({{u"data\\a"_s, "1"}, {u"Data\\b"_s, "2"}, {u"more\\data\\c"_s, "3"}});
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Editor.Extract();
    EXPECT_EQ(FilesBelow(u"out"_s), (QStringList{u"data\\a"_s, u"more\\data\\c"_s}));
}

TEST_F(Extracting, ANodeWithoutEntriesDoesNothingAndTheStripSaysSo) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\"_s)); // the entries are in "Data\"
    Editor.Extract();
    EXPECT_EQ(View.FolderQuestions, 0);
    EXPECT_EQ(State().StatusText, u"data\\"_s);
    EXPECT_EQ(View.Told.Text, u"NothingToExtract"_s);
    EXPECT_TRUE(View.Enabled.empty());
}

TEST_F(Extracting, ATableOfOneRecordDoesNothingAtAll) {
    OpenArchive({{u"only"_s, "1"}});
    const QString before = State().StatusText;
    Editor.Extract();
    EXPECT_EQ(View.FolderQuestions, 0);
    EXPECT_EQ(State().StatusText, before);
    EXPECT_EQ(View.Told.Text, u"NothingToExtract"_s);
    View.Told = {};
    mBIG::BigEntries.assign(1, {});
    Editor.Extract();
    EXPECT_EQ(View.Told.Text, QString()) << "The blank record is none to tell of.";
    mBIG::BigEntries.clear();
    Editor.Extract();
    EXPECT_EQ(View.Told.Text, QString());
    EXPECT_EQ(View.FolderQuestions, 0);
}

TEST_F(Extracting, WithoutASelectedNodeEveryRecordIsTaken) {
    OpenSample();
    mBIG::BigEntries[0].Name.clear();
    BigEditor fresh(View); // a tree without any node
    fresh.Extract();
    EXPECT_EQ(Speaker.ProgressTexts.size(), 3) << "the empty name too";
}

TEST_F(Extracting, SelectedRowsComeInTheirOrder) {
    Place.UseLanguage("[LNG]\r\nProgressLbl=%2\r\n");
    Place.Start();
    OpenArchive({{u"b"_s, "1"}, {u"a"_s, "2"}, {u"sub\\c"_s, "3"}});
    Select({u"a"_s, u"b"_s});
    Editor.Extract();
    EXPECT_EQ(FilesBelow(u"out"_s), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(Speaker.ProgressTexts, (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(Extracting, AFolderRowTakesItsEntriesWithExactCompare) {
    OpenArchive({{u"x"_s, "1"}, {u"sub\\a"_s, "2"}, {u"Sub\\b"_s, "3"}});
    Select({u"sub"_s});
    Editor.Extract();
    EXPECT_EQ(FilesBelow(u"out"_s), QStringList{u"sub\\a"_s});
}

TEST_F(Extracting, AFolderAndAFileInsideItExtractTheFileTwiceAndTheSecondTimeBringsTheQuestion) {
    // A list shows a file beside its folder when the backslash stands right behind the shown folder's key.
    OpenArchive({{u"\\x"_s, "1"}, {u"z"_s, "3"}});
    ASSERT_EQ(Shown(), (QStringList{QString(), u"\\x"_s, u"z"_s}));
    View.Selected = {0, 1};
    Editor.ClickRow(0);
    View.Target.RecreateFolders = false;
    Speaker.Answers = {Host::Answer::No};
    Editor.Extract();
    EXPECT_EQ(Speaker.ProgressTexts.size(), 2);
    EXPECT_EQ(Speaker.Messages.size(), 2U);
    EXPECT_EQ(FilesBelow(u"out"_s), QStringList{u"x"_s});
}

TEST_F(Extracting, ACancelledChooserWritesNothing) {
    OpenSample();
    View.Target.ExtractCancelled = true;
    Editor.Extract();
    EXPECT_EQ(View.FolderQuestions, 1);
    EXPECT_TRUE(View.Enabled.empty());
    EXPECT_FALSE(Files::FolderExists(At(u"out"_s)));
}

TEST_F(Extracting, TheWindowTakesNoInputMeanwhile) {
    OpenSample();
    Speaker.OnYield = [&] { EXPECT_EQ(View.Enabled, std::vector<bool>{false}); };
    Editor.Extract();
    EXPECT_EQ(View.Enabled, (std::vector<bool>{false, true}));
}

TEST_F(Extracting, OtherCommandsBeepMeanwhile) {
    const QString path = OpenSample();
    bool tried = false;
    Speaker.OnYield = [&] {
        if (std::exchange(tried, true))
            return;
        Editor.Open();
        Editor.Save();
        Editor.Add();
        Editor.Extract();
        Editor.OpenBigFile(path);
        EXPECT_EQ(Editor.ExtractForDrag(), QStringList{});
        EXPECT_FALSE(Editor.MayClose());
    };
    Editor.Extract();
    EXPECT_EQ(Speaker.Beeps, 7);
    EXPECT_EQ(FilesBelow(u"out"_s).size(), 3);
    Editor.OpenBigFile(path);
    EXPECT_EQ(Speaker.Beeps, 7) << "the lock has gone";
}

TEST_F(Extracting, AnExtractionWithAnEntryOfNoBytesHarmsNoLaterSave) {
    const QString path = OpenArchive({{u"a"_s, "1"}, {u"e"_s, ""}, {u"f"_s, "3"}});
    Speaker.Answers = {Host::Answer::No};
    Editor.Extract();
    Editor.Save();
    EXPECT_EQ(Speaker.Messages.size(), 2U) << "the end and the offer, no failure";
    EXPECT_TRUE(mBIG::ReadBigFile(path));
    EXPECT_EQ(World::ReadFile(At(u"out\\e"_s)), "");
}

TEST_F(Extracting, AnArchiveFromTheCommandLineIsExtractedWithoutAWindow) {
    const QString path = Place.WriteFile(u"x.big"_s, ArchiveOf({{u"Data\\a"_s, "1"}, {u"b"_s, "2"}}));
    EXPECT_TRUE(Editor.ExtractBigFile(path));
    EXPECT_EQ(View.Shown, 0);
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    EXPECT_EQ(State().FocusPane, FocusedPane::Tree);
    EXPECT_EQ(FilesBelow(u"out"_s), (QStringList{u"Data\\a"_s, u"b"_s}));
}

TEST_F(Extracting, AFileFromTheCommandLineThatIsNotThereIsIgnored) {
    EXPECT_FALSE(Editor.ExtractBigFile(At(u"missing.big"_s)));
    EXPECT_EQ(Speaker.Beeps, 0);
    EXPECT_EQ(View.FolderQuestions, 0);
}

TEST_F(Extracting, ARefusedFileFromTheCommandLineBeeps) {
    EXPECT_TRUE(Editor.ExtractBigFile(Place.WriteFile(u"x.big"_s, "nonsense")));
    EXPECT_TRUE(Editor.ExtractBigFile(Place.WriteFile(u"x.txt"_s, ArchiveOf({{u"a"_s, "1"}, {u"b"_s, "2"}}))));
    EXPECT_EQ(Speaker.Beeps, 2);
    EXPECT_EQ(View.FolderQuestions, 0);
}

TEST_F(Extracting, FromAnArchiveThatAnotherProgramHasChangedNothingIsExtracted) {
    const QString path = OpenSample();
    File::Open(path, File::Access::ReadWrite).Write(2000, "more");
    Editor.Extract();
    EXPECT_EQ(View.FolderQuestions, 0);
    EXPECT_FALSE(Files::FolderExists(At(u"out"_s)));
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_TRUE(Speaker.Messages[0].Text.endsWith(u"ArchiveChanged"_s));
    EXPECT_EQ(Speaker.Messages[0].Sign, Host::Icon::Critical);
}

TEST_F(Extracting, FromAnArchiveThatWasReplacedNothingIsDragged) {
    const QString path = OpenSample();
    Files::DeleteForced(path);
    Place.WriteFile(u"a.big"_s, QByteArray(500, 'x'));
    Select({u"readme.txt"_s});
    EXPECT_EQ(Editor.ExtractForDrag(), QStringList());
    EXPECT_TRUE(FilesBelow(u"program\\Temp"_s).isEmpty());
    EXPECT_EQ(View.Told.Text, u"ArchiveChanged"_s);
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(Extracting, AnArchiveThatChangesWhileTheChooserStandsThereCountsToo) {
    const QString path = OpenSample();
    View.OnFolderQuestion = [&] { File::Open(path, File::Access::ReadWrite).Write(2000, "more"); };
    Editor.Extract();
    EXPECT_FALSE(Files::FolderExists(At(u"out"_s)));
    EXPECT_EQ(Speaker.Messages.size(), 1U);
}

TEST_F(Extracting, AnAddedFileIsExtractedThoughTheArchiveHasChanged) {
    const QString path = OpenSample();
    Speaker.FileNames = {Place.WriteFile(u"n.txt"_s, "new")};
    Editor.Add();
    File::Open(path, File::Access::ReadWrite).Write(2000, "more");
    Select({u"n.txt"_s});
    Editor.Extract();
    EXPECT_EQ(World::ReadFile(At(u"out\\n.txt"_s)), "new");
}

TEST_F(Extracting, ADragHandsOutTheFilesOfTheSelectedRows) {
    OpenArchive({{u"b"_s, "1"}, {u"a"_s, "2"}, {u"Sub\\c"_s, "3"}});
    Select({u"b"_s, u"a"_s});
    const QStringList dragged = Editor.ExtractForDrag();
    ASSERT_EQ(dragged.size(), 2);
    EXPECT_TRUE(dragged[0].startsWith(mMain::ProgramFolder + u"\\Temp\\"_s));
    EXPECT_EQ(World::ReadFile(dragged[0]), "1");
    EXPECT_EQ(World::ReadFile(dragged[1]), "2");
    EXPECT_TRUE(Speaker.Messages.empty()) << "no closing message";
    EXPECT_TRUE(View.Enabled.empty());
    EXPECT_EQ(View.FolderQuestions, 0);
}

TEST_F(Extracting, AFileDraggedOutOfAFolderLosesIt) {
    OpenArchive({{u"b"_s, "1"}, {u"Sub\\c"_s, "3"}});
    Editor.ClickNode(NodeOf(u"sub\\"_s));
    Select({u"c"_s});
    const QStringList dragged = Editor.ExtractForDrag();
    EXPECT_EQ(Below(dragged), QStringList{u"c"_s});
    EXPECT_EQ(World::ReadFile(dragged[0]), "3");
}

TEST_F(Extracting, ADraggedFolderTakesItsEntriesInAnyCase) {
    OpenArchive({{u"x"_s, "1"}, {u"Sub\\In\\a"_s, "2"}, {u"SUB\\b"_s, "3"}});
    Select({u"sub"_s});
    const QStringList dragged = Editor.ExtractForDrag();
    EXPECT_EQ(Below(dragged), QStringList{u"sub"_s});
    EXPECT_TRUE(Files::FolderExists(dragged[0]));
    EXPECT_EQ(World::ReadFile(dragged[0] + u"\\in\\a"_s), "2");
    EXPECT_EQ(World::ReadFile(dragged[0] + u"\\b"_s), "3");
}

TEST_F(Extracting, AFolderAmongTheRowsMovesTheFilesIntoTheirFolders) {
    OpenArchive({{u"Top\\f"_s, "1"}, {u"Top\\Sub\\a"_s, "2"}, {u"x"_s, "3"}});
    Editor.ClickNode(NodeOf(u"top\\"_s));
    Select({u"sub"_s, u"f"_s});
    const QStringList dragged = Editor.ExtractForDrag();
    EXPECT_EQ(Below(dragged), (QStringList{u"top\\sub"_s, u"f"_s}));
    EXPECT_TRUE(Files::FolderExists(dragged[0]));
    EXPECT_FALSE(Files::FileExists(dragged[1])) << "it is in its folder";
    const QString folder = dragged[1].chopped(1);
    EXPECT_EQ(World::ReadFile(folder + u"Top\\f"_s), "1");
    // The next drag has no folder among its rows, and none left behind.
    Select({u"f"_s});
    const QStringList next = Editor.ExtractForDrag();
    EXPECT_EQ(World::ReadFile(next[0]), "1");
    EXPECT_FALSE(Files::FolderExists(folder + u"Top"_s));
}

TEST_F(Extracting, ANameThatLeadsOutOfTheScratchFolderIsNotHandedOut) {
    OpenArchive({{u".."_s, "1"}, {u"b"_s, "2"}, {u"..\\c"_s, "3"}});
    Select({u".."_s, u"b"_s});
    View.Selected = {0, 1, 2};
    ASSERT_EQ(Shown(), (QStringList{u".."_s, u".."_s, u"b"_s})) << "The folder stands before the files.";
    EXPECT_EQ(Below(Editor.DragNames()), QStringList{u"b"_s});
    EXPECT_EQ(Below(Editor.ExtractForDrag()), QStringList{u"b"_s});
}

TEST_F(Extracting, AFolderWithoutEntriesIsHandedOutWithoutAnExtraction) {
    OpenSample();
    Editor.Extract();
    Speaker.ProgressTexts.clear();
    mBIG::BigEntries.resize(2); // what stands below the folder's node has gone from the table
    mBIG::BigEntries[1].Name = u"other"_s;
    Select({u"data"_s});
    EXPECT_EQ(Below(Editor.ExtractForDrag()), QStringList{u"data"_s});
    EXPECT_EQ(Speaker.ProgressTexts, QStringList{});
}

TEST_F(Extracting, TheEndOfADragRemovesItsFilesAndFolders) {
    OpenSample();
    Select({u"data"_s, u"readme.txt"_s});
    Editor.ExtractForDrag();
    EXPECT_FALSE(FilesBelow(u"program\\Temp"_s).isEmpty());
    BigEditor::DragEnded();
    EXPECT_EQ(Files::ListFolder(mMain::ProgramFolder + u"\\Temp\\*.*"_s, true), QStringList{});
    BigEditor::DragEnded(); // once more: nothing
}

TEST_F(Extracting, ADragLeavesTheFilesOfUnsavedModifiedEntriesAlone) {
    OpenSample();
    mBIG::BigEntries[0].IsNew = true;
    mBIG::BigEntries[0].SourcePath = Place.WriteFile(u"program\\Temp\\readme.txt"_s, "changed by the user");
    Select({u"readme.txt"_s});
    const QStringList dragged = Editor.ExtractForDrag();
    EXPECT_EQ(World::ReadFile(dragged[0]), "changed by the user");
    BigEditor::DragEnded();
    EXPECT_EQ(World::ReadFile(mBIG::BigEntries[0].SourcePath), "changed by the user");
}
