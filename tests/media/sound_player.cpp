// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The sound device, written to a file: the samples that come out, and where the sound is.

#include "media/FilePlayer.h"
#include "platform/Paths.h"
#include "tests/media/sound_bytes.h"
#include "tests/support/World.h"
#include "tools/demoworld/Sounds.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <random>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using Stage = SoundStatus::Stage;

namespace {

class SoundTest : public testing::Test {
protected:
    void SetUp() override {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", Paths::ToNative(Out()).toUtf8());
    }

    ~SoundTest() override {
        qunsetenv("SDL_AUDIODRIVER");
        qunsetenv("SDL_DISKAUDIOFILE");
    }

    [[nodiscard]] QString Out() const { return Place.Root() + u"\\out.raw"_s; }

    bool WaitFor(const std::function<bool(const SoundStatus&)>& holds, int limit = 10000) {
        QElapsedTimer timer;
        timer.start();
        while (!holds(Player->Status())) {
            if (timer.hasExpired(limit))
                return false;
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        return true;
    }

    bool WaitFor(Stage stage) {
        return WaitFor([stage](const SoundStatus& status) { return status.What == stage; });
    }

    void Open(const QByteArray& bytes, const QString& name = u"a.wav"_s) { Player->Open(Place.WriteFile(name, bytes)); }

    /// What the device was given, from the first to the last sample that is not silent.
    QByteArray Played(const QByteArray& bytes, const QString& name = u"a.wav"_s) {
        Open(bytes, name);
        EXPECT_TRUE(WaitFor(Stage::Stopped));
        Player.reset(); // closes the file
        const QByteArray out = World::ReadFile(Out());
        const auto heard = [](char byte) { return byte != 0; };
        const auto first = std::find_if(out.begin(), out.end(), heard) - out.begin();
        const auto last = out.rend() - std::find_if(out.rbegin(), out.rend(), heard);
        return first < last ? out.sliced(first / 4 * 4, (last + 3) / 4 * 4 - first / 4 * 4) : QByteArray();
    }

    World Place;
    std::shared_ptr<MediaProcess> Process = std::make_shared<MediaProcess>();
    std::unique_ptr<SoundPlayer> Player = std::make_unique<FilePlayer>(Process);
};

} // namespace

TEST_F(SoundTest, PcmComesOutAsItIs) {
    QByteArray samples;
    for (int i = 1; i <= 5000; ++i)
        samples += Little({i * 13 % 65536, -i}, 2);
    EXPECT_EQ(Played(PcmWav(samples)), samples);
}

TEST_F(SoundTest, ImaAdpcmComesOutDecoded) {
    // Left: starts at 1000 with step 7. Each nibble's difference is step / 8, with the step (4), its half (2) and its
    // quarter (1) added, less than before with the sign (8); then the step's index moves by -1, or by 2 4 6 8 from 4
    // up.
    //   nibble  7     7     F     0     8     4     C     3
    //   step    7    16    34    73    66    60    73    88
    //   is    +11   +30   -63    +9    -8   +67   -82   +77
    // Right: starts at -500 with step 19, and every nibble is 1: an eighth and a quarter of 19 17 16 14 13 12 11 10.
    const QByteArray block = Little({1000, 0}, 2) + Little({-500, 10}, 2) + QByteArray("\x77\x0F\x48\x3C", 4) +
                             QByteArray("\x11\x11\x11\x11", 4);
    const QByteArray decoded = Little(
        {1000, -500, 1011, -494, 1041, -488, 978, -482, 987, -478, 979, -474, 1046, -470, 964, -467, 1041, -464}, 2);
    EXPECT_EQ(Played(Wav(0x11, 16, 4, Little({2, 9}, 2), 9, block)), decoded);
}

TEST_F(SoundTest, MsAdpcmComesOutDecoded) {
    // The second of the two first samples comes first. Left is predicted by the sample before, right by twice the
    // sample before less the one before that; then nibble times delta is added, and delta is multiplied by the nibble's
    // 230 230 230 230 307 409 512 614 768 614 512 409 307 230 230 230 of 256, never below 16.
    //   left   nibble  1    4   -1   -8    0    7     delta 16  16  19  17  51  45
    //          is    216  280  261  125  125  440
    //   right  nibble  0    2   -7    5   -2    0     delta 20  17  16  38  60  53
    //          is    -40    4  -64   58   60   62     from -40 -30 48 -132 180 62
    const QByteArray coefficients = Little({256, 0, 512, -256, 0, 0, 192, 64, 240, 0, 460, -208, 392, -232}, 2);
    const QByteArray block =
        QByteArray("\x00\x01", 2) + Little({16, 20, 200, -50, 100, -60}, 2) + QByteArray("\x10\x42\xF9\x85\x0E\x70", 6);
    const QByteArray decoded = Little({100, -60, 200, -50, 216, -40, 280, 4, 261, -64, 125, 58, 125, 60, 440, 62}, 2);
    EXPECT_EQ(Played(Wav(2, 20, 4, Little({32, 8, 7}, 2) + coefficients, 8, block)), decoded);
}

TEST_F(SoundTest, TheGamesOwnKindsOfWavArePlayed) {
    const Demo::Tune tune = Demo::MakeTune(7, 0.2);
    for (const QByteArray& bytes :
         {Demo::WavPcm(tune, 8), Demo::WavPcm(tune, 16), Demo::WavIma(tune), Demo::WavMs(tune)}) {
        Player = std::make_unique<FilePlayer>(Process);
        EXPECT_GT(Played(bytes).size(), 44100 * 4 / 10);
    }
}

TEST_F(SoundTest, Mp3ComesOutDecoded) {
    EXPECT_GT(Played(Demo::Mp3(3, 0.5), u"a.mp3"_s).size(), 44100 * 4 / 4);
}

TEST_F(SoundTest, MpegOfTheLaterVersionsIsDecodedToo) {
    // 8 kbit a second at 8,000 Hz: 72 bytes hold 576 samples, here of silence.
    const QByteArray frame = QByteArray("\xFF\xE3\x18\xC4", 4) + QByteArray(68, '\0');
    Open(frame.repeated(100), u"a.mp3"_s);
    ASSERT_TRUE(WaitFor(Stage::Playing));
    EXPECT_NEAR(static_cast<double>(Player->Status().Length), 7200, 100);
}

TEST_F(SoundTest, PositionAndLengthFollowTheSound) {
    Open(PcmWav(QByteArray(qsizetype{4} * 44100 * 3, 'x')));
    ASSERT_TRUE(WaitFor([](const SoundStatus& status) { return status.Position > 0; }));
    EXPECT_EQ(Player->Status().Length, 3000);
    EXPECT_EQ(Player->Status().What, Stage::Playing);
    Player->Seek(2000);
    EXPECT_TRUE(WaitFor([](const SoundStatus& status) { return status.Position >= 2000; }, 1000));
    Player->Rewind();
    EXPECT_TRUE(WaitFor(Stage::Stopped));
    EXPECT_EQ(Player->Status().Position, 0);
    Player->Seek(2900);
    Player->Play();
    EXPECT_TRUE(WaitFor([](const SoundStatus& status) { return status.Position > 2900; }, 1000));
    EXPECT_TRUE(WaitFor(Stage::Stopped)) << "At its end.";
    EXPECT_EQ(Player->Status().Position, 0);
    Player->Play();
    EXPECT_TRUE(WaitFor(Stage::Playing));
    Player->Stop();
    EXPECT_TRUE(WaitFor(Stage::Empty));
    EXPECT_EQ(Player->Status().Length, 0);
}

TEST_F(SoundTest, AnMp3HasAPositionAndALengthToo) {
    Open(Demo::Mp3(3, 3), u"a.mp3"_s);
    ASSERT_TRUE(WaitFor([](const SoundStatus& status) { return status.Position > 0; }));
    EXPECT_NEAR(static_cast<double>(Player->Status().Length), 3000, 100);
    Player->Seek(1500);
    EXPECT_TRUE(WaitFor([](const SoundStatus& status) { return status.Position > 1400; }, 1000));
    Player->Rewind();
    EXPECT_TRUE(WaitFor(Stage::Stopped));
    EXPECT_EQ(Player->Status().Position, 0);
    Player->Play();
    EXPECT_TRUE(WaitFor(Stage::Playing));
}

TEST_F(SoundTest, WhatIsNoSoundSaysSo) {
    std::mt19937 random(2005);
    QByteArray garbage(20000, '\0');
    std::ranges::generate(garbage, [&] { return static_cast<char>(random() & 0x7F); });
    for (const QString& name : {u"a.mp3"_s, u"a.wav"_s}) {
        for (const QByteArray& bytes : {garbage, QByteArray(), QByteArray("RIFF"), QByteArray(4096, '\0')}) {
            Open(bytes, name);
            EXPECT_TRUE(WaitFor(Stage::Unplayable)) << name.toStdString() << " of " << bytes.size();
        }
    }
    Player->Open(Place.Root() + u"\\none.wav"_s);
    EXPECT_TRUE(WaitFor(Stage::Unplayable));
    Player->Open({});
    EXPECT_TRUE(WaitFor(Stage::Unplayable));
    Player->Play();
    Player->Seek(10);
    Player->Rewind();
    EXPECT_TRUE(WaitFor(Stage::Unplayable));
}

TEST_F(SoundTest, WithoutADeviceItIsSilentAndKnowsIt) {
    qputenv("SDL_AUDIODRIVER", "none of them");
    Open(PcmWav(QByteArray(4000, 'x')));
    EXPECT_TRUE(WaitFor(Stage::NoDevice));
    Player->Play();
    Player->Stop();
    EXPECT_TRUE(WaitFor(Stage::Empty));
    qputenv("SDL_AUDIODRIVER", "dummy");
    Open(PcmWav(QByteArray(400000, 'x')));
    EXPECT_TRUE(WaitFor(Stage::Playing)) << "The next sound finds a device that came later.";
}

TEST_F(SoundTest, RatesThatTheLibraryCannotStandAreRefused) {
    Open(WavOfRate(5, QByteArray(120000, 'x')));
    EXPECT_TRUE(WaitFor(Stage::Unplayable));
    Open(WavOfRate(1, QByteArray(20000, 'x')));
    EXPECT_TRUE(WaitFor(Stage::Unplayable));
    Open(WavOfRate(8000, QByteArray(20000, 'x')));
    EXPECT_TRUE(WaitFor(Stage::Playing));
}

TEST_F(SoundTest, TheClickDoesNotWaitForTheDecoder) {
    Open(PcmWav(QByteArray(400000, 'x')));
    EXPECT_EQ(Player->Status().What, Stage::Opening) << "No child is there yet.";
    EXPECT_TRUE(WaitFor(Stage::Playing));
}

TEST_F(SoundTest, OneThatIsStoppedWhileItIsDecodedDoesNotStart) {
    Open(PcmWav(QByteArray(qsizetype{4} * 44100 * 3, 'x')));
    Player->Rewind();
    EXPECT_EQ(Player->Status().What, Stage::Stopped);
    ASSERT_TRUE(WaitFor([](const SoundStatus& status) { return status.Length == 3000; }));
    EXPECT_EQ(Player->Status().What, Stage::Stopped);
    Player->Play();
    EXPECT_TRUE(WaitFor(Stage::Playing));
}

TEST_F(SoundTest, ANewerOneTakesThePlaceOfOneThatIsDecoded) {
    Open(PcmWav(QByteArray(qsizetype{4} * 44100 * 3, 'x')));
    Open(PcmWav(QByteArray(qsizetype{4} * 44100 * 2, 'x')), u"b.wav"_s);
    ASSERT_TRUE(WaitFor(Stage::Playing));
    EXPECT_EQ(Player->Status().Length, 2000);
}

TEST_F(SoundTest, OneThatIsForgottenWhileItIsDecodedStaysForgotten) {
    Open(PcmWav(QByteArray(400000, 'x')));
    Player->Stop();
    EXPECT_TRUE(WaitFor([this](const SoundStatus&) { return Process->IsReady(); }));
    EXPECT_EQ(Player->Status().What, Stage::Empty);
}

TEST_F(SoundTest, DamagedSoundsAlwaysGetAnAnswer) {
    qputenv("SDL_AUDIODRIVER", "dummy");
    std::mt19937 random(2005);
    const Demo::Tune tune = Demo::MakeTune(7, 0.05);
    const std::vector<QByteArray> sounds{Demo::WavPcm(tune, 16), Demo::WavIma(tune), Demo::WavMs(tune),
                                         Demo::Mp3(3, 0.2)};
    for (int round = 0; round < 10; ++round) {
        for (QByteArray bytes : sounds) {
            if (round % 2 == 0)
                bytes.truncate(static_cast<qsizetype>(random() % static_cast<quint64>(bytes.size())));
            for (int flips = 0; flips < 8 && !bytes.isEmpty(); ++flips)
                bytes[static_cast<qsizetype>(random() % std::min<quint64>(60, static_cast<quint64>(bytes.size())))] =
                    static_cast<char>(random());
            Open(bytes);
            ASSERT_TRUE(WaitFor([](const SoundStatus& status) { return status.What != Stage::Opening; }));
        }
    }
}
