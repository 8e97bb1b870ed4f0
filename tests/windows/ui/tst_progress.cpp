// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/World.h"
#include "tests/windows/WindowLook.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/BusyAnimation.h"
#include "ui/window/frmProgress.h"

#include <QEvent>
#include <QImage>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// A picture of two frames, each of one pixel.
const QByteArray movingPicture = QByteArray::fromHex("47494638396101000100800000ff00000000ff"
                                                     "21ff0b4e45545343415045322e300301000000"
                                                     "21f904000a0000002c00000000010001000002024401 00"
                                                     "21f904000a0000002c0000000001000100000202 4c0100"
                                                     "3b");

/// The pictures of a widget, one at each tick of its timer.
class EachTick : public QObject {
public:
    explicit EachTick(QWidget* watched) : watched_(watched) { watched->installEventFilter(this); }

    QList<QImage> Seen;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Timer)
            Seen += watched_->grab().toImage();
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* watched_;
};

/// The mean column of all that differs from the first point; -1 when nothing does.
double MiddleOfWhatIsPainted(const QImage& picture) {
    double sum = 0;
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != picture.pixel(0, 0)) {
                sum += x;
                ++count;
            }
    return count == 0 ? -1 : sum / count;
}

} // namespace

class tst_progress : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nCancel=Abbrechen\r\n");
        world_->Start();
    }

    void cleanup() {
        window_.reset();
        world_.reset();
    }

    void itStartsEmptyWithItsTitleAndTheButtonsText() {
        Open();
        QCOMPARE(window_->windowTitle(), u"Brindock 2005"_s);
        QCOMPARE(Part<QPushButton>("cmdCancel")->text(), u"Abbrechen"_s);
        QCOMPARE(Part<QProgressBar>("ProgressBar1")->value(), 0);
        QCOMPARE(Part<QProgressBar>("ProgressBar1")->maximum(), 100);
        QVERIFY(!window_->Cancelled());
        QVERIFY(!window_->isModal());
    }

    void textAndValueAreShown() {
        Open();
        window_->SetText(u"Creating 'a.big'\r\nHeader"_s);
        window_->SetValue(42);
        QCOMPARE(Part<QLabel>("Label1")->text(), u"Creating 'a.big'\nHeader"_s);
        QCOMPARE(Part<QProgressBar>("ProgressBar1")->value(), 42);
    }

    void noTextIsCut_data() { WindowLook::Languages(); }

    void noTextIsCut() {
        QFETCH(const QString, file);
        world_->UseLanguage(WindowLook::TextsOf(file));
        Open();
        window_->SetText(u"Extracting 'Data\\English\\Generals.csf'"_s);
        QCOMPARE(WindowLook::CutText(*window_), QString());
        QVERIFY(WindowLook::FitsSmallScreens(*window_));
    }

    void aTextLikeMarkupIsShownAsItStands() {
        Open();
        QCOMPARE(Part<QLabel>("Label1")->textFormat(), Qt::PlainText);
    }

    void theButtonSetsTheFlagAndStopsTheTimer() {
        Open();
        QVERIFY(Part<QTimer>("Timer1")->isActive());
        QTest::mouseClick(Part<QPushButton>("cmdCancel"), Qt::LeftButton);
        QVERIFY(window_->Cancelled());
        QVERIFY(!Part<QTimer>("Timer1")->isActive());
        QVERIFY(window_->isVisible());
    }

    void closingTheWindowCancelsToo() {
        Open();
        window_->close();
        QVERIFY(window_->Cancelled());
        QVERIFY(!Part<QTimer>("Timer1")->isActive());
        QVERIFY(!window_->isVisible());
    }

    void theTimerCanBeStoppedWithoutCancelling() {
        Open();
        window_->StopTimer();
        QVERIFY(!Part<QTimer>("Timer1")->isActive());
        QVERIFY(!window_->Cancelled());
    }

    void withoutItsFileSheetsFlyFromTheFolderToTheArchive() {
        Open();
        auto* const animation = Part<BusyAnimation>("Animation1");
        QVERIFY(!animation->PlaysFile());
        EachTick ticks(animation);
        QTRY_VERIFY(ticks.Seen.size() > 40); // two sheets pass
        // A tenth of the way in the middle, where no two sheets are at once.
        int flights = 0;
        double before = -1;
        for (const QImage& picture : ticks.Seen) {
            const QRect middle(picture.width() * 45 / 100, 0, picture.width() / 10, picture.height());
            const double place = MiddleOfWhatIsPainted(picture.copy(middle));
            if (place >= 0 && before >= 0)
                QVERIFY2(place > before, "from left to right");
            flights += place >= 0 && before < 0 ? 1 : 0;
            before = place;
        }
        QVERIFY2(flights >= 2, qPrintable(QString::number(flights)));
    }

    void withItsFileTheAnimationPlaysThat() {
        world_->WriteFile(u"program\\anim.rsc"_s, movingPicture);
        Open();
        auto* animation = Part<BusyAnimation>("Animation1");
        QVERIFY(animation->PlaysFile());
        const QPoint middle = animation->rect().center();
        const auto shown = [&] { return QColor(animation->grab().toImage().pixel(middle)); };
        QTRY_COMPARE(shown(), QColor(Qt::red));
        QTRY_COMPARE(shown(), QColor(Qt::blue));
    }

    void aFileOfGarbageIsPassedOver() {
        world_->WriteFile(u"program\\anim.rsc"_s, "no picture");
        Open();
        QVERIFY(!Part<BusyAnimation>("Animation1")->PlaysFile());
    }

private:
    void Open() {
        window_ = std::make_unique<frmProgress>();
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    template <typename Control>
    Control* Part(const char* name) {
        return window_->findChild<Control*>(QString::fromLatin1(name));
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<frmProgress> window_;
};

WINDOW_TEST(tst_progress)

#include "tst_progress.moc"
