// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The CSF Editor with tables that 8 bits can't hold.
#include "tests/csf/WholeBytes.h"
#include "tests/windows/csf/CsfEditorWindow.h"
#include "ui/window/NoticeStrip.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QComboBox>

using namespace Qt::StringLiterals;
using namespace WholeBytes;

class tst_csfwhole : public CsfEditorWindow {
    Q_OBJECT
private:
    void OpenBytes(const QByteArray& bytes) {
        path_ = world_->WriteFile(u"a.csf"_s, bytes);
        window_ = std::make_unique<frmCSFEditor>();
        window_->OpenCSFFile(path_);
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    NoticeStrip* Strip() { return window_->findChild<NoticeStrip*>(); }

    void ClickLink() { QTest::mouseClick(Strip()->findChild<QAbstractButton*>(u"lblNoticeLink_0"_s), Qt::LeftButton); }

    QComboBox* Language() { return Part<QComboBox>("cmbLanguage"); }

    static QByteArray Table() {
        return Head(3, 3, 3) + Entry("b", u"\uD55C\uAD6D\uC5B4"_s) + Entry("c", u"\u4E2D\u6587\U00020000"_s) +
               Entry("a", u"\u0420\u0443\u0441 \u0E44\u0E17\u0E22 Za\u017C"_s);
    }

private Q_SLOTS:

    void init() {
        Begin("[LNG]\r\nTextsBeyond=%1 texts\r\nKeepEverything=Keep\r\nWholeTable=whole\r\nFind=Suchen\r\nNew=Neu\r\n");
    }

    void cleanup() { End(); }

    void theStripLeadsToTheWholeTable() {
        OpenBytes(Table());
        const QAbstractItemModelTester tester(List()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(Strip()->isVisible());
        QCOMPARE(Strip()->Text(), u"3 texts"_s);
        QCOMPARE(window_->windowTitle(), u"a.csf[*] - CSF Editor"_s);
        QVERIFY(!Language()->isEnabled());
        ClickRow(1);
        ClickLink();
        QVERIFY(!Strip()->isVisible());
        QCOMPARE(window_->windowTitle(), u"a.csf[*] (whole) - CSF Editor"_s);
        QVERIFY(!window_->isWindowModified());
        QCOMPARE(Cell(0, 1), u"\u0420\u0443\u0441 \u0E44\u0E17\u0E22 Za\u017C"_s);
        QCOMPARE(List()->currentIndex().row(), 1);
        QCOMPARE(ValueBox()->toPlainText(), u"\uD55C\uAD6D\uC5B4"_s);
        window_->OpenCSFFile(path_);
        QCOMPARE(window_->windowTitle(), u"a.csf[*] - CSF Editor"_s);
        QVERIFY(!Language()->isEnabled());
    }

    void whatIsTypedStaysAndIsSaved() {
        OpenBytes(Table());
        ClickLink();
        ValueBox()->setFocus();
        ValueBox()->moveCursor(QTextCursor::End);
        QInputMethodEvent typed(QString(), {});
        typed.setCommitString(u"\u65E5\U0001F5FA"_s);
        QApplication::sendEvent(ValueBox(), &typed);
        QTest::keyClick(ValueBox(), Qt::Key_Return);
        QVERIFY(!Strip()->isVisible());
        QVERIFY(window_->isWindowModified());
        QTest::keyClick(window_.get(), Qt::Key_S, Qt::ControlModifier);
        const QString value = u"\u0420\u0443\u0441 \u0E44\u0E17\u0E22 Za\u017C"_s;
        QCOMPARE(World::ReadFile(path_), Table().replace(String(value), String(value + u"\u65E5\U0001F5FA\n"_s)));
        QTest::keyClick(ValueBox(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(ValueBox(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(ValueBox()->toPlainText(), value);
        QTest::keyClick(ValueBox(), Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(ValueBox()->toPlainText() != value);
    }

    void pastingBeyondEightBitsOffersIt() {
        OpenBytes(Head(1, 1) + Entry("a", u"1"_s));
        QVERIFY(!Strip()->isVisible());
        ValueBox()->setFocus();
        ValueBox()->selectAll();
        ValueBox()->insertPlainText(u"\uD55C\uAD6D\uC5B4"_s);
        QCOMPARE(ValueBox()->toPlainText(), u"???"_s);
        QVERIFY(Strip()->isVisible());
        ClickLink();
        QCOMPARE(ValueBox()->toPlainText(), u"\uD55C\uAD6D\uC5B4"_s);
        Part<QAction>("mnuSave")->trigger();
        QCOMPARE(World::ReadFile(path_), Head(1, 1) + Entry("a", u"\uD55C\uAD6D\uC5B4"_s));
    }

    void theLanguageListWrites() {
        OpenBytes(Table());
        ClickLink();
        QVERIFY(Language()->isEnabled());
        QCOMPARE(Language()->currentText(), u"3 - French"_s);
        Language()->setFocus();
        QTest::keyClick(Language(), Qt::Key_Up);
        QCOMPARE(Part<QLabel>("lblLanguage")->text(), u"2"_s);
        QVERIFY(window_->isWindowModified());
        Part<QAction>("mnuSave")->trigger();
        QCOMPARE(World::ReadFile(path_), Table().replace(0, 24, Head(3, 3, 2)));
    }

    void theWheelOverTheLanguageListChangesNothing() {
        OpenBytes(Table());
        ClickLink();
        QVERIFY(!Language()->hasFocus());
        const auto turn = [&] {
            QWheelEvent wheel(Language()->rect().center(), Language()->mapToGlobal(Language()->rect().center()), {},
                              {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(Language(), &wheel);
        };
        turn();
        QCOMPARE(Part<QLabel>("lblLanguage")->text(), u"3"_s);
        QVERIFY(!window_->isWindowModified());
        Language()->setFocus();
        turn();
        QCOMPARE(Part<QLabel>("lblLanguage")->text(), u"2"_s);
    }

    void everyPartHasANameForScreenReaders() {
        End();
        BeginInLanguage(u"English"_s);
        OpenBytes(Table());
        for (QWidget* part : window_->findChildren<QWidget*>()) {
            if (!part->isVisible() || part->focusPolicy() == Qt::NoFocus)
                continue;
            QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(part);
            QVERIFY2(!told->text(QAccessible::Name).isEmpty(), qPrintable(part->objectName()));
        }
        QCOMPARE(window_->statusBar()->accessibleName(), u"CSF file"_s);
    }

    void aChangeOfTheFileIsNoticedAtTheFront() {
        OpenBytes(Head(1, 1) + Entry("a", u"1"_s));
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        world_->WriteFile(u"a.csf"_s, Head(1, 1) + Entry("a", u"others"_s));
        QVERIFY(!Strip()->isVisible());
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        QTRY_VERIFY(Strip()->isVisible());
        QCOMPARE(Strip()->Text(), u"ChangedOnDisk"_s);
        QCOMPARE(ValueBox()->toPlainText(), u"1"_s);
        ClickLink();
        QCOMPARE(ValueBox()->toPlainText(), u"others"_s);
        QVERIFY(!Strip()->isVisible());
    }

    void whatCantBeOpenedIsToldInTheStrip() {
        OpenBytes(Head(1, 1) + Entry("a", u"1"_s));
        window_->OpenCSFFile(world_->WriteFile(u"b.csf"_s, "RIFF0123456789"));
        QVERIFY(Strip()->isVisible());
        QCOMPARE(Strip()->Text(), u"TableNotOpened"_s);
        QCOMPARE(window_->windowTitle(), u"a.csf[*] - CSF Editor"_s);
    }

    void lettersThatTheBoxUsesItselfComeThrough() {
        const QString rare = u"a\u240D\u2028b\u2029\uFDD0c\uFDD1\uFFFC\uFEFF\r\U0001F5FA"_s + QChar(0xD800);
        OpenBytes(Head(1, 1) + Entry("a", rare));
        ClickLink();
        ValueBox()->moveCursor(QTextCursor::End);
        QTest::keyClicks(ValueBox(), u"!"_s);
        Part<QAction>("mnuSave")->trigger();
        QCOMPARE(World::ReadFile(path_), Head(1, 1) + Entry("a", rare + u'!'));
    }
};

WINDOW_TEST(tst_csfwhole)

#include "tst_csfwhole.moc"
