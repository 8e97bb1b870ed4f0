// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/World.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/WindowHost.h"
#include "ui/window/frmLeftOut.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

class tst_leftout : public QObject {
    Q_OBJECT
private:
    template <typename Control>
    Control* Part(const char* name) {
        return window_->findChild<Control*>(QString::fromLatin1(name));
    }

    void Open(const QStringList& lines) {
        window_ = std::make_unique<frmLeftOut>(u"<b>Left\r\nout</b>"_s, lines, nullptr);
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nCopy=Kopieren\r\nOK=Gut\r\n");
        world_->Start();
    }

    void cleanup() {
        window_.reset();
        world_.reset();
    }

    void everyLineIsShownAsItIs() {
        QStringList lines;
        for (int line = 0; line < 1000; ++line)
            lines += u"<i>%1</i>"_s.arg(line);
        Open(lines);
        QCOMPARE(Part<QLabel>("lblText")->text(), u"<b>Left\nout</b>"_s);
        QCOMPARE(Part<QPlainTextEdit>("txtList")->toPlainText(), lines.join(u'\n'));
        QVERIFY(Part<QPlainTextEdit>("txtList")->isReadOnly());
        QCOMPARE(Part<QPushButton>("cmdCopy")->text(), u"Kopieren"_s);
    }

    void theLinesAreCopiedAllOrSome() {
        Open({u"a: gone"_s, u"b: gone"_s});
        QTest::mouseClick(Part<QPushButton>("cmdCopy"), Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), u"a: gone\nb: gone"_s);
        QVERIFY(window_->isVisible());
        auto* const list = Part<QPlainTextEdit>("txtList");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(list->textCursor().selectedText(), u"a: gone"_s + QChar::ParagraphSeparator);
        QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"a: gone\n"_s);
    }

    void enterEscapeAndOkClose() {
        for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
            Open({u"a"_s});
            QTest::keyClick(window_.get(), key);
            QVERIFY(!window_->isVisible());
        }
        Open({u"a"_s});
        QTest::mouseClick(Part<QPushButton>("cmdOK"), Qt::LeftButton);
        QVERIFY(!window_->isVisible());
    }

    void theHostShowsIt() {
        WindowHost host;
        QString shown;
        QTimer::singleShot(0, this, [&] {
            auto* const dialog = qobject_cast<frmLeftOut*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            shown = dialog->findChild<QPlainTextEdit*>()->toPlainText();
            dialog->accept();
        });
        host.MessageWithList(u"text"_s, {u"one"_s, u"two"_s});
        QCOMPARE(shown, u"one\ntwo"_s);
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        world_ = std::make_unique<World>();
        world_->UseOwnLanguage(language);
        world_->Start();
        Open({u"a"_s});
        QVERIFY(AllTextsHaveRoom(*window_));
    }

private:
    std::unique_ptr<World> world_;
    std::unique_ptr<frmLeftOut> window_;
};

WINDOW_TEST(tst_leftout)

#include "tst_leftout.moc"
