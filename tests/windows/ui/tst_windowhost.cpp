// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"
#include "ui/look/Drawing.h"
#include "ui/text/FileFilter.h"
#include "ui/window/WindowHost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class FakeProgress : public ProgressWindow {
public:
    explicit FakeProgress(QLabel* label) : label_(label) {}

    ~FakeProgress() override { label_->hide(); }

    QWidget* Widget() override { return label_; }

    void SetText(const QString& text) override { label_->setText(text); }

    void SetValue(int percent) override { label_->setProperty("percent", percent); }

    [[nodiscard]] bool Cancelled() const override { return label_->property("cancelled").toBool(); }

    void Cancel() override { label_->setProperty("cancelled", true); }

    void StopTimer() override { label_->setProperty("stopped", true); }

private:
    QLabel* label_;
};

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
        world_->UseLanguage("[LNG]\r\nYes=Oui\r\nNo=Non\r\nCancel=Annuler\r\nOK=D'accord\r\n");
        world_->Start();
        host_ = std::make_unique<WindowHost>([this] { return std::make_unique<FakeProgress>(&label_); });
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
                if (choice->text() == button)
                    return choice->click();
            QFAIL("no such button");
        });
        QCOMPARE(host_->Message(u"?"_s, Host::Icon::Question, Host::Buttons::YesNoCancel, u"t"_s), answer);
    }

    void closingABoxWithoutAChoiceIsItsMildestAnswer_data() {
        QTest::addColumn<Host::Buttons>("buttons");
        QTest::addColumn<Host::Answer>("answer");
        QTest::newRow("ok") << Host::Buttons::Ok << Host::Answer::Ok;
        QTest::newRow("yes or no") << Host::Buttons::YesNo << Host::Answer::No;
        QTest::newRow("with cancel") << Host::Buttons::YesNoCancel << Host::Answer::Cancel;
    }

    void closingABoxWithoutAChoiceIsItsMildestAnswer() {
        QFETCH(Host::Buttons, buttons);
        QFETCH(Host::Answer, answer);
        WhenUp<QMessageBox>([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
        QCOMPARE(host_->Message(u"?"_s, Host::Icon::None, buttons, u"t"_s), answer);
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

    void savingAddsTheExtensionThatTheTypedNameLacks() {
        world_->WriteFile(u"out\\there.txt"_s, {});
        WhenUp<QFileDialog>([&](QFileDialog* box) {
            QCOMPARE(box->nameFilters(), QStringList{u"BIG (*.big)"_s});
            box->findChild<QLineEdit*>()->setText(u"typed"_s);
            QTest::keyClick(box, Qt::Key_Return);
        });
        const auto name = host_->SaveFileName({.Title = u"Save"_s,
                                               .Filter = u"BIG (*.big)|*.big"_s,
                                               .DefaultExtension = u"big"_s,
                                               .DefaultName = world_->Root() + u"\\out\\first.big"_s});
        QCOMPARE(name, std::optional(world_->Root() + u"\\out\\typed.big"_s));
    }

    void openingGivesTheFileAsAnInsidePath() {
        const QString file = world_->WriteFile(u"in\\Here.big"_s, "x");
        WhenUp<QFileDialog>([&](QFileDialog* box) { QTest::keyClick(box, Qt::Key_Return); });
        const auto name = host_->OpenFileName(
            {.Title = u"Open"_s, .Filter = u"*|*.*"_s, .DefaultExtension = {}, .DefaultName = file});
        QCOMPARE(name, std::optional(file));
    }

    void aFileDialogBeginsInTheFolderThatWasAskedFor() {
        const QString file = world_->WriteFile(u"in\\Here.big"_s, "x");
        WhenUp<QFileDialog>([](QFileDialog* box) {
            box->findChild<QLineEdit*>()->setText(u"Here.big"_s);
            QTest::keyClick(box, Qt::Key_Return);
        });
        Host::FileDialog dialog{.Title = {}, .Filter = u"*|*.*"_s, .DefaultExtension = {}, .DefaultName = {}};
        dialog.Folder = world_->Root() + u"\\in\\"_s;
        QCOMPARE(host_->OpenFileName(dialog), std::optional(file));
    }

    void aFileDialogThatIsCancelledGivesNothing() {
        WhenUp<QFileDialog>([](QFileDialog* box) { box->reject(); });
        QCOMPARE(host_->OpenFileName({}), std::optional<QString>());
    }

    void theProgressWindowIsShownFilledAndUnloaded() {
        host_->ShowProgress();
        QVERIFY(label_.isVisible());
        QCOMPARE(label_.windowModality(), Qt::NonModal);
        host_->SetProgressText(u"a\r\nb"_s);
        host_->SetProgressValue(42);
        QCOMPARE(label_.text(), u"a\nb"_s);
        QCOMPARE(label_.property("percent").toInt(), 42);
        host_->UnloadProgress();
        QVERIFY(!label_.isVisible());
        host_->SetProgressValue(50); // after the end: nothing
        QCOMPARE(label_.property("percent").toInt(), 42);
    }

    void theProgressWindowIsHiddenCancelledAndItsTimerStopped() {
        QVERIFY(!host_->ProgressCancelled());
        host_->ShowProgress();
        QVERIFY(!host_->ProgressCancelled());
        host_->CancelProgress();
        QVERIFY(host_->ProgressCancelled());
        host_->StopProgressTimer();
        QVERIFY(label_.property("stopped").toBool());
        host_->HideProgress();
        QVERIFY(!label_.isVisible());
        host_->UnloadProgress();
        QVERIFY2(!host_->ProgressCancelled(), "without a window nothing is cancelled");
    }

    void yieldLetsWaitingEventsRun() {
        bool ran = false;
        QTimer::singleShot(0, this, [&] { ran = true; });
        host_->Yield();
        QVERIFY(ran);
    }

    void aLoopThatYieldsAtEachItemIsServedEveryFewMilliseconds() {
        int served = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { ++served; });
        timer.start(0);
        QElapsedTimer clock;
        clock.start();
        int items = 0;
        for (; clock.elapsed() < 100; ++items)
            host_->Yield();
        QVERIFY(served >= 2);
        QVERIFY2(served <= 25 && served < items, "and not once an item");
    }

    void filtersAreTurnedIntoTheToolkitsForm() {
        QCOMPARE(ToNameFilters(u"BIG files (*.big)|*.big|Pictures|*.tga;*.dds|All|*.*"_s),
                 (QStringList{u"BIG files (*.big)"_s, u"Pictures (*.tga *.dds)"_s, u"All (*)"_s}));
        QVERIFY(ToNameFilters({}).isEmpty());
        QVERIFY(ToNameFilters(u"text without a pattern"_s).isEmpty());
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
    std::unique_ptr<World> world_;
    std::unique_ptr<WindowHost> host_;
    QLabel label_;
};

WINDOW_TEST(tst_windowhost)
#include "tst_windowhost.moc"
