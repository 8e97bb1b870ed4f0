// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Replays byte by byte, and the folders in which they are listed.
#pragma once

#include "core/Game.h"
#include "personal/lists/ReplayList.h"
#include "platform/RuntimeError.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/Printing.h"
#include "tests/support/Raised.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

/// 16-bit text with its end.
inline QByteArray Wide(const QByteArray& text) {
    QByteArray bytes;
    for (const char letter : text)
        bytes += QByteArray(1, letter) + '\0';
    return bytes + Bytes("\0\0");
}

inline QByteArray MatchOf(const QByteArray& map, const QByteArray& slotEntry) {
    return "US=1;M=" + map + ";MC=DEA9E8E4;MS=275491;SD=23770218;C=100;SR=0;SC=5000;O=N;S=" + slotEntry + ";";
}

/// A whole replay as a game writes it.
inline QByteArray ReplayBytes(const QByteArray& match, const QByteArray& version = "Version 1.0",
                              const QByteArray& mark = "GENREP") {
    return mark + Bytes("\x10\x20\x30\x40\x50\x60\x70\x7F\1\2\3\4\5\6\7\x08\x09\x0A\x0B\x0C\x0E\x0F") +
           Wide("Last Replay") + Bytes("\xD3\7\x08\0\6\0\x1E\0\x14\0\x37\0\x1D\0\0\0") + Wide(version) +
           Wide("Aug 30 2003 20:55:29") + Bytes("\4\0\1\0\xE8\x03\0\0\x14\0\0\0") + match + '\0' + "0" + '\0' +
           Bytes("\1\0\0\0\x45\4\0\0\2\0\0\0\1\1\2\1\0\0\0");
}

inline QByteArray SampleReplay() {
    return ReplayBytes(MatchOf("03maps/alpine assault", "HPlayer,0,0,TT,1,8,1,0,1:X:X:X:X:X:X:X:"));
}

/// A list of the replays in a world of four games.
class ReplayFolders : public testing::Test {
protected:
    ReplayFolders() {
        for (GameIndex game = 0; game < GameCount; ++game)
            world_.InstallGame(game);
        world_.Start();
    }

    [[nodiscard]] static const QString& Folder(GameIndex game = 0) {
        return Game.at(static_cast<std::size_t>(game)).ReplayPath;
    }

    /// Writes a file into the game's replay folder and returns its path.
    QString Put(const QString& name, const QByteArray& bytes, GameIndex game = 0) const {
        return world_.WriteFile(Folder(game).sliced(world_.Root().size() + 1) + name, bytes);
    }

    qint16 List(qint32 game = 0) { return list_.ListReplays(game); }

    /// Texts of a column in the order shown.
    [[nodiscard]] QStringList Column(int column) const {
        QStringList texts;
        for (int place = 0; place < list_.Rows().Count(); ++place)
            texts += list_.Rows().Text(place, column);
        return texts;
    }

    [[nodiscard]] QStringList Names() const { return Column(ReplayList::FileName); }

    World world_;
    ReplayList list_;
};
