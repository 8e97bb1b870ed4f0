// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "tests/windows/ui/Pixels.h"
#include "ui/look/PictureButton.h"
#include "ui/look/Style.h"
#include "ui/skin/ProgressBar.h"
#include "ui/skin/TDLine.h"
#include "ui/skin/xpMenu.h"
#include "ui/window/SideMenu.h"

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QSignalSpy>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// Behind the last column that a block covers; 0 when there is none.
int EndOfBlocks(const QImage& picture) {
    int end = 0;
    for (int x = 4; x < picture.width() - 4; ++x)
        if (picture.pixelColor(x, picture.height() / 2) != QColor(Qt::white))
            end = x + 1;
    return end;
}

} // namespace

class tst_skinbars : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void initTestCase() { Style::Apply(*qApp); }

    void progressGrowsInBlocksOfSevenPixels() {
        ProgressBar bar;
        bar.resize(208, 20);
        QCOMPARE(EndOfBlocks(PictureOf(bar)), 0);
        bar.setValue(1);
        QCOMPARE(EndOfBlocks(PictureOf(bar)), 0);
        bar.setValue(2);
        QCOMPARE(EndOfBlocks(PictureOf(bar)), 4 + 6); // a block of six and a gap
        bar.setValue(50);
        QCOMPARE(EndOfBlocks(PictureOf(bar)), 4 + 98 - 1);
    }

    void theSurplusOfTheLastBlockIsHidden() {
        ProgressBar bar;
        bar.resize(208, 20);
        bar.setValue(100); // 203 pixels in a picture of 200
        const QImage picture = PictureOf(bar);
        QVERIFY(picture.pixelColor(203, 10) != QColor(Qt::white));
        QCOMPARE(picture.pixelColor(204, 10), QColor(Qt::white));
    }

    void whatIsOutOfRangeLeavesTheBarAsItIs() {
        ProgressBar bar;
        bar.setProperty("Progress", 42);
        bar.setProperty("Progress", -1);
        QCOMPARE(bar.property("Progress").toInt(), 42);
        bar.setProperty("Progress", 101);
        QCOMPARE(bar.value(), 42);
        bar.setProperty("Progress", 100);
        QCOMPARE(bar.value(), 100);
    }

    void aScreenReaderMeetsABarWithItsValue() {
        ProgressBar bar;
        bar.setValue(42);
        QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&bar);
        QCOMPARE(seen->role(), QAccessible::ProgressBar);
        QCOMPARE(seen->valueInterface()->currentValue().toInt(), 42);
        QCOMPARE(seen->valueInterface()->maximumValue().toInt(), 100);
    }

    void theLineIsDarkInRowZeroAndLightInRowOne() {
        TDLine line;
        line.resize(50, 2);
        const QImage picture = PictureOf(line);
        QCOMPARE(picture.height(), 2);
        for (const int x : {0, 25, 49}) {
            QCOMPARE(picture.pixelColor(x, 0), Style::Colour::DisabledBorder);
            QCOMPARE(picture.pixelColor(x, 1), QColor(Qt::white));
        }
    }

    void aScreenReaderMeetsASeparator() {
        TDLine line;
        QCOMPARE(QAccessible::queryAccessibleInterface(&line)->role(), QAccessible::Separator);
    }

    void aScreenReaderMeetsAHeadingAsAButtonThatUnfolds() {
        xpMenu heading;
        heading.SetCaption(u"Actions"_s);
        QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&heading);
        QCOMPARE(seen->role(), QAccessible::Button);
        QCOMPARE(seen->text(QAccessible::Name), u"Actions"_s);
        QVERIFY(seen->state().expandable);
        QVERIFY(seen->state().expanded && !seen->state().collapsed);
        QVERIFY(!seen->state().checkable && !seen->state().checked);
        QVERIFY(seen->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
        seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(!heading.isChecked());
        QVERIFY(seen->state().expandable);
        QVERIFY(!seen->state().expanded && seen->state().collapsed);
        heading.setAccessibleName(u"Given"_s);
        QCOMPARE(seen->text(QAccessible::Name), u"Given"_s);
    }

    void aHeadingTellsOfItsCaption() {
        xpMenu heading;
        const QSignalSpy changes(&heading, &xpMenu::CaptionChanged);
        heading.setProperty("Caption", u"Actions"_s);
        QCOMPARE(heading.text(), u"Actions"_s);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(QAccessible::queryAccessibleInterface(&heading)->text(QAccessible::Name), u"Actions"_s);
    }

    void aHeadingIsOfOneHeightAndItsEndsAreRoundAboveOnly() {
        xpMenu heading;
        heading.resize(172, 60);
        QCOMPARE(heading.height(), 26);
        const QImage picture = PictureOf(heading);
        const QColor ground = heading.palette().color(QPalette::Window);
        QCOMPARE(picture.pixelColor(0, 0), ground);
        QCOMPARE(picture.pixelColor(171, 0), ground);
        QVERIFY(picture.pixelColor(171, 25) != ground);
        QCOMPARE(picture.pixelColor(0, 25), QColor(Qt::white));
    }

    void keysAndMouseFoldAHeading() {
        xpMenu heading;
        heading.resize(172, 26);
        QVERIFY(heading.isChecked());
        QTest::mouseClick(&heading, Qt::LeftButton, {}, {170, 2}); // on an end
        QVERIFY(!heading.isChecked());
        QTest::keyClick(&heading, Qt::Key_Return);
        QVERIFY(heading.isChecked());
        QTest::keyClick(&heading, Qt::Key_Space);
        QVERIFY(!heading.isChecked());
    }

    void anEnterThatIsHeldFoldsAHeadingOnce() {
        xpMenu heading;
        const QSignalSpy folds(&heading, &xpMenu::toggled);
        HoldEnter(heading);
        QCOMPARE(folds.size(), 1);
        QTest::keyPress(&heading, Qt::Key_Return);
        QFocusEvent left(QEvent::FocusOut);
        QCoreApplication::sendEvent(&heading, &left);
        QTest::keyRelease(&heading, Qt::Key_Return);
        QCOMPARE(folds.size(), 1);
    }

    void linksAndTextsOnPicturesTakeAHeldEnterForOneClick() {
        SideLink link;
        PictureButton text;
        for (QAbstractButton* const button :
             {static_cast<QAbstractButton*>(&link), static_cast<QAbstractButton*>(&text)}) {
            const QSignalSpy clicks(button, &QAbstractButton::clicked);
            QTest::keyPress(button, Qt::Key_Enter);
            QCOMPARE(clicks.size(), 0);
            QTest::keyRelease(button, Qt::Key_Enter);
            QCOMPARE(clicks.size(), 1);
            HoldEnter(*button);
            QCOMPARE(clicks.size(), 2);
            QTest::keyRelease(button, Qt::Key_Return); // pressed elsewhere
            QCOMPARE(clicks.size(), 2);
        }
    }

    void whoeverIsToldMayEndAHeading() {
        const auto ends = [](auto told, const std::function<void(xpMenu*)>& act) {
            auto* const heading = new xpMenu;
            const QPointer<xpMenu> gone(heading);
            connect(heading, told, heading, [heading] { delete heading; });
            act(heading);
            return gone.isNull();
        };
        const auto type = [](xpMenu* heading) { QTest::keyClick(heading, Qt::Key_Return); };
        const auto press = [](xpMenu* heading) { QTest::mousePress(heading, Qt::LeftButton); };
        QVERIFY(ends(&xpMenu::KeyDown, type));
        QVERIFY(ends(&xpMenu::KeyPress, type));
        QVERIFY(ends(&xpMenu::clicked, type));
        QVERIFY(ends(&xpMenu::pressed, press));
        QVERIFY(ends(&xpMenu::clicked, [](xpMenu* heading) { QTest::mouseClick(heading, Qt::LeftButton); }));
    }

    void aHeadingTellsOfItsKeysAndOfTheMouseOnAllItsParts() {
        xpMenu heading;
        heading.resize(172, 26);
        QStringList told;
        connect(&heading, &xpMenu::KeyDown, this, [&](int key) { told += u"key down %1"_s.arg(QChar(key)); });
        connect(&heading, &xpMenu::KeyPress, this, [&](const QString& text) { told += u"key "_s + text; });
        connect(&heading, &xpMenu::KeyUp, this, [&] { told += u"key up"_s; });
        const auto write = [&](const QString& what, Qt::KeyboardModifiers shift, int x, int y) {
            told += u"%1 %2 %3 %4"_s.arg(what).arg(shift == Qt::ShiftModifier).arg(x).arg(y);
        };
        connect(&heading, &xpMenu::MouseDown, this,
                [&](Qt::MouseButton, auto shift, int x, int y) { write(u"down"_s, shift, x, y); });
        connect(&heading, &xpMenu::MouseMove, this,
                [&](Qt::MouseButtons, auto shift, int x, int y) { write(u"move"_s, shift, x, y); });
        connect(&heading, &xpMenu::MouseUp, this,
                [&](Qt::MouseButton, auto shift, int x, int y) { write(u"up"_s, shift, x, y); });
        QTest::keyClick(&heading, 'x');
        QCOMPARE(told, (QStringList{u"key down X"_s, u"key x"_s, u"key up"_s}));
        for (const int x : {1, 80, 170}) { // the left end, the middle, the right end
            told.clear();
            QTest::mousePress(&heading, Qt::LeftButton, Qt::ShiftModifier, {x, 4});
            Drag(heading, {x, 5});
            QTest::mouseRelease(&heading, Qt::LeftButton, {}, {x, 5});
            QCOMPARE(told, (QStringList{u"down 1 %1 4"_s.arg(x), u"move 0 %1 5"_s.arg(x), u"up 0 %1 5"_s.arg(x)}));
        }
        told.clear();
        QTest::mouseClick(&heading, Qt::RightButton, {}, {8, 8});
        QCOMPARE(told, (QStringList{u"down 0 8 8"_s, u"up 0 8 8"_s}));
        QVERIFY(heading.hasMouseTracking()); // moves with no button held are told, too
    }
};

WINDOW_TEST(tst_skinbars)

#include "tst_skinbars.moc"
