// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Contents.h"

#include "tools/demoworld/Art.h"
#include "tools/demoworld/Bytes.h"
#include "tools/demoworld/Random.h"
#include "tools/demoworld/Sounds.h"
#include "tools/demoworld/Texts.h"
#include "tools/demoworld/Textures.h"

#include <array>

using namespace Qt::StringLiterals;

namespace Demo {

namespace {

Asset TextureOf(int size, quint64 seed) {
    constexpr std::array formats{DdsFormat::Dxt5,     DdsFormat::Dxt1,     DdsFormat::Dxt3,
                                 DdsFormat::Dxt1,     DdsFormat::Argb8888, DdsFormat::Rgb888,
                                 DdsFormat::Argb1555, DdsFormat::Rgb565,   DdsFormat::Argb4444};
    constexpr quint64 tgaKinds = 3;
    const Picture picture = AnyPicture(size, seed);
    const quint64 kind = seed % (formats.size() + tgaKinds);
    if (kind < formats.size())
        return {u".dds"_s, Dds(picture, formats.at(kind))};
    const bool plain = kind == formats.size(), opaque = kind == formats.size() + 1;
    return {u".tga"_s,
            Tga(picture, opaque ? 24 : 32, !plain, seed % 2 == 0 ? TgaOrigin::TopLeft : TgaOrigin::BottomLeft)};
}

Asset PictureOf(int size, quint64 seed, const JpegEncoder& encodeJpeg) {
    const Picture picture = AnyPicture(size, seed);
    switch (seed % (encodeJpeg ? 6 : 5)) {
    case 0:
        return {u".bmp"_s, Bmp24(picture)};
    case 1:
        return {u".png"_s, Png(picture)};
    case 2:
        return {u".bmp"_s, Bmp8(picture)};
    case 3:
        return {u".bmp"_s, Bmp32(picture, 124)};
    case 4:
        return {u".bmp"_s, Bmp32(picture, 108)};
    default:
        return {u".jpg"_s, encodeJpeg(picture)};
    }
}

Asset EffectOf(double seconds, quint64 seed) {
    const Tune tune = seed % 2 == 0 ? MakeEffect(seed, seconds) : MakeTune(seed, seconds, 22050, seed % 3 == 0 ? 2 : 1);
    switch (seed % 4) {
    case 0:
        return {u".wav"_s, WavPcm(tune, 16)};
    case 1:
        return {u".wav"_s, WavIma(tune)};
    case 2:
        return {u".wav"_s, WavPcm(tune, 8)};
    default:
        return {u".wav"_s, WavMs(tune)};
    }
}

/// A mesh as chunks: a head with its name, then places and directions.
Asset ModelOf(int vertices, quint64 seed) {
    Random random(seed);
    Bytes numbers;
    for (int i = 0; i < vertices * 6; ++i)
        numbers.Little32(0x3F000000 + random.Below(0xFFFFFF));
    const QByteArray name = UnitName(seed).toLatin1().leftJustified(32, '\0', true);
    Bytes bytes;
    bytes.Little32(0x1F).Little32(8 + name.size() + 8 + numbers.Size());
    bytes.Little32(1).Little32(name.size()).Raw(name).Little32(2).Little32(numbers.Size()).Raw(numbers.Get());
    return {u".w3d"_s, bytes.Get()};
}

} // namespace

Stock MakeStock(bool small, const JpegEncoder& encodeJpeg) {
    const auto many = [](quint64 count, auto make) {
        std::vector<Asset> assets;
        for (quint64 seed = 0; seed < count; ++seed)
            assets.push_back(make(seed));
        return assets;
    };
    const int side = small ? 32 : 256;
    Stock stock;
    stock.Textures = many(small ? 12 : 84, [&](quint64 i) { return TextureOf(i % 9 == 4 ? side / 2 : side, i); });
    stock.Pictures = many(small ? 6 : 18, [&](quint64 i) { return PictureOf(side, i, encodeJpeg); });
    stock.Icons = many(small ? 12 : 48, [&](quint64 i) { return TextureOf(small ? 16 : 64, i); });
    stock.Clicks = many(small ? 4 : 16, [&](quint64 i) { return EffectOf(small ? 0.02 : 0.2, i); });
    stock.Effects = many(small ? 4 : 32,
                         [&](quint64 i) { return EffectOf(small ? 0.2 : 1.0 + static_cast<double>(i % 5) * 0.7, i); });
    stock.Music = many(small ? 1 : 6, [&](quint64 i) { return Asset{u".mp3"_s, Mp3(i, small ? 1 : 45)}; });
    stock.Models =
        many(small ? 4 : 40, [&](quint64 i) { return ModelOf(small ? 8 : 80 + static_cast<int>(i) * 20, i); });
    stock.Texts = many(small ? 6 : 60, [&](quint64 i) {
        return Asset{u".ini"_s, IniText(i, small ? 300 : 600 + static_cast<qsizetype>(i * i) * 12)};
    });
    return stock;
}

} // namespace Demo
