// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "tests/big/document_fixture.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class EditorDrop : public EditorDocument {
protected:
    void MakeNew() {
        Speaker.FileNames = {Place.Root() + u"\\fresh.big"_s};
        Editor.New();
    }

    [[nodiscard]] QString At(const QString& name) const { return Place.Root() + u'\\' + name; }

    QString Put(const QString& name, const QByteArray& bytes = "1") const { return Place.WriteFile(name, bytes); }

    [[nodiscard]] static QStringList Names() {
        QStringList names;
        for (const BigEntry& entry : mBIG::BigEntries)
            names += entry.Name;
        return names;
    }

    /// The names without regard to the order in which a directory is listed.
    [[nodiscard]] static QStringList SortedNames() {
        QStringList names = Names();
        names.sort();
        return names;
    }
};

} // namespace

TEST_F(EditorDrop, AFileStandsBehindTheOthersInTheSelectedFolder) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\"_s));
    const QString source = Put(u"files\\New One.TGA"_s, "12345");
    Editor.DropFiles({source});
    ASSERT_EQ(mBIG::BigEntries.size(), 4U);
    const BigEntry& entry = mBIG::BigEntries[3];
    EXPECT_EQ(entry.Name, u"data\\New One.TGA"_s);
    EXPECT_TRUE(entry.IsNew);
    EXPECT_EQ(entry.SourcePath, source);
    EXPECT_EQ(entry.Size, 5);
    EXPECT_FALSE(entry.Deleted);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(Shown(), QStringList({u"ini"_s, u"map.tga"_s, u"New One.TGA"_s}));
    EXPECT_EQ(State().SelectedNode, NodeOf(u"data\\"_s)) << "Files alone leave the folder selected.";
}

TEST_F(EditorDrop, AFoldersFilesKeepTheirPathsBelowIt) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Put(u"My Mod\\a.txt"_s, "1234");
    Put(u"My Mod\\Sub\\Deep\\b.txt"_s);
    Editor.DropFiles({At(u"My Mod"_s)});
    EXPECT_EQ(SortedNames().mid(2),
              QStringList({u"data\\My Mod\\Sub\\Deep\\b.txt"_s, u"data\\My Mod\\a.txt"_s, u"readme.txt"_s}));
    const BigEntry& entry = mBIG::BigEntries[static_cast<std::size_t>(mBIG::FindEntry(u"data\\My Mod\\a.txt"_s))];
    EXPECT_TRUE(entry.IsNew);
    EXPECT_EQ(entry.Size, 4);
    EXPECT_EQ(entry.SourcePath, At(u"My Mod\\a.txt"_s));
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorDrop, AFolderMakesTheTreeAnewAndShowsTheRoot) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Put(u"Mod\\a.txt"_s);
    Editor.DropFiles({At(u"Mod"_s)});
    EXPECT_NE(NodeOf(u"data\\mod\\"_s), FolderTree::None);
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    EXPECT_EQ(Shown(), QStringList({u"data"_s, u"readme.txt"_s}));
}

TEST_F(EditorDrop, WhatComesBehindAFolderGoesIntoTheRootThatItSelected) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Put(u"Mod\\a.txt"_s);
    Put(u"Other\\b.txt"_s);
    Editor.DropFiles({Put(u"first.txt"_s), At(u"Mod"_s), Put(u"second.txt"_s), At(u"Other"_s)});
    EXPECT_EQ(Names().mid(3),
              QStringList({u"data\\first.txt"_s, u"data\\Mod\\a.txt"_s, u"second.txt"_s, u"Other\\b.txt"_s}));
    EXPECT_NE(NodeOf(u"other\\"_s), FolderTree::None);
}

TEST_F(EditorDrop, ATrailingBackslashBelongsToTheFolder) {
    OpenSample();
    Put(u"Mod\\a.txt"_s);
    Editor.DropFiles({At(u"Mod\\"_s)});
    EXPECT_EQ(Names().back(), u"Mod\\a.txt"_s);
}

TEST_F(EditorDrop, AnEmptyFolderAddsNothingAndCountsAsAChange) {
    OpenSample();
    Files::MakeFolder(At(u"empty"_s));
    Editor.DropFiles({At(u"empty"_s)});
    EXPECT_EQ(mBIG::BigEntries.size(), 3U);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorDrop, NothingDroppedIsNoChange) {
    OpenSample();
    Editor.DropFiles({});
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorDrop, APathThatIsNotThereDoesNotEndTheOthers) {
    OpenSample();
    Editor.DropFiles({At(u"vanished"_s), Put(u"a.txt"_s), At(u"gone\\too"_s), Put(u"b.txt"_s)});
    EXPECT_EQ(Names().mid(3), QStringList({u"a.txt"_s, u"b.txt"_s}));
}

TEST_F(EditorDrop, ANameThatIsThereInAnyCaseIsAskedForAndNoSkipsThatFile) {
    OpenSample();
    Editor.ClickNode(NodeOf(u"data\\"_s));
    Speaker.Answers = {Answer::No, Answer::Yes};
    const QString source = Put(u"y\\Map.TGA"_s, "other");
    Editor.DropFiles({Put(u"n\\MAP.tga"_s), source, Put(u"b.txt"_s)});
    ASSERT_EQ(Speaker.Messages.size(), 2U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"data\\MAP.tga\r\n\r\nFileAlreadyExists"_s);
    EXPECT_EQ(Speaker.Messages[0].Sign, Host::Icon::Question);
    EXPECT_EQ(Speaker.Messages[0].Choice, Host::Buttons::YesNo);
    EXPECT_EQ(Names(),
              QStringList({u"readme.txt"_s, u"Data\\INI\\Object.ini"_s, u"data\\Map.TGA"_s, u"data\\b.txt"_s}));
    EXPECT_EQ(mBIG::BigEntries[2].SourcePath, source);
    EXPECT_EQ(mBIG::BigEntries[2].Size, 5);
    EXPECT_TRUE(mBIG::BigEntries[2].IsNew);
}

TEST_F(EditorDrop, AFolderAsksForEachFileOnItsOwn) {
    OpenArchive({{u"mod\\a.txt"_s, "1"}, {u"mod\\b.txt"_s, "2"}});
    Put(u"Mod\\a.txt"_s, "new");
    Put(u"Mod\\b.txt"_s, "new");
    Put(u"Mod\\c.txt"_s, "new");
    Speaker.Answers = {Answer::No, Answer::Yes};
    Editor.DropFiles({At(u"Mod"_s)});
    ASSERT_EQ(Speaker.Messages.size(), 2U);
    EXPECT_EQ(mBIG::BigEntries.size(), 3U);
    EXPECT_NE(mBIG::BigEntries[0].IsNew, mBIG::BigEntries[1].IsNew);
    EXPECT_TRUE(mBIG::BigEntries[2].IsNew);
}

TEST_F(EditorDrop, AFileBringsADeletedEntryBackAndAFoldersFileDoesNot) {
    OpenArchive({{u"a.txt"_s, "1"}, {u"mod\\b.txt"_s, "2"}, {u"c"_s, "3"}});
    mBIG::BigEntries[0].Deleted = true;
    mBIG::BigEntries[1].Deleted = true;
    Put(u"Mod\\b.txt"_s, "new");
    Speaker.Answers = {Answer::Yes, Answer::Yes};
    Editor.DropFiles({Put(u"a.txt"_s, "new"), At(u"Mod"_s)});
    EXPECT_FALSE(mBIG::BigEntries[0].Deleted);
    EXPECT_TRUE(mBIG::BigEntries[1].Deleted) << "It stays hidden.";
    EXPECT_TRUE(mBIG::BigEntries[1].IsNew);
    EXPECT_EQ(Shown(), QStringList({u"a.txt"_s, u"c"_s}));
}

TEST_F(EditorDrop, TheFirstFileOnAFreshArchiveTakesOverTheBlankRecord) {
    MakeNew();
    Editor.DropFiles({Put(u"a.txt"_s), Put(u"b.txt"_s), Put(u"c.txt"_s)});
    EXPECT_EQ(Names(), QStringList({u"a.txt"_s, u"b.txt"_s, u"c.txt"_s}));
    EXPECT_EQ(Shown(), QStringList({u"a.txt"_s, u"b.txt"_s, u"c.txt"_s}));
}

TEST_F(EditorDrop, WithoutATableTheFirstFileIsRecordZero) {
    Editor.DropFiles({Put(u"a.txt"_s)});
    EXPECT_EQ(Names(), QStringList({u"a.txt"_s}));
    Editor.DropFiles({Put(u"b.txt"_s)});
    EXPECT_EQ(Names(), QStringList({u"a.txt"_s, u"b.txt"_s}));
}

TEST_F(EditorDrop, AFileThatAddPutBehindTheBlankRecordIsOverwritten) {
    MakeNew();
    Speaker.FileNames = {Put(u"added.txt"_s)};
    Editor.Add();
    mBIG::BigEntries[1].Deleted = true;
    Editor.DropFiles({Put(u"a.txt"_s)});
    EXPECT_EQ(Names(), QStringList({QString(), u"a.txt"_s}));
    EXPECT_FALSE(mBIG::BigEntries[1].Deleted);
    Editor.DropFiles({Put(u"b.txt"_s), Put(u"added.txt"_s), Put(u"c.txt"_s)});
    EXPECT_EQ(Names(), QStringList({QString(), u"c.txt"_s})) << "Each in turn, and no name is asked for.";
}

TEST_F(EditorDrop, AFolderOnSuchAnArchiveLeavesItsLastFileOnly) {
    MakeNew();
    Speaker.FileNames = {Put(u"added.txt"_s)};
    Editor.Add();
    for (int file = 0; file < 5; ++file)
        Put(u"Mod\\%1.txt"_s.arg(file));
    Editor.DropFiles({At(u"Mod"_s)});
    ASSERT_EQ(mBIG::BigEntries.size(), 2U);
    EXPECT_EQ(Names().front(), QString());
    EXPECT_TRUE(Names().back().startsWith(u"Mod\\"_s));
}

TEST_F(EditorDrop, NothingIsDroppedWhileASaveIsUnderWay) {
    OpenSample();
    const QString file = Put(u"a.txt"_s);
    bool tried = false;
    Speaker.OnYield = [&] {
        if (std::exchange(tried, true))
            return;
        Editor.DropFiles({file});
        Editor.Delete();
        Editor.NewFolder();
        View.Selected = {1};
        Editor.Modify();
        Editor.ActivateRow(1);
        EXPECT_FALSE(Editor.RenameNode(2, u"x"_s));
        EXPECT_FALSE(Editor.RenameRow(1, u"x"_s));
    };
    Editor.Save();
    EXPECT_TRUE(tried);
    EXPECT_EQ(Speaker.Beeps, 7);
    EXPECT_EQ(Names(), QStringList({u"readme.txt"_s, u"Data\\INI\\Object.ini"_s, u"Data\\map.tga"_s}));
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorDrop, WhatWasDroppedIsSaved) {
    const QString path = OpenSample();
    Put(u"Mod\\a.txt"_s, "of the folder");
    Editor.DropFiles({At(u"Mod"_s), Put(u"empty"_s, {})});
    Editor.Save();
    EXPECT_FALSE(State().Modified);
    const auto index = static_cast<std::size_t>(mBIG::FindEntry(u"Mod\\a.txt"_s));
    ASSERT_LT(index, mBIG::BigEntries.size());
    EXPECT_EQ(World::ReadFile(path).mid(mBIG::BigEntries[index].Offset, 13), "of the folder");
    EXPECT_FALSE(mBIG::BigEntries[index].IsNew);
    EXPECT_GE(mBIG::FindEntry(u"empty"_s), 0);
}

TEST_F(EditorDrop, RowsOfAnotherEditorAreKeptBeyondItsNextDrag) {
    const QString path = OpenSample();
    const QString file = Put(u"Program\\Temp\\Drag7\\wall.dds"_s, "wall");
    Put(u"Program\\Temp\\Drag7\\maps\\desert.map"_s, "sand");
    const QString other = Put(u"elsewhere.txt"_s, "text");
    const QStringList kept = BigEditor::AdoptDragged({file, Place.ProgramFolder() + u"\\Temp\\Drag7\\maps"_s, other});
    EXPECT_EQ(kept.last(), other);
    Files::DeleteFolder(Place.ProgramFolder() + u"\\Temp\\Drag7"_s);
    Editor.DropFiles(kept);
    Editor.Save();
    EXPECT_EQ(Names().mid(3), QStringList({u"wall.dds"_s, u"maps\\desert.map"_s, u"elsewhere.txt"_s}));
    EXPECT_TRUE(World::ReadFile(path).contains("wall"));
    EXPECT_TRUE(World::ReadFile(path).contains("sand"));
    // Saved, they are kept no longer.
    EXPECT_FALSE(Files::FileExists(kept.first()));
    EXPECT_TRUE(Files::FileExists(other));
}

TEST_F(EditorDrop, TwoDropsOfOneNameKeepBothFiles) {
    const QString path = Put(u"Program\\Temp\\Drag7\\a.txt"_s, "first");
    const QStringList first = BigEditor::AdoptDragged({path});
    Put(u"Program\\Temp\\Drag7\\a.txt"_s, "second");
    const QStringList second = BigEditor::AdoptDragged({path});
    EXPECT_EQ(World::ReadFile(first.first()), "first");
    EXPECT_EQ(World::ReadFile(second.first()), "second");
}
