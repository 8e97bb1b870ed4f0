// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Random.h"

#include <cmath>

namespace Demo {

namespace {

quint64 Mix(quint64 value) {
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ULL;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBULL;
    return value ^ (value >> 31);
}

int Wrapped(int value, int period) {
    const int rest = value % period;
    return rest < 0 ? rest + period : rest;
}

double Lattice(int x, int y, quint64 seed) {
    const quint64 place = (static_cast<quint64>(static_cast<quint32>(x)) << 32) | static_cast<quint32>(y);
    return static_cast<double>(Mix(place + seed * 0x9E3779B97F4A7C15ULL) >> 40) / static_cast<double>(1 << 24);
}

double Smooth(double t) {
    return t * t * (3 - 2 * t);
}

} // namespace

quint64 Random::Next() {
    state_ += 0x9E3779B97F4A7C15ULL;
    return Mix(state_);
}

int Random::Below(int bound) {
    return static_cast<int>((Next() >> 32) * static_cast<quint64>(bound) >> 32);
}

int Random::Between(int low, int high) {
    return low + Below(high - low + 1);
}

double Random::Unit() {
    return static_cast<double>(Next() >> 11) / 9007199254740992.0;
}

double Noise(double x, double y, int period, quint64 seed) {
    const int left = static_cast<int>(std::floor(x)), top = static_cast<int>(std::floor(y));
    const double across = Smooth(x - left), down = Smooth(y - top);
    const int x0 = Wrapped(left, period), x1 = Wrapped(left + 1, period);
    const int y0 = Wrapped(top, period), y1 = Wrapped(top + 1, period);
    const double above = std::lerp(Lattice(x0, y0, seed), Lattice(x1, y0, seed), across);
    const double below = std::lerp(Lattice(x0, y1, seed), Lattice(x1, y1, seed), across);
    return std::lerp(above, below, down);
}

double Fractal(double x, double y, int period, int octaves, quint64 seed) {
    double sum = 0, strength = 1, whole = 0;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += strength * Noise(x, y, period, seed + static_cast<quint64>(octave));
        whole += strength;
        strength /= 2;
        x *= 2;
        y *= 2;
        period *= 2;
    }
    return sum / whole;
}

} // namespace Demo
