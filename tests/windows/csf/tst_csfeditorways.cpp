// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Every menu entry, link and key of the CSF Editor, what stays where it was behind a save, and the search.
#include "platform/Files.h"
#include "tests/windows/EveryWay.h"
#include "tests/windows/csf/CsfEditorWindow.h"

#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_csfeditorways : public CsfEditorWindow {
    Q_OBJECT
private:
    QString NewPath() { return world_->Root() + u"\\new.csf"_s; }

    CommandWays Call(const char* action, const QString& call) {
        return {action, -1, [] {}, [this, call] { return navigator_->Calls.contains(call); }};
    }

    std::vector<CommandWays> All() {
        return {
            {"mnuNew", 2, [] {}, [this] { return Names().isEmpty() && !NameBox()->isEnabled(); }},
            {"mnuOpen", 3,
             [this] {
                 CsfTable{0, {{u"v"_s, u"other"_s}}}.Write(NewPath());
                 host_->FileNames = {NewPath()};
             },
             [this] { return Names() == QStringList{u"other"_s}; }},
            {"mnuSave", 4, [this] { Part<QAction>("mnuAdd")->trigger(); },
             [this] { return !window_->isWindowModified() && CsfTable::Read(path_).Strings.size() == 4; }},
            {"mnuSaveAs", -1, [this] { host_->FileNames = {NewPath()}; },
             [this] { return Files::FileExists(NewPath()); }},
            {"mnuExit", -1, [] {}, [this] { return !window_->isVisible(); }},
            {"mnuUndo", -1, [this] { Part<QAction>("mnuDelete")->trigger(); }, [this] { return Names().size() == 3; }},
            {"mnuRedo", -1,
             [this] {
                 Part<QAction>("mnuAdd")->trigger();
                 Part<QAction>("mnuUndo")->trigger();
             },
             [this] { return Names().size() == 4; }},
            {"mnuAdd", 0, [] {}, [this] { return Names().size() == 4 && window_->isWindowModified(); }},
            {"mnuDelete", 1, [] {},
             [this] {
                 return Names() == QStringList({u"beta"_s, u"Gamma"_s});
             }},
            {"mnuFind", -1, [] {}, [this] { return FindBox()->hasFocus(); }},
            Call("mnuOptions", u"ShowOptions"_s),
            Call("mnuCheckForUpdates", u"CheckForUpdates manual"_s),
            Call("mnuAbout", u"ShowAbout"_s),
            {"mnuManual", -1, [] {}, [this] { return host_->Messages.size() == 1; }}, // there is none in this world
        };
    }

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void everyWayIsTried() {
        OpenThree();
        QCOMPARE(EveryWay::Unlisted(*window_, All()), QStringList());
    }

    void everyWayRunsItsCommand_data() { EveryWay::AddRows(All()); }

    void everyWayRunsItsCommand() {
        QFETCH(int, command);
        QFETCH(int, way);
        const CommandWays used = All()[static_cast<std::size_t>(command)];
        OpenThree();
        List()->setFocus();
        used.Prepare();
        EveryWay::Use(*window_, used, way);
        QVERIFY(used.Done());
        QVERIFY(host_->FileNames.empty());
    }

    void recentFilesAreOpenedByTheirMenu() {
        OpenThree();
        CsfTable{0, {{u"v"_s, u"other"_s}}}.Write(NewPath());
        window_->OpenCSFFile(NewPath());
        auto* const menu = Part<QMenu>("mnuRecent");
        Q_EMIT menu->aboutToShow();
        QCOMPARE(menu->actions().size(), 2);
        QVERIFY(menu->actions()[0]->text().endsWith("new.csf"_L1));
        menu->actions()[1]->trigger();
        QCOMPARE(Names().size(), 3);
    }

    void undoAndRedoAreThereWhenTheyCanBe() {
        OpenThree();
        auto* const undo = Part<QAction>("mnuUndo");
        auto* const redo = Part<QAction>("mnuRedo");
        QVERIFY(!undo->isEnabled() && !redo->isEnabled());
        NameBox()->setFocus();
        QTest::keyClicks(NameBox(), u"!?"_s);
        QVERIFY(undo->isEnabled() && !redo->isEnabled());
        undo->trigger();
        QCOMPARE(NameBox()->text(), u"alpha"_s);
        QVERIFY(!undo->isEnabled() && redo->isEnabled());
        QVERIFY(!window_->isWindowModified());
        List()->setFocus();
        QTest::keyClick(List(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(Cell(0, 0), u"alpha!?"_s);
    }

    void keysInABoxTakeBackWhatWasTypedThere() {
        OpenThree();
        Part<QAction>("mnuAdd")->trigger();
        NameBox()->setFocus();
        QTest::keyClicks(NameBox(), u"!"_s);
        QTest::keyClick(NameBox(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(NameBox(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Names(), QStringList({u"alpha"_s, u"beta"_s, u"Gamma"_s, u"Neu"_s}));
        Part<QAction>("mnuUndo")->trigger();
        QCOMPARE(Names().size(), 3);
    }

    void theNextMatchIsFoundByButtonEnterAndF3_data() {
        QTest::addColumn<QString>("how");
        for (const char* how : {"button", "Enter", "F3", "F3 in the list", "Enter of the pad"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }

    void theNextMatchIsFoundByButtonEnterAndF3() {
        QFETCH(QString, how);
        OpenThree();
        FindBox()->setFocus();
        QTest::keyClicks(FindBox(), u"gam"_s);
        if (how == "button"_L1)
            QTest::mouseClick(Part<QPushButton>("cmdFindNext"), Qt::LeftButton);
        else if (how == "F3 in the list"_L1)
            QTest::keyClick(List(), Qt::Key_F3);
        else
            QTest::keyClick(FindBox(), how == "F3"_L1      ? Qt::Key_F3
                                       : how == "Enter"_L1 ? Qt::Key_Return
                                                           : Qt::Key_Enter);
        QCOMPARE(List()->currentIndex().row(), 2);
        QCOMPARE(NameBox()->text(), u"Gamma"_s);
    }

    void theCheckMarkLooksInValues() {
        OpenThree();
        FindBox()->setFocus();
        QTest::keyClicks(FindBox(), u"3"_s);
        QTest::keyClick(FindBox(), Qt::Key_Return);
        QCOMPARE(List()->currentIndex().row(), 0);
        QCOMPARE(Told(), u"3 rows, 0 matches"_s);
        FindBox()->setFocus();
        QTest::keyClick(FindBox(), Qt::Key_Tab);
        QTest::keyClick(window_->focusWidget(), Qt::Key_Space);
        QVERIFY(Part<QCheckBox>("chkFindInValues")->isChecked());
        QCOMPARE(Told(), u"3 rows, 1 matches"_s);
        QTest::mouseClick(Part<QPushButton>("cmdFindNext"), Qt::LeftButton);
        QCOMPARE(List()->currentIndex().row(), 2);
    }

    void aSaveLeavesRowScrollAndSelection() {
        std::vector<CsfString> table;
        table.reserve(500);
        for (int row = 0; row < 500; ++row)
            table.push_back({u"value"_s, u"name %1"_s.arg(row, 3, 10, QChar(u'0'))});
        Open(table);
        List()->scrollTo(List()->model()->index(250, 0), QAbstractItemView::PositionAtCenter);
        ClickRow(250);
        const int scrolled = List()->verticalScrollBar()->value();
        QVERIFY(scrolled > 100);
        QTest::keyClick(List(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(List()->verticalScrollBar()->value(), scrolled);
        QCOMPARE(List()->selectionModel()->selectedRows().size(), 1);
        QCOMPARE(List()->currentIndex().row(), 250);
        QCOMPARE(NameBox()->text(), u"name 250"_s);
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(List()->verticalScrollBar()->value(), scrolled);
        QCOMPARE(List()->currentIndex().row(), 250);
        QCOMPARE(NameBox()->text(), u"name 251"_s);
    }
};

WINDOW_TEST(tst_csfeditorways)

#include "tst_csfeditorways.moc"
