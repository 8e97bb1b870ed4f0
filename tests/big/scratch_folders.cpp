// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ScratchFolders.h"
#include "core/mMain.h"

#include "platform/Files.h"
#include "tests/support/Printing.h"
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
