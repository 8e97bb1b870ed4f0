// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A world with the four games, for tests of maps, mods and shell maps.
#pragma once

#include "core/GameFiles.h"
#include "core/mMain.h"
#include "personal/lists/GameList.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "tests/support/Raised.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>

#include <functional>

class ListTest : public testing::Test {
protected:
    ListTest() {
        for (GameIndex game = 0; game < GameCount; ++game)
            world_.InstallGame(game);
        world_.Start();
        mMain::MakeUserFolders();
        Files::MakeFolders(Game[3].MapPath);
    }

    static const GameEntry& EntryOf(GameIndex game) { return Game.at(static_cast<std::size_t>(game)); }

    /// Writes a file by its full path, folders and all.
    QString Write(const QString& path, const QByteArray& bytes = "x") const {
        return world_.WriteFile(path.sliced(world_.Root().size() + 1), bytes);
    }

    /// A file in a game's own folder.
    QString Install(const QString& name, const QByteArray& bytes = "x", GameIndex game = 0) const {
        return Write(EntryOf(game).InstallPath + name, bytes);
    }

    /// A map with its folder; returns the folder.
    QString PutMap(const QString& name, GameIndex game = 0) const {
        Write(EntryOf(game).MapPath + name + u'\\' + name + QStringLiteral(".map"));
        return EntryOf(game).MapPath + name;
    }

    static void Protect(const QString& path, bool isProtected = true) {
        const QFile::Permissions owner = QFile::ReadOwner;
        QFile::setPermissions(Paths::ToNative(path), isProtected ? owner : owner | QFile::WriteOwner);
    }

    /// A list's texts of a column, as shown.
    static QStringList Texts(const GameList& list, int column = 0) {
        QStringList texts;
        for (int place = 0; place < list.Rows().Count(); ++place)
            texts += list.Rows().Text(place, column);
        return texts;
    }

    static QStringList Keys(const GameList& list) {
        QStringList keys;
        for (int place = 0; place < list.Rows().Count(); ++place)
            keys += list.Rows().Key(place);
        return keys;
    }

    static QStringList Captions(const GameList& list) {
        QStringList captions;
        for (const RowColumn& column : list.Rows().Columns())
            captions += column.Caption;
        return captions;
    }

    static qint16 ListGame(GameList& list, qint32 game) { return list.List(game, false); }

    static qint16 CountGame(GameList& list, qint32 game) { return list.List(game, true); }

    World world_;
};
