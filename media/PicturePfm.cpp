// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureReaders.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>

namespace {

struct Header {
    int Channels; ///< 3 in colour, 1 in grey
    QSize Size;
    bool LittleEndian;
    qsizetype Length; ///< of the header, bytes
};

/// The header is four words: "PF" or "Pf", width, height, and a scale whose sign tells the byte order. One white space
/// follows the last.
std::optional<Header> HeaderOf(const QByteArray& bytes) {
    constexpr qsizetype longest = 128;
    if (!bytes.startsWith("PF") && !bytes.startsWith("Pf"))
        return std::nullopt;
    const QByteArray start = bytes.first(std::min(bytes.size(), longest));
    QByteArrayList words;
    qsizetype at = 0;
    while (words.size() < 4) {
        const qsizetype begin = at;
        while (at < start.size() && QChar::isSpace(static_cast<uchar>(start[at])) == 0)
            ++at;
        if (at == start.size())
            return std::nullopt;
        if (at > begin)
            words += start.sliced(begin, at - begin);
        ++at;
    }
    bool isNumber = false;
    const double scale = words[3].toDouble(&isNumber);
    if (words[0].size() != 2 || !isNumber || scale == 0)
        return std::nullopt;
    return Header{words[0] == "PF" ? 3 : 1, {words[1].toInt(), words[2].toInt()}, scale < 0, at};
}

int Shade(const char* bytes, bool littleEndian) {
    constexpr float screen = 1 / 2.2F;
    const auto bits = littleEndian ? qFromLittleEndian<quint32>(bytes) : qFromBigEndian<quint32>(bytes);
    const auto light = std::bit_cast<float>(bits);
    // A light that is no number is dark.
    return light > 0 ? static_cast<int>(std::lround(std::pow(std::min(light, 1.0F), screen) * 255)) : 0;
}

} // namespace

QSize Pictures::PfmSize(const QByteArray& bytes) {
    const auto header = HeaderOf(bytes);
    return header ? header->Size : QSize();
}

QImage Pictures::ReadPfm(const QByteArray& bytes) {
    constexpr qsizetype sample = 4;
    const auto header = HeaderOf(bytes);
    if (!header || !IsSane(header->Size.width(), header->Size.height()))
        return {};
    const QSize size = header->Size;
    if (bytes.size() - header->Length < sample * header->Channels * size.width() * size.height())
        return {};
    QImage picture(size, QImage::Format_ARGB32);
    const char* at = bytes.constData() + header->Length;
    for (int y = size.height() - 1; y >= 0; --y) { // the lowest line comes first
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x, at += sample * header->Channels) {
            const int red = Shade(at, header->LittleEndian);
            line[x] = header->Channels == 1 ? qRgb(red, red, red)
                                            : qRgb(red, Shade(at + sample, header->LittleEndian),
                                                   Shade(at + 2 * sample, header->LittleEndian));
        }
    }
    return picture;
}
