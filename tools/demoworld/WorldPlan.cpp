// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/WorldPlan.h"

using namespace Qt::StringLiterals;

namespace Demo {

namespace {

GamePlan Generals() {
    return {u"SOFTWARE\\Electronic Arts\\EA Games\\Generals"_s,
            u"Generals"_s,
            u"Documents"_s,
            u"Command and Conquer Generals Data"_s,
            u"ShellMap1"_s,
            0,
            {{u"INI"_s, 0, Content::Definitions, 2400},
             {u"Textures"_s, 0, Content::Textures, 42000},
             {u"Audio"_s, 0, Content::Effects, 22000},
             {u"AudioEnglish"_s, 0, Content::Effects, 3000},
             {u"Music"_s, 0, Content::Music, 6000},
             {u"Speech"_s, 0, Content::Effects, 4000},
             {u"SpeechFrench"_s, 1, Content::Effects, 2000},
             {u"W3D"_s, 0, Content::Models, 6000},
             {u"Terrain"_s, 0, Content::Terrain, 5000},
             {u"Window"_s, 0, Content::Windows, 400},
             {u"Maps"_s, 0, Content::Maps, 900},
             {u"English"_s, 1, Content::EnglishStrings, 700},
             {u"French"_s, 1, Content::FrenchStrings, 700},
             {u"shaders"_s, 0, Content::Shaders, 12},
             {u"gensec"_s, 0, Content::Shaders, 4},
             {u"Patch"_s, 0, Content::Definitions, 300}},
            {{{u"NorthernLights"_s, u"Northern Lights"_s, u"Snow, aurora and eight new maps"_s},
              {u"Tides.Of.Amber"_s, u"Tides of Amber"_s, u"Un été sur la côte, à deux"_s}}}};
}

GamePlan ZeroHour() {
    return {u"SOFTWARE\\Electronic Arts\\EA Games\\Command and Conquer Generals Zero Hour"_s,
            u"Generals Zero Hour"_s,
            u"Documents"_s,
            u"Command and Conquer Generals Zero Hour Data"_s,
            u"ShellMapMD"_s,
            0,
            {{u"INIZH"_s, 0, Content::Definitions, 3000},
             {u"TexturesZH"_s, 0, Content::Textures, 26000},
             {u"AudioZH"_s, 0, Content::Effects, 9000},
             {u"AudioEnglishZH"_s, 0, Content::Effects, 2000},
             {u"MusicZH"_s, 0, Content::Music, 4000},
             {u"SpeechZH"_s, 0, Content::Effects, 2000},
             {u"W3DZH"_s, 0, Content::Models, 4000},
             {u"TerrainZH"_s, 0, Content::Terrain, 3000},
             {u"WindowZH"_s, 0, Content::Windows, 300},
             {u"MapsZH"_s, 0, Content::Maps, 700},
             {u"EnglishZH"_s, 1, Content::EnglishStrings, 700},
             {u"FrenchZH"_s, 1, Content::FrenchStrings, 700},
             {u"shadersZH"_s, 0, Content::Shaders, 12},
             {u"GensecZH"_s, 0, Content::Shaders, 4},
             {u"PatchZH"_s, 0, Content::Definitions, 300}},
            {{{u"CopperSky"_s, u"Copper Sky"_s, u"Balance for tournament play, v2"_s},
              {u"Grande.Armée"_s, u"Grande Armée"_s, u"Quatre-vingts unités redessinées"_s}}}};
}

GamePlan MiddleEarth() {
    return {u"SOFTWARE\\Electronic Arts\\EA Games\\The Battle for Middle-Earth"_s,
            u"The Battle for Middle-earth"_s,
            u"Application Data"_s,
            u"My Battle for Middle-earth Files"_s,
            u"ShellMap1"_s,
            2,
            {{u"Data"_s, 2, Content::Everything, 16000, 5400},
             {u"INI"_s, 2, Content::Definitions, 3000},
             {u"Textures"_s, 2, Content::Textures, 36000},
             {u"Audio"_s, 2, Content::Effects, 12000},
             {u"AmbientStreams"_s, 2, Content::Music, 4000},
             {u"EnglishAudio"_s, 3, Content::Effects, 3000},
             {u"English"_s, 3, Content::EnglishStrings, 700},
             {u"French"_s, 3, Content::FrenchStrings, 700},
             {u"Libraries"_s, 2, Content::Definitions, 900},
             {u"Maps"_s, 2, Content::Maps, 900},
             {u"Music"_s, 2, Content::Music, 5000},
             {u"W3D"_s, 2, Content::Models, 8000},
             {u"Terrain"_s, 2, Content::Terrain, 4000},
             {u"Window"_s, 2, Content::Windows, 300},
             {u"Shaders"_s, 2, Content::Shaders, 12},
             {u"lotrsec"_s, 2, Content::Shaders, 4},
             {u"Bases"_s, 2, Content::Maps, 300},
             {u"Patch"_s, 3, Content::EnglishStrings, 200}},
            {{{u"LanternRoad"_s, u"Lantern Road"_s, u"A long night march in nine chapters"_s},
              {u"Forêt.Ancienne"_s, u"Forêt ancienne"_s, u"Arbres, brume et rivières"_s}}}};
}

GamePlan MiddleEarthTwo() {
    return {u"SOFTWARE\\Electronic Arts\\Electronic Arts\\The Battle for Middle-earth II"_s,
            u"The Battle for Middle-earth II"_s,
            u"Application Data"_s,
            u"My Battle for Middle-earth II Files"_s,
            u"ShellMap1"_s,
            2,
            {{u"INI"_s, 2, Content::Definitions, 3600},
             {u"Data1"_s, 3, Content::EnglishStrings, 1200},
             {u"Textures0"_s, 2, Content::Textures, 24000},
             {u"Textures1"_s, 2, Content::Textures, 9000},
             {u"Textures2"_s, 2, Content::Textures, 6000},
             {u"Textures3"_s, 2, Content::Textures, 4000},
             {u"Textures4"_s, 2, Content::Terrain, 3000},
             {u"Audio"_s, 2, Content::Effects, 14000},
             {u"AmbientStreams"_s, 2, Content::Music, 5000},
             {u"Libraries"_s, 2, Content::Definitions, 900},
             {u"Maps"_s, 2, Content::Maps, 900},
             {u"Bases"_s, 2, Content::Maps, 300},
             {u"Music"_s, 2, Content::Music, 4000},
             {u"W3D"_s, 2, Content::Models, 7000},
             {u"Terrain"_s, 2, Content::Terrain, 3000},
             {u"Window"_s, 2, Content::Windows, 300},
             {u"Shaders"_s, 2, Content::Shaders, 12},
             {u"lotrsec"_s, 2, Content::Shaders, 4},
             {u"Patch"_s, 3, Content::EnglishStrings, 200}},
            {{{u"HighPastures"_s, u"High Pastures"_s, u"Mountain maps with weather"_s},
              {u"Marées"_s, u"Marées"_s, u"Ports, phares et vieux navires"_s}}}};
}

} // namespace

const std::array<GamePlan, GameCount>& GamePlans() {
    static const std::array<GamePlan, GameCount> plans{Generals(), ZeroHour(), MiddleEarth(), MiddleEarthTwo()};
    return plans;
}

} // namespace Demo
