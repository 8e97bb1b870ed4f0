// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "tests/windows/ui/Pixels.h"
#include "tests/windows/ui/SkinButtonsTest.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QColor border(0, 50, 115);
const QColor hoverTop(255, 243, 206);
const QColor focusTop(206, 231, 255);
const QColor pressedTop(231, 223, 214);
const QColor normalTop(247, 247, 247);
const QColor disabledInside(247, 247, 239);

/// The row below the border tells which face is shown.
QColor TopLine(const QWidget& button) {
    return PixelOf(const_cast<QWidget&>(button), {button.width() / 2, 1});
}

} // namespace

class tst_skinbuttons : public SkinButtonsTest {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        MakeButtons();
        other_ = new QLineEdit(window_.get());
        other_->setGeometry(200, 100, 100, 24);
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        other_->setFocus();
        PointAt(*other_);
    }

    void cleanup() { window_.reset(); }

    void theCornersAreTheSamePixelsOnBoth() {
        const QImage faces[] = {PictureOf(*painted_), PictureOf(*slices_)};
        const QColor ground = window_->palette().color(QPalette::Window);
        for (const QImage& face : faces) {
            QCOMPARE(face.pixelColor(0, 0), ground);
            QCOMPARE(face.pixelColor(1, 0), QColor(198, 207, 222));
            QCOMPARE(face.pixelColor(2, 0), QColor(33, 85, 132));
            QCOMPARE(face.pixelColor(3, 0), border);
            QCOMPARE(face.pixelColor(1, 1), QColor(82, 125, 165));
            QCOMPARE(face.pixelColor(2, 1), QColor(123, 150, 173));
            QCOMPARE(face.pixelColor(97, 27), QColor(33, 85, 132));
            QCOMPARE(face.pixelColor(99, 27), ground);
            QCOMPARE(face.pixelColor(99, 14), border);
            QCOMPARE(face.pixelColor(50, 26), QColor(214, 211, 198));
        }
    }

    void atTwiceTheScaleCornersAreCurvesAndEdgesSharp() {
        const QImage face = PictureOf(*painted_, 2);
        const QColor ground = window_->palette().color(QPalette::Window);
        QCOMPARE(face.size(), QSize(200, 56));
        QCOMPARE(face.pixelColor(0, 0), ground);
        for (const int row : {0, 1})
            QCOMPARE(face.pixelColor(100, row), border);
        QCOMPARE(face.pixelColor(100, 2), normalTop);
        for (const int column : {0, 1, 198, 199})
            QCOMPARE(face.pixelColor(column, 28), border);
        QVERIFY(face.pixelColor(2, 28) != border);
        QCOMPARE(face.pixelColor(100, 53), QColor(214, 211, 198));
        // The curve has pixels between its colour and the ground's, where blocks of four would have none alone.
        QVERIFY(face.pixelColor(1, 3) != face.pixelColor(0, 2));
    }

    void statesShowTheirFaces_data() { Both(); }

    void statesShowTheirFaces() {
        QPushButton& button = Chosen();
        QCOMPARE(TopLine(button), normalTop);
        button.setFocus();
        QCOMPARE(TopLine(button), focusTop);
        PointAt(button);
        QCOMPARE(TopLine(button), hoverTop);
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(TopLine(button), pressedTop);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(TopLine(button), hoverTop);
        PointAt(*other_);
        QCOMPARE(TopLine(button), focusTop);
        button.setEnabled(false);
        QCOMPARE(TopLine(button), disabledInside);
    }

    void aDragOutClearsHoverAndPressedAndItsReleaseIsNoClick_data() { Both(); }

    void aDragOutClearsHoverAndPressedAndItsReleaseIsNoClick() {
        QPushButton& button = Chosen();
        const QSignalSpy clicks(&button, &QPushButton::clicked);
        PointAt(button);
        QTest::mousePress(&button, Qt::LeftButton);
        Drag(button, {150, 14});
        QVERIFY(!button.isDown());
        QVERIFY(TopLine(button) != hoverTop);
        QVERIFY(TopLine(button) != pressedTop);
        QTest::mouseRelease(&button, Qt::LeftButton, {}, {150, 14});
        QCOMPARE(clicks.size(), 0);
    }

    void aDragThatComesBackPressesTheSlicesAgain() {
        const QSignalSpy clicks(slices_, &QPushButton::clicked);
        PointAt(*slices_);
        QTest::mousePress(slices_, Qt::LeftButton);
        Drag(*slices_, {150, 14});
        Drag(*slices_, {50, 14});
        QCOMPARE(TopLine(*slices_), pressedTop);
        QTest::mouseRelease(slices_, Qt::LeftButton, {}, {50, 14});
        QCOMPARE(clicks.size(), 1);
    }

    void aDragThatComesBackPressesThePaintedButtonNoMore() {
        const QSignalSpy clicks(painted_, &QPushButton::clicked);
        PointAt(*painted_);
        QTest::mousePress(painted_, Qt::LeftButton);
        Drag(*painted_, {150, 14});
        Drag(*painted_, {50, 14});
        QCOMPARE(TopLine(*painted_), hoverTop);
        QTest::mouseRelease(painted_, Qt::LeftButton, {}, {50, 14});
        QCOMPARE(clicks.size(), 0);
        QTest::mouseClick(painted_, Qt::LeftButton);
        QCOMPARE(clicks.size(), 1);
    }

    void thePaintedButtonTellsOfTheMouseAndOfTheClickBeforeItsEnd() {
        QStringList told;
        connect(painted_, &CommandButton::MouseDown, this,
                [&](Qt::MouseButton, Qt::KeyboardModifiers shift, int x, int y) {
                    told += u"down %1 %2 %3"_s.arg(x).arg(y).arg(shift == Qt::ShiftModifier);
                });
        connect(painted_, &CommandButton::MouseMove, this, [&] { told += u"move"_s; });
        connect(painted_, &CommandButton::MouseUp, this, [&] { told += u"up"_s; });
        connect(painted_, &CommandButton::clicked, this, [&] { told += u"click"_s; });
        connect(painted_, &CommandButton::DblClick, this, [&] { told += u"double"_s; });
        QTest::mousePress(painted_, Qt::LeftButton, Qt::ShiftModifier, {7, 9});
        Drag(*painted_, {8, 9});
        QTest::mouseRelease(painted_, Qt::LeftButton, {}, {8, 9});
        QCOMPARE(told, (QStringList{u"down 7 9 1"_s, u"move"_s, u"click"_s, u"up"_s}));
        told.clear();
        QTest::mouseClick(painted_, Qt::LeftButton, {}, {7, 9});
        QTest::mouseDClick(painted_, Qt::LeftButton, {}, {7, 9}); // its second press
        QTest::mouseRelease(painted_, Qt::LeftButton, {}, {7, 9});
        QCOMPARE(told, (QStringList{u"down 7 9 0"_s, u"click"_s, u"up"_s, u"down 7 9 0"_s, u"double"_s, u"click"_s,
                                    u"up"_s}));
    }

    void thePaintedButtonIsPressedUntilItsClickWasTold() {
        QList<QColor> lines;
        connect(painted_, &CommandButton::clicked, this, [&] { lines += TopLine(*painted_); });
        connect(painted_, &CommandButton::MouseUp, this, [&] { lines += TopLine(*painted_); });
        PointAt(*painted_);
        QTest::mouseClick(painted_, Qt::LeftButton);
        QCOMPARE(lines, (QList<QColor>{pressedTop, hoverTop}));
    }

    // The box takes the pointer from the button: it is not painted pressed for as long as the box stands.
    void aBoxThatAClickOpensLeavesThePaintedButtonUnpressed() {
        QColor behind;
        connect(painted_, &CommandButton::clicked, this, [&] {
            QMessageBox box(QMessageBox::Information, {}, u"Told"_s, QMessageBox::Ok, window_.get());
            QTimer::singleShot(0, &box, [&] {
                PointAt(*box.button(QMessageBox::Ok));
                behind = TopLine(*painted_);
                QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
            });
            box.exec();
        });
        PointAt(*painted_);
        QTest::mouseClick(painted_, Qt::LeftButton);
        QVERIFY(behind.isValid() && behind != pressedTop);
        QVERIFY(TopLine(*painted_) != pressedTop);
    }

    void everyMouseButtonPresses_data() { Both(); }

    void everyMouseButtonPresses() {
        QPushButton& button = Chosen();
        const QSignalSpy clicks(&button, &QPushButton::clicked);
        PointAt(button);
        for (const Qt::MouseButton one : {Qt::RightButton, Qt::MiddleButton}) {
            QTest::mousePress(&button, one);
            QCOMPARE(TopLine(button), pressedTop);
            QTest::mouseRelease(&button, one);
            QCOMPARE(TopLine(button), hoverTop);
        }
        QCOMPARE(clicks.size(), 2);
    }

    void whoeverIsToldMayEndTheButton() {
        const auto ends = [this](auto told, const std::function<void(CommandButton*)>& act) {
            auto* const button = new CommandButton(u"Go"_s, window_.get());
            button->setGeometry(10, 110, 100, 28);
            button->show();
            const QPointer<CommandButton> gone(button);
            connect(button, told, this, [button] { delete button; });
            act(button);
            return gone.isNull();
        };
        const auto click = [](CommandButton* button) { QTest::mouseClick(button, Qt::LeftButton); };
        const auto press = [](CommandButton* button) { QTest::mousePress(button, Qt::LeftButton); };
        QVERIFY(ends(&CommandButton::clicked, click));
        QVERIFY(ends(&CommandButton::pressed, press));
        QVERIFY(ends(&CommandButton::MouseDown, press));
        QVERIFY(ends(&CommandButton::MouseMove, [](CommandButton* button) { Drag(*button, {8, 9}); }));
        QVERIFY(ends(&CommandButton::released, [](CommandButton* button) {
            QTest::mousePress(button, Qt::LeftButton);
            Drag(*button, {300, 9}); // lets go of it
        }));
        QVERIFY(
            ends(&CommandButton::DblClick, [](CommandButton* button) { QTest::mouseDClick(button, Qt::LeftButton); }));
    }

    void enterClicksWhenItIsReleased() {
        const QSignalSpy clicks(slices_, &QPushButton::clicked);
        slices_->setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            const auto before = clicks.size();
            QTest::keyPress(slices_, key);
            QCOMPARE(clicks.size(), before);
            QTest::keyRelease(slices_, key);
            QCOMPARE(clicks.size(), before + 1);
        }
    }

    void aHeldEnterClicksOnce() {
        const QSignalSpy clicks(slices_, &QPushButton::clicked);
        slices_->setFocus();
        HoldEnter(*slices_);
        QCOMPARE(clicks.size(), 1);
    }

    void anEnterThatWasPressedElsewhereIsNoClick() {
        const QSignalSpy clicks(slices_, &QPushButton::clicked);
        slices_->setFocus();
        QTest::keyRelease(slices_, Qt::Key_Return);
        QTest::keyPress(slices_, Qt::Key_Return);
        other_->setFocus();
        slices_->setFocus();
        QTest::keyRelease(slices_, Qt::Key_Return);
        QCOMPARE(clicks.size(), 0);
    }

    void anEnterThatClosedAMessageBoxIsNoSecondClick() {
        int boxes = 0;
        connect(slices_, &QPushButton::clicked, this, [&] {
            ++boxes;
            QMessageBox box(QMessageBox::Information, {}, u"Told"_s, QMessageBox::Ok, window_.get());
            QTimer::singleShot(0, &box, [&box] { QTest::keyPress(box.button(QMessageBox::Ok), Qt::Key_Return); });
            box.exec();
        });
        slices_->setFocus();
        QTest::keyClick(slices_, Qt::Key_Return);
        QTest::keyRelease(slices_, Qt::Key_Return); // the one that the box was closed by
        QCOMPARE(boxes, 1);
    }

    void aBlankPressesTheFaceAndClicksWhenReleased() {
        const QSignalSpy clicks(slices_, &QPushButton::clicked);
        slices_->setFocus();
        QTest::keyPress(slices_, Qt::Key_Space);
        QCOMPARE(TopLine(*slices_), pressedTop);
        QCOMPARE(clicks.size(), 0);
        QTest::keyRelease(slices_, Qt::Key_Space);
        QCOMPARE(clicks.size(), 1);
        QCOMPARE(TopLine(*slices_), focusTop);
    }

    void aDisabledButtonHearsNoKey() {
        const QSignalSpy clicks(slices_, &QPushButton::clicked);
        slices_->setEnabled(false);
        QTest::keyClick(slices_, Qt::Key_Return);
        QTest::keyClick(slices_, Qt::Key_Space);
        QCOMPARE(clicks.size(), 0);
    }

    void arrowsAreTabs_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("forward");
        QTest::newRow("left") << Qt::Key_Left << false;
        QTest::newRow("up") << Qt::Key_Up << false;
        QTest::newRow("right") << Qt::Key_Right << true;
        QTest::newRow("down") << Qt::Key_Down << true;
    }

    void arrowsAreTabs() {
        QFETCH(const Qt::Key, key);
        QFETCH(const bool, forward);
        slices_->setFocus();
        QTest::keyClick(slices_, key);
        // The order is the box, the painted button, the slices.
        QCOMPARE(QApplication::focusWidget(), forward ? static_cast<QWidget*>(other_) : painted_);
    }

    void aScreenReaderMeetsAButtonWithItsName_data() { Both(); }

    void aScreenReaderMeetsAButtonWithItsName() {
        QPushButton& button = Chosen();
        button.setText(u"&Go"_s);
        const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(seen != nullptr);
        QCOMPARE(seen->role(), QAccessible::PushButton);
        QCOMPARE(seen->text(QAccessible::Name), u"Go"_s);
    }

private:
    QLineEdit* other_ = nullptr;
};

WINDOW_TEST(tst_skinbuttons)

#include "tst_skinbuttons.moc"
