// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Downloads.h"

#include "tools/demoworld/Archives.h"
#include "tools/demoworld/Art.h"
#include "tools/demoworld/Texts.h"
#include "tools/demoworld/Textures.h"
#include "tools/demoworld/UserFiles.h"
#include "tools/demoworld/ZipBytes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Demo {

namespace {

using Parts = std::vector<ZipBytes::Part>;

/// As a packer of these days writes an entry: deflated, its name in UTF-8 and marked so where it needs that.
ZipBytes::Part Packed(const QString& name, const QByteArray& content) {
    constexpr int deflated = 8;
    constexpr int utf8Flag = 0x800;
    constexpr int unixHost = 3;
    constexpr quint32 ordinaryFile = 0100644U << 16U;
    const bool plain = std::all_of(name.begin(), name.end(), [](QChar letter) { return letter.unicode() < 0x80; });
    return {.Name = name.toUtf8(),
            .Content = content,
            .Method = deflated,
            .Flags = plain ? 0 : utf8Flag,
            .Host = unixHost,
            .Attributes = ordinaryFile};
}

ZipBytes::Part Folder(const QString& name) {
    constexpr int unixHost = 3;
    constexpr quint32 ordinaryFolder = (040755U << 16U) | 0x10U;
    return {.Name = name.toUtf8(), .Host = unixHost, .Attributes = ordinaryFolder};
}

void Add(Parts& parts, const Parts& more) {
    parts.insert(parts.end(), more.begin(), more.end());
}

class Packer {
public:
    explicit Packer(bool small) : small_(small) {}

    /// A map and what belongs to it, below a folder that ends in a slash or is empty.
    [[nodiscard]] Parts MapParts(const QString& folder, const QString& name, quint64 seed) const {
        return {Packed(folder + name + u".map"_s, Map(small_ ? 16 : 128, seed)),
                Packed(folder + name + u".tga"_s, Preview(seed)), Packed(folder + u"map.ini"_s, MapIni(seed)),
                Packed(folder + u"map.str"_s, MapStr(name)), Packed(folder + u"readme.txt"_s, ReadMe(name))};
    }

    [[nodiscard]] Parts InItsFolder(const QString& name, quint64 seed, const QString& above = {}) const {
        Parts parts{Folder(above + name + u'/')};
        Add(parts, MapParts(above + name + u'/', name, seed));
        return parts;
    }

    [[nodiscard]] Parts FiveMaps() const {
        Parts parts;
        for (quint64 seed = 41; seed < 46; ++seed)
            Add(parts, InItsFolder(PlaceName(seed), seed));
        parts.push_back(Packed(u"__MACOSX/._readme.txt"_s, "Mac OS X        "));
        parts.push_back(Packed(PlaceName(41) + u"/Thumbs.db"_s, QByteArray(512, '\1')));
        return parts;
    }

    [[nodiscard]] static Parts ModParts() {
        const QByteArray archive =
            Archive(1, {{u"Data\\INI\\Weapon.ini"_s, IniText(3, 20000)}, {u"ReadMe.txt"_s, ReadMe(u"Iron Harvest"_s)}});
        return {Packed(u"IronHarvest.big"_s, archive),
                Packed(u"IronHarvest.ini"_s, "[Infos]\r\nName=Iron Harvest\r\nComments=Six new units\r\n"
                                             "[Mod]\r\nName=Iron Harvest\r\nComments=Six new units\r\n"),
                Packed(u"Install.txt"_s, ReadMe(u"Iron Harvest"_s))};
    }

    [[nodiscard]] Parts Replays() const {
        Parts parts;
        for (int number = 1; number <= (small_ ? 6 : 120); ++number) {
            const auto seed = static_cast<quint64>(number) + 900;
            parts.push_back(Packed(u"Cup 2006/Game %1.rep"_s.arg(number, 3, 10, QChar(u'0')),
                                   Replay(0, RandomReplayFacts(0, seed), small_ ? 0 : 20000, seed)));
        }
        parts.push_back(Packed(u"Cup 2006/Final.BfME2Replay"_s, Replay(3, RandomReplayFacts(3, 77), 0, 77)));
        return parts;
    }

    [[nodiscard]] Parts ShellMapParts() const {
        return {Packed(u"Harbour at Dusk/shellmap1.map"_s, Map(small_ ? 16 : 128, 61)),
                Packed(u"Harbour at Dusk/shellmap1.tga"_s, Preview(61)),
                Packed(u"Harbour at Dusk/map.ini"_s, MapIni(61)),
                Packed(u"Harbour at Dusk/QvInfos.ini"_s, ShellMapRecord(u"Harbour at Dusk"_s, u"Gulls and fog"_s))};
    }

    /// A name in the letters of the old DOS page, as packers without UTF-8 wrote it.
    [[nodiscard]] Parts OldParts() const {
        Parts parts = MapParts(u"Mill/"_s, u"Mill"_s, 71);
        for (ZipBytes::Part& part : parts) {
            part.Name.replace("Mill", "M\x81hle"); // u with two dots
            part.Host = 0;
            part.Attributes = 0x20;
        }
        return parts;
    }

private:
    [[nodiscard]] QByteArray Preview(quint64 seed) const {
        return Tga(MapPreview(small_ ? 32 : 128, seed), 24, false, TgaOrigin::TopLeft);
    }

    bool small_;
};

/// As long as a name of a file may nearly be. Readers of ZIPs take 256 characters of an entry, so it stands alone.
QString LongName() {
    constexpr qsizetype letters = 200;
    return (u"A very long way down the river "_s).repeated(7).first(letters).trimmed();
}

} // namespace

std::vector<Download> Downloads(bool small) {
    const Packer pack(small);
    const QString ranked = u"[RANK] Arctic Arena ZH v1"_s;
    const QString umlauts = u"Grüne Hölle"_s;
    const QString cyrillic = u"\u0414\u043E\u043B\u0438\u043D\u0430 \u0440\u0435\u043A\u0438"_s;
    const auto zip = [](const Parts& parts) { return ZipBytes::Archive(parts); };
    Parts everything = pack.InItsFolder(ranked, 51, u"Maps/"_s);
    for (const Parts& more : {Packer::ModParts(), pack.ShellMapParts(), pack.Replays()})
        Add(everything, more);
    return {{u"Map alone.zip"_s, zip(pack.MapParts({}, PlaceName(31), 31))},
            {u"Map in its folder.zip"_s, zip(pack.InItsFolder(PlaceName(32), 32))},
            {u"Map in another folder.zip"_s, zip(pack.MapParts(u"download-4711/"_s, PlaceName(33), 33))},
            {u"Five maps.zip"_s, zip(pack.FiveMaps())},
            {u"Map below Maps.zip"_s, zip(pack.InItsFolder(PlaceName(34), 34, u"Maps/"_s))},
            {ranked + u".zip"_s, zip(pack.InItsFolder(ranked, 35))},
            {umlauts + u".zip"_s, zip(pack.InItsFolder(umlauts, 36))},
            {cyrillic + u".zip"_s, zip(pack.InItsFolder(cyrillic, 37))},
            {u"Long name.zip"_s, zip(pack.MapParts({}, LongName(), 38))},
            {u"Old packer.zip"_s, zip(pack.OldParts())},
            {u"Mod.zip"_s, zip(Packer::ModParts())},
            {u"Replays.zip"_s, zip(pack.Replays())},
            {u"Shell map.zip"_s, zip(pack.ShellMapParts())},
            {u"ZIP in a ZIP.zip"_s, zip({Packed(u"Map.zip"_s, zip(pack.InItsFolder(PlaceName(39), 39))),
                                         Packed(u"readme.txt"_s, ReadMe(u"Map"_s))})},
            {u"Everything.zip"_s, zip(everything)}};
}

} // namespace Demo
