// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/ui/FaceRows.h"
#include "tests/windows/WindowTests.h"
#include "tests/windows/ui/Pixels.h"
#include "ui/look/Style.h"
#include "ui/skin/CommandButton.h"
#include "ui/skin/ProgressBar.h"
#include "ui/skin/SkinPainter.h"
#include "ui/skin/TDLine.h"
#include "ui/skin/TavelCheckBox.h"
#include "ui/skin/TavelOptionButton.h"
#include "ui/skin/UserControl1.h"
#include "ui/skin/xpMenu.h"

#include <QApplication>
#include <QPainter>
#include <QTransform>

#include <functional>
#include <memory>

namespace {

const QColor border(0, 50, 115);
const QColor ground(1, 2, 3);

using Paint = std::function<void(QPainter&)>;

/// What is painted on a screen of that density.
QImage Painted(QSize pixels, qreal density, const Paint& paint) {
    QImage picture(pixels, QImage::Format_RGB32);
    picture.fill(ground);
    picture.setDevicePixelRatio(density);
    QPainter painter(&picture);
    paint(painter);
    painter.end();
    picture.setDevicePixelRatio(1);
    return picture;
}

QImage FacePicture(QSize pixels, qreal density, const QRect& area, Skin::Look look) {
    return Painted(pixels, density, [&](QPainter& painter) { Skin::PaintFace(painter, area, look); });
}

FaceRows::Rows Rows(const QImage& picture, const FaceRows::Letters& letters) {
    FaceRows::Rows rows;
    for (int y = 0; y < picture.height(); ++y) {
        std::string row;
        for (int x = 0; x < picture.width(); ++x) {
            const QColor seen = picture.pixelColor(x, y);
            char letter = seen == ground ? '.' : '?';
            for (const auto& [colour, name] : letters)
                if (seen == Style::FromBgr(colour))
                    letter = name;
            row += letter;
        }
        rows.push_back(row);
    }
    return rows;
}

QRect OnScreen(const QRect& area, qreal density) {
    const QRectF pixels = QTransform::fromScale(density, density).mapRect(QRectF(area));
    const QPoint behind(qRound(pixels.right()), qRound(pixels.bottom()));
    return {QPoint(qRound(pixels.left()), qRound(pixels.top())), behind - QPoint(1, 1)};
}

/// Whether each of the four sides of an area is `line` pixels of a colour, flush with it and no wider.
bool HasSides(const QImage& picture, const QRect& area, int line, const QColor& colour) {
    const auto isSide = [&](QPoint place, QPoint inwards) {
        for (int i = 0; i < line; ++i, place += inwards)
            if (picture.pixelColor(place) != colour)
                return false;
        return picture.pixelColor(place) != colour;
    };
    const QPoint middle = area.center();
    return isSide({area.left(), middle.y()}, {1, 0}) && isSide({area.right(), middle.y()}, {-1, 0}) &&
           isSide({middle.x(), area.top()}, {0, 1}) && isSide({middle.x(), area.bottom()}, {0, -1});
}

const qreal densities[] = {1, 1.25, 1.5, 1.75, 2, 3};

void Densities() {
    QTest::addColumn<qreal>("density");
    for (const qreal density : densities)
        QTest::addRow("%d %%", qRound(density * 100)) << density;
}

} // namespace

class tst_skinpainter : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void initTestCase() { Style::Apply(*qApp); }

    void everyPixelOfAFaceIsThePlans_data() {
        QTest::addColumn<int>("face");
        for (int face = 0; face < 5; ++face)
            QTest::addRow("%d", face) << face;
    }

    void everyPixelOfAFaceIsThePlans() {
        QFETCH(const int, face);
        const auto [look, letters, rows] = FaceRows::All().at(static_cast<std::size_t>(face));
        QCOMPARE(Rows(FacePicture(FaceRows::Size, 1, QRect({}, FaceRows::Size), look), letters), rows);
        const QImage slices = Painted(FaceRows::Size, 1, [shown = look](QPainter& painter) {
            Skin::PaintSlices(painter, QRect({}, FaceRows::Size), shown);
        });
        QCOMPARE(Rows(slices, letters), rows);
    }

    // Pixel for pixel the face of a button that has as many of them, wherever it stands.
    void belowTwiceTheScaleAFaceIsPixelsToo() {
        for (const auto& [look, letters, rows] : FaceRows::All())
            for (const qreal density : {1.25, 1.5, 1.75})
                for (const int place : {0, 1, 2, 3, 10, 11}) {
                    const QRect area(place, place, 40 + place, 28);
                    const QRect pixels = OnScreen(area, density);
                    const QImage picture = FacePicture({120, 80}, density, area, look);
                    QCOMPARE(picture.copy(pixels), FacePicture(pixels.size(), 1, QRect({}, pixels.size()), look));
                }
    }

    void theSidesOfEveryControlAreSharp_data() { Densities(); }

    void theSidesOfEveryControlAreSharp() {
        QFETCH(const qreal, density);
        const int line = int(density);
        for (int step = 0; step < 4; ++step) {
            QWidget window;
            window.resize(200, 160);
            CommandButton painted(&window);
            UserControl1 slices(&window);
            ProgressBar bar(&window);
            TavelCheckBox box(&window);
            painted.setGeometry(10 + step, 11 - step, 100 + step, 28);
            slices.setGeometry(10 + step, 51 + step, 100 - step, 28 + step);
            bar.setGeometry(10 + step, 91 - step, 100 + step, 20 + step);
            box.setGeometry(10 + step, 131 + step, 100, 20);
            const QImage picture = PictureOf(window, density);
            for (QWidget* const control :
                 {static_cast<QWidget*>(&painted), static_cast<QWidget*>(&slices), static_cast<QWidget*>(&bar)})
                QVERIFY2(HasSides(picture, OnScreen(control->geometry(), density), line, border),
                         control->metaObject()->className());
            const QRect glyph(box.pos() + QPoint(0, 3), QSize(13, 13));
            QVERIFY(HasSides(picture, OnScreen(glyph, density), line, border));
        }
    }

    void anOptionsCircleReachesWholePixels_data() { Densities(); }

    void anOptionsCircleReachesWholePixels() {
        QFETCH(const qreal, density);
        const QImage picture = Painted({60, 60}, density, [](QPainter& painter) {
            Skin::PaintGlyph(painter, {1, 1}, Skin::Mark::Dot, {}, Skin::Ticked::No);
        });
        const QRect area = OnScreen({1, 1, 13, 13}, density);
        const QColor left = picture.pixelColor(area.left(), area.center().y());
        QVERIFY(qGray(left.rgb()) > qGray(ground.rgb()) && left.blue() > border.blue() / 2);
        QCOMPARE(picture.pixelColor(area.left() - 1, area.center().y()), ground);
        QCOMPARE(picture.pixelColor(area.right() + 1, area.center().y()), ground);
        QCOMPARE(picture.pixelColor(area.topLeft()), ground);
    }

    void aSeparatorIsTwoSharpLines_data() { Densities(); }

    void aSeparatorIsTwoSharpLines() {
        QFETCH(const qreal, density);
        const int line = int(density);
        for (const int y : {10, 11, 12, 13}) {
            QWidget window;
            window.resize(100, 40);
            TDLine separator(&window);
            separator.setGeometry(3, y, 80, 2);
            const QImage picture = PictureOf(window, density);
            const QRect area = OnScreen(separator.geometry(), density);
            for (int row = 0; row < line; ++row) {
                QCOMPARE(picture.pixelColor(area.center().x(), area.top() + row), Style::Colour::DisabledBorder);
                QCOMPARE(picture.pixelColor(area.center().x(), area.top() + line + row), QColor(Qt::white));
            }
        }
    }

    void aHeadingFillsItsRowsWholly_data() { Densities(); }

    void aHeadingFillsItsRowsWholly() {
        QFETCH(const qreal, density);
        QWidget window;
        window.resize(200, 60);
        xpMenu heading(&window);
        heading.setGeometry(3, 11, 173, 26);
        const QImage picture = PictureOf(window, density);
        const QRect area = OnScreen(heading.geometry(), density);
        const QColor out = window.palette().color(QPalette::Window);
        const int x = area.left() + qRound(20 * density);
        QCOMPARE(picture.pixelColor(x, area.top()), picture.pixelColor(x, area.bottom()));
        QCOMPARE(picture.pixelColor(area.left(), area.bottom()), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(x, area.top() - 1), out);
        QCOMPARE(picture.pixelColor(x, area.bottom() + 1), out);
        QCOMPARE(picture.pixelColor(area.topLeft()), out);
        QCOMPARE(picture.pixelColor(area.topRight()), out);
    }

    void theFocusLineHasFourSidesOfDots_data() { Densities(); }

    void theFocusLineHasFourSidesOfDots() {
        QFETCH(const qreal, density);
        const int line = int(density);
        const QRect area(3, 5, 41, 21);
        const QImage picture =
            Painted({200, 120}, density, [&](QPainter& painter) { Skin::PaintFocus(painter, area); });
        const QRect pixels = OnScreen(area, density);
        int dots = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) {
                const QColor seen = picture.pixelColor(x, y);
                const bool onEdge = pixels.contains(x, y) && !pixels.adjusted(line, line, -line, -line).contains(x, y);
                QVERIFY(seen == ground || (seen == border && onEdge));
                dots += seen == border ? 1 : 0;
            }
        QVERIFY(dots >= (pixels.width() + pixels.height() - 4 * line) * line);
        for (const QPoint place :
             {pixels.topLeft(), pixels.topLeft() + QPoint(2 * line, 0), pixels.topLeft() + QPoint(0, 2 * line),
              QPoint(pixels.left() + 2 * line, pixels.bottom()), QPoint(pixels.right(), pixels.top() + 2 * line)})
            QCOMPARE(picture.pixelColor(place), border);
        QCOMPARE(picture.pixelColor(pixels.topLeft() + QPoint(line, 0)), ground);
    }

    // 40 pixels: ends of 4, an inner picture of 32.
    void everyPixelOfAProgressBarHasItsPlace() {
        const QImage picture = Painted({40, 20}, 1, [](QPainter& painter) {
            Skin::PaintProgress(painter, {0, 0, 40, 20}, 50);
        });
        for (const QPoint corner : {QPoint(0, 0), QPoint(39, 0), QPoint(0, 19), QPoint(39, 19)})
            QVERIFY(picture.pixelColor(corner).blue() < border.blue() / 4); // round
        for (int x = 4; x < 36; ++x)
            for (const int row : {0, 19})
                QCOMPARE(picture.pixelColor(x, row), border);
        for (int y = 4; y < 16; ++y) {
            for (const int column : {0, 39})
                QCOMPARE(picture.pixelColor(column, y), border);
            for (const int column : {1, 3, 10, 17, 18, 35, 38}) // the ends, the gaps, what has no block yet
                QCOMPARE(picture.pixelColor(column, y), QColor(Qt::white));
            const QColor block = Style::FromBgr(Skin::Between(0x8CD8FF, 0x008EF2, y - 3, 14));
            for (const int column : {4, 9, 11, 16})
                QCOMPARE(picture.pixelColor(column, y), block);
        }
        QCOMPARE(picture.pixelColor(4, 2), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(4, 3), QColor(255, 216, 140));
        QCOMPARE(picture.pixelColor(4, 16), QColor(242, 142, 0));
        QCOMPARE(picture.pixelColor(4, 17), QColor(Qt::white));
    }

    void aBlockIsSharpAndItsGapALine_data() { Densities(); }

    void aBlockIsSharpAndItsGapALine() {
        QFETCH(const qreal, density);
        const int line = int(density);
        const QImage picture = Painted(OnScreen({0, 0, 208, 20}, density).size(), density, [](QPainter& painter) {
            Skin::PaintProgress(painter, {0, 0, 208, 20}, 100);
        });
        const int row = picture.height() / 2;
        const QColor block = picture.pixelColor(qRound(5 * density), row);
        int gap = 0, gaps = 0;
        for (int x = qRound(4 * density); x < qRound(204 * density); ++x) {
            const QColor seen = picture.pixelColor(x, row);
            QVERIFY(seen == block || seen == QColor(Qt::white));
            gap = seen == block ? 0 : gap + 1;
            QVERIFY(gap <= line);
            gaps += gap == line ? 1 : 0;
        }
        QCOMPARE(gaps, 28); // behind each block but the last, whose end is hidden
    }
};

WINDOW_TEST(tst_skinpainter)

#include "tst_skinpainter.moc"
