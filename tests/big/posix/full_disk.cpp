// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Saves and extractions on a device that fails at every write.
#include "tests/big/Archives.h"

#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/posix/FileLengthLimit.h"

using namespace Qt::StringLiterals;

namespace {

class FullDisk : public ArchiveTest {
protected:
    FullDisk() {
        archive_ =
            HeaderOf("BIGF", 2, 48) + Record(48, 5, "a.ini") + Record(56, 2, "b") + Bytes("L225\0\0\0\0hello\0\0\0hi");
        mBIG::BigFileName = Put(u"open.big"_s, archive_);
        mBIG::ReadBigFile(mBIG::BigFileName);
        AddNew(u"new"_s, "123");
    }

    QByteArray archive_;
};

} // namespace

TEST_F(FullDisk, AtEveryByteTheOpenArchiveStaysWholeWhenItIsSavedOver) {
    for (rlim_t room = 0; room < 75; room += 3) {
        bool saved = true;
        QString failure;
        {
            const FileLengthLimit limit(room);
            saved = mBIG::WriteBigFile(mBIG::BigFileName);
            failure = FailureOf(mBIG::BigFileName);
        }
        ASSERT_FALSE(saved) << room;
        EXPECT_TRUE(failure.contains(u"open.big: "_s)) << failure.toStdString();
        EXPECT_EQ(World::ReadFile(mBIG::BigFileName), archive_);
        EXPECT_FALSE(Files::FileExists(mBIG::BigFileName + u".tmp"_s));
        EXPECT_TRUE(mBIG::BigEntries[2].IsNew) << "the unsaved entry is still one";
    }
    EXPECT_TRUE(mBIG::WriteBigFile(mBIG::BigFileName));
}

TEST_F(FullDisk, AnotherTargetKeepsWhatStoodThere) {
    const QString other = Put(u"other.big"_s, "precious");
    for (rlim_t room = 0; room < 75; room += 3) {
        {
            const FileLengthLimit limit(room);
            ASSERT_FALSE(mBIG::WriteBigFile(other));
        }
        EXPECT_EQ(World::ReadFile(other), "precious");
    }
    EXPECT_EQ(Files::ListFolder(At(u"~brindock*"_s)), QStringList{});
}

TEST_F(FullDisk, AnExtractionThatFailsClosesItsFiles) {
    mBIG::BigEntries = {{u"e"_s, 0, 58, false, false, {}}};
    const FileLengthLimit limit(10);
    EXPECT_ANY_THROW(mBIG::ExtractEntry(0, mBIG::BigFileName, At(u"target"_s)));
    EXPECT_FALSE(NumberedFiles::IsOpen(3));
    EXPECT_FALSE(NumberedFiles::IsOpen(4));
}
