// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "tests/windows/ui/Pixels.h"
#include "ui/look/Style.h"
#include "ui/skin/ProgressBar.h"
#include "ui/skin/TDLine.h"
#include "ui/skin/xpMenu.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>

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
};

WINDOW_TEST(tst_skinbars)

#include "tst_skinbars.moc"
