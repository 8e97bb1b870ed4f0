// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/replay/Replay.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/cli/Command.h"
#include "tests/personal/replay_bytes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

class ReplayCommands : public ReplayFolders {
protected:
    ReplayCommands() {
        world_.UseLanguage("[LNG]\r\nTeam=Team\r\nNoTeam=No team\r\nAI=AI\r\nHardAI=Hard\r\nUSA=America\r\n"
                           "Observers=Observers\r\nObserver=Observer\r\n");
        world_.WriteFile(u"program\\gdatas.cfg"_s, "[1Data]\r\nSide8=USA\r\nSide8Icon=Tank\r\n");
        world_.Start();
    }

    /// Runs a command that must succeed without a word on standard error.
    static QByteArray Output(const QStringList& arguments) {
        const Outcome outcome = RunCommand(QStringList{u"replays"_s} + arguments);
        EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
        EXPECT_EQ(outcome.Error, QByteArray());
        return outcome.Output;
    }

    static QJsonObject Json(const QByteArray& output) { return QJsonDocument::fromJson(output).object(); }

    /// The date column of a file.
    static QByteArray DateOf(const QString& path) { return Replays::Dates().Of(Files::ModifiedTime(path)).toUtf8(); }

    static QByteArray Teams() {
        return ReplayBytes(
            MatchOf("maps/alpine assault", "HG\xFCnter,0,0,TT,1,8,1,1,1:CH,1,8,-1,1:HB,0,0,TT,1,8,1,-1,1:O:X:X:X:X:"),
            "Version 1.04");
    }
};

} // namespace

TEST_F(ReplayCommands, ListPrintsTheCountAndAReplayALine) {
    const QString first = Put(u"été [1].rep"_s, Teams(), 1);
    const QString last = Put(u"Alpha.REP"_s, SampleReplay(), 1);
    EXPECT_EQ(Output({u"list"_s, u"zh"_s}), "count 2\nAlpha\t" + DateOf(last) + "\t1.0\t1\tAlpine assault\n" +
                                                "été [1]\t" + DateOf(first) + "\t1.04\t4\tAlpine assault\n");
}

TEST_F(ReplayCommands, ListOfAGameWithoutReplaysPrintsACountOf0AndMakesTheFolders) {
    EXPECT_FALSE(Files::FolderExists(Folder(2)));
    EXPECT_EQ(Output({u"list"_s, u"bfme"_s}), "count 0\n");
    EXPECT_TRUE(Files::FolderExists(Folder(2)));
    EXPECT_EQ(Output({u"list"_s, u"bfme2"_s}), "count 0\n");
    EXPECT_FALSE(Files::FolderExists(Folder(3))) << "that game makes its own";
}

TEST_F(ReplayCommands, ListAsJsonHoldsTheSame) {
    const QString path = Put(u"a.rep"_s, SampleReplay(), 1);
    const QJsonObject told = Json(Output({u"list"_s, u"zh"_s, u"--json"_s}));
    EXPECT_EQ(told[u"count"_s].toInt(), 1);
    ASSERT_EQ(told[u"replays"_s].toArray().size(), 1);
    const QJsonObject replay = told[u"replays"_s].toArray()[0].toObject();
    EXPECT_EQ(replay[u"name"_s].toString(), u"a"_s);
    EXPECT_EQ(replay[u"date"_s].toString().toUtf8(), DateOf(path));
    EXPECT_EQ(replay[u"version"_s].toString(), u"1.0"_s);
    EXPECT_EQ(replay[u"players"_s].toInt(), 1);
    EXPECT_EQ(replay[u"map"_s].toString(), u"Alpine assault"_s);
    EXPECT_EQ(replay[u"path"_s].toString(), Paths::ToNative(path));
}

TEST_F(ReplayCommands, AFileThatEndsTheListingIsNamedAndTheRowsBeforeItArePrinted) {
    const QString first = Put(u"a.rep"_s, SampleReplay(), 1);
    const QString bad = Put(u"b.rep"_s, "GENREP M=maps/x;", 1);
    Put(u"c.rep"_s, SampleReplay(), 1);
    const QByteArray row = "a\t" + DateOf(first) + "\t1.0\t1\tAlpine assault\n";
    Outcome outcome = RunCommand({u"replays"_s, u"list"_s, u"zh"_s});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Output, "count 3\n" + row);
    EXPECT_TRUE(outcome.Error.startsWith("brindock-cli: " + Paths::ToNative(bad).toUtf8() + ": "))
        << outcome.Error.constData();
    EXPECT_EQ(outcome.Error.count('\n'), 1);
    outcome = RunCommand({u"replays"_s, u"list"_s, u"zh"_s, u"--json"_s});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(Json(outcome.Output)[u"count"_s].toInt(), 3);
    EXPECT_EQ(Json(outcome.Output)[u"replays"_s].toArray().size(), 1);
}

TEST_F(ReplayCommands, AFileWithAWrongMarkEndsTheListingAtTheNextReplayAndBothAreNamed) {
    const QString bad = Put(u"b.rep"_s, "no replay", 1);
    const QString next = Put(u"c.rep"_s, SampleReplay(), 1);
    Outcome outcome = RunCommand({u"replays"_s, u"list"_s, u"zh"_s});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Output, QByteArray("count 2\n"));
    EXPECT_TRUE(outcome.Error.contains(Paths::ToNative(bad).toUtf8())) << outcome.Error.constData();
    EXPECT_TRUE(outcome.Error.contains(Paths::ToNative(next).toUtf8())) << outcome.Error.constData();
    Files::DeleteForced(next);
    EXPECT_EQ(Output({u"list"_s, u"zh"_s}), "count 1\n") << "a bad one that comes last";
}

TEST_F(ReplayCommands, ATabOrALineBreakInAColumnComesOutAsABlank) {
    Put(u"a.rep"_s, ReplayBytes(MatchOf("maps/a\tb\nc\rd", "X:X:X:X:X:X:X:X:")), 1);
    EXPECT_TRUE(Output({u"list"_s, u"zh"_s}).endsWith("\t0\tA b c d\n"));
}

TEST_F(ReplayCommands, ShowPrintsTheColumnsAndThePlayersByTeam) {
    const QString path = Put(u"a.rep"_s, Teams(), 1);
    EXPECT_EQ(Output({u"show"_s, Paths::ToNative(path), u"--game"_s, u"zh"_s}),
              "a\t" + DateOf(path) +
                  "\t1.04\t4\tAlpine assault\n"
                  "  Observers\n    Observer 1\n  Team 2\n    Günter (America)\n    Hard (America)\n"
                  "  No team\n    B (America)\n");
}

TEST_F(ReplayCommands, ShowTakesTheSidesOfTheGameThatItIsGiven) {
    const QString path = Put(u"a.rep"_s, SampleReplay(), 1);
    EXPECT_TRUE(Output({u"show"_s, Paths::ToNative(path), u"--game"_s, u"zh"_s}).endsWith("    Player (America)\n"));
    EXPECT_TRUE(Output({u"show"_s, Paths::ToNative(path), u"--game"_s, u"gen"_s}).endsWith("    Player ()\n"));
}

TEST_F(ReplayCommands, ShowAsJsonHoldsTheTree) {
    const QString path = Put(u"a.rep"_s, Teams(), 1);
    const QJsonObject told = Json(Output({u"show"_s, Paths::ToNative(path), u"--game"_s, u"zh"_s, u"--json"_s}));
    EXPECT_EQ(told[u"players"_s].toInt(), 4);
    const QJsonArray tree = told[u"tree"_s].toArray();
    ASSERT_EQ(tree.size(), 3);
    const QJsonObject team = tree[1].toObject();
    EXPECT_EQ(team[u"key"_s].toString(), u"Team 1"_s);
    EXPECT_EQ(team[u"picture"_s].toString(), u"T2"_s);
    ASSERT_EQ(team[u"players"_s].toArray().size(), 2);
    EXPECT_EQ(team[u"players"_s].toArray()[0].toObject()[u"text"_s].toString(), u"Günter (America)"_s);
    EXPECT_EQ(team[u"players"_s].toArray()[1].toObject()[u"key"_s].toString(), u"AI1"_s);
}

TEST_F(ReplayCommands, ShowReadsAReplayOfAnyName) {
    const QString path = world_.WriteFile(u"some\\replay.bak"_s, SampleReplay());
    EXPECT_TRUE(Output({u"show"_s, Paths::ToNative(path), u"--game"_s, u"zh"_s}).startsWith("replay.bak\t"));
}

TEST_F(ReplayCommands, ShowFailsWithOneLineThatNamesTheFile) {
    const QString none = world_.Root() + u"\\none.rep"_s;
    const QString other = Put(u"other.rep"_s, "no replay");
    const QString cut = Put(u"cut.rep"_s, "GENREP");
    for (const QString& path : {none, other, cut}) {
        const Outcome outcome = RunCommand({u"replays"_s, u"show"_s, Paths::ToNative(path), u"--game"_s, u"zh"_s});
        EXPECT_EQ(outcome.Code, 1);
        EXPECT_EQ(outcome.Output, QByteArray());
        EXPECT_TRUE(outcome.Error.startsWith("brindock-cli: " + Paths::ToNative(path).toUtf8() + ": "))
            << outcome.Error.constData();
        EXPECT_EQ(outcome.Error.count('\n'), 1);
    }
}

TEST_F(ReplayCommands, WrongUsageHasTheCode2) {
    const QString path = Paths::ToNative(Put(u"a.rep"_s, SampleReplay()));
    const QList<QStringList> wrong{{},
                                   {u"list"_s},
                                   {u"list"_s, u"quake"_s},
                                   {u"list"_s, u"gen"_s, u"zh"_s},
                                   {u"show"_s, path},
                                   {u"show"_s, u"--game"_s, u"zh"_s},
                                   {u"show"_s, path, u"--game"_s, u"1"_s},
                                   {u"delete"_s, path}};
    for (const QStringList& arguments : wrong) {
        const Outcome outcome = RunCommand(QStringList{u"replays"_s} + arguments);
        EXPECT_EQ(outcome.Code, 2) << arguments.join(u' ').toStdString();
        EXPECT_FALSE(outcome.Error.isEmpty());
        EXPECT_EQ(outcome.Output, QByteArray());
    }
    EXPECT_TRUE(Output({u"list"_s, u"--help"_s}).contains("Usage: "));
    EXPECT_TRUE(Output({u"show"_s, u"--help"_s}).contains("Usage: "));
}
