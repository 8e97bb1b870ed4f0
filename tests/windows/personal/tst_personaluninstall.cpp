// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// "Uninstall what came with it" in a row's menu.

#include "install/journal/InstallJournal.h"
#include "install/journal/JournalFollower.h"
#include "install/journal/JournalRun.h"
#include "install/journal/Uninstall.h"
#include "tests/windows/personal/PersonalFilesWindow.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_personaluninstall : public PersonalFilesWindow {
    Q_OBJECT
    std::unique_ptr<JournalFollower> follower_;

    /// Writes files as an install does.
    void InstallFiles(const QList<std::pair<QString, QByteArray>>& files) {
        JournalRun run(Write(world_->Root() + u"\\Pack.zip"_s, "abc"), 0);
        for (const auto& [path, bytes] : files) {
            run.WillWrite(path);
            Write(path, bytes);
            run.Written(path);
        }
    }

    QMenu* MenuOf(RowListView& list, int row) {
        Q_EMIT list.customContextMenuRequested(list.visualRect(list.model()->index(row, 0)).center());
        return Part<QMenu>("mnuRow");
    }

    void Choose(RowListView& list, int row, const char* action) {
        QMenu* const menu = MenuOf(list, row);
        QVERIFY(menu->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(Part<QAction>(action)).center());
        QVERIFY(!menu->isVisible());
    }

private Q_SLOTS:

    void init() {
        Begin();
        follower_ = std::make_unique<JournalFollower>();
    }

    void cleanup() {
        End();
        follower_.reset();
    }

    void onlyWhatCameByAnInstallIsOffered() {
        AddMap(u"Mine"_s);
        InstallFiles({{Of(0).MapPath + u"Theirs\\Theirs.map"_s, QByteArray(2000, 'm')}});
        Open();
        ClickNode(u"GenMaps"_s);
        RowListView& list = *List("lstMaps");
        QCOMPARE(Names(list), QStringList({u"Mine"_s, u"Theirs"_s}));
        QMenu* const menu = MenuOf(list, 0);
        QVERIFY(!Part<QAction>("mnuUninstall")->isEnabled());
        menu->close();
        MenuOf(list, 1);
        QVERIFY(Part<QAction>("mnuUninstall")->isEnabled());
        menu->close();
    }

    void theListIsShownAndNoLeavesAll() {
        InstallFiles({{Of(0).MapPath + u"A\\A.map"_s, "m"}, {Of(0).InstallPath + u"Mod.big"_s, "b"}});
        Open();
        ClickNode(u"GenMaps"_s);
        host_->Answers = {Answer::No};
        Choose(*List("lstMaps"), 0, "mnuUninstall");
        QCOMPARE(host_->Messages.size(), std::size_t{1});
        const QString& text = host_->Messages[0].Text;
        QVERIFY2(text.startsWith(u"Uninstall what came with Pack.zip on "), qPrintable(text));
        QVERIFY2(text.contains(u"Files that go (2):\r\n"), qPrintable(text));
        QVERIFY2(text.contains(u"Folders that go (1):\r\n"), qPrintable(text));
        QVERIFY(host_->Messages[0].Default == Answer::No);
        QVERIFY(Files::FileExists(Of(0).InstallPath + u"Mod.big"_s));
        QCOMPARE(Names(*List("lstMaps")), QStringList{u"A"_s});
    }

    void yesTakesAllAwayAndTheListIsMadeAnew() {
        AddMap(u"B"_s);
        InstallFiles({{Of(0).MapPath + u"A\\A.map"_s, "m"}, {Of(0).InstallPath + u"Mod.big"_s, "b"}});
        Open();
        ClickNode(u"GenMaps"_s);
        QCOMPARE(NodeText(u"GenMods"_s), u"Mods (1)"_s);
        host_->Answers = {Answer::Yes};
        Choose(*List("lstMaps"), 0, "mnuUninstall");
        QCOMPARE(Names(*List("lstMaps")), QStringList{u"B"_s});
        QCOMPARE(NodeText(u"GenMaps"_s), u"Maps (1)"_s);
        QCOMPARE(NodeText(u"GenMods"_s), u"Mods (0)"_s);
        QVERIFY(!Files::FileExists(Of(0).InstallPath + u"Mod.big"_s));
        QVERIFY(VisibleDetails().isEmpty());
        QVERIFY(InstallJournal::Read().Entries.empty());
    }

    void theKeyWorksOnAKnownRowOnly() {
        AddMap(u"Mine"_s);
        InstallFiles({{Of(0).MapPath + u"Theirs\\Theirs.map"_s, "m"}});
        Open();
        ClickNode(u"GenMaps"_s);
        RowListView& list = *List("lstMaps");
        Click(list, 0);
        QTest::keyClick(&list, Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(host_->Messages.size(), std::size_t{0});
        Click(list, 1);
        host_->Answers = {Answer::Yes};
        QTest::keyClick(&list, Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(Names(list), QStringList{u"Mine"_s});
        QVERIFY(!Part<QAction>("mnuUninstall")->isEnabled());
    }

    void whatCameInMeanwhileIsOfferedToo() {
        AddMap(u"A"_s);
        Open();
        ClickNode(u"GenMaps"_s);
        RowListView& list = *List("lstMaps");
        Click(list, 0);
        InstallFiles({{Of(0).MapPath + u"A\\A.tga"_s, "t"}});
        MenuOf(list, 0);
        QVERIFY(Part<QAction>("mnuUninstall")->isEnabled());
        Part<QMenu>("mnuRow")->close();
    }

    void whatTheBoxesWriteIsStillTheInstalls() {
        const QString mod = Of(0).InstallPath + u"Mod.big"_s;
        InstallFiles({{mod, "b"}, {Of(0).InstallPath + u"Mod.ini"_s, "[Mod]\r\nName=a\r\n"}});
        Open();
        ClickNode(u"GenMods"_s);
        Click(*List("lstMods"), 0);
        QTest::keyClicks(NameBox(), u"bc"_s);
        QVERIFY(Ini(u"Mod"_s, u"Name"_s, Of(0).InstallPath + u"Mod.ini"_s) != u"a"_s);
        host_->Answers = {Answer::Yes};
        Choose(*List("lstMods"), 0, "mnuUninstall");
        QVERIFY(!Files::FileExists(mod));
        QVERIFY(!Files::FileExists(Of(0).InstallPath + u"Mod.ini"_s));
    }

    void theJournalIsWrittenWhenTheBoxesRest() {
        const QString ini = Of(0).InstallPath + u"Mod.ini"_s;
        InstallFiles({{Of(0).InstallPath + u"Mod.big"_s, "b"}, {ini, "[Mod]\r\nName=a\r\n"}});
        Open();
        ClickNode(u"GenMods"_s);
        Click(*List("lstMods"), 0);
        const FileState before = StateOf(InstallJournal::File());
        QTest::keyClicks(NameBox(), u"bc"_s);
        QVERIFY(StateOf(InstallJournal::File()) == before);
        QTRY_VERIFY(StateOf(InstallJournal::File()) != before);
        QCOMPARE(Uninstall::Plan(InstallJournal::Read(), 1).Paths(PlannedRemoval::Fate::Goes).size(), 2);
    }
};

WINDOW_TEST(tst_personaluninstall)

#include "tst_personaluninstall.moc"
