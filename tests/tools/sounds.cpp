// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Sounds.h"
#include "tests/support/Printing.h"
#include "tests/tools/Reading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Demo;

namespace {

double Loudness(const std::vector<qint16>& samples) {
    double sum = 0;
    for (const qint16 sample : samples)
        sum += double{1} * sample * sample;
    return std::sqrt(sum / static_cast<double>(samples.size()));
}

/// The loudness of what a decoder gets wrong.
double Error(const std::vector<qint16>& right, std::vector<qint16> decoded) {
    decoded.resize(right.size());
    for (size_t i = 0; i < right.size(); ++i)
        decoded[i] = static_cast<qint16>(right[i] - decoded[i]);
    return Loudness(decoded);
}

int Signed16At(const QByteArray& bytes, qsizetype place) {
    return static_cast<qint16>(Little16At(bytes, place));
}

/// A decoder of one IMA block of one channel, written from the format's own words: every bit of a nibble adds its share
/// of the step.
std::vector<qint16> DecodeImaBlock(const QByteArray& block) {
    constexpr std::array<int, 8> indexSteps{-1, -1, -1, -1, 2, 4, 6, 8};
    std::vector<qint16> samples;
    int value = Signed16At(block, 0), index = ByteAt(block, 2);
    samples.push_back(static_cast<qint16>(value));
    for (qsizetype i = 8; i < block.size() * 2; ++i) {
        const int nibble = ByteAt(block, i / 2) >> (i % 2 * 4) & 15;
        // The table's steps grow by a tenth each; its rounding is small against this test's margin.
        const int step = static_cast<int>(std::clamp(7 * std::pow(1.1, index) + 0.4, 7.0, 32767.0));
        const int change = (2 * (nibble & 7) + 1) * step / 8;
        value = std::clamp(nibble & 8 ? value - change : value + change, -32768, 32767);
        index = std::clamp(index + indexSteps.at(static_cast<size_t>(nibble & 7)), 0, 88);
        samples.push_back(static_cast<qint16>(value));
    }
    return samples;
}

/// A decoder of one Microsoft block of one channel.
std::vector<qint16> DecodeMsBlock(const QByteArray& block, const QByteArray& coefficients) {
    constexpr std::array<int, 16> adaptation{230, 230, 230, 230, 307, 409, 512, 614,
                                             768, 614, 512, 409, 307, 230, 230, 230};
    const int first = Signed16At(coefficients, qsizetype{4} * ByteAt(block, 0));
    const int second = Signed16At(coefficients, qsizetype{4} * ByteAt(block, 0) + 2);
    int delta = Little16At(block, 1), newer = Signed16At(block, 3), older = Signed16At(block, 5);
    std::vector<qint16> samples{static_cast<qint16>(older), static_cast<qint16>(newer)};
    for (qsizetype i = 14; i < block.size() * 2; ++i) {
        const int nibble = ByteAt(block, i / 2) >> (i % 2 == 0 ? 4 : 0) & 15;
        const int error = nibble < 8 ? nibble : nibble - 16;
        const int value = std::clamp((newer * first + older * second) / 256 + error * delta, -32768, 32767);
        older = newer;
        newer = value;
        delta = std::max(16, adaptation.at(static_cast<size_t>(nibble)) * delta / 256);
        samples.push_back(static_cast<qint16>(value));
    }
    return samples;
}

} // namespace

TEST(SampleWav, SixteenBitsStandAsWorkedOutByHand) {
    EXPECT_EQ(WavPcm({22050, 2, {1, -2}}, 16), "RIFF" + Hex("28000000") + "WAVEfmt " +
                                                   Hex("10000000 0100 0200 22560000 88580100 0400 1000") + "data" +
                                                   Hex("04000000 0100 feff"));
}

TEST(SampleWav, EightBitsAreCountedFrom128AndPaddedToAnEvenLength) {
    EXPECT_EQ(WavPcm({8000, 1, {0, 32767, -32768}}, 8), "RIFF" + Hex("28000000") + "WAVEfmt " +
                                                            Hex("10000000 0100 0100 401f0000 401f0000 0100 0800") +
                                                            "data" + Hex("03000000 80 ff 00 00"));
}

TEST(SampleWav, ImaHeadTellsItsBlocks) {
    const QByteArray bytes = WavIma({22050, 2, std::vector<qint16>(4000, 0)});
    EXPECT_EQ(bytes.first(48), "RIFF" + Hex("34080000") + "WAVEfmt " +
                                   Hex("14000000 1100 0200 22560000 b9560000 0004 0400 0200 f903") + "fact" +
                                   Hex("04000000"));
    EXPECT_EQ(bytes.mid(48, 12), Hex("d0070000") + "data" + Hex("00080000"));
    EXPECT_EQ(bytes.size(), 60 + 2 * 1024);
    EXPECT_EQ(Little32At(bytes, 4), bytes.size() - 8);
}

TEST(SampleWav, ImaDecodesToTheTune) {
    const Tune tune = MakeTune(3, 0.2);
    const QByteArray data = WavIma(tune).mid(60);
    std::vector<qint16> decoded;
    for (qsizetype start = 0; start < data.size(); start += 512) {
        const std::vector<qint16> block = DecodeImaBlock(data.mid(start, 512));
        EXPECT_EQ(block.size(), 1017U);
        decoded.insert(decoded.end(), block.begin(), block.end());
    }
    EXPECT_GT(Loudness(tune.Samples), 1000);
    EXPECT_LT(Error(tune.Samples, decoded), Loudness(tune.Samples) / 10);
}

TEST(SampleWav, MsHeadTellsItsBlocksAndPredictors) {
    const QByteArray bytes = WavMs({22050, 1, std::vector<qint16>(1000, 0)});
    EXPECT_EQ(Little16At(bytes, 20), 2);
    EXPECT_EQ(bytes.mid(16, 4), Hex("32000000"));
    EXPECT_EQ(bytes.mid(32, 38), Hex("0002 0400 2000 f403 0700 0001 0000 0002 00ff 0000 0000 c000 4000"
                                     "f000 0000 cc01 30ff 8801 18ff"));
    EXPECT_EQ(bytes.size(), 90 + 512);
    EXPECT_EQ(Little32At(bytes, 4), bytes.size() - 8);
}

TEST(SampleWav, MsDecodesToTheTune) {
    const Tune tune = MakeTune(3, 0.2);
    const QByteArray bytes = WavMs(tune), data = bytes.mid(90);
    std::vector<qint16> decoded;
    for (qsizetype start = 0; start < data.size(); start += 512) {
        const std::vector<qint16> block = DecodeMsBlock(data.mid(start, 512), bytes.mid(42, 28));
        EXPECT_EQ(block.size(), 1012U);
        decoded.insert(decoded.end(), block.begin(), block.end());
    }
    EXPECT_LT(Error(tune.Samples, decoded), Loudness(tune.Samples) / 10);
}

TEST(SampleMp3, FramesFollowEachOtherAtTheirOwnLengths) {
    const QByteArray bytes = Mp3(1, 1);
    qsizetype place = 0;
    int frames = 0;
    for (; place < bytes.size(); ++frames) {
        ASSERT_EQ(bytes.mid(place, 2), Hex("fffb")) << frames;
        const int third = ByteAt(bytes, place + 2);
        ASSERT_EQ(third & 0xFD, 0x90);               // 128 kbit a second at 44,100 Hz
        ASSERT_EQ(ByteAt(bytes, place + 3) >> 6, 3); // mono
        place += 417 + (third >> 1 & 1);
    }
    EXPECT_EQ(place, bytes.size());
    EXPECT_EQ(frames, 39); // 44,100 samples are 38.3 frames of 1,152
    EXPECT_EQ(bytes.size(), 39 * 144 * 128000 / 44100);
}

TEST(SampleMp3, AFramesSideInformationCountsItsBits) {
    const QByteArray frame = Mp3(1, 0.02).first(417);
    // Behind 18 bits of the frame's own: 12 bits for the length, 9 for the pairs of lines, 8 for the gain, and so on.
    const quint64 side = static_cast<quint64>(Big32At(frame, 4)) << 32 | static_cast<quint64>(Big32At(frame, 8));
    const auto pairs = static_cast<int>(side >> 25 & 0x1FF), length = static_cast<int>(side >> 34 & 0xFFF);
    EXPECT_EQ(side >> 46, 0U);
    EXPECT_GT(pairs, 0);
    // One bit for each silent pair; a line that sounds adds one or two, and one for its sign.
    EXPECT_GE(length, pairs + 3 * 2);
    EXPECT_LE(length, pairs + 3 * 3);
    EXPECT_EQ(side >> 17 & 0xFF, 199U);
}

TEST(SampleSounds, TheSameSeedPlaysTheSame) {
    EXPECT_EQ(MakeTune(5, 0.3).Samples, MakeTune(5, 0.3).Samples);
    EXPECT_NE(MakeTune(5, 0.3).Samples, MakeTune(6, 0.3).Samples);
    EXPECT_EQ(MakeEffect(5, 0.3).Samples, MakeEffect(5, 0.3).Samples);
    EXPECT_EQ(MakeEffect(5, 0.5).Samples.size(), 11025U);
    EXPECT_EQ(Mp3(2, 1), Mp3(2, 1));
}
