// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The real program launches a game, which a script stands in for: it tells what stood in the shell map's place.
#include "Places.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

class Launch : public testing::Test {
protected:
    World world_;

    /// Installs a game with one shell map and something else in the shell map's place.
    void Install(GameIndex game, const QString& folder, const QString& place) {
        world_.InstallGame(game);
        for (const QString& program : {u"generals.exe"_s, u"lotrbfme2.exe"_s})
            world_.WriteFile(u"games\\"_s + folder + u'\\' + program, "MZ");
        maps_ = u"games\\"_s + folder + u"\\Maps"_s;
        world_.WriteFile(maps_ + u"\\QvShellMap001\\new.map"_s, "x");
        world_.WriteFile(maps_ + u'\\' + place + u"\\old.map"_s, "x");
        WriteSetting(SettingKeys::ShellMapMode(game), u"Load001"_s);
    }

    /// Launches the game and returns what the game finds in its "Maps" folder, a line for each folder and file.
    QByteArray Launched(const QString& word) {
        const QByteArray told = Native(u"told"_s);
        const QString script = world_.WriteFile(
            u"bin\\wine"_s, "#!/bin/sh\n(cd '" + Native(maps_) + "' && find . -mindepth 1 | LC_ALL=C sort) >'" + told +
                                ".part'\nmv '" + told + ".part' '" + told + "'\n");
        QFile::setPermissions(Paths::ToNative(script), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QProcess program;
        program.start(QString::fromUtf8(Places::Suite), {u"/launch"_s, word});
        EXPECT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitCode(), 0);
        const QString path = world_.Root() + u"\\told"_s;
        for (int round = 0; round < 500 && !Files::FileExists(path); ++round)
            QThread::msleep(10);
        return World::ReadFile(path);
    }

    [[nodiscard]] QByteArray Native(const QString& path) const {
        return Paths::EncodeNative(Paths::ToNative(world_.Root() + u'\\' + path));
    }

private:
    QString maps_;
};

} // namespace

TEST_F(Launch, TheChosenShellMapStandsInItsPlaceBeforeTheGameStarts) {
    Install(0, u"Generals"_s, u"ShellMap1"_s);
    EXPECT_EQ(Launched(u"/gen"_s), QByteArray("./QvShellMap001\n./QvShellMap001/new.map\n./ShellMap1\n"
                                              "./ShellMap1/new.map\n"));
}

TEST_F(Launch, AGameThatIsGoneIsToldInOneLine) {
    world_.InstallGame(0);
    QProcess program;
    program.start(QString::fromUtf8(Places::Suite), {u"/launch"_s, u"/gen"_s});
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 1);
    const QByteArray told = program.readAllStandardError();
    EXPECT_EQ(told, "brindock: " + Native(u"games\\Generals\\generals.exe"_s) + ": there is no such program\n");
}

TEST_F(Launch, ZeroHourFindsAnEmptyFolder) {
    Install(1, u"Zero Hour"_s, u"ShellMapMD"_s);
    EXPECT_EQ(Launched(u"/zh"_s), QByteArray("./QvShellMap001\n./QvShellMap001/new.map\n./ShellMapMD\n"));
}

TEST_F(Launch, TheSecondMiddleEarthFindsNoShellMapWhateverItsSetting) {
    Install(3, u"Battle for Middle-earth II"_s, u"ShellMap1"_s);
    EXPECT_EQ(Launched(u"/bfme2"_s), QByteArray("./QvShellMap001\n./QvShellMap001/new.map\n"));
}
