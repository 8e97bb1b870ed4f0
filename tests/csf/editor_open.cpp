// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/csf/editor_support.h"

#include "core/mMain.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

class CsfEditorOpen : public EditorTest {};

} // namespace

TEST_F(CsfEditorOpen, StartsWithoutADocument) {
    EXPECT_EQ(State().Path, u"NewCSF.csf"_s);
    EXPECT_FALSE(State().FrameVisible);
    EXPECT_FALSE(State().BoxesEnabled);
    EXPECT_FALSE(State().ActionsVisible);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(State().LanguageShown, CsfEditorState::None);
    EXPECT_EQ(State().FindText, u"Find"_s);
    EXPECT_TRUE(State().FindIsGrey);
    EXPECT_EQ(Editor.List().Count(), 0);
}

TEST_F(CsfEditorOpen, TheNewFilesNameFollowsTheLanguage) {
    world_.UseLanguage("[LNG]\r\nNew=Nouveau\r\nFind=Chercher\r\n");
    world_.Start();
    RecordingCsfView view;
    const CsfEditor editor(view);
    EXPECT_EQ(editor.State().Path, u"NouveauCSF.csf"_s);
    EXPECT_EQ(editor.State().FindText, u"Chercher"_s);
}

TEST_F(CsfEditorOpen, ShowsTheFileSortedByName) {
    const QString path = OpenTable({{"b", "2"}, {"C", "3"}, {"a", "1"}}, 3);
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s, u"C"_s}));
    EXPECT_EQ(Editor.List().Row(0).Value, u"1"_s);
    EXPECT_EQ(Editor.List().Key(0), u"I2"_s);
    EXPECT_EQ(Editor.List().Key(1), u"I0"_s);
    EXPECT_EQ(Editor.List().OrderOf(LabelList::Name), LabelList::Order::Ascending);
    EXPECT_EQ(Editor.List().OrderOf(LabelList::Value), LabelList::Order::None);
    EXPECT_EQ(State().Path, path);
    EXPECT_EQ(State().Caption, u"a.csf"_s);
    EXPECT_TRUE(State().FrameVisible);
    EXPECT_TRUE(State().ActionsVisible);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(View.Shown, 1);
    EXPECT_EQ(View.Busy, 0);
}

TEST_F(CsfEditorOpen, ClicksTheFirstRow) {
    OpenTable({{"b", "2"}, {"a", "one\ntwo"}});
    EXPECT_EQ(State().SelectedRow, 0);
    EXPECT_EQ(View.Selected, 0);
    EXPECT_TRUE(State().BoxesEnabled);
    EXPECT_EQ(State().NameText, u"a"_s);
    EXPECT_EQ(State().ValueText, u"one\r\ntwo"_s);
}

TEST_F(CsfEditorOpen, ALanguageWithinTheListIsShown) {
    OpenTable({{"a", "b"}}, 8);
    EXPECT_EQ(State().LanguageShown, 8);
    EXPECT_EQ(State().LanguageText, u"8"_s);
}

TEST_F(CsfEditorOpen, TheLanguagesHaveTheirNames) {
    EXPECT_EQ(CsfEditor::Languages(),
              (QStringList{u"0 - English"_s, u"1 - Unknown"_s, u"2 - German"_s, u"3 - French"_s, u"4 - Unknown"_s,
                           u"5 - Unknown"_s, u"6 - Unknown"_s, u"7 - Unknown"_s, u"8 - Corean"_s}));
}

TEST_F(CsfEditorOpen, ALanguageBeyondTheListLeavesItAsItWas) {
    OpenTable({{"a", "b"}}, 3);
    OpenTable({{"a", "b"}}, 10);
    EXPECT_EQ(State().LanguageShown, 3);
    EXPECT_EQ(State().LanguageText, u"16"_s);
}

TEST_F(CsfEditorOpen, AMissingFileChangesNothing) {
    OpenTable({{"a", "b"}});
    Editor.OpenCSFFile(At(u"missing.csf"_s));
    EXPECT_EQ(State().Caption, u"a.csf"_s);
    EXPECT_EQ(View.Shown, 1);
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfEditorOpen, ARefusedFileLeavesTheOldDocument) {
    const QString path = OpenTable({{"a", "b"}});
    Editor.NameTyped(u"changed"_s);
    Editor.OpenCSFFile(Put(u"not.csf"_s, "something else"));
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Text, u"CSFError"_s);
    EXPECT_EQ(Names(), QStringList{u"changed"_s});
    EXPECT_EQ(State().Path, path);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(View.Shown, 1);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), CsfHeader(1) + EntryRecords("changed", "b"))
        << "the rows are saved, not the table";
}

TEST_F(CsfEditorOpen, TheSizeHasThousandsSeparatorsAfterAnOpenAndPlainDigitsAfterASave) {
    // 24 and 20 bytes of overhead, 1 of the name, and the value: 1,024,001 times 2 bytes, so 2,000 kilobytes and 47
    // bytes.
    OpenTable({{"a", QByteArray(1024001, 'x')}});
    EXPECT_EQ(State().SizeText, u"2"_s + QLocale().groupSeparator() + u"000 KiloBytes"_s);
    Editor.Save();
    EXPECT_EQ(State().SizeText, u"2000 KiloBytes"_s);
}

TEST_F(CsfEditorOpen, TheSizeIsCutToAWholeNumber) {
    OpenTable({{"a", "b"}});
    EXPECT_EQ(State().SizeText, u"0 KiloBytes"_s);
    OpenTable({{"a", QByteArray(1000, 'x')}}); // 2,045 bytes
    EXPECT_EQ(State().SizeText, u"1 KiloBytes"_s);
}

TEST_F(CsfEditorOpen, AnOpenAndASaveReorderTheEntriesByName) {
    const QString path = OpenTable({{"b", "2"}, {"a", "1"}}, 3);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), CsfHeader(2, 3) + EntryRecords("a", "1") + EntryRecords("b", "2"));
}

TEST_F(CsfEditorOpen, DuplicateAndEmptyNamesStay) {
    const QString path = OpenTable({{"x", "1"}, {"", "2"}, {"x", "1"}});
    EXPECT_EQ(Names(), (QStringList{QString(), u"x"_s, u"x"_s}));
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path),
              CsfHeader(3) + EntryRecords("", "2") + EntryRecords("x", "1") + EntryRecords("x", "1"));
}

TEST_F(CsfEditorOpen, OpenAsksForTheFile) {
    const QString path = Put(u"b.csf"_s, CsfHeader(1) + EntryRecords("n", "v"));
    ChooseFile(std::nullopt);
    Editor.Open();
    EXPECT_EQ(View.Shown, 0);
    ChooseFile(path);
    Editor.Open();
    EXPECT_EQ(State().Caption, u"b.csf"_s);
    ASSERT_EQ(host_.Dialogs.size(), 2U);
    EXPECT_EQ(host_.Dialogs[0].Title, u"CSF Editor"_s);
    EXPECT_EQ(host_.Dialogs[0].Filter, u"Fichiers CSF (*.csf)|*.csf"_s);
    EXPECT_EQ(host_.Dialogs[0].DefaultExtension, u"csf"_s);
    EXPECT_EQ(host_.Dialogs[0].DefaultName, u"*.csf"_s);
}

TEST_F(CsfEditorOpen, TheDialogBeginsBesideTheFileButNotInTheScratchFolder) {
    ChooseFile(std::nullopt);
    Editor.Open();
    EXPECT_EQ(host_.Dialogs.back().Folder, QString()) << "a new table has no folder";
    OpenTable({{"a", "b"}});
    const QString folder = State().Path.first(State().Path.lastIndexOf(u'\\') + 1);
    ChooseFile(std::nullopt);
    Editor.Open();
    EXPECT_EQ(host_.Dialogs.back().Folder, folder);
    Editor.OpenCSFFile(Put(u"program\\Temp\\b.csf"_s, CsfHeader(1) + EntryRecords("n", "v")));
    EXPECT_EQ(State().Caption, u"b.csf"_s);
    ChooseFile(std::nullopt);
    Editor.Open();
    EXPECT_EQ(host_.Dialogs.back().Folder, QString());
}

TEST_F(CsfEditorOpen, WhileAFileIsReadTheRowsCanBeChangedButNoOtherFileBegun) {
    const QString path = OpenTable({{"a", "b"}});
    const QByteArray before = World::ReadFile(path);
    host_.OnYield = [&] {
        host_.OnYield = nullptr;
        Editor.Add();
        Editor.Save();
        Editor.SaveAs();
        Editor.New();
        Editor.Open();
        Editor.OpenCSFFile(path);
        EXPECT_FALSE(Editor.MayClose());
        EXPECT_EQ(Names(), (QStringList{u"a"_s, u"New"_s}));
    };
    Editor.OpenCSFFile(Put(u"b.csf"_s, CsfHeader(2) + EntryRecords("c", "d") + EntryRecords("e", "f")));
    EXPECT_EQ(host_.Beeps, 6);
    EXPECT_EQ(Names(), (QStringList{u"c"_s, u"e"_s}));
    EXPECT_EQ(World::ReadFile(path), before);
}

TEST_F(CsfEditorOpen, TheMenuFollowsUnlessTheSwitchOrAnotherToolOpenedTheEditor) {
    mMain::CommandLine.clear();
    mMain::CsfOpenedByHost = false;
    EXPECT_TRUE(CsfEditor::MenuFollows());
    mMain::CsfOpenedByHost = true;
    EXPECT_FALSE(CsfEditor::MenuFollows());
    mMain::CsfOpenedByHost = false;
    mMain::CommandLine = u"/tcsf C:\\a.csf"_s;
    EXPECT_FALSE(CsfEditor::MenuFollows());
    mMain::CommandLine.clear();
}
