// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Modify with a program of the desktop: a shell script that is the default application for texts.
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"
#include "tests/platform/Scratch.h"

#include <QElapsedTimer>
#include <QThread>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class EditorPrograms : public EditorDocument {
protected:
    EditorPrograms() {
        OpenArchive({{u"a.txt"_s, "before"}, {u"b.txt"_s, "2"}});
        View.Selected = {0};
    }

    /// Makes a script with these commands the program for texts; "$1" is the file, "$GO" a file that a test makes.
    void Associate(const QByteArray& commands, const QByteArray& more = {}) const {
        desktop_.Write(u"app"_s, "#!/bin/sh\n" + commands + "\n");
        QFile::setPermissions(desktop_.Native(u"app"_s), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        desktop_.Write(u"data/applications/app.desktop"_s, "[Desktop Entry]\nType=Application\nExec=" +
                                                               desktop_.Native(u"app"_s).toUtf8() + " %f\n" + more);
        desktop_.Write(u"conf/mimeapps.list"_s, "[Default Applications]\ntext/plain=app.desktop\n");
    }

    void Go() const { desktop_.Write(u"go"_s, "x"); }

    [[nodiscard]] static QString Copy() { return Paths::ProgramFolder() + u"\\Temp\\a.txt"_s; }

    Scratch desktop_;
    Variable go_{"GO", desktop_.Native(u"go"_s).toUtf8()};
    Variable home_{"HOME", desktop_.Native(u"home/x"_s).chopped(2).toUtf8()};
    Variable configuration_{"XDG_CONFIG_HOME", desktop_.Native(u"conf/x"_s).chopped(2).toUtf8()};
    Variable configurations_{"XDG_CONFIG_DIRS", "/nowhere"};
    Variable data_{"XDG_DATA_HOME", desktop_.Native(u"data/x"_s).chopped(2).toUtf8()};
    Variable currentDesktop_{"XDG_CURRENT_DESKTOP", std::nullopt};
};

constexpr auto WaitForGo = "while [ ! -e \"$GO\" ]; do sleep 0.01; done; ";

} // namespace

TEST_F(EditorPrograms, TheWaitTurnsTheEventLoopAndEndsWithTheProgram) {
    Associate(WaitForGo + QByteArray("echo behind > \"$1\"; exit 7"));
    Speaker.OnYield = [&] {
        if (Speaker.Yields == 5) {
            EXPECT_TRUE(Files::FileExists(Copy()));
            EXPECT_TRUE(Speaker.Messages.empty());
            Go();
        }
    };
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(0);
    EXPECT_GE(Speaker.Yields, 5);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"InsertModifiedFile"_s);
    EXPECT_TRUE(State().Modified);
    Editor.Save();
    EXPECT_TRUE(World::ReadFile(mBIG::BigFileName).contains("behind\n"));
}

TEST_F(EditorPrograms, AProgramThatChangesNothingLeadsToNoQuestion) {
    Associate("cat \"$1\" > /dev/null");
    Editor.ActivateRow(0);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(Files::FileExists(Copy()));
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorPrograms, TheMenuAsksInAnyCase) {
    Associate("exit 0");
    Speaker.Answers = {Answer::Yes};
    Editor.Modify();
    EXPECT_TRUE(mBIG::BigEntries[0].IsNew);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorPrograms, AnEditorThatWritesAsideAndRenamesIsRecognised) {
    Associate("printf behind > \"$1.new\"; touch -r \"$1\" \"$1.new\"; mv \"$1.new\" \"$1\"");
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(0);
    EXPECT_TRUE(mBIG::BigEntries[0].IsNew);
    EXPECT_EQ(World::ReadFile(mBIG::BigEntries[0].SourcePath), "behind") << "The same size, the same time.";
}

TEST_F(EditorPrograms, AnEditorThatMovesTheOldFileAsideIsRecognised) {
    Associate("mv \"$1\" \"$1~\"; printf behind > \"$1\"");
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(0);
    EXPECT_EQ(World::ReadFile(mBIG::BigEntries[0].SourcePath), "behind");
}

TEST_F(EditorPrograms, ANewEntryIsOpenedAtItsSource) {
    const QString source = Place.WriteFile(u"n.txt"_s, "new");
    Speaker.FileNames = {source};
    Editor.Add();
    Associate("printf changed > \"$1\"");
    Editor.ActivateRow(2);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_EQ(World::ReadFile(source), "changed");
    EXPECT_FALSE(Files::FolderExists(Paths::ProgramFolder() + u"\\Temp"_s));
}

TEST_F(EditorPrograms, AShortTableAfterTheWaitIsSafe) {
    Associate(WaitForGo + QByteArray("echo behind > \"$1\""));
    Speaker.OnYield = [&] {
        if (Speaker.Yields == 2) {
            mBIG::BigEntries.clear();
            Go();
        }
    };
    Editor.ActivateRow(0);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorPrograms, ClosingTheWindowEndsTheWaitAndTheProgramRunsOn) {
    Associate(WaitForGo + QByteArray("printf behind > \"$1\"; touch \"$GO.done\""));
    bool closed = false;
    Speaker.OnYield = [&] { closed = closed || Editor.MayClose(); };
    Editor.ActivateRow(0);
    EXPECT_TRUE(closed);
    EXPECT_LE(Speaker.Yields, 2);
    EXPECT_EQ(World::ReadFile(Copy()), "before");
    Go();
    QElapsedTimer waited;
    waited.start();
    while (!QFile::exists(desktop_.Native(u"go.done"_s)) && waited.elapsed() < 10000)
        QThread::msleep(5);
    EXPECT_EQ(World::ReadFile(Copy()), "behind");
}

TEST_F(EditorPrograms, WithoutAProgramForTheTypeTheReasonIsTold) {
    const Variable noData("XDG_DATA_DIRS", "/nowhere");
    Editor.ActivateRow(0);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"Information d'association du fichier incomplète."_s);
    EXPECT_EQ(Speaker.Messages[0].Sign, Host::Icon::Exclamation);
    EXPECT_FALSE(Files::FileExists(Copy()));
}

TEST_F(EditorPrograms, ACopyThatIsALinkOutOfTheScratchFolderIsNotWritten) {
    Files::MakeFolders(Paths::ProgramFolder() + u"\\Temp"_s);
    const QString victim = Place.WriteFile(u"victim.txt"_s, "safe");
    ASSERT_TRUE(QFile::link(Paths::ToNative(victim), Paths::ToNative(Copy())));
    Associate("echo changed > \"$1\"");
    Editor.ActivateRow(0);
    Editor.Modify();
    EXPECT_EQ(World::ReadFile(victim), "safe");
    EXPECT_TRUE(Speaker.Messages.empty());
}
