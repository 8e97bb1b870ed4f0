// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Headers of picture files, written out.
#pragma once

#include <QByteArray>
#include <QtEndian>

inline void PutLittle32(QByteArray& bytes, qsizetype offset, quint32 value) {
    qToLittleEndian(value, bytes.data() + offset);
}

struct DdsMasks {
    quint32 Bits = 0, Red = 0, Green = 0, Blue = 0, Alpha = 0;
    quint32 Flags = 0; ///< 0: those of colours with the masks
};

/// The 128 bytes before the pixels.
inline QByteArray DdsHeader(quint32 width, quint32 height) {
    QByteArray header("DDS ");
    header.resize(128, '\0');
    PutLittle32(header, 4, 124);
    PutLittle32(header, 8, 0x1007);
    PutLittle32(header, 12, height);
    PutLittle32(header, 16, width);
    PutLittle32(header, 76, 32);
    return header;
}

inline QByteArray CompressedDds(const char* fourCharacters, quint32 width, quint32 height) {
    QByteArray header = DdsHeader(width, height);
    PutLittle32(header, 80, 4);
    header.replace(84, 4, fourCharacters);
    return header;
}

inline QByteArray PlainDds(quint32 width, quint32 height, const DdsMasks& masks) {
    constexpr quint32 colours = 0x40;
    QByteArray header = DdsHeader(width, height);
    PutLittle32(header, 80, masks.Flags != 0 ? masks.Flags : colours | (masks.Alpha != 0 ? 1U : 0U));
    PutLittle32(header, 88, masks.Bits);
    PutLittle32(header, 92, masks.Red);
    PutLittle32(header, 96, masks.Green);
    PutLittle32(header, 100, masks.Blue);
    PutLittle32(header, 104, masks.Alpha);
    return header;
}

/// A TGA of true colours, its pixels left out.
inline QByteArray TgaHeader(quint16 width, quint16 height, int bits) {
    QByteArray header(18, '\0');
    header[2] = 2;
    qToLittleEndian(width, header.data() + 12);
    qToLittleEndian(height, header.data() + 14);
    header[16] = static_cast<char>(bits);
    header[17] = bits == 32 ? 8 : 0;
    return header;
}
