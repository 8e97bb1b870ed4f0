// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "tests/windows/csf/CsfEditorWindow.h"
#include "ui/window/NoticeStrip.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_csfeditorcommands : public CsfEditorWindow {
    Q_OBJECT
private:
    SideLink* Link(int index) { return window_->findChild<SideLink*>(u"Label2_%1"_s.arg(index)); }

    void ClickLink(int index) { QTest::mouseClick(Link(index), Qt::LeftButton); }

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void whatIsTypedIsRescuedAndOfferedAtTheNextStart() {
        Open({{u"1"_s, u"a"_s}});
        ValueBox()->setFocus();
        QTest::keyClicks(ValueBox(), u"typed"_s);
        window_->findChild<QTimer*>(u"tmrRescue"_s)->start(0);
        QTRY_VERIFY(Files::FolderExists(Rescues::Folder()));
        window_.reset();
        Show();
        auto* const strip = window_->findChild<NoticeStrip*>();
        QVERIFY(strip->isVisible());
        QTest::mouseClick(window_->findChild<QWidget*>(u"lblNoticeLink_0"_s), Qt::LeftButton);
        QVERIFY(!strip->isVisible());
        QVERIFY(ValueBox()->toPlainText().contains(u"typed"_s));
        QVERIFY(window_->isWindowModified());
        QTest::keyClick(window_.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!window_->isWindowModified());
        QCOMPARE(Files::ListFolder(Rescues::Folder() + u"\\*"_s, true), QStringList());
    }

    void aSavThatAKilledSaveLeftIsOfferedWithThreeLinks() {
        CsfTable{0, {{u"old"_s, u"a"_s}}}.Write(world_->Root() + u"\\b.csf"_s);
        Files::Rename(world_->Root() + u"\\b.csf"_s, world_->Root() + u"\\a.csf.new"_s);
        Open({{u"1"_s, u"a"_s}});
        Files::Rename(world_->Root() + u"\\a.csf.new"_s, path_ + u".sav"_s);
        window_->OpenCSFFile(path_);
        for (const char* const link : {"lblNoticeLink_0", "lblNoticeLink_1", "lblNoticeLink_2"})
            QVERIFY(Part<QWidget>(link)->isVisible());
        QTest::mouseClick(Part<QWidget>("lblNoticeLink_0"), Qt::LeftButton);
        QCOMPARE(ValueBox()->toPlainText(), u"old"_s);
        QVERIFY(!Files::FileExists(path_ + u".sav"_s));
    }

    void theColumnsAreNameAndValue() {
        world_->UseLanguage("[LNG]\r\nName=Nom\r\nValue=Valeur\r\n");
        world_->Start();
        OpenThree();
        const QHeaderView* const header = List()->header();
        QCOMPARE(header->count(), 2);
        QCOMPARE(List()->model()->headerData(0, Qt::Horizontal).toString(), u"Nom"_s);
        QCOMPARE(List()->model()->headerData(1, Qt::Horizontal).toString(), u"Valeur"_s);
        QCOMPARE(header->sectionSize(0), 166); // 2500 twips
        QCOMPARE(header->sectionSize(0) + header->sectionSize(1), List()->viewport()->width());
    }

    void aRowsTipIsItsValue() {
        OpenThree();
        for (const int column : {0, 1})
            QVERIFY(List()->model()->index(0, column).data(Qt::ToolTipRole).toString().contains(u">1\nlines<"_s));
        ValueBox()->setFocus();
        ValueBox()->selectAll();
        QTest::keyClicks(ValueBox(), u"typed"_s);
        QVERIFY(List()->model()->index(0, 0).data(Qt::ToolTipRole).toString().contains(u">typed<"_s));
    }

    void theLeftPanesEntriesRunTheirCommands() {
        OpenThree();
        ClickLink(0);
        QCOMPARE(Names(), QStringList({u"alpha"_s, u"beta"_s, u"Gamma"_s, u"Neu"_s}));
        ClickLink(1);
        QCOMPARE(Names(), QStringList({u"beta"_s, u"Gamma"_s, u"Neu"_s}));
        ClickLink(4);
        QVERIFY(!window_->isWindowModified());
        ClickLink(2);
        QCOMPARE(Names(), QStringList());
        QCOMPARE(Part<QLabel>("lblSize")->text(), u"-"_s);
        QCOMPARE(Part<QLabel>("lblLanguage")->text(), u"0"_s);
        host_->FileNames = {path_};
        ClickLink(3);
        QCOMPARE(Names(), QStringList({u"beta"_s, u"Gamma"_s, u"Neu"_s}));
        QVERIFY(host_->Messages.empty());
    }

    void theMenusRunTheirCommands() {
        OpenThree();
        Part<QAction>("mnuAdd")->trigger();
        host_->FileNames = {world_->Root() + u"\\b.csf"_s};
        Part<QAction>("mnuSaveAs")->trigger();
        QVERIFY(Files::FileExists(world_->Root() + u"\\b.csf"_s));
        QVERIFY(window_->windowTitle().startsWith(u"b.csf"_s));
        host_->FileNames = {path_};
        Part<QAction>("mnuOpen")->trigger();
        QCOMPARE(Names(), QStringList({u"alpha"_s, u"beta"_s, u"Gamma"_s}));
        for (const char* command : {"mnuOptions", "mnuCheckForUpdates", "mnuAbout"})
            Part<QAction>(command)->trigger();
        QCOMPARE(navigator_->Calls, QStringList({u"ShowOptions"_s, u"CheckForUpdates manual"_s, u"ShowAbout"_s}));
        Part<QAction>("mnuExit")->trigger();
        QVERIFY(!window_->isVisible());
    }

    void aKeyThatSelectsTheCurrentRowClicksItToo() {
        Show();
        Part<QAction>("mnuNew")->trigger();
        Part<QAction>("mnuAdd")->trigger();
        FindBox()->setFocus();
        List()->setFocus(); // makes the row the current one, without a selection
        QVERIFY(!NameBox()->isEnabled());
        QTest::keyClick(List(), Qt::Key_Space);
        QVERIFY(List()->selectionModel()->isRowSelected(0));
        QVERIFY(NameBox()->isEnabled());
        QCOMPARE(NameBox()->text(), u"Neu"_s);
        QTest::keyClicks(NameBox(), u"!"_s);
        QCOMPARE(Names(), QStringList{u"Neu!"_s});
    }

    void homeAndEndWalkTooAndFillTheBoxes() {
        OpenThree();
        List()->setFocus();
        QTest::keyClick(List(), Qt::Key_End);
        QCOMPARE(NameBox()->text(), u"Gamma"_s);
        QTest::keyClick(List(), Qt::Key_Home);
        QCOMPARE(NameBox()->text(), u"alpha"_s);
        QTest::keyClicks(List(), u"b"_s);
        QCOMPARE(NameBox()->text(), u"beta"_s);
        QVERIFY(!window_->isWindowModified());
    }

    void aValueTypedWithLineBreaksComesBackOnTheNextClick() {
        OpenThree();
        ClickRow(1);
        ValueBox()->setFocus();
        ValueBox()->selectAll();
        QTest::keyClicks(ValueBox(), u"x"_s);
        QTest::keyClick(ValueBox(), Qt::Key_Return);
        QTest::keyClicks(ValueBox(), u"y"_s);
        ClickRow(0);
        ClickRow(1);
        QCOMPARE(ValueBox()->toPlainText(), u"x\ny"_s);
    }

    void theSwitchLeavesTheMenuAway() {
        OpenThree();
        mMain::CommandLine = u"/tcsf a.csf"_s;
        QVERIFY(window_->close());
        QCOMPARE(navigator_->Calls, QStringList());
        mMain::CommandLine.clear();
    }

    void aRefusedFileLeavesTheWindowAsItWas() {
        OpenThree();
        ClickRow(1);
        window_->OpenCSFFile(world_->WriteFile(u"bad.csf"_s, "bad"));
        QCOMPARE(host_->Messages.size(), std::size_t{1});
        QCOMPARE(Names(), QStringList({u"alpha"_s, u"beta"_s, u"Gamma"_s}));
        QCOMPARE(NameBox()->text(), u"beta"_s);
    }
};

WINDOW_TEST(tst_csfeditorcommands)

#include "tst_csfeditorcommands.moc"
