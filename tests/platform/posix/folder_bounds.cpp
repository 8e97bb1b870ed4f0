// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FolderBounds.h"
#include "platform/Paths.h"

#include "tests/platform/Scratch.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class FolderBoundsTest : public testing::Test {
protected:
    FolderBoundsTest() {
        scratch_.Write(u"in/file"_s, "x");
        scratch_.Write(u"inside/file"_s, "x");
        scratch_.Write(u"out"_s, "x");
        Link(u"in/far"_s, u"out"_s);
        Link(u"in/near"_s, u"in/file"_s);
        Link(u"in/neighbour"_s, u"inside/file"_s);
        Link(u"in/nowhere"_s, u"none"_s);
    }

    void Link(const QString& name, const QString& target) const {
        ASSERT_TRUE(QFile::link(scratch_.Native(target), scratch_.Native(name)));
    }

    [[nodiscard]] QString At(const QString& name) const { return Paths::FromNative(scratch_.Native(name)); }

    Scratch scratch_;
};

} // namespace

TEST_F(FolderBoundsTest, OnlyLinksToWhatLiesElsewhereLeadOut) {
    for (const QString& folder : {At(u"in"_s), At(u"in"_s) + u'\\'}) {
        FolderBounds bounds(folder);
        EXPECT_FALSE(bounds.LeadsOut(At(u"in/file"_s)));
        EXPECT_FALSE(bounds.LeadsOut(At(u"in/near"_s)));
        EXPECT_FALSE(bounds.LeadsOut(At(u"in/none"_s)));
        EXPECT_TRUE(bounds.LeadsOut(At(u"in/far"_s)));
        EXPECT_TRUE(bounds.LeadsOut(At(u"in/neighbour"_s))) << "Its name only begins alike.";
        EXPECT_TRUE(bounds.LeadsOut(At(u"in/nowhere"_s)));
    }
}

TEST_F(FolderBoundsTest, NothingLeadsOutOfTheRoot) {
    EXPECT_FALSE(FolderBounds(u"\\"_s).LeadsOut(At(u"in/far"_s)));
}

TEST_F(FolderBoundsTest, AnEmptyFolderIsTheOneThatTheProgramRunsIn) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(scratch_.Native(u"in"_s)));
    FolderBounds bounds({});
    EXPECT_TRUE(bounds.LeadsOut(u"far"_s));
    EXPECT_FALSE(bounds.LeadsOut(u"near"_s));
    QDir::setCurrent(before);
}

TEST_F(FolderBoundsTest, FromAFolderThatIsGoneAllLinksLeadOut) {
    EXPECT_TRUE(FolderBounds(At(u"gone"_s)).LeadsOut(At(u"in/near"_s)));
}
