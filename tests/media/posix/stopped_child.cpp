// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A decoder that hangs, and one that is killed at its work.

#include "media/FilePlayer.h"
#include "tests/media/media_process_fixture.h"
#include "tests/media/picture_samples.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class StoppedChild : public MediaProcessTest {
protected:
    explicit StoppedChild(MediaLimits limits = {1000, 1000}) : MediaProcessTest(limits) {}

    /// A child that takes its next file and does nothing any more.
    pid_t Stop() {
        EXPECT_EQ(Decode(u"a.pfm"_s, SamplePfm()), true);
        const auto child = static_cast<pid_t>(ChildNumber());
        EXPECT_EQ(::kill(child, SIGSTOP), 0);
        return child;
    }
};

/// Nothing is given up for its time within a test.
class PatientProcess : public StoppedChild {
protected:
    PatientProcess() : StoppedChild({1000000, 1000000}) {}
};

} // namespace

TEST_F(StoppedChild, CostsItsPictureAndTheNextOneIsShown) {
    const pid_t child = Stop();
    EXPECT_EQ(Decode(u"b.pfm"_s, SamplePfm()), false);
    EXPECT_TRUE(WaitFor([child] { return ::kill(child, 0) != 0; })) << "It is gone.";
    EXPECT_EQ(Decode(u"c.pfm"_s, SamplePfm()), true);
}

TEST_F(StoppedChild, CostsNoPictureThatAnotherWindowWaitsFor) {
    Stop();
    ChildDecoder other(process_);
    std::optional<bool> second;
    Begin(u"b.pfm"_s, SamplePfm());
    other.Decode(Place.WriteFile(u"c.gif"_s, SampleGif()), Bitmap(), [&](bool decoded) { second = decoded; });
    EXPECT_TRUE(WaitFor([&] { return answer_.has_value() && second.has_value(); }));
    EXPECT_EQ(answer_, false);
    EXPECT_EQ(second, true);
}

TEST_F(StoppedChild, CostsItsSoundAndThePlayerSaysSo) {
    qputenv("SDL_AUDIODRIVER", "dummy");
    Stop();
    FilePlayer player(process_);
    player.Open(Place.WriteFile(u"a.wav"_s, "RIFF"));
    EXPECT_EQ(player.Status().What, SoundStatus::Stage::Opening);
    EXPECT_TRUE(WaitFor([&] { return player.Status().What == SoundStatus::Stage::Unplayable; }));
    qunsetenv("SDL_AUDIODRIVER");
    EXPECT_EQ(Decode(u"b.pfm"_s, SamplePfm()), true);
}

TEST_F(PatientProcess, AnswersWithoutAWaitWhenTheChildIsKilled) {
    const pid_t child = Stop();
    Begin(u"b.pfm"_s, SamplePfm());
    ::kill(child, SIGKILL);
    EXPECT_TRUE(WaitFor([this] { return answer_.has_value(); }));
    EXPECT_EQ(answer_, false);
}
