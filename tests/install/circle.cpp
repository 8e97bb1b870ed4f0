// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What is exported from one game, installed into another and uninstalled there.
#include "tests/install/InstallTest.h"

#include "install/export/Exporting.h"
#include "install/journal/InstallJournal.h"
#include "install/journal/Uninstall.h"
#include "personal/lists/ExportRecords.h"

using namespace Qt::StringLiterals;

namespace {

constexpr GameIndex From = 0;
constexpr GameIndex To = 1;

class Circle : public InstallTest {
protected:
    /// A map with a name of every kind of letter the page has, a mod, a replay and a shell map, in the first game.
    std::vector<ExportRecord> FillGame() {
        const GameEntry& game = Of(From);
        const QString map = game.MapPath + name_;
        Fill(map + u'\\' + name_ + u".map"_s, "map");
        Fill(map + u'\\' + name_ + u".tga"_s, QByteArray(70'000, 't'));
        Fill(map + u"\\map.ini"_s, "Object\r\n");
        Fill(game.InstallPath + u"Storm.big"_s, QByteArray("BIGF") + QByteArray(100'000, '\3'));
        Fill(game.ReplayPath + u"Last Game.rep"_s, "GENREP");
        const QString shellMap = game.InstallPath + u"Maps\\QvShellMap007"_s;
        Fill(shellMap + u"\\shellmap1.map"_s, "shell");
        Fill(shellMap + u"\\QvInfos.ini"_s, "[Infos]\r\nName=Dawn\r\nComments=Fog\r\n");
        return {{.Path = map, .Name = name_, .Kind = FileKind::Map},
                {.Path = game.InstallPath + u"Storm.big"_s, .Name = u"Storm.big"_s, .Kind = FileKind::Mod},
                {.Path = game.ReplayPath + u"Last Game.rep"_s, .Name = u"Last Game"_s, .Kind = FileKind::Replay},
                {.Path = shellMap + u"\\*.*"_s, .Name = u"Dawn"_s, .Kind = FileKind::ShellMap}};
    }

    void Fill(const QString& path, const QByteArray& bytes) {
        world_.WriteFile(path.sliced(world_.Root().size() + 1), bytes);
    }

    QString Exported(const ExportChoice& choice = {}) {
        QString zip = world_.Root() + u"\\Mine.zip"_s;
        const ExportReport report = Exporting::ToZip(ExportSources::Of(FillGame()), zip, choice);
        EXPECT_FALSE(report.HasFailures()) << ExportText(report).toStdString();
        return zip;
    }

    void InstallExported(const ExportChoice& choice = {}) {
        Analyse(Exported(choice));
        TickAll();
        Install(To);
        EXPECT_FALSE(outcome_.AnyFailed()) << FailureText().toStdString();
    }

    QString name_ = u"[RANK] Grüne Hölle v1"_s;
};

} // namespace

TEST_F(Circle, WhatIsExportedFromOneGameIsTheSameInAnother) {
    InstallExported({.ModRecords = true});
    const QString map = Of(To).MapPath + name_;
    EXPECT_EQ(Names(map), (QStringList{name_ + u".map"_s, name_ + u".tga"_s, u"map.ini"_s}));
    EXPECT_EQ(At(map + u'\\' + name_ + u".map"_s), "map");
    EXPECT_EQ(At(map + u'\\' + name_ + u".tga"_s), QByteArray(70'000, 't'));
    EXPECT_EQ(At(map + u"\\map.ini"_s), "Object\r\n");
    EXPECT_EQ(At(Of(To).InstallPath + u"Storm.big"_s), QByteArray("BIGF") + QByteArray(100'000, '\3'));
    EXPECT_EQ(At(Of(To).ReplayPath + u"Last Game.rep"_s), "GENREP");
    const QString shellMap = Of(To).InstallPath + u"Maps\\QvShellMap001"_s;
    EXPECT_EQ(At(shellMap + u"\\shellmap1.map"_s), "shell");
    EXPECT_EQ(At(shellMap + u"\\QvInfos.ini"_s), "[Infos]\r\nName=Dawn\r\nComments=Fog\r\n");
}

TEST_F(Circle, UninstallingTakesAwayAllThatCameAndPutsBackWhatWasReplaced) {
    Fill(Of(To).ReplayPath + u"Last Game.rep"_s, "my own");
    Fill(Of(To).ReplayPath + u"Other.rep"_s, "other");
    InstallExported();
    const Journal journal = InstallJournal::Read();
    ASSERT_EQ(journal.Entries.size(), 1U);
    EXPECT_EQ(journal.Entries[0].Source, u"Mine.zip"_s);
    EXPECT_EQ(journal.Entries[0].Game, To);
    EXPECT_EQ(Uninstall::Run(Uninstall::Plan(journal, journal.Entries[0].Id)), QStringList());
    EXPECT_EQ(At(Of(To).ReplayPath + u"Last Game.rep"_s), "my own");
    EXPECT_EQ(Names(Of(To).ReplayPath), (QStringList{u"Last Game.rep"_s, u"Other.rep"_s}));
    EXPECT_EQ(Names(Of(To).MapPath), QStringList());
    EXPECT_FALSE(Files::FileExists(Of(To).InstallPath + u"Storm.big"_s));
    EXPECT_FALSE(Files::FileExists(Of(To).InstallPath + u"Storm.ini"_s));
    EXPECT_EQ(Names(Of(To).InstallPath + u"Maps"_s), QStringList());
    EXPECT_TRUE(InstallJournal::Read().Entries.empty());
}

TEST_F(Circle, WhatWasInstalledIsKnownByWhatWasWrittenAndNotReadAgain) {
    InstallExported();
    const Journal journal = InstallJournal::Read();
    ASSERT_EQ(journal.Entries.size(), 1U);
    for (const JournalFile& file : journal.Entries[0].Files)
        EXPECT_EQ(file.Hash.toHex(), HashOf(file.Path).Hash.toHex()) << file.Path.toStdString();
    EXPECT_EQ(journal.Entries[0].Files.size(), 8U) << "three of the map, two each of mod and shell map, the replay";
}
