// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rescue/RescuedDocument.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/csf/editor_support.h"
#include "tests/support/Printing.h"

#include <optional>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class CsfEditorRescue : public EditorTest {
protected:
    /// How many rescues dead processes left.
    static std::size_t LeftCount() { return Rescues::LeftFor(TableRescue::Kind).size(); }

    /// Whether one lies there, be its process alive or not.
    static bool LiesThere() { return !Files::ListFolder(Rescues::Folder() + u"\\*"_s, true).isEmpty(); }

    /// An editor whose process dies with changes in a file of that name, one of which is kept.
    void LeaveChanged(const QString& name) {
        const QString path = Put(name, CsfHeader(1, 3) + EntryRecords("a", "1"));
        RecordingCsfView view;
        CsfEditor editor(view);
        editor.OpenCSFFile(path);
        editor.ValueTyped(u"typed"_s);
        editor.KeepRescue();
    }

    static void ClickLink(RecordingCsfView& view, std::size_t link) {
        ASSERT_LT(link, view.Told.Links.size());
        const auto run = view.Told.Links[link].Run;
        view.Told = {};
        run();
    }

    /// The editor's next start.
    void Restart() {
        next_.emplace(nextView_);
        next_->TellLeft();
    }

    RecordingCsfView nextView_;
    std::optional<CsfEditor> next_;
};

} // namespace

TEST_F(CsfEditorRescue, AChangedTableIsKeptAndOneThatIsAsItsFileIsNot) {
    OpenTable({{"a", "1"}, {"b", "2"}});
    EXPECT_FALSE(Editor.KeepRescue());
    EXPECT_FALSE(LiesThere());
    Editor.ValueTyped(u"typed"_s);
    EXPECT_FALSE(LiesThere());
    Editor.KeepRescue();
    EXPECT_TRUE(LiesThere());
    Editor.ValueTyped(u"1"_s);
    EXPECT_TRUE(State().Modified);
    Editor.KeepRescue();
    EXPECT_FALSE(LiesThere()) << "the table is as its file is, whatever counts as a change";
}

TEST_F(CsfEditorRescue, AnotherOrderIsNoChange) {
    OpenTable({{"a", "2"}, {"b", "1"}});
    Editor.ClickHeader(LabelList::Value);
    Editor.KeepRescue();
    EXPECT_FALSE(LiesThere());
}

TEST_F(CsfEditorRescue, ATableWithoutAFileIsKept) {
    Editor.New();
    Editor.KeepRescue();
    EXPECT_FALSE(LiesThere());
    Editor.Add();
    Editor.KeepRescue();
    EXPECT_TRUE(LiesThere());
}

TEST_F(CsfEditorRescue, WhatIsKeptAlreadyIsNotWrittenAgain) {
    OpenTable({{"a", "1"}});
    Editor.ValueTyped(u"typed"_s);
    Editor.KeepRescue();
    const QString file =
        Rescues::Folder() + u'\\' + Files::ListFolder(Rescues::Folder() + u"\\*"_s, true).value(0) + u"\\rescue"_s;
    const FileState before = StateOf(file);
    Editor.KeepRescue();
    EXPECT_EQ(StateOf(file), before);
    Editor.Add();
    Editor.KeepRescue();
    EXPECT_NE(StateOf(file), before);
}

TEST_F(CsfEditorRescue, ASaveEndsTheRescue) {
    OpenTable({{"a", "1"}});
    Editor.ValueTyped(u"typed"_s);
    Editor.KeepRescue();
    Editor.Save();
    EXPECT_FALSE(LiesThere());
    Editor.KeepRescue();
    EXPECT_FALSE(LiesThere());
}

TEST_F(CsfEditorRescue, AFailedSaveKeepsTheTableEvenUnchanged) {
    const QString path = OpenTable({{"a", "1"}});
    ASSERT_TRUE(QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner));
    Editor.Save();
    QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner | QFile::WriteOwner);
    Editor.KeepRescue();
    EXPECT_TRUE(LiesThere()) << "what the file is now nobody knows";
}

TEST_F(CsfEditorRescue, TheFatalPathOfASaveLosesNothing) {
    const QString path = OpenTable({{"a", "1"}});
    Put(u"a.csf.sav"_s, "somebody else's");
    Editor.ValueTyped(u"typed"_s);
    bool isKept = false;
    host_.OnMessage = [&] { isKept = LiesThere(); };
    EXPECT_THROW(Editor.Save(), ProgramEnded);
    EXPECT_TRUE(isKept) << "before the last message";
}

TEST_F(CsfEditorRescue, EveryOtherDocumentIsKeptBeforeAFatalEnd) {
    OpenTable({{"a", "1"}});
    Editor.ValueTyped(u"typed"_s);
    mCSF::CsfStrings.assign(1, {u"x"_s, u"a"_s});
    Put(u"b.csf"_s, "x");
    Put(u"b.csf.sav"_s, "x");
    EXPECT_THROW(mCSF::WriteCSF(At(u"b.csf"_s), 0), ProgramEnded);
    EXPECT_TRUE(LiesThere());
}

TEST_F(CsfEditorRescue, TheDeletionOfTheLastRowLosesNothing) {
    {
        RecordingCsfView view;
        CsfEditor editor(view);
        editor.OpenCSFFile(Put(u"t.csf"_s, CsfHeader(2) + EntryRecords("a", "1") + EntryRecords("b", "2")));
        editor.ValueTyped(u"typed"_s);
        editor.ClickRow(1);
        EXPECT_THROW(editor.Delete(), RuntimeError);
        KeepAllRescues();
    }
    Restart();
    ClickLink(nextView_, 0);
    ASSERT_EQ(next_->List().Count(), 1);
    EXPECT_EQ(next_->List().Row(0).Value, u"typed"_s);
}

TEST_F(CsfEditorRescue, AnHonestCloseLeavesNothing) {
    OpenTable({{"a", "1"}});
    Editor.ValueTyped(u"typed"_s);
    Editor.KeepRescue();
    Answer(Answer::Cancel);
    EXPECT_FALSE(Editor.MayClose());
    EXPECT_TRUE(LiesThere());
    Answer(Answer::No);
    EXPECT_TRUE(Editor.MayClose());
    EXPECT_FALSE(LiesThere());
    KeepAllRescues();
    EXPECT_FALSE(LiesThere()) << "it was given up";
    Editor.ValueTyped(u"more"_s);
    KeepAllRescues();
    EXPECT_TRUE(LiesThere()) << "the window lived on";
}

TEST_F(CsfEditorRescue, AClosingThatAsksNothingLeavesWhatDiffers) {
    {
        RecordingCsfView view;
        CsfEditor editor(view);
        editor.OpenCSFFile(Put(u"t.csf"_s, CsfHeader(2) + EntryRecords("a", "1") + EntryRecords("b", "2")));
        editor.ClickRow(1);
        EXPECT_THROW(editor.Delete(), RuntimeError);
        EXPECT_FALSE(editor.State().Modified);
        EXPECT_TRUE(editor.MayClose());
    }
    EXPECT_EQ(LeftCount(), 1U);
}

TEST_F(CsfEditorRescue, TheNextStartSaysWhatWasRescuedFromWhen) {
    LeaveChanged(u"t.csf"_s);
    world_.UseLanguage("[LNG]\r\nRescued=%2: %1\r\nOpen=Open\r\nThrowAway=Throw\r\n");
    world_.Start();
    const QString when =
        QLocale().toString(Rescues::LeftFor(TableRescue::Kind).at(0).Facts.Time.toLocalTime(), QLocale::ShortFormat);
    Restart();
    EXPECT_EQ(nextView_.Told.Text, when + u": "_s + Paths::ToNative(At(u"t.csf"_s)));
    ASSERT_EQ(nextView_.Told.Links.size(), 2U);
    EXPECT_EQ(nextView_.Told.Links[0].Text, u"Open"_s);
    EXPECT_EQ(nextView_.Told.Links[1].Text, u"Throw"_s);
}

TEST_F(CsfEditorRescue, OpenBringsTheWholeTableBack) {
    QString language;
    {
        RecordingCsfView view;
        CsfEditor editor(view);
        editor.OpenCSFFile(Put(u"t.csf"_s, CsfHeader(2, 20) + EntryRecords("a", "1") + EntryRecords("b", "2")));
        editor.Add();
        editor.ClickRow(0);
        editor.NameTyped(QString(u"z"_s + QChar(0xD800) + QChar(0)));
        editor.ValueTyped(u"line\r\nline"_s);
        language = editor.State().LanguageText;
        editor.KeepRescue();
    }
    Restart();
    ClickLink(nextView_, 0);
    EXPECT_EQ(next_->List().Table(),
              (std::vector<CsfString>{
                  {u"line\nline"_s, QString(u"z?"_s + QChar(0))}, {u"2"_s, u"b"_s}, {u"Text"_s, u"New"_s}}));
    const CsfEditorState& state = next_->State();
    EXPECT_EQ(state.Path, At(u"t.csf"_s));
    EXPECT_EQ(state.Caption, u"t.csf"_s);
    EXPECT_EQ(state.LanguageText, language);
    EXPECT_TRUE(state.Modified);
    EXPECT_TRUE(state.BoxesEnabled);
    EXPECT_TRUE(state.ActionsVisible);
    EXPECT_EQ(nextView_.Shown, 1);
    EXPECT_EQ(LeftCount(), 0U) << "it is this process's now";
    EXPECT_TRUE(LiesThere()) << "until it is saved";
    next_->Save();
    EXPECT_FALSE(LiesThere());
    EXPECT_EQ(CsfTable::Read(At(u"t.csf"_s)).Strings.size(), 3U);
}

TEST_F(CsfEditorRescue, ATableThatWasNeverSavedAsksForAName) {
    {
        RecordingCsfView view;
        CsfEditor editor(view);
        editor.New();
        editor.Add();
        editor.KeepRescue();
    }
    world_.UseLanguage("[LNG]\r\nNew=Neu\r\n");
    world_.Start();
    Restart();
    ClickLink(nextView_, 0);
    EXPECT_EQ(next_->State().Path, u"NeuCSF.csf"_s);
    ChooseFile(At(u"chosen.csf"_s));
    next_->Save();
    EXPECT_EQ(CsfTable::Read(At(u"chosen.csf"_s)).Strings.size(), 1U);
    EXPECT_FALSE(LiesThere());
}

TEST_F(CsfEditorRescue, OpenAsksAboutTheTableThatIsOpen) {
    LeaveChanged(u"t.csf"_s);
    Restart();
    next_->OpenCSFFile(Put(u"other.csf"_s, CsfHeader(1) + EntryRecords("o", "o")));
    next_->ValueTyped(u"typed too"_s);
    const Notice offer = nextView_.Told;
    Answer(Answer::Cancel);
    ClickLink(nextView_, 0);
    EXPECT_EQ(next_->State().Path, At(u"other.csf"_s));
    EXPECT_EQ(nextView_.Told.Text, offer.Text) << "the offer stands";
    Answer(Answer::No);
    ClickLink(nextView_, 0);
    EXPECT_EQ(next_->State().Path, At(u"t.csf"_s));
}

TEST_F(CsfEditorRescue, ThrowAwayLeavesNothingAndTheNextOneIsOffered) {
    LeaveChanged(u"t.csf"_s);
    LeaveChanged(u"u.csf"_s);
    world_.UseLanguage("[LNG]\r\nRescued=%1\r\n");
    world_.Start();
    Restart();
    const QString first = nextView_.Told.Text;
    ClickLink(nextView_, 1);
    EXPECT_EQ(LeftCount(), 1U);
    EXPECT_FALSE(nextView_.Told.Text.isEmpty());
    EXPECT_NE(nextView_.Told.Text, first);
    ClickLink(nextView_, 1);
    EXPECT_FALSE(LiesThere());
    EXPECT_EQ(nextView_.Told.Text, QString());
}

TEST_F(CsfEditorRescue, WhatAnotherWindowHasTakenIsNotOpenedTwice) {
    LeaveChanged(u"t.csf"_s);
    Restart();
    RecordingCsfView view;
    CsfEditor other(view);
    other.TellLeft();
    ClickLink(view, 0);
    ClickLink(nextView_, 0);
    EXPECT_EQ(next_->List().Count(), 0);
    EXPECT_EQ(nextView_.Told.Text, QString());
}

TEST_F(CsfEditorRescue, ARescueThatFailsIsToldOnce) {
    Put(u"rescue"_s, "a file where the folder is to be");
    OpenTable({{"a", "1"}});
    Editor.ValueTyped(u"typed"_s);
    Editor.KeepRescue();
    EXPECT_EQ(View.Told.Text, u"RescueFailed"_s);
    View.Told = {};
    Editor.KeepRescue();
    EXPECT_EQ(View.Told.Text, QString());
    KeepAllRescues();
}

TEST_F(CsfEditorRescue, ASaveThatIsKilledIsKnownAtTheNextStart) {
    LeaveChanged(u"t.csf"_s);
    // The old file is aside, the new one was begun.
    Put(u"t.csf.sav"_s, CsfHeader(1, 3) + EntryRecords("a", "1"));
    Put(u"t.csf"_s, "half");
    Restart();
    EXPECT_EQ(nextView_.Told.Text, u"Rescued"_s);
    ClickLink(nextView_, 0);
    EXPECT_EQ(next_->State().ValueText, u"typed"_s);
    EXPECT_EQ(nextView_.Told.Text, u"LeftBeside"_s);
    ASSERT_EQ(nextView_.Told.Links.size(), 3U);
    ClickLink(nextView_, 1);
    EXPECT_EQ(World::ReadFile(At(u"t (2).csf"_s)), CsfHeader(1, 3) + EntryRecords("a", "1"));
    next_->Save();
    EXPECT_EQ(CsfTable::Read(At(u"t.csf"_s)).Strings, (std::vector<CsfString>{{u"typed"_s, u"a"_s}}));
}

TEST_F(CsfEditorRescue, WhatASaveLeftIsKnownThoughTheRescueIsThrownAway) {
    LeaveChanged(u"t.csf"_s);
    Put(u"t.csf.sav"_s, CsfHeader(1) + EntryRecords("a", "1"));
    Files::DeleteForced(At(u"t.csf"_s));
    Restart();
    ClickLink(nextView_, 1);
    EXPECT_EQ(nextView_.Told.Text, u"LeftBeside"_s);
    ClickLink(nextView_, 0);
    EXPECT_EQ(World::ReadFile(At(u"t.csf"_s)), CsfHeader(1) + EntryRecords("a", "1"));
    EXPECT_EQ(nextView_.Told.Text, QString()) << "nothing stood in the way";
}

TEST_F(CsfEditorRescue, AnOpeningOffersWhatASaveLeft) {
    Put(u"a.csf.sav"_s, CsfHeader(1) + EntryRecords("old", "1"));
    const QString path = OpenTable({{"new", "2"}});
    EXPECT_EQ(View.Told.Text, u"LeftBeside"_s);
    ClickLink(View, 2);
    EXPECT_EQ(View.Folder, world_.Root() + u'\\');
    EXPECT_EQ(View.Told.Text, u"LeftBeside"_s) << "that answers nothing";
    ClickLink(View, 0);
    EXPECT_EQ(Names(), QStringList{u"old"_s}) << "it is opened anew";
    EXPECT_EQ(View.Told.Text, u"KeptAs"_s);
    EXPECT_EQ(CsfTable::Read(At(u"a (2).csf"_s)).Strings.at(0).Name, u"new"_s);
    Editor.Save();
    EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
}

TEST_F(CsfEditorRescue, PuttingBackAsksAboutUnsavedChanges) {
    Put(u"a.csf.sav"_s, CsfHeader(1) + EntryRecords("old", "1"));
    OpenTable({{"new", "2"}});
    Editor.ValueTyped(u"typed"_s);
    Answer(Answer::Cancel);
    ClickLink(View, 0);
    EXPECT_TRUE(Files::FileExists(At(u"a.csf.sav"_s)));
    EXPECT_EQ(View.Told.Text, u"LeftBeside"_s);
    EXPECT_EQ(Names(), QStringList{u"new"_s});
}

TEST_F(CsfEditorRescue, WhatIsNoTableIsNotOffered) {
    Put(u"a.csf.sav"_s, "somebody else's");
    OpenTable({{"new", "2"}});
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(CsfEditorRescue, WhatASaveLeftIsOfferedThoughItsFileCanNotBeOpened) {
    const QByteArray old = CsfHeader(1) + EntryRecords("old", "1");
    for (const bool isThere : {true, false}) {
        Put(u"a.csf.sav"_s, old);
        if (isThere)
            Put(u"a.csf"_s, old.chopped(3));
        RecordingCsfView view;
        CsfEditor editor(view);
        editor.OpenCSFFile(At(u"a.csf"_s));
        EXPECT_EQ(view.Told.Text, u"LeftBeside"_s);
        EXPECT_EQ(view.Shown, 1);
        ClickLink(view, 0);
        EXPECT_EQ(editor.State().NameText, u"old"_s) << "it is opened";
        EXPECT_EQ(World::ReadFile(At(u"a.csf"_s)), old);
        Files::DeleteForced(At(u"a.csf"_s));
    }
    RecordingCsfView view;
    CsfEditor(view).OpenCSFFile(At(u"a.csf"_s));
    EXPECT_EQ(view.Shown, 0) << "there is nothing to be offered";
}

TEST_F(CsfEditorRescue, WhatACutOffRescueSaysIsNoTable) {
    RescuedTable table;
    table.LanguageText = u"20"_s;
    table.LanguageShown = 3;
    table.Whole = true;
    table.Behind = "file";
    table.Indexes = {2, -1, 0};
    table.Rows = {{u"v"_s, u"n"_s}, {u"more"_s, u"n"_s, QByteArray(), true}, {u"x"_s, u"e"_s, QByteArray("a\0b", 3)}};
    const QByteArray bytes = table.Encoded();
    EXPECT_EQ(RescuedTable::Decoded(bytes), table);
    for (qsizetype length = 0; length < bytes.size(); ++length)
        EXPECT_THROW(RescuedTable::Decoded(bytes.first(length)), RuntimeError) << length;
}
