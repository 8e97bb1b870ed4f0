// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The folder tree over folders that are really there.

#include "tests/platform/Scratch.h"
#include "ui/folders/FileBoxKey.h"
#include "ui/folders/FileBoxTree.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList Names(const QString& folder) {
    QStringList names;
    ShellFolders::ForEachEntry(folder, [&](const ShellFolders::Entry& entry) {
        names += entry.Name;
        return true;
    });
    return names;
}

} // namespace

TEST(BrowsedFolders, EntriesComeByName) {
    const Scratch scratch;
    scratch.Write(u"b.txt"_s, "b");
    scratch.Write(u"C/x"_s, "x");
    scratch.Write(u"a.txt"_s, "a");
    const QString folder = scratch.Inside(u"."_s);
    EXPECT_EQ(Names(folder), QStringList({u"a.txt"_s, u"b.txt"_s, u"C"_s}));
    EXPECT_EQ(Names(folder + u'\\'), Names(folder));
}

TEST(BrowsedFolders, AWalkEndsWhenNobodyWantsMore) {
    const Scratch scratch;
    scratch.Write(u"a"_s, "a");
    scratch.Write(u"b"_s, "b");
    int taken = 0;
    ShellFolders::ForEachEntry(scratch.Inside(u"."_s), [&](const ShellFolders::Entry&) {
        ++taken;
        return false;
    });
    EXPECT_EQ(taken, 1);
}

TEST(BrowsedFolders, AFolderThatIsNotThereHasNoEntries) {
    const Scratch scratch;
    EXPECT_TRUE(Names(scratch.Inside(u"missing"_s)).isEmpty());
    EXPECT_TRUE(Names(scratch.Write(u"file"_s, "x")).isEmpty());
}

TEST(BrowsedFolders, ThisMachineHasDocumentsAndADrive) {
    EXPECT_FALSE(ShellFolders::Documents().isEmpty());
    const auto drives = ShellFolders::Drives();
    ASSERT_FALSE(drives.empty());
    for (const ShellFolders::Drive& drive : drives) {
        EXPECT_TRUE(drive.Path.endsWith(u'\\')) << drive.Path.toStdString();
        EXPECT_FALSE(drive.Text.isEmpty());
    }
    EXPECT_TRUE(std::ranges::any_of(
        drives, [](const ShellFolders::Drive& drive) { return drive.Kind == ShellFolders::DriveKind::Fixed; }));
}
