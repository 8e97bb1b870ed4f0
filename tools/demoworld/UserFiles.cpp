// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/UserFiles.h"

#include "platform/AnsiCodec.h"
#include "tools/demoworld/Bytes.h"
#include "tools/demoworld/Random.h"
#include "tools/demoworld/Texts.h"

#include <QStringList>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Demo {

namespace {

constexpr int HeadSize = 2048;
constexpr int SlotCount = 8;
constexpr int WorldReplayCount = 6;
constexpr int FewestPlayers = 3;
constexpr int ObservingSide = -2;

void AddWide(Bytes& bytes, const QString& text) {
    for (const QChar unit : text)
        bytes.Little16(unit.unicode());
    bytes.Little16(0);
}

QByteArrayView MarkOf(GameIndex game) {
    static constexpr std::array<QByteArrayView, GameCount> marks{"GENREP", "GENREP", "BFMEREPL", "BFME2RPL"};
    return marks.at(static_cast<size_t>(game));
}

/// Numbers of the sides that a game's players can have; -1 is a random one.
const std::vector<int>& SidesOf(GameIndex game) {
    static const std::array<std::vector<int>, GameCount> sides{{
        {-1, 2, 3, 4},
        {-1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13},
        {-1, 3, 4, 5, 6},
        {-1, 3, 5, 6, 7, 8, 9},
    }};
    return sides.at(static_cast<size_t>(game));
}

/// Gives the sides out in turn, so that a game's few replays have them all.
class Sides {
public:
    Sides(GameIndex game, quint64 seed) : sides_(SidesOf(game)), next_(seed % WorldReplayCount * FewestPlayers) {}

    int Next() { return sides_[next_++ % sides_.size()]; }

private:
    const std::vector<int>& sides_;
    std::size_t next_;
};

QString HumanSlot(Random& random, const QString& name, int side, int team) {
    return u"H%1,C0A80%2,8088,TT,%3,%4,-1,%5,1"_s.arg(name)
        .arg(random.Between(100, 199))
        .arg(random.Below(8))
        .arg(side)
        .arg(team);
}

QString ComputerSlot(Random& random, int side, int team) {
    static const QStringList strengths{u"CE"_s, u"CM"_s, u"CH"_s};
    return u"%1,%2,%3,-1,%4"_s.arg(random.Pick(strengths)).arg(random.Below(8)).arg(side).arg(team);
}

/// A map as the game writes it: "03maps/" and its name, or the path of its file.
QString MapEntry(GameIndex game, quint64 seed) {
    if (game != 3)
        return u"03maps/"_s + PlaceName(seed).toLower();
    const QString name = seed % WorldReplayCount == 0 ? u"wor rhun"_s : PlaceName(seed).toLower();
    return u"data/maps/official/map %1/map %1.map"_s.arg(name);
}

void AddChunk(Bytes& bytes, int id, const QByteArray& data) {
    bytes.Little32(id).Little16(1).Little32(data.size()).Raw(data);
}

QByteArray Record(const QString& section, const QString& name, const QString& comments) {
    return AnsiCodec::Encode(u"[%1]\r\nName=%2\r\nComments=%3\r\n"_s.arg(section, name, comments));
}

} // namespace

QString ReplayExtension(GameIndex game) {
    return game == 3 ? u".BfME2Replay"_s : u".rep"_s;
}

QByteArray Replay(GameIndex game, const ReplayFacts& facts, qsizetype bodySize, quint64 seed) {
    constexpr qint64 started = 1131400000;
    Random random(seed);
    const qint64 begin = started + random.Below(9000000);
    Bytes bytes;
    bytes.Raw(MarkOf(game))
        .Little32(begin)
        .Little32(begin + random.Between(300, 3600))
        .Little32(random.Between(9000, 90000));
    bytes.Zeros(10);
    AddWide(bytes, u"Last Replay"_s);
    bytes.Little16(2005).Little16(11).Little16(1).Little16(7).Little16(20).Little16(15).Little16(30).Little16(0);
    AddWide(bytes, u"Version "_s + facts.Version);
    AddWide(bytes, u"Nov 7 2005 12:00:00"_s);
    bytes.Little32(65540).Little32(random.Below(1 << 30)).Little32(0);
    bytes.Raw(AnsiCodec::Encode(u"US=1;M=%1;MC=%2;MS=%3;SD=%4;C=100;SR=0;SC=10000;O=N;S=%5:;"_s.arg(facts.Map)
                                    .arg(QString::number(random.Below(1 << 30), 16).toUpper())
                                    .arg(random.Between(100000, 900000))
                                    .arg(random.Below(1 << 30))
                                    .arg(facts.Slots)));
    bytes.Byte(0);
    const qsizetype end = std::max<qsizetype>(HeadSize, bytes.Size() + bodySize);
    while (bytes.Size() < end)
        bytes.Little32(random.Below(1 << 20)).Little32(random.Between(1000, 1120)).Little32(random.Below(8));
    return bytes.Get();
}

ReplayFacts RandomReplayFacts(GameIndex game, quint64 seed) {
    static const QStringList names{u"Alice"_s,         u"Bertrand"_s, u"Chloé"_s,    u"Dirk [CLAN]"_s,
                                   u"Älvira (late)"_s, u"Farid"_s,    u"{Günter}"_s, u"Jöß <Ü>"_s};
    static const std::array<QString, GameCount> versions{u"1.08"_s, u"1.04"_s, u"1.03"_s, u"1.06"_s};
    Random random(seed);
    Sides sides(game, seed);
    const int humans = random.Between(1, 2), computers = random.Between(FewestPlayers - 1, 3);
    const int firstName = random.Below(static_cast<int>(names.size()));
    const bool teams = seed % 3 != 0;
    const int teamCount = random.Between(2, 4), firstTeam = random.Below(5);
    const auto teamOf = [&](int player) { return teams ? firstTeam + player % teamCount : -1; };
    QStringList slotTexts;
    for (int i = 0; i < humans; ++i)
        slotTexts += HumanSlot(random, names[(firstName + i) % names.size()], sides.Next(), teamOf(i));
    for (int i = 0; i < computers; ++i)
        slotTexts += ComputerSlot(random, sides.Next(), teamOf(humans + i));
    if (seed % 3 != 1)
        slotTexts += u"O"_s;
    if (seed % 3 != 2)
        slotTexts.insert(1, HumanSlot(random, u"Émile the watcher"_s, ObservingSide, -1));
    while (slotTexts.size() < SlotCount)
        slotTexts.insert(random.Between(1, static_cast<int>(slotTexts.size())), u"X"_s);
    return {versions.at(static_cast<size_t>(game)), MapEntry(game, seed), slotTexts.join(u':')};
}

std::vector<NamedReplay> WorldReplays(GameIndex game) {
    std::vector<NamedReplay> replays;
    for (int i = 0; i < WorldReplayCount; ++i) {
        const quint64 seed = static_cast<quint64>(game) * WorldReplayCount + static_cast<quint64>(i);
        const QString name = i == 0 ? u"Last Replay"_s : PlaceName(seed) + u" %1"_s.arg(i);
        replays.push_back({name + ReplayExtension(game), RandomReplayFacts(game, seed), seed});
    }
    return replays;
}

QByteArray Map(int size, quint64 seed) {
    Bytes heights;
    heights.Little32(size).Little32(size).Little32(10).Little32(qint64{size} * size);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            heights.Byte(static_cast<int>(Fractal(x * 4.0 / size, y * 4.0 / size, 4, 4, seed) * 255));
    Random random(seed);
    Bytes starts;
    for (int player = 1; player <= 4; ++player)
        starts.Little32(player).Little32(random.Below(size)).Little32(random.Below(size));
    Bytes bytes;
    bytes.Raw("CkMp").Little32(3);
    bytes.Byte(13).Raw("HeightMapData").Little32(1);
    bytes.Byte(9).Raw("Waypoints").Little32(2);
    bytes.Byte(7).Raw("Scripts").Little32(3);
    AddChunk(bytes, 1, heights.Get());
    AddChunk(bytes, 2, starts.Get());
    AddChunk(bytes, 3, "Script \"Opening\"\r\n  IF ElapsedSeconds > 10\r\n  THEN ShowText MAP:Briefing\r\nEnd\r\n");
    return bytes.Get();
}

QByteArray ModRecord(const QString& name, const QString& comments) {
    return Record(u"Mod"_s, name, comments);
}

QByteArray ShellMapRecord(const QString& name, const QString& comments) {
    return Record(u"Infos"_s, name, comments);
}

} // namespace Demo
