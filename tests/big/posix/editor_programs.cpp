// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Modify with a program of the desktop: a shell script that is the default application for texts.
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"
#include "tests/platform/Scratch.h"

#include <QCoreApplication>
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
        // A script that ends at once has not handed its file to another program, unless a test says so.
        Editor.Copies().SetHandoverTime(std::chrono::milliseconds(0));
    }

    /// Lets events in until no program is waited for; `round` runs before each look, numbered from 1.
    void RunPrograms(const std::function<void(int)>& round = {}) {
        QElapsedTimer waited;
        waited.start();
        for (int number = 1; Editor.Copies().IsWaiting(); ++number) {
            ASSERT_LT(waited.elapsed(), 20000) << "The program does not end.";
            if (round)
                round(number);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
            QThread::msleep(1);
        }
    }

    void ActivateAndWait(int place) {
        Editor.ActivateRow(place);
        RunPrograms();
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
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(0);
    RunPrograms([&](int round) {
        if (round == 5) {
            EXPECT_TRUE(Files::FileExists(Copy()));
            EXPECT_TRUE(Speaker.Messages.empty());
            Go();
        }
    });
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"InsertModifiedFile"_s);
    EXPECT_TRUE(State().Modified);
    Editor.Save();
    EXPECT_TRUE(World::ReadFile(mBIG::BigFileName).contains("behind\n"));
}

TEST_F(EditorPrograms, AProgramThatChangesNothingLeadsToNoQuestion) {
    Associate("cat \"$1\" > /dev/null");
    ActivateAndWait(0);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(Files::FileExists(Copy()));
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorPrograms, TheMenuAsksInAnyCase) {
    Associate("exit 0");
    Speaker.Answers = {Answer::Yes};
    Editor.Modify();
    RunPrograms();
    EXPECT_TRUE(mBIG::BigEntries[0].IsNew);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorPrograms, AnEditorThatWritesAsideAndRenamesIsRecognised) {
    Associate("printf behind > \"$1.new\"; touch -r \"$1\" \"$1.new\"; mv \"$1.new\" \"$1\"");
    Speaker.Answers = {Answer::Yes};
    ActivateAndWait(0);
    EXPECT_TRUE(mBIG::BigEntries[0].IsNew);
    EXPECT_EQ(World::ReadFile(mBIG::BigEntries[0].SourcePath), "behind") << "The same size, the same time.";
}

TEST_F(EditorPrograms, AnEditorThatMovesTheOldFileAsideIsRecognised) {
    Associate("mv \"$1\" \"$1~\"; printf behind > \"$1\"");
    Speaker.Answers = {Answer::Yes};
    ActivateAndWait(0);
    EXPECT_EQ(World::ReadFile(mBIG::BigEntries[0].SourcePath), "behind");
}

TEST_F(EditorPrograms, ANewEntryIsOpenedAtItsSource) {
    const QString source = Place.WriteFile(u"n.txt"_s, "new");
    Speaker.FileNames = {source};
    Editor.Add();
    Associate("printf changed > \"$1\"");
    ActivateAndWait(2);
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_EQ(World::ReadFile(source), "changed");
    EXPECT_FALSE(Files::FolderExists(Paths::ProgramFolder() + u"\\Temp"_s));
}

TEST_F(EditorPrograms, AShortTableAfterTheWaitIsSafe) {
    Associate(WaitForGo + QByteArray("echo behind > \"$1\""));
    Editor.ActivateRow(0);
    RunPrograms([&](int round) {
        if (round == 2) {
            mBIG::BigEntries.clear();
            Go();
        }
    });
    EXPECT_TRUE(Speaker.Messages.empty());
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorPrograms, ClosingTheWindowEndsTheWaitAndTheProgramRunsOn) {
    Associate(WaitForGo + QByteArray("printf behind > \"$1\"; touch \"$GO.done\""));
    Editor.ActivateRow(0);
    EXPECT_TRUE(Editor.MayClose());
    EXPECT_TRUE(Editor.Copies().IsIdle());
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
    ActivateAndWait(0);
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
    ActivateAndWait(0);
    Editor.Modify();
    RunPrograms();
    EXPECT_EQ(World::ReadFile(victim), "safe");
    EXPECT_TRUE(Speaker.Messages.empty());
}

TEST_F(EditorPrograms, TheFirstOfTwoThatEndsIsAskedAboutWhileTheOtherRuns) {
    Associate("case \"$1\" in *b.txt) printf second > \"$1\";; *) " + QByteArray(WaitForGo) +
              "printf first > \"$1\";; esac");
    Editor.ActivateRow(0);
    Speaker.Answers = {Answer::Yes};
    Editor.ActivateRow(1);
    QElapsedTimer waited;
    waited.start();
    while (Speaker.Messages.empty() && waited.elapsed() < 20000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_TRUE(Editor.Copies().IsWaiting()) << "The first program runs.";
    EXPECT_FALSE(mBIG::BigEntries[0].IsNew);
    ASSERT_TRUE(mBIG::BigEntries[1].IsNew);
    Editor.Save();
    EXPECT_TRUE(World::ReadFile(mBIG::BigFileName).contains("second")) << "No save goes on without it.";
    Speaker.Answers = {Answer::Yes};
    Go();
    RunPrograms();
    ASSERT_TRUE(mBIG::BigEntries[0].IsNew);
    Editor.Save();
    EXPECT_TRUE(World::ReadFile(mBIG::BigFileName).contains("first"));
    EXPECT_TRUE(Editor.Copies().IsIdle());
}

TEST_F(EditorPrograms, WhatAProgramWritesAfterASaveAsGoesToTheEntryOfTheNewArchive) {
    Associate(WaitForGo + QByteArray("printf behind > \"$1\""));
    Editor.ActivateRow(0);
    Speaker.FileNames = {Place.Root() + u"\\other.big"_s};
    Editor.SaveAs();
    Speaker.Answers = {Answer::Yes};
    Go();
    RunPrograms();
    EXPECT_TRUE(mBIG::BigEntries[0].IsNew);
    EXPECT_TRUE(State().Modified);
}

TEST_F(EditorPrograms, WhatAProgramWritesAfterARenameAndASaveGoesToTheRenamedEntry) {
    Associate(WaitForGo + QByteArray("printf behind > \"$1\""));
    Editor.ActivateRow(1);
    mBIG::BigEntries[0].Deleted = true;
    EXPECT_TRUE(Editor.RenameRow(1, u"renamed.txt"_s));
    Speaker.FileNames = {Place.WriteFile(u"n.txt"_s, "new")};
    Editor.Add();
    Editor.Save();
    Speaker.Answers = {Answer::Yes};
    Go();
    RunPrograms();
    EXPECT_EQ(mBIG::BigEntries[0].Name, u"renamed.txt"_s);
    EXPECT_TRUE(mBIG::BigEntries[0].IsNew);
    EXPECT_FALSE(mBIG::BigEntries[1].IsNew);
}

TEST_F(EditorPrograms, WhatAProgramWritesAfterASaveOfAnEntryTakenInAlreadyIsAskedAboutAgain) {
    const QString source = Place.WriteFile(u"n.txt"_s, "new");
    Speaker.FileNames = {source};
    Editor.Add();
    Associate(WaitForGo + QByteArray("printf behind > \"$1\""));
    Editor.ActivateRow(2);
    Editor.Save();
    EXPECT_FALSE(mBIG::BigEntries[2].IsNew);
    Speaker.Answers = {Answer::Yes};
    Go();
    RunPrograms();
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_TRUE(mBIG::BigEntries[2].IsNew);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(mBIG::BigEntries[2].SourcePath, source);
}

TEST_F(EditorPrograms, ANoToTheUsersOwnFileLeavesItWhereItIs) {
    const QString source = Place.WriteFile(u"n.txt"_s, "new");
    Speaker.FileNames = {source};
    Editor.Add();
    Associate(WaitForGo + QByteArray("printf behind > \"$1\""));
    Editor.ActivateRow(2);
    Editor.Save();
    Speaker.Answers = {Answer::No};
    Go();
    RunPrograms();
    EXPECT_EQ(World::ReadFile(source), "behind");
    EXPECT_FALSE(mBIG::BigEntries[2].IsNew);
}

TEST_F(EditorPrograms, AFileThatWasHandedToARunningProgramIsWatchedAndEachChangeOfferedOnce) {
    Editor.Copies().SetHandoverTime(std::chrono::minutes(1));
    Associate("exit 0");
    ActivateAndWait(0);
    EXPECT_TRUE(Speaker.Messages.empty());
    ASSERT_TRUE(Files::FileExists(Copy())) << "Another program may be reading it.";
    const auto write = [](const QByteArray& bytes) {
        QFile file(Paths::ToNative(Copy()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    };
    write("half");
    Editor.Copies().Look();
    EXPECT_TRUE(Speaker.Messages.empty()) << "It may still be written.";
    Speaker.Answers = {Answer::No};
    Editor.Copies().Look();
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_EQ(Speaker.Messages[0].Text, u"a.txt\r\n\r\nInsertModifiedFile"_s);
    Editor.Copies().Look();
    EXPECT_EQ(Speaker.Messages.size(), 1U) << "once";
    EXPECT_TRUE(Files::FileExists(Copy())) << "The other program has it open.";
    Editor.Save();
    EXPECT_TRUE(Files::FileExists(Copy()));
    write("the whole");
    Speaker.Answers = {Answer::Yes};
    Editor.Copies().Look();
    Editor.Copies().Look();
    EXPECT_TRUE(mBIG::BigEntries[0].IsNew);
    EXPECT_TRUE(State().Modified);
    write("more");
    Editor.Copies().Look();
    Editor.Copies().Look();
    EXPECT_EQ(Speaker.Messages.size(), 2U) << "It is in the archive already.";
    Editor.Save();
    EXPECT_TRUE(World::ReadFile(mBIG::BigFileName).contains("more"));
}

TEST_F(EditorPrograms, TheWatchRunsByItself) {
    Editor.Copies().SetHandoverTime(std::chrono::minutes(1));
    Associate("(sleep 0.2; printf behind > \"$1\") > /dev/null 2>&1 &");
    ActivateAndWait(0);
    Speaker.Answers = {Answer::Yes};
    QElapsedTimer waited;
    waited.start();
    while (Speaker.Messages.empty() && waited.elapsed() < 20000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1000);
    EXPECT_TRUE(mBIG::BigEntries[0].IsNew);
    EXPECT_EQ(World::ReadFile(mBIG::BigEntries[0].SourcePath), "behind");
}

TEST_F(EditorPrograms, AProgramThatEndsDuringASaveIsAskedAboutBehindIt) {
    Associate(WaitForGo + QByteArray("printf behind > \"$1\""));
    Editor.ActivateRow(0);
    bool asked = false;
    Speaker.OnYield = [&] {
        Go();
        QElapsedTimer waited;
        waited.start();
        while (World::ReadFile(Copy()) != "behind" && waited.elapsed() < 5000)
            QThread::msleep(5);
        QThread::msleep(50);
        QCoreApplication::processEvents();
        asked = asked || !Speaker.Messages.empty();
        Speaker.OnYield = {};
    };
    Editor.Save();
    EXPECT_FALSE(asked);
    Speaker.Answers = {Answer::Yes};
    RunPrograms();
    EXPECT_TRUE(mBIG::BigEntries[0].IsNew) << "The save kept its file.";
    EXPECT_EQ(World::ReadFile(mBIG::BigEntries[0].SourcePath), "behind");
}
