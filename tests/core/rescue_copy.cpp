// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rescue/RescueCopy.h"

#include "core/rescue/LeftBeside.h"
#include "platform/Files.h"
#include "platform/OwnFolder.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <QThread>

using namespace Qt::StringLiterals;

namespace {

class RescueCopyTest : public testing::Test {
protected:
    /// The names of the folders that lie there.
    static QStringList Folders() { return Files::ListFolder(Rescues::Folder() + u"\\*"_s, true); }

    /// Leaves a rescue as a process does that dies; returns its folder.
    static QString Leave(const QString& kind, const QString& path, const QByteArray& content) {
        RescueCopy copy(kind);
        copy.Keep(path, false, content);
        QString folder = copy.Folder();
        copy.LetGo();
        return folder;
    }

    /// What is left, when that is one rescue.
    static Rescues::Left TheOne(const QString& kind) {
        std::vector<Rescues::Left> left = Rescues::LeftFor(kind);
        EXPECT_EQ(left.size(), 1U);
        return left.empty() ? Rescues::Left() : left.front();
    }

    World world_;
};

} // namespace

TEST_F(RescueCopyTest, WhatIsKeptIsFoundWhenItsProcessIsGone) {
    const QDateTime before = QDateTime::currentDateTimeUtc().addMSecs(-1);
    Leave(u"csf"_s, u"C:\\a.csf"_s, QByteArray("the\0bytes", 9));
    const Rescues::Left left = TheOne(u"csf"_s);
    EXPECT_EQ(left.Facts.Kind, u"csf"_s);
    EXPECT_EQ(left.Facts.Path, u"C:\\a.csf"_s);
    EXPECT_FALSE(left.Facts.NeverSaved);
    EXPECT_GE(left.Facts.Time, before);
    EXPECT_LE(left.Facts.Time, QDateTime::currentDateTimeUtc());
    EXPECT_EQ(Rescues::ContentOf(left), QByteArray("the\0bytes", 9));
    EXPECT_TRUE(Rescues::LeftFor(u"big"_s).empty()) << "another editor's";
}

TEST_F(RescueCopyTest, OfALivingProcessNothingIsOffered) {
    RescueCopy copy(u"csf"_s);
    copy.Keep(u"C:\\a.csf"_s, false, "x");
    EXPECT_TRUE(Rescues::LeftFor(u"csf"_s).empty());
    EXPECT_FALSE(Rescues::IsLeft(copy.Folder()));
    EXPECT_FALSE(Rescues::ThrowAway(copy.Folder()));
    RescueCopy other(u"csf"_s);
    EXPECT_FALSE(other.Adopt(copy.Folder()));
    Rescues::Sweep();
    copy.LetGo();
    EXPECT_EQ(Rescues::ContentOf(TheOne(u"csf"_s)), "x");
}

TEST_F(RescueCopyTest, TheLastOneKeptCounts) {
    RescueCopy copy(u"csf"_s);
    copy.Keep(u"C:\\a.csf"_s, false, "first");
    copy.Keep(u"C:\\b.csf"_s, true, "second");
    copy.LetGo();
    const Rescues::Left left = TheOne(u"csf"_s);
    EXPECT_EQ(left.Facts.Path, u"C:\\b.csf"_s);
    EXPECT_TRUE(left.Facts.NeverSaved);
    EXPECT_EQ(Rescues::ContentOf(left), "second");
}

TEST_F(RescueCopyTest, WhatIsDiscardedLeavesNothing) {
    RescueCopy copy(u"csf"_s);
    copy.Keep(u"C:\\a.csf"_s, false, "x");
    EXPECT_TRUE(copy.IsKept());
    copy.Discard();
    EXPECT_FALSE(copy.IsKept());
    EXPECT_EQ(Folders(), QStringList());
    copy.Keep(u"C:\\a.csf"_s, false, "y");
    copy.LetGo();
    EXPECT_EQ(Rescues::ContentOf(TheOne(u"csf"_s)), "y");
}

TEST_F(RescueCopyTest, AFolderWithoutARescueGoesWithItsDocument) {
    { RescueCopy(u"csf"_s).Folder(); }
    EXPECT_EQ(Folders(), QStringList());
}

TEST_F(RescueCopyTest, TheNewestComesFirst) {
    Leave(u"csf"_s, u"C:\\old.csf"_s, "x");
    QThread::msleep(3);
    Leave(u"csf"_s, u"C:\\new.csf"_s, "x");
    const std::vector<Rescues::Left> left = Rescues::LeftFor(u"csf"_s);
    ASSERT_EQ(left.size(), 2U);
    EXPECT_EQ(left[0].Facts.Path, u"C:\\new.csf"_s);
    EXPECT_EQ(left[1].Facts.Path, u"C:\\old.csf"_s);
}

TEST_F(RescueCopyTest, WhatIsTakenOverIsItsNewOwners) {
    const QString folder = Leave(u"csf"_s, u"C:\\a.csf"_s, "x");
    {
        RescueCopy copy(u"csf"_s);
        ASSERT_TRUE(copy.Adopt(folder));
        EXPECT_TRUE(copy.IsKept());
        EXPECT_TRUE(Rescues::LeftFor(u"csf"_s).empty());
    }
    EXPECT_EQ(Rescues::ContentOf(TheOne(u"csf"_s)), "x") << "nothing was discarded";
    RescueCopy copy(u"csf"_s);
    ASSERT_TRUE(copy.Adopt(folder));
    copy.Discard();
    EXPECT_EQ(Folders(), QStringList());
    EXPECT_FALSE(copy.Adopt(folder)) << "it has gone";
}

TEST_F(RescueCopyTest, WhatIsThrownAwayLeavesNothing) {
    const QString folder = Leave(u"csf"_s, u"C:\\a.csf"_s, "x");
    EXPECT_TRUE(Rescues::IsLeft(folder));
    EXPECT_TRUE(Rescues::ThrowAway(folder));
    EXPECT_FALSE(Rescues::IsLeft(folder));
    EXPECT_EQ(Folders(), QStringList());
}

TEST_F(RescueCopyTest, DamagedBytesAreNoRescueAndStay) {
    const QString folder = Leave(u"csf"_s, u"C:\\a.csf"_s, "content");
    const QByteArray whole = ReadWhole(folder + u"rescue"_s);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        world_.WriteFile(folder.sliced(world_.Root().size() + 1) + u"rescue"_s, whole.first(length));
        EXPECT_TRUE(Rescues::LeftFor(u"csf"_s).empty()) << length;
    }
    QByteArray changed = whole;
    changed.back() = static_cast<char>(changed.back() ^ 1);
    world_.WriteFile(folder.sliced(world_.Root().size() + 1) + u"rescue"_s, changed);
    EXPECT_TRUE(Rescues::LeftFor(u"csf"_s).empty());
    Rescues::Sweep();
    EXPECT_EQ(Folders().size(), 1) << "a person may want to look at it";
}

TEST_F(RescueCopyTest, TheSweepTakesWhatWasNeverFinishedAndNothingElse) {
    const QString folder = Leave(u"csf"_s, u"C:\\a.csf"_s, "x");
    const QString inside = folder.sliced(world_.Root().size() + 1);
    world_.WriteFile(inside + PrivateName(), "half");
    world_.WriteFile(inside + u"1"_s, "an entry");
    const QString half = Rescues::Folder() + u'\\' + PrivateName() + u".rescue"_s;
    world_.WriteFile(half.sliced(world_.Root().size() + 1) + u"\\1"_s, "an entry without its rescue");
    const QString users = Rescues::Folder() + u"\\mine"_s;
    world_.WriteFile(users.sliced(world_.Root().size() + 1) + u"\\notes.txt"_s, "a person's");
    RescueCopy living(u"csf"_s);
    const QString livings = living.Folder();
    Rescues::Sweep();
    EXPECT_FALSE(Files::FolderExists(half));
    EXPECT_TRUE(Files::FolderExists(livings.chopped(1)));
    EXPECT_TRUE(Files::FileExists(users + u"\\notes.txt"_s));
    QStringList names = Files::ListFolder(folder + u"*"_s);
    names.sort();
    EXPECT_EQ(names, (QStringList{u"1"_s, u"rescue"_s}));
}

namespace {

class LeftBesideTest : public testing::Test {
protected:
    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    World world_;
};

} // namespace

TEST_F(LeftBesideTest, PuttingBackKeepsWhatStoodThere) {
    world_.WriteFile(u"a.csf"_s, "half");
    world_.WriteFile(u"a (2).csf"_s, "another");
    world_.WriteFile(u"a.csf.sav"_s, "old");
    EXPECT_EQ(LeftBeside::PutBack(At(u"a.csf"_s), At(u"a.csf.sav"_s)), At(u"a (3).csf"_s));
    EXPECT_EQ(World::ReadFile(At(u"a.csf"_s)), "old");
    EXPECT_EQ(World::ReadFile(At(u"a (2).csf"_s)), "another");
    EXPECT_EQ(World::ReadFile(At(u"a (3).csf"_s)), "half");
    EXPECT_FALSE(Files::FileExists(At(u"a.csf.sav"_s)));
}

TEST_F(LeftBesideTest, PuttingBackToNowhereKeepsNothing) {
    world_.WriteFile(u"a.csf.sav"_s, "old");
    EXPECT_EQ(LeftBeside::PutBack(At(u"a.csf"_s), At(u"a.csf.sav"_s)), QString());
    EXPECT_EQ(World::ReadFile(At(u"a.csf"_s)), "old");
}

TEST_F(LeftBesideTest, AFailureLeavesBothAsTheyWere) {
    world_.WriteFile(u"a.csf"_s, "half");
    EXPECT_THROW(LeftBeside::PutBack(At(u"a.csf"_s), At(u"a.csf.sav"_s)), RuntimeError);
    EXPECT_EQ(World::ReadFile(At(u"a.csf"_s)), "half");
    EXPECT_FALSE(Files::FileExists(At(u"a (2).csf"_s)));
}

TEST_F(LeftBesideTest, KeepingBothGivesTheOldOneANameOfItsOwn) {
    world_.WriteFile(u"no.dot\\a"_s, "new");
    world_.WriteFile(u"no.dot\\a.tmp"_s, "old");
    EXPECT_EQ(LeftBeside::KeepBoth(At(u"no.dot\\a"_s), At(u"no.dot\\a.tmp"_s)), At(u"no.dot\\a (2)"_s));
    EXPECT_EQ(World::ReadFile(At(u"no.dot\\a"_s)), "new");
    EXPECT_EQ(World::ReadFile(At(u"no.dot\\a (2)"_s)), "old");
}
