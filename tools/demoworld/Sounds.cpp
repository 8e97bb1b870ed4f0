// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Sounds.h"

#include "tools/demoworld/Bytes.h"
#include "tools/demoworld/Random.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace Demo {

namespace {

qint16 ToSample(double value) {
    return static_cast<qint16>(std::clamp(std::lround(value * 32767), -32768L, 32767L));
}

size_t FrameCount(double seconds, int rate) {
    return static_cast<size_t>(std::lround(seconds * rate));
}

/// Adds a note that dies away, from `start` on.
void AddNote(std::vector<double>& line, size_t start, double frequency, double strength, int rate) {
    const double step = frequency * 2 * std::numbers::pi / rate, decay = 3.0 / rate;
    for (size_t i = start; i < line.size() && i - start < static_cast<size_t>(rate) * 2; ++i) {
        const double t = static_cast<double>(i - start);
        const double wave = std::sin(step * t) + 0.4 * std::sin(2 * step * t) + 0.15 * std::sin(3 * step * t);
        line[i] += wave * strength * std::exp(-decay * t) * std::min(1.0, t / 60);
    }
}

std::vector<double> NoteLine(Random& random, double seconds, int rate) {
    constexpr std::array<double, 7> scale{220.0, 261.63, 293.66, 329.63, 392.0, 440.0, 523.25};
    std::vector<double> line(FrameCount(seconds, rate), 0.0);
    const size_t beat = static_cast<size_t>(rate) / 4;
    for (size_t start = 0; start < line.size(); start += beat) {
        if (start % (beat * 8) == 0)
            AddNote(line, start, random.Pick(scale) / 4, 0.3, rate);
        if (random.Below(4) != 0)
            AddNote(line, start, random.Pick(scale), 0.22, rate);
    }
    return line;
}

} // namespace

Tune MakeTune(quint64 seed, double seconds, int rate, int channels) {
    Random random(seed);
    std::vector<std::vector<double>> lines;
    lines.reserve(static_cast<size_t>(channels));
    for (int channel = 0; channel < channels; ++channel)
        lines.push_back(NoteLine(random, seconds, rate));
    Tune tune{rate, channels, {}};
    tune.Samples.reserve(lines.front().size() * lines.size());
    for (size_t i = 0; i < lines.front().size(); ++i)
        for (const std::vector<double>& line : lines)
            tune.Samples.push_back(ToSample(line[i]));
    return tune;
}

Tune MakeEffect(quint64 seed, double seconds, int rate) {
    Random random(seed);
    Tune tune{rate, 1, {}};
    const size_t count = FrameCount(seconds, rate);
    const int kind = random.Below(3);
    const double pitch = 60 + random.Unit() * 120;
    double smoothed = 0, phase = 0;
    for (size_t i = 0; i < count; ++i) {
        const double t = static_cast<double>(i) / rate, left = 1 - static_cast<double>(i) / static_cast<double>(count);
        smoothed += (random.Unit() * 2 - 1 - smoothed) * (kind == 0 ? 0.08 + 0.5 * left * left : 0.05);
        phase += (kind == 2 ? pitch * 8 * (1 + 0.2 * std::sin(12 * t)) : pitch * (1 + 0.3 * t)) / rate;
        const double saw = 2 * (phase - std::floor(phase)) - 1;
        const double tone = kind == 0 ? smoothed * 1.4 * left : saw * (kind == 1 ? 0.3 : 0.2 * left) + smoothed;
        tune.Samples.push_back(ToSample(tone * 0.7 * std::min(1.0, left * 20)));
    }
    return tune;
}

QByteArray WavPcm(const Tune& tune, int bits) {
    const qint64 sampleBytes = bits / 8, dataSize = static_cast<qint64>(tune.Samples.size()) * sampleBytes;
    const qint64 frameBytes = tune.Channels * sampleBytes;
    Bytes bytes;
    bytes.Reserve(dataSize + 44);
    bytes.Raw("RIFF").Little32(36 + dataSize + dataSize % 2).Raw("WAVEfmt ").Little32(16).Little16(1);
    bytes.Little16(tune.Channels).Little32(tune.Rate).Little32(tune.Rate * frameBytes).Little16(frameBytes);
    bytes.Little16(bits).Raw("data").Little32(dataSize);
    for (const qint16 sample : tune.Samples) {
        if (bits == 8)
            bytes.Byte((sample >> 8) + 128);
        else
            bytes.Little16(sample);
    }
    return bytes.PadTo(2).Get();
}

} // namespace Demo
