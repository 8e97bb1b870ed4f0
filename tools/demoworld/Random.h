// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Chance and noise that come out the same everywhere for the same seed.
#pragma once

#include <QtGlobal>

namespace Demo {

class Random {
public:
    explicit Random(quint64 seed) : state_(seed) {}

    quint64 Next();

    /// From 0 to `bound` - 1.
    int Below(int bound);

    /// From `low` to `high`, both included.
    int Between(int low, int high);

    /// From 0 to just below 1.
    double Unit();

    /// One item of a list.
    template <typename List>
    const auto& Pick(const List& list) {
        return list[static_cast<decltype(list.size())>(Below(static_cast<int>(list.size())))];
    }

private:
    quint64 state_;
};

/// Smooth noise from 0 to 1 that repeats after `period` units in both directions.
double Noise(double x, double y, int period, quint64 seed);

/// Octaves of noise, each twice as fine and half as strong as the one before; from 0 to 1.
double Fractal(double x, double y, int period, int octaves, quint64 seed);

} // namespace Demo
