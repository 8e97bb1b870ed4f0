// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Processes that are killed while they keep a rescue, and disks that are full.
#include "core/rescue/RescueCopy.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"
#include "tests/support/posix/ChildProcess.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class RescueProcesses : public testing::Test {
protected:
    World world_;
};

} // namespace

TEST_F(RescueProcesses, AnothersRescueIsItsOwnUntilItDies) {
    ChildProcess other([](const ChildProcess::Tell& tell) {
        RescueCopy copy(u"csf"_s);
        copy.Keep(u"C:\\theirs.csf"_s, false, "theirs");
        tell('x');
        ChildProcess::Wait();
    });
    EXPECT_EQ(other.Word(), 'x');
    RescueCopy own(u"csf"_s);
    own.Keep(u"C:\\ours.csf"_s, false, "ours");
    EXPECT_TRUE(Rescues::LeftFor(u"csf"_s).empty());
    Rescues::Sweep();
    other.Kill();
    const std::vector<Rescues::Left> left = Rescues::LeftFor(u"csf"_s);
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left[0].Facts.Path, u"C:\\theirs.csf"_s);
    EXPECT_EQ(Rescues::ContentOf(left[0]), "theirs");
}

TEST_F(RescueProcesses, KilledAtAnyMomentItIsWholeOrAbsent) {
    constexpr int rounds = 150;
    constexpr int size = 200'000;
    int found = 0;
    for (int round = 0; round < rounds; ++round) {
        ChildProcess child([](const ChildProcess::Tell& tell) {
            tell('x');
            for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
                RescueCopy copy(u"csf"_s);
                copy.Keep(u"C:\\a.csf"_s, false, QByteArray(size, letter));
                copy.Keep(u"C:\\a.csf"_s, false, QByteArray(size, letter));
                copy.Discard();
            }
        });
        EXPECT_EQ(child.Word(), 'x');
        ::usleep(static_cast<useconds_t>(round * 97));
        child.Kill();
        Rescues::Sweep();
        const QStringList folders = Files::ListFolder(Rescues::Folder() + u"\\*"_s, true);
        const std::vector<Rescues::Left> left = Rescues::LeftFor(u"csf"_s);
        ASSERT_EQ(static_cast<std::size_t>(folders.size()), left.size()) << "nothing lies there that is no rescue";
        for (const Rescues::Left& one : left) {
            const QByteArray content = Rescues::ContentOf(one);
            EXPECT_EQ(content, QByteArray(size, content.isEmpty() ? '?' : content.front()));
            EXPECT_EQ(Files::ListFolder(one.Folder + u"*"_s), QStringList{u"rescue"_s});
            EXPECT_TRUE(Rescues::ThrowAway(one.Folder));
            ++found;
        }
    }
    EXPECT_GT(found, 0);
}

TEST_F(RescueProcesses, AFullDiskLeavesWhatWasKept) {
    RescueCopy copy(u"csf"_s);
    copy.Keep(u"C:\\a.csf"_s, false, "kept");
    for (const rlim_t bytes : {rlim_t{0}, rlim_t{1}, rlim_t{20}, rlim_t{60}, rlim_t{1000}}) {
        const FileLengthLimit limit(bytes);
        EXPECT_THROW(copy.Keep(u"C:\\a.csf"_s, false, QByteArray(2000, 'x')), RuntimeError) << bytes;
    }
    EXPECT_TRUE(copy.IsKept());
    copy.LetGo();
    const std::vector<Rescues::Left> left = Rescues::LeftFor(u"csf"_s);
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(Rescues::ContentOf(left[0]), "kept");
}
