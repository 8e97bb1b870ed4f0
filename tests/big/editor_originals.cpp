// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A save of an archive whose data lie beside their offsets cuts its entries off. The strip's link saves them whole.
#include "big/format/OriginalBytes.h"
#include "platform/Files.h"
#include "tests/big/offsets_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class EditorOriginals : public EditorOffsets {
protected:
    /// An archive whose data lie four bytes before its directory's offsets, as a save has left it; it is open.
    QString OpenShifted(qint32 version = 0) {
        QString path = OpenArchive({{u"aa"_s, "123456789"}, {u"b"_s, "abcdefghijklmno"}}, u"shifted.big"_s);
        mBIG::BigVersion = version;
        Editor.Save();
        EXPECT_EQ(Stored(path, 0, -4), "123456789");
        EXPECT_EQ(Stored(path, 1, -4), "abcdefghijklmno");
        Editor.OpenBigFile(path);
        EXPECT_EQ(View.Told.Text, u"Here: 2 files -4 bytes off"_s);
        return path;
    }

    void AddFile(const QString& name, const QByteArray& bytes) {
        Speaker.FileNames = {Place.WriteFile(name, bytes)};
        Editor.Add();
    }

    void SaveAs(const QString& path) {
        Speaker.FileNames = {path};
        Editor.SaveAs();
    }

    QString At(const QString& name) { return Place.Root() + u'\\' + name; }
};

} // namespace

TEST_F(EditorOriginals, SaveExactlyGivesBackWhatASaveOfAShiftedArchiveHasCutOff) {
    for (const int version : {0, 1}) {
        const QString path = OpenShifted(version);
        Editor.Save();
        EXPECT_EQ(Stored(path, 0, -4).first(5), "56789") << "the told bytes";
        EXPECT_EQ(View.Told.Text, u"Saved: 2 files -4 bytes off"_s);
        ClickLink(0);
        EXPECT_EQ(Stored(path, 0), "123456789");
        EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
        EXPECT_EQ(View.Told.Text, QString());
        Editor.Save();
        EXPECT_EQ(Stored(path, 0), "123456789") << "and it goes on so";
        EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
    }
}

TEST_F(EditorOriginals, AlwaysGivesItBackToo) {
    const QString path = OpenShifted();
    Editor.Save();
    ClickLink(1);
    EXPECT_EQ(Stored(path, 0), "123456789");
    EXPECT_EQ(ReadSetting(u"ExactOffsets"_s), u"1"_s);
}

TEST_F(EditorOriginals, WhatSeveralSavesHaveCutOffIsGivenBack) {
    const QString path = OpenShifted();
    Editor.Save();
    Editor.Save();
    EXPECT_EQ(Stored(path, 0, -4).first(1), "9") << "each save cuts off four bytes more";
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "123456789");
    EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
}

TEST_F(EditorOriginals, SeveralSavesOfAnArchiveThatLayRightAreNoOther) {
    const QString path = OpenArchive({{u"aa"_s, "123456789"}, {u"b"_s, "abcdefghijklmno"}});
    Editor.Save();
    Editor.Save();
    EXPECT_EQ(Stored(path, 0, -4).first(5), "56789");
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "123456789");
    EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
}

TEST_F(EditorOriginals, WhatWasAddedBetweenTwoSavesIsWholeToo) {
    const QString path = OpenShifted();
    AddFile(u"elevenchars"_s, "first");
    Editor.Save();
    AddFile(u"seven77"_s, "second");
    Editor.Save();
    AddFile(u"new"_s, "third");
    ASSERT_EQ(View.Told.Links.size(), 2U);
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "123456789");
    EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
    EXPECT_EQ(Stored(path, 2), "first");
    EXPECT_EQ(Stored(path, 3), "second");
    EXPECT_EQ(Stored(path, 4), "third");
}

TEST_F(EditorOriginals, WhatTheUserHasReadBackIsSavedWhole) {
    const QString path = OpenShifted();
    ClickLink(0);
    Editor.Save();
    EXPECT_EQ(Stored(path, 0, -4), "123456789") << "shifted as told, and whole";
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "123456789");
    EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
}

TEST_F(EditorOriginals, WhatIsDeletedOrRenamedBetweenSaveAndLinkStaysSo) {
    const QString path = OpenShifted();
    Editor.Save();
    const Notice told = View.Told;
    mBIG::BigEntries[0].Deleted = true;
    EXPECT_TRUE(Editor.RenameRow(1, u"renamed"_s));
    told.Links[0].Run();
    EXPECT_EQ(Archives::Read(path).Entries.size(), 1U);
    EXPECT_EQ(Archives::Read(path).Entries.at(0).Name, u"renamed"_s);
    EXPECT_EQ(Stored(path, 0), "abcdefghijklmno");
}

TEST_F(EditorOriginals, WhatIsDeletedBeforeTheSaveMovesTheOthersUp) {
    const QString path = OpenShifted();
    AddFile(u"elevenchars"_s, "0123");
    mBIG::BigEntries[0].Deleted = true;
    Editor.Save();
    ASSERT_EQ(View.Told.Links.size(), 2U);
    ClickLink(0);
    EXPECT_EQ(Archives::Read(path).Entries.size(), 2U);
    EXPECT_EQ(Stored(path, 0), "abcdefghijklmno");
    EXPECT_EQ(Stored(path, 1), "0123");
}

TEST_F(EditorOriginals, WhatIsModifiedBetweenSaveAndLinkIsTheModifiedFile) {
    const QString path = OpenShifted();
    Editor.Save();
    BigEntry& entry = mBIG::BigEntries[0];
    entry.IsNew = true;
    entry.SourcePath = Place.WriteFile(u"modified"_s, "other");
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "other");
    EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
}

TEST_F(EditorOriginals, BehindAnotherArchiveTheLinkDoesNothing) {
    OpenShifted();
    Editor.Save();
    const Notice told = View.Told;
    const QString other = OpenArchive({{u"aa"_s, "1"}, {u"b"_s, "2"}}, u"other.big"_s);
    const QByteArray before = World::ReadFile(other);
    told.Links[0].Run();
    told.Links[1].Run();
    EXPECT_EQ(World::ReadFile(other), before);
    EXPECT_EQ(mBIG::BigFileName, other);
}

TEST_F(EditorOriginals, UnderAnotherNameItIsTheSame) {
    const QString path = OpenShifted();
    const QByteArray before = World::ReadFile(path);
    SaveAs(At(u"other.big"_s));
    ClickLink(0);
    EXPECT_EQ(Stored(At(u"other.big"_s), 0), "123456789");
    EXPECT_EQ(World::ReadFile(path), before);
}

TEST_F(EditorOriginals, BackUnderTheFirstNameItIsTheSame) {
    const QString path = OpenShifted();
    SaveAs(At(u"other.big"_s));
    SaveAs(path);
    EXPECT_EQ(Stored(path, 0, -4).first(1), "9");
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "123456789");
    EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
}

TEST_F(EditorOriginals, AnArchiveThatWasChangedMeanwhileIsNotTakenForTheOriginal) {
    const QString path = OpenShifted();
    SaveAs(At(u"other.big"_s));
    const QByteArray before = World::ReadFile(At(u"other.big"_s));
    File::Open(path, File::Access::ReadWrite).Write(200, "more");
    ClickLink(0);
    ASSERT_EQ(Speaker.Messages.size(), 1U);
    EXPECT_TRUE(Speaker.Messages.front().Text.contains(u"changed by another program"_s));
    EXPECT_EQ(World::ReadFile(At(u"other.big"_s)), before);
    EXPECT_EQ(View.Told.Text, u"Saved: 2 files -4 bytes off"_s) << "the link stays";
}

TEST_F(EditorOriginals, ASaveThatCutsWithoutAShiftIsToldAndGivenBack) {
    const QString path = OpenShifted();
    mBIG::BigVersion = 3;
    Editor.Save();
    EXPECT_EQ(Stored(path, 0).first(5), "56789");
    EXPECT_EQ(View.Told.Text, u"Cut: 2"_s);
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "123456789");
    EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorOriginals, AnExactSaveThatCutsIsToldAndGivenBack) {
    const QString path = OpenShifted();
    Editor.SetExactOffsets(true);
    Editor.Save();
    EXPECT_EQ(Stored(path, 0).first(5), "56789") << "what was not read back is what the directory leads to";
    EXPECT_EQ(View.Told.Text, u"Cut: 2"_s);
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "123456789");
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorOriginals, BehindASaveOfOurOwnEveryExactSaveIsWhole) {
    const QString path = OpenShifted();
    Editor.Save();
    Editor.SetExactOffsets(true);
    Editor.Save();
    EXPECT_EQ(Stored(path, 0), "123456789");
    EXPECT_EQ(Stored(path, 1), "abcdefghijklmno");
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorOriginals, AnOnlyEntryThatIsNotSavedAsToldIsSavedExactlyAndWhole) {
    OpenArchive({{u"aa"_s, "1"}, {u"bbb"_s, "123456789"}}, u"one.big"_s);
    mBIG::BigVersion = 2;
    mBIG::BigEntries[0].Deleted = true;
    Editor.Save();
    const QString path = mBIG::BigFileName;
    Editor.OpenBigFile(path);
    const QByteArray before = World::ReadFile(path);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), before) << "nothing was saved";
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "123456789");
}

TEST_F(EditorOriginals, NothingIsPromisedThatCanNotBeKept) {
    OpenShifted();
    // The first save keeps the archive that was opened, each further one the archive with the entry that was added
    // last.
    for (std::size_t save = 0; save <= OriginalBytes::MostKept; ++save) {
        AddFile(u"n%1"_s.arg(save, 2, 10, QChar(u'0')), "1234");
        Editor.Save();
        EXPECT_TRUE(View.Told.Text.startsWith(u"Saved"_s));
        EXPECT_EQ(View.Told.Links.empty(), save == OriginalBytes::MostKept) << save;
    }
    // What is lost does not come back by another save.
    AddFile(u"last"_s, "1234");
    Editor.Save();
    EXPECT_TRUE(View.Told.Links.empty());
}

TEST_F(EditorOriginals, AnExactSaveThatFailsLeavesTheLink) {
    const QString path = OpenShifted();
    Editor.Save();
    AddFile(u"gone"_s, "x");
    Files::DeleteForced(At(u"gone"_s));
    Speaker.Answers = {Host::Answer::No};
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0, -4).first(5), "56789") << "nothing was saved";
    mBIG::BigEntries.pop_back();
    ClickLink(0);
    EXPECT_EQ(Stored(path, 0), "123456789");
}
