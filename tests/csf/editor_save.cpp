// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/csf/editor_support.h"

#include "platform/Paths.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class CsfEditorSave : public EditorTest {};

} // namespace

TEST_F(CsfEditorSave, NewEmptiesTheWindow) {
    OpenTable({{"a", "b"}}, 3);
    Editor.New();
    EXPECT_EQ(Editor.List().Count(), 0);
    EXPECT_EQ(State().Path, u"NewCSF.csf"_s);
    EXPECT_EQ(State().Caption, u"NewCSF.csf"_s);
    EXPECT_TRUE(State().FrameVisible);
    EXPECT_EQ(State().SizeText, u"-"_s);
    EXPECT_EQ(State().LanguageText, u"0"_s);
    EXPECT_EQ(State().LanguageShown, 3) << "the list shows what was read last";
    EXPECT_FALSE(State().BoxesEnabled);
    EXPECT_EQ(State().NameText, QString());
    EXPECT_EQ(State().ValueText, QString());
    EXPECT_EQ(State().SelectedRow, CsfEditorState::None);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(mCSF::CsfStrings, std::vector<CsfString>(1));
}

TEST_F(CsfEditorSave, AnEmptyListIsNotSaved) {
    Editor.Save();
    Editor.SaveAs();
    Editor.New();
    Editor.Save();
    EXPECT_TRUE(host_.Dialogs.empty());
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfEditorSave, TheFirstRowOfANewDocumentMakesSaveAskForAName) {
    Editor.New();
    Editor.Add();
    ChooseFile(At(u"chosen.csf"_s));
    Editor.Save();
    EXPECT_EQ(World::ReadFile(At(u"chosen.csf"_s)), CsfHeader(1) + EntryRecords("New", "Text"));
    EXPECT_EQ(State().Path, At(u"chosen.csf"_s));
    EXPECT_EQ(State().Caption, u"chosen.csf"_s);
    EXPECT_EQ(State().SizeText, u"0 KiloBytes"_s);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(View.Busy, 0);
    ASSERT_EQ(host_.Dialogs.size(), 1U);
    EXPECT_EQ(host_.Dialogs[0].Title, u"CSF Editor"_s);
    EXPECT_EQ(host_.Dialogs[0].Filter, u"Fichiers CSF (*.csf)|*.csf"_s);
    EXPECT_EQ(host_.Dialogs[0].DefaultExtension, u"csf"_s);
    EXPECT_EQ(host_.Dialogs[0].DefaultName, u"*.csf"_s);
}

TEST_F(CsfEditorSave, ACancelledDialogLeavesTheDocumentNewAndChanged) {
    Editor.Add();
    ChooseFile(std::nullopt);
    Editor.Save();
    EXPECT_EQ(State().Path, u"NewCSF.csf"_s);
    EXPECT_TRUE(State().Modified);
}

TEST_F(CsfEditorSave, SaveWritesTheRowsAsTheyStand) {
    const QString path = OpenTable({{"b", "2"}, {"a", "1"}}, 3);
    Editor.ClickHeader(LabelList::Name);
    Editor.Add();
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path),
              CsfHeader(3, 3) + EntryRecords("b", "2") + EntryRecords("a", "1") + EntryRecords("New", "Text"));
    EXPECT_FALSE(State().Modified);
    EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
}

TEST_F(CsfEditorSave, SaveAsGoesOnWithTheOtherFile) {
    const QString path = OpenTable({{"a", "1"}}, 2);
    const QByteArray before = World::ReadFile(path);
    Editor.NameTyped(u"x"_s);
    ChooseFile(std::nullopt);
    Editor.SaveAs();
    EXPECT_TRUE(State().Modified);
    ChooseFile(At(u"other.csf"_s));
    Editor.SaveAs();
    EXPECT_EQ(World::ReadFile(path), before);
    EXPECT_EQ(World::ReadFile(At(u"other.csf"_s)), CsfHeader(1, 2) + EntryRecords("x", "1"));
    EXPECT_EQ(State().Path, At(u"other.csf"_s));
    EXPECT_EQ(State().Caption, u"other.csf"_s);
    EXPECT_FALSE(State().Modified);
}

TEST_F(CsfEditorSave, ALanguageThatCantBeWrittenEndsTheProgram) {
    const QString path = OpenTable({{"a", "1"}}, 100);
    EXPECT_EQ(State().LanguageText, u"256"_s);
    EXPECT_THROW(Editor.Save(), ProgramEnded);
    EXPECT_EQ(World::ReadFile(path), CsfHeader(1, 100) + EntryRecords("a", "1"));
}

TEST_F(CsfEditorSave, AWriteProtectedFileIsToldAndTheChangeStays) {
    const QString path = OpenTable({{"a", "1"}});
    const QByteArray before = World::ReadFile(path);
    ASSERT_TRUE(QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner));
    Editor.NameTyped(u"x"_s);
    Editor.Save();
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_TRUE(host_.Messages[0].Text.startsWith(u"SaveFailed\r\n"_s + Paths::ToNative(path) + u": "_s));
    EXPECT_FALSE(host_.Messages[0].Text.contains(u"OldFileKept"_s));
    EXPECT_EQ(host_.Messages[0].Sign, Host::Icon::Critical);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(World::ReadFile(path), before);
    EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
}

TEST_F(CsfEditorSave, NewAndOpenAskAboutChangesByTheFilesName) {
    const QString path = OpenTable({{"a", "1"}});
    world_.UseLanguage("[LNG]\r\nQuitSave=Save %1?\r\n");
    world_.Start();
    Editor.NameTyped(u"x"_s);
    Answer(Host::Answer::Cancel);
    Editor.New();
    EXPECT_EQ(Names(), QStringList{u"x"_s});
    Answer(Host::Answer::Cancel);
    Editor.Open();
    EXPECT_TRUE(host_.Dialogs.empty());
    ASSERT_EQ(host_.Messages.size(), 2U);
    EXPECT_EQ(host_.Messages[0].Text, u"Save a.csf?"_s);
    EXPECT_EQ(host_.Messages[0].Title, u"Brindock 2005"_s);
    EXPECT_EQ(host_.Messages[0].Sign, Host::Icon::Question);
    EXPECT_EQ(host_.Messages[0].Choice, Host::Buttons::YesNoCancel);
    EXPECT_EQ(host_.Messages[1].Text, u"Save a.csf?"_s);
    EXPECT_EQ(World::ReadFile(path), CsfHeader(1) + EntryRecords("a", "1"));
}

TEST_F(CsfEditorSave, YesSavesFirstAndNoGoesOn) {
    const QString path = OpenTable({{"a", "1"}});
    Editor.NameTyped(u"x"_s);
    Answer(Host::Answer::Yes);
    Editor.New();
    EXPECT_EQ(World::ReadFile(path), CsfHeader(1) + EntryRecords("x", "1"));
    EXPECT_EQ(Editor.List().Count(), 0);
    Editor.OpenCSFFile(path);
    Editor.NameTyped(u"y"_s);
    Answer(Host::Answer::No);
    Editor.New();
    EXPECT_EQ(World::ReadFile(path), CsfHeader(1) + EntryRecords("x", "1"));
    EXPECT_EQ(Editor.List().Count(), 0);
}

TEST_F(CsfEditorSave, YesWithoutANameKeepsTheDocument) {
    Editor.Add();
    Answer(Host::Answer::Yes);
    ChooseFile(std::nullopt);
    Editor.New();
    EXPECT_EQ(Names(), QStringList{u"New"_s});
    EXPECT_TRUE(State().Modified);
}

TEST_F(CsfEditorSave, ClosingAsksByTheWholePath) {
    const QString path = OpenTable({{"a", "1"}});
    EXPECT_TRUE(Editor.MayClose());
    EXPECT_TRUE(host_.Messages.empty());
    world_.UseLanguage("[LNG]\r\nQuitSave=Save %1?\r\n");
    world_.Start();
    Editor.ValueTyped(u"2"_s);
    Answer(Host::Answer::Cancel);
    EXPECT_FALSE(Editor.MayClose());
    EXPECT_EQ(host_.Messages[0].Text, u"Save "_s + Paths::ToNative(path) + u'?');
    Answer(Host::Answer::No);
    EXPECT_TRUE(Editor.MayClose());
    Answer(Host::Answer::Yes);
    EXPECT_TRUE(Editor.MayClose());
    EXPECT_EQ(World::ReadFile(path), CsfHeader(1) + EntryRecords("a", "2"));
}
