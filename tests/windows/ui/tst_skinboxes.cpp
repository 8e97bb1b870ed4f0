// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "tests/windows/ui/Pixels.h"
#include "tests/windows/ui/SkinOptionsTest.h"
#include "ui/skin/TavelCheckBox.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QColor border(0, 50, 115);
const QColor ring(255, 178, 49);
const QColor disabledBorder(206, 199, 189);

} // namespace

class tst_skinboxes : public SkinOptionsTest {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        MakeOptions();
        other_ = new QLineEdit(window_.get());
        other_->setGeometry(200, 200, 100, 24);
        box_ = new TavelCheckBox(window_.get());
        box_->setText(u"&Tick me"_s);
        box_->setGeometry(10, 10, 150, 20);
        ShowOptions();
        other_->setFocus();
        PointAt(*other_);
    }

    void cleanup() { window_.reset(); }

    void theBoxStandsInTheMiddleOfTheHeight() {
        const QImage picture = PictureOf(*box_);
        const QColor ground = window_->palette().color(QPalette::Window);
        QCOMPARE(picture.pixelColor(6, 2), ground);
        QCOMPARE(picture.pixelColor(6, 3), border); // (20 - 13) / 2
        QCOMPARE(picture.pixelColor(6, 15), border);
        QCOMPARE(picture.pixelColor(6, 16), ground);
        QCOMPARE(picture.pixelColor(0, 9), border);
        QCOMPARE(picture.pixelColor(12, 9), border);
        QCOMPARE(picture.pixelColor(13, 9), ground);
        QCOMPARE(picture.pixelColor(6, 4), QColor(239, 235, 231));
        QCOMPARE(picture.pixelColor(6, 14), QColor(255, 255, 255));
    }

    void atTwiceTheScaleItsEdgesAreSharp() {
        const QImage picture = PictureOf(*box_, 2);
        for (const int column : {0, 1, 24, 25})
            QCOMPARE(picture.pixelColor(column, 18), border);
        QVERIFY(picture.pixelColor(2, 18) != border);
        QCOMPARE(picture.pixelColor(26, 18), window_->palette().color(QPalette::Window));
    }

    void statesShowTheirFrames() {
        const auto inside = [this] { return PixelOf(*box_, {2, 9}); };
        QVERIFY(inside() != ring);
        PointAt(*box_);
        QCOMPARE(inside(), ring);
        QTest::mousePress(box_, Qt::LeftButton);
        QCOMPARE(PixelOf(*box_, {6, 4}), QColor(214, 211, 198));
        Drag(*box_, {300, 9});
        QVERIFY(inside() != ring);
        QTest::mouseRelease(box_, Qt::LeftButton, {}, {300, 9});
        QCOMPARE(box_->Value(), 0);
        box_->setEnabled(false);
        QCOMPARE(PixelOf(*box_, {0, 9}), disabledBorder);
    }

    void aTickShowsItsMark() {
        const QImage empty = PictureOf(*box_);
        box_->SetValue(1);
        const QImage ticked = PictureOf(*box_);
        QVERIFY(empty != ticked);
        QCOMPARE(ticked.pixelColor(5, 11), border); // the lowest point of the tick
    }

    void thirteenPixelsIsTheLeastHeight() {
        box_->resize(100, 5);
        QCOMPARE(box_->height(), 13);
    }

    void clicksTurnZeroIntoOneAndOneIntoZero() {
        QTest::mouseClick(box_, Qt::LeftButton);
        QCOMPARE(box_->Value(), 1);
        QVERIFY(box_->isChecked());
        QTest::mouseClick(box_, Qt::MiddleButton, {}, {140, 2}); // anywhere in the control, any button but the right
        QCOMPARE(box_->Value(), 0);
        QTest::mouseClick(box_, Qt::RightButton);
        QCOMPARE(box_->Value(), 0);
        box_->setEnabled(false);
        QTest::mouseClick(box_, Qt::LeftButton);
        QCOMPARE(box_->Value(), 0);
    }

    void aValueOfTwoIsUntickedAndAClickMakesItOne() {
        box_->SetValue(2);
        QCOMPARE(box_->Value(), 2);
        QVERIFY(!box_->isChecked());
        QTest::mouseClick(box_, Qt::LeftButton);
        QCOMPARE(box_->Value(), 1);
        QVERIFY(box_->isChecked());
    }

    void whatSetsTheCheckedStateSetsTheValue() {
        box_->SetValue(2);
        box_->setChecked(true);
        QCOMPARE(box_->Value(), 1);
        box_->setChecked(false);
        QCOMPARE(box_->Value(), 0);
    }

    void theHostMayRefuseAValue() {
        const QSignalSpy changes(box_, &TavelCheckBox::ValueChanged);
        const auto refusing = connect(box_, &TavelCheckBox::ValueChanging, this, [](bool& cancel) { cancel = true; });
        QTest::mouseClick(box_, Qt::LeftButton);
        box_->SetValue(1);
        QCOMPARE(box_->Value(), 0);
        QVERIFY(!box_->isChecked());
        QCOMPARE(changes.size(), 0);
        disconnect(refusing);
        box_->SetValue(1);
        QCOMPARE(changes.size(), 1);
        box_->SetValue(2);
        box_->SetValue(3);
        QCOMPARE(changes.size(), 3);
        QCOMPARE(changes.constLast().constFirst().toInt(), 3);
    }

    void aBlankIsAMousePress() {
        box_->setFocus();
        QTest::keyPress(box_, Qt::Key_Space);
        QCOMPARE(PixelOf(*box_, {6, 4}), QColor(214, 211, 198));
        QCOMPARE(box_->Value(), 0);
        QTest::keyRelease(box_, Qt::Key_Space);
        QCOMPARE(box_->Value(), 1);
    }

    void arrowsAreTabsAndChooseNothing() {
        two_->SetValue(1);
        one_->setFocus();
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right}) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QVERIFY(two_->isChecked());
        }
        QCOMPARE(QApplication::focusWidget(), far_);
        QTest::keyClick(far_, Qt::Key_Up);
        QTest::keyClick(two_, Qt::Key_Left);
        QCOMPARE(QApplication::focusWidget(), one_);
        QTest::keyClick(one_, Qt::Key_Left);
        QCOMPARE(QApplication::focusWidget(), box_);
        QVERIFY(two_->isChecked());
    }

    void theAccessKeyStandsBehindTheFirstSingleAmpersand_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QKeySequence>("key");
        QTest::newRow("first") << u"&Tick"_s << QKeySequence(u"Alt+T"_s);
        QTest::newRow("double skipped") << u"R && D &here"_s << QKeySequence(u"Alt+H"_s);
        QTest::newRow("double only") << u"R && D"_s << QKeySequence();
        QTest::newRow("last") << u"Nothing&"_s << QKeySequence();
        QTest::newRow("two") << u"&One &two"_s << QKeySequence(u"Alt+O"_s);
    }

    void theAccessKeyStandsBehindTheFirstSingleAmpersand() {
        QFETCH(const QString, caption);
        QFETCH(const QKeySequence, key);
        box_->setText(caption);
        one_->setText(caption);
        QCOMPARE(box_->shortcut(), key);
        QCOMPARE(one_->shortcut(), key);
    }

    void theFocusDrawsARectangleAroundTheCaption() {
        const QImage without = PictureOf(*box_);
        box_->setFocus();
        const QImage with = PictureOf(*box_);
        QVERIFY(without != with);
        // Only around the caption: the glyph has none.
        QCOMPARE(without.copy(0, 0, 15, 20), with.copy(0, 0, 15, 20));
        // The caption, and 2 columns and a row beside it, all of it in the border's colour.
        const QSize text = box_->fontMetrics().size(Qt::TextShowMnemonic, box_->text());
        const QRect caption(QPoint(19, (20 - text.height()) / 2), text);
        QRect changed;
        for (int y = 0; y < with.height(); ++y)
            for (int x = 0; x < with.width(); ++x)
                if (with.pixel(x, y) != without.pixel(x, y)) {
                    changed |= QRect(x, y, 1, 1);
                    QCOMPARE(with.pixelColor(x, y), border);
                }
        const QRect line = caption.adjusted(-2, -1, 2, 1).intersected(box_->rect());
        QVERIFY(line.contains(changed));
        QVERIFY(changed.width() >= line.width() - 1 && changed.height() >= line.height() - 1); // a dot, a gap
        for (int i = 2; i < 12; i += 2) {
            QCOMPARE(with.pixelColor(line.left() + i, line.top()), border);
            QCOMPARE(with.pixelColor(line.left() + i, line.bottom()), border);
            QCOMPARE(with.pixelColor(line.left(), line.top() + i), border);
            QCOMPARE(with.pixelColor(line.right(), line.top() + i), border);
        }
        other_->setFocus();
        QCOMPARE(PictureOf(*box_), without);
    }

    void withoutACaptionTheFocusIsDrawnWithinTheMark() {
        for (QAbstractButton* const control :
             {static_cast<QAbstractButton*>(box_), static_cast<QAbstractButton*>(one_)}) {
            control->setText({});
            control->resize(13, 13);
            const QImage without = PictureOf(*control);
            control->setFocus();
            const QImage with = PictureOf(*control);
            for (const QPoint place : {QPoint(2, 4), QPoint(10, 4), QPoint(4, 2), QPoint(4, 10)}) {
                QVERIFY(without.pixelColor(place) != border);
                QCOMPARE(with.pixelColor(place), border);
            }
        }
    }

    void theCaptionHasThePalettesColourAndItsOwnUntilItIsEnabledAgain() {
        box_->SetForeColor(Qt::red);
        QVERIFY(HasColour(PictureOf(*box_), Qt::red));
        box_->setEnabled(false);
        QVERIFY(!HasColour(PictureOf(*box_), Qt::red));
        QVERIFY(!HasColour(Caption(), Qt::black));
        QVERIFY(HasColour(Caption(), Style::Colour::DisabledText));
        box_->setEnabled(true);
        QVERIFY(!HasColour(PictureOf(*box_), Qt::red));
        QVERIFY(HasColour(Caption(), Qt::black));
    }

    void anOpaqueBackHasItsColour() {
        box_->SetBackColor(Qt::yellow);
        QCOMPARE(box_->BackStyle(), 1);
        QCOMPARE(PixelOf(*box_, {149, 0}), QColor(Qt::yellow));
        box_->SetBackStyle(0);
        QVERIFY(!HasColour(PictureOf(*box_), Qt::yellow));
    }

    void keysAndMouseAreTold() {
        QStringList told;
        connect(box_, &TavelCheckBox::KeyDown, this, [&] { told += u"key down"_s; });
        connect(box_, &TavelCheckBox::KeyPress, this, [&](const QString& text) { told += u"key "_s + text; });
        connect(box_, &TavelCheckBox::KeyUp, this, [&] { told += u"key up"_s; });
        connect(box_, &TavelCheckBox::MouseDown, this, [&](Qt::MouseButton, Qt::KeyboardModifiers, int x, int y) {
            told += u"mouse down %1 %2"_s.arg(x).arg(y);
        });
        connect(box_, &TavelCheckBox::MouseMove, this, [&] { told += u"mouse move"_s; });
        connect(box_, &TavelCheckBox::MouseUp, this, [&] { told += u"mouse up"_s; });
        connect(box_, &TavelCheckBox::clicked, this, [&] { told += u"click"_s; });
        QTest::keyClick(box_, 'x');
        QTest::mousePress(box_, Qt::RightButton, {}, {3, 4});
        Drag(*box_, {4, 4});
        QTest::mouseRelease(box_, Qt::RightButton, {}, {4, 4});
        QTest::mouseClick(box_, Qt::LeftButton, {}, {3, 4});
        QCOMPARE(told, (QStringList{u"key down"_s, u"key x"_s, u"key up"_s, u"mouse down 3 4"_s, u"mouse move"_s,
                                    u"mouse up"_s, u"mouse down 3 4"_s, u"click"_s, u"mouse up"_s}));
    }

    void whoeverIsToldMayEndTheBox() {
        const auto ends = [this](auto told, const std::function<void(TavelCheckBox*)>& act) {
            auto* const box = new TavelCheckBox(window_.get());
            box->setGeometry(10, 250, 100, 20);
            box->show();
            const QPointer<TavelCheckBox> gone(box);
            connect(box, told, this, [box] { delete box; });
            act(box);
            return gone.isNull();
        };
        const auto press = [](TavelCheckBox* box) { QTest::mousePress(box, Qt::LeftButton); };
        const auto type = [](TavelCheckBox* box) { QTest::keyPress(box, 'x'); };
        QVERIFY(ends(&TavelCheckBox::pressed, press));
        QVERIFY(ends(&TavelCheckBox::MouseDown, press));
        QVERIFY(ends(&TavelCheckBox::MouseMove, [](TavelCheckBox* box) { Drag(*box, {4, 4}); }));
        QVERIFY(ends(&TavelCheckBox::clicked, [](TavelCheckBox* box) { QTest::mouseClick(box, Qt::LeftButton); }));
        QVERIFY(ends(&TavelCheckBox::KeyDown, type));
        QVERIFY(ends(&TavelCheckBox::KeyPress, type));
    }

    void aScreenReaderMeetsABoxWithItsNameAndStates() {
        QAccessibleInterface* const box = QAccessible::queryAccessibleInterface(box_);
        QCOMPARE(box->role(), QAccessible::CheckBox);
        QCOMPARE(box->text(QAccessible::Name), u"Tick me"_s);
        QVERIFY(!box->state().checked);
        box_->SetValue(1);
        QVERIFY(box->state().checked);
        box->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(box_->Value(), 0);
    }

    void theSizeLeavesRoomForTheCaption() {
        const QSize text = box_->fontMetrics().size(Qt::TextShowMnemonic, box_->text());
        QVERIFY(box_->sizeHint().width() >= 13 + 6 + text.width());
        QVERIFY(box_->sizeHint().height() >= text.height());
    }

private:
    QImage Caption() { return PictureOf(*box_).copy(14, 0, 130, 20); }

    QLineEdit* other_ = nullptr;
    TavelCheckBox* box_ = nullptr;
};

WINDOW_TEST(tst_skinboxes)

#include "tst_skinboxes.moc"
