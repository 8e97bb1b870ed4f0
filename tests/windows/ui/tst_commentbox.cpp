// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "ui/text/CommentBox.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

class tst_commentbox : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        box_ = std::make_unique<CommentBox>();
        box_->show();
        box_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(box_.get()));
        box_->setFocus();
    }

    void cleanup() { box_.reset(); }

    void theEnterKeysBeginNoLine() {
        QTest::keyClicks(box_.get(), u"one"_s);
        QTest::keyClick(box_.get(), Qt::Key_Return);
        QTest::keyClick(box_.get(), Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClick(box_.get(), Qt::Key_Enter);
        QTest::keyClicks(box_.get(), u" two"_s);
        QCOMPARE(box_->Text(), u"one two"_s);
    }

    void pastedLineBreaksBecomeBlanks() {
        Paste(u"one\r\ntwo\nthree\rfour\u2028five\u2029six"_s);
        QCOMPARE(box_->Text(), u"one two three four five six"_s);
    }

    void noMoreIsTakenThanAnIniFileHandsOut() {
        Paste(QString(300, u'x'));
        QCOMPARE(box_->Text().size(), CommentBox::MostCharacters);
        QTest::keyClicks(box_.get(), u"y"_s);
        QInputMethodEvent composed;
        composed.setCommitString(u"zz"_s);
        QCoreApplication::sendEvent(box_.get(), &composed);
        QCOMPARE(box_->Text(), QString(254, u'x'));
        QTest::keyClick(box_.get(), Qt::Key_Backspace);
        QTest::keyClicks(box_.get(), u"yz"_s);
        QCOMPARE(box_->Text(), QString(253, u'x') + u'y');
        box_->selectAll();
        QTest::keyClicks(box_.get(), u"new"_s);
        QCOMPARE(box_->Text(), u"new"_s);
    }

    void theTabKeyLeavesTheBox() {
        QWidget window;
        auto* const box = new CommentBox(&window);
        auto* const next = new QLineEdit(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Tab);
        QVERIFY(next->hasFocus());
        QCOMPARE(box->Text(), QString());
    }

    void everyCharacterComesBackAsItWasTyped() {
        box_->setPlainText(u"a\u00A0b\u20AC<b>"_s);
        QCOMPARE(box_->Text(), u"a\u00A0b\u20AC<b>"_s);
    }

private:
    void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        box_->paste();
    }

    std::unique_ptr<CommentBox> box_;
};

WINDOW_TEST(tst_commentbox)
#include "tst_commentbox.moc"
