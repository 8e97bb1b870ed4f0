// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RuntimeError.h"
#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"
#include "ui/splitter/SplitterBox.h"

#include <QLabel>

using namespace Qt::StringLiterals;

class tst_splitter : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nPaneDivider=Trenner\r\n");
        world_->Start();
        window_ = std::make_unique<QWidget>();
        window_->setObjectName(u"frmHost"_s);
        window_->resize(400, 300);
        box_ = new SplitterBox(window_.get());
        first_ = new QLabel(box_);
        second_ = new QLabel(box_);
        for (QLabel* pane : {first_, second_}) {
            pane->setAutoFillBackground(true);
            pane->setFocusPolicy(Qt::StrongFocus);
        }
        box_->setGeometry(0, 0, 400, 300);
        box_->SetOrientation(cSplitter::SideBySide);
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void cleanup() {
        window_.reset();
        world_.reset();
    }

    void twoChildrenBecomeThePanes() {
        QCOMPARE(first_->geometry(), QRect(0, 0, 128, 300));
        QCOMPARE(second_->geometry(), QRect(132, 0, 268, 300));
        QCOMPARE(box_->Bar()->geometry(), QRect(128, 0, 4, 300));
        QCOMPARE(box_->Bar()->cursor().shape(), Qt::SizeHorCursor);
        QCOMPARE(box_->Bar()->accessibleName(), u"Trenner"_s);
        box_->SetOrientation(cSplitter::Stacked);
        QCOMPARE(first_->geometry(), QRect(0, 0, 400, 128));
        QCOMPARE(second_->geometry(), QRect(0, 132, 400, 168));
        QCOMPARE(box_->Bar()->geometry(), QRect(0, 128, 400, 4));
        QCOMPARE(box_->Bar()->cursor().shape(), Qt::SizeVerCursor);
    }

    void aLiveDragMovesThePanesAtOnce() {
        Press();
        MoveBy(60);
        QCOMPARE(first_->width(), 188);
        QCOMPARE(box_->Bar()->x(), 188);
        ReleaseAt(60);
        QCOMPARE(second_->geometry(), QRect(192, 0, 208, 300));
        QCOMPARE(box_->Splitter().Proportion(), 47.0F);
    }

    void aGhostInvertsAChequerOfWhatIsBelowAndGoes() {
        box_->SetFullDrag(false);
        box_->SetSplitterSize(8);
        const QImage before = box_->grab().toImage();
        Press();
        MoveBy(100);
        QCOMPARE(first_->width(), 128);
        const auto* const ghost = box_->findChild<QWidget*>(u"ghost"_s);
        QVERIFY(ghost->isVisible());
        QCOMPARE(ghost->geometry(), QRect(228, 0, 8, 300));
        const QImage during = box_->grab().toImage();
        const int ratio = qRound(before.devicePixelRatio());
        for (const QPoint& at : {QPoint(228, 10), QPoint(229, 10), QPoint(228, 11), QPoint(235, 10)}) {
            const QColor was = before.pixelColor(at * ratio);
            const QColor inverted(255 - was.red(), 255 - was.green(), 255 - was.blue());
            const bool set = (at.x() - 228 + at.y()) % 2 != 0;
            QCOMPARE(during.pixelColor(at * ratio), set ? inverted : was);
        }
        QCOMPARE(during.pixelColor(QPoint(227, 10) * ratio), before.pixelColor(QPoint(227, 10) * ratio));
        ReleaseAt(100);
        QVERIFY(!ghost->isVisible());
        QCOMPARE(first_->width(), 228);
    }

    void beyondTheWindowTheEdgeCounts() {
        Press();
        MoveBy(5000);
        ReleaseAt(5000);
        QCOMPARE(second_->width(), 8);
        Press();
        ReleaseAt(-5000);
        QCOMPARE(first_->width(), 8);
    }

    void theHostMayCancelTheDrag() {
        connect(box_, &SplitterBox::BeforeDrag, this, [](bool& cancel) { cancel = true; });
        Press();
        MoveBy(60);
        ReleaseAt(60);
        QCOMPARE(first_->width(), 128);
    }

    void theWindowsSizeKeepsPositionOrProportion() {
        box_->resize(600, 300);
        QCOMPARE(first_->width(), 128);
        box_->SetKeepProportion(true);
        box_->resize(500, 200);
        QCOMPARE(first_->geometry(), QRect(0, 0, 250, 200));
        QCOMPARE(second_->geometry(), QRect(254, 0, 246, 200));
    }

    void arrowsHomeAndEndMoveTheBar() {
        box_->Bar()->setFocus();
        QTest::keyClick(box_->Bar(), Qt::Key_Right);
        QCOMPARE(first_->width(), 144);
        QTest::keyClick(box_->Bar(), Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(first_->width(), 143);
        QTest::keyClick(box_->Bar(), Qt::Key_Home);
        QCOMPARE(first_->width(), 8);
        QTest::keyClick(box_->Bar(), Qt::Key_End);
        QCOMPARE(second_->width(), 8);
        QCOMPARE(box_->Bar()->x(), 388);
    }

    void theTabKeyReachesTheBarBetweenThePanesAndAClickTakesNoFocus() {
        first_->setFocus();
        QTest::keyClick(first_, Qt::Key_Tab);
        QVERIFY(box_->Bar()->hasFocus());
        QTest::keyClick(box_->Bar(), Qt::Key_Tab);
        QVERIFY(second_->hasFocus());
        Press();
        ReleaseAt(10);
        QVERIFY(second_->hasFocus());
    }

    void anErrorNamesTheWindow() {
        try {
            box_->Splitter().SetProportion(101);
            QFAIL("nothing was raised");
        } catch (const RuntimeError& error) {
            QCOMPARE(error.Number(), 380);
            QCOMPARE(error.Source(), u"frmHost.cSplitter"_s);
        }
    }

    void aPaneThatGoesUnbindsTheSplitter() {
        delete first_;
        QVERIFY(box_->Splitter().Container() == nullptr);
        box_->resize(300, 300);
        QCOMPARE(second_->width(), 268);
    }

    void aPaneThatGoesEndsTheDrag() {
        box_->SetFullDrag(false);
        Press();
        MoveBy(50);
        delete second_;
        QVERIFY(!box_->Splitter().Dragging());
        QVERIFY(!box_->findChild<QWidget*>(u"ghost"_s)->isVisible());
        ReleaseAt(50);
        QCOMPARE(first_->width(), 128);
    }

    void aDragEndsWithTheWindow() {
        box_->SetFullDrag(false);
        Press();
        MoveBy(50);
        window_->hide();
        QVERIFY(!box_->Splitter().Dragging());
        QCOMPARE(first_->width(), 128);
    }

    void theSmallestSizeHoldsBothMinima() {
        box_->SetMinimumPanes(QSize(120, 200));
        QCOMPARE(box_->minimumSizeHint().width(), 324);
        box_->resize(200, 300);
        QCOMPARE(first_->width(), 120);
    }

private:
    [[nodiscard]] QPoint At(int travel) const { return {2 + travel + start_ - box_->Bar()->x(), 50}; }

    void Press() {
        start_ = box_->Bar()->x();
        QTest::mousePress(box_->Bar(), Qt::LeftButton, {}, At(0));
    }

    void MoveBy(int travel) { QTest::mouseMove(box_->Bar(), At(travel)); }

    void ReleaseAt(int travel) { QTest::mouseRelease(box_->Bar(), Qt::LeftButton, {}, At(travel)); }

    std::unique_ptr<World> world_;
    std::unique_ptr<QWidget> window_;
    SplitterBox* box_ = nullptr;
    QLabel* first_ = nullptr;
    QLabel* second_ = nullptr;
    int start_ = 0;
};

WINDOW_TEST(tst_splitter)
#include "tst_splitter.moc"
