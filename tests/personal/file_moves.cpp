// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the personal files tell of moves, copies, deletes and rewrites, and how they uninstall.

#include "core/FileMoves.h"
#include "core/Uninstaller.h"
#include "personal/mShellMaps.h"
#include "tests/personal/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

/// Writes down what it is told; paths from the game's "Maps" folder on, or their last part.
class Recorder : public FileFollower {
public:
    Recorder() { FileMoves::Use(this); }

    ~Recorder() override { FileMoves::Use(nullptr); }

    void Moved(const QString& from, const QString& to) noexcept override {
        Log += u"moved "_s + Short(from) + u' ' + Short(to);
    }

    void Copied(const QString& from, const QString& to) noexcept override {
        Log += u"copied "_s + Short(from) + u' ' + Short(to);
    }

    void Deleted(const QString& path) noexcept override { Log += u"deleted "_s + Short(path); }

    void Rewriting(const QString& path) noexcept override { Log += u"rewriting "_s + Short(path); }

    void Rewritten(const QString& path) noexcept override { Log += u"rewritten "_s + Short(path); }

    QStringList Log;

private:
    static QString Short(const QString& path) {
        const QString maps = Game[0].InstallPath + u"Maps\\"_s;
        return path.startsWith(maps) ? path.sliced(maps.size()) : path.sliced(path.lastIndexOf(u'\\') + 1);
    }
};

class ScriptedUninstaller : public Uninstaller {
public:
    ScriptedUninstaller() { Use(this); }

    ~ScriptedUninstaller() override { Use(nullptr); }

    [[nodiscard]] bool Knows(const QString& path) override { return path == Known; }

    bool Uninstall(const QString& path) override {
        Asked += path;
        return OnUninstall && OnUninstall();
    }

    QString Known;
    QStringList Asked;
    std::function<bool()> OnUninstall;
};

class PersonalMoves : public PersonalDocument {
protected:
    Recorder Told;
    ScriptedUninstaller Journal;
};

} // namespace

TEST_F(PersonalMoves, ARenamedReplayIsTold) {
    PutReplay(u"a.rep"_s);
    PutReplay(u"taken.rep"_s);
    Open(u"GenReplays"_s, 0);
    EXPECT_NE(NumberRaisedBy([&] { Personal.RenameRow(0, u"taken"_s); }), 0);
    EXPECT_EQ(Told.Log, QStringList()) << "nothing was moved";
    Open(u"GenReplays"_s, 0);
    Personal.RenameRow(0, u"b"_s);
    EXPECT_EQ(Told.Log, QStringList{u"moved a.rep b.rep"_s});
}

TEST_F(PersonalMoves, WhatIsDeletedIsTold) {
    PutReplay(u"a.rep"_s);
    PutMap(u"A"_s);
    PutMod(u"m"_s);
    for (const QString& node : {u"GenReplays"_s, u"GenMaps"_s, u"GenMods"_s}) {
        Open(node, 0);
        Told.Log.removeIf([](const QString& line) { return line.startsWith(u"re"); });
        Speaker.Answers = {Host::Answer::Yes};
        Personal.Delete();
    }
    EXPECT_EQ(Told.Log, (QStringList{u"deleted a.rep"_s, u"deleted A"_s, u"deleted m.big"_s}));
}

TEST_F(PersonalMoves, ShellMapsThatMoveDownAreToldInOrder) {
    for (int number = 1; number <= 3; ++number)
        PutShellMap(number, "[Infos]\r\n");
    mShellMaps::RemoveShellMap(2, 0);
    ASSERT_EQ(Told.Log.size(), 5);
    EXPECT_EQ(Told.Log.at(0), u"deleted QvShellMap002"_s);
    QStringList files = Told.Log.mid(1, 2);
    files.sort();
    EXPECT_EQ(files, (QStringList{u"copied QvShellMap003\\QvInfos.ini QvShellMap002\\QvInfos.ini"_s,
                                  u"copied QvShellMap003\\shellmap1.map QvShellMap002\\shellmap1.map"_s}));
    EXPECT_EQ(Told.Log.mid(3), (QStringList{u"copied QvShellMap003 QvShellMap002"_s, u"deleted QvShellMap003"_s}));
    Told.Log.clear();
    mShellMaps::RemoveShellMap(2, 0);
    EXPECT_EQ(Told.Log, QStringList{u"deleted QvShellMap002"_s});
}

TEST_F(PersonalMoves, WhatTheBoxesWriteIsToldAroundEachWrite) {
    PutMod(u"m"_s, "[Mod]\r\nName=n\r\n");
    Open(u"GenMods"_s, 0);
    Told.Log.clear();
    Personal.NameTyped(u"other"_s);
    EXPECT_EQ(Told.Log, (QStringList{u"rewriting m.ini"_s, u"rewritten m.ini"_s}));
}

TEST_F(PersonalMoves, OnlyAKnownRowIsUninstalled) {
    Journal.Known = PutMap(u"B"_s);
    PutMap(u"A"_s);
    Open(u"GenMaps"_s, 0);
    EXPECT_FALSE(Personal.MayUninstall(0));
    EXPECT_TRUE(Personal.MayUninstall(1));
    EXPECT_FALSE(Personal.MayUninstall(2));
    EXPECT_FALSE(State().UninstallEnabled);
    Personal.RowSelected(1);
    EXPECT_TRUE(State().UninstallEnabled);
    Personal.NodeClicked(u"GenMaps"_s);
    EXPECT_FALSE(State().UninstallEnabled);
    Personal.UninstallRow(0);
    Personal.UninstallRow(2);
    EXPECT_EQ(Journal.Asked, QStringList());
    Uninstaller::Use(nullptr);
    EXPECT_FALSE(Personal.MayUninstall(1));
    Personal.UninstallRow(1);
}

TEST_F(PersonalMoves, BehindAnUninstallationTreeAndListAreMadeAnew) {
    Journal.Known = PutMap(u"A"_s);
    PutMap(u"B"_s);
    Open(u"GenMaps"_s, 0);
    Journal.OnUninstall = [&] {
        Files::DeleteFolder(Journal.Known);
        return true;
    };
    Personal.UninstallRow(0);
    EXPECT_EQ(Journal.Asked, QStringList{Journal.Known});
    EXPECT_EQ(Names(PersonalKind::Map), QStringList{u"B"_s});
    EXPECT_EQ(NodeText(u"GenMaps"_s), u"Maps (1)"_s);
    EXPECT_EQ(State().SelectedNode, u"GenMaps"_s);
    EXPECT_EQ(Panes(), QString());
    EXPECT_EQ(Actions(), u"yes no no"_s);
}

TEST_F(PersonalMoves, AnUninstallationThatIsRefusedLeavesAllAsItIs) {
    Journal.Known = PutMap(u"A"_s);
    Open(u"GenMaps"_s, 0);
    View.Log.clear();
    Personal.UninstallRow(0);
    EXPECT_EQ(Journal.Asked, QStringList{Journal.Known});
    EXPECT_EQ(View.Log, QStringList());
    EXPECT_EQ(Panes(), u"map"_s);
}
