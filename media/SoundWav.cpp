// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/Pcm.h"
#include "media/SoundReaders.h"

#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

/// The kinds of WAV that the games and their tools write, and their plain relatives.
enum Kind : quint16 {
    LinearPcm = 1,
    MsAdpcm = 2,
    FloatPcm = 3,
    ALaw = 6,
    MuLaw = 7,
    ImaAdpcm = 0x11,
    Extensible = 0xFFFE // a linear kind stands behind
};

quint16 Word(QByteArrayView bytes, qsizetype at) {
    return qFromLittleEndian<quint16>(bytes.data() + at);
}

quint32 Long(QByteArrayView bytes, qsizetype at) {
    return qFromLittleEndian<quint32>(bytes.data() + at);
}

struct Chunks {
    QByteArrayView Format, Fact, Data;
};

/// The first of each kind; one that claims more than the file has ends with the file.
Chunks ChunksOf(QByteArrayView file) {
    constexpr qsizetype riffHeader = 12;
    constexpr qsizetype header = 8;
    Chunks chunks;
    qsizetype at = riffHeader;
    while (file.size() - at >= header && chunks.Data.isEmpty()) {
        const QByteArrayView name = file.sliced(at, 4);
        const auto length = static_cast<qsizetype>(std::min<qint64>(Long(file, at + 4), file.size() - at - header));
        const QByteArrayView bytes = file.sliced(at + header, length);
        if (name == "fmt " && chunks.Format.isEmpty())
            chunks.Format = bytes;
        else if (name == "fact" && chunks.Fact.isEmpty())
            chunks.Fact = bytes;
        else if (name == "data")
            chunks.Data = bytes;
        at += header + length + length % 2;
    }
    return chunks;
}

struct WavFormat {
    explicit WavFormat(QByteArrayView chunk)
        : What(Word(chunk, 0)),
          Channels(Word(chunk, 2)),
          Rate(Long(chunk, 4)),
          Block(Word(chunk, 12)),
          Bits(Word(chunk, 14)) {}

    quint16 What;
    qint64 Channels;
    qint64 Rate;  ///< frames a second
    qint64 Block; ///< bytes of a frame, or of a block of ADPCM
    qint64 Bits;  ///< of a sample
};

/// How many frames so many bytes hold at most; 0 where the numbers contradict each other.
qint64 Frames(const WavFormat& format, qint64 length) {
    const qint64 blockHead = (format.What == ImaAdpcm ? 4 : 7) * format.Channels;
    switch (format.What) {
    case LinearPcm:
    case FloatPcm:
    case ALaw:
    case MuLaw:
        return format.Block > 0 && format.Block == format.Channels * ((format.Bits + 7) / 8) ? length / format.Block
                                                                                             : 0;
    case ImaAdpcm:
    case MsAdpcm: {
        if (format.Block < blockHead || format.Bits != 4 || format.Channels == 0)
            return 0;
        const qint64 inHead = format.What == ImaAdpcm ? 1 : 2;
        const qint64 inBlock = inHead + (format.Block - blockHead) * 2 / format.Channels;
        return (length + format.Block - 1) / format.Block * inBlock;
    }
    default:
        return 0;
    }
}

void Append(QByteArray& wav, const char* name, QByteArrayView chunk) {
    std::array<char, 4> length{};
    qToLittleEndian(static_cast<quint32>(chunk.size()), length.data());
    wav.append(name).append(length.data(), length.size()).append(chunk);
    if (chunk.size() % 2 != 0)
        wav.append('\0');
}

/// A WAV of these chunks alone. It may be large: it is put together in its place.
QByteArray WavOf(const Chunks& chunks) {
    constexpr qsizetype heads = 48;
    constexpr qsizetype lengthAt = 4;
    QByteArray wav("RIFF....WAVE");
    wav.reserve(heads + chunks.Format.size() + chunks.Fact.size() + chunks.Data.size());
    Append(wav, "fmt ", chunks.Format);
    if (!chunks.Fact.isEmpty())
        Append(wav, "fact", chunks.Fact);
    Append(wav, "data", chunks.Data);
    qToLittleEndian(static_cast<quint32>(wav.size() - lengthAt - 4), wav.data() + lengthAt);
    return wav;
}

} // namespace

bool Sounds::IsSane(qint64 frames, qint64 rate, qint64 channels) {
    constexpr qint64 lowestRate = 1000;
    constexpr qint64 highestRate = 384000;
    constexpr qint64 mostChannels = 8;
    if (rate < lowestRate || rate > highestRate || channels < 1 || channels > mostChannels)
        return false;
    // On the way the library keeps every sample as a number of four bytes, at the higher of the two rates.
    constexpr qint64 sample = 4;
    const qint64 most = 2 * Pcm::MostBytes / sample / std::max<qint64>(channels, Pcm::Channels);
    return frames > 0 && frames <= most * rate / std::max<qint64>(rate, Pcm::Rate);
}

QByteArray Sounds::CheckedWav(const QByteArray& file) {
    constexpr qsizetype plainFormat = 16;
    constexpr qsizetype longestFormat = 512;
    constexpr qsizetype innerKindAt = 24;
    if (!file.startsWith("RIFF") || file.mid(8, 4) != "WAVE")
        return {};
    const Chunks chunks = ChunksOf(file);
    if (chunks.Format.size() < plainFormat || chunks.Format.size() > longestFormat)
        return {};
    WavFormat format(chunks.Format);
    if (format.What == Extensible && chunks.Format.size() > innerKindAt + 1) {
        format.What = Word(chunks.Format, innerKindAt);
        if (format.What == ImaAdpcm || format.What == MsAdpcm)
            return {};
    }
    if (!IsSane(Frames(format, chunks.Data.size()), format.Rate, format.Channels))
        return {};
    return WavOf(chunks);
}
