// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/World.h"

#include "platform/Paths.h"
#include "tools/demoworld/Art.h"
#include "tools/demoworld/Downloads.h"
#include "tools/demoworld/Sounds.h"
#include "tools/demoworld/Texts.h"
#include "tools/demoworld/Textures.h"
#include "tools/demoworld/UserFiles.h"
#include "tools/demoworld/WorldPlan.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace Demo {

namespace {

/// Raised with the file's name when it can't be written; ends the making of the world.
class WriteFailure : public std::runtime_error {
public:
    explicit WriteFailure(const QString& file) : std::runtime_error("write failure"), File(file) {}

    QString File;
};

class WorldMaker {
public:
    explicit WorldMaker(const WorldOptions& options)
        : options_(options),
          root_(QDir(options.Folder).absolutePath()),
          stock_(MakeStock(options.Small, options.EncodeJpeg)) {}

    void MakeAll() {
        for (GameIndex game = 0; game < GameCount; ++game) {
            MakeArchives(game);
            MakeMods(game);
            MakeShellMaps(game);
            MakeMaps(game);
            MakeReplays(game);
        }
        MakeSamples();
        for (const Download& download : Downloads(options_.Small))
            Write(u"Downloads/"_s + download.Name, download.Bytes);
        Write(u"registry.reg"_s, RegistryText(Paths::FromNative(root_), options_.Language));
    }

private:
    static const GamePlan& PlanOf(GameIndex game) { return GamePlans().at(static_cast<size_t>(game)); }

    static QString InstallFolder(GameIndex game) { return u"Games/"_s + PlanOf(game).InstallFolder + u'/'; }

    static QString UserFolder(GameIndex game) {
        return PlanOf(game).UserParent + u'/' + PlanOf(game).UserFolder + u'/';
    }

    void Open(QFile& file) {
        QDir().mkpath(QFileInfo(file).path());
        if (!file.open(QIODevice::WriteOnly))
            throw WriteFailure(file.fileName());
    }

    void Write(const QString& path, const QByteArray& bytes) {
        QFile file(root_ + u'/' + path);
        Open(file);
        if (file.write(bytes) != bytes.size() || !file.flush())
            throw WriteFailure(file.fileName());
    }

    void WriteBig(const QString& path, int version, const std::vector<ArchiveEntry>& entries) {
        QFile file(root_ + u'/' + path);
        Open(file);
        if (!WriteArchive(file, version, entries) || !file.flush())
            throw WriteFailure(file.fileName());
    }

    void MakeArchives(GameIndex game) {
        quint64 seed = static_cast<quint64>(game) * 1000;
        for (const ArchivePlan& plan : PlanOf(game).Archives) {
            const qint64 size = options_.Small ? 0 : qint64{plan.Kilobytes} * 1024;
            const int smallest = 6;
            WriteBig(InstallFolder(game) + plan.Name + u".big"_s, plan.Version,
                     MakeEntries(stock_, plan.Holds, size, std::max(plan.Count, smallest), seed++));
        }
    }

    void MakeMods(GameIndex game) {
        quint64 seed = static_cast<quint64>(game) * 1000 + 500;
        for (const ModPlan& mod : PlanOf(game).Mods) {
            std::vector<ArchiveEntry> entries =
                MakeEntries(stock_, Content::Definitions, options_.Small ? 0 : 100000, 5, seed);
            for (const Content content : {Content::Textures, Content::Effects, Content::EnglishStrings}) {
                const auto more = MakeEntries(stock_, content, options_.Small ? 0 : 700000, 4, ++seed);
                entries.insert(entries.end(), more.begin(), more.end());
            }
            entries.push_back({u"ReadMe.txt"_s, ReadMe(mod.Title)});
            WriteBig(InstallFolder(game) + mod.Name + u".big"_s, PlanOf(game).ModVersion, entries);
            Write(InstallFolder(game) + mod.Name + u".ini"_s, ModRecord(mod.Title, mod.Comments));
        }
        // One that nothing is told of, and one that is put aside.
        for (const QString& name : {u"Untitled"_s, u"_Disabled"_s})
            WriteBig(InstallFolder(game) + name + u".big"_s, PlanOf(game).ModVersion,
                     {{u"ReadMe.txt"_s, ReadMe(name)}});
    }

    void MakeShellMaps(GameIndex game) {
        static const QStringList comments{u"Slow camera over the river"_s, u"Nuit d'été, pluie légère"_s,
                                          u"Dawn above the quarry"_s};
        for (int number = 1; number <= (game == 0 ? 3 : 2); ++number) {
            const QString folder =
                InstallFolder(game) + u"Maps/QvShellMap"_s + QString::number(number).rightJustified(3, u'0') + u'/';
            const auto seed = static_cast<quint64>(game) * 10 + static_cast<quint64>(number);
            Write(folder + u"QvInfos.ini"_s, ShellMapRecord(PlaceName(seed), comments[number - 1]));
            Write(folder + PlanOf(game).ShellMap + u".map"_s, Map(MapSize(), seed));
            Write(folder + PlanOf(game).ShellMap + u".tga"_s, Preview(seed));
            Write(folder + u"map.ini"_s, MapIni(seed));
        }
    }

    /// A folder with each choice of previews, names of all kinds, and a folder that is no map.
    void MakeMaps(GameIndex game) {
        const QString maps = UserFolder(game) + u"Maps/"_s;
        QStringList names;
        const quint64 first = static_cast<quint64>(game) * 4;
        for (quint64 seed = first; seed < first + 5; ++seed)
            names += PlaceName(seed);
        names += u"[RANK] %1 ZH v2"_s.arg(PlaceName(first + 5));
        names += u"\u0414\u043E\u043B\u0438\u043D\u0430 \u0440\u0435\u043A\u0438"_s;
        for (qsizetype i = 0; i < names.size(); ++i) {
            const quint64 seed = first + static_cast<quint64>(i);
            const QString folder = maps + names[i] + u'/';
            Write(folder + names[i] + u".map"_s, Map(MapSize(), seed));
            if (i != 2 && i != 3)
                Write(folder + names[i] + u".tga"_s, Preview(seed));
            if (i == 1 || i == 3)
                Write(folder + names[i] + u"_pic.tga"_s, Preview(seed + 50));
            Write(folder + u"map.ini"_s, MapIni(seed));
            Write(folder + u"map.str"_s, MapStr(names[i]));
        }
        Write(maps + u"Drafts/Ideas.txt"_s, ReadMe(u"Ideas"_s));
    }

    void MakeReplays(GameIndex game) {
        qsizetype size = 0;
        for (const NamedReplay& replay : WorldReplays(game)) {
            size += options_.Small ? 0 : 20000;
            Write(UserFolder(game) + u"Replays/"_s + replay.FileName, Replay(game, replay.Facts, size, replay.Seed));
        }
    }

    /// One loose file of each kind, to open, add and drop.
    void MakeSamples() {
        const int side = options_.Small ? 32 : 256;
        const double seconds = options_.Small ? 0.3 : 8;
        const Tune tune = MakeTune(7, seconds, 22050, 2);
        const QString samples = u"Samples/"_s;
        Write(samples + u"Land.bmp"_s, Bmp24(Land(side, 3)));
        Write(samples + u"Land 256 colours.bmp"_s, Bmp8(Land(side, 3)));
        Write(samples + u"Tower.bmp"_s, Bmp32(Machine(side, 3), 124));
        Write(samples + u"Sky.png"_s, Png(Sky(side, 1)));
        Write(samples + u"Compass.tga"_s, Tga(Emblem(side, 0), 32, true, TgaOrigin::BottomLeft));
        Write(samples + u"Wall.dds"_s, Dds(Wall(side, 0), DdsFormat::Dxt1));
        Write(samples + u"Ship.dds"_s, Dds(Machine(side, 5), DdsFormat::Dxt5));
        if (options_.EncodeJpeg)
            Write(samples + u"Metal.jpg"_s, options_.EncodeJpeg(Metal(side, 2)));
        Write(samples + u"Tune.wav"_s, WavPcm(tune, 16));
        Write(samples + u"Tune IMA.wav"_s, WavIma(tune));
        Write(samples + u"Tune MS.wav"_s, WavMs(tune));
        Write(samples + u"Tune.mp3"_s, Mp3(7, seconds));
        Write(samples + u"Lisez-moi été.txt"_s, ReadMe(u"Samples"_s));
        Write(samples + u"Strings.csf"_s, Csf(3, CsfEntries(3, 200, 1)));
    }

    [[nodiscard]] int MapSize() const { return options_.Small ? 16 : 128; }

    [[nodiscard]] QByteArray Preview(quint64 seed) const {
        return Tga(MapPreview(options_.Small ? 32 : 128, seed), seed % 2 == 0 ? 24 : 32, seed % 3 == 0,
                   seed % 4 < 2 ? TgaOrigin::TopLeft : TgaOrigin::BottomLeft);
    }

    const WorldOptions& options_;
    QString root_;
    Stock stock_;
};

QString StampFile(const WorldOptions& options) {
    return options.Folder + u"/demoworld.stamp"_s;
}

/// Says what a complete world is like; the number goes up whenever the world changes.
QByteArray Stamp(const WorldOptions& options) {
    return u"demoworld 4\nsmall %1\njpeg %2\nlanguage %3\nfolder %4\n"_s.arg(options.Small)
        .arg(static_cast<bool>(options.EncodeJpeg))
        .arg(options.Language, QDir(options.Folder).absolutePath())
        .toUtf8();
}

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool WriteStamp(const WorldOptions& options, const QByteArray& stamp) {
    QDir().mkpath(options.Folder);
    QFile file(StampFile(options));
    return file.open(QIODevice::WriteOnly) && file.write(stamp) == stamp.size() && file.flush();
}

void RemoveOldWorld(const QString& folder) {
    for (const QString& part : {u"Games"_s, u"Documents"_s, u"Application Data"_s, u"Samples"_s, u"Downloads"_s})
        QDir(folder + u'/' + part).removeRecursively();
    QFile::remove(folder + u"/registry.reg"_s);
}

} // namespace

QString MakeWorld(const WorldOptions& options) {
    const QByteArray stamp = Stamp(options);
    if (ReadAll(StampFile(options)) == stamp)
        return {};
    if (!QFileInfo::exists(StampFile(options)) && QDir(options.Folder).exists() && !QDir(options.Folder).isEmpty())
        return u"%1 holds other files: choose an empty folder."_s.arg(options.Folder);
    // Until the world is complete the stamp is empty: the folder is known as ours, and is made anew the next time.
    if (!WriteStamp(options, {}))
        return u"%1 can't be written."_s.arg(StampFile(options));
    RemoveOldWorld(options.Folder);
    try {
        WorldMaker(options).MakeAll();
    } catch (const WriteFailure& failure) {
        return u"%1 can't be written."_s.arg(failure.File);
    }
    return WriteStamp(options, stamp) ? QString() : u"%1 can't be written."_s.arg(StampFile(options));
}

} // namespace Demo
