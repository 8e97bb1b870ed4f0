// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Contents.h"

#include "tools/demoworld/Random.h"
#include "tools/demoworld/Texts.h"
#include "tools/demoworld/UserFiles.h"

#include <array>

using namespace Qt::StringLiterals;

namespace Demo {

namespace {

/// A name for entry `number` that no other entry has.
QString LeafName(int number, quint64 seed) {
    return QString(UnitName(seed * 131 + static_cast<quint64>(number))).remove(u' ') + u'_' +
           QString::number(number).rightJustified(4, u'0');
}

ArchiveEntry FromStock(const std::vector<Asset>& assets, const QString& folder, int number, quint64 seed) {
    const Asset& asset = assets[(static_cast<size_t>(number) + seed) % assets.size()];
    return {folder + LeafName(number, seed) + asset.Extension, asset.Data};
}

constexpr int english = 0, french = 3; // as string tables number them

ArchiveEntry StringsEntry(int language, int number, quint64 seed) {
    static const QStringList names{u"generals"_s, u"campaign"_s, u"tooltips"_s, u"credits"_s};
    const QString folder = language == english ? u"Data\\English\\"_s : u"Data\\French\\"_s;
    if (number % 4 == 3)
        return {folder + u"Notes_%1.txt"_s.arg(number), ReadMe(u"Notes %1"_s.arg(number))};
    const QString name = names[number % names.size()] + (number < 4 ? QString() : QString::number(number));
    return {folder + name + u".csf"_s, Csf(language, CsfEntries(language, 1200, seed + static_cast<quint64>(number)))};
}

ArchiveEntry MapEntry(int number, quint64 seed) {
    const QString name = u"MD_%1"_s.arg(LeafName(number / 3, seed));
    const QString folder = u"Maps\\"_s + name + u'\\';
    const auto mapSeed = seed + static_cast<quint64>(number / 3);
    if (number % 3 == 0)
        return {folder + name + u".map"_s, Map(64, mapSeed)};
    return number % 3 == 1 ? ArchiveEntry{folder + u"map.ini"_s, MapIni(mapSeed)}
                           : ArchiveEntry{folder + u"map.str"_s, MapStr(PlaceName(mapSeed))};
}

/// One of everything in turn, in folders as people make them over the years.
ArchiveEntry AnyEntry(const Stock& stock, int number, quint64 seed) {
    static const QStringList roots{u"Data\\INI\\Object\\"_s, u"Art\\Textures\\"_s, u"Data\\Audio\\Sounds\\"_s,
                                   u"Art\\W3D\\"_s, u"Data\\Scripts\\"_s};
    static const QStringList folders{
        u"Heavy Armour\\"_s,        u"Éclaireurs\\"_s, u"coast/harbour\\"_s,   u"ÎLES DU SUD\\Forêt\\"_s,
        u"winter\\SNOW fields\\"_s, u"Übung\\"_s,      u"Old/2004/Unused\\"_s, u""_s,
        u"Señales\\Día y noche\\"_s};
    const std::array<const std::vector<Asset>*, 5> kinds{&stock.Texts, &stock.Icons, &stock.Clicks, &stock.Models,
                                                         &stock.Texts};
    const auto root = number % roots.size();
    const auto round = number / roots.size();
    const QString unit = UnitName(seed + static_cast<quint64>(number));
    const QString name = number % 7 == 0 ? unit.toUpper() : unit;
    const QString separator = number % 11 == 0 ? u"/"_s : u" "_s;
    const auto& assets = *kinds.at(static_cast<size_t>(root));
    const Asset& asset = assets[static_cast<size_t>(round) % assets.size()];
    return {roots[root] + folders[round % folders.size()] + name + separator + QString::number(number) +
                asset.Extension,
            asset.Data};
}

ArchiveEntry MakeEntry(const Stock& stock, Content content, int number, quint64 seed) {
    const auto entrySeed = seed + static_cast<quint64>(number);
    switch (content) {
    case Content::Definitions:
        return FromStock(stock.Texts, number % 3 == 0 ? u"Data\\INI\\"_s : u"Data\\INI\\Object\\"_s, number, seed);
    case Content::Textures:
        return number % 12 == 11 ? FromStock(stock.Pictures, u"Art\\Pictures\\"_s, number, seed)
                                 : FromStock(stock.Textures, u"Art\\Textures\\"_s, number, seed);
    case Content::Effects:
        return FromStock(stock.Effects, u"Data\\Audio\\Sounds\\"_s, number, seed);
    case Content::Music:
        return FromStock(stock.Music, u"Data\\Audio\\Tracks\\"_s, number, seed);
    case Content::Models:
        return FromStock(stock.Models, u"Art\\W3D\\"_s, number, seed);
    case Content::Terrain:
        return FromStock(stock.Textures, u"Art\\Terrain\\"_s, number, seed);
    case Content::Windows:
        return {u"Window\\Menus\\"_s + LeafName(number, seed) + u".wnd"_s, WindowText(entrySeed)};
    case Content::Maps:
        return MapEntry(number, seed);
    case Content::EnglishStrings:
        return StringsEntry(english, number, seed);
    case Content::FrenchStrings:
        return StringsEntry(french, number, seed);
    case Content::Shaders:
        return {u"shaders\\"_s + LeafName(number, seed) + u".pso"_s, ShaderText(entrySeed)};
    case Content::Everything:
        break;
    }
    return AnyEntry(stock, number, seed);
}

} // namespace

std::vector<ArchiveEntry> MakeEntries(const Stock& stock, Content content, qint64 size, int count, quint64 seed) {
    std::vector<ArchiveEntry> entries;
    qint64 made = 0;
    for (int number = 0; made < size || number < count; ++number) {
        entries.push_back(MakeEntry(stock, content, number, seed));
        made += entries.back().Data.size();
    }
    return entries;
}

} // namespace Demo
