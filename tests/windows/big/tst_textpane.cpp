// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The text of the entry that the details tell, below the list.
#include "big/window/TextPane.h"
#include "tests/windows/big/BigEditorWindow.h"

using namespace Qt::StringLiterals;

class tst_textpane : public BigEditorWindow {
    Q_OBJECT
private:
    TextPane* Pane() { return Part<TextPane>("txtText"); }

    void Turn(bool on) {
        if (Part<QAction>("mnuText")->isChecked() != on)
            Part<QAction>("mnuText")->trigger();
    }

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void itIsOffAtFirst() {
        OpenArchive();
        ClickRow(1);
        QVERIFY(!Pane()->isVisible());
        QCOMPARE(Pane()->toPlainText(), QString());
    }

    void itShowsTheClickedTextAndNothingElse() {
        OpenArchive();
        Turn(true);
        QVERIFY(Pane()->isVisible());
        QCOMPARE(Pane()->toPlainText(), QString());
        ClickRow(1);
        QCOMPARE(Pane()->toPlainText(), u"hello"_s);
        Select(u"data\\"_s);
        QCOMPARE(Pane()->toPlainText(), QString());
        ClickRow(1);
        QCOMPARE(Pane()->toPlainText(), QString()); // a picture
        Turn(false);
        QVERIFY(!Pane()->isVisible());
    }

    void turnedOnItShowsWhatIsSelectedAlready() {
        OpenArchive();
        ClickRow(1);
        Turn(true);
        QCOMPARE(Pane()->toPlainText(), u"hello"_s);
    }

    void itCanBeReadAndCopiedButNotChanged() {
        OpenArchive();
        Turn(true);
        ClickRow(1);
        QVERIFY(Pane()->isReadOnly());
        QTest::keyClicks(Pane(), u"x"_s);
        QCOMPARE(Pane()->toPlainText(), u"hello"_s);
        QTest::keyClick(Pane(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(Pane()->textCursor().selectedText(), u"hello"_s);
    }

    void itsLinesHaveNumbers() {
        TextPane pane;
        pane.resize(300, 200);
        pane.ShowText(u"one"_s);
        const int narrow = pane.NumbersWidth();
        pane.ShowText(QString(1000, u'\n'));
        QVERIFY(pane.NumbersWidth() > narrow);
        auto* const numbers = pane.findChild<QWidget*>(u"lineNumbers"_s);
        QCOMPARE(numbers->width(), pane.NumbersWidth());
        pane.show();
        const QImage first = numbers->grab().toImage();
        pane.moveCursor(QTextCursor::End);
        QVERIFY(numbers->grab().toImage() != first);
    }

    void itIsAsItWasLeft() {
        OpenArchive();
        Turn(true);
        window_.reset();
        OpenArchive();
        QVERIFY(Pane()->isVisible());
    }
};

WINDOW_TEST(tst_textpane)

#include "tst_textpane.moc"
