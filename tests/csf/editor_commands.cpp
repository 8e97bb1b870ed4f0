// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/csf/editor_support.h"

#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

class CsfEditorCommands : public EditorTest {
protected:
    void ExpectError(int number, void (CsfEditor::*command)()) {
        try {
            (Editor.*command)();
            ADD_FAILURE() << "no error was raised";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), number);
        }
    }

    void Find(const QString& text) {
        Editor.FindFocused();
        Editor.FindTyped(text);
    }
};

} // namespace

TEST_F(CsfEditorCommands, AClickedRowFillsTheBoxesAndIsNoChange) {
    OpenTable({{"a", "1"}, {"b", "2\n3"}});
    Editor.ClickRow(1);
    EXPECT_EQ(State().NameText, u"b"_s);
    EXPECT_EQ(State().ValueText, u"2\r\n3"_s);
    EXPECT_FALSE(State().Modified);
    Editor.NameTyped(u"c"_s);
    Editor.ClickRow(0);
    EXPECT_TRUE(State().Modified) << "and the flag stays as it was";
}

TEST_F(CsfEditorCommands, AClickBesideTheRowsDoesNothing) {
    OpenTable({{"a", "1"}});
    Editor.ClickRow(-1);
    Editor.ClickRow(1);
    EXPECT_EQ(State().SelectedRow, 0);
}

TEST_F(CsfEditorCommands, ATypedNameIsTheRowsAtOnce) {
    OpenTable({{"a", "1"}, {"b", "2"}});
    Editor.NameTyped(u"z"_s);
    EXPECT_EQ(Names(), (QStringList{u"z"_s, u"b"_s})) << "the rows are not sorted anew";
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(View.Rows, std::vector{0});
    Editor.NameTyped({});
    EXPECT_EQ(Names(), (QStringList{QString(), u"b"_s}));
}

TEST_F(CsfEditorCommands, ATypedValueIsStoredWithBareLineFeedsAndComesBackWithTheBoxs) {
    const QString path = OpenTable({{"a", "1"}, {"b", "2"}});
    Editor.ValueTyped(u" one\r\ntwo\r\n"_s);
    EXPECT_EQ(Editor.List().Row(0).Value, u" one\ntwo\n"_s);
    EXPECT_TRUE(State().Modified);
    Editor.ClickRow(1);
    Editor.ClickRow(0);
    EXPECT_EQ(State().ValueText, u" one\r\ntwo\r\n"_s);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), CsfHeader(2) + EntryRecords("a", " one\ntwo\n") + EntryRecords("b", "2"));
}

TEST_F(CsfEditorCommands, BoxesWithoutARowChangeNothing) {
    Editor.NameTyped(u"x"_s);
    Editor.ValueTyped(u"x"_s);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(Editor.List().Count(), 0);
}

TEST_F(CsfEditorCommands, AnAddedRowGoesToTheEndAndStaysThereUntilTheNextHeaderClick) {
    OpenTable({{"Z", "1"}, {"a", "2"}});
    Editor.Add();
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"Z"_s, u"New"_s}));
    EXPECT_EQ(Editor.List().Row(2).Value, u"Text"_s);
    EXPECT_EQ(Editor.List().Key(2), QString());
    EXPECT_EQ(View.Scrolled, 2);
    EXPECT_EQ(State().SelectedRow, 0) << "it isn't selected";
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(View.Changes.back(), std::make_pair(LabelChange::Insert, 2));
    Editor.ClickHeader(LabelList::Name);
    EXPECT_EQ(Names(), (QStringList{u"Z"_s, u"New"_s, u"a"_s}));
}

TEST_F(CsfEditorCommands, AnAddedRowIsSortedInWhenItsFileIsOpenedAgain) {
    const QString path = OpenTable({{"Z", "1"}, {"a", "2"}});
    Editor.Add();
    Editor.Save();
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"Z"_s, u"New"_s})) << "a save leaves the rows";
    Editor.OpenCSFFile(path);
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"New"_s, u"Z"_s}));
}

TEST_F(CsfEditorCommands, DeleteRemovesTheRowAndClicksTheOneThatFollows) {
    OpenTable({{"a", "1"}, {"b", "2"}, {"c", "3"}});
    Editor.ClickRow(1);
    Editor.Delete();
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"c"_s}));
    EXPECT_EQ(State().SelectedRow, 1);
    EXPECT_EQ(View.Selected, 1);
    EXPECT_EQ(State().NameText, u"c"_s);
    EXPECT_TRUE(State().Modified);
    EXPECT_TRUE(host_.Messages.empty()) << "without a question";
}

TEST_F(CsfEditorCommands, DeleteOfTheLastRowIsARunTimeError) {
    OpenTable({{"a", "1"}, {"b", "2"}});
    Editor.ClickRow(1);
    ExpectError(9, &CsfEditor::Delete);
    EXPECT_EQ(Names(), QStringList{u"a"_s});
}

TEST_F(CsfEditorCommands, DeleteWithoutASelectedRowIsARunTimeError) {
    ExpectError(91, &CsfEditor::Delete);
    Editor.New();
    Editor.Add();
    ExpectError(91, &CsfEditor::Delete);
    EXPECT_EQ(Editor.List().Count(), 1);
}

TEST_F(CsfEditorCommands, AHeaderTurnsItsOrderAndTheOtherLosesItsMark) {
    OpenTable({{"a", "2"}, {"b", "3"}, {"c", "1"}});
    Editor.ClickHeader(LabelList::Name);
    EXPECT_EQ(Names(), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
    EXPECT_EQ(State().SelectedRow, 2) << "the selection goes with its row";
    EXPECT_EQ(Editor.NewPlaces(), (std::vector{2, 1, 0}));
    Editor.ClickHeader(LabelList::Value);
    EXPECT_EQ(Names(), (QStringList{u"c"_s, u"a"_s, u"b"_s}));
    EXPECT_EQ(Editor.List().OrderOf(LabelList::Name), LabelList::Order::None);
    Editor.ClickHeader(LabelList::Value);
    EXPECT_EQ(Names(), (QStringList{u"b"_s, u"a"_s, u"c"_s}));
    Editor.ClickHeader(LabelList::Name);
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_FALSE(State().Modified);
}

TEST_F(CsfEditorCommands, NumbersSortAsText) {
    OpenTable({{"a", "10"}, {"b", "9"}, {"c", "100"}});
    Editor.ClickHeader(LabelList::Value);
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
}

TEST_F(CsfEditorCommands, FindWalksThroughTheMatchesAndStopsAtTheLast) {
    OpenTable({{"1", ""}, {"2 GUI", ""}, {"3 gui", ""}, {"4", "GUI"}});
    View.Focused = 0;
    Find(u"Gui"_s);
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, 1);
    EXPECT_EQ(State().NameText, u"2 GUI"_s);
    EXPECT_EQ(View.Focused, 1);
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, 2);
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, 2) << "values are not searched, and the search does not begin anew";
    EXPECT_TRUE(host_.Messages.empty());
    EXPECT_FALSE(State().Modified);
}

TEST_F(CsfEditorCommands, FindLooksAtValuesWhereThatIsChosen) {
    OpenTable({{"a", "1"},
               {"b", "The GUI"},
               {"gui:c", "3"},
               {"d", "\xC9"
                     "diteur"}});
    Find(u"gui"_s);
    Editor.FindNext();
    EXPECT_EQ(State().NameText, u"gui:c"_s);
    EXPECT_TRUE(Editor.CountText().startsWith(u"RowCount, MatchCount"_s));
    Editor.ClickRow(0);
    const int told = View.StateChanges;
    Editor.FindInValues(true);
    EXPECT_GT(View.StateChanges, told) << "the count is another one";
    Editor.FindNext();
    EXPECT_EQ(State().NameText, u"b"_s);
    Editor.FindNext();
    EXPECT_EQ(State().NameText, u"gui:c"_s);
    Find(u"\u00E9diteur"_s);
    Editor.FindNext();
    EXPECT_EQ(State().NameText, u"d"_s);
    EXPECT_EQ(Editor.List().Matches(u"gui"_s, true), 2);
    EXPECT_EQ(Editor.List().Matches(u"gui"_s, false), 1);
    Editor.FindInValues(false);
    Editor.ClickRow(0);
    Find(u"the gui"_s);
    Editor.FindNext();
    EXPECT_EQ(State().NameText, u"a"_s);
}

TEST_F(CsfEditorCommands, FindFromTheLastRowBeginsAtTheTop) {
    OpenTable({{"1 gui", ""}, {"2", ""}, {"3 gui", ""}});
    Find(u"gui"_s);
    Editor.ClickRow(2);
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, 0);
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, 2);
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, 0) << "the last match is the list's last row";
}

TEST_F(CsfEditorCommands, FindWithoutRowsOrMatchesDoesNothing) {
    Find(u"x"_s);
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, CsfEditorState::None);
    OpenTable({{"a", ""}});
    View.Focused = 0;
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, 0);
    EXPECT_EQ(View.Focused, 0);
}

TEST_F(CsfEditorCommands, FindWithoutASelectionBeginsAtTheTop) {
    Editor.Add();
    Find(u"new"_s);
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, 0);
    EXPECT_TRUE(State().BoxesEnabled);
}

TEST_F(CsfEditorCommands, ThePromptGoesWithTheFocusAndComesBack) {
    Editor.FindFocused();
    EXPECT_EQ(State().FindText, QString());
    EXPECT_FALSE(State().FindIsGrey);
    Editor.FindLeft();
    EXPECT_EQ(State().FindText, u"Find"_s);
    EXPECT_TRUE(State().FindIsGrey);
    Find(u"abc"_s);
    Editor.FindLeft();
    Editor.FindFocused();
    EXPECT_EQ(State().FindText, u"abc"_s);
    EXPECT_FALSE(State().FindIsGrey);
}

TEST_F(CsfEditorCommands, KeysDoNotSearchForThePromptButTheButtonDoes) {
    OpenTable({{"1", ""}, {"2 Find", ""}});
    Editor.FindNextByKey();
    EXPECT_EQ(State().SelectedRow, 0);
    Editor.FindNext();
    EXPECT_EQ(State().SelectedRow, 1);
    Find(u"1"_s);
    Editor.FindNextByKey();
    EXPECT_EQ(State().SelectedRow, 0);
}

TEST_F(CsfEditorCommands, RowsAndMatchesAreCounted) {
    world_.UseLanguage("[LNG]\r\nRowCount=%1 rows\r\nMatchCount=%1 found\r\nFind=Find\r\n");
    world_.Start();
    OpenTable({{"a GUI", ""}, {"b gui", ""}, {"Find", "gui"}});
    EXPECT_EQ(Editor.CountText(), u"3 rows"_s);
    Find({});
    EXPECT_EQ(Editor.CountText(), u"3 rows"_s);
    Editor.FindTyped(u"gui"_s);
    EXPECT_EQ(Editor.CountText(), u"3 rows, 2 found"_s);
}
