// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files that can't be opened, and files that other programs change while they are open.
#include "platform/Paths.h"
#include "tests/csf/WholeBytes.h"
#include "tests/csf/editor_support.h"

using namespace Qt::StringLiterals;
using namespace WholeBytes;

namespace {

class CsfEditorDisk : public EditorTest {
protected:
    void OpenTwo() { OpenTable({{"a", "1"}, {"b", "2"}}); }

    static QByteArray Others() { return CsfHeader(2) + EntryRecords("a", "others") + EntryRecords("b", "too"); }

    void OthersWrite(const QByteArray& bytes = Others()) { Put(u"a.csf"_s, bytes); }

    void Run(std::size_t link) {
        ASSERT_LT(link, View.Told.Links.size());
        const auto run = View.Told.Links[link].Run;
        View.Told = {};
        run();
    }

    QString ToldAtTheFront() {
        View.Told = {};
        Editor.CameToFront();
        return View.Told.Text;
    }
};

} // namespace

TEST_F(CsfEditorDisk, AFileThatIsAsItWasIsNotSpokenOf) {
    EXPECT_EQ(ToldAtTheFront(), QString()) << "without a document";
    OpenTwo();
    EXPECT_EQ(ToldAtTheFront(), QString());
    Editor.NameTyped(u"c"_s);
    Editor.Save();
    EXPECT_EQ(ToldAtTheFront(), QString()) << "an own save is no other program's";
    Editor.New();
    EXPECT_EQ(ToldAtTheFront(), QString());
}

TEST_F(CsfEditorDisk, AnotherProgramsChangeIsToldOnce) {
    OpenTwo();
    OthersWrite();
    EXPECT_EQ(ToldAtTheFront(), u"ChangedOnDisk"_s);
    ASSERT_EQ(View.Told.Links.size(), 2U);
    EXPECT_EQ(View.Told.Links[0].Text, u"ReadAgain"_s);
    EXPECT_EQ(View.Told.Links[1].Text, u"KeepMine"_s);
    EXPECT_EQ(ToldAtTheFront(), QString());
    OthersWrite(Others() + EntryRecords("c", "3"));
    EXPECT_EQ(ToldAtTheFront(), u"ChangedOnDisk"_s) << "each change is one";
}

TEST_F(CsfEditorDisk, AFileThatIsGoneIsNothingToRead) {
    const QString path = OpenTable({{"a", "1"}});
    Files::Delete(path);
    EXPECT_EQ(ToldAtTheFront(), QString());
}

TEST_F(CsfEditorDisk, ReadAgainShowsWhatIsThereNow) {
    OpenTwo();
    Editor.ClickRow(1);
    OthersWrite();
    Editor.CameToFront();
    Run(0);
    EXPECT_EQ(State().NameText, u"b"_s) << "the selected row stays selected";
    EXPECT_EQ(State().ValueText, u"too"_s);
    EXPECT_EQ(View.Selected, 1);
    EXPECT_FALSE(State().Modified);
    EXPECT_TRUE(host_.Messages.empty());
    EXPECT_EQ(ToldAtTheFront(), QString());
}

TEST_F(CsfEditorDisk, KeepMineLeavesEverythingAndSavesOver) {
    const QString path = OpenTable({{"a", "1"}});
    Editor.ValueTyped(u"mine"_s);
    OthersWrite();
    Editor.CameToFront();
    Run(1);
    EXPECT_EQ(Editor.List().Row(0).Value, u"mine"_s);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), CsfHeader(1) + EntryRecords("a", "mine"));
    EXPECT_EQ(ToldAtTheFront(), QString());
}

TEST_F(CsfEditorDisk, ReadAgainLosesNoChangeWithoutAsking) {
    OpenTwo();
    Editor.ValueTyped(u"mine"_s);
    OthersWrite();
    Editor.CameToFront();
    Answer(Host::Answer::Cancel);
    Run(0);
    EXPECT_EQ(host_.Messages.back().Text, u"QuitSave"_s);
    EXPECT_EQ(Editor.List().Row(0).Value, u"mine"_s);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(View.Told.Text, u"ChangedOnDisk"_s) << "the question stays open";
    Answer(Host::Answer::No);
    Run(0);
    EXPECT_EQ(State().ValueText, u"others"_s);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(host_.Messages.size(), 2U);
}

TEST_F(CsfEditorDisk, ChangesThatAreSavedFirstGoToAnotherFile) {
    const QString path = OpenTable({{"a", "1"}});
    Editor.ValueTyped(u"mine"_s);
    OthersWrite();
    Editor.CameToFront();
    Answer(Host::Answer::Yes);
    ChooseFile(At(u"mine.csf"_s));
    Run(0);
    EXPECT_EQ(World::ReadFile(At(u"mine.csf"_s)), CsfHeader(1) + EntryRecords("a", "mine"));
    EXPECT_EQ(World::ReadFile(path), Others());
    EXPECT_EQ(State().Path, path);
    EXPECT_EQ(State().ValueText, u"others"_s);
}

TEST_F(CsfEditorDisk, AWholeTableIsReadWholeAgain) {
    Editor.OpenCSFFile(Put(u"a.csf"_s, Head(1, 1) + Entry("a", u"\u0416"_s)));
    Run(0);
    Editor.LanguageChosen(2);
    OthersWrite(Head(2, 2) + Entry("a", u"\uD55C\uAD6D"_s) + Entry("b", u"\u0E44"_s));
    EXPECT_EQ(ToldAtTheFront(), u"ChangedOnDisk"_s);
    Answer(Host::Answer::No);
    Run(0);
    EXPECT_TRUE(State().Whole);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(State().ValueText, u"\uD55C\uAD6D"_s);
    EXPECT_EQ(host_.Messages.size(), 1U) << "one question is enough";
    OthersWrite(CsfHeader(1) + "xxx" + EntryRecords("z", "1"));
    EXPECT_EQ(ToldAtTheFront(), u"ChangedOnDisk"_s);
    Run(0);
    EXPECT_FALSE(State().Whole) << "what is not well formed has 8 bits";
    EXPECT_EQ(State().NameText, u"z"_s);
}

TEST_F(CsfEditorDisk, ARefusedFileSaysWhy) {
    OpenTwo();
    world_.UseLanguage("[LNG]\r\nTableNotOpened=%1: %2\r\nNoStringTable=no table\r\nTableCutOff=cut off\r\n");
    world_.Start();
    const auto told = [&](const QByteArray& bytes) {
        const QString path = Put(u"bad.csf"_s, bytes);
        View.Told = {};
        Editor.OpenCSFFile(path);
        const QString begin = Paths::ToNative(path) + u": "_s;
        return View.Told.Text.startsWith(begin) ? View.Told.Text.sliced(begin.size()) : View.Told.Text;
    };
    EXPECT_EQ(told("RIFF" + QByteArray(40, 'x')), u"no table"_s);
    EXPECT_EQ(told((CsfHeader(1) + EntryRecords("a", "1")).chopped(1)), u"cut off"_s);
    EXPECT_EQ(told(""), u"cut off"_s);
    EXPECT_TRUE(View.Told.Links.empty());
    EXPECT_EQ(Names(), QStringList({u"a"_s, u"b"_s})) << "the open table stays";
}
