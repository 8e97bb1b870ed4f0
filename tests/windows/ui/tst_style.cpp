// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "ui/look/Style.h"

#include <QApplication>
#include <QImage>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTreeView>
#include <QtMath>

class tst_style : public QObject {
    Q_OBJECT
private:
    /// A box as a screen of that density shows it.
    static QImage Shown(QWidget& widget, qreal density) {
        QImage picture((QSizeF(widget.size()) * density).toSize(), QImage::Format_RGB32);
        picture.setDevicePixelRatio(density);
        picture.fill(Qt::red);
        widget.render(&picture);
        return picture;
    }

private Q_SLOTS:

    void listsAndMenusHaveTheFamilysFaceWhereTheSystemHasAnother() {
        for (const char* name : {"QMenuBar", "QAbstractItemView"})
            QApplication::setFont(QFont(QStringLiteral("another"), 20), name);
        Style::Apply(*qApp);
        QCOMPARE(QMenuBar().font(), Style::TextFont());
        QCOMPARE(QTreeView().font(), Style::TextFont());
    }

    void everyDensityShowsAllFourSidesOfABox_data() {
        QTest::addColumn<qreal>("density");
        QTest::addColumn<QSize>("size");
        for (const qreal density : {1.0, 1.25, 1.5, 1.75, 2.0})
            for (const QSize size : {QSize(100, 60), QSize(101, 61), QSize(102, 62), QSize(103, 63)})
                QTest::addRow("%d %%, %d", qRound(density * 100), size.width()) << density << size;
    }

    void everyDensityShowsAllFourSidesOfABox() {
        QFETCH(const qreal, density);
        QFETCH(const QSize, size);
        Style::Apply(*qApp);
        QPlainTextEdit box;
        box.resize(size);
        const QImage picture = Shown(box, density);
        const auto darkest = [&](QPoint from, QPoint step) {
            int grey = 255;
            for (int i = 0; i < 3; ++i, from += step)
                grey = qMin(grey, qGray(picture.pixel(from)));
            return grey;
        };
        const QRect area = picture.rect();
        QVERIFY2(darkest({area.left(), area.center().y()}, {1, 0}) < 200, "left");
        QVERIFY2(darkest({area.right(), area.center().y()}, {-1, 0}) < 200, "right");
        QVERIFY2(darkest({area.center().x(), area.top()}, {0, 1}) < 200, "top");
        QVERIFY2(darkest({area.center().x(), area.bottom()}, {0, -1}) < 200, "bottom");
    }
};

WINDOW_TEST(tst_style)
#include "tst_style.moc"
