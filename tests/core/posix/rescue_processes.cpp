// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Processes that are killed while they keep a rescue, and disks that are full.
#include "core/rescue/RescueCopy.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A process of its own, until it is killed.
class Child {
public:
    explicit Child(const std::function<void(int told)>& run) {
        EXPECT_EQ(::pipe(told_.data()), 0);
        process_ = ::fork();
        if (process_ == 0) {
            run(told_[1]);
            for (;;)
                ::pause();
        }
    }

    ~Child() {
        Kill();
        ::close(told_[0]);
        ::close(told_[1]);
    }

    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    void AwaitWord() const {
        char word = 0;
        EXPECT_EQ(::read(told_[0], &word, 1), 1);
    }

    void Kill() {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
            ::waitpid(process_, nullptr, 0);
        }
        process_ = 0;
    }

private:
    std::array<int, 2> told_{-1, -1};
    pid_t process_ = 0;
};

void Tell(int told) {
    static_cast<void>(!::write(told, "x", 1));
}

class RescueProcesses : public testing::Test {
protected:
    World world_;
};

} // namespace

TEST_F(RescueProcesses, AnothersRescueIsItsOwnUntilItDies) {
    Child other([](int told) {
        RescueCopy copy(u"csf"_s);
        copy.Keep(u"C:\\theirs.csf"_s, false, "theirs");
        Tell(told);
        for (;;)
            ::pause();
    });
    other.AwaitWord();
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
        Child child([](int told) {
            Tell(told);
            for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
                RescueCopy copy(u"csf"_s);
                copy.Keep(u"C:\\a.csf"_s, false, QByteArray(size, letter));
                copy.Keep(u"C:\\a.csf"_s, false, QByteArray(size, letter));
                copy.Discard();
            }
        });
        child.AwaitWord();
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
    EXPECT_LT(found, rounds) << "each end was seen";
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
