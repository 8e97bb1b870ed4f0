// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A world with games whose options are set.
#pragma once

#include "core/Settings.h"
#include "core/mMain.h"
#include "core/options/GamePage.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/Printing.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class OptionsTest : public testing::Test {
protected:
    OptionsTest() {
        for (GameIndex game = 0; game < GameCount; ++game)
            world_.InstallGame(game);
        world_.UseLanguage("[Infos]\r\nLanguage=Test\r\nVersion=2005\r\nTranslator=Nobody\r\n[LNG]\r\n"
                           "ProgramOptions=Program\r\nZeroHour=Hour\r\nKeepStored=Keep\r\nPageReplaces=Goes: %1.\r\n"
                           "ReplacesOptions=options %1\r\nReplacesMod=mod %1\r\nReplacesShellMap=%1 to %2\r\n"
                           "ShellMapNone=none\r\nShellMapRandom=random\r\n");
        world_.Start();
        // A restart that a test does not want must not start the tests anew.
        world_.WriteFile(u"program\\"_s + Paths::LastPart(Paths::Executable()), "no program");
    }

    static void Write(GameIndex game, const QString& file, const QByteArray& bytes = "x") {
        const QString path = Game.at(static_cast<std::size_t>(game)).InstallPath + file;
        Files::MakeFolders(path.first(path.lastIndexOf(u'\\')));
        File made = File::Open(path, File::Access::ReadWrite);
        made.Write(0, bytes);
        made.Close();
    }

    static void MakeShellMap(GameIndex game, const QString& digits, const QByteArray& name = "Map") {
        Write(game, u"Maps\\QvShellMap"_s + digits + u"\\QvInfos.ini"_s, "[Infos]\r\nName=" + name + "\r\n");
    }

    static QStringList CheckedOptions(const GamePage& page) {
        QStringList checked;
        for (const GamePage::Option& option : page.Options)
            if (option.Checked)
                checked += option.Name;
        return checked;
    }

    World world_;
    ScriptedHost host_;
    ScriptedNavigator navigator_;
};
