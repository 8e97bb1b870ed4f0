// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What of a sound file a library may see.

#include "media/SoundReaders.h"
#include "tests/media/sound_bytes.h"
#include "tools/demoworld/Sounds.h"

#include <gtest/gtest.h>

namespace {

QByteArray Riff(const QByteArray& chunks) {
    return "RIFF" + Little({static_cast<int>(chunks.size()) + 4}, 4) + "WAVE" + chunks;
}

/// The chunk of a linear kind; bytes of a frame and bits of a sample need not go together.
QByteArray Format(int kind, int channels, int rate, int block, int bits) {
    return Chunk("fmt ", Little({kind, channels}, 2) + Little({rate, rate * block}, 4) + Little({block, bits}, 2));
}

const QByteArray Plain = Format(1, 2, 44100, 4, 16);
const QByteArray Data = Chunk("data", "12345678");

bool IsRefused(const QByteArray& format, const QByteArray& data = Data) {
    return Sounds::Checked(Riff(format + data)).isEmpty();
}

} // namespace

TEST(CheckedWav, KeepsWhatTheLibraryNeedsAndNothingElse) {
    const QByteArray wav = Riff(Chunk("LIST", "abcd") + Plain + Chunk("JUNK", "") + Chunk("fact", "0002") +
                                Chunk("fmt ", "another one that claims otherwise.") + Data + Chunk("data", "more")) +
                           "behind";
    EXPECT_EQ(Sounds::Checked(wav), Riff(Plain + Chunk("fact", "0002") + Data));
}

TEST(CheckedWav, ADataChunkThatClaimsMoreThanTheFileHasEndsWithIt) {
    EXPECT_EQ(Sounds::Checked(Riff(Plain + "data" + Little({-1}, 4) + "12345678")), Riff(Plain + Data));
}

TEST(CheckedWav, EveryKindThatTheGamesUsePasses) {
    const Demo::Tune tune = Demo::MakeTune(7, 0.2);
    for (const QByteArray& wav : {Demo::WavPcm(tune, 8), Demo::WavPcm(tune, 16), Demo::WavIma(tune), Demo::WavMs(tune)})
        EXPECT_EQ(Sounds::Checked(wav), wav);
    EXPECT_FALSE(IsRefused(Format(3, 2, 44100, 8, 32))) << "Numbers with a point.";
    EXPECT_FALSE(IsRefused(Format(1, 1, 48000, 3, 24)));
    EXPECT_FALSE(IsRefused(Format(7, 1, 8000, 1, 8)));
    const QByteArray inner = Little({0xFFFE, 1}, 2) + Little({44100, 88200}, 4) + Little({2, 16, 22, 16}, 2) +
                             Little({4}, 4) + Little({1, 0}, 2) + QByteArray(12, 'g');
    EXPECT_FALSE(IsRefused(Chunk("fmt ", inner))) << "Plain samples behind the kind that can be extended.";
}

TEST(CheckedWav, RatesBeyondReasonAreRefused) {
    for (const int rate : {0, 1, 5, 999, 384001, -1})
        EXPECT_TRUE(IsRefused(Format(1, 2, rate, 4, 16))) << rate;
    for (const int rate : {1000, 8000, 384000})
        EXPECT_FALSE(IsRefused(Format(1, 2, rate, 4, 16))) << rate;
}

TEST(CheckedWav, NumbersThatContradictEachOtherAreRefused) {
    EXPECT_TRUE(IsRefused(Format(1, 0, 44100, 4, 16)));
    EXPECT_TRUE(IsRefused(Format(1, 9, 44100, 18, 16)));
    EXPECT_TRUE(IsRefused(Format(1, 2, 44100, 2, 16)));
    EXPECT_TRUE(IsRefused(Format(1, 2, 44100, 0, 0)));
    EXPECT_TRUE(IsRefused(Format(0x55, 2, 44100, 4, 16))) << "Not a kind that is read.";
    EXPECT_TRUE(IsRefused(Format(0x11, 2, 44100, 7, 4))) << "A block that does not hold its head.";
    EXPECT_TRUE(IsRefused(Format(2, 2, 44100, 13, 4)));
    EXPECT_TRUE(IsRefused(Format(0x11, 2, 44100, 16, 16)));
    EXPECT_TRUE(IsRefused(Plain, Chunk("data", "123"))) << "Not one frame.";
    EXPECT_TRUE(IsRefused(Plain, {}));
    EXPECT_TRUE(IsRefused({}));
    EXPECT_TRUE(IsRefused(Chunk("fmt ", "too short")));
}

TEST(CheckedWav, DecodedLengthsBeyondReasonAreRefused) {
    // Half a million bytes at the lowest rate are eight minutes, and become 84 millions; sixteen minutes are too long.
    EXPECT_FALSE(IsRefused(Format(1, 1, 1000, 1, 8), Chunk("data", QByteArray(480000, 'x'))));
    EXPECT_TRUE(IsRefused(Format(1, 1, 1000, 1, 8), Chunk("data", QByteArray(960000, 'x'))));
    EXPECT_TRUE(Sounds::IsSane(qint64{760} * 44100, 44100, 2));
    EXPECT_FALSE(Sounds::IsSane(qint64{762} * 44100, 44100, 2));
    EXPECT_FALSE(Sounds::IsSane(qint64{762} * 8000, 8000, 1));
    EXPECT_FALSE(Sounds::IsSane(qint64{200} * 44100, 44100, 8));
    EXPECT_FALSE(Sounds::IsSane(qint64{1} << 62, 384000, 8));
}

TEST(CheckedWav, CutOffAtEveryByteIsWholeOrRefused) {
    const QByteArray wav = Riff(Chunk("LIST", "abcd") + Plain + Chunk("fact", "0002") + Data);
    for (qsizetype length = 0; length < wav.size(); ++length) {
        const QByteArray checked = Sounds::Checked(wav.first(length));
        EXPECT_EQ(checked.isEmpty(), length < wav.size() - 4) << length;
        EXPECT_EQ(Sounds::Checked(checked), checked);
    }
}

TEST(CheckedMpeg, KeepsTheFramesAndNothingElse) {
    const QByteArray tag = QByteArray("ID3\x03\0\0\0\0\x01\x02", 10) + QByteArray(130, '\xFF');
    const QByteArray frames = MpegFrame('a') + MpegFrame('b') + MpegFrame('c');
    EXPECT_EQ(Sounds::Checked(frames), frames);
    EXPECT_EQ(Sounds::Checked(tag + frames + "TAG and a title"), frames);
    EXPECT_EQ(Sounds::Checked(QByteArray(50, '\0') + frames), frames);
    EXPECT_EQ(Sounds::Checked(MpegFrame('a') + MpegFrame('b') + "noise" + MpegFrame('c')), frames);
    EXPECT_EQ(Sounds::Checked(frames.chopped(1)), MpegFrame('a') + MpegFrame('b')) << "The last one is cut off.";
}

TEST(CheckedMpeg, OneHeaderAmongOtherBytesIsNoSound) {
    EXPECT_EQ(Sounds::Checked("text " + MpegFrame('a') + " more text"), "");
    EXPECT_EQ(Sounds::Checked(QByteArray(4096, '\xFF')), "");
    EXPECT_EQ(Sounds::Checked({}), "");
    EXPECT_EQ(Sounds::Checked("ID3"), "");
}

TEST(CheckedMpeg, FramesOfAnotherRateInBetweenAreLeftOut) {
    // The same at 48,000 Hz: 144 * 32,000 / 48,000 is 96 bytes.
    const QByteArray other = QByteArray("\xFF\xFB\x14\xC4", 4) + QByteArray(92, 'o');
    EXPECT_EQ(Sounds::Checked(MpegFrame('a') + MpegFrame('b') + other + other + MpegFrame('c')),
              MpegFrame('a') + MpegFrame('b') + MpegFrame('c'));
}

TEST(CheckedMpeg, HoursOfSoundAreRefused) {
    // Layer III of the later versions at 8 kbit a second and 8,000 Hz: 72 bytes hold 576 samples.
    const QByteArray frame = QByteArray("\xFF\xE3\x18\xC4", 4) + QByteArray(68, 'x');
    EXPECT_EQ(Sounds::Checked(frame.repeated(100)), frame.repeated(100));
    EXPECT_EQ(Sounds::Checked(frame.repeated(11000)), "") << "760,000 bytes of 13 minutes.";
}
