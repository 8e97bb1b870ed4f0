// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a user does in the window: the actions and keys.

#include "core/mMain.h"
#include "platform/Paths.h"
#include "tests/windows/personal/PersonalFilesWindow.h"

#include <QApplication>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_personalcommands : public PersonalFilesWindow {
    Q_OBJECT
private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void addShowsTheWizardAndRebuildsTheTree() {
        Open();
        ClickNode(u"GenReplays"_s);
        navigator_->OnCall = [this](const QString&) { AddReplay(u"new"_s); };
        ClickLink(0);
        QCOMPARE(navigator_->Calls, QStringList{u"ShowAddFiles"_s});
        QCOMPARE(navigator_->Owner, window_.get());
        QCOMPARE(NodeText(u"GenReplays"_s), u"Replays (1)"_s);
        QCOMPARE(SelectedNode(), u"GenReplays"_s);
        QCOMPARE(Names(*List("lstReplays")), QStringList{u"new"_s});
    }

    void aFileThatIsDroppedOpensTheWizard() {
        Open();
        QMimeData data;
        const QString file = Write(world_->Root() + u"\\My map.map"_s, "m");
        data.setUrls({QUrl::fromLocalFile(Paths::ToNative(file))});
        QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window_.get(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window_.get(), &drop);
        QVERIFY(navigator_->Calls.isEmpty()); // the program that it comes from waits for the end of the drop
        QTRY_COMPARE(navigator_->Calls, QStringList{u"ShowAddFiles "_s + file});
    }

    void textThatIsDroppedIsNoFile() {
        Open();
        QMimeData data;
        data.setText(u"a"_s);
        QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window_.get(), &enter);
        QVERIFY(!enter.isAccepted());
    }

    void deleteAsksWithNoAsItsDefault() {
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        host_->Answers = {Answer::No};
        ClickLink(1);
        QCOMPARE(host_->Messages.size(), std::size_t{1});
        QCOMPARE(host_->Messages[0].Text, u"Delete the selected items?"_s);
        QCOMPARE(host_->Messages[0].Title, u"Brindock 2005"_s);
        QCOMPARE(host_->Messages[0].Sign, Host::Icon::Question);
        QCOMPARE(host_->Messages[0].Choice, Host::Buttons::YesNo);
        QCOMPARE(host_->Messages[0].Default, Answer::No);
        QCOMPARE(Names(list), QStringList({u"a"_s, u"b"_s}));
        QVERIFY(Files::FileExists(Of(0).ReplayPath + u"a.rep"_s));
    }

    void deleteByKeyTakesTheFileAndTheCountIsRight() {
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        host_->Answers = {Answer::Yes};
        QTest::keyClick(&list, Qt::Key_Delete);
        QVERIFY(!Files::FileExists(Of(0).ReplayPath + u"a.rep"_s));
        QCOMPARE(Names(list), QStringList{u"b"_s});
        QCOMPARE(NodeText(u"GenReplays"_s), u"Replays (1)"_s);
        QCOMPARE(SelectedNode(), u"GenReplays"_s);
        QCOMPARE(VisibleDetails(), QStringList());
        QCOMPARE(Enabled(), u"A--"_s);
    }

    void theDeleteKeyDoesNothingWithoutARow() {
        RowListView& list = ShowTwoReplays();
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Delete);
        QVERIFY(host_->Messages.empty());
    }

    void theDeleteKeyInABoxDeletesCharacters() {
        AddMod(u"a.big"_s, "[Mod]\r\nName=Contra\r\n");
        Open();
        ClickNode(u"GenMods"_s);
        Click(*List("lstMods"), 0);
        NameBox()->setFocus();
        NameBox()->setCursorPosition(0);
        QTest::keyClick(NameBox(), Qt::Key_Delete);
        QCOMPARE(NameBox()->text(), u"ontra"_s);
        QTest::keyClick(NameBox(), Qt::Key_Insert);
        QVERIFY(host_->Messages.empty());
        QCOMPARE(navigator_->Calls, QStringList());
    }

    void theDeleteOfAModLeavesItsIni() {
        const QString mod = AddMod(u"a.big"_s, "[Mod]\r\nName=A\r\n");
        Open();
        ClickNode(u"GenMods"_s);
        Click(*List("lstMods"), 0);
        host_->Answers = {Answer::Yes};
        ClickLink(1);
        QVERIFY(!Files::FileExists(mod));
        QVERIFY(Files::FileExists(mod.chopped(4) + u".ini"_s)); // This is meant.
        QCOMPARE(NodeText(u"GenMods"_s), u"Mods (0)"_s);
    }

    void theDeleteOfAMapLeavesAFolderInsideWithoutAMessage() {
        const QString folder = AddMap(u"Alpine"_s);
        Write(folder + u"\\inner\\kept.txt"_s, "x");
        Open();
        ClickNode(u"GenMaps"_s);
        Click(*List("lstMaps"), 0);
        host_->Answers = {Answer::Yes};
        ClickLink(1);
        QCOMPARE(Names(*List("lstMaps")), QStringList());
        QCOMPARE(host_->Messages.size(), std::size_t{1});
        QVERIFY(Files::FileExists(folder + u"\\inner\\kept.txt"_s));
    }

    void exportHandsOverTheRowsWithACheckMark() {
        RowListView& list = ShowTwoReplays();
        ClickMark(list, 1);
        QVERIFY(!IsMarked(list, 0) && IsMarked(list, 1));
        Click(list, 0);
        ClickLink(2);
        QCOMPARE(navigator_->Calls, QStringList{u"ShowExportFiles"_s});
        QCOMPARE(navigator_->Owner, window_.get());
        QCOMPARE(ExportRecords.size(), std::size_t{1});
        QCOMPARE(ExportRecords[0].Name, u"b.rep"_s);
        QCOMPARE(SelectedNode(), u"GenReplays"_s);
    }

    void exportWithoutACheckMarkEndsInTheRunTimeError() {
        [[maybe_unused]] const LostMemory lost;
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        QVERIFY(Fails([this] { Part<QAction>("mnuExport")->trigger(); })); // This is meant.
        QCOMPARE(navigator_->Calls, QStringList());
    }

    void exportOfMapsWithoutACheckMarkHandsOverAnEmptyRecord() {
        AddMap(u"Alpine"_s);
        Open();
        ClickNode(u"GenMaps"_s);
        Click(*List("lstMaps"), 0);
        QTest::keyClick(List("lstMaps"), Qt::Key_E, Qt::ControlModifier);
        QCOMPARE(navigator_->Calls, QStringList{u"ShowExportFiles"_s});
        QCOMPARE(ExportRecords, std::vector<ExportRecord>{{}}); // This is meant.
    }

    void anEmptyNameRenamesNothing() {
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        QTest::keyClick(&list, Qt::Key_F2);
        auto* const field = list.viewport()->findChild<QLineEdit*>();
        field->clear();
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(Cell(list, 0, 0), u"a"_s);
        QVERIFY(Files::FileExists(Of(0).ReplayPath + u"a.rep"_s));
    }

    void refreshReadsTreeAndListAnewAndKeepsMarksAndSelection() {
        RowListView& list = ShowTwoReplays();
        ClickMark(list, 1);
        Click(list, 1);
        AddReplay(u"aa"_s);
        QTest::keyClick(&list, Qt::Key_F5);
        QCOMPARE(Names(list), QStringList({u"a"_s, u"aa"_s, u"b"_s}));
        QCOMPARE(NodeText(u"GenReplays"_s), u"Replays (3)"_s);
        QVERIFY(IsMarked(list, 2));
        QCOMPARE(list.Gestures()->SelectedRows(), std::vector<int>{2});
        QCOMPARE(Text("lblRFileName"), u"b"_s);
        QVERIFY(list.hasFocus());
    }

    void theInsertKeyAddsInTreeAndList() {
        RowListView& list = ShowTwoReplays();
        QTest::keyClick(Tree(), Qt::Key_Insert);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Insert);
        QCOMPARE(navigator_->Calls, QStringList({u"ShowAddFiles"_s, u"ShowAddFiles"_s}));
    }

    void arrowKeysAndTypingWalkThroughTheRows() {
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(Text("lblRFileName"), u"b"_s);
        QTest::keyClicks(&list, u"a"_s);
        QCOMPARE(Text("lblRFileName"), u"a"_s);
    }

    void aHeaderSortsAndTheSelectionGoesAlong() {
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        for (int click = 0; click < 2; ++click)
            QTest::mouseClick(list.header()->viewport(), Qt::LeftButton, {}, {20, 8});
        QCOMPARE(Names(list), QStringList({u"b"_s, u"a"_s}));
        QCOMPARE(list.Gestures()->SelectedRows(), std::vector<int>{1});
        host_->Answers = {Answer::Yes};
        QTest::keyClick(&list, Qt::Key_Delete);
        QCOMPARE(Names(list), QStringList{u"b"_s});
    }

    void aClickWithControlSelectsToo() {
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list.visualRect(list.model()->index(0, 0)).center());
        QCOMPARE(list.Gestures()->SelectedRows(), std::vector<int>{0});
    }

    void theMenusRunTheirCommands() {
        Open();
        for (const char* command : {"mnuOptions", "mnuCheckForUpdates", "mnuAbout"})
            Part<QAction>(command)->trigger();
        QCOMPARE(navigator_->Calls, QStringList({u"ShowOptions"_s, u"CheckForUpdates manual"_s, u"ShowAbout"_s}));
        navigator_->Calls.clear();
        Part<QAction>("mnuExit")->trigger();
        QVERIFY(!window_->isVisible());
        QCOMPARE(navigator_->Calls, QStringList{u"ShowToolsMenu"_s});
    }

    void theSwitchLeavesTheMenuAway() {
        Open();
        mMain::CommandLine = u"/tpfiles"_s;
        QVERIFY(window_->close());
        QCOMPARE(navigator_->Calls, QStringList());
        mMain::CommandLine.clear();
    }

    void everyCommandHasAKeyOfItsOwn() {
        Open();
        QStringList keys;
        for (const QAction* const action : window_->findChildren<QAction*>()) {
            if (!action->objectName().startsWith(u"mnu"_s) || action->menu() != nullptr ||
                action->objectName() == u"mnuExportRow"_s)
                continue;
            QVERIFY2(!action->shortcut().isEmpty(), qPrintable(action->objectName()));
            keys += action->shortcut().toString();
        }
        QCOMPARE(keys.size(), 15);
        QCOMPARE(keys.removeDuplicates(), 0);
    }

    void linksTellWhatTheyDoAndTheirKey() {
        Open();
        QVERIFY(Link(1)->toolTip().endsWith(u"(Del)"_s));
        for (int index = 0; index < 3; ++index)
            QVERIFY(Link(index)->toolTip().startsWith(Link(index)->accessibleDescription()));
    }
};

WINDOW_TEST(tst_personalcommands)

#include "tst_personalcommands.moc"
