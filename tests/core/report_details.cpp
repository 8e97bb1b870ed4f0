// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/ReportDetails.h"

#include "core/Game.h"
#include "core/mMain.h"
#include "platform/Paths.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <QDir>
#include <QSysInfo>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A program that holds the version 1.8 with something before it.
QByteArray Program() {
    return "MZ and more" + QByteArray("\xBD\x04\xEF\xFE\x00\x00\x01\x00", 8) +
           QByteArray("\x08\x00\x01\x00\x07\x00\x09\x00", 8) + "behind";
}

QStringList Lines() {
    return ReportDetails::Text(u"xcb, scale 2"_s).split(u'\n');
}

} // namespace

TEST(ReportDetails, TheFirstLinesTellTheProgramTheSystemAndTheDisplay) {
    World world;
    world.UseLanguage("[LNG]\r\n", u"Dutch.lng"_s);
    world.Start();
    const QStringList lines = Lines();
    EXPECT_EQ(lines.value(0), u"Brindock 2005 "_s + mMain::VersionText());
    EXPECT_EQ(lines.value(1),
              u"System: "_s + QSysInfo::prettyProductName() + u", "_s + QSysInfo::currentCpuArchitecture());
    EXPECT_EQ(lines.value(2), u"Qt: "_s + QString::fromLatin1(qVersion()));
    EXPECT_EQ(lines.value(3), u"Display: xcb, scale 2"_s);
    EXPECT_EQ(lines.value(4), u"Language: Dutch.lng"_s);
}

TEST(ReportDetails, WithoutGamesEachIsNotFound) {
    const World world;
    EXPECT_EQ(Lines().sliced(4), (QStringList{u"Language: none"_s, u"Generals: not found"_s, u"Zero Hour: not found"_s,
                                              u"The Battle for Middle-earth: not found"_s,
                                              u"The Battle for Middle-earth II: not found"_s, QString()}));
}

TEST(ReportDetails, AGameHasItsFolderItsVersionAndItsPrefix) {
    World world;
    world.InstallGame(1);
    world.WriteFile(u"games\\Zero Hour\\generals.exe"_s, Program());
    world.InstallGame(3);
    world.Start();
    const QString home = QDir::toNativeSeparators(QDir::homePath());
    Game[3].Prefix = home + QDir::separator() + u".wine"_s;
    const QStringList lines = Lines();
    // Temporary files may lie below the home folder.
    const QString folder = Paths::ToNative(world.Root() + u"\\games\\Zero Hour\\"_s).replace(home, u"~"_s);
    EXPECT_EQ(lines.value(6), u"Zero Hour: %1, version 1.8.9.7"_s.arg(folder));
    EXPECT_TRUE(lines.value(8).contains(u", version unknown, prefix ~"_s)) << lines.value(8).toStdString();
    EXPECT_FALSE(lines.value(8).contains(home)) << lines.value(8).toStdString();
}

TEST(ReportDetails, TheHomeFolderIsNotNamed) {
    const World world;
    Game[0].InstallPath = Paths::FromNative(QDir::toNativeSeparators(QDir::homePath() + u"/Games/Generals/"_s));
    const QString line = Lines().value(5);
    EXPECT_TRUE(line.startsWith(u"Generals: ~"_s)) << line.toStdString();
}

TEST(ReportDetails, AVersionThatIsCutOffOrMissingIsNone) {
    EXPECT_EQ(ReportDetails::ProgramVersion(Program()), u"1.8.9.7"_s);
    EXPECT_EQ(ReportDetails::ProgramVersion({}), QString());
    EXPECT_EQ(ReportDetails::ProgramVersion("MZ"), QString());
    const QByteArray program = Program();
    for (qsizetype length = 0; length < program.indexOf("behind"); ++length)
        EXPECT_EQ(ReportDetails::ProgramVersion(program.first(length)), QString()) << length;
}
