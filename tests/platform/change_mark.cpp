// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ChangeMark.h"
#include "platform/Files.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ChangeMarkTest : public testing::Test {
protected:
    Scratch scratch_;
    QString file_ = scratch_.Write(u"file.txt"_s, "before");
};

} // namespace

TEST_F(ChangeMarkTest, AnUntouchedFileHasNotChanged) {
    const ChangeMark mark(file_);
    EXPECT_FALSE(mark.Changed());
    EXPECT_EQ(scratch_.Read(u"file.txt"_s), "before");
    EXPECT_FALSE(mark.Changed()) << "Reading is no change.";
}

TEST_F(ChangeMarkTest, AFileWrittenInPlaceHasChanged) {
    const ChangeMark mark(file_);
    scratch_.Write(u"file.txt"_s, "before and after");
    EXPECT_TRUE(mark.Changed());
}

TEST_F(ChangeMarkTest, TheSameSizeInTheSameMomentIsAChangeToo) {
    for (int round = 0; round < 20; ++round) {
        const ChangeMark mark(file_);
        scratch_.Write(u"file.txt"_s, "behind");
        EXPECT_TRUE(mark.Changed()) << round;
    }
}

TEST_F(ChangeMarkTest, TheVerySameBytesWrittenAgainAreAChange) {
    const ChangeMark mark(file_);
    scratch_.Write(u"file.txt"_s, "before");
    EXPECT_TRUE(mark.Changed());
}

TEST_F(ChangeMarkTest, AFileWrittenAsideAndRenamedIsAChange) {
    const ChangeMark mark(file_);
    const QString aside = scratch_.Write(u"aside.txt"_s, "behind");
    Files::Replace(aside, file_);
    EXPECT_TRUE(mark.Changed());
}

TEST_F(ChangeMarkTest, AFileThatStepsAsideForItsSuccessorIsAChange) {
    const ChangeMark mark(file_);
    Files::Rename(file_, scratch_.Inside(u"file.txt.bak"_s));
    scratch_.Write(u"file.txt"_s, "before");
    EXPECT_TRUE(mark.Changed());
}

TEST_F(ChangeMarkTest, ADeletedFileHasNothingToTakeIn) {
    const ChangeMark mark(file_);
    Files::Delete(file_);
    EXPECT_FALSE(mark.Changed());
    scratch_.Write(u"file.txt"_s, "before");
    EXPECT_TRUE(mark.Changed());
}

TEST_F(ChangeMarkTest, AFileThatWasNotThereHasChangedOnceItIs) {
    const QString path = scratch_.Inside(u"later.txt"_s);
    const ChangeMark mark(path);
    EXPECT_FALSE(mark.Changed());
    scratch_.Write(u"later.txt"_s, "x");
    EXPECT_TRUE(mark.Changed());
}

TEST_F(ChangeMarkTest, ANewMarkForgetsEarlierChanges) {
    const ChangeMark first(file_);
    scratch_.Write(u"file.txt"_s, "behind");
    EXPECT_TRUE(first.Changed());
    const ChangeMark second(file_);
    EXPECT_FALSE(second.Changed());
    scratch_.Write(u"file.txt"_s, "before");
    EXPECT_TRUE(second.Changed());
}
