// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What fills the demo world's archives: a stock of pictures, sounds and texts, drawn from again and again.
#pragma once

#include "tools/demoworld/Archives.h"
#include "tools/demoworld/Picture.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

namespace Demo {

using JpegEncoder = std::function<QByteArray(const Picture&)>;

/// One file of the stock.
struct Asset {
    QString Extension; ///< with its dot
    QByteArray Data;
};

struct Stock {
    std::vector<Asset> Textures; ///< DDS in every format, TGA plain and run-length
    std::vector<Asset> Pictures; ///< BMP, PNG and, with an encoder, JPEG
    std::vector<Asset> Icons;    ///< small textures
    std::vector<Asset> Effects;  ///< WAV as PCM and both kinds of ADPCM
    std::vector<Asset> Clicks;   ///< very short effects
    std::vector<Asset> Music;    ///< MP3
    std::vector<Asset> Models;
    std::vector<Asset> Texts;
};

/// `encodeJpeg` may be empty. A small stock is made in a blink; the other is of the games' own sizes.
Stock MakeStock(bool small, const JpegEncoder& encodeJpeg);

enum class Content {
    Definitions,
    Textures,
    Effects,
    Music,
    Models,
    Terrain,
    Windows,
    Maps,
    EnglishStrings,
    FrenchStrings,
    Shaders,
    Everything, ///< nested folders with capitals, blanks, accented letters and forward slashes
};

/// Entries of at least `size` bytes in all and at least `count` of them, under names that are unique whatever their
/// case. The same arguments give the same entries.
std::vector<ArchiveEntry> MakeEntries(const Stock& stock, Content content, qint64 size, int count, quint64 seed);

} // namespace Demo
