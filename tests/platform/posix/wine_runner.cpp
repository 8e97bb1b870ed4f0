// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/WineRunner.h"

#include "platform/Processes.h"
#include "platform/posix/WinePrefixes.h"
#include "tests/platform/Scratch.h"

#include <QElapsedTimer>
#include <QThread>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A home in which launchers keep their settings and builds.
class WineRunnerTest : public testing::Test {
protected:
    [[nodiscard]] QString At(const QString& name) const { return scratch_.Native(name); }

    /// Writes settings in which "~~" stands for the home.
    void Write(const QString& name, QByteArray text) const {
        scratch_.Write(name, text.replace("~~", At(u"x"_s).chopped(2).toUtf8()));
    }

    [[nodiscard]] QString MakePrefix(const QString& name) const {
        scratch_.Write(name + u"/system.reg"_s, "WINE REGISTRY Version 2\n");
        return At(name);
    }

    /// A program that writes down what it was started with.
    [[nodiscard]] QString MakeProgram(const QString& name) const {
        scratch_.Write(name, "#!/bin/sh\nprintf '%s|' \"$WINEPREFIX\" \"$STEAM_COMPAT_DATA_PATH\" "
                             "\"$STEAM_COMPAT_CLIENT_INSTALL_PATH\" \"$@\" >\"$RECORD.part\"\n"
                             "mv \"$RECORD.part\" \"$RECORD\"\n");
        QFile::setPermissions(At(name), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        return At(name);
    }

    [[nodiscard]] static QStringList RunnerOf(const QString& prefix) { return WineRunner::For(prefix).Words; }

    Scratch scratch_;
    Variable home_{"HOME", scratch_.Native(u"x"_s).chopped(2).toUtf8()};
    Variable wine_{"BRINDOCK_WINE", std::nullopt};
    Variable winePrefix_{"WINEPREFIX", std::nullopt};
    Variable prefixes_{"BRINDOCK_WINE_PREFIXES", std::nullopt};
    Variable record_{"RECORD", scratch_.Native(u"record"_s).toUtf8()};
};

} // namespace

TEST_F(WineRunnerTest, APrefixOfNoLauncherRunsInTheSystemsWine) {
    EXPECT_EQ(RunnerOf(MakePrefix(u".wine"_s)), QStringList{u"wine"_s});
    EXPECT_EQ(RunnerOf({}), QStringList{u"wine"_s});
}

TEST_F(WineRunnerTest, TheVariableNamesAnother) {
    const QString wine = MakeProgram(u"my/wine"_s);
    const QString prefix = MakePrefix(u"bottles/one"_s);
    const Variable named("BRINDOCK_WINE", wine.toUtf8());
    EXPECT_EQ(RunnerOf(prefix), QStringList{wine});
    EXPECT_EQ(Processes::RunnerFor(prefix), wine);
}

TEST_F(WineRunnerTest, LutrisNamesPrefixesAndTheirBuilds) {
    const QString one = MakePrefix(u"my games/one"_s);
    const QString two = MakePrefix(u"two"_s);
    const QString build = MakeProgram(u".local/share/lutris/runners/wine/lutris-7.2/bin/wine"_s);
    const QString proton = MakeProgram(u".local/share/Steam/compatibilitytools.d/GE-Proton9/proton"_s);
    const QString inside = MakeProgram(u".local/share/Steam/compatibilitytools.d/GE-Proton9/files/bin/wine"_s);
    Write(u".local/share/lutris/games/one-1.yml"_s,
          "game:\n  exe: x.exe\n  prefix: '~~/my games/one'\nsystem:\n  version: no\nwine:\n  version: lutris-7.2\n");
    Write(u".config/lutris/games/two-2.yml"_s, "game:\n  prefix: ~/two\nwine:\n  dxvk: true\n");
    EXPECT_EQ(WinePrefixes::Find(), (QStringList{one, two}));
    EXPECT_EQ(RunnerOf(one), QStringList{build});
    EXPECT_EQ(RunnerOf(two), QStringList{u"wine"_s});
    Write(u".config/lutris/runners/wine.yml"_s, "wine:\n  version: \"GE-Proton9\"\n");
    EXPECT_EQ(RunnerOf(two), QStringList{inside}) << "for all games that name none; its prefix is no Proton's own";
    EXPECT_EQ(RunnerOf(one), QStringList{build});
    ASSERT_TRUE(QFile::remove(build));
    EXPECT_EQ(RunnerOf(one), QStringList{u"wine"_s}) << "A build that is gone runs nothing.";
}

TEST_F(WineRunnerTest, HeroicNamesPrefixesAndTheirBuilds) {
    const QString wine = MakePrefix(u"far away/wine prefix"_s);
    const QString proton = MakePrefix(u"proton prefix/pfx"_s);
    const QString build = MakeProgram(u"builds/wine-ge/bin/wine"_s);
    const QString protonBuild = MakeProgram(u"builds/ge-proton/proton"_s);
    Write(u".config/heroic/GamesConfig/abc.json"_s,
          "{\"abc\": {\"winePrefix\": \"~~/far away/wine prefix\", \"wineVersion\": {\"bin\": "
          "\"~~/builds/wine-ge/bin/wine\", \"name\": \"x\", \"type\": \"wine\"}}, \"version\": \"v0\"}");
    Write(u".var/app/com.heroicgameslauncher.hgl/config/heroic/GamesConfig/def.json"_s,
          "{\"def\": {\"winePrefix\": \"~~/proton prefix\", \"wineVersion\": {\"bin\": "
          "\"~~/builds/ge-proton/proton\", \"type\": \"proton\"}}, \"explicit\": true}");
    Write(u".config/heroic/GamesConfig/broken.json"_s, "{\"abc\": {\"winePrefix\": ");
    EXPECT_EQ(WinePrefixes::Find(), (QStringList{wine, proton}));
    EXPECT_EQ(RunnerOf(wine), QStringList{build});
    EXPECT_EQ(RunnerOf(proton), (QStringList{protonBuild, u"run"_s}));
}

TEST_F(WineRunnerTest, SteamIsFoundAsSnapAndFlatpakAndItsProtonRunsItsPrefix) {
    const QString snap = u"snap/steam/common/.local/share/Steam"_s;
    const QString prefix = MakePrefix(snap + u"/steamapps/compatdata/7/pfx"_s);
    const QString flatpak =
        MakePrefix(u".var/app/com.valvesoftware.Steam/.local/share/Steam/steamapps/compatdata/8/pfx"_s);
    EXPECT_EQ(WinePrefixes::Find(), (QStringList{flatpak, prefix}));
    EXPECT_EQ(RunnerOf(prefix), QStringList{u"wine"_s});
    const QString proton = MakeProgram(snap + u"/steamapps/common/Proton 8.0/proton"_s);
    Write(snap + u"/steamapps/compatdata/7/config_info"_s,
          "8.0-102\n~~/" + snap.toUtf8() + "/steamapps/common/Proton 8.0/dist/share/fonts/\n");
    EXPECT_EQ(RunnerOf(prefix), (QStringList{proton, u"run"_s}));
    scratch_.Write(snap + u"/steamapps/compatdata/7/pfx/drive_c/g/x.exe"_s, "MZ");
    Processes::StartCommand(u"\"C:\\G\\x.exe\"  -win"_s, Processes::FirstWindow::Normal, prefix);
    QElapsedTimer waited;
    waited.start();
    while (!QFile::exists(At(u"record"_s)) && waited.elapsed() < 10000)
        QThread::msleep(5);
    EXPECT_EQ(scratch_.Read(u"record"_s),
              (prefix + u'|' + prefix.chopped(4) + u'|' + At(u"snap/steam/common/.local/share/Steam"_s) + u"|run|"_s +
               prefix + u"/drive_c/g/x.exe|-win|"_s)
                  .toUtf8());
}

TEST_F(WineRunnerTest, ABottleRunsInItsOwnBuild) {
    const QString bottle = MakePrefix(u".local/share/bottles/bottles/one"_s);
    const QString build = MakeProgram(u".local/share/bottles/runners/soda-9/bin/wine"_s);
    Write(u".local/share/bottles/bottles/one/bottle.yml"_s, "Name: one\nParameters:\n  Runner: no\nRunner: soda-9\n");
    EXPECT_EQ(RunnerOf(bottle), QStringList{build});
    Write(u".local/share/bottles/bottles/one/bottle.yml"_s, "Runner: sys-wine-9.0\n");
    EXPECT_EQ(RunnerOf(bottle), QStringList{u"wine"_s});
}
