// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Letters that tables lack: shown as they will be stored, told, asked about before a save.
#include "tests/csf/editor_support.h"

using namespace Qt::StringLiterals;

namespace {

class CsfLostLetters : public EditorTest {
protected:
    /// How many questions a save asks; Save is the answer to them.
    std::size_t QuestionsOfSave() {
        const std::size_t before = host_.Messages.size();
        host_.Answers = {Host::Answer::Save};
        Editor.Save();
        return host_.Messages.size() - before;
    }
};

} // namespace

TEST_F(CsfLostLetters, AValueIsShownAsItWillBeStored) {
    OpenTable({{"a", "old"}});
    Editor.ValueTyped(u"caf\u00E9 \u65E5\r\n\U0001F5FA."_s);
    EXPECT_EQ(Editor.List().Row(0).Value, u"caf\u00E9 ?\n?."_s);
    EXPECT_EQ(State().ValueText, u"caf\u00E9 ?\r\n?."_s);
    EXPECT_EQ(View.Replaced, std::vector<bool>{false});
    EXPECT_EQ(View.Told.Text, u"LettersLost"_s);
    EXPECT_TRUE(State().Modified);
}

TEST_F(CsfLostLetters, ANameIsShownAsItWillBeStored) {
    OpenTable({{"a", "old"}});
    Editor.NameTyped(u"GUI:\u65E5"_s);
    EXPECT_EQ(Names(), QStringList{u"GUI:?"_s});
    EXPECT_EQ(State().NameText, u"GUI:?"_s);
    EXPECT_EQ(View.Replaced, std::vector<bool>{true});
    EXPECT_EQ(View.Told.Text, u"LettersLost"_s);
}

TEST_F(CsfLostLetters, WhatTablesHoldIsNotTold) {
    OpenTable({{"a", "old"}});
    Editor.NameTyped(u"\u0152"_s);
    Editor.ValueTyped(u"\u20AC\r\n\u00FC?"_s);
    EXPECT_TRUE(View.Replaced.empty());
    EXPECT_EQ(View.Told.Text, QString());
    EXPECT_EQ(QuestionsOfSave(), 0U);
}

TEST_F(CsfLostLetters, BeforeASaveIsAskedAndCancelSavesNothing) {
    const QString path = OpenTable({{"a", "old"}, {"b", "other"}});
    const QByteArray before = World::ReadFile(path);
    Editor.ValueTyped(u"\u65E5"_s);
    Answer(Host::Answer::Cancel);
    Editor.Save();
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Text, u"SaveLosesLetters\r\n\r\na"_s);
    EXPECT_EQ(host_.Messages[0].Choice, Host::Buttons::SaveCancel);
    EXPECT_EQ(host_.Messages[0].Default, Host::Answer::Cancel);
    EXPECT_EQ(World::ReadFile(path), before);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(QuestionsOfSave(), 1U);
    EXPECT_EQ(World::ReadFile(path), CsfHeader(2) + EntryRecords("a", "?") + EntryRecords("b", "other"));
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(QuestionsOfSave(), 0U) << "What is stored is asked about no more.";
}

TEST_F(CsfLostLetters, SaveAsAsksBeforeTheName) {
    OpenTable({{"a", "old"}});
    Editor.NameTyped(u"\u65E5"_s);
    Answer(Host::Answer::Cancel);
    Editor.SaveAs();
    EXPECT_EQ(host_.Messages.size(), 1U);
    EXPECT_TRUE(host_.Dialogs.empty());
    Answer(Host::Answer::Save);
    ChooseFile(At(u"b.csf"_s));
    Editor.SaveAs();
    EXPECT_EQ(World::ReadFile(At(u"b.csf"_s)), CsfHeader(1) + EntryRecords("?", "old"));
}

TEST_F(CsfLostLetters, ClosingWithASaveThatIsCancelledStays) {
    OpenTable({{"a", "old"}});
    Editor.NameTyped(u"\u65E5"_s);
    Answer(Host::Answer::Yes);
    Answer(Host::Answer::Cancel);
    EXPECT_FALSE(Editor.MayClose());
}

TEST_F(CsfLostLetters, ARowThatWasDeletedIsNotAskedAbout) {
    OpenTable({{"a", "old"}, {"b", "other"}});
    Editor.ValueTyped(u"\u65E5"_s);
    Editor.Delete();
    EXPECT_EQ(QuestionsOfSave(), 0U);
}

TEST_F(CsfLostLetters, ASortTakesWhatWasLostAlong) {
    OpenTable({{"a", "z"}, {"b", "y"}});
    Editor.ValueTyped(u"\u65E5"_s);
    Editor.ClickHeader(LabelList::Name);
    Answer(Host::Answer::Cancel);
    Editor.Save();
    EXPECT_EQ(host_.Messages.back().Text, u"SaveLosesLetters\r\n\r\na"_s);
}
