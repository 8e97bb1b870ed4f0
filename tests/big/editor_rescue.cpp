// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Device.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/big/rescue_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

TEST_F(EditorRescue, AnArchiveThatIsAsItsFileIsNotKept) {
    OpenSample();
    EXPECT_FALSE(Editor.KeepRescue());
    EXPECT_FALSE(LiesThere());
    Speaker.FileNames = {At(u"fresh.big"_s)};
    Editor.New();
    EXPECT_FALSE(Editor.KeepRescue());
    EXPECT_FALSE(LiesThere());
}

TEST_F(EditorRescue, WhatDiffersIsKeptWhateverCountsAsAChange) {
    OpenSample();
    mBIG::BigEntries[0].Name = u"other.txt"_s;
    EXPECT_FALSE(State().Modified);
    Editor.KeepRescue();
    EXPECT_EQ(FilesThere(), QStringList{u"rescue"_s});
    mBIG::BigEntries[0].Name = u"readme.txt"_s;
    Editor.KeepRescue();
    EXPECT_FALSE(LiesThere());
    mBIG::BigVersion = 1;
    Editor.KeepRescue();
    EXPECT_TRUE(LiesThere());
}

TEST_F(EditorRescue, AllOfItComesBackThoughTheSourcesAreGone) {
    LeaveChanged();
    next_->TellLeft();
    EXPECT_EQ(nextView_.Told.Text, u"Rescued"_s);
    ClickLink(nextView_, 0);
    EXPECT_TRUE(next_->State().Modified);
    EXPECT_TRUE(next_->State().ArchiveOpen);
    EXPECT_EQ(mBIG::BigFileName, At(u"t.big"_s));
    EXPECT_TRUE(Archives::MissingSources(mBIG::Open()).empty());
    const QString saved = Saved();
    EXPECT_EQ(Archives::Read(saved).Entries.size(), 3U);
    EXPECT_EQ(BytesOf(saved, u"readme.txt"_s), "replaced");
    EXPECT_EQ(BytesOf(saved, u"data\\chart.tga"_s), "picture");
    EXPECT_EQ(BytesOf(saved, u"new.txt"_s), "new bytes");
    EXPECT_FALSE(LiesThere()) << "it is saved";
}

TEST_F(EditorRescue, WhatWasOpenedIsKeptUntilItIsSaved) {
    LeaveChanged();
    next_->TellLeft();
    ClickLink(nextView_, 0);
    EXPECT_TRUE(Rescues::LeftFor(ArchiveRescue::Kind).empty()) << "it is this process's";
    const QStringList before = FilesThere();
    AddTo(*next_, u"more.txt"_s, "more");
    while (next_->KeepRescue()) {
    }
    EXPECT_EQ(FilesThere().size(), before.size() + 1);
    next_.reset();
    ASSERT_EQ(Rescues::LeftFor(ArchiveRescue::Kind).size(), 1U);
    next_ = std::make_unique<BigEditor>(nextView_);
    next_->TellLeft();
    ClickLink(nextView_, 0);
    EXPECT_EQ(BytesOf(Saved(), u"more.txt"_s), "more");
    EXPECT_EQ(BytesOf(At(u"t.big"_s), u"new.txt"_s), "new bytes");
}

TEST_F(EditorRescue, OfAnArchiveThatHasChangedOnlyTheNewEntriesAreOffered) {
    LeaveChanged();
    Place.WriteFile(u"t.big"_s, ArchiveOf({{u"other.txt"_s, "another"}, {u"New.txt"_s, "in the way"}}));
    Place.UseLanguage("[LNG]\r\nRescuedChanged=%1, %3 new\r\n");
    Place.Start();
    next_->TellLeft();
    EXPECT_EQ(nextView_.Told.Text, Paths::ToNative(At(u"t.big"_s)) + u", 2 new"_s);
    ClickLink(nextView_, 0);
    const QString saved = Saved();
    EXPECT_EQ(BytesOf(saved, u"other.txt"_s), "another");
    EXPECT_EQ(BytesOf(saved, u"new.txt"_s), "new bytes");
    EXPECT_EQ(BytesOf(saved, u"readme.txt"_s), "replaced");
    EXPECT_EQ(Archives::Read(saved).Entries.size(), 3U);
}

namespace {

/// Writes over a file's last byte, and says when that was.
void WriteLastByte(const QString& path, char byte, const QDateTime& time) {
    QFile file(Paths::ToNative(path));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(file.size() - 1);
    file.write(&byte, 1);
    file.close();
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
}

} // namespace

TEST_F(EditorRescue, AnArchiveOfTheSameLengthIsToldByItsTimeAndByItsBytes) {
    const QDateTime time(QDate(2020, 1, 2), QTime(3, 4, 5), Qt::UTC);
    const QString path = LaySample();
    WriteLastByte(path, 'd', time);
    dying_->OpenBigFile(path);
    AddTo(*dying_, u"new.txt"_s, "new bytes");
    Die();
    const auto isOfferedWhole = [this] {
        nextView_.Told = {};
        BigEditor(nextView_).TellLeft();
        return nextView_.Told.Text == "Rescued"_L1;
    };
    EXPECT_TRUE(isOfferedWhole());
    WriteLastByte(path, 'x', time);
    EXPECT_FALSE(isOfferedWhole()) << "the same time";
    WriteLastByte(path, 'd', time.addSecs(2));
    EXPECT_FALSE(isOfferedWhole()) << "the same bytes";
    WriteLastByte(path, 'd', time);
    EXPECT_TRUE(isOfferedWhole());
}

TEST_F(EditorRescue, TheHashSeesAChangeInTheHeadInABlockAndAtTheEnd) {
    QByteArray bytes(qsizetype{6} << 20, 'x');
    const QByteArray before = ArchiveMark::HashOf(MemoryDevice(bytes));
    for (const qsizetype place : {qsizetype{0}, qsizetype{4} << 20, bytes.size() - 1}) {
        QByteArray changed = bytes;
        changed[place] = 'y';
        EXPECT_NE(ArchiveMark::HashOf(MemoryDevice(changed)), before) << place;
    }
    EXPECT_NE(ArchiveMark::HashOf(MemoryDevice(QByteArray())), QByteArray());
}

TEST_F(EditorRescue, WithoutItsArchiveTheNewEntriesAskForAName) {
    LeaveChanged();
    Files::DeleteForced(At(u"t.big"_s));
    next_->TellLeft();
    EXPECT_EQ(nextView_.Told.Text, u"RescuedChanged"_s);
    ClickLink(nextView_, 0);
    Speaker.FileNames = {At(u"chosen.big"_s)};
    const QString saved = Saved();
    EXPECT_EQ(saved, At(u"chosen.big"_s));
    EXPECT_EQ(BytesOf(saved, u"new.txt"_s), "new bytes");
}

TEST_F(EditorRescue, WhatIsNoArchiveAnyMoreIsNotSavedOver) {
    LeaveChanged();
    Place.WriteFile(u"t.big"_s, "no archive");
    next_->TellLeft();
    ClickLink(nextView_, 0);
    Speaker.FileNames = {At(u"chosen.big"_s)};
    EXPECT_EQ(BytesOf(Saved(), u"new.txt"_s), "new bytes");
    EXPECT_EQ(World::ReadFile(At(u"t.big"_s)), "no archive");
}

TEST_F(EditorRescue, AnArchiveThatWasNeverSavedComesBack) {
    Speaker.FileNames = {At(u"fresh.big"_s)};
    dying_->New();
    AddTo(*dying_, u"new.txt"_s, "new bytes");
    Die();
    next_->TellLeft();
    EXPECT_EQ(nextView_.Told.Text, u"Rescued"_s);
    ClickLink(nextView_, 0);
    EXPECT_EQ(mBIG::BigVersion, 2);
    EXPECT_EQ(Saved(), At(u"fresh.big"_s));
    EXPECT_EQ(BytesOf(At(u"fresh.big"_s), u"new.txt"_s), "new bytes");
}

TEST_F(EditorRescue, BytesAreCopiedOnceAndAgainWhenTheyChange) {
    OpenSample();
    AddTo(Editor, u"new.txt"_s, "first");
    Editor.KeepRescue();
    EXPECT_EQ(FilesThere(), (QStringList{u"1"_s, u"rescue"_s}));
    const FileState content = StateOf(FileThere(u"1"_s));
    const FileState rescue = StateOf(FileThere(u"rescue"_s));
    Editor.KeepRescue();
    EXPECT_EQ(StateOf(FileThere(u"1"_s)), content);
    EXPECT_EQ(StateOf(FileThere(u"rescue"_s)), rescue);
    mBIG::BigEntries[0].Name = u"other.txt"_s;
    Editor.KeepRescue();
    EXPECT_EQ(StateOf(FileThere(u"1"_s)), content) << "another change";
    EXPECT_NE(StateOf(FileThere(u"rescue"_s)), rescue);
    Place.WriteFile(u"sources\\new.txt"_s, "second, longer");
    Editor.KeepRescue();
    EXPECT_EQ(FilesThere(), (QStringList{u"2"_s, u"rescue"_s}));
    EXPECT_EQ(World::ReadFile(FileThere(u"2"_s)), "second, longer");
    Files::DeleteForced(At(u"sources\\new.txt"_s));
    Editor.KeepRescue();
    EXPECT_EQ(World::ReadFile(FileThere(u"2"_s)), "second, longer") << "the source has gone";
}

TEST_F(EditorRescue, ManyLongFilesAreCopiedInParts) {
    OpenSample();
    const QByteArray bytes(qsizetype{16} << 20, 'x');
    for (int file = 0; file < 5; ++file)
        AddTo(Editor, u"long"_s + QString::number(file), bytes);
    EXPECT_TRUE(Editor.KeepRescue());
    EXPECT_TRUE(FilesThere().contains(u"rescue"_s)) << "what can be told at once is";
    while (Editor.KeepRescue()) {
    }
    EXPECT_EQ(FilesThere().size(), 6);
    for (int file = 1; file <= 5; ++file)
        EXPECT_EQ(World::ReadFile(FileThere(QString::number(file))), bytes);
}

TEST_F(EditorRescue, AnEmptyNewFileComesBackEmpty) {
    dying_->OpenBigFile(LaySample());
    AddTo(*dying_, u"empty.txt"_s, {});
    Die();
    next_->TellLeft();
    ClickLink(nextView_, 0);
    EXPECT_TRUE(Archives::MissingSources(mBIG::Open()).empty());
    EXPECT_EQ(BytesOf(Saved(), u"empty.txt"_s), "");
}

TEST_F(EditorRescue, ASaveEndsTheRescue) {
    OpenSample();
    AddTo(Editor, u"new.txt"_s, "new");
    Editor.KeepRescue();
    EXPECT_TRUE(LiesThere());
    Editor.Save();
    EXPECT_FALSE(LiesThere());
    Editor.KeepRescue();
    EXPECT_FALSE(LiesThere());
}

TEST_F(EditorRescue, AnHonestCloseLeavesNothingAndTakesNothingFromTheWindow) {
    LeaveChanged();
    next_->TellLeft();
    ClickLink(nextView_, 0);
    Speaker.Answers = {Answer::Cancel, Answer::No};
    EXPECT_FALSE(next_->MayEnd());
    EXPECT_TRUE(FilesThere().contains(u"rescue"_s));
    EXPECT_TRUE(next_->MayEnd());
    EXPECT_FALSE(FilesThere().contains(u"rescue"_s));
    KeepAllRescues();
    EXPECT_FALSE(FilesThere().contains(u"rescue"_s)) << "it was given up";
    // The window lives on, and its entries' bytes with it.
    EXPECT_EQ(BytesOf(Saved(), u"new.txt"_s), "new bytes");
}

TEST_F(EditorRescue, AfterAGivenUpCloseTheNextStartHasNothing) {
    OpenSample();
    AddTo(Editor, u"new.txt"_s, "new");
    Editor.KeepRescue();
    Speaker.Answers = {Answer::No};
    EXPECT_TRUE(Editor.MayClose());
    next_->TellLeft();
    EXPECT_EQ(nextView_.Told.Text, QString());
}

TEST_F(EditorRescue, AClosingThatAsksNothingLeavesWhatDiffers) {
    dying_->OpenBigFile(LaySample());
    ArchiveEdits::Replace(mBIG::Open(), 0, Place.WriteFile(u"sources\\copy.txt"_s, "of the menu's Modify"));
    EXPECT_FALSE(dying_->State().Modified);
    EXPECT_TRUE(dying_->MayClose());
    dying_.reset();
    next_->TellLeft();
    ClickLink(nextView_, 0);
    EXPECT_EQ(BytesOf(Saved(), u"readme.txt"_s), "of the menu's Modify");
}

TEST_F(EditorRescue, AnotherArchiveThatIsOpenedUnaskedLeavesTheFirstOnes) {
    dying_->OpenBigFile(LaySample());
    mBIG::BigEntries[0].Name = u"other.txt"_s;
    Speaker.FileNames = {Place.WriteFile(u"b.big"_s, ArchiveOf({{u"b"_s, "b"}, {u"c"_s, "c"}}))};
    dying_->Open();
    const std::vector<Rescues::Left> left = Rescues::LeftFor(ArchiveRescue::Kind);
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left[0].Facts.Path, At(u"t.big"_s));
}

TEST_F(EditorRescue, ThrowAwayLeavesNothing) {
    LeaveChanged();
    next_->TellLeft();
    ClickLink(nextView_, 1);
    EXPECT_FALSE(LiesThere());
    EXPECT_EQ(nextView_.Told.Text, QString());
}

TEST_F(EditorRescue, OpenAsksAboutTheArchiveThatIsOpen) {
    LeaveChanged();
    next_->OpenBigFile(Place.WriteFile(u"b.big"_s, ArchiveOf({{u"b"_s, "b"}, {u"c"_s, "c"}})));
    AddTo(*next_, u"n.txt"_s, "n");
    next_->TellLeft();
    Speaker.Answers = {Answer::Cancel};
    ClickLink(nextView_, 0);
    EXPECT_EQ(mBIG::BigFileName, At(u"b.big"_s));
    EXPECT_EQ(nextView_.Told.Text, u"Rescued"_s) << "the offer stands";
}

TEST_F(EditorRescue, ARescueThatFailsIsToldOnce) {
    Place.WriteFile(u"rescue"_s, "a file where the folder is to be");
    OpenSample();
    AddTo(Editor, u"n.txt"_s, "n");
    Editor.KeepRescue();
    EXPECT_EQ(View.Told.Text, u"RescueFailed"_s);
    View.Told = {};
    Editor.KeepRescue();
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorRescue, WhatACutOffRescueSaysIsNoArchive) {
    RescuedArchive rescued;
    rescued.Mark = {.Length = 7, .Time = 8, .Hash = "hash"};
    rescued.Version = 3;
    rescued.ExactOffsets = true;
    rescued.Changes = {{.Index = 1, .Entry = EntryOf(u"a"_s, 5), .Content = 2}, {.Index = 2, .Entry = EntryOf(u"b"_s)}};
    const QByteArray bytes = rescued.Encoded();
    EXPECT_EQ(RescuedArchive::Decoded(bytes), rescued);
    for (qsizetype length = 0; length < bytes.size(); ++length)
        EXPECT_THROW(RescuedArchive::Decoded(bytes.first(length)), RuntimeError) << length;
}
