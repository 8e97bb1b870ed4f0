// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The ways to a table: where dialogs begin, and the recent files.
#include "core/Game.h"
#include "core/LastTime.h"
#include "core/ProgramFolders.h"
#include "tests/csf/WholeBytes.h"
#include "tests/csf/editor_support.h"

using namespace Qt::StringLiterals;

namespace {

class CsfEditorWays : public EditorTest {
protected:
    ~CsfEditorWays() override { Game = {}; }

    QString There() { return Put(u"there.csf"_s, CsfHeader(1) + EntryRecords("x", "y")); }

    QString FolderOfOpen() {
        host_.FileNames = {std::nullopt};
        Editor.Open();
        return host_.Dialogs.back().Folder;
    }

    static QStringList Recent() { return LastTime::Files(u"csf"_s); }
};

} // namespace

TEST_F(CsfEditorWays, DialogsBeginWithTheFirstGameThatWasFound) {
    Game = {};
    EXPECT_EQ(FolderOfOpen(), QString());
    Game[0].InstallPath = world_.Root() + u"\\none\\"_s;
    Game[2].InstallPath = world_.Root() + u'\\';
    EXPECT_EQ(FolderOfOpen(), Game[2].InstallPath);
    Editor.New();
    Editor.Add();
    host_.FileNames = {std::nullopt};
    Editor.SaveAs();
    EXPECT_EQ(host_.Dialogs.back().Folder, Game[2].InstallPath);
}

TEST_F(CsfEditorWays, DialogsBeginWhereTheLastOneWas) {
    Game[0].InstallPath = world_.ProgramFolder() + u'\\';
    host_.FileNames = {world_.Root() + u"\\gone.csf"_s};
    Editor.Open();
    EXPECT_EQ(FolderOfOpen(), world_.Root() + u'\\');
    LastTime::NoteFolder(u"csf"_s, world_.ProgramFolder() + u'\\');
    Editor.New();
    Editor.Add();
    host_.FileNames = {world_.Root() + u"\\saved.csf"_s};
    Editor.SaveAs();
    EXPECT_EQ(host_.Dialogs.back().Folder, world_.ProgramFolder() + u'\\');
    Editor.New();
    EXPECT_EQ(FolderOfOpen(), world_.Root() + u'\\');
}

TEST_F(CsfEditorWays, DialogsBeginBesideTheOpenTable) {
    LastTime::NoteFolder(u"csf"_s, world_.ProgramFolder());
    OpenTable({{"a", "1"}});
    EXPECT_EQ(FolderOfOpen(), world_.Root() + u'\\');
}

TEST_F(CsfEditorWays, WhatWasOpenedOrSavedIsRecent) {
    const QString first = OpenTable({{"a", "1"}});
    Editor.OpenCSFFile(world_.Root() + u"\\gone.csf"_s);
    const QString second = There();
    Editor.OpenCSFFile(second);
    EXPECT_EQ(Recent(), QStringList({second, first}));
    const QString third = world_.Root() + u"\\saved.csf"_s;
    host_.FileNames = {third};
    Editor.SaveAs();
    EXPECT_EQ(Recent(), QStringList({third, second, first}));
}

TEST_F(CsfEditorWays, ATableThatIsKeptWholeIsRecentToo) {
    const QString path = Put(u"two.csf"_s, WholeBytes::Head(1, 1) + WholeBytes::Entry("A", u"\u0416"_s));
    Editor.OpenCSFFile(path);
    LastTime::Keep(u"files csf"_s, {});
    Editor.KeepEverything();
    Editor.Save();
    EXPECT_EQ(Recent(), QStringList{path});
}

TEST_F(CsfEditorWays, WhatLiesInTheScratchFolderIsNotRecent) {
    const QString scratch = ProgramFolders::SharedScratchFolder() + u"\\a.csf"_s;
    Files::MakeFolders(ProgramFolders::SharedScratchFolder() + u'\\');
    Files::Copy(There(), scratch);
    Editor.OpenCSFFile(scratch);
    EXPECT_EQ(State().Path, scratch);
    EXPECT_EQ(Recent(), QStringList());
}

TEST_F(CsfEditorWays, ARecentFileIsOpenedBehindTheQuestion) {
    OpenTable({{"a", "1"}});
    const QString other = There();
    Editor.NameTyped(u"b"_s);
    host_.Answers = {Host::Answer::Cancel};
    Editor.OpenInstead(other);
    EXPECT_NE(State().Path, other);
    host_.Answers = {Host::Answer::No};
    Editor.OpenInstead(other);
    EXPECT_EQ(State().Path, other);
    EXPECT_EQ(Names(), QStringList{u"x"_s});
}

TEST_F(CsfEditorWays, ARecentFileThatHasGoneIsTold) {
    const QString path = OpenTable({{"a", "1"}});
    Editor.OpenInstead(world_.Root() + u"\\gone.csf"_s);
    EXPECT_EQ(View.Told.Text, u"TableNotOpened"_s);
    EXPECT_EQ(State().Path, path);
}
