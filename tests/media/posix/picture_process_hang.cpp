// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A decoder that hangs, and one that is killed at its work.

#include "tests/media/picture_process_fixture.h"
#include "tests/media/picture_samples.h"

#include <QProcess>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class StoppedChild : public PictureProcessTest {
protected:
    /// A child that takes its next picture and does nothing any more.
    pid_t Stop() {
        EXPECT_EQ(Decode(u"a.pfm"_s, SamplePfm()), true);
        const auto child = static_cast<pid_t>(process_.findChild<QProcess*>()->processId());
        EXPECT_EQ(::kill(child, SIGSTOP), 0);
        return child;
    }
};

} // namespace

TEST_F(StoppedChild, IsGivenUpAfterTheTimeLimit) {
    const pid_t child = Stop();
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(Decode(u"b.pfm"_s, SamplePfm()), false);
    EXPECT_GE(timer.elapsed(), PictureProcess::TimeLimit - 50);
    EXPECT_TRUE(WaitFor([child] { return ::kill(child, 0) != 0; })) << "It is gone.";
    EXPECT_EQ(Decode(u"c.pfm"_s, SamplePfm()), true);
}

TEST_F(StoppedChild, ThatIsKilledAnswersAtOnce) {
    const pid_t child = Stop();
    QElapsedTimer timer;
    timer.start();
    Begin(u"b.pfm"_s, SamplePfm());
    ::kill(child, SIGKILL);
    EXPECT_TRUE(WaitFor([this] { return answer_.has_value(); }));
    EXPECT_EQ(answer_, false);
    EXPECT_LT(timer.elapsed(), PictureProcess::TimeLimit);
}
