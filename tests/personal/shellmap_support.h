// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The store of shell maps and the place where a game looks for one.
#pragma once

#include "core/NameOrder.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "personal/mShellMaps.h"
#include "tests/personal/lists_support.h"

class ShellMapTest : public ListTest {
protected:
    static QString Folder(const QString& name, GameIndex game = 0) {
        return EntryOf(game).InstallPath + QStringLiteral("Maps\\") + name;
    }

    /// A stored shell map of one file, which holds its number, and its record.
    void Store(int number, GameIndex game = 0) const {
        const QString folder = Folder(Name(number), game);
        Write(folder + QStringLiteral("\\shellmap1.map"), QByteArray::number(number));
        Write(folder + QStringLiteral("\\QvInfos.ini"), "[Infos]\r\n");
    }

    static QString Name(int number) { return GameFiles::ShellMapName(QString::number(number)); }

    static void SetMode(const QString& mode, GameIndex game = 0) {
        WriteSetting(SettingKeys::ShellMapMode(game), mode);
    }

    /// What is in a folder of "Maps", in order; files only. Nothing tells a missing folder.
    static std::optional<QStringList> FilesIn(const QString& name, GameIndex game = 0) {
        if (!Files::FolderExists(Folder(name, game)))
            return std::nullopt;
        QStringList names = Files::ListFolder(Folder(name, game) + u'\\');
        NameOrder::Sort(names);
        return names;
    }

    /// All that is in "Maps", in order.
    static QStringList InMaps(GameIndex game = 0) {
        QStringList names = Files::ListFolder(Folder({}, game), true);
        NameOrder::Sort(names);
        return names;
    }

    static QByteArray Bytes(const QString& name, GameIndex game = 0) { return World::ReadFile(Folder(name, game)); }
};
