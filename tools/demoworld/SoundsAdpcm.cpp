// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Sounds.h"

#include "tools/demoworld/Bytes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace Demo {

namespace {

/// What the two kinds of block share: a header of `HeaderBytes` a channel, then four bits a sample.
struct BlockPlan {
    int BlockBytes;
    int FramesInBlock;
};

constexpr int BytesOfBlockAndChannel = 512;

int SampleAt(const Tune& tune, qint64 frame, int channel) {
    const qint64 frames = static_cast<qint64>(tune.Samples.size()) / tune.Channels;
    return frame < frames ? tune.Samples[static_cast<size_t>(frame * tune.Channels + channel)] : 0;
}

qint64 FramesOf(const Tune& tune) {
    return static_cast<qint64>(tune.Samples.size()) / tune.Channels;
}

/// The whole file: `extra` is what the format adds to the format chunk, `blocks` the data.
QByteArray Wav(const Tune& tune, int format, BlockPlan plan, const QByteArray& extra, const QByteArray& blocks) {
    Bytes bytes;
    bytes.Raw("RIFF").Little32(4 + 8 + 18 + extra.size() + 12 + 8 + blocks.size()).Raw("WAVEfmt ");
    bytes.Little32(18 + extra.size()).Little16(format).Little16(tune.Channels).Little32(tune.Rate);
    bytes.Little32(qint64{tune.Rate} * plan.BlockBytes / plan.FramesInBlock).Little16(plan.BlockBytes).Little16(4);
    bytes.Little16(extra.size()).Raw(extra);
    bytes.Raw("fact").Little32(4).Little32(FramesOf(tune)).Raw("data").Little32(blocks.size()).Raw(blocks);
    return bytes.Get();
}

class ImaChannel {
public:
    void StartBlock(Bytes& bytes, int sample) {
        predictor_ = sample;
        bytes.Little16(sample).Byte(index_).Byte(0);
    }

    int Nibble(int sample) {
        constexpr std::array<int, 8> indexSteps{-1, -1, -1, -1, 2, 4, 6, 8};
        const int step = StepAt(index_), difference = sample - predictor_;
        const int size = std::min(7, std::abs(difference) * 4 / step);
        const int change =
            (step >> 3) + (size & 1 ? step >> 2 : 0) + (size & 2 ? step >> 1 : 0) + (size & 4 ? step : 0);
        predictor_ = std::clamp(difference < 0 ? predictor_ - change : predictor_ + change, -32768, 32767);
        index_ = std::clamp(index_ + indexSteps.at(static_cast<size_t>(size)), 0, 88);
        return size | (difference < 0 ? 8 : 0);
    }

private:
    static int StepAt(int index) {
        static constexpr std::array<int, 89> steps{
            7,    8,     9,     10,    11,    12,    13,    14,    16,    17,    19,    21,    23,    25,   28,
            31,   34,    37,    41,    45,    50,    55,    60,    66,    73,    80,    88,    97,    107,  118,
            130,  143,   157,   173,   190,   209,   230,   253,   279,   307,   337,   371,   408,   449,  494,
            544,  598,   658,   724,   796,   876,   963,   1060,  1166,  1282,  1411,  1552,  1707,  1878, 2066,
            2272, 2499,  2749,  3024,  3327,  3660,  4026,  4428,  4871,  5358,  5894,  6484,  7132,  7845, 8630,
            9493, 10442, 11487, 12635, 13899, 15289, 16818, 18500, 20350, 22385, 24623, 27086, 29794, 32767};
        return steps.at(static_cast<size_t>(index));
    }

    int predictor_ = 0;
    int index_ = 0;
};

class MsChannel {
public:
    void StartBlock(int older, int newer) {
        older_ = older;
        newer_ = newer;
    }

    [[nodiscard]] int Delta() const { return delta_; }

    int Nibble(int sample) {
        constexpr std::array<int, 16> adaptation{230, 230, 230, 230, 307, 409, 512, 614,
                                                 768, 614, 512, 409, 307, 230, 230, 230};
        const int predicted = (newer_ * FirstCoefficient + older_ * SecondCoefficient) / 256;
        const double exact = static_cast<double>(sample - predicted) / delta_;
        const int nibble = static_cast<int>(std::clamp(std::lround(exact), -8L, 7L));
        older_ = newer_;
        newer_ = std::clamp(predicted + nibble * delta_, -32768, 32767);
        delta_ = std::max(16, adaptation.at(static_cast<size_t>(nibble & 15)) * delta_ / 256);
        return nibble & 15;
    }

    /// The second of the format's seven predictors: a straight line through the last two samples.
    static constexpr int Predictor = 1, FirstCoefficient = 512, SecondCoefficient = -256;

private:
    int older_ = 0;
    int newer_ = 0;
    int delta_ = 16;
};

} // namespace

QByteArray WavIma(const Tune& tune) {
    const int channels = tune.Channels;
    const BlockPlan plan{BytesOfBlockAndChannel * channels, (BytesOfBlockAndChannel - 4) * 2 + 1};
    std::vector<ImaChannel> coders(static_cast<size_t>(channels));
    Bytes blocks;
    for (qint64 start = 0; start < FramesOf(tune); start += plan.FramesInBlock) {
        for (int channel = 0; channel < channels; ++channel)
            coders[static_cast<size_t>(channel)].StartBlock(blocks, SampleAt(tune, start, channel));
        // Eight samples of a channel, then eight of the next.
        for (qint64 group = start + 1; group < start + plan.FramesInBlock; group += 8) {
            for (int channel = 0; channel < channels; ++channel) {
                ImaChannel& coder = coders[static_cast<size_t>(channel)];
                for (qint64 frame = group; frame < group + 8; frame += 2) {
                    const int low = coder.Nibble(SampleAt(tune, frame, channel));
                    blocks.Byte(low | coder.Nibble(SampleAt(tune, frame + 1, channel)) << 4);
                }
            }
        }
    }
    constexpr int imaFormat = 0x11;
    return Wav(tune, imaFormat, plan, Bytes().Little16(plan.FramesInBlock).Get(), blocks.Get());
}

QByteArray WavMs(const Tune& tune) {
    constexpr std::array<int, 14> coefficients{256, 0, 512, -256, 0, 0, 192, 64, 240, 0, 460, -208, 392, -232};
    const int channels = tune.Channels;
    const BlockPlan plan{BytesOfBlockAndChannel * channels, (BytesOfBlockAndChannel - 7) * 2 + 2};
    std::vector<MsChannel> coders(static_cast<size_t>(channels));
    Bytes blocks;
    for (qint64 start = 0; start < FramesOf(tune); start += plan.FramesInBlock) {
        for (int channel = 0; channel < channels; ++channel)
            blocks.Byte(MsChannel::Predictor);
        for (const MsChannel& coder : coders)
            blocks.Little16(coder.Delta());
        for (const int frame : {1, 0}) // the newer of the first two samples comes first
            for (int channel = 0; channel < channels; ++channel)
                blocks.Little16(SampleAt(tune, start + frame, channel));
        for (int channel = 0; channel < channels; ++channel)
            coders[static_cast<size_t>(channel)].StartBlock(SampleAt(tune, start, channel),
                                                            SampleAt(tune, start + 1, channel));
        // Frame by frame, the earlier sample in a byte's high half.
        int high = -1;
        for (qint64 frame = start + 2; frame < start + plan.FramesInBlock; ++frame) {
            for (int channel = 0; channel < channels; ++channel) {
                const int nibble = coders[static_cast<size_t>(channel)].Nibble(SampleAt(tune, frame, channel));
                if (high >= 0)
                    blocks.Byte(high << 4 | nibble);
                high = high >= 0 ? -1 : nibble;
            }
        }
    }
    Bytes extra;
    extra.Little16(plan.FramesInBlock).Little16(coefficients.size() / 2);
    for (const int coefficient : coefficients)
        extra.Little16(coefficient);
    return Wav(tune, 2, plan, extra.Get(), blocks.Get());
}

} // namespace Demo
