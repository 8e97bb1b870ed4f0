// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Sounds.h"

#include "tools/demoworld/Bytes.h"
#include "tools/demoworld/Random.h"

#include <array>
#include <bitset>
#include <cmath>

namespace Demo {

namespace {

constexpr int SampleRate = 44100;
constexpr int FrameSamples = 1152;
constexpr int BitRate = 128000;
constexpr int GranulesInFrame = 2;

/// Bits in the order in which they are sent.
class BitWriter {
public:
    void Add(quint32 value, int count) {
        for (int bit = count - 1; bit >= 0; --bit) {
            if (used_ % 8 == 0)
                bytes_.append('\0');
            if (value >> bit & 1)
                bytes_.back() = static_cast<char>(bytes_.back() | 0x80 >> used_ % 8);
            ++used_;
        }
    }

    [[nodiscard]] int Count() const { return used_; }

    [[nodiscard]] const QByteArray& Get() const { return bytes_; }

private:
    QByteArray bytes_;
    int used_ = 0;
};

/// The lines of the spectrum that sound; each of them is one step strong. A line is 38.28 Hz wide.
using Spectrum = std::bitset<576>;

struct Note {
    Spectrum Lines;
    int Gain; ///< in quarters of a doubling
};

/// The sign that makes a line's tone run on from one granule to the next: its phase turns by a quarter each time,
/// forwards for an even line and backwards for an odd one.
bool Negative(int line, qint64 granule) {
    const qint64 turn = line % 2 == 0 ? granule : -granule;
    const qint64 quarter = ((turn % 4) + 4) % 4;
    return quarter == 1 || quarter == 2;
}

/// Pairs of lines in the format's Huffman table 1, each line that sounds followed by its sign.
void AddPairs(BitWriter& bits, const Spectrum& lines, int pairs, qint64 granule) {
    struct Code {
        quint32 Bits;
        int Length;
    };

    constexpr std::array<Code, 4> codes{{{1, 1}, {1, 3}, {1, 2}, {0, 3}}};
    for (int pair = 0; pair < pairs; ++pair) {
        const int line = pair * 2;
        const bool first = lines[static_cast<size_t>(line)], second = lines[static_cast<size_t>(line) + 1];
        const Code code = codes.at((first ? 2U : 0U) + (second ? 1U : 0U));
        bits.Add(code.Bits, code.Length);
        if (first)
            bits.Add(Negative(line, granule) ? 1 : 0, 1);
        if (second)
            bits.Add(Negative(line + 1, granule) ? 1 : 0, 1);
    }
}

int PairsOf(const Spectrum& lines) {
    int pairs = 288;
    while (pairs > 0 && !lines[static_cast<size_t>(pairs) * 2 - 1] && !lines[static_cast<size_t>(pairs) * 2 - 2])
        --pairs;
    return pairs;
}

void AddGranuleInfo(BitWriter& side, int dataBits, int pairs, int gain) {
    side.Add(static_cast<quint32>(dataBits), 12);
    side.Add(static_cast<quint32>(pairs), 9);
    side.Add(static_cast<quint32>(gain), 8);
    side.Add(0, 4); // no scale factors
    side.Add(0, 1); // one long window
    for (int region = 0; region < 3; ++region)
        side.Add(1, 5); // Huffman table 1
    side.Add(7, 4);     // the regions' borders don't matter: all three use the same table
    side.Add(3, 3);
    side.Add(0, 3); // no pre-emphasis, scale factors as they are, first table for single lines
}

QByteArray FrameBytes(const Note& note, qint64 frame, bool padded) {
    BitWriter side, data;
    side.Add(0, 9); // the data follow this very frame's head
    side.Add(0, 5 + 4);
    const int pairs = PairsOf(note.Lines);
    for (int granule = 0; granule < GranulesInFrame; ++granule) {
        const int before = data.Count();
        AddPairs(data, note.Lines, pairs, frame * GranulesInFrame + granule);
        AddGranuleInfo(side, data.Count() - before, pairs, note.Gain);
    }
    const int size = FrameSamples / 8 * BitRate / SampleRate + (padded ? 1 : 0);
    Bytes bytes;
    bytes.Byte(0xFF).Byte(0xFB).Byte(padded ? 0x92 : 0x90).Byte(0xC4).Raw(side.Get()).Raw(data.Get());
    return bytes.Zeros(size - bytes.Size()).Get();
}

/// A note of the tune that fades with its age in frames.
Note NoteAt(int line, int age) {
    constexpr int loudest = 199;
    Note note{{}, loudest - age / 3};
    for (const int partial : {line, line * 2, line / 2})
        note.Lines.set(static_cast<size_t>(partial));
    return note;
}

} // namespace

QByteArray Mp3(quint64 seed, double seconds) {
    constexpr std::array<int, 6> scale{11, 14, 17, 20, 23, 26};
    constexpr int framesOfNote = 12;
    const auto frames = static_cast<qint64>(std::ceil(seconds * SampleRate / FrameSamples));
    Random random(seed);
    QByteArray bytes;
    int line = scale.front();
    qint64 rest = 0;
    for (qint64 frame = 0; frame < frames; ++frame) {
        const int age = static_cast<int>(frame % framesOfNote);
        if (age == 0)
            line = random.Pick(scale);
        // A frame takes 417 and a fraction bytes: one more whenever the fractions have grown to a byte.
        rest += qint64{FrameSamples / 8} * BitRate % SampleRate;
        const bool padded = rest >= SampleRate;
        rest -= padded ? SampleRate : 0;
        bytes += FrameBytes(NoteAt(line, age), frame, padded);
    }
    return bytes;
}

} // namespace Demo
