// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A small whole picture file for each extension that the preview lists.
#pragma once

#include "tests/media/picture_bytes.h"
#include "tools/demoworld/Textures.h"

#include <QByteArray>
#include <QString>

#include <vector>

struct PictureSample {
    QString Name;
    QByteArray Bytes;
};

inline Demo::Picture SamplePicture(int side) {
    Demo::Picture picture(side, side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            picture.At(x, y) = {static_cast<quint8>(x * 255 / side), static_cast<quint8>(y * 255 / side), 99,
                                static_cast<quint8>(x * y)};
    }
    return picture;
}

/// 8 by 8 pixels of the colour C96533.
inline QByteArray SampleJpeg() {
    return QByteArray::fromBase64(
        "/9j/4AAQSkZJRgABAQAAAQABAAD/2wBDAA0JCgsKCA0LCgsODg0PEyAVExISEyccHhcgLikxMC4pLSwzOko+MzZGNywtQFdBRkxO"
        "UlNSMj5aYVpQYEpRUk//2wBDAQ4ODhMREyYVFSZPNS01T09PT09PT09PT09PT09PT09PT09PT09PT09PT09PT09PT09PT09PT09P"
        "T09PT09PT0//wAARCAAIAAgDAREAAhEBAxEB/8QAFAABAAAAAAAAAAAAAAAAAAAAAv/EABQQAQAAAAAAAAAAAAAAAAAAAAD/xAAU"
        "AQEAAAAAAAAAAAAAAAAAAAAF/8QAFBEBAAAAAAAAAAAAAAAAAAAAAP/aAAwDAQACEQMRAD8AIc+//9k=");
}

/// 2 pixels, red and transparent.
inline QByteArray SampleGif() {
    return QByteArray::fromHex("47494638396102000100f00000ff000000000021f904010000010"
                               "02c0000000002000100000202440a003b");
}

/// 2 pixels: full red, and green of half the light.
inline QByteArray SampleHdr() {
    return "#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y 1 +X 2\n" + QByteArray::fromHex("ff000080"
                                                                                     "00800080");
}

/// 2 pixels: full red, and white.
inline QByteArray SamplePfm() {
    return "PF\n2 1\n-1.0\n" + QByteArray::fromHex("0000803f00000000000000000000803f0000803f0000803f");
}

inline std::vector<PictureSample> PictureSamples(int side = 16) {
    const Demo::Picture picture = SamplePicture(side);
    const auto named = [](const char* name, QByteArray bytes) {
        return PictureSample{QString::fromLatin1(name), std::move(bytes)};
    };
    using Demo::DdsFormat;
    using Demo::TgaOrigin;
    return {named("plain.bmp", Demo::Bmp24(picture)),
            named("palette.bmp", Demo::Bmp8(picture)),
            named("alpha.dib", Demo::Bmp32(picture, 124)),
            named("one.dds", Dds(picture, DdsFormat::Dxt1)),
            named("three.dds", Dds(picture, DdsFormat::Dxt3)),
            named("five.dds", Dds(picture, DdsFormat::Dxt5)),
            named("bits.dds", Dds(picture, DdsFormat::Argb4444)),
            named("light.hdr", SampleHdr()),
            named("photo.jpg", SampleJpeg()),
            named("photo.jpeg", SampleJpeg()),
            named("float.pfm", SamplePfm()),
            named("sharp.png", Demo::Png(picture)),
            named("runs.tga", Tga(picture, 32, true, TgaOrigin::BottomLeft)),
            named("plain.tga", Tga(picture, 24, false, TgaOrigin::TopLeft)),
            named("anim.gif", SampleGif())};
}
