// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "tests/windows/ui/Pixels.h"
#include "tests/windows/ui/SkinButtonsTest.h"

#include <QApplication>

using namespace Qt::StringLiterals;

class tst_skincaptions : public SkinButtonsTest {
    Q_OBJECT
private Q_SLOTS:

    void init() { MakeButtons(); }

    void cleanup() { window_.reset(); }

    void aDisabledPaintedButtonIgnoresItsColour() {
        painted_->SetForeColor(Qt::red);
        QVERIFY(HasColour(PictureOf(*painted_), Qt::red));
        painted_->setEnabled(false);
        QVERIFY(!HasColour(PictureOf(*painted_), Qt::red));
        QVERIFY(HasColour(PictureOf(*painted_), QColor(165, 162, 148)));
    }

    // The lines as a block in the middle of the height, each in the middle of the width.
    void thePaintedButtonsCaptionIsWrappedAndCentred() {
        const QFontMetrics metrics = painted_->fontMetrics();
        painted_->setGeometry(10, 10, metrics.horizontalAdvance(u"MMMM MM"_s) + 2, 60);
        painted_->setText(u"MMMM MM"_s);
        const QList<QRect> lines = InkedLines(*painted_);
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[0].width() > lines[1].width() * 3 / 2);
        const int top = (60 - 2 * metrics.lineSpacing()) / 2;
        for (int line = 0; line < 2; ++line) {
            const QRect ink = lines[line];
            QVERIFY(qAbs(ink.left() - (painted_->width() - 1 - ink.right())) <= 2);
            QVERIFY(qAbs(ink.bottom() + 1 - (top + line * metrics.lineSpacing() + metrics.ascent())) <= 1);
        }
        painted_->resize(painted_->width() + 2, 60); // 3 more than the text: it needs no second line
        QCOMPARE(InkedLines(*painted_).size(), 1);
    }

    void theSlicesCaptionIsCentredAndKeepsTwoPixelsOffTheEdge() {
        slices_->setText(u"MMMM"_s);
        const QList<QRect> lines = InkedLines(*slices_);
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].left() - (slices_->width() - 1 - lines[0].right())) <= 2);
        QFont large = slices_->font();
        large.setPixelSize(60);
        slices_->setFont(large);
        QRect ink;
        for (const QRect& line : InkedLines(*slices_))
            ink |= line;
        QCOMPARE(ink.top(), 2);
        QCOMPARE(ink.bottom(), slices_->height() - 3);
        QVERIFY(ink.left() >= 2 && ink.left() < 8);
        QVERIFY(ink.right() <= slices_->width() - 3);
    }

    void theSlicesCaptionIsBlackAndGreyWhenDisabled() {
        QVERIFY(HasColour(PictureOf(*slices_).copy(10, 4, 80, 20), Qt::black));
        slices_->setEnabled(false);
        QVERIFY(!HasColour(PictureOf(*slices_), Qt::black));
        QVERIFY(HasColour(PictureOf(*slices_), QColor(165, 162, 148)));
    }

    void textIsTheSuitesOnADarkDesktopToo() {
        QPalette dark(QColor(30, 30, 30));
        dark.setColor(QPalette::ButtonText, Qt::white);
        QApplication::setPalette(dark);
        for (const char* name : {"QPushButton", "QAbstractButton"})
            QApplication::setPalette(dark, name);
        Style::Apply(*qApp);
        UserControl1 button;
        button.setText(u"Go"_s);
        QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(Qt::black));
        QCOMPARE(button.palette().color(QPalette::Disabled, QPalette::ButtonText), Style::Colour::DisabledText);
    }

    void withoutACaptionItShowsItsName() {
        UserControl1 button;
        button.setObjectName(u"UserControl11"_s);
        QCOMPARE(button.text(), u"UserControl11"_s);
        CommandButton other(u"Given"_s);
        other.setObjectName(u"Command1"_s);
        QCOMPARE(other.text(), u"Given"_s);
    }

    void theSizeLeavesRoomForEveryCaption_data() { Both(); }

    void theSizeLeavesRoomForEveryCaption() {
        QPushButton& button = Chosen();
        for (const QString& caption : {u"OK"_s, u"Enregistrer la table sous un autre nom"_s, u"two\nlines"_s}) {
            button.setText(caption);
            const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, caption);
            QVERIFY(button.sizeHint().width() >= text.width() + 16);
            QVERIFY(button.sizeHint().height() >= text.height() + 4);
            QCOMPARE(button.sizeHint().width() % 4, 0);
            QCOMPARE(button.sizeHint().height() % 4, 0);
        }
    }

private:
    /// Where the lines of a button's caption have changed its face.
    static QList<QRect> InkedLines(QPushButton& button) {
        const QImage with = PictureOf(button);
        const QString text = button.text();
        button.setText({});
        const QImage without = PictureOf(button);
        button.setText(text);
        QList<QRect> lines;
        for (int y = 0; y < with.height(); ++y)
            for (int x = 0; x < with.width(); ++x)
                if (with.pixel(x, y) != without.pixel(x, y)) {
                    if (lines.isEmpty() || lines.constLast().bottom() < y - 1)
                        lines += QRect();
                    lines.last() |= QRect(x, y, 1, 1);
                }
        return lines;
    }
};

WINDOW_TEST(tst_skincaptions)

#include "tst_skincaptions.moc"
