// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// WAV files and frames of MPEG sound, byte for byte.
#pragma once

#include <QByteArray>

#include <initializer_list>

inline QByteArray Little(std::initializer_list<int> values, int length) {
    QByteArray bytes;
    for (const int value : values) {
        for (int i = 0; i < length; ++i)
            bytes += static_cast<char>(value >> (8 * i));
    }
    return bytes;
}

inline QByteArray Chunk(const char* name, const QByteArray& bytes) {
    return name + Little({static_cast<int>(bytes.size())}, 4) + bytes;
}

/// A WAV at the device's own rate, in stereo: nothing is turned into anything else on the way.
inline QByteArray Wav(int format, int blockLength, int bits, const QByteArray& extra, int frames,
                      const QByteArray& data) {
    constexpr int rate = 44100;
    const QByteArray fmt =
        Little({format, 2}, 2) + Little({rate, rate * 4}, 4) + Little({blockLength, bits}, 2) + extra;
    const QByteArray body = Chunk("fmt ", fmt) + Chunk("fact", Little({frames}, 4)) + Chunk("data", data);
    return "RIFF" + Little({static_cast<int>(body.size()) + 4}, 4) + "WAVE" + body;
}

inline QByteArray PcmWav(const QByteArray& data) {
    return Wav(1, 4, 16, {}, static_cast<int>(data.size() / 4), data);
}

/// Eight bits a sample, one channel.
inline QByteArray WavOfRate(int rate, const QByteArray& data) {
    const QByteArray fmt = Little({1, 1}, 2) + Little({rate, rate}, 4) + Little({1, 8}, 2);
    const QByteArray body = Chunk("fmt ", fmt) + Chunk("data", data);
    return "RIFF" + Little({static_cast<int>(body.size()) + 4}, 4) + "WAVE" + body;
}

/// MPEG-1 layer III, 32 kbit a second at 44,100 Hz: 144 * 32,000 / 44,100 is 104 bytes and a bit.
inline QByteArray MpegFrame(char filling) {
    return QByteArray("\xFF\xFB\x10\xC4", 4) + QByteArray(100, filling);
}
