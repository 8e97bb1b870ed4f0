// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The open archive keeps its file: nobody can pull its bytes away before they are saved, and nobody changes its table
/// while somebody walks through it.
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/big/Archives.h"

using namespace Qt::StringLiterals;
using mBIG::BigEntries;

namespace {

QByteArray TwoEntries() {
    return HeaderOf("BIGF", 2, 48) + Record(48, 5, "a.ini") + Record(56, 2, "b") + Bytes("L225\0\0\0\0hello\0\0\0hi");
}

class OpenArchiveTest : public ArchiveTest {
protected:
    OpenArchiveTest() {
        path_ = Put(u"open.big"_s, TwoEntries());
        mBIG::Load(path_);
        AddNew(u"new"_s, "123");
    }

    /// What a save of the three entries has behind its directory of 52 bytes.
    static QByteArray ThreeEntries() {
        return Bytes("L225\0\0\0\0hello\0\0\0hi\0\0"
                     "123");
    }

    void ExpectSavedWhole(const QString& path) {
        EXPECT_EQ(FailureOf(path), QString());
        EXPECT_EQ(World::ReadFile(path).mid(52), ThreeEntries());
    }

    void ExpectRefused(const QString& path, const QString& reason) {
        const QString failure = FailureOf(path);
        EXPECT_TRUE(failure.contains(u"open.big: "_s) && failure.contains(reason)) << failure.toStdString();
        EXPECT_TRUE(BigEntries[2].IsNew) << "the changes stay";
        EXPECT_FALSE(host_.ProgressShown);
    }

    QString path_;
};

} // namespace

TEST_F(OpenArchiveTest, ARefusedFileTouchesNothing) {
    const auto before = BigEntries;
    const auto identity = mBIG::CurrentIdentity();
    mBIG::BigVersion = 1;
    for (const QByteArray& refused : {QByteArray("no archive"), HeaderOf("BIGF", 2, 44) + Record(0, 1, "a")}) {
        EXPECT_THROW(mBIG::Load(Put(u"refused.big"_s, refused)), RuntimeError);
        EXPECT_EQ(BigEntries, before);
        EXPECT_EQ(mBIG::BigVersion, 1);
        EXPECT_EQ(mBIG::BigFileName, path_);
        EXPECT_EQ(mBIG::CurrentIdentity(), identity);
    }
    mBIG::BigVersion = 0;
    ExpectSavedWhole(At(u"out.big"_s));
}

TEST_F(OpenArchiveTest, EachOneHasAnIdentityOfItsOwn) {
    const auto first = mBIG::CurrentIdentity();
    BigEntries[0].Name = u"c"_s;
    EXPECT_EQ(mBIG::CurrentIdentity(), first);
    mBIG::Load(path_);
    const auto second = mBIG::CurrentIdentity();
    EXPECT_NE(second, first);
    mBIG::New(path_, 2);
    EXPECT_NE(mBIG::CurrentIdentity(), second);
    EXPECT_NE(mBIG::CurrentIdentity(), first);
}

TEST_F(OpenArchiveTest, AnArchiveThatIsMovedAwayIsSavedWhole) {
    Files::Rename(path_, At(u"moved.big"_s));
    ExpectSavedWhole(path_);
    EXPECT_EQ(World::ReadFile(At(u"moved.big"_s)), TwoEntries());
}

TEST_F(OpenArchiveTest, AnArchiveThatIsDeletedIsSavedWhole) {
    Files::DeleteForced(path_);
    ExpectSavedWhole(path_);
}

TEST_F(OpenArchiveTest, AnotherFileInItsPlaceIsNotTakenForIt) {
    Files::Rename(path_, At(u"moved.big"_s));
    Put(u"open.big"_s, QByteArray(500, 'x'));
    ExpectSavedWhole(path_);
}

TEST_F(OpenArchiveTest, AnArchiveThatIsLongerThanItWasIsRefused) {
    File::Open(path_, File::Access::ReadWrite).Write(200, "more");
    ExpectRefused(path_, u"changed"_s);
    ExpectRefused(At(u"out.big"_s), u"changed"_s);
    EXPECT_FALSE(Files::FileExists(At(u"out.big"_s)));
    EXPECT_EQ(World::ReadFile(path_).first(58), TwoEntries());
}

TEST_F(OpenArchiveTest, AChangedArchiveOfWhichNoByteIsNeededIsNoReason) {
    File::Open(path_, File::Access::ReadWrite).Write(200, "more");
    BigEntries[0].Deleted = BigEntries[1].Deleted = true;
    EXPECT_EQ(FailureOf(path_), QString());
    // 16 + 12 + 8 = 36.
    EXPECT_EQ(World::ReadFile(path_).sliced(28), Bytes("L225\0\0\0\0"
                                                       "123"));
}

TEST_F(OpenArchiveTest, AnArchiveThatCanNotBeOpenedIsRefusedWhileABytesIsNeeded) {
    auto entries = BigEntries;
    mBIG::Close();
    BigEntries = entries;
    mBIG::BigFileName = At(u"open.big\\open.big"_s);
    ExpectRefused(At(u"out.big"_s), u"can't be read"_s);
    EXPECT_FALSE(Files::FileExists(At(u"out.big"_s)));
}

TEST_F(OpenArchiveTest, AFreshArchiveHasNoFileAndIsSaved) {
    mBIG::New(path_, 0);
    ASSERT_EQ(BigEntries, std::vector<BigEntry>(1));
    EXPECT_EQ(mBIG::LengthOnDisk(), 0);
    AddNew(u"b"_s, "hi");
    EXPECT_EQ(FailureOf(path_), QString());
    EXPECT_EQ(World::ReadFile(path_).sliced(35), Bytes("L225\0\0\0\0\0hi"));
}

TEST_F(OpenArchiveTest, AfterASaveOverItTheNewOneIsRead) {
    ExpectSavedWhole(path_);
    mBIG::Load(path_);
    EXPECT_EQ(mBIG::LengthOnDisk(), World::ReadFile(path_).size());
    BigEntries[0].Deleted = true;
    EXPECT_EQ(FailureOf(path_), QString());
    // 16 + 10 + 12 + 8 = 46.
    EXPECT_EQ(World::ReadFile(path_).sliced(38), Bytes("L225\0\0\0\0\0\0hi\0\0"
                                                       "123"));
}

TEST_F(OpenArchiveTest, BehindASaveNothingIsSavedUntilTheNewFileIsLoaded) {
    ExpectSavedWhole(path_);
    EXPECT_TRUE(mBIG::HasLostBytes());
    EXPECT_TRUE(FailureOf(At(u"out.big"_s)).contains(u"not read since"_s));
    EXPECT_FALSE(Files::FileExists(At(u"out.big"_s)));
    mBIG::Load(path_);
    EXPECT_FALSE(mBIG::HasLostBytes());
    ExpectSavedWhole(path_);
}

TEST_F(OpenArchiveTest, ATmpFileOfTheUsersOwnIsNotTouched) {
    const QString own = Put(u"open.big.tmp"_s, "mine");
    ExpectSavedWhole(path_);
    EXPECT_EQ(World::ReadFile(own), "mine");
}

TEST_F(OpenArchiveTest, WhileASaveYieldsTheOldArchiveStandsWholeUnderItsName) {
    host_.OnYield = [&] { EXPECT_EQ(World::ReadFile(path_), TwoEntries()); };
    EXPECT_EQ(FailureOf(path_), QString());
    EXPECT_NE(World::ReadFile(path_), TwoEntries());
}

TEST_F(OpenArchiveTest, WhileItIsLockedNoOtherIsOpened) {
    const auto before = BigEntries;
    {
        const mBIG::ArchiveLock lock;
        const mBIG::ArchiveLock another;
        EXPECT_TRUE(mBIG::ArchiveLock::IsHeld());
        EXPECT_THROW(mBIG::Load(path_), RuntimeError);
        EXPECT_THROW(mBIG::New(path_, 2), RuntimeError);
        EXPECT_THROW(mBIG::Close(), RuntimeError);
        EXPECT_FALSE(mBIG::ReadBigFile(path_));
        EXPECT_EQ(BigEntries, before);
    }
    EXPECT_FALSE(mBIG::ArchiveLock::IsHeld());
    EXPECT_TRUE(mBIG::ReadBigFile(path_));
}

TEST_F(OpenArchiveTest, ASaveThatYieldsHoldsTheLockAndLetsNoOtherSaveIn) {
    int yields = 0;
    host_.OnYield = [&] {
        ++yields;
        EXPECT_TRUE(mBIG::ArchiveLock::IsHeld());
        EXPECT_FALSE(mBIG::ReadBigFile(path_));
        EXPECT_FALSE(mBIG::WriteBigFile(At(u"second.big"_s)));
    };
    ExpectSavedWhole(path_);
    EXPECT_GT(yields, 0);
    EXPECT_FALSE(Files::FileExists(At(u"second.big"_s)));
    EXPECT_FALSE(mBIG::ArchiveLock::IsHeld());
}

TEST_F(OpenArchiveTest, AnExactSaveTellsNoShiftAndTheToldOneTellsHowFar) {
    mBIG::BigVersion = 2;
    const auto told = mBIG::Save(At(u"told.big"_s));
    ASSERT_TRUE(told.has_value());
    EXPECT_EQ(told->First, -1);
    EXPECT_EQ(told->Count, 3);
    mBIG::Load(path_);
    mBIG::BigVersion = 2;
    const auto exact = mBIG::Save(At(u"exact.big"_s), {.Place = Archives::Placement::Exact});
    ASSERT_TRUE(exact.has_value());
    EXPECT_TRUE(exact->IsNone());
    EXPECT_EQ(World::ReadFile(At(u"exact.big"_s)).sliced(40), Bytes("L219\0\0\0\0hellohi"));
}

TEST_F(OpenArchiveTest, OneEntryIsSavedExactlyAndTheBlankRecordNever) {
    mBIG::New(At(u"fresh.big"_s), 0);
    EXPECT_FALSE(mBIG::Save(At(u"fresh.big"_s), {.Place = Archives::Placement::Exact}).has_value());
    EXPECT_TRUE(host_.ProgressShown);
    EXPECT_FALSE(Files::FileExists(At(u"fresh.big"_s)));
    BigEntries.clear();
    AddNew(u"only"_s, "x");
    EXPECT_TRUE(mBIG::Save(At(u"fresh.big"_s), {.Place = Archives::Placement::Exact}).has_value());
    EXPECT_EQ(World::ReadFile(At(u"fresh.big"_s)).sliced(29), Bytes("L225\0\0\0\0\0\0\0x"));
}

TEST_F(OpenArchiveTest, KeptFilesAndFoldersOfTheScratchFolderStay) {
    Put(u"program\\Temp\\gone"_s, "x");
    Put(u"program\\Temp\\folder\\deep"_s, "x");
    const QString spared = Put(u"program\\Temp\\spared"_s, "x");
    EXPECT_TRUE(mBIG::WriteBigFile(path_, {spared}));
    EXPECT_FALSE(Files::FileExists(world_.ProgramFolder() + u"\\Temp\\gone"_s));
    EXPECT_TRUE(Files::FileExists(spared));
    EXPECT_TRUE(Files::FileExists(world_.ProgramFolder() + u"\\Temp\\folder\\deep"_s));
}

TEST_F(OpenArchiveTest, AnotherScratchFolderIsEmptiedInItsPlace) {
    Put(u"program\\Temp\\stays"_s, "x");
    Put(u"own\\goes"_s, "x");
    EXPECT_TRUE(mBIG::Save(path_, {.Scratch = At(u"own"_s)}).has_value());
    EXPECT_TRUE(Files::FileExists(world_.ProgramFolder() + u"\\Temp\\stays"_s));
    EXPECT_FALSE(Files::FileExists(At(u"own\\goes"_s)));
}

TEST_F(OpenArchiveTest, AnEntryOfNoBytesThatWasExtractedStandsInNoSavesWay) {
    BigEntries[1].Size = 0;
    EXPECT_THROW(mBIG::ExtractEntry(1, path_, At(u"target"_s)), RuntimeError);
    EXPECT_EQ(FailureOf(path_), QString());
    EXPECT_FALSE(NumberedFiles::IsOpen(3));
    EXPECT_FALSE(NumberedFiles::IsOpen(4));
}
