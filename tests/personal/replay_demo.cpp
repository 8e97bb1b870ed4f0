// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The replays of the demo world, listed and drawn with the sides and texts that the suite comes with.
#include "Places.h"
#include "tests/personal/replay_bytes.h"
#include "tools/demoworld/UserFiles.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

QByteArray Data(const QString& name) {
    QFile file(QString::fromUtf8(Places::Sources) + u"/data/"_s + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class DemoReplays : public ReplayFolders {
protected:
    DemoReplays() {
        world_.WriteFile(u"program\\gdatas.cfg"_s, Data(u"gdatas.cfg"_s));
        world_.UseOwnLanguage(u"English"_s);
        world_.Start();
        for (GameIndex game = 0; game < GameCount; ++game) {
            for (const Demo::NamedReplay& replay : Demo::WorldReplays(game))
                Put(replay.FileName, Demo::Replay(game, replay.Facts, 0, replay.Seed), game);
        }
    }

    /// The nodes of all the game's replays.
    std::vector<PlayerNode> Nodes(GameIndex game) {
        List(game);
        std::vector<PlayerNode> nodes;
        for (int place = 0; place < list_.Rows().Count(); ++place) {
            std::vector<PlayerNode> tree;
            list_.Select(place);
            list_.LoadPlayerList(tree);
            nodes.insert(nodes.end(), tree.begin(), tree.end());
        }
        return nodes;
    }

    /// The sides' numbers that the data file knows for a game.
    static QSet<QString> KnownSides(GameIndex game) {
        QString section = QString::fromLatin1(Data(u"gdatas.cfg"_s)).section(u"[%1Data]"_s.arg(game), 1);
        section = section.left(section.indexOf(u'['));
        static const QRegularExpression side(u"Side(-?\\d+)="_s);
        QSet<QString> sides;
        for (auto found = side.globalMatch(section); found.hasNext();)
            sides.insert(found.next().captured(1));
        return sides;
    }

    static QSet<QString> PlayedSides(GameIndex game) {
        QSet<QString> sides;
        for (const Demo::NamedReplay& replay : Demo::WorldReplays(game)) {
            for (const QString& slot : replay.Facts.Slots.split(u':')) {
                const QStringList fields = slot.split(u',');
                if (fields.size() > 1)
                    sides.insert(fields[slot.startsWith(u'H') ? 5 : 2]);
            }
        }
        return sides;
    }
};

} // namespace

TEST_F(DemoReplays, AllOfThemAreListedInEveryGame) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        EXPECT_EQ(List(game), 6);
        EXPECT_EQ(list_.Rows().Count(), 6);
        EXPECT_TRUE(Names().contains(u"Last Replay"_s));
        EXPECT_FALSE(Column(ReplayList::Map).contains(QString()));
        EXPECT_TRUE(Column(ReplayList::Version)[0].startsWith(u"1.0"_s));
    }
    EXPECT_TRUE(Column(ReplayList::Map).contains(u"Maps/official/map wor rhun/map wor rhun.map"_s));
}

TEST_F(DemoReplays, EverySideOfEveryGamePlaysAndHasNameAndPicture) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        EXPECT_EQ(PlayedSides(game), KnownSides(game)) << game;
        for (const PlayerNode& node : Nodes(game)) {
            EXPECT_FALSE(node.Text.contains(u"()"_s) || node.Text.contains(u"(Side"_s)) << node.Text.toStdString();
            EXPECT_TRUE(ReplayPlayers::PictureKeys().contains(node.Picture, Qt::CaseInsensitive));
        }
    }
}

TEST_F(DemoReplays, ThereArePlayersOfEveryKindWithNamesOfEveryKind) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        QStringList branches;
        QStringList players;
        for (const PlayerNode& node : Nodes(game))
            (node.Parent.isEmpty() ? branches : players) += node.Parent.isEmpty() ? node.Key : node.Text;
        EXPECT_TRUE(branches.contains(u"obs"_s) && branches.contains(u"Team -1"_s)) << game;
        EXPECT_GE(branches.filter(QRegularExpression(u"^Team \\d"_s)).size(), 4) << game;
        for (const QString& text : {u"Easy AI"_s, u"Medium AI"_s, u"Hard AI"_s, u"Observer"_s})
            EXPECT_FALSE(players.filter(text).isEmpty()) << game << ' ' << text.toStdString();
        EXPECT_FALSE(players.filter(QRegularExpression(u"[äöüÄÖÜé]"_s)).isEmpty()) << game;
        EXPECT_FALSE(players.filter(QRegularExpression(u"[\\[{<].* \\("_s)).isEmpty()) << game;
    }
}
