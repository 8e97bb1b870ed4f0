// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The window is closed while another program has an entry's copy open.
#include "tests/big/modify_fixture.h"
#include "tests/support/Printing.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class EditorModifyClosing : public EditorModify {
protected:
    EditorModifyClosing() { OpenStrings(); }

    /// The program writes other bytes or none, then the window is closed; true when it may go.
    bool CloseWhileOpen(bool write, const std::deque<Answer>& answers) {
        bool closed = false;
        Program = [&](const QString& path) {
            if (write)
                Write(path, "written");
            Speaker.Answers = answers;
            closed = Editor.MayClose();
            EXPECT_TRUE(Speaker.Answers.empty());
        };
        Editor.ActivateRow(0);
        return closed;
    }

    [[nodiscard]] QStringList Asked() const {
        QStringList texts;
        for (const ScriptedHost::Shown& shown : Speaker.Messages)
            texts += shown.Text;
        return texts;
    }

    [[nodiscard]] static QString InsertQuestion() { return u"Data\\One.csf\r\n\r\nInsertModifiedFile"_s; }
};

} // namespace

TEST_F(EditorModifyClosing, AnUnchangedCopyIsNotAskedAbout) {
    EXPECT_TRUE(CloseWhileOpen(false, {}));
    EXPECT_TRUE(Speaker.Messages.empty());
    Program = {};
    Editor.ActivateRow(1);
    EXPECT_EQ(Given.size(), 2) << "A window that stayed all the same works on.";
}

TEST_F(EditorModifyClosing, AChangedCopyIsAskedAboutUnderItsNameThenItIsAnUnsavedChangeThatIsSaved) {
    EXPECT_TRUE(CloseWhileOpen(true, {Answer::Yes, Answer::Yes}));
    EXPECT_EQ(Asked(), (QStringList{InsertQuestion(), u"QuitSave"_s})) << "and no more when the program ends";
    EXPECT_EQ(Speaker.Messages.front().Choice, Host::Buttons::YesNoCancel);
    EXPECT_EQ(Speaker.Messages.front().Sign, Host::Icon::Question);
    ASSERT_TRUE(mBIG::ReadBigFile(mBIG::BigFileName));
    EXPECT_EQ(Entry(0).Size, 7);
    EXPECT_TRUE(World::ReadFile(mBIG::BigFileName).contains("written"));
}

TEST_F(EditorModifyClosing, ACopyOfTheMenusModifyIsAnUnsavedChangeToo) {
    bool closed = false;
    Program = [&](const QString& path) {
        Write(path, "written");
        Speaker.Answers = {Answer::Yes, Answer::No};
        closed = Editor.MayClose();
    };
    ModifyByMenu(0);
    EXPECT_TRUE(closed);
    EXPECT_EQ(Asked(), (QStringList{InsertQuestion(), u"QuitSave"_s}));
}

TEST_F(EditorModifyClosing, ANoClosesAndLeavesTheCopyWhereItIs) {
    EXPECT_TRUE(CloseWhileOpen(true, {Answer::No}));
    EXPECT_EQ(Asked(), QStringList{InsertQuestion()});
    EXPECT_FALSE(Entry(0).IsNew);
    EXPECT_EQ(World::ReadFile(Scratch(u"One.csf"_s)), "written");
}

TEST_F(EditorModifyClosing, TheQuestionsBeforeTheProgramEndsKeepTheWait) {
    bool mayEnd = false;
    Program = [&](const QString& path) {
        mayEnd = Editor.MayEnd();
        Write(path, "written");
        Speaker.Answers = {Answer::Yes};
    };
    Editor.ActivateRow(0);
    EXPECT_TRUE(mayEnd);
    EXPECT_EQ(Asked(), QStringList{u"InsertModifiedFile"_s}) << "another tool stayed, and so does the program";
    EXPECT_TRUE(Entry(0).IsNew);
}

TEST_F(EditorModifyClosing, ACancelKeepsTheWindowAndTheWait) {
    bool closed = true;
    Program = [&](const QString& path) {
        Write(path, "written");
        Speaker.Answers = {Answer::Cancel};
        closed = Editor.MayClose();
        EXPECT_FALSE(Entry(0).IsNew);
        Write(path, "written on");
        Speaker.Answers = {Answer::Yes};
    };
    Editor.ActivateRow(0);
    EXPECT_FALSE(closed);
    EXPECT_EQ(Asked(), (QStringList{InsertQuestion(), u"InsertModifiedFile"_s}));
    EXPECT_TRUE(Entry(0).IsNew);
    EXPECT_EQ(World::ReadFile(Entry(0).SourcePath), "written on");
}

TEST_F(EditorModifyClosing, ACopyThatWasTakenInStaysSoWhenTheWindowStaysAfterAll) {
    EXPECT_FALSE(CloseWhileOpen(true, {Answer::Yes, Answer::Cancel}));
    EXPECT_EQ(Asked(), (QStringList{InsertQuestion(), u"QuitSave"_s})) << "and no more when the program ends";
    EXPECT_TRUE(Entry(0).IsNew);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(World::ReadFile(Entry(0).SourcePath), "written");
}

TEST_F(EditorModifyClosing, ACopyThatWasTakenInIsNotAskedAboutTwice) {
    bool closed = false;
    Program = [&](const QString& path) {
        Write(path, "written");
        Speaker.Answers = {Answer::Yes, Answer::Cancel, Answer::No};
        EXPECT_FALSE(Editor.MayClose());
        closed = Editor.MayClose();
    };
    Editor.ActivateRow(0);
    EXPECT_TRUE(closed);
    EXPECT_EQ(Asked(), (QStringList{InsertQuestion(), u"QuitSave"_s, u"QuitSave"_s}));
}

TEST_F(EditorModifyClosing, EachChangedCopyIsAskedAboutByItself) {
    bool closed = false;
    Program = [&](const QString& path) {
        Write(path, "written");
        if (Given.size() == 1) {
            Editor.ActivateRow(1);
            return;
        }
        Speaker.Answers = {Answer::No, Answer::Yes, Answer::No};
        closed = Editor.MayClose();
    };
    Editor.ActivateRow(0);
    EXPECT_TRUE(closed);
    EXPECT_EQ(Asked(), (QStringList{InsertQuestion(), u"Data\\two.csf\r\n\r\nInsertModifiedFile"_s, u"QuitSave"_s}));
    EXPECT_FALSE(Entry(0).IsNew);
    EXPECT_TRUE(Entry(1).IsNew);
}

TEST_F(EditorModifyClosing, AnEntryThatHasGoneIsNotAskedAbout) {
    bool closed = false;
    Program = [&](const QString& path) {
        Write(path, "written");
        Entry(0).Deleted = true;
        closed = Editor.MayClose();
    };
    Editor.ActivateRow(0);
    EXPECT_TRUE(closed);
    EXPECT_TRUE(Speaker.Messages.empty());
}
