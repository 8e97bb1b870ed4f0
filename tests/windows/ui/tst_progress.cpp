// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mTraduction.h"
#include "tests/support/World.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/SmallScreens.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/BusyAnimation.h"
#include "ui/window/frmProgress.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QLabel>
#include <QMap>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>
#include <QTimer>
#include <QTimerEvent>

using namespace Qt::StringLiterals;

namespace {

/// A strip of two frames of one pixel, red and blue, each for 40 milliseconds; its fields may be others.
QByteArray Strip(const QMap<QString, QString>& other = {}) {
    QMap<QString, QString> fields{{u"Frames"_s, u"2"_s}, {u"Milliseconds"_s, u"40"_s}, {u"Scale"_s, u"1"_s}};
    fields.insert(other);
    QImage picture(1, 2, QImage::Format_RGB32);
    picture.setPixelColor(0, 0, Qt::red);
    picture.setPixelColor(0, 1, Qt::blue);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "png");
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        writer.setText(field.key(), field.value());
    return writer.write(picture) ? bytes : QByteArray();
}

/// The timers that an object hears of.
class TimerIds : public QObject {
public:
    QSet<int> Seen;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Timer)
            Seen.insert(static_cast<QTimerEvent*>(event)->timerId());
        return false;
    }
};

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

    void escapeCancelsToo() {
        Open();
        QTest::keyClick(Part<QPushButton>("cmdCancel"), Qt::Key_Escape);
        QVERIFY(window_->Cancelled());
        QVERIFY(window_->isVisible());
    }

    void aWindowThatWasLeftIsClosedByItsButtonAndByEscape() {
        for (const bool byKey : {false, true}) {
            Open();
            window_->LetGo();
            if (byKey)
                QTest::keyClick(Part<QPushButton>("cmdCancel"), Qt::Key_Escape);
            else
                Part<QPushButton>("cmdCancel")->click();
            QVERIFY(!window_->isVisible());
        }
    }

    void closingTheWindowCancelsToo() {
        Open();
        window_->close();
        QVERIFY(window_->Cancelled());
        QVERIFY(!Part<QTimer>("Timer1")->isActive());
        QVERIFY(!window_->isVisible());
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        world_->Start();
        Open();
        const QString writing = mTraduction::GetText(u"CreatingFile"_s) + u" 'Bigger.big'\r\n"_s;
        for (const QString& text :
             {writing + mTraduction::GetText(u"WritingHeader"_s), writing + mTraduction::GetText(u"WritingFiles"_s),
              mTraduction::GetText(u"ProgressLbl"_s)
                  .replace(u"%1"_s, u"Bigger.big"_s)
                  .replace(u"%2"_s, u"data\\ini\\object\\america.ini"_s)
                  .replace(u"%3"_s, u"C:\\Extracted"_s)}) {
            window_->SetText(text);
            QCoreApplication::processEvents();
            QVERIFY(AllTextsHaveRoom(*window_) && FitsSmallScreens(*window_));
        }
    }

    void theTimerCanBeStoppedWithoutCancelling() {
        Open();
        window_->StopTimer();
        QVERIFY(!Part<QTimer>("Timer1")->isActive());
        QVERIFY(!window_->Cancelled());
    }

    void withoutItsFileThereIsNoAnimation() {
        Open();
        QVERIFY(!Part<BusyAnimation>("Animation1")->PlaysFile());
    }

    void theProgramsOwnAnimationPlaysAtEachScale() {
        for (const QString& name : {u"anim"_s, u"usearch"_s}) {
            QFile file(QCoreApplication::applicationDirPath() + u'/' + name + u".rsc"_s);
            QVERIFY2(file.open(QIODevice::ReadOnly), "the build lays it into the program's folder");
            const auto strip = FrameStrip::Read(world_->WriteFile(u"x.rsc"_s, file.readAll()));
            QVERIFY(strip.has_value());
            QVERIFY(strip->Frames() > 10);
            QCOMPARE(strip->Size().toSize(), strip->Size()); // whole points: nothing is between two pixels
            QImage before;
            for (int frame = 0; frame < strip->Frames(); ++frame) {
                QImage picture(300, 70, QImage::Format_ARGB32_Premultiplied);
                picture.fill(Qt::white);
                QPainter painter(&picture);
                strip->Paint(painter, picture.rect(), frame);
                painter.end();
                QVERIFY2(picture != before, qPrintable(QString::number(frame)));
                before = picture;
            }
        }
    }

    void withItsFileTheAnimationPlaysThat() {
        world_->WriteFile(u"program\\anim.rsc"_s, Strip());
        Open();
        auto* animation = Part<BusyAnimation>("Animation1");
        QVERIFY(animation->PlaysFile());
        const QPoint middle = animation->rect().center();
        const auto shown = [&] { return QColor(animation->grab().toImage().pixel(middle)); };
        QTRY_COMPARE(shown(), QColor(Qt::red));
        QTRY_COMPARE(shown(), QColor(Qt::blue));
    }

    void anotherFileTakesThePlaceOfTheOneThatPlays() {
        BusyAnimation animation;
        TimerIds timers;
        animation.installEventFilter(&timers);
        const QString path = world_->WriteFile(u"x.rsc"_s, Strip());
        animation.Load(path);
        QTRY_COMPARE(timers.Seen.size(), 1);
        const auto shown = [&] { return QColor(animation.grab().toImage().pixel(animation.rect().center())); };
        QTRY_COMPARE(shown(), QColor(Qt::blue));
        animation.Load(path);
        QCOMPARE(shown(), QColor(Qt::red));
        timers.Seen.clear();
        QTest::qWait(200);
        QCOMPARE(timers.Seen.size(), 1);
        animation.Load(path + u".missing"_s);
        QVERIFY(!animation.PlaysFile());
        timers.Seen.clear();
        QTest::qWait(200);
        QCOMPARE(timers.Seen.size(), 0);
    }

    void aFileOfGarbageIsPassedOver_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no picture") << QByteArray("no picture");
        QTest::newRow("cut") << Strip().first(60);
        for (const auto& [name, field, value] : {std::tuple{"no frames", u"Frames"_s, u"0"_s},
                                                 {"too many frames", u"Frames"_s, u"3"_s},
                                                 {"negative", u"Frames"_s, u"-1"_s},
                                                 {"no number", u"Frames"_s, u"many"_s},
                                                 {"no time", u"Milliseconds"_s, u"0"_s},
                                                 {"endless", u"Milliseconds"_s, u"999999999999"_s},
                                                 {"no scale", u"Scale"_s, u"0"_s}})
            QTest::newRow(name) << Strip({{field, value}});
    }

    void aFileOfGarbageIsPassedOver() {
        QFETCH(QByteArray, bytes);
        world_->WriteFile(u"program\\anim.rsc"_s, bytes);
        Open();
        QVERIFY(!Part<BusyAnimation>("Animation1")->PlaysFile());
        QVERIFY(window_->grab().width() > 0);
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
