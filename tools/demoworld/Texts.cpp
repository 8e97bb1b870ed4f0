// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Texts.h"

#include "platform/AnsiCodec.h"
#include "tools/demoworld/Bytes.h"
#include "tools/demoworld/Random.h"

#include <array>

using namespace Qt::StringLiterals;

namespace Demo {

namespace {

const QStringList& Tones() {
    static const QStringList tones{u"Amber"_s,  u"Iron"_s,  u"Silver"_s,  u"Crimson"_s, u"North"_s,
                                   u"Copper"_s, u"Storm"_s, u"Granite"_s, u"Azure"_s,   u"Winter"_s};
    return tones;
}

const QStringList& Trades() {
    static const QStringList trades{u"Lancer"_s, u"Hauler"_s, u"Warden"_s, u"Sapper"_s, u"Falcon"_s,
                                    u"Scout"_s,  u"Mortar"_s, u"Galley"_s, u"Beacon"_s, u"Rampart"_s};
    return trades;
}

QString Joined(const QStringList& lines) {
    return lines.join(u"\r\n"_s) + u"\r\n"_s;
}

QString Definition(Random& random) {
    const QString name = random.Pick(Tones()) + random.Pick(Trades());
    const int health = random.Between(8, 90) * 20, cost = random.Between(6, 60) * 50;
    return Joined({
        u"; ------------------------------------------------------------"_s,
        u"Object %1%2"_s.arg(name).arg(random.Between(1, 9)),
        u"  SelectPortrait     = %1_L"_s.arg(name),
        u"  ButtonImage        = %1"_s.arg(name),
        u"  DisplayName        = OBJECT:%1"_s.arg(name),
        u"  EditorSorting      = VEHICLE"_s,
        u"  BuildCost          = %1"_s.arg(cost),
        u"  BuildTime          = %1.0"_s.arg(random.Between(4, 40)),
        u"  VisionRange        = %1"_s.arg(random.Between(10, 40) * 10),
        u"  Draw = ModelDraw ModuleTag_01"_s,
        u"    ConditionState = NONE"_s,
        u"      Model = %1_%2"_s.arg(name.toLower()).arg(random.Between(1, 9)),
        u"      Turret = Turret01"_s,
        u"    End"_s,
        u"  End"_s,
        u"  Body = ActiveBody ModuleTag_02"_s,
        u"    MaxHealth     = %1.0"_s.arg(health),
        u"    InitialHealth = %1.0"_s.arg(health),
        u"  End"_s,
        u"  Geometry = BOX"_s,
        u"  GeometryMajorRadius = %1.0"_s.arg(random.Between(6, 30)),
        u"End"_s,
        QString(),
    });
}

} // namespace

QString UnitName(quint64 seed) {
    Random random(seed);
    return random.Pick(Tones()) + u' ' + random.Pick(Trades());
}

QString PlaceName(quint64 seed) {
    static const QStringList places{
        u"Amber Delta"_s,       u"Frozen Causeway"_s,  u"Vallée du Cèdre"_s, u"Twin Quarries"_s,
        u"Salt Meridian"_s,     u"Col des Brumes"_s,   u"Copper Basin"_s,    u"Lighthouse Row"_s,
        u"Übergang am Fluss"_s, u"The Long Terrace"_s, u"Île aux Pins"_s,    u"Harvest Crossing"_s,
        u"Peña Roja"_s,         u"Windmill Steppe"_s,  u"Old Orchard"_s,     u"Glass Narrows"_s};
    return places[static_cast<qsizetype>(seed % static_cast<quint64>(places.size()))];
}

QByteArray IniText(quint64 seed, qsizetype size) {
    Random random(seed);
    QString text = Joined({u"; Definitions, set %1"_s.arg(seed), QString()});
    while (text.size() < size)
        text += Definition(random);
    return AnsiCodec::Encode(text);
}

QByteArray WindowText(quint64 seed) {
    Random random(seed);
    QStringList lines{u"FILE_VERSION = 2;"_s, u"STARTLAYOUTBLOCK"_s, u"ENDLAYOUTBLOCK"_s};
    for (int i = 0; i < 12; ++i) {
        const int left = random.Below(700), top = random.Below(500);
        lines += {
            u"WINDOW"_s,
            u"  WINDOWTYPE = PUSHBUTTON;"_s,
            u"  SCREENRECT = UPPERLEFT: %1 %2, BOTTOMRIGHT: %3 %4;"_s.arg(left).arg(top).arg(left + 96).arg(top + 28),
            u"  NAME = \"Panel:Button%1\";"_s.arg(i),
            u"  TEXT = \"GUI:Button%1\";"_s.arg(i),
            u"END"_s,
        };
    }
    return AnsiCodec::Encode(Joined(lines));
}

QByteArray ShaderText(quint64 seed) {
    return AnsiCodec::Encode(Joined({
        u"; pixel shader, set %1"_s.arg(seed),
        u"ps.1.1"_s,
        u"def c0, 0.%1, 0.5, 0.25, 1.0"_s.arg(seed % 9 + 1),
        u"tex t0"_s,
        u"tex t1"_s,
        u"mul r0, t0, v0"_s,
        u"mad r0.rgb, t1, c0, r0"_s,
    }));
}

QByteArray MapIni(quint64 seed) {
    Random random(seed);
    return AnsiCodec::Encode(Joined({
        u"GameData"_s,
        u"  MaxCameraHeight = %1.0"_s.arg(random.Between(300, 420)),
        u"  DrawEntireTerrain = Yes"_s,
        u"End"_s,
        u"Weather"_s,
        random.Below(2) == 0 ? u"  SnowEnabled = Yes"_s : u"  SnowEnabled = No"_s,
        u"End"_s,
    }));
}

QByteArray MapStr(const QString& mapName) {
    return AnsiCodec::Encode(Joined({
        u"MAP:Title"_s,
        u"\"%1\""_s.arg(mapName),
        u"END"_s,
        QString(),
        u"MAP:Briefing"_s,
        u"\"Hold the crossing until the convoy has passed.\\nDéfendez le passage.\""_s,
        u"END"_s,
    }));
}

QByteArray ReadMe(const QString& title) {
    return AnsiCodec::Encode(Joined({
        title,
        QString(title.size(), u'='),
        QString(),
        u"A sample made for the demo world: nothing in here comes from a game."_s,
        u"Un exemple créé pour le monde de démonstration : été, forêt, maïs, où, ça."_s,
    }));
}

QByteArray Csf(int language, const std::vector<CsfEntry>& entries) {
    const auto count = static_cast<qint64>(entries.size());
    Bytes bytes;
    bytes.Raw(" FSC").Little32(3).Little32(count).Little32(count).Little32(0).Little32(language);
    for (const CsfEntry& entry : entries) {
        const QByteArray name = AnsiCodec::Encode(entry.Name);
        bytes.Raw(" LBL").Little32(1).Little32(name.size()).Raw(name);
        bytes.Raw(" RTS").Little32(entry.Value.size());
        for (const QChar unit : entry.Value)
            bytes.Little16(0xFFFF - unit.unicode());
    }
    return bytes.Get();
}

std::vector<CsfEntry> CsfEntries(int language, int count, quint64 seed) {
    constexpr int french = 3;
    static const QStringList english{u"%1 ready"_s, u"Build %1\nCosts 400"_s, u"%1: under attack"_s, u"Café at %1"_s};
    static const QStringList inFrench{u"%1 prêt"_s, u"Construire : %1\nCoût : 400"_s, u"%1 attaqué !"_s,
                                      u"Relâchez « %1 »\nà l'été"_s};
    static const QStringList categories{u"GUI"_s, u"OBJECT"_s, u"CONTROLBAR"_s, u"MAP"_s, u"TOOLTIP"_s, u"DIALOG"_s};
    Random random(seed);
    std::vector<CsfEntry> entries;
    for (int i = 0; i < count; ++i) {
        const QString unit = random.Pick(Tones()) + u' ' + random.Pick(Trades());
        const QString label = random.Pick(categories) + u':' + QString(unit).remove(u' ') + QString::number(i);
        entries.push_back({label, random.Pick(language == french ? inFrench : english).arg(unit)});
    }
    return entries;
}

} // namespace Demo
