// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the options dialog share: a world with all games, and the parts of the window.
#pragma once

#include "core/Settings.h"
#include "core/mMain.h"
#include "core/window/frmOptions.h"
#include "platform/Paths.h"
#include "tests/windows/EditorTest.h"
#include "tests/windows/WindowTests.h"

#include <QListView>
#include <QListWidget>
#include <QTabBar>

using namespace Qt::StringLiterals;

inline constexpr auto optionsTexts =
    "[Infos]\r\nLanguage=Test\r\nVersion=2005\r\nTranslator=Nobody\r\n[LNG]\r\n"
    "Options=R\xE9glages\r\nProgramOptions=Programme\r\nZeroHour=Heure H\r\n"
    "GeneralOptions=G\xE9n\xE9ral\r\nAutoCheckForUpdates=Auto\r\nProgramLanguage=Langue :\r\n"
    "ViewFileIcons=Ic\xF4nes\r\nExactOffsets=Exactes\r\nStartupParameters=Lancement\r\n"
    "LoadMod2=Ce mod :\r\nShellMaps=Shellmaps\r\nDontLoadShellMap=Aucune\r\n"
    "LoadShellMap2=Cette shellmap :\r\nLoadRandomShellMap=Une autre\r\nOK=Bon\r\nCancel=Annuler\r\n"
    "nologo=Sans logo\\nni vid\xE9o\r\nnoshellmap=Image fixe\r\nPageReplaces=Perd %1.\r\n"
    "KeepStored=Garder\r\nReplacesMod=mod %1\r\nReplacesShellMap=%2 pour %1\r\n"
    "ReplacesOptions=options %1\r\nShellMapNone=rien\r\nShellMapRandom=hasard\r\n";

class OptionsWindowTest : public EditorTest<frmOptions> {
protected:
    void BeginWithGames() {
        BeginIn(optionsTexts);
        for (GameIndex game = 0; game < GameCount; ++game)
            world_->InstallGame(game);
        world_->Start();
        // A restart that a test does not want must not start the tests anew.
        world_->WriteFile(ProgramFile(), "no program");
    }

    static QString ProgramFile() { return u"program\\"_s + Paths::LastPart(Paths::Executable()); }

    void AddLanguage(const QByteArray& name) const {
        world_->WriteFile(u"program\\"_s + QString::fromLatin1(name) + u".lng"_s,
                          "[Infos]\r\nLanguage=" + name + "\r\nVersion=2005\r\nTranslator=B\r\n");
    }

    void Open() {
        window_ = std::make_unique<frmOptions>();
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    /// Two mods and two shell maps for the first game.
    void AddContent() const {
        const QString game = u"games\\Generals\\"_s;
        world_->WriteFile(game + u"Alpha.big"_s, "x");
        world_->WriteFile(game + u"Alpha.ini"_s, "[Mod]\r\nName=First\r\n");
        world_->WriteFile(game + u"Beta.big"_s, "x");
        world_->WriteFile(game + u"Maps\\QvShellMap001\\QvInfos.ini"_s, "[Infos]\r\nName=One\r\n");
        world_->WriteFile(game + u"Maps\\QvShellMap002\\QvInfos.ini"_s, "[Infos]\r\nName=Two\r\n");
    }

    QTabBar* Tabs() { return Part<QTabBar>("Tab1"); }

    QListWidget* Options() { return Part<QListWidget>("lstOptions"); }

    QListView* List(const char* name) { return Part<QListView>(name); }

    int Row(const char* list) {
        const QModelIndexList rows = List(list)->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() : -1;
    }

    QStringList Rows(const char* list) {
        QStringList rows;
        const QAbstractItemModel* const model = List(list)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            rows += model->index(row, 0).data().toString();
        return rows;
    }

    void Select(const QString& key) {
        for (int tab = 0; tab < Tabs()->count(); ++tab)
            if (Tabs()->tabData(tab).toString() == key)
                QTest::mouseClick(Tabs(), Qt::LeftButton, {}, Tabs()->tabRect(tab).center());
        QCOMPARE(Tabs()->tabData(Tabs()->currentIndex()).toString(), key);
    }
};
