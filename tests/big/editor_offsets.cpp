// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Exact offsets in the window: what the strip tells of data beside their offsets, and what its links do.
#include "big/document/OffsetNotices.h"
#include "tests/big/offsets_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class EditorShifts : public EditorOffsets {
protected:
    /// Variant 2 lays the data one byte before the directory's offsets.
    QString SaveShifted() {
        QString path = OpenArchive({{u"a.txt"_s, "first"}, {u"b.txt"_s, "second"}});
        mBIG::BigVersion = 2;
        Editor.Save();
        return path;
    }
};

} // namespace

TEST_F(EditorShifts, ASaveWithItsDataBesideTheirOffsetsIsTold) {
    const QString path = SaveShifted();
    EXPECT_NE(Stored(path, 0), "first");
    EXPECT_EQ(View.Told.Text, u"Saved: 2 files -1 bytes off"_s);
    ASSERT_EQ(View.Told.Links.size(), 2U);
    EXPECT_EQ(View.Told.Links[0].Text, u"Exactly"_s);
    EXPECT_EQ(View.Told.Links[1].Text, u"Always"_s);
}

TEST_F(EditorShifts, SaveExactlyLosesNothing) {
    const QString path = SaveShifted();
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "first");
    EXPECT_EQ(Stored(path, 1), "second");
    EXPECT_EQ(View.Told.Text, QString());
    EXPECT_FALSE(OffsetNotices::IsExactByDefault());
    Editor.Save();
    EXPECT_EQ(Stored(path, 1), "second") << "This archive goes on so.";
}

TEST_F(EditorShifts, SaveExactlyTakesWhatWasAddedSince) {
    const QString path = SaveShifted();
    Speaker.FileNames = {Place.WriteFile(u"c.txt"_s, "third")};
    const Notice told = View.Told;
    Editor.Add();
    told.Links[0].Run();
    EXPECT_EQ(Stored(path, 0), "first");
    EXPECT_EQ(Stored(path, 2), "third");
}

TEST_F(EditorShifts, ALinkOfAnArchiveThatHasGoneDoesNothing) {
    SaveShifted();
    const Notice told = View.Told;
    const QString other = OpenArchive({{u"x"_s, "1"}, {u"y"_s, "2"}}, u"other.big"_s);
    const QByteArray before = World::ReadFile(other);
    told.Links[0].Run();
    EXPECT_EQ(World::ReadFile(other), before);
}

TEST_F(EditorShifts, AlwaysIsRemembered) {
    const QString path = SaveShifted();
    ClickLink(1);
    EXPECT_EQ(Stored(path, 0), "first");
    EXPECT_EQ(ReadSetting(u"ExactOffsets"_s), u"1"_s);
    OpenSample();
    EXPECT_TRUE(State().ExactOffsets);
}

TEST_F(EditorShifts, ASaveWithoutAShiftTellsNothing) {
    OpenArchive({{u"a.txt"_s, "first"}, {u"b.txt"_s, "second"}});
    Editor.SetExactOffsets(true);
    mBIG::BigVersion = 2;
    Editor.Save();
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorShifts, AShiftedArchiveIsReadShiftedBackWhenTheUserWants) {
    const QString path = SaveShifted();
    Editor.OpenBigFile(path);
    EXPECT_EQ(View.Told.Text, u"Here: 2 files -1 bytes off"_s);
    EXPECT_FALSE(State().Modified);
    ClickLink(0);
    EXPECT_TRUE(State().Modified) << "A save writes other bytes.";
    const BigEntry& entry = mBIG::BigEntries.at(1);
    EXPECT_EQ(World::ReadFile(path).mid(entry.Offset, entry.Size), "second");
    Editor.SetExactOffsets(true);
    Editor.Save();
    EXPECT_EQ(Stored(path, 1), "second");
}

TEST_F(EditorShifts, AnOnlyEntryThatIsShiftedIsToldAsBothWithBothLinks) {
    const QString path = OpenArchive({{u"a.txt"_s, "first"}, {u"b.txt"_s, "second"}});
    mBIG::BigVersion = 2;
    mBIG::BigEntries.at(0).Deleted = true;
    Editor.Save();
    EXPECT_EQ(View.Told.Text, u"Both: -1"_s);
    ASSERT_EQ(View.Told.Links.size(), 2U);
    EXPECT_EQ(View.Told.Links[1].Text, u"Exactly"_s);
    Editor.OpenBigFile(path);
    EXPECT_EQ(View.Told.Text, u"Both: -1"_s);
    ASSERT_EQ(View.Told.Links.size(), 2U);
    EXPECT_EQ(View.Told.Links[1].Text, u"Back"_s);
    const Notice both = View.Told;
    ClickLink(1);
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(View.Told.Text, u"Hidden"_s) << "What is left of it.";
    View.Told = both;
    ClickLink(0);
    EXPECT_EQ(Shown(), QStringList{u"b.txt"_s});
    EXPECT_EQ(View.Told.Text, u"Here: 1 files -1 bytes off"_s);
}

TEST_F(EditorShifts, ARefusedLinkLeavesItsNotice) {
    const QString path = SaveShifted();
    {
        const mBIG::ArchiveLock lock;
        ClickLink(1);
        EXPECT_EQ(View.Told.Text, u"Saved: 2 files -1 bytes off"_s);
        EXPECT_FALSE(OffsetNotices::IsExactByDefault());
    }
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "first");
}

TEST_F(EditorShifts, AnArchiveOfAnotherToolIsNotCalledShifted) {
    OpenArchive({{u"a.txt"_s, "first"}, {u"b.txt"_s, "second"}});
    EXPECT_EQ(View.Told.Text, QString());
}
