// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/mShellMaps.h"

#include "core/GameFiles.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "personal/MapsFolder.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr GameIndex ZeroHour = 1;
constexpr GameIndex SecondMiddleEarth = 3;
constexpr qsizetype LoadLength = 4;

float RandomByClock() {
    constexpr double ticksASecond = 1000;
    constexpr int spareBits = 8; // 24 bits are what the type holds exactly
    constexpr float step = 1.0F / 16'777'216;
    std::mt19937 numbers(static_cast<std::uint32_t>(Clock::SecondsOfDay() * ticksASecond));
    return static_cast<float>(numbers() >> spareBits) * step;
}

QString ModeOf(GameIndex game) {
    // The second Middle-earth has the setting too, and it is not looked at. This is meant.
    return game == SecondMiddleEarth ? QString() : ReadSetting(SettingKeys::ShellMapMode(game));
}

/// 1 to `highest`, each as likely. In single precision a number just below 1 may be rounded up to one map more.
int Pick(int highest, const std::function<float()>& random) {
    const float place = static_cast<float>(highest) * random() + 1.0F;
    return std::clamp(static_cast<int>(std::floor(place)), 1, std::max(highest, 1));
}

/// Which number of the store is asked for, as text of any length.
QString NumberAskedFor(const QString& mode, int highest, const std::function<float()>& random) {
    if (mode == u"Random")
        return QString::number(Pick(highest, random));
    return mode.sliced(std::min(LoadLength, mode.size()));
}

/// The folder where a game looks for its shell map.
class Target {
public:
    Target(const MapsFolder& maps, GameIndex game)
        : maps_(maps),
          name_(game == ZeroHour ? u"ShellMapMD"_s : u"ShellMap1"_s),
          path_(maps.Find(name_)) {}

    /// Whatever a person put there goes, too. This is meant. A link goes, and nothing of what it leads to.
    void Empty() const {
        if (Files::IsLink(path_)) {
            Ignoring([&] { Files::RemoveLink(path_); });
            return;
        }
        for (const QString& name : Files::ListFolder(path_ + u'\\'))
            Ignoring([&] { Files::DeleteUnprotected(path_ + u'\\' + name); });
    }

    void Make() {
        if (!Files::FolderExists(path_) && !Files::IsLink(path_))
            path_ = maps_.Find(name_.toLower());
        Ignoring([&] { Files::MakeFolder(path_); });
    }

    void Remove() const {
        Ignoring([&] { Files::RemoveFolder(path_); });
    }

    /// Copies the files of a folder; what leads out of the game's folder is passed over.
    void Take(const QString& folder) const {
        if (Files::IsLink(path_))
            return;
        Leftovers::Sweep(Paths::ToNative(folder) + u'/');
        for (const QString& name : Files::ListFolder(folder + u'\\')) {
            const QString from = folder + u'\\' + name;
            const QString to = path_ + u'\\' + name;
            if (maps_.Holds(from) && !Files::IsLink(to))
                Ignoring([&] { Files::Copy(from, to); });
        }
    }

private:
    const MapsFolder& maps_;
    QString name_;
    QString path_;
};

void Fill(Target& target, const MapsFolder& maps, GameIndex game, const QString& number) {
    target.Empty();
    target.Make();
    // The listing for this game names a folder and not what is in it, so nothing is copied. This is meant.
    if (game == ZeroHour)
        return;
    // A text of more than three characters can't be filled out to three: no folder then.
    Ignoring([&] {
        const QString name = GameFiles::ShellMapName(number);
        if (maps.Has(name)) // so that it is a name and no way to another folder
            target.Take(maps.Find(name));
    });
}

} // namespace

void mShellMaps::ActivateShellMapBy(const std::function<float()>& random, GameIndex game) {
    if (game < 0 || game >= GameCount)
        return;
    Ignoring([&] {
        const MapsFolder maps(game);
        if (!maps.IsThere())
            return;
        Target target(maps, game);
        static_cast<void>(mMain::Registry().WasReadable());
        const QString mode = ModeOf(game);
        if (!mMain::Registry().WasReadable()) // a mode that can't be read is not one that says "none"
            return;
        if (mode.isEmpty()) {
            target.Empty();
            target.Remove();
        } else if (const std::optional<int> highest = GameFiles::HighestShellMapNumber(game)) {
            Fill(target, maps, game, NumberAskedFor(mode, *highest, random));
        }
    });
}

void mShellMaps::ActivateShellMap(GameIndex game) {
    ActivateShellMapBy(RandomByClock, game);
}
