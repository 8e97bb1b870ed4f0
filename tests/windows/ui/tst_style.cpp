// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "tests/windows/ui/Pixels.h"
#include "ui/look/Style.h"
#include "ui/skin/CommandButton.h"
#include "ui/skin/Face.h"
#include "ui/skin/ProgressBar.h"
#include "ui/skin/TavelCheckBox.h"
#include "ui/skin/TavelOptionButton.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QImage>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>
#include <QWindow>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <memory>

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

    /// How much lighter one colour is than the other, from 1 to 21.
    static double Contrast(const QColor& one, const QColor& other) {
        const auto light = [](const QColor& colour) {
            const auto part = [](double share) {
                return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
            };
            return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
        };
        const auto [darker, lighter] = std::minmax({light(one), light(other)});
        return (lighter + 0.05) / (darker + 0.05);
    }

private Q_SLOTS:

    void theFamilysColoursStayWhenTheSystemsBecomeHighContrast() {
        Style::Apply(*qApp);
        QMenuBar window;
        window.show();
        const QPalette before = window.palette();
        QPalette contrast(Qt::black, Qt::black);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            contrast.setColor(role, Qt::white);
        for (const char* name : {"QMenuBar", "QAbstractItemView", "QLineEdit", "QLabel", "QAbstractButton"})
            QApplication::setPalette(contrast, name);
        QEvent change(QEvent::ThemeChange);
        QApplication::sendEvent(window.windowHandle(), &change);
        QCOMPARE(window.palette().color(QPalette::Text), before.color(QPalette::Text));
        for (const auto& [text, ground] :
             {std::pair{QPalette::WindowText, QPalette::Window}, std::pair{QPalette::Text, QPalette::Base},
              std::pair{QPalette::Text, QPalette::AlternateBase}, std::pair{QPalette::ButtonText, QPalette::Button},
              std::pair{QPalette::HighlightedText, QPalette::Highlight},
              std::pair{QPalette::ToolTipText, QPalette::ToolTipBase}, std::pair{QPalette::Link, QPalette::Window}})
            for (const char* name : {"QMenuBar", "QAbstractItemView", "QLineEdit", "QLabel", "QAbstractButton"}) {
                const QPalette palette = QApplication::palette(name);
                QVERIFY2(Contrast(palette.color(text), palette.color(ground)) >= 4.5, name);
            }
    }

    void boxesThatAreDisabledLookSo_data() {
        QTest::addColumn<int>("kind");
        QTest::newRow("line") << 0;
        QTest::newRow("text") << 1;
        QTest::newRow("rich text") << 2;
        QTest::newRow("list that opens") << 3;
        QTest::newRow("list") << 4;
    }

    void boxesThatAreDisabledLookSo() {
        QFETCH(const int, kind);
        Style::Apply(*qApp);
        const std::array<std::function<QWidget*()>, 5> makers{
            [] { return new QLineEdit(QStringLiteral("text")); }, [] { return new QPlainTextEdit; },
            [] { return new QTextEdit; }, [] { return new QComboBox; }, [] { return new QTreeView; }};
        const std::unique_ptr<QWidget> box(makers.at(static_cast<std::size_t>(kind))());
        box->resize(100, 60);
        const QImage enabled = Shown(*box, 1);
        box->setEnabled(false);
        const QImage disabled = Shown(*box, 1);
        for (const QPoint place : {QPoint(70, 45), QPoint(0, 30)})
            QVERIFY(enabled.pixelColor(place) != disabled.pixelColor(place)); // its ground, its edge
    }

    void listsAndMenusHaveTheFamilysFaceWhereTheSystemHasAnother() {
        for (const char* name : {"QMenuBar", "QAbstractItemView"})
            QApplication::setFont(QFont(QStringLiteral("another"), 20), name);
        Style::Apply(*qApp);
        QCOMPARE(QMenuBar().font(), Style::TextFont());
        QCOMPARE(QTreeView().font(), Style::TextFont());
    }

    void aDarkDesktopLeavesTheFamilyItsColours() {
        QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
        dark.setColor(QPalette::Base, Qt::black);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            dark.setColor(role, Qt::white);
        QApplication::setPalette(dark);
        for (const char* name : {"QAbstractButton", "QAbstractItemView", "QCheckBox", "QComboBox", "QGroupBox",
                                 "QHeaderView", "QLabel", "QLineEdit", "QMenu", "QMenuBar", "QMessageBoxLabel",
                                 "QPushButton", "QRadioButton", "QTabBar", "QTextControl", "QTextEdit", "QToolButton"})
            QApplication::setPalette(dark, name);
        Style::Apply(*qApp);
        QMessageBox box(QMessageBox::Question, QStringLiteral("Title"), QStringLiteral("Text"), QMessageBox::Yes);
        box.setCheckBox(new QCheckBox(QStringLiteral("Again")));
        QInputDialog input;
        QFileDialog files;
        files.setOption(QFileDialog::DontUseNativeDialog);
        for (QDialog* const dialog :
             {static_cast<QDialog*>(&box), static_cast<QDialog*>(&input), static_cast<QDialog*>(&files)}) {
            dialog->ensurePolished();
            for (const QWidget* const part : dialog->findChildren<QWidget*>()) {
                const QPalette palette = part->palette();
                for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
                    QVERIFY2(palette.color(QPalette::Active, role) == QColor(Qt::black),
                             part->metaObject()->className());
                for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
                    QVERIFY2(palette.color(QPalette::Active, role).lightness() > 200, part->metaObject()->className());
            }
        }
    }

    void captionsStandOutFromEveryFace() {
        Style::Apply(*qApp);
        const QPalette palette = QApplication::palette();
        for (const Skin::Look look : {Skin::Look::Normal, Skin::Look::Hover, Skin::Look::Focus, Skin::Look::Pressed})
            for (const Skin::Fill& fill : Skin::FaceOf(look, {100, 28}).Inside)
                if (fill.Area.contains(50, 14))
                    for (const Skin::Bgr ground : {fill.Top, fill.Bottom})
                        QVERIFY(Contrast(palette.color(QPalette::ButtonText), Style::FromBgr(ground)) >= 7);
        QVERIFY(Contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)) >= 7);
        QVERIFY(Contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)) >= 7);
        QVERIFY(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)) >= 5);
        for (const QColor& ground :
             {palette.color(QPalette::Window), Style::Colour::SideMenuTop, Style::Colour::SideMenuBottom}) {
            QVERIFY(Contrast(Style::Colour::Border, ground) >= 5);
            QVERIFY(Contrast(Style::Colour::Link, ground) >= 5);
        }
    }

    void theToolkitsButtonsHaveTheFacesOfTheFamilys() {
        Style::Apply(*qApp);
        QMessageBox box(QMessageBox::Question, {}, QStringLiteral("Text"), QMessageBox::Yes | QMessageBox::No);
        box.show();
        for (QAbstractButton* const button : box.buttons()) {
            CommandButton own(button->text());
            own.resize(button->size());
            QCOMPARE(button->size(), own.sizeHint());
            const QImage theirs = PictureOf(*button), ours = PictureOf(own);
            for (const QPoint place : {QPoint(1, 0), QPoint(2, 0), QPoint(1, 1), QPoint(2, 1), QPoint(40, 0)})
                QCOMPARE(theirs.pixelColor(place), ours.pixelColor(place));
        }
    }

    void aGroupHasItsTitleInTheLineOfItsFrame() {
        Style::Apply(*qApp);
        QGroupBox group(QStringLiteral("MMM"));
        group.resize(120, 60);
        const QColor ground = group.palette().color(QPalette::Window);
        const QImage picture = PictureOf(group);
        QCOMPARE(picture.pixelColor(60, 0), ground);
        QCOMPARE(picture.pixelColor(100, 8), Style::Colour::GroupBorder);
        QCOMPARE(picture.pixelColor(0, 30), Style::Colour::GroupBorder);
        QCOMPARE(picture.pixelColor(100, 59), Style::Colour::GroupBorder);
        QVERIFY(HasColour(picture.copy(12, 0, 20, 16), Style::Colour::Border));
        QCOMPARE(group.contentsRect(), QRect(1, 9, 118, 50));
    }

    void aListThatOpensHasAButtonsFace() {
        Style::Apply(*qApp);
        QComboBox list;
        list.addItem(QStringLiteral("One"));
        list.resize(120, 24);
        const QImage picture = PictureOf(list);
        QCOMPARE(picture.pixelColor(60, 0), Style::Colour::Border);
        QCOMPARE(picture.pixelColor(1, 1), QColor(82, 125, 165));
        QVERIFY(HasColour(picture.copy(90, 4, 26, 16), Style::Colour::Border)); // the arrow
    }

    void aToolButtonHasAButtonsFaceAndStaysPressedWhileItIsOn() {
        Style::Apply(*qApp);
        QToolButton button;
        button.setCheckable(true);
        button.resize(28, 28);
        QCOMPARE(PictureOf(button).pixelColor(14, 0), Style::Colour::Border);
        QCOMPARE(PictureOf(button).pixelColor(14, 1), QColor(247, 247, 247));
        button.setChecked(true);
        QCOMPARE(PictureOf(button).pixelColor(14, 1), QColor(231, 223, 214));
    }

    void theFrameOfABoxTellsOfTheFocus() {
        Style::Apply(*qApp);
        QLineEdit box;
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        box.setFocus();
        QCOMPARE(PictureOf(box).pixelColor(0, box.height() / 2), Style::Colour::Border);
        box.clearFocus();
        QCOMPARE(PictureOf(box).pixelColor(0, box.height() / 2), Style::Colour::FieldBorder);
    }

    void theToolkitsBoxesAndBarsHaveTheFamilysMarks() {
        Style::Apply(*qApp);
        QCheckBox plain(QStringLiteral("Tick"));
        TavelCheckBox own;
        own.setText(plain.text());
        QRadioButton plainOption(QStringLiteral("Tick"));
        TavelOptionButton ownOption;
        ownOption.setText(plainOption.text());
        QProgressBar plainBar;
        plainBar.setTextVisible(false);
        ProgressBar ownBar;
        for (QProgressBar* const bar : {&plainBar, static_cast<QProgressBar*>(&ownBar)}) {
            bar->setValue(60);
            bar->resize(208, 20);
        }
        QCOMPARE(PictureOf(plainBar), PictureOf(ownBar));
        for (const bool checked : {false, true}) {
            for (QAbstractButton* const box :
                 {static_cast<QAbstractButton*>(&plain), static_cast<QAbstractButton*>(&own),
                  static_cast<QAbstractButton*>(&plainOption), static_cast<QAbstractButton*>(&ownOption)}) {
                box->resize(100, 21);
                box->setChecked(checked);
            }
            QCOMPARE(PictureOf(plain).copy(0, 0, 13, 21), PictureOf(own).copy(0, 0, 13, 21));
            QCOMPARE(PictureOf(plainOption).copy(0, 0, 13, 21), PictureOf(ownOption).copy(0, 0, 13, 21));
        }
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
