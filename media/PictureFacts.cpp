// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureFacts.h"

#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

quint32 Field(QByteArrayView head, qsizetype offset) {
    return qFromLittleEndian<quint32>(head.data() + offset);
}

QString WithBits(const QString& kind, quint32 bits) {
    return bits > 0 && bits <= 128 ? u"%1 %2 bits"_s.arg(kind).arg(bits) : kind;
}

PictureFacts OfDds(QByteArrayView head) {
    constexpr qsizetype length = 128;
    constexpr qsizetype flagsAt = 8;
    constexpr qsizetype mipmapsAt = 28;
    constexpr qsizetype pixelFlagsAt = 80;
    constexpr qsizetype fourCharactersAt = 84;
    constexpr qsizetype bitsAt = 88;
    constexpr quint32 hasMipmaps = 0x20000;
    constexpr quint32 hasFourCharacters = 0x4;
    constexpr quint32 mostMipmaps = 32; // more than a side of 32 bits can be halved
    if (head.size() < length)
        return {.Format = u"DDS"_s};
    PictureFacts facts;
    facts.Mipmaps = 1;
    if ((Field(head, flagsAt) & hasMipmaps) != 0)
        facts.Mipmaps = static_cast<int>(std::clamp(Field(head, mipmapsAt), 1U, mostMipmaps));
    const QByteArrayView four = head.sliced(fourCharactersAt, 4);
    const auto isPlain = [](char c) { return c > ' ' && c <= '~'; };
    if ((Field(head, pixelFlagsAt) & hasFourCharacters) == 0)
        facts.Format = WithBits(u"DDS"_s, Field(head, bitsAt));
    else
        facts.Format = std::all_of(four.begin(), four.end(), isPlain) ? QString::fromLatin1(four) : u"DDS"_s;
    return facts;
}

QString OfPng(QByteArrayView head) {
    constexpr qsizetype depthAt = 24;
    constexpr qsizetype kindAt = 25;
    if (head.size() <= kindAt)
        return u"PNG"_s;
    const auto depth = static_cast<quint32>(static_cast<uchar>(head[depthAt]));
    switch (head[kindAt]) {
    case 2:
        return WithBits(u"PNG"_s, 3 * depth);
    case 4:
        return WithBits(u"PNG"_s, 2 * depth);
    case 6:
        return WithBits(u"PNG"_s, 4 * depth);
    default:
        return WithBits(u"PNG"_s, depth);
    }
}

QString OfBmp(QByteArrayView head) {
    constexpr qsizetype bitsAt = 28;
    return head.size() < bitsAt + 2 ? u"BMP"_s : WithBits(u"BMP"_s, qFromLittleEndian<quint16>(head.data() + bitsAt));
}

/// A TGA has no mark of its own; its name tells it.
QString OfTga(QByteArrayView head) {
    constexpr qsizetype kindAt = 2;
    constexpr qsizetype bitsAt = 16;
    constexpr char runs = 8;
    if (head.size() <= bitsAt)
        return u"TGA"_s;
    const QString bits = WithBits(u"TGA"_s, static_cast<uchar>(head[bitsAt]));
    return (head[kindAt] & runs) != 0 ? bits + u" RLE"_s : bits;
}

} // namespace

PictureFacts PictureFacts::Of(QByteArrayView head, const QString& name) {
    if (head.startsWith("DDS "))
        return OfDds(head);
    if (head.startsWith("\x89PNG\r\n"))
        return {.Format = OfPng(head)};
    if (head.startsWith("BM"))
        return {.Format = OfBmp(head)};
    if (head.startsWith("GIF8"))
        return {.Format = u"GIF"_s};
    if (head.startsWith("\xFF\xD8\xFF"))
        return {.Format = u"JPEG"_s};
    if (head.startsWith("#?"))
        return {.Format = u"HDR"_s};
    if (head.startsWith("PF\n") || head.startsWith("Pf\n"))
        return {.Format = u"PFM"_s};
    if (name.endsWith(".tga"_L1, Qt::CaseInsensitive))
        return {.Format = OfTga(head)};
    return {};
}
