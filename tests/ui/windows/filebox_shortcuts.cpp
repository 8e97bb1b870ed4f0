// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Shortcuts, hidden folders and drives as the system itself tells them.

#include "platform/ShellFolders.h"
#include "platform/windows/System.h"
#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::vector<ShellFolders::Entry> EntriesOf(const QString& folder) {
    std::vector<ShellFolders::Entry> entries;
    ShellFolders::ForEachEntry(folder, [&](const ShellFolders::Entry& entry) {
        entries.push_back(entry);
        return true;
    });
    return entries;
}

} // namespace

TEST(Shortcuts, AreResolvedThroughTheShell) {
    const Scratch scratch;
    scratch.Write(u"Maps/x"_s, "x");
    scratch.Write(u"file.txt"_s, "x");
    scratch.Write(u"links/broken.lnk"_s, "no shortcut");
    ASSERT_TRUE(QFile::link(scratch.Native(u"Maps"_s), scratch.Native(u"links/maps.lnk"_s)));
    ASSERT_TRUE(QFile::link(scratch.Native(u"file.txt"_s), scratch.Native(u"links/text.lnk"_s)));
    const auto entries = EntriesOf(scratch.Inside(u"links"_s));
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].Name, u"broken.lnk"_s);
    EXPECT_TRUE(entries[0].Target.isEmpty());
    EXPECT_EQ(entries[1].Target.toLower(), scratch.Inside(u"Maps"_s).toLower());
    EXPECT_TRUE(entries[1].TargetIsFolder);
    EXPECT_FALSE(entries[1].IsFolder);
    EXPECT_EQ(entries[2].Target.toLower(), scratch.Inside(u"file.txt"_s).toLower());
    EXPECT_FALSE(entries[2].TargetIsFolder);
}

TEST(HiddenFolders, CarryTheAttribute) {
    const Scratch scratch;
    scratch.Write(u"base/Hidden/x"_s, "x");
    scratch.Write(u"base/Seen/x"_s, "x");
    ASSERT_NE(SetFileAttributesW(scratch.Inside(u"base/Hidden"_s).toStdWString().c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
    const auto entries = EntriesOf(scratch.Inside(u"base"_s));
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_TRUE(entries[0].IsHidden);
    EXPECT_TRUE(entries[0].IsFolder);
    EXPECT_FALSE(entries[1].IsHidden);
}

TEST(Drives, AreInUpperCaseWithTheSystemsOwnAmongThem) {
    bool seen = false;
    for (const ShellFolders::Drive& drive : ShellFolders::Drives()) {
        EXPECT_EQ(drive.Path, drive.Path.toUpper());
        seen = seen || (drive.Path == u"C:\\" && drive.Kind == ShellFolders::DriveKind::Fixed);
    }
    EXPECT_TRUE(seen);
}
