// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"
#include "tests/support/ArchiveBytes.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class EditorCommands : public EditorDocument {
protected:
    /// Adds a file of the world under the selected folder.
    QString AddFile(const QString& path, const QByteArray& bytes) {
        QString source = Place.WriteFile(path, bytes);
        Speaker.FileNames = {source};
        Editor.Add();
        return source;
    }

    void MakeNew(const QString& name = u"fresh.big"_s) {
        Speaker.FileNames = {Place.Root() + u'\\' + name};
        Editor.New();
    }
};

} // namespace

TEST_F(EditorCommands, TheArchiveDialogsAreTheSameForNewOpenAndSaveAs) {
    Speaker.FileNames = {std::nullopt, std::nullopt, std::nullopt};
    Editor.New();
    Editor.Open();
    Editor.SaveAs();
    ASSERT_EQ(Speaker.Dialogs.size(), 3U);
    for (const Host::FileDialog& dialog : Speaker.Dialogs) {
        EXPECT_EQ(dialog.Title, u"Big Editor"_s);
        EXPECT_EQ(dialog.DefaultExtension, u"big"_s);
        EXPECT_EQ(dialog.DefaultName, u"*.big"_s);
        EXPECT_EQ(dialog.Filter, u"Fichiers BIG (*.big)|*.big|Tous les fichiers (*.*)|*.*"_s);
    }
    EXPECT_FALSE(State().ArchiveOpen) << "A cancelled dialog changes nothing.";
    EXPECT_EQ(mBIG::BigFileName, QString());
}

TEST_F(EditorCommands, TheDialogsBeginBesideTheOpenArchive) {
    MakeNew();
    EXPECT_EQ(Speaker.Dialogs.back().Folder, QString());
    Speaker.FileNames = {std::nullopt};
    Editor.SaveAs();
    EXPECT_EQ(Speaker.Dialogs.back().Folder, Place.Root() + u'\\');
}

TEST_F(EditorCommands, NewNamesTheArchiveAndWritesNothing) {
    mBIG::BigVersion = 0;
    qint32 offered = -1;
    View.OnVersion = [&] { offered = mBIG::BigVersion; };
    MakeNew();
    EXPECT_EQ(mBIG::BigFileName, Place.Root() + u"\\fresh.big"_s);
    EXPECT_FALSE(Files::FileExists(mBIG::BigFileName));
    EXPECT_EQ(View.Versions, 1);
    EXPECT_EQ(offered, 2) << "The version chooser starts from 2.";
    ASSERT_EQ(mBIG::BigEntries.size(), 1U);
    EXPECT_EQ(mBIG::BigEntries[0].Name, QString());
    EXPECT_EQ(Editor.Tree().Count(), 1);
    EXPECT_EQ(Editor.Tree().Node(1).Text, u"fresh.big"_s);
    EXPECT_EQ(Editor.List().Count(), 0);
    EXPECT_TRUE(State().ArchiveOpen);
    EXPECT_EQ(State().SelectedNode, 1);
    EXPECT_EQ(State().NewFolderNumber, 1);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorCommands, NewKeepsTheVersionThatWasChosen) {
    View.OnVersion = [] { mBIG::BigVersion = 1; };
    MakeNew();
    EXPECT_EQ(mBIG::BigVersion, 1);
}

TEST_F(EditorCommands, NewKeepsTheFlagForChangesWhenTheUserAnswersNo) {
    OpenSample();
    AddFile(u"n.txt"_s, "1");
    Editor.ClickRow(1);
    Speaker.Answers = {Answer::No};
    MakeNew();
    EXPECT_TRUE(State().Modified);
    EXPECT_TRUE(State().DetailsVisible) << "New leaves the details group as it is.";
}

TEST_F(EditorCommands, TheQuestionAboutChangesNamesTheArchive) {
    Place.UseLanguage("[LNG]\r\nQuitSave=Save '%1' first?\r\n");
    Place.Start();
    const QString path = OpenSample();
    AddFile(u"n.txt"_s, "1");
    Speaker.Answers = {Answer::Cancel};
    EXPECT_FALSE(Editor.MayClose());
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"Save '%1' first?"_s.arg(Paths::ToNative(path)));
    EXPECT_EQ(Speaker.Messages[0].Title, u"Brindock 2005"_s);
    EXPECT_EQ(Speaker.Messages[0].Sign, Host::Icon::Question);
    EXPECT_EQ(Speaker.Messages[0].Choice, Host::Buttons::YesNoCancel);
}

TEST_F(EditorCommands, NothingIsAskedWithoutChanges) {
    OpenSample();
    EXPECT_TRUE(Editor.MayClose());
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(EditorCommands, CancelInTheQuestionEndsNewAndOpen) {
    const QString path = OpenSample();
    AddFile(u"n.txt"_s, "1");
    Speaker.Dialogs.clear();
    Speaker.Answers = {Answer::Cancel, Answer::Cancel};
    Editor.New();
    Editor.Open();
    EXPECT_TRUE(Speaker.Dialogs.empty());
    EXPECT_EQ(mBIG::BigFileName, path);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorCommands, YesInTheQuestionSavesAndGoesOn) {
    const QString path = OpenSample();
    AddFile(u"n.txt"_s, "1");
    Speaker.Answers = {Answer::Yes};
    EXPECT_TRUE(Editor.MayClose());
    EXPECT_FALSE(State().Modified);
    EXPECT_TRUE(Editor.LoadBig(path));
    EXPECT_EQ(mBIG::BigEntries.size(), 4U);
}

TEST_F(EditorCommands, NoInTheQuestionGoesOnWithoutSaving) {
    const QString path = OpenSample();
    const QByteArray before = World::ReadFile(path);
    AddFile(u"n.txt"_s, "1");
    Speaker.Answers = {Answer::No};
    EXPECT_TRUE(Editor.MayClose());
    EXPECT_EQ(World::ReadFile(path), before);
}

TEST_F(EditorCommands, AFailedSaveInTheQuestionKeepsTheWindow) {
    OpenSample();
    AddFile(u"n.txt"_s, "1");
    mBIG::BigFileName = Place.Root() + u"\\no folder\\a.big"_s;
    Speaker.Answers = {Answer::Yes};
    EXPECT_FALSE(Editor.MayClose());
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorCommands, OpenTakesTheChosenArchiveAndForgetsTheOldState) {
    OpenSample();
    AddFile(u"n.txt"_s, "1");
    Editor.ClickRow(1);
    const QString other = Place.WriteFile(u"other.big"_s, ArchiveOf({{u"x\\1"_s, "1"}, {u"y\\2"_s, "2"}}, "L231"));
    Speaker.Answers = {Answer::No};
    Speaker.FileNames = {other};
    Editor.Open();
    EXPECT_EQ(mBIG::BigFileName, other);
    EXPECT_EQ(mBIG::BigVersion, 1);
    EXPECT_FALSE(State().Modified);
    EXPECT_FALSE(State().DetailsVisible);
    EXPECT_EQ(State().FocusPane, FocusedPane::Tree);
    EXPECT_EQ(State().StatusText, u"Ready"_s);
    EXPECT_EQ(Shown(), QStringList({u"x"_s, u"y"_s}));
}

TEST_F(EditorCommands, ARefusedFileBeepsAndLeavesTheWindow) {
    const QString path = OpenSample();
    AddFile(u"n.txt"_s, "1");
    const QStringList shown = Shown();
    Speaker.Answers = {Answer::No};
    Speaker.FileNames = {Place.WriteFile(u"bad.big"_s, "junk")};
    Editor.Open();
    EXPECT_EQ(Speaker.Beeps, 1);
    EXPECT_EQ(Speaker.Messages.size(), 1U) << "Only the question.";
    EXPECT_EQ(mBIG::BigFileName, path);
    EXPECT_EQ(Shown(), shown);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorCommands, ASaveAfterARefusedFileWritesTheArchiveInTheWindow) {
    const QString path = OpenSample();
    const std::size_t entries = mBIG::BigEntries.size();
    // Two records, the first with an offset of zero: refused when the table has been replaced already.
    Speaker.FileNames = {
        Place.WriteFile(u"bad.big"_s, HeaderOf("BIGF", 2, 44) + Record(0, 1, "x") + Record(45, 1, "y"))};
    Editor.Open();
    EXPECT_EQ(Speaker.Beeps, 1);
    ASSERT_EQ(mBIG::BigEntries.size(), entries);
    Editor.Save();
    ASSERT_EQ(mBIG::BigEntries.size(), entries);
    const BigEntry& first = mBIG::BigEntries[0];
    EXPECT_EQ(World::ReadFile(path).mid(first.Offset, first.Size), QByteArray("hello"));
}

TEST_F(EditorCommands, AddPutsAFileBehindTheOthersInTheSelectedFolder) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\"_s));
    const QString source = AddFile(u"files\\New One.TGA"_s, "12345");
    ASSERT_EQ(mBIG::BigEntries.size(), 4U);
    const BigEntry& entry = mBIG::BigEntries[3];
    EXPECT_EQ(entry.Name, u"data\\New One.TGA"_s) << "The key of the folder, in its lower case, is the prefix.";
    EXPECT_TRUE(entry.IsNew);
    EXPECT_EQ(entry.SourcePath, source);
    EXPECT_EQ(entry.Size, 5);
    EXPECT_FALSE(entry.Deleted);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(Shown(), QStringList({u"ini"_s, u"map.tga"_s, u"New One.TGA"_s}));
    EXPECT_TRUE(Editor.List().Row(2).IsNew);
    EXPECT_EQ(Speaker.Dialogs.back().Filter, u"Tous les fichiers (*.*)|*.*"_s);
}

TEST_F(EditorCommands, ACancelledAddChangesNothing) {
    OpenSample();
    Speaker.FileNames = {std::nullopt};
    Editor.Add();
    EXPECT_EQ(mBIG::BigEntries.size(), 3U);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorCommands, AddFindsTheNameInAnyCaseAndAsks) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Speaker.Answers = {Answer::Yes};
    const QString source = AddFile(u"MAP.TGA"_s, "another picture");
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"data\\MAP.TGA\r\n\r\nFileAlreadyExists"_s);
    EXPECT_EQ(Speaker.Messages[0].Sign, Host::Icon::Question);
    EXPECT_EQ(Speaker.Messages[0].Choice, Host::Buttons::YesNo);
    ASSERT_EQ(mBIG::BigEntries.size(), 3U);
    const BigEntry& entry = mBIG::BigEntries[2];
    EXPECT_EQ(entry.Name, u"data\\MAP.TGA"_s) << "The stored case changes.";
    EXPECT_TRUE(entry.IsNew);
    EXPECT_EQ(entry.SourcePath, source);
    EXPECT_EQ(entry.Size, 15);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorCommands, NoLeavesTheEntryThatIsThere) {
    OpenSample();
    Speaker.Answers = {Answer::No};
    AddFile(u"README.TXT"_s, "longer than before");
    EXPECT_EQ(mBIG::BigEntries[0].Name, u"readme.txt"_s);
    EXPECT_FALSE(mBIG::BigEntries[0].IsNew);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorCommands, AddBringsADeletedRecordBack) {
    OpenSample();
    mBIG::BigEntries[0].Deleted = true;
    Speaker.Answers = {Answer::Yes};
    AddFile(u"readme.txt"_s, "back");
    EXPECT_FALSE(mBIG::BigEntries[0].Deleted);
    EXPECT_EQ(Shown(), QStringList({u"data"_s, u"readme.txt"_s}));
}

TEST_F(EditorCommands, AddToAFreshArchiveKeepsTheBlankRecord) {
    MakeNew();
    AddFile(u"first.txt"_s, "1");
    ASSERT_EQ(mBIG::BigEntries.size(), 2U);
    EXPECT_EQ(mBIG::BigEntries[0].Name, QString());
    EXPECT_EQ(mBIG::BigEntries[1].Name, u"first.txt"_s);
    EXPECT_EQ(Shown(), QStringList({u"first.txt"_s}));
}

TEST_F(EditorCommands, AddWithoutATableMakesTheBlankRecordToo) {
    AddFile(u"first.txt"_s, "1");
    ASSERT_EQ(mBIG::BigEntries.size(), 2U);
    EXPECT_EQ(mBIG::BigEntries[0].Name, QString());
}

TEST_F(EditorCommands, AnAddedFileThatVanishedHasSizeZero) {
    OpenSample();
    Speaker.FileNames = {Place.Root() + u"\\vanished.txt"_s};
    Editor.Add();
    ASSERT_EQ(mBIG::BigEntries.size(), 4U);
    EXPECT_EQ(mBIG::BigEntries[3].Size, 0);
    EXPECT_TRUE(mBIG::BigEntries[3].IsNew);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorCommands, ANewEntrysDetailsShowTheFilesCurrentLength) {
    OpenSample();
    AddFile(u"grows.txt"_s, "1");
    Place.WriteFile(u"grows.txt"_s, QByteArray(5000, 'x'));
    Editor.ClickRow(2);
    EXPECT_EQ(State().DetailsName, u"grows.txt"_s);
    EXPECT_EQ(State().DetailsSize, u"4 KiloBytes"_s);
    EXPECT_EQ(Editor.List().SizeText(2), u"1"_s) << "The list keeps the size of the time when it was added.";
}
