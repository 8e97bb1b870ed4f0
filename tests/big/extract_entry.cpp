// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/Archives.h"

#include "platform/Files.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;
using mBIG::ExtractEntry;

namespace {

class ExtractEntryTest : public ArchiveTest {
protected:
    ExtractEntryTest() {
        archive_ = Put(u"in.big"_s, "0123456789");
        target_ = At(u"target"_s);
    }

    void Entry(qint32 offset, qint32 size) { mBIG::BigEntries.push_back({u"e"_s, offset, size, false, false, {}}); }

    QString archive_;
    QString target_;
};

} // namespace

TEST_F(ExtractEntryTest, CopiesTheBytesAtTheOffset) {
    Entry(3, 4);
    ExtractEntry(0, archive_, target_);
    EXPECT_EQ(World::ReadFile(target_), "3456");
}

TEST_F(ExtractEntryTest, DoesNotCutALongerTarget) {
    Put(u"target"_s, "a longer file");
    Entry(0, 2);
    ExtractEntry(0, archive_, target_);
    EXPECT_EQ(World::ReadFile(target_), "01longer file");
}

TEST_F(ExtractEntryTest, ANewEntryIsAFileCopyThatReplacesTheTarget) {
    Put(u"target"_s, "a longer file");
    AddNew(u"n"_s, "new");
    ExtractEntry(0, archive_, target_);
    EXPECT_EQ(World::ReadFile(target_), "new");
}

TEST_F(ExtractEntryTest, BytesBehindTheEndOfTheArchiveAreZeros) {
    Entry(8, 4);
    ExtractEntry(0, archive_, target_);
    EXPECT_EQ(World::ReadFile(target_), Bytes("89\0\0"));
    Put(u"target"_s, "xxxxxx");
    ExtractEntry(0, archive_, target_);
    EXPECT_EQ(World::ReadFile(target_), Bytes("89\0\0xx"));
}

TEST_F(ExtractEntryTest, ASizeOfZeroFailsAndLeavesTheFileNumbersOpen) {
    Entry(1, 0);
    Entry(1, 1);
    EXPECT_THROW(ExtractEntry(0, archive_, target_), RuntimeError);
    EXPECT_TRUE(Files::FileExists(target_)) << "the target is made";
    EXPECT_TRUE(NumberedFiles::IsOpen(3));
    EXPECT_TRUE(NumberedFiles::IsOpen(4));
    EXPECT_THROW(ExtractEntry(1, archive_, At(u"other"_s)), RuntimeError);
    EXPECT_FALSE(Files::FileExists(At(u"other"_s)));
}

TEST_F(ExtractEntryTest, ATargetThatCanNotBeMadeLeavesNothingOpen) {
    Entry(1, 1);
    EXPECT_THROW(ExtractEntry(0, archive_, At(u"no folder\\target"_s)), RuntimeError);
    EXPECT_FALSE(NumberedFiles::IsOpen(3));
    EXPECT_FALSE(NumberedFiles::IsOpen(4));
    EXPECT_THROW(ExtractEntry(0, At(u"no archive"_s), target_), RuntimeError);
}
