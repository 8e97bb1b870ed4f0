// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "platform/AnsiCodec.h"
#include "tests/windows/csf/CsfEditorWindow.h"
#include "ui/window/NoticeStrip.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QGroupBox>
#include <QMenuBar>
#include <QPushButton>
#include <QStandardItemModel>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_csfeditor : public CsfEditorWindow {
    Q_OBJECT
private:
    /// In the language of the test's row.
    void ShowIn() {
        QFETCH(QString, language);
        End();
        Begin(OwnLanguages::Bytes(language));
        OpenThree();
    }

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void theModelKeepsTheRules() {
        OpenThree();
        const QAbstractItemModelTester tester(List()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        Part<QAction>("mnuAdd")->trigger();
        QTest::mouseClick(List()->header()->viewport(), Qt::LeftButton, {}, {20, 8});
        ClickRow(0);
        Part<QAction>("mnuDelete")->trigger();
        window_->OpenCSFFile(path_);
        QCOMPARE(List()->model()->rowCount(), 3);
    }

    void anOpenedFileIsShownSortedWithItsFirstRowSelected() {
        OpenThree();
        QCOMPARE(Names(), QStringList({u"alpha"_s, u"beta"_s, u"Gamma"_s}));
        QCOMPARE(List()->currentIndex().row(), 0);
        QCOMPARE(NameBox()->text(), u"alpha"_s);
        QCOMPARE(ValueBox()->toPlainText(), u"1\nlines"_s);
        QVERIFY(NameBox()->isEnabled() && ValueBox()->isEnabled());
        QCOMPARE(Part<QGroupBox>("fraFileInfos")->title(), u"a.csf"_s);
        QCOMPARE(Part<QLabel>("lblSize")->text(), u"0 KB"_s);
        QCOMPARE(Part<QLabel>("lblLanguage")->text(), u"3"_s);
        QCOMPARE(Part<QComboBox>("cmbLanguage")->currentText(), u"3 - French"_s);
        QVERIFY(!window_->isWindowModified());
        QVERIFY(Part<QWidget>("mnuActions")->isVisible());
    }

    void withoutADocumentThereIsNothingToChange() {
        Show();
        QVERIFY(!Part<QWidget>("fraFileInfos")->isVisible());
        QVERIFY(!Part<QWidget>("mnuActions")->isVisible());
        QVERIFY(!NameBox()->isEnabled() && !ValueBox()->isEnabled());
        QCOMPARE(FindBox()->text(), u"Suchen"_s);
        QCOMPARE(FindBox()->palette().color(QPalette::Text), QColor(0x80, 0x80, 0x80));
    }

    void typingChangesTheSelectedRow() {
        OpenThree();
        ClickRow(1);
        NameBox()->setFocus();
        NameBox()->selectAll();
        QTest::keyClicks(NameBox(), u"delta"_s);
        ValueBox()->setFocus();
        ValueBox()->selectAll();
        QTest::keyClicks(ValueBox(), u"x"_s);
        QTest::keyClick(ValueBox(), Qt::Key_Return);
        QTest::keyClicks(ValueBox(), u"y"_s);
        QCOMPARE(Cell(1, 0), u"delta"_s);
        QCOMPARE(Cell(1, 1), u"x\u21B5y"_s);
        QVERIFY(window_->isWindowModified());
        QTest::keyClick(window_.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!window_->isWindowModified());
        QCOMPARE(mCSF::ReadCSF(path_), 3);
        QCOMPARE(mCSF::CsfStrings[1].Name, u"delta"_s);
        QCOMPARE(mCSF::CsfStrings[1].Value, u"x\ny"_s);
    }

    void walkingThroughTheRowsChangesNothing() {
        OpenThree();
        QVERIFY(List()->hasFocus());
        List()->setFocus();
        QTest::keyClick(List(), Qt::Key_Down);
        QCOMPARE(NameBox()->text(), u"beta"_s);
        QTest::keyClick(List(), Qt::Key_Down);
        QCOMPARE(NameBox()->text(), u"Gamma"_s);
        QVERIFY(!window_->isWindowModified());
    }

    void everyCharacterComesThroughTheBoxes() {
        QByteArray bytes;
        for (int byte = 0; byte < 256; ++byte)
            bytes += static_cast<char>(byte);
        const QString all = AnsiCodec::Decode(bytes);
        Open({{all, all}});
        ValueBox()->moveCursor(QTextCursor::End);
        QTest::keyClicks(ValueBox(), u"!"_s);
        NameBox()->end(false);
        QTest::keyClicks(NameBox(), u"?"_s);
        Part<QAction>("mnuSave")->trigger();
        mCSF::ReadCSF(path_);
        QCOMPARE(mCSF::CsfStrings[0].Value, all + u'!');
        QCOMPARE(mCSF::CsfStrings[0].Name, all + u'?');
    }

    void anEndlessLineIsWrappedWithoutLookingForWords() {
        const QString endless(200'000, u'x');
        Open({{endless, u"a"_s}, {u"short words"_s, u"b"_s}});
        QCOMPARE(ValueBox()->wordWrapMode(), QTextOption::WrapAnywhere);
        QCOMPARE(ValueBox()->toPlainText(), endless);
        ClickRow(1);
        QCOMPARE(ValueBox()->wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    }

    void aChangeInABoxCanBeTakenBack() {
        OpenThree();
        NameBox()->setFocus();
        QTest::keyClicks(NameBox(), u"!"_s);
        QCOMPARE(Cell(0, 0), u"alpha!"_s);
        QTest::keyClick(NameBox(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Cell(0, 0), u"alpha"_s);
        ValueBox()->setFocus();
        QTest::keyClicks(ValueBox(), u"?"_s);
        QTest::keyClick(ValueBox(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Cell(0, 1), u"1\u21B5lines"_s);
    }

    void lettersThatTablesLackAreShownAsTheyWillBeStored() {
        OpenThree();
        NameBox()->setFocus();
        NameBox()->setCursorPosition(1);
        QInputMethodEvent name(QString(), {});
        name.setCommitString(u"\u65E5\U0001F5FAx"_s);
        QApplication::sendEvent(NameBox(), &name);
        QCOMPARE(NameBox()->text(), u"a??xlpha"_s);
        QCOMPARE(NameBox()->cursorPosition(), 4);
        QCOMPARE(Cell(0, 0), u"a??xlpha"_s);
        QCOMPARE(window_->findChild<NoticeStrip*>()->Text(), u"LettersLost"_s);

        ValueBox()->setFocus();
        ValueBox()->moveCursor(QTextCursor::End);
        ValueBox()->insertPlainText(u" one\ntwo"_s);
        ValueBox()->moveCursor(QTextCursor::StartOfLine);
        ValueBox()->insertPlainText(u"\u65E5\U0001F5FA\u672C\u20AC\u56FE"_s);
        QCOMPARE(ValueBox()->toPlainText(), u"1\nlines one\n???\u20AC?two"_s);
        QCOMPARE(ValueBox()->textCursor().positionInBlock(), 5);
        QCOMPARE(Cell(0, 1), u"1\u21B5lines one\u21B5???\u20AC?two"_s);
        ValueBox()->undo();
        QCOMPARE(ValueBox()->toPlainText(), u"1\nlines one\n???\u20AC?two"_s);
    }

    void takingBackNeverReachesTheRowBefore() {
        OpenThree();
        ClickRow(1);
        NameBox()->setFocus();
        QTest::keyClick(NameBox(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Names(), QStringList({u"alpha"_s, u"beta"_s, u"Gamma"_s}));
        QVERIFY(!window_->isWindowModified());
    }

    void addPutsARowAtTheEndByKeyAndByLink() {
        OpenThree();
        List()->setFocus();
        QTest::keyClick(List(), Qt::Key_Insert);
        QTest::mouseClick(Part<SideLink>("Label2_0"), Qt::LeftButton);
        QCOMPARE(Names(), QStringList({u"alpha"_s, u"beta"_s, u"Gamma"_s, u"Neu"_s, u"Neu"_s}));
        QCOMPARE(Cell(3, 1), u"Wert"_s);
        QCOMPARE(List()->currentIndex().row(), 0);
        QVERIFY(window_->isWindowModified());
    }

    void theDeleteKeyRemovesARowAndSelectsTheNext() {
        OpenThree();
        ClickRow(0);
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(Names(), QStringList({u"beta"_s, u"Gamma"_s}));
        QCOMPARE(List()->currentIndex().row(), 0);
        QCOMPARE(NameBox()->text(), u"beta"_s);
    }

    void theDeleteKeyInABoxDeletesCharacters() {
        OpenThree();
        NameBox()->setFocus();
        NameBox()->setCursorPosition(0);
        QTest::keyClick(NameBox(), Qt::Key_Delete);
        QCOMPARE(Names(), QStringList({u"lpha"_s, u"beta"_s, u"Gamma"_s}));
    }

    void aHeaderSortsUpAndDownAndKeepsTheSelection() {
        OpenThree();
        ClickRow(0);
        QTest::mouseClick(List()->header()->viewport(), Qt::LeftButton, {}, {20, 8});
        QCOMPARE(Names(), QStringList({u"Gamma"_s, u"beta"_s, u"alpha"_s}));
        QCOMPARE(List()->currentIndex().row(), 2);
        QCOMPARE(NameBox()->text(), u"alpha"_s);
        QTest::keyClicks(NameBox(), u"!"_s);
        QCOMPARE(Cell(2, 0), u"alpha!"_s);
        QVERIFY(List()->header()->isSortIndicatorShown());
        QCOMPARE(List()->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    }

    void theSearchBoxShowsItsPromptWhileItIsEmpty() {
        OpenThree();
        QTest::keyClick(window_.get(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(FindBox()->hasFocus());
        QCOMPARE(FindBox()->text(), QString());
        NameBox()->setFocus();
        QCOMPARE(FindBox()->text(), u"Suchen"_s);
        QCOMPARE(FindBox()->palette().color(QPalette::Text), QColor(0x80, 0x80, 0x80));
        FindBox()->setFocus();
        QTest::keyClicks(FindBox(), u"a"_s);
        QVERIFY(FindBox()->palette().color(QPalette::Text) != QColor(0x80, 0x80, 0x80));
        NameBox()->setFocus();
        QCOMPARE(FindBox()->text(), u"a"_s);
    }

    void enterAndF3FindTheNextRow() {
        OpenThree();
        FindBox()->setFocus();
        QTest::keyClicks(FindBox(), u"A"_s);
        QTest::keyClick(FindBox(), Qt::Key_Return);
        QCOMPARE(List()->currentIndex().row(), 1);
        QVERIFY(List()->hasFocus());
        QTest::keyClick(List(), Qt::Key_F3);
        QCOMPARE(List()->currentIndex().row(), 2);
        QCOMPARE(NameBox()->text(), u"Gamma"_s);
        QTest::mouseClick(Part<QPushButton>("cmdFindNext"), Qt::LeftButton);
        QCOMPARE(List()->currentIndex().row(), 0);
        QVERIFY(!window_->isWindowModified());
    }

    void f3DoesNothingWhileThePromptStands() {
        Open({{u"1"_s, u"a"_s}, {u"2"_s, u"suchen"_s}});
        List()->setFocus();
        QTest::keyClick(List(), Qt::Key_F3);
        QCOMPARE(List()->currentIndex().row(), 0);
    }

    void theStatusBarCountsRowsAndMatches() {
        OpenThree();
        QCOMPARE(Told(), u"3 rows"_s);
        FindBox()->setFocus();
        QTest::keyClicks(FindBox(), u"ta"_s);
        QCOMPARE(Told(), u"3 rows, 1 matches"_s);
    }

    void namesThatDifferAtTheirEndDifferInTheList() {
        const QString name(60, u'x');
        Open({{u"v"_s, name + u'1'}, {u"v"_s, name + u'2'}, {u"v"_s, u"z"_s}});
        ClickRow(2);
        const auto picture = [&](int row) {
            return List()->viewport()->grab(List()->visualRect(List()->model()->index(row, 0))).toImage();
        };
        QVERIFY(picture(0) != picture(1));
    }

    void rowsAreAsHighAsThoseWithAnIcon() {
        OpenThree();
        QTreeView with;
        with.setFont(List()->font());
        QStandardItemModel rows;
        QPixmap icon(16, 16);
        icon.fill(Qt::red);
        rows.appendRow(new QStandardItem(QIcon(icon), u"alpha"_s));
        with.setModel(&rows);
        with.setIconSize({16, 16});
        with.show();
        QCOMPARE(List()->visualRect(List()->model()->index(0, 0)).height(), with.visualRect(rows.index(0, 0)).height());
    }

    void theLanguageListIsOnlyADisplay() {
        OpenThree();
        QVERIFY(!Part<QComboBox>("cmbLanguage")->isEnabled());
        Part<QComboBox>("cmbLanguage")->setCurrentIndex(8);
        Part<QAction>("mnuSave")->trigger();
        QCOMPARE(mCSF::ReadCSF(path_), 3);
    }

    void anotherFileShowsItsLanguageWhateverWasChosen() {
        OpenThree();
        auto* const list = Part<QComboBox>("cmbLanguage");
        list->setCurrentIndex(8);
        NameBox()->setFocus();
        QTest::keyClicks(NameBox(), u"!"_s);
        QCOMPARE(list->currentIndex(), 8);
        window_->OpenCSFFile(path_);
        QCOMPARE(list->currentText(), u"3 - French"_s);
    }

    void aSaveAndASortLeaveTheFocusInTheList() {
        OpenThree();
        QTest::keyClick(List(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(List()->hasFocus());
        QTest::mouseClick(List()->header()->viewport(), Qt::LeftButton, {}, {20, 8});
        QVERIFY(List()->hasFocus());
        QCOMPARE(FindBox()->text(), u"Suchen"_s);
    }

    void aNewDocumentTakesRowsByKeyAtOnce() {
        Show();
        QTest::keyClick(window_->focusWidget(), Qt::Key_N, Qt::ControlModifier);
        QTest::keyClick(window_->focusWidget(), Qt::Key_Insert);
        QCOMPARE(Names(), QStringList({u"Neu"_s}));
    }

    void theFirstRowOfANewDocumentIsNotSelectedUntilItIsClicked() {
        Show();
        Part<QAction>("mnuNew")->trigger();
        QVERIFY(!Part<QWidget>("mnuActions")->isVisible()); // only an opened file shows them
        Part<QAction>("mnuAdd")->trigger();
        List()->setFocus();
        QVERIFY(!List()->selectionModel()->hasSelection());
        QVERIFY(!NameBox()->isEnabled() && !ValueBox()->isEnabled());
        ClickRow(0);
        QVERIFY(List()->selectionModel()->isRowSelected(0));
        QVERIFY(NameBox()->isEnabled() && ValueBox()->isEnabled());
        QCOMPARE(NameBox()->text(), u"Neu"_s);
    }

    void aClickWithControlSelectsToo() {
        OpenThree();
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          List()->visualRect(List()->model()->index(0, 0)).center());
        QVERIFY(List()->selectionModel()->isRowSelected(0));
    }

    void closingAsksAboutChanges() {
        OpenThree();
        Part<QAction>("mnuAdd")->trigger();
        host_->Answers = {Answer::Cancel, Answer::No};
        QVERIFY(!window_->close());
        QVERIFY(window_->isVisible());
        QVERIFY(window_->close());
        QCOMPARE(navigator_->Calls, QStringList{u"ShowToolsMenu"_s});
    }

    void anotherToolsHandOverLeavesTheMenuAway() {
        OpenThree();
        mMain::CsfOpenedByHost = true;
        QVERIFY(window_->close());
        QCOMPARE(navigator_->Calls, QStringList());
    }

    void aTextThatLooksLikeMarkupIsShownAsItIs() {
        Open({{u"<b>bold</b>"_s, u"a"_s}, {u"z"_s, u"z"_s}});
        QCOMPARE(Cell(0, 1), u"<b>bold</b>"_s);
        QVERIFY(List()->model()->index(0, 1).data(Qt::ToolTipRole).toString().contains(u"&lt;b&gt;bold"_s));
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        ShowIn();
        for (const QSize size : {QSize(1000, 640), QSize(640, 440)}) {
            window_->resize(size);
            ClickRow(1);
            QCoreApplication::processEvents();
            QCOMPARE(window_->size(), size);
            QVERIFY(AllTextsHaveRoom(*window_));
        }
    }

    void everyEntryOfAMenuHasALetterOfItsOwn_data() { AddEachLanguage(); }

    void everyEntryOfAMenuHasALetterOfItsOwn() {
        ShowIn();
        QVERIFY(!window_->menuBar()->actions().isEmpty());
        QVERIFY(AllEntriesHaveLetters(*window_));
    }

    void thirtyTwoThousandRowsAreShown() {
        std::vector<CsfString> table(mCSF::MaximumStrings);
        for (int row = 0; row < mCSF::MaximumStrings; ++row)
            table[static_cast<std::size_t>(row)] = {u"value"_s, u"LABEL:%1"_s.arg(row, 5, 10, QChar(u'0'))};
        Open(table);
        QCOMPARE(Told().remove(QLocale().groupSeparator()).remove(u','), u"32767 rows"_s);
        List()->scrollToBottom();
        QCOMPARE(Cell(32766, 0), u"LABEL:32766"_s);
    }
};

WINDOW_TEST(tst_csfeditor)

#include "tst_csfeditor.moc"
