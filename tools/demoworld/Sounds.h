// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Tunes, and the sound files that the games keep theirs in.
#pragma once

#include <QByteArray>

#include <vector>

namespace Demo {

/// Samples from -32768 to 32767; with two channels left and right take turns.
struct Tune {
    int Rate = 22050;
    int Channels = 1;
    std::vector<qint16> Samples;
};

/// Plucked notes of a five-tone scale over a slow bass.
Tune MakeTune(quint64 seed, double seconds, int rate = 22050, int channels = 1);

/// A short effect: a blast, an engine or a signal, by the seed.
Tune MakeEffect(quint64 seed, double seconds, int rate = 22050);

/// `bits` is 8 or 16.
QByteArray WavPcm(const Tune& tune, int bits);

/// Interactive Multimedia Association's ADPCM, 4 bits a sample.
QByteArray WavIma(const Tune& tune);

/// Microsoft's ADPCM, 4 bits a sample.
QByteArray WavMs(const Tune& tune);

/// MPEG-1 layer III at 44,100 Hz in mono, 128 kbit a second: notes of constant spectral lines.
QByteArray Mp3(quint64 seed, double seconds);

} // namespace Demo
