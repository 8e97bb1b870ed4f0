// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What was done to the rows, taken back and done again.
#include "tests/csf/WholeBytes.h"
#include "tests/csf/editor_support.h"

#include <random>

using namespace Qt::StringLiterals;
using namespace WholeBytes;

namespace {

class CsfEditorUndo : public EditorTest {
protected:
    void OpenThree() { OpenTable({{"a", "1"}, {"b", "2"}, {"c", "3"}}); }

    void Select(const QString& name) { Editor.ClickRow(static_cast<int>(Names().indexOf(name))); }

    std::vector<CsfString> Table() { return Editor.List().Table(); }
};

} // namespace

TEST_F(CsfEditorUndo, WithoutAChangeThereIsNothingToTakeBack) {
    OpenThree();
    EXPECT_FALSE(Editor.CanUndo() || Editor.CanRedo());
    Editor.Undo();
    Editor.Redo();
    EXPECT_EQ(Names().size(), 3);
    EXPECT_FALSE(State().Modified);
}

TEST_F(CsfEditorUndo, AnAddedRowGoesAndComes) {
    OpenThree();
    Editor.Add();
    Editor.Undo();
    EXPECT_EQ(Names(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(State().SelectedRow, 2);
    EXPECT_FALSE(State().Modified);
    Editor.Redo();
    EXPECT_EQ(Names(), QStringList({u"a"_s, u"b"_s, u"c"_s, u"New"_s}));
    EXPECT_EQ(State().NameText, u"New"_s) << "what comes back is selected";
    EXPECT_TRUE(State().Modified);
    EXPECT_FALSE(Editor.CanRedo());
}

TEST_F(CsfEditorUndo, ADeletedRowComesBackWhereItStood) {
    OpenThree();
    Select(u"b"_s);
    Editor.Delete();
    Editor.Undo();
    EXPECT_EQ(Names(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(State().ValueText, u"2"_s);
    EXPECT_EQ(View.Selected, 1);
    Editor.Redo();
    EXPECT_EQ(Names(), QStringList({u"a"_s, u"c"_s}));
    EXPECT_EQ(State().NameText, u"c"_s);
}

TEST_F(CsfEditorUndo, WhatIsTypedIntoABoxIsOneStep) {
    OpenThree();
    Editor.NameTyped(u"ax"_s);
    Editor.NameTyped(u"axy"_s);
    Editor.ValueTyped(u"1x"_s);
    Editor.ValueTyped(u"1xy"_s);
    Editor.Undo();
    EXPECT_EQ(State().ValueText, u"1"_s);
    EXPECT_EQ(State().NameText, u"axy"_s);
    Editor.Undo();
    EXPECT_EQ(State().NameText, u"a"_s);
    EXPECT_FALSE(Editor.CanUndo());
    Editor.Redo();
    Editor.Redo();
    EXPECT_EQ(Table()[0], (CsfString{u"1xy"_s, u"axy"_s}));
}

TEST_F(CsfEditorUndo, AnotherRowBetweenMakesAnotherStep) {
    OpenThree();
    Editor.NameTyped(u"ax"_s);
    Editor.ClickRow(1);
    Editor.ClickRow(0);
    Editor.NameTyped(u"axy"_s);
    Editor.Undo();
    EXPECT_EQ(State().NameText, u"ax"_s);
}

TEST_F(CsfEditorUndo, WhatABoxTookBackItselfIsNoStepMore) {
    OpenThree();
    Editor.Add();
    Editor.NameTyped(u"ax"_s);
    Editor.NameTyped(u"a"_s);
    Editor.Undo();
    EXPECT_EQ(Names().size(), 3);
}

TEST_F(CsfEditorUndo, ANewChangeEndsWhatCouldBeDoneAgain) {
    OpenThree();
    Editor.Add();
    Editor.Undo();
    Editor.NameTyped(u"x"_s);
    EXPECT_FALSE(Editor.CanRedo());
    Editor.Undo();
    EXPECT_FALSE(State().Modified);
}

TEST_F(CsfEditorUndo, TheRowIsFoundWhereverASortPutIt) {
    OpenThree();
    Select(u"c"_s);
    Editor.NameTyped(u"0"_s);
    Editor.ClickHeader(LabelList::Value);
    Editor.ClickHeader(LabelList::Value);
    EXPECT_EQ(Names(), QStringList({u"0"_s, u"b"_s, u"a"_s}));
    Editor.Undo();
    EXPECT_EQ(Names(), QStringList({u"c"_s, u"b"_s, u"a"_s}));
    EXPECT_EQ(View.Selected, 0);
}

TEST_F(CsfEditorUndo, BehindASaveTheSavedRowsAreTheUnchangedOnes) {
    const QString path = OpenTable({{"a", "1"}, {"b", "2"}});
    Editor.Add();
    Editor.Save();
    EXPECT_TRUE(Editor.CanUndo());
    Editor.Undo();
    EXPECT_TRUE(State().Modified);
    Editor.Redo();
    EXPECT_FALSE(State().Modified);
    Editor.Undo();
    Editor.NameTyped(u"x"_s);
    Editor.Undo();
    EXPECT_TRUE(State().Modified) << "the saved rows are out of reach";
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), CsfHeader(2) + EntryRecords("a", "1") + EntryRecords("b", "2"));
}

TEST_F(CsfEditorUndo, AnotherDocumentHasNothingToTakeBack) {
    OpenThree();
    Editor.Add();
    OpenThree();
    EXPECT_FALSE(Editor.CanUndo());
    Editor.Add();
    Answer(Host::Answer::No);
    Editor.New();
    EXPECT_FALSE(Editor.CanUndo());
    Editor.Add();
    Editor.Undo();
    EXPECT_EQ(Editor.List().Count(), 0);
    EXPECT_FALSE(State().BoxesEnabled);
}

TEST_F(CsfEditorUndo, LettersThatWereLostAreLostNoMore) {
    OpenThree();
    Editor.ValueTyped(u"\u0416"_s);
    Editor.Undo();
    Editor.Add();
    Editor.Save();
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfEditorUndo, ItReachesBackOverTheWholeTable) {
    const QByteArray bytes =
        Head(3, 3) + Entry("a", u"\uD55C"_s) + Label(1, "b") + WithExtra(u"\u0416"_s, "x") + Entry("c", u"\u0100"_s);
    const QString path = Put(u"a.csf"_s, bytes);
    Editor.OpenCSFFile(path);
    const Notice told = View.Told;
    Select(u"a"_s);
    Editor.ValueTyped(u"new"_s);
    Select(u"c"_s);
    Editor.NameTyped(u"d"_s);
    Select(u"a"_s);
    Editor.Delete();
    told.Links.at(0).Run();
    ASSERT_TRUE(State().Whole);
    Editor.Undo();
    Editor.Undo();
    Editor.Undo();
    EXPECT_FALSE(State().Modified);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), bytes);
}

TEST_F(CsfEditorUndo, AWholeRowThatCameBackBehindASaveIsTheLastOne) {
    const QString path =
        Put(u"a.csf"_s, Head(2, 2) + Label(1, "a") + WithExtra(u"\uD55C"_s, "x") + Entry("b", u"\u0416"_s));
    Editor.OpenCSFFile(path);
    const Notice told = View.Told;
    told.Links.at(0).Run();
    Select(u"a"_s);
    Editor.Delete();
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), Head(1, 1) + Entry("b", u"\u0416"_s));
    Editor.Undo();
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path),
              Head(2, 2) + Entry("b", u"\u0416"_s) + Label(1, "a") + WithExtra(u"\uD55C"_s, "x"));
}

TEST_F(CsfEditorUndo, ChosenLanguagesAreAChangeThatRowsDontTakeBack) {
    Editor.OpenCSFFile(Put(u"a.csf"_s, Head(1, 1) + Entry("b", u"\u0416"_s)));
    const Notice told = View.Told;
    told.Links.at(0).Run();
    Editor.Add();
    Editor.LanguageChosen(2);
    Editor.Undo();
    EXPECT_TRUE(State().Modified);
}

TEST_F(CsfEditorUndo, ManyStepsLeadBackAndForth) {
    OpenThree();
    std::mt19937 random(14);
    std::vector<std::vector<CsfString>> tables{Table()};
    for (int step = 0; step < 300; ++step) {
        Editor.ClickRow(static_cast<int>(random() % static_cast<unsigned>(Editor.List().Count())));
        switch (random() % 4) {
        case 0:
            Editor.Add();
            break;
        case 1:
            Editor.NameTyped(u"name %1"_s.arg(step));
            break;
        case 2:
            Editor.ValueTyped(u"value %1"_s.arg(step));
            break;
        default:
            if (State().SelectedRow + 1 == Editor.List().Count())
                Editor.Add();
            else
                Editor.Delete();
        }
        tables.push_back(Table());
    }
    for (auto table = tables.rbegin() + 1; table != tables.rend(); ++table) {
        Editor.Undo();
        ASSERT_EQ(Table(), *table);
    }
    EXPECT_FALSE(State().Modified);
    for (auto table = tables.begin() + 1; table != tables.end(); ++table) {
        Editor.Redo();
        ASSERT_EQ(Table(), *table);
    }
}
