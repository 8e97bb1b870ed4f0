// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ScratchFolders.h"
#include "big/format/mBIG.h"
#include "core/mMain.h"

#include "platform/Files.h"
#include "tests/support/Printing.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ScratchFoldersTest : public testing::Test {
protected:
    ScratchFoldersTest() { world_.Start(); }

    QString Put(const QString& name) { return world_.WriteFile(u"program\\Temp\\"_s + name, "x"); }

    [[nodiscard]] static QStringList Left() {
        QStringList names = Files::ListFolder(mMain::ScratchFolder() + u"\\*.*"_s, true);
        names.sort();
        return names;
    }

    /// A number that the system gives to no process.
    static constexpr int Nobody = 2147483647;

    World world_;
};

} // namespace

TEST_F(ScratchFoldersTest, AreBelowTempWithTheProcesssNumber) {
    const QString number = QString::number(QCoreApplication::applicationPid());
    EXPECT_EQ(mMain::ScratchFolder(), world_.Root() + u"\\program\\Temp"_s);
    EXPECT_EQ(ScratchFolders::Dragged(), mMain::ScratchFolder() + u"\\Drag"_s + number + u'\\');
    EXPECT_EQ(ScratchFolders::Dropped(), mMain::ScratchFolder() + u"\\Dropped"_s + number + u'\\');
}

TEST_F(ScratchFoldersTest, ThoseOfProgramsThatHaveEndedAreRemovedWithAllInThem) {
    Put(u"Drag%1\\folder\\file"_s.arg(Nobody));
    Put(u"Dropped%1\\1\\file"_s.arg(Nobody));
    ScratchFolders::RemoveAbandoned();
    EXPECT_EQ(Left(), QStringList{});
}

TEST_F(ScratchFoldersTest, ThoseOfARunningProgramStay) {
    const QString number = QString::number(QCoreApplication::applicationPid());
    Put(u"Drag%1\\file"_s.arg(number));
    Put(u"Dropped%1\\1\\file"_s.arg(number));
    ScratchFolders::RemoveAbandoned();
    EXPECT_EQ(Left(), QStringList({u"Drag"_s + number, u"Dropped"_s + number}));
    EXPECT_TRUE(Files::FileExists(ScratchFolders::Dropped() + u"1\\file"_s));
}

TEST_F(ScratchFoldersTest, WhateverElseStandsInTempStays) {
    const QStringList others{u"Drag"_s,
                             u"Drag-5"_s,
                             u"Drag0"_s,
                             u"Drag%1x"_s.arg(Nobody),
                             u"Dragon%1"_s.arg(Nobody),
                             u"Drop%1"_s.arg(Nobody),
                             u"Other"_s,
                             u"My Drag%1"_s.arg(Nobody)};
    for (const QString& name : others)
        Put(name + u"\\file"_s);
    Put(u"Drag%1"_s.arg(Nobody));
    ScratchFolders::RemoveAbandoned();
    for (const QString& name : others)
        EXPECT_TRUE(Files::FileExists(mMain::ScratchFolder() + u'\\' + name + u"\\file"_s)) << name.toStdString();
    EXPECT_TRUE(Files::FileExists(mMain::ScratchFolder() + u"\\Drag%1"_s.arg(Nobody))) << "A file is no folder.";
}

TEST_F(ScratchFoldersTest, WithoutTempThereIsNothingToDo) {
    ScratchFolders::RemoveAbandoned();
    EXPECT_FALSE(Files::FolderExists(mMain::ScratchFolder()));
}

TEST_F(ScratchFoldersTest, TheFirstProgramHasTempItselfAndTheNextOneAFolderBelowIt) {
    const QString temp = world_.Root() + u"\\program\\Temp"_s;
    {
        const ScratchFolders::Claim first;
        EXPECT_EQ(mMain::ScratchFolder(), temp);
        const ScratchFolders::Claim second; // a lock is a lock, whoever asks
        EXPECT_EQ(mMain::ScratchFolder(), temp + u"\\2"_s);
        EXPECT_TRUE(ScratchFolders::Dragged().startsWith(temp + u"\\2\\Drag"_s));
        EXPECT_TRUE(ScratchFolders::IsDragged(ScratchFolders::Dragged() + u"a.txt"_s));
        EXPECT_TRUE(ScratchFolders::IsDragged(temp + u"\\Drag5\\a.txt"_s));
        EXPECT_FALSE(ScratchFolders::IsDragged(temp + u"\\2\\a.txt"_s));
    }
    const ScratchFolders::Claim next;
    EXPECT_EQ(mMain::ScratchFolder(), temp) << "The others have ended.";
}

TEST_F(ScratchFoldersTest, AFurtherProgramsFolderIsRemovedWhenItHasEnded) {
    const ScratchFolders::Claim first;
    const ScratchFolders::Claim second;
    Put(u"2\\unsaved.txt"_s);
    Put(u"3\\of a program that crashed"_s);
    Put(u"1\\other"_s);
    ScratchFolders::RemoveAbandoned();
    EXPECT_TRUE(Files::FileExists(world_.Root() + u"\\program\\Temp\\2\\unsaved.txt"_s));
    EXPECT_FALSE(Files::FolderExists(world_.Root() + u"\\program\\Temp\\3"_s));
    EXPECT_TRUE(Files::FolderExists(world_.Root() + u"\\program\\Temp\\1"_s)) << "Nobody's scratch folder.";
}

TEST_F(ScratchFoldersTest, ASaveInOneProgramLeavesTheOthersCopiesAlone) {
    const ScratchFolders::Claim first;
    const QString firsts = Put(u"copy.csf"_s);
    const ScratchFolders::Claim second;
    const QString own = Put(u"2\\own.csf"_s);
    const ScriptedHost host;
    mBIG::BigFileName.clear();
    mBIG::BigEntries = {{}, {}};
    mBIG::BigEntries[1].Name = u"a"_s;
    ASSERT_TRUE(mBIG::Save(world_.Root() + u"\\a.big"_s));
    EXPECT_TRUE(Files::FileExists(firsts));
    EXPECT_FALSE(Files::FileExists(own));
}
