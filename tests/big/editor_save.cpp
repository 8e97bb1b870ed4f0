// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"
#include "tests/support/Printing.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class EditorSave : public EditorDocument {
protected:
    void AddFile(const QString& path, const QByteArray& bytes) {
        Speaker.FileNames = {Place.WriteFile(path, bytes)};
        Editor.Add();
    }

    void MakeNew() {
        Speaker.FileNames = {Place.Root() + u"\\fresh.big"_s};
        Editor.New();
    }

    static QStringList Names() {
        QStringList names;
        for (const BigEntry& entry : mBIG::BigEntries)
            names += entry.Name;
        return names;
    }
};

} // namespace

TEST_F(EditorSave, SaveWritesTheOpenArchiveAndReadsItBack) {
    const QString path = OpenSample();
    AddFile(u"n.txt"_s, "new");
    Editor.Save();
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(Names(), QStringList({u"readme.txt"_s, u"Data\\INI\\Object.ini"_s, u"Data\\map.tga"_s, u"n.txt"_s}));
    EXPECT_FALSE(mBIG::BigEntries[3].IsNew);
    EXPECT_FALSE(Editor.List().Row(2).IsNew);
    EXPECT_FALSE(Speaker.ProgressShown);
    EXPECT_TRUE(Speaker.Messages.empty());
    const BigEntry& added = mBIG::BigEntries[3];
    EXPECT_EQ(World::ReadFile(path).mid(added.Offset, added.Size), QByteArray("new"));
}

TEST_F(EditorSave, ASaveUnderANameThatIsNoArchivesCanBeSavedAgain) {
    OpenSample();
    AddFile(u"n.txt"_s, "new");
    const QString other = Place.Root() + u"\\other.dat"_s;
    Speaker.FileNames = {other};
    Editor.SaveAs();
    EXPECT_EQ(mBIG::BigFileName, other);
    Editor.Save();
    const BigEntry& added = mBIG::BigEntries[3];
    EXPECT_EQ(World::ReadFile(other).mid(added.Offset, added.Size), QByteArray("new"));
}

TEST_F(EditorSave, SaveHidesTheDetailsAndKeepsTheFolder) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\ini\\"_s));
    Editor.ClickRow(0);
    Editor.Save();
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_FALSE(State().ModifyEnabled);
    EXPECT_EQ(State().SelectedNode, NodeOf(u"data\\ini\\"_s));
    EXPECT_EQ(Shown(), QStringList({u"Object.ini"_s}));
}

TEST_F(EditorSave, AFolderThatLostItsEntriesLeadsBackToTheRoot) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\ini\\"_s));
    mBIG::BigEntries[1].Deleted = true;
    Editor.Save();
    EXPECT_EQ(State().SelectedNode, 1);
    EXPECT_EQ(Shown(), QStringList({u"data"_s, u"readme.txt"_s}));
}

TEST_F(EditorSave, AFreshArchiveHasNothingToSave) {
    MakeNew();
    Editor.Save();
    EXPECT_FALSE(Files::FileExists(Place.Root() + u"\\fresh.big"_s));
    EXPECT_TRUE(Speaker.ProgressShown) << "The progress window stays on the screen.";
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorSave, AFreshArchiveWithNothingToSaveKeepsTheFlagForChanges) {
    OpenSample();
    AddFile(u"n.txt"_s, "1");
    Speaker.Answers = {Answer::No};
    MakeNew();
    Editor.Save();
    EXPECT_TRUE(State().Modified);
    Speaker.Answers = {Answer::Yes};
    EXPECT_TRUE(Editor.MayClose()) << "There is nothing that could be lost.";
}

TEST_F(EditorSave, AnArchiveOfOneEntryCannotBeSaved) {
    const QString path = OpenArchive({{u"only.txt"_s, "x"}});
    const QByteArray before = World::ReadFile(path);
    Editor.Save();
    EXPECT_TRUE(Speaker.ProgressShown);
    EXPECT_EQ(World::ReadFile(path), before);
}

TEST_F(EditorSave, AFreshArchiveIsSavedWithItsBlankRecord) {
    MakeNew();
    AddFile(u"first.txt"_s, "1");
    Editor.Save();
    EXPECT_EQ(Names(), QStringList({{}, u"first.txt"_s}));
    EXPECT_EQ(Shown(), QStringList({u"first.txt"_s}));
    EXPECT_EQ(World::ReadFile(Place.Root() + u"\\fresh.big"_s).first(4), QByteArray("BIG4"));
}

TEST_F(EditorSave, AnArchiveWithoutANameAsksForOne) {
    Place.UseLanguage("[LNG]\r\nNew=Nouveau\r\n");
    Place.Start();
    OpenSample();
    const QString named = Place.Root() + u"\\named.big"_s;
    mBIG::BigFileName = u"NouveauBIG.big"_s;
    Speaker.FileNames = {std::nullopt};
    Editor.Save();
    EXPECT_EQ(Speaker.ProgressTexts, QStringList()) << "A cancelled dialog ends the command.";
    Speaker.FileNames = {named};
    Editor.Save();
    EXPECT_EQ(mBIG::BigFileName, named);
    EXPECT_EQ(Editor.Tree().Node(1).Text, u"named.big"_s);
    EXPECT_TRUE(Files::FileExists(named));
}

TEST_F(EditorSave, ACancelledNameInTheQuestionKeepsTheWindow) {
    OpenSample();
    AddFile(u"n.txt"_s, "1");
    mBIG::BigFileName = u"NewBIG.big"_s;
    Speaker.Answers = {Answer::Yes};
    Speaker.FileNames = {std::nullopt};
    EXPECT_FALSE(Editor.MayClose());
}

TEST_F(EditorSave, SaveAsWritesElsewhereAndGoesOnThere) {
    const QString first = OpenSample();
    const QByteArray before = World::ReadFile(first);
    AddFile(u"n.txt"_s, "new");
    const QString second = Place.Root() + u"\\second.big"_s;
    Speaker.FileNames = {second};
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Editor.SaveAs();
    EXPECT_EQ(World::ReadFile(first), before);
    EXPECT_EQ(mBIG::BigFileName, second);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(Editor.Tree().Node(1).Text, u"second.big"_s);
    EXPECT_EQ(Shown(), QStringList({u"ini"_s, u"map.tga"_s}));
}

TEST_F(EditorSave, ACancelledSaveAsChangesNothing) {
    const QString path = OpenSample();
    AddFile(u"n.txt"_s, "1");
    Speaker.FileNames = {std::nullopt};
    Editor.SaveAs();
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(mBIG::BigFileName, path);
}

// The reader takes no such name, so the table is not read back; the archive is on disk all the same.
TEST_F(EditorSave, SaveAsUnderAnotherEndingTakesTheNameWithoutReadingItBack) {
    OpenSample();
    AddFile(u"n.txt"_s, "new");
    const QString other = Place.Root() + u"\\other.dat"_s;
    Speaker.FileNames = {other};
    Editor.SaveAs();
    EXPECT_TRUE(Files::FileExists(other));
    EXPECT_EQ(mBIG::BigFileName, other);
    EXPECT_EQ(Editor.Tree().Node(1).Text, u"other.dat"_s);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorSave, ATargetThatCannotBeWrittenIsToldAndNothingIsLost) {
    const QString path = OpenSample();
    AddFile(u"n.txt"_s, "1");
    const QByteArray before = World::ReadFile(path);
    const QString missing = Place.Root() + u"\\no folder\\x.big"_s;
    Speaker.FileNames = {missing};
    Editor.SaveAs();
    EXPECT_FALSE(Speaker.ProgressShown);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_TRUE(Speaker.Messages[0].Text.startsWith(u"SaveFailed\r\n"_s + Paths::ToNative(missing) + u": "_s));
    EXPECT_EQ(Speaker.Messages[0].Sign, Host::Icon::Critical);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(mBIG::BigFileName, path);
    EXPECT_EQ(World::ReadFile(path), before);
    Editor.Save();
    EXPECT_FALSE(State().Modified) << "The added file is still there to be saved.";
    EXPECT_EQ(mBIG::BigEntries.size(), 4U);
}

TEST_F(EditorSave, CommandsDuringASaveBeepAndWait) {
    const QString path = OpenSample();
    AddFile(u"n.txt"_s, "1");
    bool stayed = true;
    Speaker.OnYield = [&] {
        Editor.New();
        Editor.Open();
        Editor.Save();
        Editor.SaveAs();
        Editor.Add();
        Editor.FileVersion();
        Editor.OpenBigFile(path);
        stayed = stayed && !Editor.MayClose();
    };
    Speaker.Dialogs.clear();
    Editor.Save();
    EXPECT_EQ(Speaker.Beeps, Speaker.Yields * 8);
    EXPECT_TRUE(stayed);
    EXPECT_TRUE(Speaker.Dialogs.empty());
    EXPECT_EQ(mBIG::BigEntries.size(), 4U);
    Speaker.OnYield = {};
    EXPECT_TRUE(Editor.MayClose());
}

TEST_F(EditorSave, TheFileVersionIsShownAndMarksNoChange) {
    OpenSample();
    View.OnVersion = [] { mBIG::BigVersion = 3; };
    Editor.FileVersion();
    EXPECT_EQ(View.Versions, 1);
    EXPECT_FALSE(State().Modified);
    Editor.Save();
    EXPECT_EQ(mBIG::BigVersion, 3);
}

TEST_F(EditorSave, AFolderThatIsSpeltWithCapitalsIsShownAgain) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\ini\\"_s));
    ASSERT_TRUE(Editor.RenameNode(NodeOf(u"data\\"_s), u"Stuff"_s));
    Editor.NewFolder();
    const int folder = State().SelectedNode;
    ASSERT_TRUE(Editor.RenameNode(folder, u"Maps"_s));
    Speaker.FileNames = {Place.WriteFile(u"desert.map"_s, "sand")};
    Editor.Add();
    Editor.Save();
    EXPECT_EQ(State().SelectedNode, NodeOf(Editor.Tree().Node(State().SelectedNode).Key));
    EXPECT_TRUE(Editor.Tree().Node(State().SelectedNode).Key.endsWith(u"maps\\"_s));
    EXPECT_EQ(Shown(), QStringList({u"desert.map"_s}));
}

TEST_F(EditorSave, ANewFolderWithoutFilesLeadsBackToTheRootAndItsList) {
    OpenSample();
    Editor.NewFolder();
    Editor.Save();
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    EXPECT_EQ(Shown(), QStringList({u"data"_s, u"readme.txt"_s}));
}

TEST_F(EditorSave, ASourceThatHasGoneIsAskedAboutBeforeAnythingIsWritten) {
    const QString path = OpenSample();
    const QByteArray before = World::ReadFile(path);
    AddFile(u"n.txt"_s, "new");
    AddFile(u"m.txt"_s, "new too");
    Files::Delete(Place.Root() + u"\\n.txt"_s);
    Speaker.Answers = {Answer::No};
    Editor.Save();
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"SourcesMissing\r\nn.txt\r\n\r\nSaveAllTheSame"_s);
    EXPECT_EQ(Speaker.Messages[0].Default, Answer::No);
    EXPECT_EQ(World::ReadFile(path), before);
    EXPECT_TRUE(State().Modified);
    EXPECT_TRUE(Speaker.ProgressTexts.empty());
    Speaker.Answers = {Answer::Yes};
    Editor.Save();
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(mBIG::BigEntries.at(3).Size, 0) << "as ever";
    EXPECT_EQ(mBIG::BigEntries.at(4).Size, 7);
}

TEST_F(EditorSave, WithoutAnAnswerToAMissingSourceTheWindowStays) {
    OpenSample();
    AddFile(u"n.txt"_s, "new");
    Files::Delete(Place.Root() + u"\\n.txt"_s);
    Speaker.Answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(Editor.MayClose());
}

TEST_F(EditorSave, EveryCommandTakesInWhatIsBeingTypedFirst) {
    OpenSample();
    View.Target.ExtractCancelled = true;
    View.OnCommit = [] { mBIG::BigEntries[0].Name = u"typed.txt"_s; };
    const std::vector<std::function<void()>> commands{
        [this] { Editor.Save(); },
        [this] {
            Speaker.FileNames = {Place.Root() + u"\\b.big"_s};
            Editor.SaveAs();
        },
        [this] { Editor.NewFolder(); },
        [this] { Editor.Extract(); },
        [this] { Editor.FileVersion(); },
        [this] { EXPECT_TRUE(Editor.MayClose()); },
        [this] {
            Speaker.FileNames = {std::nullopt};
            Editor.Add();
        },
        [this] {
            Speaker.Answers = {Answer::No};
            Editor.Delete();
        },
        [this] {
            Speaker.FileNames = {std::nullopt};
            Editor.Open();
        },
        [this] {
            Speaker.FileNames = {std::nullopt};
            Editor.New();
        },
    };
    for (std::size_t command = 0; command < commands.size(); ++command) {
        mBIG::BigEntries[0].Name = u"readme.txt"_s;
        commands[command]();
        EXPECT_EQ(mBIG::BigEntries[0].Name, u"typed.txt"_s) << command;
    }
}

TEST_F(EditorSave, AWrittenArchiveThatCanNotBeReadBackIsToldAndNothingIsSavedOverIt) {
    const QString path = OpenArchive({{u"a.txt"_s, "first"}, {u"b.txt"_s, "second"}}, u"program\\Temp\\a.big"_s);
    mBIG::BigVersion = 2;
    Editor.Save();
    ASSERT_FALSE(Files::FileExists(path)) << "A save empties the folder in which it lies.";
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"SavedNotRead"_s);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(View.Told.Text, QString()) << "No link gives the old offsets other distances.";
    const QByteArray other(200, 'x');
    Place.WriteFile(u"program\\Temp\\a.big"_s, other);
    Editor.Save();
    ASSERT_EQ(Speaker.Messages.size(), 2U);
    EXPECT_TRUE(Speaker.Messages[1].Text.startsWith(u"SaveFailed"_s));
    EXPECT_EQ(World::ReadFile(path), other);
    OpenArchive({{u"a.txt"_s, "first"}, {u"b.txt"_s, "second"}}, u"c.big"_s);
    Editor.Save();
    EXPECT_EQ(Speaker.Messages.size(), 2U) << "Another archive can be saved.";
}
