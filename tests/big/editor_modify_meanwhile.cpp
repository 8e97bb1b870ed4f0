// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the user does while another program has an entry's copy open.
#include "tests/big/modify_fixture.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

using EditorModifyMeanwhile = EditorModify;

/// A host on whose question something happens.
class ClosingHost : public ScriptedHost {
public:
    std::function<void()> OnMessage;
    int Asked = 0;

    Answer Message(const QString& /*text*/, Icon /*icon*/, Buttons /*buttons*/, const QString& /*title*/,
                   std::optional<Answer> /*defaultAnswer*/) override {
        ++Asked;
        OnMessage();
        return Answer::No;
    }
};

} // namespace

TEST_F(EditorModifyMeanwhile, AnEntryThatIsOpenAlreadyGetsASecondCopy) {
    OpenStrings();
    bool again = false;
    Program = [&](const QString& path) {
        Write(path, again ? "second" : "first");
        if (!std::exchange(again, true))
            Editor.ActivateRow(0);
        EXPECT_NE(World::ReadFile(path), "the first") << "Nobody writes over the copy that is open.";
    };
    Speaker.Answers = {Answer::No, Answer::Yes};
    Editor.ActivateRow(0);
    EXPECT_EQ(Given, QStringList({Scratch(u"One.csf"_s), Scratch(u"One (2).csf"_s)}));
    EXPECT_EQ(World::ReadFile(Entry(0).SourcePath), "first");
}

TEST_F(EditorModifyMeanwhile, AnotherArchiveOpenedMeanwhileIsLeftAlone) {
    OpenStrings();
    const QString other = Place.WriteFile(u"other.big"_s, ArchiveOf({{u"Data\\One.csf"_s, "1"}, {u"b"_s, "2"}}));
    Program = [&](const QString& path) {
        Write(path, "written");
        Editor.OpenBigFile(other);
    };
    Editor.ActivateRow(0);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(Entry(0).IsNew);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(World::ReadFile(Scratch(u"One.csf"_s)), "written") << "What was written stays on the disk.";
}

TEST_F(EditorModifyMeanwhile, AShorterTableMeanwhileIsSafe) {
    OpenStrings();
    Editor.ClickNode(NodeOf(u"other\\"_s));
    Program = [&](const QString& path) {
        Write(path, "written");
        mBIG::BigEntries.resize(1);
    };
    Editor.ActivateRow(0);
    ModifyByMenu(0);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorModifyMeanwhile, ANewArchiveMeanwhileIsLeftAlone) {
    OpenStrings();
    Program = [&](const QString& path) {
        Write(path, "written");
        Speaker.FileNames = {Place.Root() + u"\\fresh.big"_s};
        Speaker.Answers = {Answer::No};
        Editor.New();
    };
    Editor.ActivateRow(0);
    ASSERT_EQ(Speaker.Messages.size(), 1U) << "before the archive goes, and no more behind it";
    EXPECT_EQ(Speaker.Messages[0].Text, u"Data\\One.csf\r\n\r\nInsertModifiedFile"_s);
    EXPECT_FALSE(Entry(0).IsNew);
}

TEST_F(EditorModifyMeanwhile, OpenAsksAboutChangedCopiesAndGoesNoFurtherWithoutAnAnswer) {
    OpenStrings();
    Program = [&](const QString& path) {
        Write(path, "written");
        Speaker.Answers = {Answer::Cancel};
        Editor.Open();
        EXPECT_TRUE(Speaker.Dialogs.empty());
        Speaker.Answers = {Answer::Yes};
    };
    Editor.ActivateRow(0);
    EXPECT_EQ(Speaker.Messages.size(), 2U);
    EXPECT_TRUE(Entry(0).IsNew);
}

TEST_F(EditorModifyMeanwhile, WhatTheCSFEditorSavesLaterIsAskedAboutAndMarksTheChange) {
    OpenStrings();
    Speaker.Answers = {Answer::No};
    ModifyByMenu(0);
    EXPECT_FALSE(Files::FileExists(Scratch(u"One.csf"_s)));
    Place.WriteFile(u"program\\Temp\\One.csf"_s, "written later");
    Speaker.Answers = {Answer::Yes};
    Editor.Copies().Look();
    Editor.Copies().Look();
    ASSERT_EQ(Speaker.Messages.size(), 2U);
    EXPECT_EQ(Speaker.Messages[1].Text, u"Data\\One.csf\r\n\r\nInsertModifiedFile"_s);
    EXPECT_TRUE(Entry(0).IsNew);
    EXPECT_EQ(World::ReadFile(Entry(0).SourcePath), "written later");
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorModifyMeanwhile, ATableOpenedByADoubleClickIsFollowedToo) {
    OpenStrings();
    Editor.ActivateRow(0);
    Place.WriteFile(u"program\\Temp\\One.csf"_s, "written later");
    Editor.Save();
    EXPECT_TRUE(Files::FileExists(Scratch(u"One.csf"_s))) << "Nobody was asked about it yet.";
    Speaker.Answers = {Answer::Yes};
    Editor.Copies().Look();
    Editor.Copies().Look();
    EXPECT_TRUE(Entry(0).IsNew);
}

TEST_F(EditorModifyMeanwhile, ARecordThatADropTookThePlaceOfIsOfferedNothing) {
    Speaker.FileNames = {Place.Root() + u"\\fresh.big"_s, Place.WriteFile(u"a.csf"_s, "1")};
    Editor.New();
    Editor.Add();
    Editor.ActivateRow(0);
    ASSERT_EQ(Given.size(), 1);
    Editor.DropFiles({Place.WriteFile(u"b.csf"_s, "2")});
    ASSERT_EQ(Entry(1).Name, u"b.csf"_s) << "A blank record 0 has the last one overwritten.";
    Entry(1).IsNew = false;
    Write(Place.Root() + u"\\a.csf"_s, "written");
    Editor.Copies().Look();
    Editor.Copies().Look();
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(EditorModifyMeanwhile, ADeletedRecordThatADropTookThePlaceOfIsOfferedNothing) {
    Speaker.FileNames = {Place.Root() + u"\\fresh.big"_s, Place.WriteFile(u"a.csf"_s, "1")};
    Editor.New();
    Editor.Add();
    Editor.ActivateRow(0);
    ASSERT_EQ(Given.size(), 1);
    Entry(1).Deleted = true;
    Editor.DropFiles({Place.WriteFile(u"b.csf"_s, "2")});
    ASSERT_EQ(Entry(1).Name, u"b.csf"_s);
    Entry(1).IsNew = Entry(1).Deleted = false;
    Write(Place.Root() + u"\\a.csf"_s, "written");
    Editor.Copies().Look();
    Editor.Copies().Look();
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(EditorModifyMeanwhile, AnEntryOfAnArchiveThatWasChangedOnDiskIsNotOpened) {
    OpenStrings();
    QByteArray other = World::ReadFile(mBIG::BigFileName);
    Write(mBIG::BigFileName, other.replace("the first", "garbage!!") + "more");
    Editor.ActivateRow(0);
    EXPECT_EQ(Given, QStringList());
    EXPECT_EQ(Speaker.Beeps, 1);
}

TEST_F(EditorModifyMeanwhile, AnEntryThatWasRenamedMeanwhileStillGetsItsFile) {
    OpenStrings();
    Program = [&](const QString& path) {
        Write(path, "written");
        EXPECT_TRUE(Editor.RenameRow(0, u"Renamed.csf"_s));
    };
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(0);
    EXPECT_EQ(Entry(0).Name, u"Data\\Renamed.csf"_s);
    EXPECT_TRUE(Entry(0).IsNew);
}

TEST_F(EditorModifyMeanwhile, AnEntryThatWasDeletedMeanwhileIsNotAskedFor) {
    OpenStrings();
    Program = [&](const QString& path) {
        Write(path, "written");
        Entry(0).Deleted = true;
    };
    Editor.ActivateRow(0);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(Entry(0).IsNew);
}

TEST_F(EditorModifyMeanwhile, AFileThatIsWrittenAfterASaveGoesToTheEntryOfItsName) {
    OpenStrings();
    Program = [&](const QString& path) {
        Entry(0).Deleted = true;
        Editor.Save();
        Write(path, "written");
    };
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(1);
    EXPECT_EQ(Entry(0).Name, u"Data\\two.csf"_s) << "It has moved up.";
    EXPECT_TRUE(Entry(0).IsNew);
    EXPECT_FALSE(Entry(1).IsNew);
}

TEST_F(EditorModifyMeanwhile, WhatWasWrittenBeforeASaveIsNotLost) {
    OpenStrings();
    Entry(2).Deleted = true;
    const QString other = Place.WriteFile(u"program\\Temp\\other.txt"_s, "x");
    Program = [&](const QString& path) {
        Write(path, "written");
        Editor.Save();
        EXPECT_FALSE(Files::FileExists(other));
    };
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(0);
    EXPECT_TRUE(Entry(0).IsNew);
    EXPECT_EQ(World::ReadFile(Entry(0).SourcePath), "written");
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorModifyMeanwhile, TheDocumentMayGoMeanwhile) {
    OpenStrings();
    CountingView view;
    auto editor = std::make_unique<BigEditor>(view);
    editor->OpenBigFile(mBIG::BigFileName);
    editor->ClickNode(editor->Tree().Find(u"data\\"_s));
    Program = [&](const QString& path) {
        Write(path, "written");
        editor.reset();
    };
    editor->ActivateRow(0);
    EXPECT_EQ(Given.size(), 1);
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(EditorModifyMeanwhile, TheDocumentMayGoWhileALookAsks) {
    OpenStrings();
    CountingView view;
    auto editor = std::make_unique<BigEditor>(view);
    editor->OpenBigFile(mBIG::BigFileName);
    editor->ClickNode(editor->Tree().Find(u"data\\"_s));
    std::unique_ptr<mBIG::ArchiveLock> lock;
    Program = [&](const QString& path) {
        Write(path, "written");
        lock = std::make_unique<mBIG::ArchiveLock>();
    };
    editor->ActivateRow(0);
    editor->ActivateRow(1);
    lock.reset();
    editor->Copies().SetHandoverTime({});
    ClosingHost speaker;
    speaker.OnMessage = [&] { editor.reset(); };
    editor->Copies().Look();
    EXPECT_EQ(speaker.Asked, 1);
}
