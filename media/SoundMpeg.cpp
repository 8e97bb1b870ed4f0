// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/SoundReaders.h"

#include <QByteArrayView>

#include <array>
#include <optional>

namespace {

constexpr qsizetype HeaderLength = 4;

/// The header of a frame of MPEG sound.
struct Frame {
    qsizetype Length = 0; ///< bytes, with the header
    qint64 Samples = 0;   ///< of a channel
    qint64 Rate = 0;      ///< samples a second
    int Layer = 0;        ///< 1 to 3

    [[nodiscard]] bool IsLike(const Frame& other) const { return Rate == other.Rate && Layer == other.Layer; }
};

/// Kilobits a second by the index of the header, from 1 on.
using BitRates = std::array<int, 14>;

const BitRates& BitRatesOf(bool first, int layer) {
    static constexpr BitRates firstI{32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448};
    static constexpr BitRates firstII{32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384};
    static constexpr BitRates firstIII{32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    static constexpr BitRates laterI{32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256};
    static constexpr BitRates later{8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};
    if (!first)
        return layer == 1 ? laterI : later;
    return layer == 1 ? firstI : layer == 2 ? firstII : firstIII;
}

/// The frame that begins at a place of the file, when one does. Frames of free length are none.
std::optional<Frame> FrameAt(QByteArrayView file, qsizetype at) {
    if (file.size() - at < HeaderLength)
        return {};
    const auto byte = [&](qsizetype i) { return static_cast<unsigned>(static_cast<unsigned char>(file[at + i])); };
    const unsigned version = byte(1) >> 3 & 3;
    const unsigned layer = byte(1) >> 1 & 3;
    const unsigned bitRate = byte(2) >> 4;
    const unsigned rate = byte(2) >> 2 & 3;
    const bool padded = (byte(2) & 2) != 0;
    if (byte(0) != 0xFF || (byte(1) & 0xE0) != 0xE0 || version == 1 || layer == 0 || bitRate == 0 || bitRate == 15 ||
        rate == 3)
        return {};
    constexpr std::array<int, 3> rates{44100, 48000, 32000};
    const bool first = version == 3;
    Frame frame;
    frame.Layer = static_cast<int>(4 - layer);
    frame.Rate = rates.at(rate) / (first ? 1 : version == 2 ? 2 : 4);
    frame.Samples = frame.Layer == 1 ? 384 : frame.Layer == 3 && !first ? 576 : 1152;
    const qint64 bitsASecond = qint64{1000} * BitRatesOf(first, frame.Layer).at(bitRate - 1);
    const qint64 slot = frame.Layer == 1 ? 4 : 1;
    frame.Length =
        static_cast<qsizetype>((frame.Samples / 8 / slot * bitsASecond / frame.Rate + (padded ? 1 : 0)) * slot);
    return frame;
}

/// Where the sound may begin: behind a tag at the start.
qsizetype BehindTag(QByteArrayView file) {
    constexpr qsizetype header = 10;
    if (!file.startsWith("ID3") || file.size() < header)
        return 0;
    qsizetype length = 0;
    for (qsizetype i = 6; i < header; ++i)
        length = length << 7 | (file[i] & 0x7F);
    return header + length <= file.size() ? header + length : 0;
}

} // namespace

QByteArray Sounds::CheckedMpeg(const QByteArray& file) {
    constexpr qint64 channels = 2;
    QByteArray frames;
    std::optional<Frame> kind;
    qint64 samples = 0;
    bool inStep = false; // the frame before ended here
    qsizetype at = BehindTag(file);
    while (file.size() - at >= HeaderLength) {
        const std::optional<Frame> frame = FrameAt(file, at);
        bool taken = frame && frame->Length <= file.size() - at && (!kind || frame->IsLike(*kind));
        if (taken && !inStep) {
            // Out of step any bytes may look like a header: another one must stand behind, or the end.
            const qsizetype behind = at + frame->Length;
            const std::optional<Frame> next = FrameAt(file, behind);
            taken = behind == file.size() || (next && next->IsLike(*frame));
        }
        inStep = taken;
        if (!taken) {
            ++at;
            continue;
        }
        kind = frame;
        samples += frame->Samples;
        frames.append(QByteArrayView(file).sliced(at, frame->Length));
        at += frame->Length;
    }
    return kind && IsSane(samples, kind->Rate, channels) ? frames : QByteArray();
}

QByteArray Sounds::Checked(const QByteArray& file) {
    return file.startsWith("RIFF") ? CheckedWav(file) : CheckedMpeg(file);
}
