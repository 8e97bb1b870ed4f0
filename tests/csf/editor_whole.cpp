// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Tables beyond 8 bits in the editor: told, kept whole, saved whole.
#include "platform/Paths.h"
#include "tests/csf/WholeBytes.h"
#include "tests/csf/editor_support.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace WholeBytes;

namespace {

class CsfEditorWhole : public EditorTest {
protected:
    QString OpenBytes(const QByteArray& bytes) {
        QString path = Put(u"a.csf"_s, bytes);
        Editor.OpenCSFFile(path);
        return path;
    }

    void ClickLink() {
        ASSERT_EQ(View.Told.Links.size(), 1U);
        EXPECT_EQ(View.Told.Links[0].Text, u"KeepEverything"_s);
        RunFirst(View);
    }

    static void RunFirst(RecordingCsfView& view) {
        const auto run = view.Told.Links.at(0).Run;
        view.Told = {};
        run();
    }

    QString OpenWhole(const QByteArray& bytes) {
        QString path = OpenBytes(bytes);
        ClickLink();
        EXPECT_TRUE(State().Whole);
        return path;
    }

    QStringList Values() {
        QStringList values;
        for (int place = 0; place < Editor.List().Count(); ++place)
            values += Editor.List().Row(place).Value;
        return values;
    }

    void Select(const QString& name) { Editor.ClickRow(static_cast<int>(Names().indexOf(name))); }

    void UseTexts() {
        world_.UseLanguage("[LNG]\r\nTextsBeyond=%1 beyond\r\nOneTextBeyond=%1 alone\r\n");
        world_.Start();
    }
};

/// A table of a language's letters, with all that 8 bits lose besides.
QByteArray TableOf(const QString& text) {
    return Head(4, 5, 3) + Entry("GUI:Two", text) + Label(2, "GUI:Many", " lBl") + String(text + u"1"_s) +
           WithExtra(text + u"2"_s, "CHAT01") + Label(0, "GUI:None") + Entry("GUI:One", u"plain"_s) +
           Label(1, "gui:last") + WithExtra(u""_s, "");
}

} // namespace

TEST_F(CsfEditorWhole, EightBitsThatSufficeAreNotSpokenOf) {
    OpenTable({{"a", "\xFF"}});
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(CsfEditorWhole, WhatEightBitsCantKeepIsToldWithTheWayOut) {
    UseTexts();
    OpenBytes(Head(3, 3) + Entry("b", u"\u0416"_s) + Entry("a", u"\uD55C"_s) + Entry("c", u"x"_s));
    EXPECT_EQ(View.Told.Text, u"2 beyond"_s);
    EXPECT_FALSE(State().Whole);
    EXPECT_EQ(Values(), QStringList({u"\u005C"_s, u"\u0016"_s, u"x"_s})) << "until then the letters' low bytes show";
    ClickLink();
    EXPECT_TRUE(State().Whole);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(Values(), QStringList({u"\uD55C"_s, u"\u0416"_s, u"x"_s}));
    EXPECT_EQ(State().ValueText, u"\uD55C"_s);
    EXPECT_EQ(View.Busy, 0);
}

TEST_F(CsfEditorWhole, OneTextIsToldByItsName) {
    UseTexts();
    OpenBytes(Head(2, 2) + Entry("b", u"\u0416"_s) + Entry("a", u"x"_s));
    EXPECT_EQ(View.Told.Text, u"b alone"_s);
}

TEST_F(CsfEditorWhole, TheNextTableIsNotToldTheSame) {
    OpenBytes(Head(1, 1) + Entry("b", u"\u0416"_s));
    OpenTable({{"a", "1"}});
    EXPECT_EQ(View.Told.Text, QString());
    OpenBytes(Head(1, 1) + Entry("b", u"\u0416"_s));
    Editor.New();
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(CsfEditorWhole, AHeadThatIsNotKeptIsTold) {
    OpenBytes(Head(1, 1, 10) + Entry("b", u"x"_s));
    EXPECT_EQ(View.Told.Text, u"HeaderBeyond"_s);
    ClickLink();
    EXPECT_EQ(State().LanguageText, u"10"_s);
    EXPECT_EQ(State().LanguageShown, CsfEditorState::None);
}

TEST_F(CsfEditorWhole, TablesOfEveryAlphabetAreSavedByteForByte) {
    for (const QString& text : {u"\uD55C\uAD6D\uC5B4"_s, u"\u4E2D\u6587\U00020000"_s, u"\u0420\u0443\u0441"_s,
                                u"Za\u017C\u00F3\u0142\u0107"_s, u"\u0E44\u0E17\u0E22\u0E49"_s}) {
        const QString path = OpenWhole(TableOf(text));
        EXPECT_EQ(Names(), QStringList({u"gui:last"_s, u"GUI:Many"_s, u"GUI:Many"_s, u"GUI:One"_s, u"GUI:Two"_s}));
        Editor.Save();
        EXPECT_EQ(World::ReadFile(path), TableOf(text));
        EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
        Select(u"GUI:One"_s);
        Editor.ValueTyped(text + u"\r\n!"_s);
        Editor.ClickHeader(LabelList::Value);
        Editor.Save();
        EXPECT_EQ(World::ReadFile(path), TableOf(text).replace(String(u"plain"_s), String(text + u"\n!"_s)));
        EXPECT_FALSE(State().Modified);
    }
}

TEST_F(CsfEditorWhole, NewRowsStandLastHoweverTheListIsSorted) {
    const QString path = OpenWhole(Head(2, 2) + Entry("m", u"\u0416"_s) + Entry("b", u"2"_s));
    Editor.Add();
    Editor.ClickRow(2);
    Editor.NameTyped(u"a"_s);
    Editor.ClickHeader(LabelList::Value);
    Editor.Save();
    QByteArray saved = Head(3, 3) + Entry("m", u"\u0416"_s) + Entry("b", u"2"_s) + Entry("a", u"Text"_s);
    EXPECT_EQ(World::ReadFile(path), saved);
    Editor.Add();
    Editor.Save();
    saved.replace(0, 24, Head(4, 4));
    EXPECT_EQ(World::ReadFile(path), saved + Entry("New", u"Text"_s)) << "the order of the save before is the file's";
}

TEST_F(CsfEditorWhole, DeletedAndRenamedRowsGoAndStayWhereTheyWere) {
    const QString path = OpenWhole(TableOf(u"\u0416"_s));
    Select(u"GUI:Two"_s);
    Editor.NameTyped(u"aaa"_s);
    Select(u"gui:last"_s);
    Editor.Delete();
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), Head(3, 4, 3) + Entry("aaa", u"\u0416"_s) + Label(2, "GUI:Many", " lBl") +
                                         String(u"\u04161"_s) + WithExtra(u"\u04162"_s, "CHAT01") +
                                         Label(0, "GUI:None") + Entry("GUI:One", u"plain"_s));
}

TEST_F(CsfEditorWhole, ChangesMadeSoFarAreCarriedOver) {
    const QString path = OpenBytes(Head(5, 5) + Entry("a", u"\uD55C\uAD6D"_s) + Entry("b", u"\u0416"_s) +
                                   Entry("c", u"3"_s) + Entry("d", u"\u0416"_s) + Entry("e", u"\u0416"_s));
    const Notice told = View.Told;
    Select(u"a"_s);
    Editor.ValueTyped(State().ValueText + u" one"_s); // goes on behind letters that show as others
    Select(u"b"_s);
    Editor.NameTyped(u"renamed"_s);
    Select(u"d"_s);
    Editor.Delete();
    Select(u"e"_s);
    Editor.ValueTyped(u"new"_s);
    Editor.Add();
    Select(u"c"_s);
    View.Told = told;
    ClickLink();
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(State().NameText, u"c"_s) << "the selection stays";
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), Head(5, 5) + Entry("a", u"\uD55C\uAD6D one"_s) + Entry("renamed", u"\u0416"_s) +
                                         Entry("c", u"3"_s) + Entry("e", u"new"_s) + Entry("New", u"Text"_s));
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfEditorWhole, WhatWasTypedBeyondEightBitsComesBackWhole) {
    const QString path = OpenTable({{"a", "1"}, {"b", "2"}});
    Editor.ValueTyped(u"1\uD55C"_s);
    EXPECT_EQ(State().ValueText, u"1?"_s);
    Editor.ValueTyped(u"1?\U0001F5FA"_s);
    Editor.ValueTyped(u"1??\r\n!"_s);
    ASSERT_EQ(View.Told.Text, u"LettersLost"_s);
    ClickLink();
    EXPECT_EQ(State().ValueText, u"1\uD55C\U0001F5FA\r\n!"_s);
    Editor.ValueTyped(State().ValueText + u"\uAD6D"_s);
    EXPECT_EQ(View.Told.Text, QString());
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), Head(2, 2) + Entry("a", u"1\uD55C\U0001F5FA\n!\uAD6D"_s) + Entry("b", u"2"_s));
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfEditorWhole, ANameHasEightBitsInAWholeTableToo) {
    OpenBytes(Head(1, 1) + Entry("b", u"\u0416"_s));
    const Notice told = View.Told;
    Editor.NameTyped(u"\u0416"_s);
    EXPECT_TRUE(View.Told.Links.empty()) << "there is no way to keep it";
    View.Told = told;
    ClickLink();
    Editor.NameTyped(u"\u0416"_s);
    EXPECT_EQ(State().NameText, u"?"_s);
    Answer(Host::Answer::Cancel);
    Editor.Save();
    EXPECT_EQ(host_.Messages.back().Text, u"SaveLosesLetters\r\n\r\n?"_s);
}

TEST_F(CsfEditorWhole, ANewTableKeepsEverythingToo) {
    Editor.New();
    Editor.Add();
    Editor.ClickRow(0);
    Editor.ValueTyped(u"\u0416"_s);
    ClickLink();
    EXPECT_EQ(State().LanguageText, u"0"_s);
    ChooseFile(At(u"b.csf"_s));
    Editor.Save();
    EXPECT_EQ(World::ReadFile(At(u"b.csf"_s)), Head(1, 1) + Entry("New", u"\u0416"_s));
}

TEST_F(CsfEditorWhole, TheFirstSaveThatLosesAsksOnce) {
    const QByteArray bytes =
        Head(3, 3) + Label(1, "e") + WithExtra(u"v"_s, "x") + Entry("b", u"\u0416"_s) + Entry("a", u"x"_s);
    const QString path = OpenBytes(bytes);
    Select(u"a"_s);
    Editor.ValueTyped(u"\uD55C"_s);
    View.Told = {};
    Answer(Host::Answer::Cancel);
    Editor.Save();
    ASSERT_EQ(host_.Messages.size(), 1U) << "one question for all that is lost";
    EXPECT_EQ(host_.Messages[0].Text, u"SaveLosesData\r\n\r\nb\r\ne\r\na"_s);
    EXPECT_EQ(host_.Messages[0].Choice, Host::Buttons::SaveCancel);
    EXPECT_EQ(host_.Messages[0].Default, Host::Answer::Cancel);
    EXPECT_EQ(World::ReadFile(path), bytes);
    EXPECT_EQ(View.Told.Text, u"TextsBeyond"_s) << "the way out is shown again";
    Answer(Host::Answer::Save);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), CsfHeader(2) + EntryRecords("a", "?") + EntryRecords("b", "\x16"));
    EXPECT_EQ(View.Told.Text, QString());
    Editor.Save();
    EXPECT_EQ(host_.Messages.size(), 2U);
}

TEST_F(CsfEditorWhole, BehindASaveInEightBitsEverythingIsWhatWasSaved) {
    const QString path = OpenBytes(Head(2, 2) + Entry("b", u"\u0416"_s) + Entry("a", u"1"_s));
    Answer(Host::Answer::Save);
    Editor.Save();
    Select(u"b"_s);
    Editor.ValueTyped(State().ValueText + u"\uD55C"_s);
    ClickLink();
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), Head(2, 2) + Entry("a", u"1"_s) + Entry("b", u"\u0016\uD55C"_s));
}

TEST_F(CsfEditorWhole, TheLanguageListWritesWhereEverythingIsKept) {
    const QString path = OpenBytes(Head(1, 1, 0x01020304) + Entry("b", u"\u0416"_s));
    const Notice told = View.Told;
    Editor.LanguageChosen(2);
    EXPECT_FALSE(State().Modified);
    View.Told = told;
    ClickLink();
    EXPECT_EQ(State().LanguageText, u"16909060"_s);
    EXPECT_EQ(State().LanguageShown, CsfEditorState::None);
    Editor.LanguageChosen(8);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(State().LanguageText, u"8"_s);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), Head(1, 1, 8) + Entry("b", u"\u0416"_s));
    Editor.OpenCSFFile(path);
    EXPECT_FALSE(State().Whole) << "each opening shows 8 bits first";
}

TEST_F(CsfEditorWhole, ATableThatEightBitsRefuseIsOfferedWhole) {
    const QByteArray bytes = Head(1, 1, 3) + Label(1, "e") + WithExtra(u"\u0416"_s, "x");
    const QString path = OpenBytes(bytes);
    EXPECT_EQ(View.Told.Text, u"OnlyWhole"_s);
    EXPECT_EQ(View.Shown, 1);
    EXPECT_EQ(Editor.List().Count(), 0);
    ClickLink();
    EXPECT_TRUE(State().Whole);
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(Values(), QStringList{u"\u0416"_s});
    EXPECT_EQ(State().Path, path);
    EXPECT_EQ(State().Caption, u"a.csf"_s);
    EXPECT_EQ(State().LanguageShown, 3);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), bytes);
}

TEST_F(CsfEditorWhole, MoreTextsThanEightBitsCountAreOfferedWhole) {
    QByteArray bytes = Head(32'768, 32'768);
    for (int entry = 0; entry < 32'768; ++entry)
        bytes += Entry("n", u"v"_s);
    const QString path = OpenBytes(bytes);
    ClickLink();
    EXPECT_EQ(Editor.List().Count(), 32'768);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), bytes);
}

TEST_F(CsfEditorWhole, AFailedSaveIsToldAndEndsNothing) {
    const QString path = OpenWhole(Head(1, 1) + Entry("b", u"\u0416"_s));
    Put(u"a.csf.sav"_s, "somebody else's");
    Editor.ValueTyped(u"2"_s);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), Head(1, 1) + Entry("b", u"2"_s)) << "that file is in nobody's way";
    Editor.ValueTyped(u"3"_s);
    ASSERT_TRUE(QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner));
    Editor.Save();
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_TRUE(host_.Messages[0].Text.startsWith(u"SaveFailed\r\n"_s));
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(World::ReadFile(path), Head(1, 1) + Entry("b", u"2"_s));
}

TEST_F(CsfEditorWhole, ARescueIsWhole) {
    const QByteArray bytes = TableOf(u"\u0416"_s);
    const QString path = Put(u"a.csf"_s, bytes);
    {
        RecordingCsfView view;
        CsfEditor editor(view);
        editor.OpenCSFFile(path);
        RunFirst(view);
        editor.KeepRescue();
        EXPECT_TRUE(Files::ListFolder(Rescues::Folder() + u"\\*"_s, true).isEmpty()) << "it is as its file is";
        editor.LanguageChosen(8);
        editor.KeepRescue();
        EXPECT_FALSE(Files::ListFolder(Rescues::Folder() + u"\\*"_s, true).isEmpty());
        editor.Add();
        editor.KeepRescue();
    }
    Editor.TellLeft();
    ASSERT_EQ(View.Told.Text, u"Rescued"_s);
    RunFirst(View);
    EXPECT_TRUE(State().Whole);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(State().LanguageShown, 8);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), QByteArray(bytes).replace(0, 24, Head(5, 6, 8)) + Entry("New", u"Text"_s));
}

TEST_F(CsfEditorWhole, ARescueOfEightBitsCanStillKeepEverything) {
    const QString path = Put(u"a.csf"_s, Head(2, 2) + Entry("b", u"\u0416"_s) + Entry("a", u"x"_s));
    {
        RecordingCsfView view;
        CsfEditor editor(view);
        editor.OpenCSFFile(path);
        editor.ValueTyped(u"typed"_s);
        editor.KeepRescue();
    }
    Editor.TellLeft();
    RunFirst(View);
    EXPECT_FALSE(State().Whole);
    ASSERT_EQ(View.Told.Text, u"OneTextBeyond"_s);
    ClickLink();
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), Head(2, 2) + Entry("b", u"\u0416"_s) + Entry("a", u"typed"_s));
}
