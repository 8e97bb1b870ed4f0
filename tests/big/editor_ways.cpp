// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The ways to an archive and through it: where dialogs begin, what a refused file says, the folder above, several
/// files at once.
#include "core/Game.h"
#include "core/LastTime.h"
#include "platform/Files.h"
#include "tests/big/document_fixture.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class EditorWays : public EditorDocument {
protected:
    ~EditorWays() override { Game = {}; }

    QString File(const QString& name, const QByteArray& bytes = "x") { return Place.WriteFile(name, bytes); }

    const Host::FileDialog& LastDialog() { return Speaker.Dialogs.back(); }
};

} // namespace

TEST_F(EditorWays, OpenBeginsWithTheFirstGameThatWasFound) {
    Game = {};
    Speaker.FileNames = {std::nullopt};
    Editor.Open();
    EXPECT_EQ(LastDialog().Folder, QString());
    File(u"Games\\ZH\\x"_s);
    Game[0].InstallPath = Place.Root() + u"\\none\\"_s;
    Game[1].InstallPath = Place.Root() + u"\\Games\\ZH\\"_s;
    Game[2].InstallPath = Place.Root() + u'\\';
    Speaker.FileNames = {std::nullopt};
    Editor.Open();
    EXPECT_EQ(LastDialog().Folder, Game[1].InstallPath);
}

TEST_F(EditorWays, OpenBeginsWhereTheLastFileWas) {
    Game[1].InstallPath = Place.Root() + u'\\';
    Speaker.FileNames = {File(u"there\\none.txt"_s)};
    Editor.Open();
    Speaker.FileNames = {std::nullopt};
    Editor.Open();
    EXPECT_EQ(LastDialog().Folder, Place.Root() + u"\\there\\"_s);
}

TEST_F(EditorWays, OpenBeginsBesideTheOpenArchive) {
    LastTime::NoteFolder(u"big"_s, Place.ProgramFolder());
    OpenSample();
    Speaker.FileNames = {std::nullopt};
    Editor.Open();
    EXPECT_EQ(LastDialog().Folder, Place.Root() + u'\\');
}

TEST_F(EditorWays, AddBeginsWhereTheLastFileWasAndSaysAdd) {
    OpenSample();
    Speaker.FileNames = {File(u"from\\new.txt"_s)};
    Editor.Add();
    EXPECT_EQ(LastDialog().Title, u"Add"_s);
    EXPECT_EQ(LastDialog().Folder, QString());
    Speaker.FileNames = {std::nullopt};
    Editor.Add();
    EXPECT_EQ(LastDialog().Folder, Place.Root() + u"\\from\\"_s);
}

TEST_F(EditorWays, AnAddedRowIsSelectedAndInView) {
    OpenSample();
    Speaker.FileNames = {File(u"new.txt"_s)};
    Editor.Add();
    ASSERT_GE(View.Revealed, 0);
    EXPECT_EQ(Editor.List().Text(View.Revealed), u"new.txt"_s);
    EXPECT_EQ(View.Selected, std::vector<int>{View.Revealed});
}

TEST_F(EditorWays, AddTakesSeveralFilesEachAsForOne) {
    OpenArchive({{u"a.txt"_s, "old"}, {u"b.txt"_s, "old"}, {u"z.txt"_s, "old"}});
    Speaker.FileLists = {{File(u"new\\a.txt"_s, "1"), File(u"new\\b.txt"_s, "22"), File(u"new\\c.txt"_s, "333")}};
    Speaker.Answers = {Answer::No, Answer::Yes};
    Editor.Add();
    EXPECT_EQ(Speaker.Messages.size(), 2U);
    EXPECT_FALSE(mBIG::BigEntries[0].IsNew);
    EXPECT_TRUE(mBIG::BigEntries[1].IsNew);
    ASSERT_EQ(mBIG::BigEntries.size(), 4U);
    EXPECT_EQ(mBIG::BigEntries[3].Name, u"c.txt"_s);
    EXPECT_EQ(mBIG::BigEntries[3].Size, 3);
    EXPECT_EQ(View.Selected, (std::vector<int>{1, 3}));
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorWays, NothingIsAddedWhenAllIsRefused) {
    OpenArchive({{u"a.txt"_s, "old"}, {u"b.txt"_s, "old"}});
    Speaker.FileLists = {{File(u"new\\a.txt"_s), File(u"new\\b.txt"_s)}};
    Speaker.Answers = {Answer::No, Answer::No};
    Editor.Add();
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(View.Revealed, -1);
}

TEST_F(EditorWays, ARefusedFileSaysWhy) {
    Place.UseLanguage(
        "[LNG]\r\nNotOpened=Not opened: %1\r\nNoBigName=%1 is no name\r\nNotABigFile=%1 is no archive\r\n");
    Place.Start();
    Editor.OpenBigFile(File(u"a.txt"_s));
    EXPECT_TRUE(View.Told.Text.startsWith(u"Not opened: "_s) && View.Told.Text.endsWith(u"a.txt is no name"_s));
    Editor.OpenBigFile(File(u"b.big"_s));
    EXPECT_TRUE(View.Told.Text.endsWith(u"b.big is no archive"_s));
    Speaker.FileNames = {Place.Root() + u"\\gone.big"_s};
    Editor.Open();
    EXPECT_TRUE(View.Told.Text.contains(u"gone.big"_s)) << View.Told.Text.toStdString();
    EXPECT_FALSE(View.Told.Text.contains(u"is no archive"_s));
    EXPECT_EQ(Speaker.Beeps, 3);
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(EditorWays, AnotherArchiveTakesThePlaceOfTheOpenOneBehindTheQuestion) {
    OpenSample();
    Speaker.FileNames = {File(u"new.txt"_s)};
    Editor.Add();
    const QString other = Place.WriteFile(u"other.big"_s, ArchiveOf({{u"x"_s, "1"}, {u"y"_s, "2"}}));
    Speaker.Answers = {Answer::Cancel};
    Editor.OpenInstead(other);
    EXPECT_EQ(mBIG::BigEntries.size(), 4U);
    Speaker.Answers = {Answer::No};
    Editor.OpenInstead(other);
    EXPECT_EQ(Shown(), QStringList({u"x"_s, u"y"_s}));
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorWays, TheFolderAboveIsShownWithTheOneThatWasLeft) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\ini\\"_s));
    Editor.GoUp();
    EXPECT_EQ(State().SelectedNode, NodeOf(u"data\\"_s));
    EXPECT_EQ(View.Revealed, 0);
    Editor.GoUp();
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    View.Revealed = -1;
    Editor.GoUp();
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    EXPECT_EQ(View.Revealed, -1);
}
