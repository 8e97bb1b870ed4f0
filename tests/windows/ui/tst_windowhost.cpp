// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RuntimeError.h"
#include "tests/support/OwnLanguages.h"
#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"
#include "ui/look/Drawing.h"
#include "ui/window/WindowHost.h"
#include "ui/window/frmProgress.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// Runs `act` on the next modal window of that kind, as soon as it is up.
template <typename Dialog>
void WhenUp(const std::function<void(Dialog*)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return WhenUp<Dialog>(act);
        act(dialog);
    });
}

} // namespace

class tst_windowhost : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nYes=Oui\r\nNo=Non\r\nCancel=Annuler\r\nOK=D'accord\r\n"
                            "Save=Enregistrer\r\n");
        world_->Start();
        host_ = std::make_unique<WindowHost>();
    }

    void cleanup() {
        host_.reset();
        world_.reset();
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
    }

    void aMessageShowsTextTitleAndSign() {
        QString text;
        QString title;
        QString button;
        auto sign = QMessageBox::NoIcon;
        WhenUp<QMessageBox>([&](QMessageBox* box) {
            text = box->text();
            title = box->windowTitle();
            sign = box->icon();
            button = box->button(QMessageBox::Ok)->text();
            box->button(QMessageBox::Ok)->click();
        });
        const Host::Answer answer =
            host_->Message(u"<b>one</b>\r\ntwo"_s, Host::Icon::Critical, Host::Buttons::Ok, u"Brindock 2005"_s);
        QCOMPARE(answer, Host::Answer::Ok);
        QCOMPARE(text, u"<b>one</b>\ntwo"_s);
        QCOMPARE(title, u"Brindock 2005"_s);
        QCOMPARE(sign, QMessageBox::Critical);
        QCOMPARE(button, u"D'accord"_s);
    }

    void everyButtonGivesItsAnswer_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<Host::Answer>("answer");
        QTest::newRow("yes") << u"Oui"_s << Host::Answer::Yes;
        QTest::newRow("no") << u"Non"_s << Host::Answer::No;
        QTest::newRow("cancel") << u"Annuler"_s << Host::Answer::Cancel;
    }

    void everyButtonGivesItsAnswer() {
        QFETCH(QString, button);
        QFETCH(Host::Answer, answer);
        WhenUp<QMessageBox>([&](QMessageBox* box) {
            for (QAbstractButton* choice : box->buttons())
                if (choice->text().remove(u'&') == button)
                    return choice->click();
            QFAIL("no such button");
        });
        QCOMPARE(host_->Message(u"?"_s, Host::Icon::Question, Host::Buttons::YesNoCancel, u"t"_s), answer);
    }

    void saveAndCancelGiveTheirAnswers() {
        for (const auto& [button, answer] :
             {std::pair(QMessageBox::Save, Host::Answer::Save), std::pair(QMessageBox::Cancel, Host::Answer::Cancel)}) {
            QStringList texts;
            WhenUp<QMessageBox>([&, button = button](QMessageBox* box) {
                for (const QAbstractButton* choice : box->buttons())
                    texts += choice->text().remove(u'&');
                box->button(button)->click();
            });
            QCOMPARE(host_->Message(u"?"_s, Host::Icon::Exclamation, Host::Buttons::SaveCancel, u"t"_s), answer);
            texts.sort();
            QCOMPARE(texts, QStringList({u"Annuler"_s, u"Enregistrer"_s}));
        }
    }

    void closingABoxWithoutAChoiceIsItsMildestAnswer_data() {
        QTest::addColumn<Host::Buttons>("buttons");
        QTest::addColumn<Host::Answer>("answer");
        QTest::newRow("ok") << Host::Buttons::Ok << Host::Answer::Ok;
        QTest::newRow("with cancel") << Host::Buttons::YesNoCancel << Host::Answer::Cancel;
        QTest::newRow("save") << Host::Buttons::SaveCancel << Host::Answer::Cancel;
    }

    void closingABoxWithoutAChoiceIsItsMildestAnswer() {
        QFETCH(Host::Buttons, buttons);
        QFETCH(Host::Answer, answer);
        WhenUp<QMessageBox>([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
        QCOMPARE(host_->Message(u"?"_s, Host::Icon::None, buttons, u"t"_s), answer);
    }

    void aLetterAloneAnswers_data() {
        QTest::addColumn<QString>("language");
        for (const QString& language : OwnLanguages::Names())
            QTest::newRow(qPrintable(language)) << language;
    }

    void aLetterAloneAnswers() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        world_->Start();
        for (const auto& [button, answer] :
             {std::pair(QMessageBox::Yes, Host::Answer::Yes), std::pair(QMessageBox::No, Host::Answer::No),
              std::pair(QMessageBox::Cancel, Host::Answer::Cancel)}) {
            WhenUp<QMessageBox>([button = button](QMessageBox* box) {
                const QKeySequence keys = box->button(button)->shortcut();
                if (keys.isEmpty())
                    return box->close(), QTest::qFail("no letter", __FILE__, __LINE__);
                QTest::keyClick(box, static_cast<Qt::Key>(keys[0].key()));
            });
            QCOMPARE(host_->Message(u"?"_s, Host::Icon::Question, Host::Buttons::YesNoCancel, u"t"_s), answer);
        }
    }

    void aQuestionOfYesOrNoWaitsForOneOfTheTwo() {
        bool stays = false;
        bool cross = true;
        WhenUp<QMessageBox>([&](QMessageBox* box) {
            QTest::keyClick(box, Qt::Key_Escape);
            box->close();
            stays = box->isVisible();
            cross = box->windowFlags().testFlag(Qt::WindowCloseButtonHint);
            box->button(QMessageBox::Yes)->click();
        });
        QCOMPARE(host_->Message(u"?"_s, Host::Icon::Question, Host::Buttons::YesNo), Host::Answer::Yes);
        QVERIFY(stays);
        QVERIFY(!cross);
    }

    void enterPressesTheFirstButtonOrTheOneAskedFor_data() {
        QTest::addColumn<std::optional<Host::Answer>>("asked");
        QTest::addColumn<Host::Answer>("answer");
        QTest::newRow("none") << std::optional<Host::Answer>() << Host::Answer::Yes;
        QTest::newRow("no") << std::optional(Host::Answer::No) << Host::Answer::No;
        QTest::newRow("cancel") << std::optional(Host::Answer::Cancel) << Host::Answer::Cancel;
    }

    void enterPressesTheFirstButtonOrTheOneAskedFor() {
        QFETCH(std::optional<Host::Answer>, asked);
        QFETCH(Host::Answer, answer);
        WhenUp<QMessageBox>([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); });
        QCOMPARE(host_->Message(u"?"_s, Host::Icon::Question, Host::Buttons::YesNoCancel, u"t"_s, asked), answer);
    }

    void anInputBoxGivesTheTextOrNothing() {
        WhenUp<QInputDialog>([](QInputDialog* box) {
            QCOMPARE(box->labelText(), u"Name?"_s);
            QCOMPARE(box->textValue(), u"old"_s);
            box->setTextValue(u"new"_s);
            box->accept();
        });
        QCOMPARE(host_->InputBox(u"Name?"_s, u"t"_s, u"old"_s), std::optional(u"new"_s));
        WhenUp<QInputDialog>([](QInputDialog* box) { box->reject(); });
        QCOMPARE(host_->InputBox(u"Name?"_s, u"t"_s, u"old"_s), std::optional<QString>());
    }

    void theProgressWindowIsShownFilledAndGoesWithItsObject() {
        auto progress = host_->ShowProgress();
        const frmProgress* const window = ProgressWindow();
        QVERIFY(window != nullptr);
        QCOMPARE(window->windowModality(), Qt::NonModal);
        progress->SetText(u"a\r\nb"_s);
        progress->SetValue(42);
        QCOMPARE(window->findChild<QLabel*>(u"Label1"_s)->text(), u"a\nb"_s);
        QCOMPARE(window->findChild<QProgressBar*>()->value(), 42);
        progress.reset();
        QVERIFY(ProgressWindow() == nullptr);
    }

    void theProgressWindowIsHiddenCancelledAndItsTimerStopped() {
        const auto progress = host_->ShowProgress();
        const frmProgress* const window = ProgressWindow();
        QVERIFY(!progress->Cancelled());
        progress->StopTimer();
        QVERIFY(!window->findChild<QTimer*>(u"Timer1"_s)->isActive());
        QVERIFY(!progress->Cancelled());
        progress->Cancel();
        QVERIFY(progress->Cancelled());
        progress->Hide();
        QVERIFY(!window->isVisible());
    }

    void theButtonOfTheProgressWindowCancels() {
        const auto progress = host_->ShowProgress();
        QTest::mouseClick(ProgressWindow()->findChild<QPushButton*>(u"cmdCancel"_s), Qt::LeftButton);
        QVERIFY(progress->Cancelled());
    }

    void aReleasedProgressWindowStaysUntilTheNextOneIsShown() {
        auto first = host_->ShowProgress();
        first->SetText(u"first"_s);
        first->Release();
        first.reset();
        QVERIFY(ProgressWindow() != nullptr);
        auto second = host_->ShowProgress();
        QCOMPARE(ProgressWindow()->findChild<QLabel*>(u"Label1"_s)->text(), QString());
        second.reset();
        QVERIFY(ProgressWindow() == nullptr);
    }

    void aWaitEndsWithItsConditionAndLetsEventsRun() {
        bool holds = false;
        QTimer::singleShot(20, this, [&] { holds = true; });
        QVERIFY(host_->WaitUntil([&] { return holds; }));
        QVERIFY(holds);
    }

    void aWaitForWhatHoldsAlreadyReturnsWithoutAnEvent() {
        const QObject here; // the event does not outlive the test
        bool ran = false;
        QTimer::singleShot(0, &here, [&] { ran = true; });
        QVERIFY(host_->WaitUntil([] { return true; }));
        QVERIFY(!ran);
    }

    void aWaitSleepsBetweenEvents() {
        int looks = 0;
        bool holds = false;
        QTimer::singleShot(300, this, [&] { holds = true; });
        host_->WaitUntil([&] {
            ++looks;
            return holds;
        });
        QVERIFY2(looks < 100, qPrintable(QString::number(looks)));
    }

    void aWaitDeletesWhatIsDeletedLater() {
        QPointer<QObject> object = new QObject;
        QTimer::singleShot(0, this, [&] { object->deleteLater(); });
        QVERIFY(host_->WaitUntil([&] { return object.isNull(); }));
    }

    void aWaitWithinAWaitEndsFirst() {
        bool outer = false;
        bool inner = false;
        QTimer::singleShot(0, this, [&] {
            outer = true;
            QTimer::singleShot(0, this, [&] { inner = true; });
            host_->WaitUntil([&] { return inner; });
        });
        QVERIFY(host_->WaitUntil([&] { return outer; }));
        QVERIFY(inner);
    }

    void aWaitThatIsLeftAsTheProgramEndsSaysSo() {
        bool holds = true;
        QTimer::singleShot(0, this, [&] { holds = host_->WaitUntil([] { return false; }); });
        QTimer::singleShot(20, this, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
        QVERIFY(!holds);
    }

    void whatAConditionRaisesComesOutOfTheWait() {
        int looks = 0;
        const auto condition = [&]() -> bool {
            if (++looks > 1)
                throw RuntimeError(ErrorNumber::InvalidCall, u"gone"_s);
            return false;
        };
        QVERIFY_THROWS_EXCEPTION(RuntimeError, host_->WaitUntil(condition));
    }

    void yieldLetsWaitingEventsRun() {
        bool ran = false;
        QTimer::singleShot(0, this, [&] { ran = true; });
        host_->Yield();
        QVERIFY(ran);
    }

    void whatRunsInAYieldYieldsNoMore() {
        const QObject here; // the event does not outlive the test
        bool inner = false;
        QTimer::singleShot(0, &here, [&] {
            QTimer::singleShot(0, &here, [&] { inner = true; });
            QTest::qSleep(10); // longer than the pause between two yields
            host_->Yield();
            QVERIFY(!inner);
        });
        host_->Yield();
    }

    void theButtonIsHeardByALoopThatYieldsAtEachItem() {
        const auto progress = host_->ShowProgress();
        auto* const button = ProgressWindow()->findChild<QPushButton*>(u"cmdCancel"_s);
        QTimer::singleShot(0, button, &QPushButton::click);
        qint64 items = 0;
        for (; !progress->Cancelled() && items < 100000000; ++items)
            host_->Yield();
        QVERIFY(progress->Cancelled());
    }

    void aLoopThatYieldsAtEachItemIsNotServedAtEachItem() {
        int served = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { ++served; });
        timer.start(0);
        const auto enough = [&] { return served >= 3; };
        int items = 0;
        for (; !enough(); ++items)
            host_->Yield();
        QVERIFY2(items > 10 * served, qPrintable(QString::number(items)));
    }

    void aPathIsShortenedInItsMiddle() {
        const QFontMetrics metrics{QFont()};
        const QString path = u"C:\\Games\\A long folder\\Another long folder\\file.big"_s;
        QCOMPARE(CompactPath(path, 10000, metrics), path);
        const int room = metrics.horizontalAdvance(path) * 2 / 3;
        const QString shortened = CompactPath(path, room, metrics);
        QVERIFY(metrics.horizontalAdvance(shortened) <= room);
        QVERIFY(shortened.startsWith(u"C:\\"_s));
        QVERIFY(shortened.endsWith(u"...\\file.big"_s));
        QVERIFY(metrics.horizontalAdvance(CompactPath(path, 30, metrics)) <= 30);
    }

    void aGradientRunsFromTheTopColourToTheBottomOne() {
        QImage image(4, 256, QImage::Format_RGB32);
        QPainter painter(&image);
        DrawGradient(painter, image.rect(), QColor(0, 0, 0), QColor(255, 100, 0));
        painter.end();
        QVERIFY(image.pixelColor(1, 0).red() <= 2);
        QVERIFY(image.pixelColor(1, 255).red() >= 253);
        QVERIFY(qAbs(image.pixelColor(3, 128).green() - 50) <= 2);
        QCOMPARE(image.pixelColor(0, 77), image.pixelColor(3, 77));
    }

private:
    /// The one on the screen.
    static const frmProgress* ProgressWindow() {
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (const auto* progress = qobject_cast<const frmProgress*>(window); progress != nullptr)
                return progress;
        return nullptr;
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<Host> host_;
};

WINDOW_TEST(tst_windowhost)
#include "tst_windowhost.moc"
